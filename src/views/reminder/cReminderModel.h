#pragma once

#include "views/reminder/cReminders.h"

#include <QObject>
#include <QTimer>

class cNavigator;
class cNotifier;
struct cBookTools;

// The line of the status bar that says what is due, and the note of the desktop that says it once a day where the user
// wants that. It looks a while after the book was opened or changed, so that nobody waits for it.
class cReminderModel final : public QObject
{
    Q_OBJECT

public:
    // All of it outlives the model. Without a notifier the desktop is told nothing.
    cReminderModel(const cBookTools& tools, cNavigator& navigator, cNotifier* notifier, QObject* parent = nullptr);

    void Start();             // the book is open and may be shown
    void Stop();              // there is no book for a while
    void BookChanged();       // looks once for several changes in a row
    void StatementsChanged(); // likewise, also for what the bank should have booked by now
    void Look();              // at once, but for what takes longer
    void LookForLate();       // that, and then tells the desktop
    void Tick();              // now and then: looks again once another day has begun

    [[nodiscard]] QString Text() const; // empty when there is nothing
    void Follow();                      // opens the entry that the line is about, or wants the overview

Q_SIGNALS:
    void Changed();
    void OverviewWanted();

private:
    [[nodiscard]] QList<cReminder> All() const { return m_quick + m_late; }
    void Tell();

    const cBookTools& m_tools;
    cNavigator& m_navigator;
    cNotifier* m_notifier;
    QList<cReminder> m_quick;
    QList<cReminder> m_late;
    QDate m_day; // on which it was looked last; invalid while there is no book
    QTimer tmrLook;
    QTimer tmrLate;
    QTimer tmrDay;
};
