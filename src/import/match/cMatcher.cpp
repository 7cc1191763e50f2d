#include "import/match/cMatcher.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "import/match/cMatchIndex.h"
#include "import/match/modMatchScore.h"
#include "import/propose/cProposer.h"
#include "import/propose/cTransferFinder.h"
#include "import/propose/modOccurrence.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modBalance.h"
#include "model/modCutText.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace {

constexpr int progressStep = 25; // rows between two looks at the user interface

// What a row says beyond amount and day; asked for only when an entry of its amount lies near.
struct cRowSense
{
    cProposal Proposal;
    cMatchText Text;

    cRowSense(const cImportEntry& row, cProposal proposal) : Proposal(std::move(proposal))
    {
        // The default category says nothing, and neither does that of a transfer.
        const bool isKnown = !Proposal.IsDefault && !Proposal.Entry.IsTransfer();
        const cImportEntry whole = modCutText::WholeWords(row);
        Text = cMatchText(whole.ImportBeneficiary, whole.ImportPurpose,
                          isKnown ? Proposal.Entry.EntryCategory : QString());
    }

    [[nodiscard]] cMatchText::cLikeness Compare(const cEntryItem& entry, const cMatchText& text) const
    {
        if (entry.IsTransfer() && Proposal.Entry.IsTransfer() && entry.EntryAccount == Proposal.Entry.EntryAccount
            && entry.EntryAccountMove == Proposal.Entry.EntryAccountMove) {
            return {1.0, modMatchScore::eTextMatch::OwnAccount};
        }
        if (entry.ID == Proposal.ExistingEntry) {
            return {1.0, modMatchScore::eTextMatch::Earlier};
        }
        return cMatchText::Compare(Text, text);
    }
};

// Amount and day; what the texts say is not known yet.
modMatchScore::cEvidence EvidenceOf(const cImportEntry& row, const cMatchIndex::cItem& item)
{
    modMatchScore::cEvidence evidence;
    evidence.RowCents = std::abs(row.ImportValue);
    evidence.EntryCents = std::abs(item.Cents);
    evidence.Days = modOccurrence::Days(item.Entry, row.ImportDate);
    evidence.IsSeries = item.IsSeries;
    return evidence;
}

// A transfer with another own account than the one that the row names.
bool IsWithAnother(const cEntryItem& entry, const QString& account)
{
    return entry.IsTransfer() && !account.isEmpty() && entry.EntryAccount != account
        && entry.EntryAccountMove != account;
}

// What an occurrence needs to agree with its row. Of a split entry whose whole has another amount nobody knows which
// part is meant.
void OfferCorrection(cMatchCandidate& candidate, const cImportEntry& row)
{
    const bool isSplit = modSplit::Group(candidate.Entry) > 0;
    if (!modRecurrence::IsRecurring(candidate.Entry.EntryInterval) || (isSplit && candidate.Cents != row.ImportValue)) {
        return;
    }
    const auto what = isSplit ? modOccurrence::eCorrect::Day : modOccurrence::eCorrect::AmountAndDay;
    candidate.Correction = modOccurrence::CorrectionTo(candidate.Entry, row, what);
    candidate.ReplacesOwn = candidate.Correction && modOccurrence::ReplacesOwn(candidate.Entry, *candidate.Correction);
}

} // namespace

struct cMatcher::cKnowledge
{
    cKnowledge(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts, fnPropose propose)
        : Data(data),
          Hive(hive),
          Accounts(accounts),
          Transfers(data, hive, accounts),
          m_propose(std::move(propose))
    {
    }

    [[nodiscard]] cProposal Propose(const cImportEntry& row)
    {
        if (m_propose) {
            return m_propose(row);
        }
        if (!m_proposer) {
            m_proposer = std::make_unique<cProposer>(Data, Hive, Accounts);
        }
        return m_proposer->Propose(row);
    }

    void ReadIndex(const QString& account, const modPeriod::cRange& range)
    {
        Indexes[account] =
            std::make_unique<cMatchIndex>(Data, Hive.GetImportHive(), account, range, [&](const cImportEntry& row) {
                return Transfers.AccountOf(row.ImportAccount) == account;
            });
    }

    cDataAccess& Data;
    cImportHiveCache& Hive;
    const cAccountMap& Accounts;
    cTransferFinder Transfers;
    std::unordered_map<QString, std::unique_ptr<cMatchIndex>> Indexes; // by account

private:
    fnPropose m_propose;
    std::unique_ptr<cProposer> m_proposer;
};

cMatcher::cMatcher(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts, fnPropose propose)
    : m_data(data),
      m_hive(hive),
      m_knowledge(std::make_unique<cKnowledge>(data, hive, accounts, std::move(propose)))
{
}

cMatcher::~cMatcher() = default;

bool cMatcher::IsBetter(const cPair& a, const cPair& b)
{
    return std::tuple(-a.Score, std::abs(a.Days), a.Row, a.Item)
        < std::tuple(-b.Score, std::abs(b.Days), b.Row, b.Item);
}

cMatchIndex* cMatcher::IndexFor(const cImportEntry& row)
{
    const QString account = m_knowledge->Transfers.AccountOf(row.ImportAccount);
    if (account.isEmpty() || !row.ImportDate.isValid()) {
        return nullptr;
    }
    const auto found = m_knowledge->Indexes.find(account);
    if (found == m_knowledge->Indexes.end() || !found->second->Covers(row.ImportDate)) {
        m_knowledge->ReadIndex(account, {row.ImportDate, row.ImportDate});
    }
    return m_knowledge->Indexes[account].get();
}

void cMatcher::ReadIndexes(const std::vector<cImportEntry>& rows)
{
    QHash<QString, modPeriod::cRange> ranges;
    for (const cImportEntry& row : rows) {
        modPeriod::cRange& range = ranges[m_knowledge->Transfers.AccountOf(row.ImportAccount)];
        range.Start = range.Start.isValid() ? std::min(range.Start, row.ImportDate) : row.ImportDate;
        range.End = range.End.isValid() ? std::max(range.End, row.ImportDate) : row.ImportDate;
    }
    for (auto range = ranges.cbegin(); range != ranges.cend(); ++range) {
        m_knowledge->ReadIndex(range.key(), *range);
    }
}

std::vector<cMatcher::cPair> cMatcher::PairsOf(const cImportEntry& row, size_t place, eWanted wanted)
{
    std::vector<cPair> pairs;
    cMatchIndex* index = IndexFor(row);
    if (index == nullptr) {
        return pairs;
    }
    const qint64 cents = row.ImportValue;
    const std::vector<size_t> around = index->Around(row.ImportDate, cents);
    const auto twins = std::count_if(around.begin(), around.end(), [&](size_t item) {
        return index->Item(item).Cents == cents && !index->IsTaken(item, row.ID);
    });
    const QString other = m_knowledge->Transfers.OwnAccountOf(row.ImportBeneficiaryAccount, row.ImportBeneficiaryBLZ);
    std::optional<cRowSense> sense;
    for (const size_t number : around) {
        const cMatchIndex::cItem& item = index->Item(number);
        if (wanted != eWanted::All && IsWithAnother(item.Entry, other)) {
            continue;
        }
        modMatchScore::cEvidence evidence = EvidenceOf(row, item);
        const bool isTaken = index->IsTaken(number, row.ID);
        evidence.IsOnly = twins == 1 && !isTaken; // the one that is free
        const bool isPossible = wanted == eWanted::All || modMatchScore::IsPossible(evidence);
        if (!isPossible || (wanted == eWanted::Free && isTaken)) {
            continue;
        }
        if (!sense) {
            sense.emplace(row, m_knowledge->Propose(row));
        }
        const cMatchText::cLikeness likeness = sense->Compare(item.Entry, index->Text(number));
        evidence.Text = likeness.Value;
        evidence.TextMatch = likeness.Kind;
        const double score = modMatchScore::Score(evidence);
        if (wanted == eWanted::All || score >= modMatchScore::ListAt) {
            pairs.push_back({place, number, index, score, evidence.Days, modMatchScore::Reason(evidence)});
        }
    }
    return pairs;
}

cMatchCandidate cMatcher::CandidateOf(const cPair& pair, const cImportEntry& row) const
{
    const cMatchIndex::cItem& item = pair.Index->Item(pair.Item);
    cMatchCandidate candidate{item.Entry, item.Cents, pair.Score, pair.Reason, pair.Index->IsTaken(pair.Item, row.ID),
                              {}};
    OfferCorrection(candidate, row);
    return candidate;
}

QList<cMatchCandidate> cMatcher::Candidates(int rowId, eCandidates which)
{
    QList<cMatchCandidate> candidates;
    const std::optional<cImportEntry> row = m_hive.GetImportHive().GetImportEntryByID(rowId);
    if (!row) {
        return candidates;
    }
    std::vector<cPair> pairs = PairsOf(*row, 0, which == eCandidates::All ? eWanted::All : eWanted::Likely);
    std::sort(pairs.begin(), pairs.end(), IsBetter);
    for (const cPair& pair : pairs) {
        candidates.append(CandidateOf(pair, *row));
    }
    return candidates;
}

std::optional<cMatchCandidate> cMatcher::ByHand(int rowId, int entryId)
{
    const std::optional<cImportEntry> row = m_hive.GetImportHive().GetImportEntryByID(rowId);
    const std::optional<cEntryItem> entry = m_data.LoadEntry(entryId);
    if (!row || !entry) {
        return std::nullopt;
    }
    cMatchCandidate candidate;
    candidate.Entry = *entry;
    candidate.Cents = modBalance::Effect(*entry, m_knowledge->Transfers.AccountOf(row->ImportAccount));
    if (!modRecurrence::IsRecurring(entry->EntryInterval)) {
        return candidate;
    }
    const std::optional<cEntryItem> occurrence =
        modOccurrence::Nearest(*entry, row->ImportDate, m_data.GetEntryMods(entryId));
    if (!occurrence) {
        return std::nullopt;
    }
    candidate.Entry = *occurrence;
    candidate.Cents = modBalance::Effect(*occurrence, m_knowledge->Transfers.AccountOf(row->ImportAccount));
    OfferCorrection(candidate, *row);
    return candidate;
}

std::vector<cImportEntry> cMatcher::OpenRows(const QList<int>& rowIds, cMatchResult& result)
{
    std::vector<cImportEntry> rows;
    QSet<int> known;
    const cImportHive& hive = m_hive.GetImportHive();
    for (const int id : rowIds) {
        const std::optional<cImportEntry> row = hive.GetImportEntryByID(id);
        if (!row || row->ImportAssigned || known.contains(id)) {
            continue;
        }
        known.insert(id);
        if (m_knowledge->Transfers.AccountOf(row->ImportAccount).isEmpty()) {
            result.Left.append(id);
            if (!result.UnknownAccounts.contains(row->ImportAccount)) {
                result.UnknownAccounts.append(row->ImportAccount);
            }
        } else {
            rows.push_back(*row);
        }
    }
    return rows;
}

cMatchResult cMatcher::MatchAll(const QList<int>& rowIds, cProgress& progress, eMatchRun run)
{
    cMatchResult result;
    const std::vector<cImportEntry> rows = OpenRows(rowIds, result);
    progress.showProgressBar(static_cast<int>(rows.size()));
    ReadIndexes(rows);
    std::vector<cPair> pairs;
    for (size_t place = 0; place < rows.size(); ++place) {
        if (place > 0 && place % progressStep == 0) {
            progress.addProgressValue(progressStep);
        }
        if (progress.IsCancelled()) {
            result.Left = rowIds;
            result.IsCancelled = true;
            return result;
        }
        std::vector<cPair> found = PairsOf(rows[place], place, eWanted::Free);
        std::move(found.begin(), found.end(), std::back_inserter(pairs));
    }
    progress.addProgressValue(static_cast<int>(rows.size() % progressStep));
    Distribute(std::move(pairs), rows, result);
    if (run == eMatchRun::Write) {
        Write(rows, result);
    }
    return result;
}

void cMatcher::Distribute(std::vector<cPair> pairs, const std::vector<cImportEntry>& rows, cMatchResult& result)
{
    std::sort(pairs.begin(), pairs.end(), IsBetter);
    std::vector<bool> isPlaced(rows.size());
    std::vector<bool> isListed(rows.size());
    QSet<std::pair<const cMatchIndex*, size_t>> taken;
    for (const cPair& pair : pairs) {
        isListed[pair.Row] = true;
        const std::pair<const cMatchIndex*, size_t> item(pair.Index, pair.Item);
        if (pair.Score < modMatchScore::ProposeAt || isPlaced[pair.Row] || taken.contains(item)) {
            continue;
        }
        isPlaced[pair.Row] = true;
        taken.insert(item);
        const cImportEntry& row = rows[pair.Row];
        QList<cMatch>& list = pair.Score < modMatchScore::AssignAt ? result.Proposed : result.Assigned;
        list.append({row.ID, CandidateOf(pair, row)});
    }
    for (size_t place = 0; place < rows.size(); ++place) {
        if (!isPlaced[place]) {
            result.Left.append(rows[place].ID);
            result.Listed += isListed[place] ? 1 : 0;
        }
    }
}

void cMatcher::Write(const std::vector<cImportEntry>& rows, cMatchResult& result)
{
    QHash<int, size_t> places;
    for (size_t place = 0; place < rows.size(); ++place) {
        places.insert(rows[place].ID, place);
    }
    for (qsizetype i = 0; i < result.Assigned.size(); ++i) {
        cImportEntry row = rows[places.value(result.Assigned.at(i).RowId)];
        row.ImportAssigned = true;
        row.ImportAssignedEntry = result.Assigned.at(i).Candidate.Entry.ID;
        if (!m_hive.Change(row)) {
            result.Failed = static_cast<int>(result.Assigned.size() - i);
            result.Assigned.resize(i);
            return;
        }
    }
}
