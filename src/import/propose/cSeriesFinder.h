#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <optional>

class cDataAccess;
class cImportHiveCache;

// An occurrence of a series in the book that a bank transaction pays.
struct cSeriesMatch
{
    cEntryItem Series;
    cEntryItem Occurrence;   // as corrected so far
    bool IsExtended = false; // the series as stored ends before this row, or begins after it
    // Of a series that goes on: what it leaves out between its former end and this row.
    cEntryItemFixModList Missed{};
};

// Finds the series that a transaction belongs to, so that the rent of the second month becomes an occurrence of the
// first month's entry instead of a second series beside it. A series is taken when a row of the same counterparty was
// booked to it, account, kind, category and interval are the same, and its nearest occurrence has no row yet. One that
// ended up to three occurrences ago goes on when about the same amount comes again: statements may be read in pieces,
// with the series of the first piece ended behind it. One that begins one interval later begins with the row instead,
// or more intervals later where each of them has its row: the newer statement may have been booked first.
class cSeriesFinder
{
public:
    cSeriesFinder(cDataAccess& data, cImportHiveCache& hive);

    [[nodiscard]] std::optional<cSeriesMatch> Find(const cImportEntry& row, const cEntryItem& entry);

    // Makes a series known that the row has just been booked to.
    void Learn(const cImportEntry& row, const cEntryItem& series);

    // True when the rows of the same counterparty, as far as they are there, say that the row does not recur like that:
    // another lies half an interval away, or none follows, nor goes before, where the account's rows go on.
    [[nodiscard]] bool IsContradicted(const cImportEntry& row, const QString& interval);

    // True when the same amount went the other way some days before or after, as with a direct debit that was returned.
    [[nodiscard]] bool IsTakenBack(const cImportEntry& row);

private:
    struct cPayment
    {
        int RowId = 0;
        qint64 Cents = 0;
        int EntryId = 0; // that it was booked to; 0 while it is open
    };
    using cPayments = QMultiMap<QDate, cPayment>;
    struct cDays
    {
        cPayments In;
        cPayments Out; // what comes back is another matter
    };

    void Build();
    void Note(const cImportEntry& row, int series);
    void BuildDays();
    [[nodiscard]] cDays DaysOf(const cImportEntry& row);
    [[nodiscard]] cPayments PaymentsLike(const cImportEntry& row); // of its direction, itself among them
    // Whether another payment near the row is about that high.
    [[nodiscard]] static bool HasAbout(const cPayments& payments, qint64 cents, const cImportEntry& row, int reach);
    [[nodiscard]] QSet<int> SeriesOf(const cImportEntry& row) const; // that rows of its counterparty have paid
    // That rows without a name have paid in its words.
    [[nodiscard]] QSet<int> UnnamedLike(const cImportEntry& row) const;
    [[nodiscard]] cEntryItemList Alike(const cImportEntry& row, const cEntryItem& entry);
    [[nodiscard]] std::optional<cSeriesMatch> Match(const cEntryItem& series, const cImportEntry& row);
    [[nodiscard]] std::optional<cSeriesMatch> Reopen(const cEntryItemList& alike, const cImportEntry& row);
    [[nodiscard]] std::optional<cSeriesMatch> Precede(const cEntryItemList& alike, const cImportEntry& row);
    // Corrections that leave out what nothing pays of these days.
    [[nodiscard]] cEntryItemFixModList Missed(cEntryItem occurrence, const QList<QDate>& days, const cImportEntry& row);
    [[nodiscard]] bool HasPayment(const cEntryItem& series, const cImportEntry& row);
    [[nodiscard]] bool IsTaken(const cEntryItem& series, const cEntryItem& occurrence,
                               const cEntryItemFixModList& fixMods, const cImportEntry& wanted);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    bool m_isBuilt = false;
    QHash<QString, QSet<int>> m_entries; // counterparty to the IDs of its series
    QHash<QString, QSet<int>> m_named;   // names to those that rows with an account as well have paid
    QMap<QString, QSet<int>> m_unnamed;  // words of a purpose to those that rows without a name have paid
    QHash<int, cEntryItem> m_series;     // by ID
    bool m_hasDays = false;
    QHash<QString, QHash<QString, cDays>> m_days; // counterparty and own account number to its rows
    QHash<QString, QDate> m_lastDays;             // own account number to its last row
};
