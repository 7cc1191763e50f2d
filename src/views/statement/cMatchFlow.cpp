#include "views/statement/cMatchFlow.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/modMatchScore.h"
#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cRowProposals.h"

#include <QHash>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownMatches = 20; // more lines tell the user nothing new

bool HasChanged(const cCorrectionFlow::cDone& done)
{
    return done.Days + done.Amounts + done.FromHere + done.Entries > 0;
}

} // namespace

cMatchFlow::cMatchFlow(const cBookTools& tools, const cParts& parts) : m_tools(tools), m_parts(parts)
{
}

cMatchFlow::cOutcome cMatchFlow::NothingDone()
{
    return {{cText::Tr("Es wurde nichts geändert, weil die Datenbank nicht schreibt.")}};
}

cMatchFlow::cOutcome cMatchFlow::Match(const QList<int>& rowIds, cProgress& progress)
{
    cUndoStep step(m_tools.Data, cText::Tr("{0} abgeglichen", {modImportText::Count(static_cast<int>(rowIds.size()))}));
    const std::optional<cMatchResult> result = Find(rowIds, progress);
    if (!result) {
        return {{cText::Tr("Abgleichen abgebrochen, es wurde nichts zugeordnet.")}};
    }
    const auto corrected = AssignRows(result->Assigned) ? Correct(result->Assigned) : std::nullopt;
    if (!step.DoneIf(corrected.has_value())) {
        return NothingDone();
    }
    return {Lines(*result, *corrected), true, HasChanged(*corrected), std::make_shared<const cMatchResult>(*result)};
}

std::optional<cMatchResult> cMatchFlow::Find(const QList<int>& rowIds, cProgress& progress)
{
    const std::optional<QHash<int, cRowPlan>> plans = m_parts.Proposals.Plans(rowIds, progress);
    if (!plans) {
        return std::nullopt;
    }
    cMatchResult result;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const int id : std::set<int>(rowIds.begin(), rowIds.end())) { // in one order, also of the numbers
        const auto plan = plans->constFind(id);
        if (plan == plans->constEnd()) {
            continue;
        }
        if (plan->Match) {
            (plan->Group == eRowGroup::InBook ? result.Assigned : result.Proposed).append({id, *plan->Match});
            continue;
        }
        result.Left.append(id);
        if (id < plan->Proposal.PartnerRow && plans->contains(plan->Proposal.PartnerRow)) {
            result.Transfers.append({id, plan->Proposal.PartnerRow});
        }
        const QString number = hive.GetImportEntryByID(id).value_or(cImportEntry()).ImportAccount;
        if (plan->Proposal.Entry.EntryAccount.isEmpty() && !result.UnknownAccounts.contains(number)) {
            result.UnknownAccounts.append(number);
        }
    }
    for (QList<cMatch>* list : {&result.Assigned, &result.Proposed}) {
        std::sort(list->begin(), list->end(), [](const cMatch& a, const cMatch& b) {
            return std::pair(-a.Candidate.Score, a.RowId) < std::pair(-b.Candidate.Score, b.RowId);
        });
    }
    return result;
}

bool cMatchFlow::AssignSaved(int rowId, int partnerId, int entryId)
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    const std::optional<cImportEntry> row = hive.GetImportEntryByID(rowId);
    const std::optional<cImportEntry> partner = hive.GetImportEntryByID(partnerId);
    const auto isSide = [&](const cImportEntry& each) {
        const QString& account = each.ImportValue < 0 ? entry->EntryAccount : entry->EntryAccountMove;
        return account == m_parts.Accounts.AccountOf(each.ImportAccount)
            && entry->EntryValue == std::abs(each.ImportValue);
    };
    const bool isForBoth =
        entry && row && partner && !partner->ImportAssigned && entry->IsTransfer() && isSide(*row) && isSide(*partner);
    return m_parts.Booking.Assign(rowId, entryId) && (!isForBoth || m_parts.Booking.Assign(partnerId, entryId));
}

bool cMatchFlow::AssignRows(const QList<cMatch>& matches)
{
    return std::all_of(matches.begin(), matches.end(), [this](const cMatch& match) {
        return m_parts.Booking.Assign(match.RowId, match.Candidate.Entry.ID);
    });
}

std::optional<cCorrectionFlow::cDone> cMatchFlow::Correct(const QList<cMatch>& matches)
{
    QHash<int, cImportEntry> rows;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const cMatch& match : matches) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(match.RowId)) {
            rows.insert(match.RowId, *row);
        }
    }
    return cCorrectionFlow(m_tools).Apply(matches, rows);
}

QStringList cMatchFlow::AssignedLines(const QList<cMatch>& matches)
{
    QStringList lines;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const cMatch& match : matches) {
        const cImportEntry row = hive.GetImportEntryByID(match.RowId).value_or(cImportEntry());
        lines.append(cText::Tr("{0} → {1}",
                               {modImportText::Row(row, m_tools.Format), modImportText::Candidate(match.Candidate)}));
    }
    return modCount::Cut(lines, shownMatches);
}

QStringList cMatchFlow::Lines(const cMatchResult& result, const cCorrectionFlow::cDone& corrected)
{
    QStringList lines{QString(result.Summary() + u'.')};
    lines += corrected.Lines();
    for (const QString& number : result.UnknownAccounts) {
        lines.append(modImportText::NoAccountToMatch(number));
    }
    return lines + AssignedLines(result.Assigned);
}

cMatchFlow::cOutcome cMatchFlow::Assign(int rowId, const cMatchCandidate& candidate)
{
    cUndoStep step(m_tools.Data, cText::Tr("Umsatz zugeordnet"));
    const QList<cMatch> match{{rowId, candidate}};
    // Several rows may pay one entry together; it must not come to what the last of them is.
    const bool isPart = !modRecurrence::IsRecurring(candidate.Entry.EntryInterval)
        && (candidate.IsTaken || candidate.Score < modMatchScore::ListAt);
    const auto corrected = AssignRows(match) ? Correct(isPart ? QList<cMatch>() : match) : std::nullopt;
    if (!step.DoneIf(corrected.has_value())) {
        return NothingDone();
    }
    return {QStringList(cText::Tr("Umsatz zugeordnet: {0}", {modImportText::EntryName(candidate.Entry)}))
                + corrected->Lines(),
            true, HasChanged(*corrected)};
}

cMatchFlow::cOutcome cMatchFlow::Release(const QList<int>& rowIds)
{
    QList<int> ids;
    for (const int id : rowIds) {
        const std::optional<cImportEntry> row = m_parts.Hive.GetImportHive(eKeepCache::Yes).GetImportEntryByID(id);
        if (row && row->ImportAssigned) {
            ids.append(id);
        }
    }
    if (ids.isEmpty()) {
        return {};
    }
    const QString count = modImportText::Count(static_cast<int>(ids.size()));
    cUndoStep step(m_tools.Data, cText::Tr("{0} gelöst", {count}));
    const auto release = [this](int id) { return m_parts.Booking.Unassign(id); };
    if (!step.DoneIf(std::all_of(ids.begin(), ids.end(), release))) {
        return NothingDone();
    }
    return {{cText::Tr("{0} gelöst und wieder offen. Einträge bleiben im Haushaltsbuch.", {count})}, true};
}
