#include "views/statement/cStagedGuide.h"

#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modWord.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cRowProposals.h"
#include "views/statement/cStagedChoice.h"

#include <algorithm>

namespace {

bool IsOpen(const cImportEntry& row)
{
    return !row.ImportAssigned;
}

} // namespace

cStagedGuide::cStop cStagedGuide::Staged(const QList<int>& ids)
{
    if (m_parts.Proposals.IsHigh()) {
        return {ids};
    }
    QList<int> order = m_parts.View.Rows().OpenIds(); // without those that a filter hides
    order.removeIf([&](int id) { return !ids.contains(id); });
    const QList<int> sure = Sure(order);
    return sure.isEmpty() ? LookAt(NextToLook(order, 0)) : cStop{sure};
}

cStagedGuide::cBefore cStagedGuide::Before(const QList<int>& booked) const
{
    return {booked, m_parts.View.Rows().OpenIds()};
}

cStagedGuide::cStop cStagedGuide::After(const cBefore& before, const QList<int>& selected)
{
    const auto wasBooked = [&](int id) { return before.Booked.contains(id); };
    const auto needsLook = [this](int id) { return NeedsLook(id); };
    if (!selected.isEmpty() && std::none_of(selected.begin(), selected.end(), wasBooked)) {
        // The next group of a shop stays as it is, while the rows to look at are gone through one by one.
        const bool isPlan = m_parts.View.Rows().Grouping() == modStagedGroup::eGrouping::Plan;
        const bool goesOn =
            (isPlan || selected.size() == 1) && std::all_of(selected.begin(), selected.end(), needsLook);
        return goesOn ? LookAt(selected.constFirst()) : cStop{};
    }
    const QList<int> open = m_parts.View.Rows().OpenIds();
    const QList<int> sure = Sure(open);
    if (before.Booked.size() != 1) {
        if (const int left = NextToLook(before.Booked, 0); left != 0) {
            return LookAt(left); // wanted, and left out by the answer to the question
        }
        return sure.isEmpty() ? LookAt(NextToLook(open, 0)) : cStop{};
    }
    if (const int next = NextToLook(before.Open, before.Booked.constFirst()); next != 0) {
        return LookAt(next);
    }
    return selected.isEmpty() ? cStop{sure} : cStop{}; // what the rows before have taught
}

QList<int> cStagedGuide::Sure(const QList<int>& ids)
{
    QList<int> sure;
    const cImportEntryList rows = RowsOf(ids);
    for (const cImportEntry& row : rows) {
        const eStagedGroup group = m_parts.Proposals.Group(row);
        if (group == eStagedGroup::InBook || group == eStagedGroup::Sure) {
            sure.append(row.ID);
        }
    }
    return sure;
}

int cStagedGuide::NextToLook(const QList<int>& order, int after)
{
    const auto first = after == 0 ? order.begin() : std::find(order.begin(), order.end(), after);
    const auto next = std::find_if(first, order.end(), [&](int id) { return id != after && NeedsLook(id); });
    return next == order.end() ? 0 : *next;
}

bool cStagedGuide::NeedsLook(int id)
{
    const cImportEntryList rows = RowsOf({id});
    return !rows.isEmpty() && IsOpen(rows.constFirst())
        && m_parts.Proposals.PlanOf(rows.constFirst()).Group == eRowGroup::Look;
}

bool cStagedGuide::IsFieldEnough(const cImportEntry& row)
{
    const cRowPlan plan = m_parts.Proposals.PlanOf(row);
    return plan.Group == eRowGroup::Look && !plan.Match && !plan.IsSecond && !plan.IsBeside
        && !plan.Proposal.Entry.IsTransfer();
}

cStagedGuide::cStop cStagedGuide::LookAt(int id)
{
    const cImportEntryList rows = RowsOf({id});
    return rows.isEmpty() ? cStop{} : cStop{{id}, IsFieldEnough(rows.constFirst())};
}

cImportEntryList cStagedGuide::RowsOf(const QList<int>& ids)
{
    cImportEntryList rows;
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const int id : ids) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id)) {
            rows.append(*row);
        }
    }
    return rows;
}

QString cStagedGuide::AcceptText()
{
    const qsizetype count = m_parts.Proposals.IsHigh() ? 0 : Sure(m_parts.View.Rows().OpenIds()).size();
    return count == 0 ? cText::Tr("&Vorschläge annehmen")
                      : cText::Tr("&Vorschläge annehmen ({0})", {QString::number(count)});
}

QString cStagedGuide::SelectionText(const QList<int>& ids, bool isFieldOpen)
{
    const cImportEntryList rows = RowsOf(ids);
    if (rows.isEmpty() && m_parts.View.Rows().rowCount() == 0) {
        return {};
    }
    if (rows.isEmpty()) {
        return cText::Tr("Markieren Sie Umsätze: die Eingabetaste bucht sie, Strg+R ordnet einen davon einem Eintrag "
                         "zu, der schon im Haushaltsbuch steht.");
    }
    if (rows.size() == 1) {
        return OneText(rows.constFirst(), isFieldOpen);
    }
    qint64 sum = 0;
    for (const cImportEntry& row : rows) {
        sum += row.ImportValue;
    }
    const auto open = std::count_if(rows.begin(), rows.end(), IsOpen);
    const QStringList values{modImportText::Count(static_cast<int>(rows.size())), QString::number(open),
                             m_parts.Format.Cents(sum)};
    return open > 0 && Sure(ids).size() == open
        ? cText::Tr("{0} markiert, davon {1} offen, Summe {2}. Die Eingabetaste bucht sie.", values)
        : cText::Tr("{0} markiert, davon {1} offen, Summe {2}", values);
}

QString cStagedGuide::OneText(const cImportEntry& row, bool isFieldOpen)
{
    const cStagedInfo info = m_parts.Proposals.Info(row);
    const QStringList values{modImportText::Row(row, m_parts.Format), info.Category,
                             modWord::Intervals().ToShown(info.Interval), info.Account, info.Reason};
    if (!IsOpen(row)) {
        return cText::Tr("{0}  →  gebucht unter {1}, {3}", values);
    }
    if (isFieldOpen) {
        return cText::Tr("Bitte ansehen: Kategorie tippen, die Eingabetaste bucht.  {0}  →  {1}, {2}: {4}", values);
    }
    return NeedsLook(row.ID) ? cText::Tr("Bitte ansehen: {4}.  {0}  →  {1}, {3}", values)
                             : cText::Tr("{0}  →  {1}, {2}: {4}", values);
}
