#include "views/statement/cMatchFlow.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/propose/cBooking.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/statement/cRowProposals.h"
#include "views/statement/modImportText.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownMatches = 20; // more lines tell the user nothing new

int CorrectionCount(const QList<cMatch>& matches)
{
    return static_cast<int>(std::count_if(matches.begin(), matches.end(),
                                          [](const cMatch& match) { return match.Candidate.Correction.has_value(); }));
}

QString CorrectionQuestion(int count)
{
    return count == 1
        ? cText::Tr("Bei einem zugeordneten Umsatz weicht der Betrag von der Serie ab.\nSoll die Serie für diesen "
                    "Zeitraum auf den Betrag des Kontoauszugs korrigiert werden?")
        : cText::Tr("Bei {0} zugeordneten Umsätzen weicht der Betrag von der Serie ab.\nSollen die Serien für diese "
                    "Zeiträume auf die Beträge des Kontoauszugs korrigiert werden?",
                    {QString::number(count)});
}

QString CorrectedLine(int count)
{
    return count == 1 ? cText::Tr("Eine Serie auf den Betrag des Kontoauszugs korrigiert.")
                      : cText::Tr("{0} Beträge von Serien korrigiert.", {QString::number(count)});
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
    const std::optional<int> corrected = AssignAll(result->Assigned);
    if (!step.DoneIf(corrected.has_value())) {
        return NothingDone();
    }
    return {Lines(*result, *corrected), true, *corrected > 0, std::make_shared<const cMatchResult>(*result)};
}

std::optional<cMatchResult> cMatchFlow::Find(const QList<int>& rowIds, cProgress& progress)
{
    const std::optional<QHash<int, cRowPlan>> plans = m_parts.Proposals.Plans(rowIds, progress);
    if (!plans) {
        return std::nullopt;
    }
    cMatchResult result;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const int id : QSet<int>(rowIds.begin(), rowIds.end())) {
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
    std::sort(result.Left.begin(), result.Left.end());
    for (QList<cMatch>* list : {&result.Assigned, &result.Proposed}) {
        std::sort(list->begin(), list->end(), [](const cMatch& a, const cMatch& b) {
            return std::pair(-a.Candidate.Score, a.RowId) < std::pair(-b.Candidate.Score, b.RowId);
        });
    }
    return result;
}

std::optional<int> cMatchFlow::AssignAll(const QList<cMatch>& matches)
{
    const bool isWritten = std::all_of(matches.begin(), matches.end(), [this](const cMatch& match) {
        return m_parts.Booking.Assign(match.RowId, match.Candidate.Entry.ID);
    });
    return isWritten ? Correct(matches) : std::nullopt;
}

// The number of corrections written, 0 when the user wants none; empty when the database refuses.
std::optional<int> cMatchFlow::Correct(const QList<cMatch>& matches)
{
    const int count = CorrectionCount(matches);
    const cQuestion question{.Text = CorrectionQuestion(count), .Title = cText::Tr("Umsätze abgleichen")};
    if (count == 0 || m_tools.User.Ask(question) != eAnswer::Yes) {
        return 0;
    }
    const bool isWritten = std::all_of(matches.begin(), matches.end(), [this](const cMatch& match) {
        return !match.Candidate.Correction || m_tools.Data.AddNewEntryMod(*match.Candidate.Correction);
    });
    return isWritten ? std::optional(count) : std::nullopt;
}

QStringList cMatchFlow::CorrectedLines(int corrected)
{
    return corrected > 0 ? QStringList(CorrectedLine(corrected)) : QStringList();
}

QStringList cMatchFlow::AssignedLines(const QList<cMatch>& matches)
{
    QStringList lines;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const cMatch& match : matches.first(qMin(matches.size(), shownMatches))) {
        const cImportEntry row = hive.GetImportEntryByID(match.RowId).value_or(cImportEntry());
        lines.append(cText::Tr("{0} → {1}",
                               {modImportText::Row(row, m_tools.Format), modImportText::Candidate(match.Candidate)}));
    }
    if (matches.size() > shownMatches) {
        lines.append(modCount::MoreLines(matches.size() - shownMatches));
    }
    return lines;
}

QStringList cMatchFlow::Lines(const cMatchResult& result, int corrected)
{
    QStringList lines{QString(result.Summary() + u'.')};
    lines += CorrectedLines(corrected);
    for (const QString& number : result.UnknownAccounts) {
        lines.append(modImportText::NoAccountToMatch(number));
    }
    return lines + AssignedLines(result.Assigned);
}

cMatchFlow::cOutcome cMatchFlow::Assign(int rowId, const cMatchCandidate& candidate)
{
    bool isCorrecting = false;
    if (candidate.Correction) {
        const eAnswer answer = m_tools.User.Ask(
            {.Text = cText::Tr("Der Umsatz beträgt {0}, die Serie {1}.\nSoll die Serie für diesen Zeitraum auf den "
                               "Betrag des Kontoauszugs korrigiert werden?",
                               {m_tools.Format.Cents(candidate.Correction->EntryValue),
                                m_tools.Format.Cents(candidate.Entry.EntryValue)}),
             .Title = cText::Tr("Umsatz zuordnen"),
             .Buttons = eButtons::YesNoCancel});
        if (answer == eAnswer::Cancel) {
            return {};
        }
        isCorrecting = answer == eAnswer::Yes;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Umsatz zugeordnet"));
    if (!step.DoneIf(m_parts.Booking.Assign(rowId, candidate.Entry.ID)
                     && (!isCorrecting || m_tools.Data.AddNewEntryMod(*candidate.Correction)))) {
        return NothingDone();
    }
    QStringList lines{cText::Tr("Umsatz zugeordnet: {0}", {modImportText::EntryName(candidate.Entry)})};
    if (isCorrecting) {
        lines.append(CorrectedLine(1));
    }
    return {lines, true, isCorrecting};
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
