#pragma once

#include "model/cEntryItem.h"
#include "model/cImportEntry.h"
#include "model/modPeriod.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class cAccountMap;
class cImportHiveCache;
struct cBookTools;

// Finds series that the bank does not pay any more, and occurrences that it has not paid yet: on the days that an
// account's rows and balances cover, the book would differ from the bank by each of them.
class cSeriesCheck
{
public:
    cSeriesCheck(const cBookTools& tools, cImportHiveCache& hive, const cAccountMap& accounts);

    struct cFinding
    {
        int EntryId = 0;
        QString Account;
        QDate LastPaid;      // day of the last row; invalid when there never was one
        QDate End;           // ended: the last day that the series is to have
        bool IsLate = false; // one occurrence only; the series goes on
        QDate Occurrence;    // late: its planned day; ended: the first one that nothing paid
        QDate MoveTo;        // late: behind the covered days and today; invalid: the series went on, leave it out
    };

    // Of these accounts, or of all. A series has ended when two of its occurrences in a row lie so far back that their
    // rows would be there. Statements that end more than a year ago are history: there the days up to today count.
    // What an open row may pay is left alone.
    [[nodiscard]] QList<cFinding> Find(const QStringList& accounts = {});
    [[nodiscard]] bool IsClean() { return Find().isEmpty(); }
    [[nodiscard]] static QString NothingFound();             // in words
    [[nodiscard]] bool Apply(const QList<cFinding>& chosen); // one step; false when the database refuses

    // What else is to be known of the series: contracts that have to be cancelled soon, line by line; empty for none.
    [[nodiscard]] QString Contracts() const;

    // Shows what was found, all of it ticked, and applies what stays ticked. Lines for a summary; empty when nothing
    // was found or wanted. Occurrences that the user did not want to be moved or ended go into `declined`, and what is
    // there is not asked about, as after every row.
    using cDeclined = QSet<std::pair<int, QDate>>; // entry and day
    [[nodiscard]] QStringList Ask(const QStringList& accounts, cDeclined* declined = nullptr);

    // "'Miete' (Girokonto): zuletzt bezahlt am 01.03.2026; endet am 01.03.2026"
    [[nodiscard]] QString Line(const cFinding& finding) const;

private:
    struct cAccountRows
    {
        modPeriod::cRange Covered;
        cImportEntryList Open;
    };

    struct cSeries
    {
        cEntryItem Entry; // of a split series the first part
        QString Account;
        const cAccountRows& Rows;
        QHash<QDate, QDate> Paid; // planned day to day of the row
    };

    [[nodiscard]] QString AccountOf(const QString& number); // as it was at the beginning of the search
    [[nodiscard]] QHash<QString, cAccountRows> RowsByAccount();
    void LeaveOutDoubles(const cImportEntryList& rows, QHash<QString, cAccountRows>& accounts) const;
    [[nodiscard]] cEntryItemList SeriesOf(const QString& account, const QHash<QString, cAccountRows>& rows);
    [[nodiscard]] QList<int> Parts(const cEntryItem& entry) const;
    [[nodiscard]] QStringList AskAbout(const QList<cFinding>& findings);
    void NotePaid(cSeries& series);
    [[nodiscard]] cEntryItemList OccurrencesOf(const cEntryItem& series, const modPeriod::cRange& days) const;
    [[nodiscard]] QList<cFinding> FindIn(const cSeries& series);
    [[nodiscard]] bool ApplyOne(const cFinding& finding, int entryId);
    [[nodiscard]] bool End(const cFinding& finding, const cEntryItem& series);
    [[nodiscard]] bool Correct(const cEntryItem& occurrence, QDate day);

    const cBookTools& m_tools;
    cImportHiveCache& m_hive;
    const cAccountMap& m_accounts;
    QHash<QString, QString> m_names; // of accounts, by number
};
