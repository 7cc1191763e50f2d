#include "views/sheet/cEntryDuplicate.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSeriesChange.h"
#include "views/entry/cSplitGroup.h"
#include "views/entry/cStartBalance.h"

#include <QMap>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString StepName(const cEntryItemList& copies)
{
    return copies.size() == 1 ? cText::Tr("'{0}' dupliziert", {copies.first().Name()})
                              : cText::Tr("{0} Einträge dupliziert", {QString::number(copies.size())});
}

QString Done(const cEntryItemList& copies)
{
    return copies.size() == 1
        ? cText::Tr("'{0}' zum {1} dupliziert.", {copies.first().Name(), modDate::ToText(copies.first().EntryDate)})
        : cText::Tr("{0} Einträge dupliziert.", {QString::number(copies.size())});
}

} // namespace

QList<cEntryListModel::cKey> cEntryDuplicate::Duplicate(const QList<cEntryListModel::cKey>& rows, eDay day)
{
    QList<QDate> planned;
    cEntryItemList copies = Copies(rows, day, planned);
    if (copies.isEmpty()) {
        m_tools.User.Show(eTone::Objection,
                          cText::Tr("Ein Startguthaben lässt sich nicht duplizieren: Jedes Konto hat nur eines."));
        return {};
    }
    cReconciledGuard guard(m_tools);
    cUndoStep step(m_tools.Data, StepName(copies));
    if (!step.DoneIf(Write(copies, planned) && guard.Allows())) {
        return {};
    }
    m_text = Done(copies);
    QList<cEntryListModel::cKey> keys;
    for (const cEntryItem& copy : std::as_const(copies)) {
        keys.append({copy.ID, copy.EntryDate});
    }
    return keys;
}

cEntryItemList cEntryDuplicate::Copies(const QList<cEntryListModel::cKey>& rows, eDay day, QList<QDate>& planned) const
{
    cEntryItemList copies;
    for (const cEntryListModel::cKey& row : rows) {
        if (const std::optional<cEntryItem> copy = Copy(row, day)) {
            copies.append(*copy);
            planned.append(row.Day);
        }
    }
    return copies;
}

// With the group of the original, which Write replaces.
std::optional<cEntryItem> cEntryDuplicate::Copy(const cEntryListModel::cKey& row, eDay day) const
{
    std::optional<cEntryItem> copy = m_tools.Data.LoadEntry(row.ID);
    if (!copy || cStartBalance(m_tools.Data, m_tools.Format.Decimal()).IsOne(*copy)) {
        return std::nullopt;
    }
    if (modRecurrence::IsRecurring(copy->EntryInterval)) {
        const std::optional<cEntryItemFixMod> correction = cSeriesChange(m_tools).Correction(row.ID, row.Day);
        copy->EntryValue = correction ? correction->EntryValue : copy->EntryValue;
        copy->EntryDate = correction && correction->EntryDay.isValid() ? correction->EntryDay : row.Day;
    }
    const QDate today = m_tools.Clock.Today();
    copy->EntryDate = day == eDay::Today || !copy->EntryDate.isValid() ? today : copy->EntryDate.addMonths(1);
    copy->EntryDateEnd = modRecurrence::OpenEnd;
    copy->EntryInterval = modWord::Einmalig;
    const int group = modSplit::Group(*copy);
    const QString payer = modPeople::Payer(*copy);
    copy->EntryFlags.clear();
    modPeople::SetPayer(*copy, payer);
    modSplit::SetGroup(*copy, group);
    copy->ID = 0;
    return copy;
}

// Two occurrences of one purchase stay two purchases, also where both come to the same day.
bool cEntryDuplicate::Write(cEntryItemList& copies, const QList<QDate>& planned) const
{
    QMap<std::tuple<int, QDate, QDate>, cEntryItemList> groups;
    for (qsizetype i = 0; i < copies.size(); ++i) {
        cEntryItem& copy = copies[i];
        const int group = modSplit::Group(copy);
        modSplit::SetGroup(copy, 0);
        if (!m_tools.Data.AddNewEntry(copy)) {
            return false;
        }
        if (group != 0) {
            groups[{group, planned.at(i), copy.EntryDate}].append(copy);
        }
    }
    return std::all_of(groups.cbegin(), groups.cend(), [this](const cEntryItemList& parts) {
        return parts.size() < 2 || cSplitGroup(m_tools.Data).Mark(parts);
    });
}
