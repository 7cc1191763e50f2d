#include "views/statement/cPlanFlow.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "import/propose/cBooking.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cUndoStep.h"
#include "views/ledger/modImportText.h"
#include "views/people/cPeople.h"
#include "views/statement/cMatchFlow.h"
#include "views/statement/cRowProposals.h"
#include "views/statement/modReviewQuestion.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using modReviewQuestion::eMatchAnswer;
using modReviewQuestion::eUnsureAnswer;

bool IsUnsure(const cRowPlan& plan)
{
    return plan.Group == eRowGroup::Look;
}

void CountPlan(const cRowPlan& plan, modReviewQuestion::cNumbers& numbers)
{
    if (!IsUnsure(plan)) {
        const bool isThere = plan.Match || plan.Proposal.ExistingEntry != 0;
        ++(isThere ? numbers.InBook : numbers.Sure); // a transfer between own accounts may still be a new entry
        return;
    }
    ++(plan.IsSecond ? numbers.Twice : plan.Match ? numbers.Likely : numbers.Unknown);
    if (plan.IsSecond || plan.Match) {
        return;
    }
    const cEntryItem& entry = plan.Proposal.Entry;
    if (entry.IsTransfer()) {
        ++numbers.Transfers[entry.Accounts()];
    } else {
        ++(plan.Proposal.IsDefault ? numbers.Bare : numbers.Categories[entry.EntryCategory]);
    }
}

} // namespace

cPlanFlow::cPlanFlow(const cBookTools& tools, const cParts& parts) : m_tools(tools), m_parts(parts)
{
}

cPlanFlow::cOutcome cPlanFlow::Stopped()
{
    return {.Lines = {cText::Tr("Abgebrochen, es wurde nichts gebucht.")}};
}

void cPlanFlow::Take(const cRowPlan& plan, eWay way, cWish& wish)
{
    if (way == eWay::Leave) {
        ++wish.Left;
    } else if (way == eWay::Assign && plan.Match) {
        wish.Assign.append({plan.RowId, *plan.Match});
    } else {
        cProposal proposal = plan.Proposal;
        if (plan.Match) {
            proposal.IsAlone = true; // the entry that it fits is not the one that was wanted
        }
        wish.New.append(plan.RowId);
        wish.Proposals.insert(plan.RowId, proposal);
    }
}

cPlanFlow::cOutcome cPlanFlow::Book(const QList<int>& rowIds, eUnsure unsure, cProgress& progress)
{
    const std::optional<cPlans> plans = m_parts.Proposals.Plans(rowIds, progress);
    if (!plans) {
        return Stopped();
    }
    QList<cRowPlan> wanted;
    for (const int id : rowIds) {
        if (const auto plan = plans->constFind(id); plan != plans->constEnd()) {
            wanted.append(*plan);
        }
    }
    cWish wish;
    if (wanted.isEmpty() || (unsure == eUnsure::Ask && !AskAboutUnsure(wanted, wish))) {
        return {};
    }
    if (wanted.isEmpty()) {
        return {.IsDone = true, .Left = wish.Left};
    }
    if (!AskAboutTwins(wanted, wish)) {
        return {};
    }
    QList<cRowPlan> matched;
    for (const cRowPlan& plan : wanted) {
        if (plan.Match) {
            matched.append(plan);
        } else {
            Take(plan, eWay::New, wish);
        }
    }
    return AskAboutMatches(matched, wish) ? Carry(wish, progress) : cOutcome{};
}

// Where several rows are wanted and of some nobody knows what they are for, those that are not sure are taken out of
// `plans` unless the user wants them. One and the same category for all of them has been seen; which account a transfer
// goes to is more than that. False when the user gives up.
bool cPlanFlow::AskAboutUnsure(QList<cRowPlan>& plans, cWish& wish)
{
    modReviewQuestion::cNumbers numbers;
    for (const cRowPlan& plan : std::as_const(plans)) {
        CountPlan(plan, numbers);
    }
    const bool isOneKind = numbers.Unknown == plans.size() && numbers.Bare == 0 && numbers.Transfers.isEmpty()
        && numbers.Categories.size() == 1;
    if (plans.size() == 1 || isOneKind || numbers.Unknown == 0) {
        return true;
    }
    const int answer = m_tools.User.Decide(modReviewQuestion::Unsure(numbers));
    if (answer == static_cast<int>(eUnsureAnswer::Sure)) {
        wish.Left += static_cast<int>(plans.removeIf(IsUnsure));
    }
    return answer >= 0;
}

// Rows that may be there twice, where the other one goes first, are taken out of `plans` unless the user wants them.
// False when the user gives up.
bool cPlanFlow::AskAboutTwins(QList<cRowPlan>& plans, cWish& wish)
{
    const cImportHive& hive = m_parts.Matching.Parts().Hive.GetImportHive();
    QStringList lines;
    for (const cRowPlan& plan : plans) {
        if (plan.IsSecond) {
            const cImportEntry row = hive.GetImportEntryByID(plan.RowId).value_or(cImportEntry());
            lines.append(cText::Tr("{0} ({1})",
                                   {modImportText::Row(row, m_tools.Format), modImportText::TwinReason(*plan.Twin)}));
        }
    }
    if (lines.isEmpty()) {
        return true;
    }
    const eAnswer answer = m_tools.User.Ask(modReviewQuestion::Twins(lines));
    if (answer == eAnswer::Yes) {
        wish.Left += static_cast<int>(plans.removeIf([](const cRowPlan& plan) { return plan.IsSecond; }));
    }
    return answer != eAnswer::Cancel;
}

QStringList cPlanFlow::MatchLines(const QList<cRowPlan>& matched) const
{
    const cImportHive& hive = m_parts.Matching.Parts().Hive.GetImportHive();
    QStringList lines;
    for (const cRowPlan& plan : matched) {
        const cImportEntry row = hive.GetImportEntryByID(plan.RowId).value_or(cImportEntry());
        lines.append(
            cText::Tr("{0} → {1}", {modImportText::Row(row, m_tools.Format), modImportText::Candidate(*plan.Match)}));
    }
    return lines;
}

bool cPlanFlow::AskAboutMatches(const QList<cRowPlan>& matched, cWish& wish)
{
    if (matched.isEmpty()) {
        return true;
    }
    const int answer = m_tools.User.Decide(modReviewQuestion::Matches(MatchLines(matched)));
    if (answer == static_cast<int>(eMatchAnswer::OneByOne)) {
        return AskOneByOne(matched, wish);
    }
    for (const cRowPlan& plan : matched) {
        Take(plan, answer < 0 ? eWay::Leave : static_cast<eWay>(answer), wish);
    }
    return answer >= 0; // else the user gives up
}

bool cPlanFlow::AskOneByOne(const QList<cRowPlan>& matched, cWish& wish)
{
    return std::all_of(matched.begin(), matched.end(), [&](const cRowPlan& plan) {
        const int answer = m_tools.User.Decide(modReviewQuestion::Matches(MatchLines({plan})));
        Take(plan, answer < 0 ? eWay::Leave : static_cast<eWay>(answer), wish);
        return answer >= 0;
    });
}

cPlanFlow::cOutcome cPlanFlow::Accept(const QList<int>& rowIds, cProgress& progress)
{
    const std::optional<cPlans> plans = m_parts.Proposals.Plans(rowIds, progress);
    if (!plans) {
        return Stopped();
    }
    cWish wish;
    modReviewQuestion::cNumbers numbers;
    for (const int id : rowIds) {
        const auto plan = plans->constFind(id);
        if (plan == plans->constEnd()) {
            continue;
        }
        CountPlan(*plan, numbers);
        if (!IsUnsure(*plan)) {
            Take(*plan, eWay::Assign, wish);
        }
    }
    wish.Left = numbers.Unknown + numbers.Likely + numbers.Twice;
    const cQuestion question = modReviewQuestion::Accept(numbers);
    if (wish.Assign.isEmpty() && wish.New.isEmpty()) {
        m_tools.User.Show(question.Tone, question.Text, question.Title);
        return {.IsDone = true, .Left = wish.Left};
    }
    return m_tools.User.Ask(question) == eAnswer::Yes ? Carry(wish, progress) : cOutcome{};
}

cPlanFlow::cOutcome cPlanFlow::Carry(const cWish& wish, cProgress& progress)
{
    const auto count = static_cast<int>(wish.Assign.size() + wish.New.size());
    if (count == 0) {
        return {.IsDone = true, .Left = wish.Left, .Lines = {cText::Tr("Es wurde nichts gebucht.")}};
    }
    cUndoStep step(m_tools.Data, cText::Tr("{0} gebucht", {modImportText::Count(count)}));
    const bool isAssigned = m_parts.Matching.AssignRows(wish.Assign);
    cBookingResult result =
        isAssigned ? m_parts.Booking.Book(wish.New, wish.Proposals, progress) : cBookingResult::Nothing(count);
    progress.hideProgressBar();
    const auto corrected =
        result.Failed == 0 ? m_parts.Matching.Correct(wish.Assign + result.Corrections) : std::nullopt;
    const auto people = corrected ? cPeople(m_tools).AddPayers(result.EntryIds) : std::nullopt;
    if (!step.DoneIf(people.has_value())) {
        return {.Left = wish.Left, .Lines = {modImportText::Booked(cBookingResult::Nothing(count))}};
    }
    result.Rows += static_cast<int>(wish.Assign.size());
    result.Joined += static_cast<int>(wish.Assign.size());
    QStringList lines{modImportText::Booked(result)};
    if (result.Bare > 0) {
        lines.append(modImportText::WithoutCategory(result.Bare, result.Entries));
    }
    for (const QString& number : result.UnknownAccounts) {
        lines.append(modImportText::NoAccount(number));
    }
    if (!people->isEmpty()) {
        lines.append(cText::Tr("Als Personen angelegt: {0}", {people->join(u", "_s)}));
    }
    lines += corrected->Lines() + m_parts.Matching.AssignedLines(wish.Assign);
    return {.IsDone = true, .Left = wish.Left, .Lines = lines, .UnknownAccounts = result.UnknownAccounts};
}
