#include "views/entry/cEntryDelete.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cSplitGroup.h"
#include "views/entry/modEntryFields.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool Holds(const cEntryItemList& entries, int id)
{
    return std::any_of(entries.begin(), entries.end(), [&](const cEntryItem& entry) { return entry.ID == id; });
}

QStringList SeriesNames(const cEntryItemList& entries)
{
    QStringList names;
    for (const cEntryItem& entry : entries) {
        if (modRecurrence::IsRecurring(entry.EntryInterval)) {
            names.append(cText::Tr("'{0}' ({1} seit {2})",
                                   {modEntryFields::Name(entry), modWord::Intervals().ToShown(entry.EntryInterval),
                                    modDate::ToGerman(entry.EntryDate)}));
        }
    }
    return names;
}

} // namespace

bool cEntryDelete::Delete(const QList<cEntryListModel::cKey>& selection)
{
    QList<int> ids;
    for (const cEntryListModel::cKey& key : selection) {
        if (!ids.contains(key.ID)) {
            ids.append(key.ID);
        }
    }
    return Delete(ids);
}

bool cEntryDelete::Delete(const QList<int>& ids)
{
    cEntryItemList entries;
    for (const int id : ids) {
        if (const std::optional<cEntryItem> entry = m_data.LoadEntry(id)) {
            entries.append(*entry);
        }
    }
    if (entries.isEmpty()) {
        return false;
    }
    const cEntryItemList others = OtherParts(entries);
    const bool isWanted = others.isEmpty()
        ? m_user.Ask({.Text = Question(entries), .Title = cText::Tr("Eintrag löschen")}) == eAnswer::Yes
        : AskParts(entries, others);
    return isWanted && Remove(entries);
}

int cEntryDelete::CountParts(int id) const
{
    const std::optional<cEntryItem> entry = m_data.LoadEntry(id);
    return entry ? static_cast<int>(cSplitGroup(m_data).Parts(*entry).size()) : 0;
}

QString cEntryDelete::Question(const cEntryItemList& entries) const
{
    const cEntryItem& first = entries.first();
    QString text = entries.size() == 1
        ? cText::Tr("Möchten Sie den Eintrag {0} löschen?",
                    {cText::Tr("'{0}' vom {1} über {2}",
                               {modEntryFields::Name(first), modDate::ToGerman(first.EntryDate),
                                m_format.Cents(first.EntryValue)})})
        : cText::Tr("Möchten Sie die {0} ausgewählten Einträge löschen?", {QString::number(entries.size())});
    const QStringList series = SeriesNames(entries);
    if (!series.isEmpty()) {
        constexpr qsizetype most = 8;
        const QString more = series.size() > most ? u"\n…"_s : QString();
        text +=
            u"\n\n"_s
            + cText::Tr(
                "Damit verschwinden alle Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:")
            + u'\n' + series.mid(0, most).join(u'\n') + more;
    }
    return text;
}

// The parts that are not selected of all groups that are touched.
cEntryItemList cEntryDelete::OtherParts(const cEntryItemList& entries) const
{
    cEntryItemList others;
    QList<int> groups;
    for (const cEntryItem& entry : entries) {
        const int group = modSplit::Group(entry);
        if (group == 0 || groups.contains(group)) {
            continue;
        }
        groups.append(group);
        const cEntryItemList parts = cSplitGroup(m_data).Parts(entry);
        std::copy_if(parts.begin(), parts.end(), std::back_inserter(others),
                     [&](const cEntryItem& part) { return !Holds(entries, part.ID); });
    }
    return others;
}

bool cEntryDelete::AskParts(cEntryItemList& entries, const cEntryItemList& others)
{
    const QString more = QString::number(others.size());
    const bool isOne = entries.size() == 1;
    const int choice = m_user.Decide(
        {.Text = Question(entries) + u"\n\n"_s
             + (isOne ? cText::Tr("Er gehört zu einem aufgeteilten Eintrag. Weitere Teile: {0}", {more})
                      : cText::Tr("Darunter sind Teile aufgeteilter Einträge. Weitere Teile: {0}", {more})),
         .Title = cText::Tr("Eintrag löschen"),
         .Options = {isOne ? cText::Tr("Nur diesen Teil löschen") : cText::Tr("Nur die ausgewählten löschen"),
                     cText::Tr("Alle Teile löschen")}});
    if (choice == 1) {
        entries += others;
    }
    return choice >= 0;
}

bool cEntryDelete::Remove(const cEntryItemList& entries)
{
    const cEntryItemList others = OtherParts(entries);
    cUndoStep step(m_data,
                   entries.size() == 1 ? cText::Tr("Eintrag gelöscht")
                                       : cText::Tr("{0} Einträge gelöscht", {QString::number(entries.size())}));
    for (const cEntryItem& entry : entries) {
        if (!m_data.DeleteEntry(entry.ID)) {
            return step.Revert();
        }
    }
    // The IDs of deleted rows are given again, so no group may go on under the name of one.
    for (const cEntryItem& other : others) {
        if (!cSplitGroup(m_data).Mark(cSplitGroup(m_data).Parts(other))) {
            return step.Revert();
        }
    }
    return true;
}
