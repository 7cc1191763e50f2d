#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/modCliRecord.h"
#include "model/modBalance.h"
#include "views/entry/cStartBalance.h"
#include "views/main/modAccountLines.h"
#include "views/template/cTemplateManager.h"
#include "views/template/modTemplateText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 StartCents(const cAccountLine& line)
{
    return line.Start ? modBalance::Effect(*line.Start, {}) : 0;
}

QString ToJson(const cAccountLine& line)
{
    QStringList numbers;
    std::transform(line.Numbers.begin(), line.Numbers.end(), std::back_inserter(numbers), modJson::Quoted);
    return modCliRecord::Template(line.Item)
        .Amount(u"Balance"_s, line.Cents)
        .Amount(u"StartBalance"_s, StartCents(line))
        .Date(u"StartDate"_s, line.Start ? line.Start->EntryDate : QDate())
        .Raw(u"Numbers"_s, u'[' + numbers.join(u", "_s) + u']')
        .Number(u"Entries"_s, line.Entries)
        .ToString();
}

void PrintJson(const QList<cAccountLine>& lines)
{
    QStringList objects;
    std::transform(lines.begin(), lines.end(), std::back_inserter(objects), ToJson);
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void Print(const cCliBook& book, const QList<cAccountLine>& lines)
{
    cCliTable table({{cText::Tr("Gruppe")},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kontostand"), eAlign::Right},
                     {cText::Tr("Startguthaben"), eAlign::Right},
                     {cText::Tr("Am")},
                     {cText::Tr("Bankkontonummern")},
                     {cText::Tr("Buchungen"), eAlign::Right},
                     {cText::Tr("Stand")}});
    for (const cAccountLine& line : lines) {
        table.Add({line.Item.TemplateCategory, modAccountLines::ShownName(line.Item.TemplateName),
                   book.AmountText(line.Cents), line.Start ? book.AmountText(StartCents(line)) : QString(),
                   line.Start ? modDate::ToText(line.Start->EntryDate) : QString(), line.Numbers.join(u", "_s),
                   QString::number(line.Entries), modTemplateText::State(line.Item)});
    }
    modConsole::Out(table.ToString());
}

int List(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const QList<cAccountLine> lines = modAccountLines::Load(book.Data, book.Settings(), context.Clock.Today()).Accounts;
    if (context.Call.Has(u"json"_s)) {
        PrintJson(lines);
    } else {
        Print(book, lines);
    }
    return modExit::Done;
}

int Add(const cCliContext& context)
{
    cTemplateManager manager(context.Book->Tools);
    const QString group = context.Call.Has(u"group"_s) ? context.Call.Value(u"group"_s) : manager.Groups().value(0);
    return modCliFlow::Finish(context, !manager.AddAccount(context.Call.Arguments().constFirst(), group).isEmpty());
}

// What --entries says; nothing when it is missing.
std::optional<eAnswer> EntriesAnswer(const cCliCall& call, cCliReader& reader)
{
    const QString word = call.Value(u"entries"_s).toLower();
    if (word == "yes"_L1 || word == "ja"_L1) {
        return eAnswer::Yes;
    }
    if (word == "no"_L1 || word == "nein"_L1) {
        return eAnswer::No;
    }
    if (call.Has(u"entries"_s)) {
        reader.Misused(cText::Tr("Nach --entries steht yes oder no."));
    }
    return std::nullopt;
}

int Rename(const cCliContext& context)
{
    cCliReader reader(context);
    cConsoleUser::cAnswers answers = modCliFlow::Answers(
        context,
        cText::Tr("Mit --entries yes gehen die Buchungen mit, mit --entries no behalten sie den alten Kontonamen."));
    answers.Answer = EntriesAnswer(context.Call, reader);
    const QString oldName = reader.Account(context.Call.Arguments().at(0));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(answers);
    cTemplateManager manager(context.Book->Tools);
    return modCliFlow::Finish(context, manager.RenameAccount(oldName, context.Call.Arguments().at(1)));
}

int Delete(const cCliContext& context)
{
    cCliReader reader(context);
    const QString name = reader.Account(context.Call.Arguments().constFirst());
    const QString target = reader.Account(context.Call.Value(u"move-to"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(modCliFlow::RemovalAnswers(context, target));
    cTemplateManager manager(context.Book->Tools);
    return modCliFlow::Finish(context, manager.DeleteAccount(name));
}

int Start(const cCliContext& context)
{
    const QStringList& arguments = context.Call.Arguments();
    cCliReader reader(context);
    const QString account = reader.Account(arguments.at(0));
    const qint64 cents = reader.Cents(arguments.at(1));
    QDate day = reader.Day(context.Call.Value(u"date"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cStartBalance balance(context.Book->Data, eDecimal::Comma);
    day = day.isValid() ? day : balance.Show(account).Date;
    return modCliFlow::Finish(context, balance.Save(account, cents, day.isValid() ? day : context.Clock.Today()));
}

int Limit(const cCliContext& context)
{
    cCliReader reader(context);
    const QString name = reader.Account(context.Call.Arguments().constFirst());
    const QString text = context.Call.Arguments().constLast();
    const bool isNone = cCliReader::IsNone(text);
    const qint64 cents = isNone ? 0 : reader.Cents(text);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cTemplateManager manager(context.Book->Tools);
    return modCliFlow::Finish(context, manager.SetLimit(name, isNone ? std::nullopt : std::optional(cents)));
}

} // namespace

cCliCommand modCliCommands::AccountsCommand()
{
    return {.Name = u"accounts"_s,
            .Help = cText::Tr("zeigt die Konten mit Kontostand, Startguthaben und Bankkontonummern"),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::AccountsAddCommand()
{
    return {.Name = u"accounts add"_s,
            .Arguments = u"NAME"_s,
            .Help = cText::Tr("legt ein Konto an"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = {{u"group"_s, u"NAME"_s, cText::Tr("Kontogruppe; ohne Angabe die erste"), true}},
            .Run = Add};
}

cCliCommand modCliCommands::AccountsRenameCommand()
{
    return {.Name = u"accounts rename"_s,
            .Arguments = u"NAME NEU"_s,
            .Help = cText::Tr("benennt ein Konto um"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Options = {{u"entries"_s, u"yes|no"_s, cText::Tr("ob die Buchungen des Kontos mitgehen")}},
            .Run = Rename};
}

cCliCommand modCliCommands::AccountsDeleteCommand()
{
    return {
        .Name = u"accounts delete"_s,
        .Arguments = u"NAME"_s,
        .Help = cText::Tr("löscht ein Konto"),
        .MinArguments = 1,
        .MaxArguments = 1,
        .Access = eCliAccess::Write,
        .Options = {{u"move-to"_s, u"NAME"_s, cText::Tr("Konto für die Einträge; ohne Angabe behalten sie das alte")},
                    {u"yes"_s, {}, cText::Tr("wirklich löschen")}},
        .Run = Delete};
}

cCliCommand modCliCommands::AccountsStartCommand()
{
    return {.Name = u"accounts start"_s,
            .Arguments = u"NAME BETRAG"_s,
            .Help = cText::Tr("legt das Startguthaben eines Kontos fest"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Options = {{u"date"_s, u"DATUM"_s, cText::Tr("Tag; ohne Angabe der bisherige, sonst heute")}},
            .Run = Start};
}

cCliCommand modCliCommands::AccountsLimitCommand()
{
    return {.Name = u"accounts limit"_s,
            .Arguments = u"NAME BETRAG"_s,
            .Help = cText::Tr("legt fest, vor welchem Kontostand gewarnt wird; \"ohne\" entfernt das Limit"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Limit};
}
