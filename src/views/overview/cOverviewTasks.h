#pragma once

#include "views/overview/cOutlook.h"

#include <QList>
#include <QString>

struct cBookTools;

// What waits for the user: something to be done, or something that has not been done for a while.
struct cOverviewTask
{
    enum class eKind {
        OpenRows,     // transactions of the bank that wait for their entry
        Difference,   // the book has another balance than the bank
        OldStatement, // the newest one of an account
        OldFetch,
        NoBackup,
        OldBackup,
        LateSeries, // payments that the bank has not booked
        EndedSeries,
    };

    eKind Kind = eKind::OpenRows;
    QString Text;
};

class cOverviewTasks
{
public:
    static constexpr int OldStatementDays = 40; // a month, and some days until the bank has its statement ready
    static constexpr int OldFetchDays = 14;
    static constexpr int OldBackupDays = 14;

    explicit cOverviewTasks(const cBookTools& tools) : m_tools(tools) {}

    // What a few queries tell.
    [[nodiscard]] QList<cOverviewTask> Quick() const;
    [[nodiscard]] static QList<cOverviewTask> Of(const cOutlook::cSeries& series);

private:
    void AddAccounts(QList<cOverviewTask>& tasks) const;
    void AddFetch(QList<cOverviewTask>& tasks) const;
    void AddBackup(QList<cOverviewTask>& tasks) const;

    const cBookTools& m_tools;
};
