#include "views/entry/cEntryDelete.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cEntryWriter.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSeriesChange.h"
#include "views/entry/cSplitGroup.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostNames = 8;

QString SeriesName(const cEntryItem& entry)
{
    return cText::Tr(
        "'{0}' ({1} seit {2})",
        {entry.Name(), modWord::Intervals().ToShown(entry.EntryInterval), modDate::ToText(entry.EntryDate)});
}

QString Lines(const QStringList& names)
{
    return modCount::Cut(names, mostNames).join(u'\n');
}

// Lines of the list that the targets stand for, and how many of the targets are series by occurrence.
struct cCounts
{
    qsizetype Occurrences = 0;
    qsizetype Series = 0;
    qsizetype Entries = 0; // that go as a whole
};

cCounts Count(const cDeleteTargetList& targets)
{
    cCounts counts;
    for (const cDeleteTarget& target : targets) {
        counts.Occurrences += target.Days.size();
        counts.Series += target.Days.isEmpty() ? 0 : 1;
        counts.Entries += target.Days.isEmpty() ? 1 : 0;
    }
    return counts;
}

QString StepName(const cDeleteTargetList& targets, eSeriesPart part)
{
    const cCounts counts = Count(targets);
    const cDeleteTarget& first = targets.first();
    const bool isOccurrence = targets.size() == 1 && !first.Days.isEmpty();
    if (isOccurrence && part == eSeriesPart::OnlyThis && first.Days.size() == 1) {
        return cText::Tr("'{0}' einmal ausgelassen", {first.Entry.Name()});
    }
    if (isOccurrence && part == eSeriesPart::FromHere) {
        return cText::Tr("'{0}' ab {1} gelöscht", {first.Entry.Name(), modDate::ToText(first.Days.first())});
    }
    const qsizetype lines = counts.Entries + (part == eSeriesPart::OnlyThis ? counts.Occurrences : counts.Series);
    return lines == 1 ? cText::Tr("Eintrag gelöscht") : cText::Tr("{0} Einträge gelöscht", {QString::number(lines)});
}

} // namespace

bool cEntryDelete::Delete(const QList<cEntryListModel::cKey>& selection)
{
    const cDeleteTargetList targets = Targets(selection);
    if (targets.isEmpty()) {
        return false;
    }
    if (Count(targets).Series == 0) {
        return Run(targets, eSeriesPart::Whole);
    }
    const std::optional<eSeriesPart> part = AskPart(targets);
    if (!part) {
        return false;
    }
    cDeleteTargetList all = targets;
    const cDeleteTargetList others = OtherParts(targets);
    return (others.isEmpty() || AskParts(all, others, {})) && Remove(all, *part);
}

bool cEntryDelete::Delete(const QList<int>& ids)
{
    QList<cEntryListModel::cKey> keys;
    for (const int id : ids) {
        keys.append({id, QDate()});
    }
    const cDeleteTargetList targets = Targets(keys);
    return !targets.isEmpty() && Run(targets, eSeriesPart::Whole);
}

bool cEntryDelete::Delete(const cEntryListModel::cKey& occurrence, eSeriesPart part)
{
    const cDeleteTargetList targets = Targets({occurrence});
    return Count(targets).Series > 0 && Run(targets, part);
}

int cEntryDelete::CountParts(int id) const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(id);
    return entry ? static_cast<int>(cSplitGroup(m_tools.Data).Parts(*entry).size()) : 0;
}

cDeleteTargetList cEntryDelete::Targets(const QList<cEntryListModel::cKey>& selection) const
{
    cDeleteTargetList targets;
    cSeriesChange series(m_tools, cSeriesChange::eReconciled::Leave);
    for (const cEntryListModel::cKey& key : selection) {
        auto target = std::find_if(targets.begin(), targets.end(),
                                   [&](const cDeleteTarget& other) { return other.Entry.ID == key.ID; });
        if (target == targets.end()) {
            const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(key.ID);
            if (!entry) {
                continue;
            }
            target = targets.insert(targets.end(), {*entry, {}});
        }
        if (!target->Days.contains(key.Day) && series.IsOccurrence(key.ID, key.Day)) {
            target->Days.append(key.Day);
        }
    }
    for (cDeleteTarget& target : targets) {
        std::sort(target.Days.begin(), target.Days.end());
    }
    return targets;
}

// The parts that are not selected of all groups that are touched. What happens on some days happens to them on these.
cDeleteTargetList cEntryDelete::OtherParts(const cDeleteTargetList& targets) const
{
    cDeleteTargetList others;
    QList<int> groups;
    for (const cDeleteTarget& target : targets) {
        const int group = modSplit::Group(target.Entry);
        if (group == 0 || groups.contains(group)) {
            continue;
        }
        groups.append(group);
        const cEntryItemList parts = cSplitGroup(m_tools.Data).Parts(target.Entry);
        for (const cEntryItem& part : parts) {
            if (std::none_of(targets.begin(), targets.end(),
                             [&](const cDeleteTarget& other) { return other.Entry.ID == part.ID; })) {
                others.append({part, target.Days});
            }
        }
    }
    return others;
}

bool cEntryDelete::Run(cDeleteTargetList targets, eSeriesPart part)
{
    const cDeleteTargetList others = OtherParts(targets);
    const QString question = Question(targets, part);
    const bool isWanted = others.isEmpty()
        ? m_tools.User.Ask({.Text = question, .Title = cText::Tr("Eintrag löschen")}) == eAnswer::Yes
        : AskParts(targets, others, question);
    return isWanted && Remove(targets, part);
}

QString cEntryDelete::Question(const cDeleteTargetList& targets, eSeriesPart part) const
{
    const cDeleteTarget& first = targets.first();
    if (part == eSeriesPart::Whole || first.Days.isEmpty()) {
        return WholeQuestion(targets);
    }
    const QString name = first.Entry.Name();
    const QString day = cSeriesChange(m_tools).DayText(first.Entry.ID, first.Days.first());
    if (part == eSeriesPart::OnlyThis) {
        return cText::Tr("Möchten Sie '{0}' vom {1} auslassen?\nDer Betrag wird null, die Serie läuft weiter.",
                         {name, day})
            + LostCorrection(first.Entry, first.Days.first());
    }
    const QString earlier = cSeriesChange(m_tools).EarlierText(first.Entry.ID, first.Days.first());
    return cText::Tr("Möchten Sie die Serie '{0}' ab dem {1} löschen?\nDie Vorkommen davor bleiben.", {name, day})
        + (earlier.isEmpty() ? QString() : u'\n' + earlier);
}

QString cEntryDelete::LostCorrection(const cEntryItem& entry, QDate day) const
{
    const qint64 cents = cSeriesChange(m_tools).Correction(entry.ID, day).value_or(cEntryItemFixMod{}).EntryValue;
    return cents == 0 || cents == entry.EntryValue
        ? QString()
        : u'\n' + cText::Tr("Die Korrektur auf {0} geht dabei verloren.", {m_tools.Format.Cents(cents)});
}

QString cEntryDelete::WholeQuestion(const cDeleteTargetList& targets) const
{
    const cEntryItem& first = targets.first().Entry;
    const QString day = first.EntryDate.isValid() ? modDate::ToText(first.EntryDate) : cText::Tr("(kein Tag)");
    QString text = targets.size() == 1
        ? cText::Tr("Möchten Sie den Eintrag {0} löschen?",
                    {cText::Tr("'{0}' vom {1} über {2}", {first.Name(), day, m_tools.Format.Cents(first.EntryValue)})})
        : cText::Tr("Möchten Sie die {0} ausgewählten Einträge löschen?", {QString::number(targets.size())});
    QStringList series;
    for (const cDeleteTarget& target : targets) {
        if (modRecurrence::IsRecurring(target.Entry.EntryInterval)) {
            series.append(SeriesName(target.Entry));
        }
    }
    if (!series.isEmpty()) {
        text +=
            u"\n\n"_s
            + cText::Tr(
                "Damit verschwinden alle Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:")
            + u'\n' + Lines(series);
    }
    return text;
}

// What is selected, and what each of the options would leave.
QString cEntryDelete::PartQuestion(const cDeleteTargetList& targets, const QStringList& options) const
{
    const cCounts counts = Count(targets);
    QStringList names;
    for (const cDeleteTarget& target : targets) {
        names += target.Days.isEmpty() ? QStringList() : QStringList{SeriesName(target.Entry)};
    }
    const cDeleteTarget& first = targets.first();
    QString text = counts.Occurrences == 1 && counts.Entries == 0
        ? cText::Tr("'{0}' vom {1} gehört zu einer Serie ({2} seit {3}).",
                    {first.Entry.Name(), cSeriesChange(m_tools).DayText(first.Entry.ID, first.Days.first()),
                     modWord::Intervals().ToShown(first.Entry.EntryInterval), modDate::ToText(first.Entry.EntryDate)})
        : cText::Tr("Ausgewählt sind {0} Vorkommen von {1}:",
                    {QString::number(counts.Occurrences), modCount::Series(counts.Series)})
            + u'\n' + Lines(names);
    if (counts.Entries > 0) {
        text += u'\n' + cText::Tr("Außerdem werden gelöscht: {0}", {modCount::Entries(counts.Entries)});
    }
    text += u'\n' + cText::Tr("Was möchten Sie löschen?") + u"\n\n"_s
        + cText::Tr("{0}: Der Betrag wird null, alles andere bleibt.", {options.first()});
    if (options.size() > 2) {
        text += u'\n' + cText::Tr("{0}: Was davor liegt, bleibt.", {options.at(1)});
        for (const cDeleteTarget& target : targets) {
            const QString earlier = cSeriesChange(m_tools).EarlierText(target.Entry.ID, target.Days.value(0));
            text += earlier.isEmpty() ? QString() : u' ' + earlier;
        }
    }
    return text + u'\n'
        + cText::Tr("{0}: Auch alles Vergangene verschwindet, mit allen Korrekturen.", {options.last()});
}

std::optional<eSeriesPart> cEntryDelete::AskPart(const cDeleteTargetList& targets)
{
    const cCounts counts = Count(targets);
    const bool isOne = counts.Occurrences == 1;
    const bool hasLater = std::any_of(targets.begin(), targets.end(), [](const cDeleteTarget& target) {
        return !target.Days.isEmpty() && target.Days.first() > target.Entry.EntryDate;
    });
    QList<eSeriesPart> parts{eSeriesPart::OnlyThis};
    QStringList options{isOne ? cText::Tr("Nur dieses Mal") : cText::Tr("Nur diese Male")};
    if (hasLater) {
        parts.append(eSeriesPart::FromHere);
        options.append(cText::Tr("Ab hier"));
    }
    parts.append(eSeriesPart::Whole);
    options.append(counts.Series == 1 ? cText::Tr("Ganze Serie") : cText::Tr("Ganze Serien"));
    const int choice = m_tools.User.Decide(
        {.Text = PartQuestion(targets, options), .Title = cText::Tr("Eintrag löschen"), .Options = options});
    return choice >= 0 ? std::optional(parts.at(choice)) : std::nullopt;
}

bool cEntryDelete::AskParts(cDeleteTargetList& targets, const cDeleteTargetList& others, const QString& question)
{
    const QString more = QString::number(others.size());
    const bool isOne = targets.size() == 1;
    const QString before = question.isEmpty() ? QString() : QString(question + u"\n\n"_s);
    const int choice = m_tools.User.Decide(
        {.Text = before
             + (isOne ? cText::Tr("Er gehört zu einem aufgeteilten Eintrag. Weitere Teile: {0}", {more})
                      : cText::Tr("Darunter sind Teile aufgeteilter Einträge. Weitere Teile: {0}", {more})),
         .Title = cText::Tr("Eintrag löschen"),
         .Options = {isOne ? cText::Tr("Nur diesen Teil löschen") : cText::Tr("Nur die ausgewählten löschen"),
                     cText::Tr("Alle Teile löschen")}});
    if (choice == 1) {
        targets += others;
    }
    return choice >= 0;
}

bool cEntryDelete::Remove(const cDeleteTargetList& targets, eSeriesPart part)
{
    const cDeleteTargetList others = OtherParts(targets);
    cReconciledGuard guard(m_tools);
    cUndoStep step(m_tools.Data, StepName(targets, part));
    if (!std::all_of(targets.begin(), targets.end(),
                     [&](const cDeleteTarget& target) { return RemoveOne(target, part); })) {
        return step.Revert();
    }
    // The IDs of deleted rows are given again, so no group may go on under the name of one.
    for (const cDeleteTarget& other : others) {
        if (!cSplitGroup(m_tools.Data).Mark(cSplitGroup(m_tools.Data).Parts(other.Entry))) {
            return step.Revert();
        }
    }
    return step.DoneIf(guard.Allows());
}

bool cEntryDelete::RemoveOne(const cDeleteTarget& target, eSeriesPart part)
{
    const int id = target.Entry.ID;
    if (part == eSeriesPart::OnlyThis && !target.Days.isEmpty()) {
        cSeriesChange series(m_tools, cSeriesChange::eReconciled::Leave);
        return std::all_of(target.Days.begin(), target.Days.end(),
                           [&](QDate day) { return series.SkipPeriod(id, day); });
    }
    const bool hasEarlier = !target.Days.isEmpty() && target.Days.first() > target.Entry.EntryDate;
    return part == eSeriesPart::FromHere && hasEarlier
        ? cEntryWriter(m_tools.Data, m_tools.User).End(id, target.Days.first())
        : m_tools.Data.DeleteEntry(id);
}
