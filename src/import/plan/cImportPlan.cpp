#include "import/plan/cImportPlan.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "import/match/cMatcher.h"
#include "import/match/modMatchScore.h"
#include "import/propose/cProposer.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// How far a row can compete for an entry with one that was asked for: both lie within reach of it.
constexpr qint64 neighbourDays = qint64{2} * modMatchScore::FarthestDays;
constexpr qsizetype mostNeighbours = 150; // on each side; a pile of many thousands is looked at in slices

using cOccurrence = std::pair<int, QDate>; // an entry, and of a series the day of the occurrence

cOccurrence OccurrenceOf(const cMatchCandidate& candidate)
{
    return {candidate.Entry.ID, candidate.Entry.Planned()};
}

} // namespace

struct cImportPlan::cKnowledge
{
    explicit cKnowledge(const cParts& parts)
        : Parts(parts),
          Proposer(parts.Data, parts.Hive, parts.Accounts, [this](int id) { return IsDouble(id); })
    {
        Open = parts.Hive.GetImportHive().GetImportEntriesByAssignedID(-1);
        std::sort(Open.begin(), Open.end(), [](const cImportEntry& a, const cImportEntry& b) {
            return std::pair(a.ImportDate, a.ID) < std::pair(b.ImportDate, b.ID);
        });
        Places.reserve(Open.size());
        for (qsizetype place = 0; place < Open.size(); ++place) {
            Places.insert(Open.at(place).ID, place);
        }
        const QList<std::pair<QString, QString>> mapping = parts.Accounts.Mapping();
        for (const auto& [number, account] : mapping) {
            Numbered.insert(account);
        }
    }

    // Between accounts of banks everything is known of a transfer whose other side is not missed; which of several
    // purses it was may not be.
    [[nodiscard]] bool IsSure(const cProposal& transfer) const
    {
        const cEntryItem& entry = transfer.Entry;
        return !transfer.IsMissed
            && (transfer.IsSure
                || (Numbered.contains(entry.EntryAccount) && Numbered.contains(entry.EntryAccountMove)));
    }

    [[nodiscard]] const QHash<int, modStagedTwins::cTwin>& Twins()
    {
        if (!m_twins) {
            m_twins = modStagedTwins::Find(
                Parts.Hive.GetImportHive().getImportEntryList(),
                {.AccountOf = [this](const QString& number) { return Parts.Accounts.AccountOf(number); },
                 .FileOf = Parts.FileOf});
        }
        return *m_twins;
    }

    [[nodiscard]] bool IsDouble(int id)
    {
        const auto twin = Twins().constFind(id);
        return twin != Twins().constEnd() && !Places.contains(twin->RowId);
    }

    cParts Parts;
    cProposer Proposer;
    cImportEntryList Open;  // by day
    QSet<QString> Numbered; // accounts that stand at a bank
    QHash<int, qsizetype> Places;
    QHash<int, cProposal> Proposals;

private:
    std::optional<QHash<int, modStagedTwins::cTwin>> m_twins;
};

// What is found on the way, neighbours among it.
struct cImportPlan::cPass
{
    QHash<int, cRowPlan> Plans;
    QSet<cOccurrence> Taken;
};

cImportPlan::cImportPlan(const cParts& parts) : m_knowledge(std::make_unique<cKnowledge>(parts))
{
}

cImportPlan::~cImportPlan() = default;

qsizetype cImportPlan::OpenCount() const
{
    return m_knowledge->Open.size();
}

int cImportPlan::IdAt(qsizetype place) const
{
    return m_knowledge->Open.at(place).ID;
}

QList<int> cImportPlan::From(qsizetype place, qsizetype count) const
{
    QList<int> ids;
    for (qsizetype i = std::max<qsizetype>(0, place); i < m_knowledge->Open.size() && ids.size() < count; ++i) {
        ids.append(IdAt(i));
    }
    return ids;
}

QList<int> cImportPlan::Around(int rowId, qsizetype count) const
{
    const auto place = m_knowledge->Places.constFind(rowId);
    return place == m_knowledge->Places.constEnd() ? QList<int>() : From(*place - count / 2, count);
}

QList<int> cImportPlan::WithNeighbours(const QList<int>& rowIds)
{
    const cImportEntryList& open = m_knowledge->Open;
    std::vector<bool> isWanted(static_cast<size_t>(open.size()));
    for (const int id : rowIds) {
        const qsizetype place = m_knowledge->Places.value(id, -1);
        if (place < 0 || isWanted[static_cast<size_t>(place)]) {
            continue;
        }
        const QDate day = open.at(place).ImportDate;
        isWanted[static_cast<size_t>(place)] = true;
        for (const int step : {-1, 1}) {
            qsizetype other = place + step;
            for (qsizetype n = 0; n < mostNeighbours && other >= 0 && other < open.size(); ++n, other += step) {
                if (std::abs(open.at(other).ImportDate.daysTo(day)) > neighbourDays) {
                    break;
                }
                isWanted[static_cast<size_t>(other)] = true;
            }
        }
    }
    QList<int> ids;
    for (qsizetype place = 0; place < open.size(); ++place) {
        if (isWanted[static_cast<size_t>(place)]) {
            ids.append(open.at(place).ID);
        }
    }
    return ids;
}

const cProposal& cImportPlan::ProposalFor(const cImportEntry& row)
{
    auto known = m_knowledge->Proposals.find(row.ID);
    if (known == m_knowledge->Proposals.end()) {
        known = m_knowledge->Proposals.insert(row.ID, m_knowledge->Proposer.Propose(row));
    }
    return *known;
}

QHash<int, cRowPlan> cImportPlan::Make(const QList<int>& rowIds, cProgress& progress)
{
    const QList<int> ids = WithNeighbours(rowIds);
    cMatcher matcher(m_knowledge->Parts.Data, m_knowledge->Parts.Hive, m_knowledge->Parts.Accounts,
                     [this](const cImportEntry& row) { return ProposalFor(row); });
    const cMatchResult matches = matcher.MatchAll(ids, progress, eMatchRun::Try);
    progress.hideProgressBar();
    if (matches.IsCancelled) {
        return {};
    }
    cPass pass;
    for (const int id : ids) {
        const cImportEntry& row = m_knowledge->Open.at(m_knowledge->Places.value(id));
        cRowPlan& plan = pass.Plans[id];
        plan.RowId = id;
        plan.Proposal = ProposalFor(row);
        plan.Group = plan.Proposal.IsSure ? eRowGroup::Sure : eRowGroup::Look;
        plan.Reason = plan.Proposal.Reason;
    }
    TakeMatches(matches, pass);
    QHash<int, cRowPlan> plans;
    for (const int id : ids) {
        const cImportEntry& row = m_knowledge->Open.at(m_knowledge->Places.value(id));
        cRowPlan& plan = pass.Plans[id];
        TakeSeries(row, plan, pass, matcher);
    }
    for (const int id : ids) {
        TakeTwin(pass.Plans[id], pass);
    }
    for (const int id : ids) {
        TakeTransfer(m_knowledge->Open.at(m_knowledge->Places.value(id)), pass.Plans[id], pass);
    }
    for (const int id : rowIds) {
        if (const auto plan = pass.Plans.constFind(id); plan != pass.Plans.constEnd()) {
            plans.insert(id, *plan);
        }
    }
    return plans;
}

// What is likely is certain when rows of the same counterparty were assigned to that very series before: its amount may
// differ, because rents are raised.
void cImportPlan::TakeMatches(const cMatchResult& matches, cPass& pass)
{
    const auto take = [&](const cMatch& match, bool isCertain) {
        cRowPlan& plan = pass.Plans[match.RowId];
        plan.Match = match.Candidate;
        plan.Reason = match.Candidate.Reason;
        const bool isKnown = plan.Proposal.ExistingEntry == match.Candidate.Entry.ID;
        plan.Group = isCertain || isKnown ? eRowGroup::InBook : eRowGroup::Look;
        pass.Taken.insert(OccurrenceOf(match.Candidate));
    };
    for (const cMatch& match : matches.Assigned) {
        take(match, true);
    }
    for (const cMatch& match : matches.Proposed) {
        take(match, false);
    }
}

// The series that rows of this counterparty were booked to before. A second payment for the same occurrence is
// something else, and a second series beside the first one is hardly ever meant.
void cImportPlan::TakeSeries(const cImportEntry& row, cRowPlan& plan, cPass& pass, cMatcher& matcher)
{
    if (plan.Match || plan.Proposal.ExistingEntry == 0 || plan.Proposal.Entry.IsTransfer()) {
        return;
    }
    const cOccurrence paid{plan.Proposal.ExistingEntry, plan.Proposal.Occurrence};
    if (!pass.Taken.contains(paid)) {
        pass.Taken.insert(paid);
        std::optional<cMatchCandidate> candidate = matcher.ByHand(row.ID, plan.Proposal.ExistingEntry);
        if (candidate && OccurrenceOf(*candidate) == paid) { // else a series that is stored too short goes on
            candidate->Reason = plan.Proposal.Reason;
            candidate->Score = 1.0;
            plan.Match = std::move(candidate);
            plan.Group = eRowGroup::InBook;
        }
        return;
    }
    plan.Proposal.ExistingEntry = 0;
    plan.Proposal.Entry.EntryInterval = modWord::Einmalig;
    plan.Group = eRowGroup::Look;
    plan.IsBeside = true;
    plan.Reason = cText::Tr("die Serie hat für diesen Zeitraum schon einen Umsatz");
}

// Where both sides came in two formats with different days, each of the rows that go first may have found the other
// side's double, and that one this row or its double.
bool cImportPlan::IsCrosswise(const cRowPlan& plan, const cRowPlan& other, const cPass& pass)
{
    const cRowPlan third = pass.Plans.value(other.Proposal.PartnerRow);
    return !other.Match && !other.IsSecond && other.Proposal.Entry.IsTransfer()
        && (third.RowId == plan.RowId || (third.IsSecond && third.Twin->RowId == plan.RowId));
}

// Both rows of a transfer are one entry: the one that waits for its second row, the one that the other row was found
// for, or a new one.
void cImportPlan::TakeTransfer(const cImportEntry& row, cRowPlan& plan, const cPass& pass)
{
    if (plan.Match || !plan.Proposal.Entry.IsTransfer()) {
        return;
    }
    plan.Reason = plan.Proposal.Reason;
    const bool isInBook = plan.Proposal.PartnerRow != 0 || plan.Proposal.ExistingEntry != 0;
    plan.Group = isInBook ? eRowGroup::InBook : m_knowledge->IsSure(plan.Proposal) ? eRowGroup::Sure : eRowGroup::Look;
    plan.Group = plan.IsSecond ? eRowGroup::Look : plan.Group;
    if (IsMatched(plan.Proposal.ExistingEntry, pass)) {
        MakeSpent(row, plan, cText::Tr("zu dieser Umbuchung passt ein anderer Umsatz besser"));
        return;
    }
    const auto partner = pass.Plans.constFind(plan.Proposal.PartnerRow);
    if (partner == pass.Plans.constEnd() || plan.IsSecond || (!partner->Match && !partner->IsSecond)) {
        return;
    }
    const cRowPlan other = partner->IsSecond ? pass.Plans.value(partner->Twin->RowId) : *partner;
    const QString account = m_knowledge->Parts.Accounts.AccountOf(row.ImportAccount);
    if (other.Match && other.Match->Entry.IsTransfer()
        && (other.Match->Entry.EntryAccount == account || other.Match->Entry.EntryAccountMove == account)) {
        plan.Proposal.ExistingEntry = other.Match->Entry.ID;
        plan.Proposal.PartnerRow = 0;
        plan.Group = other.Group;
        return;
    }
    if (IsCrosswise(plan, other, pass)) {
        plan.Proposal.PartnerRow = other.RowId;
        if (row.ImportValue > 0) { // as the proposer has it: a transfer has the day of the debit
            plan.Proposal.Entry.EntryDate = m_knowledge->Open.at(m_knowledge->Places.value(other.RowId)).ImportDate;
        }
        return;
    }
    // The other side is income or expense in the book, or will be, so a transfer would move the money a second time.
    MakeSpent(row, plan,
              partner->IsSecond ? cText::Tr("die Gegenbuchung ist vielleicht doppelt")
                                : cText::Tr("die Gegenbuchung steht nicht als Umbuchung im Buch"));
}

void cImportPlan::MakeSpent(const cImportEntry& row, cRowPlan& plan, const QString& reason) const
{
    plan.Proposal.MakeSpent(row, m_knowledge->Parts.Accounts.AccountOf(row.ImportAccount));
    plan.Group = eRowGroup::Look;
    plan.Reason = reason;
}

// Whether another row of this side fits an entry that comes once: for two of them it would count once.
bool cImportPlan::IsMatched(int entry, const cPass& pass)
{
    return entry != 0 && std::any_of(pass.Plans.begin(), pass.Plans.end(), [&](const cRowPlan& plan) {
               return plan.Match && plan.Match->Entry.ID == entry
                   && !modRecurrence::IsRecurring(plan.Match->Entry.EntryInterval);
           });
}

// Of two rows that may be the same the one whose entry is there goes first, then the one whose other side is, else the
// one that came first; it is none too many, unless the other one is booked.
void cImportPlan::TakeTwin(cRowPlan& plan, const cPass& pass)
{
    cKnowledge& known = *m_knowledge;
    const auto twin = known.Twins().constFind(plan.RowId);
    if (twin == known.Twins().constEnd()) {
        return;
    }
    plan.Twin = *twin;
    const cRowPlan other = pass.Plans.value(twin->RowId);
    const auto rank = [](const cRowPlan& each) {
        const bool hasSide = each.Proposal.PartnerRow != 0 || each.Proposal.ExistingEntry != 0;
        return each.Match ? 2 : each.Proposal.Entry.IsTransfer() && hasSide ? 1 : 0;
    };
    const bool isBehind =
        rank(plan) != rank(other) ? rank(plan) < rank(other) : !plan.Match && twin->RowId < plan.RowId;
    plan.IsSecond = known.IsDouble(plan.RowId) || isBehind;
    if (plan.IsSecond) {
        plan.Group = eRowGroup::Look;
    }
}
