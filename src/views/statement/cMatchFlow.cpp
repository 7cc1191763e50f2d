#include "views/statement/cMatchFlow.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/cMatcher.h"
#include "import/propose/cBooking.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/statement/modImportText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownMatches = 20; // more lines tell the user nothing new

int CorrectionCount(const cMatchResult& result)
{
    return static_cast<int>(std::count_if(result.Assigned.begin(), result.Assigned.end(),
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
    const cMatchResult result =
        cMatcher(m_tools.Data, m_parts.Hive, m_parts.Accounts).MatchAll(rowIds, progress, eMatchRun::Write);
    progress.hideProgressBar();
    if (result.IsCancelled) {
        return {{cText::Tr("Abgleichen abgebrochen, es wurde nichts zugeordnet.")}};
    }
    const std::optional<int> corrected = result.Failed > 0 ? std::nullopt : Correct(result);
    if (!step.DoneIf(corrected.has_value())) {
        return NothingDone();
    }
    m_proposed.clear();
    for (const cMatch& match : result.Proposed) {
        m_proposed.append(match.RowId);
    }
    ForgetProposals();
    return {Lines(result, *corrected), true, *corrected > 0, std::make_shared<const cMatchResult>(result)};
}

// The number of corrections written, 0 when the user wants none; empty when the database refuses.
std::optional<int> cMatchFlow::Correct(const cMatchResult& result)
{
    const int count = CorrectionCount(result);
    const cQuestion question{.Text = CorrectionQuestion(count), .Title = cText::Tr("Umsätze abgleichen")};
    if (count == 0 || m_tools.User.Ask(question) != eAnswer::Yes) {
        return 0;
    }
    const bool isWritten = std::all_of(result.Assigned.begin(), result.Assigned.end(), [this](const cMatch& match) {
        return !match.Candidate.Correction || m_tools.Data.AddNewEntryMod(*match.Candidate.Correction);
    });
    return isWritten ? std::optional(count) : std::nullopt;
}

QStringList cMatchFlow::Lines(const cMatchResult& result, int corrected)
{
    QStringList lines{QString(result.Summary() + u'.')};
    if (corrected > 0) {
        lines.append(CorrectedLine(corrected));
    }
    for (const QString& number : result.UnknownAccounts) {
        lines.append(modImportText::NoAccountToMatch(number));
    }
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const cMatch& match : result.Assigned.first(qMin(result.Assigned.size(), shownMatches))) {
        const cImportEntry row = hive.GetImportEntryByID(match.RowId).value_or(cImportEntry());
        lines.append(cText::Tr("{0} → {1}",
                               {modImportText::Row(row, m_tools.Format), modImportText::Candidate(match.Candidate)}));
    }
    if (result.Assigned.size() > shownMatches) {
        lines.append(modCount::MoreLines(result.Assigned.size() - shownMatches));
    }
    return lines;
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

// Only the rows of the last run are looked at again, so the list stays quick.
QString cMatchFlow::Proposal(int rowId)
{
    if (m_proposed.isEmpty()) {
        return {};
    }
    if (!m_proposal) {
        m_proposal.emplace();
        cNoProgress progress;
        const cMatchResult result =
            cMatcher(m_tools.Data, m_parts.Hive, m_parts.Accounts).MatchAll(m_proposed, progress, eMatchRun::Try);
        for (const cMatch& match : result.Proposed + result.Assigned) {
            m_proposal->insert(match.RowId, cText::Tr("passt zu {0}", {modImportText::Candidate(match.Candidate)}));
        }
    }
    return m_proposal->value(rowId);
}

void cMatchFlow::ForgetProposals()
{
    m_proposal.reset();
}
