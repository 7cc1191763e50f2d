#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryWindow.h"
#include "model/modPeriod.h"
#include "views/list/cBalanceDays.h"

#include <QDate>
#include <QList>
#include <QObject>
#include <QTimer>

struct cBookTools;

// What is due, overdue, too low or to be cancelled, worked out once for whoever shows it: the overview, the accounts
// panel, the status bar, the desktop. It looks a while after the book was opened or changed, so that nobody waits for
// it.
class cOutlook final : public QObject
{
    Q_OBJECT

public:
    // What a few queries tell. Like the series it is empty where the book cannot be read: a part would tell the wrong
    // things.
    struct cDay
    {
        QDate Today{};
        cEntryItemList Due{}; // within modOverview::DueDays
        QList<cLimitWarning> Warnings{};
        cEntryItemList Contracts{}; // that have to be cancelled soon or go on
    };

    // What takes a look at all transactions of the bank: how many payments that were due it has not booked, and how
    // many series it does not book any more.
    struct cSeries
    {
        qsizetype Late = 0;
        qsizetype Ended = 0;

        bool operator==(const cSeries&) const = default;
    };

    explicit cOutlook(const cBookTools& tools, QObject* parent = nullptr); // the tools outlive it

    void Start();             // the book is open and may be shown
    void Stop();              // there is no book for a while
    void BookChanged();       // looks once for several changes in a row
    void StatementsChanged(); // likewise, also at the series
    void Tick();              // now and then: looks again once another day has begun
    [[nodiscard]] bool IsRunning() const { return m_lookedOn.isValid(); }

    // Looks at once, but not at the series. What was read is left to whoever shows more than this; such days hold those
    // that are needed here.
    cEntryWindow Look(const modPeriod::cRange& days);
    void Look();
    void LookAtSeries();
    void WantSeries(); // they are in sight: soon

    [[nodiscard]] const cDay& Day() const { return m_day; }
    [[nodiscard]] const cSeries& Series() const { return m_series; }

Q_SIGNALS:
    void Looked();         // at the day
    void LookedAtSeries(); // at all of it

private:
    const cBookTools& m_tools;
    cDay m_day;
    cSeries m_series;
    QDate m_lookedOn; // invalid while there is no book
    QTimer tmrLook;
    QTimer tmrSeries;
    QTimer tmrDay;
};
