#pragma once

#include "views/reminder/modReminders.h"

#include <QObject>

class cNavigator;
class cNotifier;
class cOutlook;
struct cBookTools;

// The line of the status bar that says what is due, and the note of the desktop that says it once a day where the user
// wants that.
class cReminderModel final : public QObject
{
    Q_OBJECT

public:
    struct cParts
    {
        const cOutlook& Outlook;
        cNavigator& Navigator;
        cNotifier* Notifier = nullptr; // without one the desktop is told nothing
    };

    // All of it outlives the model.
    cReminderModel(const cBookTools& tools, const cParts& parts, QObject* parent = nullptr);

    [[nodiscard]] QString Text() const; // empty when there is nothing
    void Follow();                      // opens the entry that the line is about, or wants the overview

Q_SIGNALS:
    void Changed();
    void OverviewWanted();

private:
    [[nodiscard]] QList<cReminder> All() const;
    void Tell();

    const cBookTools& m_tools;
    cParts m_parts;
};
