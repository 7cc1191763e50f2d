#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <optional>

class cDataAccess;
class cImportHiveCache;

// An occurrence of a series in the book that a bank transaction pays.
struct cSeriesMatch
{
    cEntryItem Series;
    cEntryItem Occurrence; // as corrected so far
};

// Finds the series that a transaction belongs to, so that the rent of the second month becomes an occurrence of the
// first month's entry instead of a second series beside it. A series is taken when a row of the same counterparty was
// booked to it, account, kind, category and interval are the same, and its nearest occurrence has no row yet.
class cSeriesFinder
{
public:
    cSeriesFinder(cDataAccess& data, cImportHiveCache& hive);

    [[nodiscard]] std::optional<cSeriesMatch> Find(const cImportEntry& row, const cEntryItem& entry);

    // Makes a series known that the row has just been booked to.
    void Learn(const cImportEntry& row, const cEntryItem& series);

private:
    void Build();
    [[nodiscard]] std::optional<cSeriesMatch> Match(const cEntryItem& series, const cImportEntry& row);
    [[nodiscard]] bool IsTaken(const cEntryItem& series, const cEntryItem& occurrence,
                               const cEntryItemFixModList& fixMods, const cImportEntry& wanted);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    bool m_isBuilt = false;
    QMultiHash<QString, int> m_entries; // counterparty to entry IDs
    QHash<int, std::optional<cEntryItem>> m_loaded;
};
