#pragma once

#include "model/cEntryItem.h"
#include "model/cMatch.h"
#include "model/cProposal.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;
class cProgress;
class cSeriesFinder;
struct cImportEntry;
struct cSeriesMatch;

// What became of a run of bookings.
struct cBookingResult
{
    int Entries = 0;             // entries added to the book
    int Bare = 0;                // of these: without a category, because none is known
    int Rows = 0;                // staged rows assigned, partners of transfers included
    int Joined = 0;              // of these: rows that went to an entry which was there before
    int Skipped = 0;             // rows that were already assigned or are gone
    int Failed = 0;              // rows that the database did not take
    QStringList UnknownAccounts; // own account numbers without an account of the book; their rows were not booked
    QList<int> EntryIds;         // of the entries added, in their order
    QList<cMatch> Corrections; // joined rows whose occurrence has another amount or day. The correction is written, but
                               // not where it replaces one of the user: cCorrectionFlow asks what is to be asked

    // Of a run that the database refused: all of it was taken back.
    [[nodiscard]] static cBookingResult Nothing(qsizetype rows)
    {
        cBookingResult result;
        result.Failed = static_cast<int>(rows);
        return result;
    }
};

// Staged rows into entries.
class cBooking
{
public:
    cBooking(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts);

    // Books the rows as proposed, by row ID, in the order of their days; a proposal may have been edited by the user
    // before. Both rows of a transfer go to one entry. After a failure all of it is taken back and counted as failed.
    [[nodiscard]] cBookingResult Book(const QList<int>& rowIds, const QHash<int, cProposal>& proposals,
                                      cProgress& progress);

    // Assigns a row to an entry that is in the book already.
    [[nodiscard]] bool Assign(int rowId, int entryId);

    // Sets the row back to not booked; its entry stays.
    [[nodiscard]] bool Unassign(int rowId);

private:
    enum class eOutcome { Booked, Skipped, NoAccount, Failed };

    [[nodiscard]] QList<int> ByDay(QList<int> rowIds);
    [[nodiscard]] eOutcome BookRow(int rowId, cProposal proposal, cSeriesFinder& series, cBookingResult& result);
    [[nodiscard]] bool HasAccount(const cImportEntry& row, cProposal& proposal, cBookingResult& result);
    [[nodiscard]] eOutcome BookNew(const cImportEntry& row, const cProposal& proposal, cSeriesFinder& series,
                                   cBookingResult& result);
    [[nodiscard]] eOutcome Join(const cImportEntry& row, const cProposal& proposal, const cSeriesMatch& match,
                                cBookingResult& result);
    [[nodiscard]] eOutcome JoinTransfer(const cImportEntry& row, const cProposal& proposal, const cEntryItem& existing,
                                        cBookingResult& result);
    void AssignPartner(int partnerRow, int entryId, cBookingResult& result);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    const cAccountMap& m_accounts;
};
