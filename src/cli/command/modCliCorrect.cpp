#include "cli/command/modCliCorrect.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/modCliRecord.h"
#include "views/entry/cSeriesChange.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using cKey = cEntryListModel::cKey;

int Finish(const cCliContext& context, const cKey& occurrence, bool isDone)
{
    if (isDone) {
        cSeriesChange change(context.Book->Tools);
        const auto period = change.StartPeriod(occurrence.ID, occurrence.Day);
        const auto correction = change.Correction(occurrence.ID, occurrence.Day);
        const auto series = context.Book->File().Entry(occurrence.ID);
        const QString plain = series ? context.Book->AmountText(series->EntryValue) : QString();
        const bool isOther = correction && series && correction->EntryValue != series->EntryValue;
        QString amount =
            isOther ? cText::Tr("{0} statt {1}", {context.Book->AmountText(correction->EntryValue), plain}) : plain;
        if (correction && correction->EntryDay.isValid()) {
            amount = cText::Tr("{0}, am {1}", {amount, modDate::ToText(correction->EntryDay)});
        }
        modConsole::Out((period ? period->Title + u": "_s + amount : amount) + u'\n');
    }
    return isDone ? modExit::Done : modCliFlow::Finish(context, false);
}

int List(const cCliContext& context, int id)
{
    const cEntryItemFixModList fixMods = context.Book->File().Corrections(id);
    if (context.Call.Has(u"json"_s)) {
        QStringList objects;
        for (const cEntryItemFixMod& fixMod : fixMods) {
            objects.append(modCliRecord::FixMod(fixMod).ToString());
        }
        modConsole::Out(modJson::Array(objects) + u'\n');
        return modExit::Done;
    }
    cCliTable table({{cText::Tr("Von")},
                     {cText::Tr("Bis")},
                     {cText::Tr("Tag")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Kommentar")}});
    for (const cEntryItemFixMod& fixMod : fixMods) {
        table.Add({modDate::ToText(fixMod.EntryStartDate), modDate::ToText(fixMod.EntryEndDate),
                   fixMod.EntryDay.isValid() ? modDate::ToText(fixMod.EntryDay) : QString(),
                   context.Book->AmountText(fixMod.EntryValue), fixMod.EntryComment});
    }
    modConsole::Out(table.ToString());
    return modExit::Done;
}

int Remove(const cCliContext& context, const cKey& occurrence)
{
    cSeriesChange change(context.Book->Tools);
    if (!change.Correction(occurrence.ID, occurrence.Day)) {
        modConsole::Error(cText::Tr("Das Vorkommen vom {0} ist nicht korrigiert.", {modDate::ToText(occurrence.Day)}));
        return modExit::Failed;
    }
    return Finish(context, occurrence, change.RemoveCorrection(occurrence.ID, occurrence.Day));
}

int Skip(const cCliContext& context, const cKey& occurrence)
{
    cSeriesChange change(context.Book->Tools);
    const bool isDone = context.Call.Has(u"comment"_s)
        ? change.CorrectPeriod(occurrence.ID, occurrence.Day, 0, context.Call.Value(u"comment"_s))
        : change.SkipPeriod(occurrence.ID, occurrence.Day);
    return Finish(context, occurrence, isDone);
}

// How many ways to correct the call names; one is right. A day alone is one, and goes with an amount.
qsizetype CountWays(const cCliCall& call)
{
    const bool isOther = call.Has(u"skip"_s) || call.Has(u"remove"_s);
    const qsizetype count = qMax<qsizetype>(0, call.Arguments().size() - 2) + (call.Has(u"skip"_s) ? 1 : 0)
        + (call.Has(u"remove"_s) ? 1 : 0);
    return call.Has(u"day"_s) && (count == 0 || isOther) ? count + 1 : count;
}

void CheckUse(const cCliCall& call, cCliReader& reader)
{
    const qsizetype count = call.Arguments().size();
    if (call.Has(u"list"_s) ? count != 1 || CountWays(call) > 0 : count < 2 || CountWays(call) != 1) {
        reader.Misused(cText::Tr("Bitte nennen Sie nach der Nummer den Tag und dann den neuen Betrag oder --day, "
                                 "--skip oder --remove; oder nur --list."));
    }
}

// What the occurrence comes to so far.
qint64 CentsNow(const cCliContext& context, int id, QDate day)
{
    const auto correction = cSeriesChange(context.Book->Tools).Correction(id, day);
    const auto series = context.Book->File().Entry(id);
    return correction ? correction->EntryValue : series ? series->EntryValue : 0;
}

int RunCorrect(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    CheckUse(call, reader);
    const bool isList = call.Has(u"list"_s);
    const int id = reader.Id(call.Arguments().constFirst());
    const QDate day = isList ? QDate() : reader.Occurrence(id, call.Arguments().value(1));
    const qint64 cents = reader.Cents(call.Arguments().value(2));
    const QDate moveTo = reader.Day(call.Value(u"day"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    if (isList) {
        return List(context, id);
    }
    if (call.Has(u"remove"_s)) {
        return Remove(context, {id, day});
    }
    if (call.Has(u"skip"_s)) {
        return Skip(context, {id, day});
    }
    const auto comment = call.Has(u"comment"_s) ? std::optional(call.Value(u"comment"_s)) : std::nullopt;
    const qint64 wanted = call.Arguments().size() > 2 ? cents : CentsNow(context, id, day);
    return modCliCorrect::Correct(context, {id, day}, wanted, comment,
                                  call.Has(u"day"_s) ? std::optional(moveTo) : std::nullopt);
}

} // namespace

int modCliCorrect::Correct(const cCliContext& context, const cEntryListModel::cKey& occurrence, qint64 cents,
                           const std::optional<QString>& comment, const std::optional<QDate>& moveTo)
{
    cSeriesChange change(context.Book->Tools);
    const std::optional<cEntryItemFixMod> before = change.Correction(occurrence.ID, occurrence.Day);
    // The comment of an occurrence that was left out says nothing about its new amount.
    const QString kept = before && before->EntryValue != 0 ? before->EntryComment : QString();
    return Finish(context, occurrence,
                  change.CorrectPeriod(occurrence.ID, occurrence.Day, cents, comment.value_or(kept), moveTo));
}

cCliCommand modCliCommands::CorrectCommand()
{
    return {.Name = u"correct"_s,
            .Arguments = u"ID (DATUM (BETRAG | --day TAG | --skip | --remove) | --list)"_s,
            .Help = cText::Tr(
                "gibt einem Vorkommen einer Serie einen anderen Betrag oder Tag, oder zeigt alle Korrekturen"),
            .MinArguments = 1,
            .MaxArguments = 3,
            .Access = eCliAccess::Write,
            .ReadsWith = {u"list"_s},
            .Options = {{u"skip"_s, {}, cText::Tr("das Vorkommen auslassen (Betrag 0)")},
                        {u"day"_s, u"TAG"_s, cText::Tr("das Vorkommen auf diesen Tag verschieben")},
                        {u"remove"_s, {}, cText::Tr("die Korrektur entfernen")},
                        {u"comment"_s, u"TEXT"_s, cText::Tr("Kommentar zur Korrektur"), true},
                        {u"list"_s, {}, cText::Tr("die Korrekturen zeigen")},
                        Json()},
            .Run = RunCorrect};
}
