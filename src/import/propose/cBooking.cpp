#include "import/propose/cBooking.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modLog.h"
#include "import/propose/cSeriesFinder.h"
#include "import/propose/modOccurrence.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cUndoStep.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int progressStep = 25; // rows between two looks at the user interface

// A row that is there and free.
std::optional<cImportEntry> OpenRow(cImportHiveCache& hive, int rowId)
{
    std::optional<cImportEntry> row = hive.GetImportHive().GetImportEntryByID(rowId);
    return row && !row->ImportAssigned ? row : std::nullopt;
}

bool HasAssigned(cImportHiveCache& hive, cImportEntry row, int entryId)
{
    row.ImportAssigned = entryId > -1;
    row.ImportAssignedEntry = entryId;
    return hive.Change(row);
}

bool IsJoiningTransfer(const cProposal& proposal)
{
    return proposal.ExistingEntry != 0 && proposal.Entry.IsTransfer();
}

// What the user has chosen for a row goes to its entry, also where another row brought that.
void TakeChosen(cEntryItem& entry, const cProposal& chosen)
{
    if (chosen.HasOwnCategory) {
        entry.EntryCategory = chosen.Entry.EntryCategory;
    }
    if (chosen.HasOwnText) {
        entry.EntryDescription = chosen.Entry.EntryDescription;
    }
}

// The proposal of a row with what was chosen for the other row of its transfer, where nothing was for itself.
cProposal WithPartner(cProposal proposal, const QHash<int, cProposal>& proposals)
{
    if (const cProposal partner = proposals.value(proposal.PartnerRow); partner.PartnerRow != 0) {
        const cProposal own = proposal;
        TakeChosen(proposal.Entry, partner);
        TakeChosen(proposal.Entry, own);
    }
    return proposal;
}

void Trace(qsizetype wanted, const cBookingResult& result, const QElapsedTimer& time)
{
    qCInfo(modLog::Booking) << "rows" << wanted << "booked" << result.Rows << "joined" << result.Joined << "entries"
                            << result.Entries << "skipped" << result.Skipped << "failed" << result.Failed
                            << "unknown accounts" << result.UnknownAccounts.size() << "ms" << time.elapsed();
}

} // namespace

cBooking::cBooking(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts)
    : m_data(data),
      m_hive(hive),
      m_accounts(accounts)
{
}

// Banks write the newest row first, but a series begins with the oldest.
QList<int> cBooking::ByDay(QList<int> rowIds)
{
    const cImportHive& hive = m_hive.GetImportHive();
    const auto place = [&](int id) {
        return std::pair(hive.GetImportEntryByID(id).value_or(cImportEntry()).ImportDate, id);
    };
    std::sort(rowIds.begin(), rowIds.end(), [&](int a, int b) { return place(a) < place(b); });
    return rowIds;
}

cBookingResult cBooking::Book(const QList<int>& rowIds, const QHash<int, cProposal>& proposals, cProgress& progress)
{
    // A row and its entry belong together: a row that stays open beside its entry would be booked a second time.
    cUndoStep step(m_data, cText::Tr("Umsätze gebucht"));
    QElapsedTimer time;
    time.start();
    cBookingResult result;
    cSeriesFinder series(m_data, m_hive);
    progress.showProgressBar(static_cast<int>(rowIds.size()));
    const QList<int> ids = ByDay(rowIds);
    for (qsizetype i = 0; i < ids.size() && result.Failed == 0 && !progress.IsCancelled(); ++i) {
        if (i > 0 && i % progressStep == 0) {
            progress.addProgressValue(progressStep);
        }
        const auto proposal = proposals.constFind(ids.at(i));
        const bool isKnown = proposal != proposals.constEnd();
        const eOutcome outcome =
            isKnown ? BookRow(ids.at(i), WithPartner(*proposal, proposals), series, result) : eOutcome::Skipped;
        result.Skipped += outcome == eOutcome::Skipped ? 1 : 0;
        result.Failed += outcome == eOutcome::Failed ? 1 : 0;
    }
    progress.addProgressValue(static_cast<int>(rowIds.size()) % progressStep);
    if (!step.DoneIf(result.Failed == 0)) {
        return cBookingResult::Nothing(rowIds.size());
    }
    Trace(rowIds.size(), result, time);
    return result;
}

cBooking::eOutcome cBooking::BookRow(int rowId, cProposal proposal, cSeriesFinder& series, cBookingResult& result)
{
    const std::optional<cImportEntry> row = OpenRow(m_hive, rowId);
    if (!row) {
        return eOutcome::Skipped;
    }
    if (!HasAccount(*row, proposal, result)) {
        return eOutcome::NoAccount;
    }
    if (proposal.PartnerRow != 0 && !OpenRow(m_hive, proposal.PartnerRow)) {
        // Its other row got an entry of its own before, so a transfer would move that money a second time.
        proposal.MakeSpent(*row, m_accounts.AccountOf(row->ImportAccount));
    }
    if (proposal.IsAlone) {
        return BookNew(*row, proposal, series, result);
    }
    const bool isSingle = !modRecurrence::IsRecurring(proposal.Entry.EntryInterval);
    if (proposal.BookedAs.isEmpty() && !(isSingle && IsJoiningTransfer(proposal))) {
        if (const std::optional<cSeriesMatch> match = series.Find(*row, proposal.Entry)) {
            const bool isStored = (!match->IsExtended || m_data.ChangeEntry(match->Series))
                && std::all_of(match->Missed.begin(), match->Missed.end(),
                               [this](const cEntryItemFixMod& fixMod) { return m_data.AddNewEntryMod(fixMod); });
            if (!isStored) {
                return eOutcome::Failed;
            }
            series.Learn(*row, match->Series);
            return Join(*row, proposal, *match, result);
        }
        if (proposal.ExistingEntry != 0) {
            proposal.Entry.EntryInterval = modWord::Einmalig; // another row of this run was nearer to its occurrence
        }
    } else if (IsJoiningTransfer(proposal)) {
        if (const std::optional<cEntryItem> transfer = m_data.LoadEntry(proposal.ExistingEntry)) {
            return JoinTransfer(*row, proposal, *transfer, result);
        }
    }
    return BookNew(*row, proposal, series, result);
}

// Gives the proposal the account of the row where it has none; notes the number of which no account is known.
bool cBooking::HasAccount(const cImportEntry& row, cProposal& proposal, cBookingResult& result)
{
    if (proposal.Entry.EntryAccount.isEmpty()) {
        proposal.Entry.EntryAccount = m_accounts.AccountOf(row.ImportAccount);
    }
    const bool isKnown = !proposal.Entry.EntryAccount.isEmpty();
    if (!isKnown && !result.UnknownAccounts.contains(row.ImportAccount)) {
        result.UnknownAccounts.append(row.ImportAccount);
    }
    return isKnown;
}

cBooking::eOutcome cBooking::BookNew(const cImportEntry& row, const cProposal& proposal, cSeriesFinder& series,
                                     cBookingResult& result)
{
    cEntryItem entry = proposal.Entry;
    if (!m_data.AddNewEntry(entry)) {
        return eOutcome::Failed;
    }
    if (!HasAssigned(m_hive, row, entry.ID)) {
        return eOutcome::Failed;
    }
    ++result.Entries;
    result.Bare += proposal.IsDefault && !entry.IsTransfer() ? 1 : 0;
    ++result.Rows;
    result.EntryIds.append(entry.ID);
    series.Learn(row, entry);
    AssignPartner(proposal.PartnerRow, entry.ID, result);
    return eOutcome::Booked;
}

cBooking::eOutcome cBooking::Join(const cImportEntry& row, const cProposal& proposal, const cSeriesMatch& match,
                                  cBookingResult& result)
{
    if (!HasAssigned(m_hive, row, match.Series.ID)) {
        return eOutcome::Failed;
    }
    // Of a split series the bank knows the whole only, so its amount is none of a part's.
    const bool isSplit = modSplit::Group(match.Series) != 0;
    const auto what = isSplit ? modOccurrence::eCorrect::Day : modOccurrence::eCorrect::AmountAndDay;
    if (const std::optional<cEntryItemFixMod> fixMod = modOccurrence::CorrectionTo(match.Occurrence, row, what)) {
        cMatchCandidate joined;
        joined.Entry = match.Occurrence;
        joined.Cents = row.ImportValue;
        joined.Correction = fixMod;
        joined.ReplacesOwn = modOccurrence::ReplacesOwn(match.Occurrence, *fixMod);
        if (!joined.ReplacesOwn && !isSplit && !m_data.AddNewEntryMod(*fixMod)) { // all parts move together, or none
            return eOutcome::Failed;
        }
        result.Corrections.append({row.ID, joined});
    }
    ++result.Rows;
    ++result.Joined;
    AssignPartner(proposal.PartnerRow, match.Series.ID, result);
    return eOutcome::Booked;
}

// A transfer has the day on which the money leaves, also when the row of the other account was there first.
cBooking::eOutcome cBooking::JoinTransfer(const cImportEntry& row, const cProposal& proposal,
                                          const cEntryItem& existing, cBookingResult& result)
{
    cEntryItem transfer = existing;
    if (row.ImportValue < 0 && !modRecurrence::IsRecurring(transfer.EntryInterval)) {
        transfer.EntryDate = row.ImportDate;
    }
    if (!proposal.BookedAs.isEmpty()) {
        transfer.EntryType = proposal.Entry.EntryType;
        transfer.EntryAccount = proposal.Entry.EntryAccount;
        transfer.EntryAccountMove = proposal.Entry.EntryAccountMove;
        transfer.EntryInterval = proposal.Entry.EntryInterval;
    }
    TakeChosen(transfer, proposal);
    if (!HasAssigned(m_hive, row, transfer.ID)) {
        return eOutcome::Failed;
    }
    if (transfer != existing && !m_data.ChangeEntry(transfer)) {
        return eOutcome::Failed;
    }
    ++result.Rows;
    ++result.Joined;
    return eOutcome::Booked;
}

void cBooking::AssignPartner(int partnerRow, int entryId, cBookingResult& result)
{
    const std::optional<cImportEntry> partner = partnerRow != 0 ? OpenRow(m_hive, partnerRow) : std::nullopt;
    if (!partner) {
        return;
    }
    if (HasAssigned(m_hive, *partner, entryId)) {
        ++result.Rows;
    } else {
        ++result.Failed;
    }
}

bool cBooking::Assign(int rowId, int entryId)
{
    const std::optional<cImportEntry> row = m_hive.GetImportHive().GetImportEntryByID(rowId);
    return row && m_data.LoadEntry(entryId) && HasAssigned(m_hive, *row, entryId);
}

bool cBooking::Unassign(int rowId)
{
    const std::optional<cImportEntry> row = m_hive.GetImportHive().GetImportEntryByID(rowId);
    return row && HasAssigned(m_hive, *row, -1);
}
