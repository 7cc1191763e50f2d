#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/modCliRecord.h"
#include "model/modCutText.h"
#include "model/modWord.h"
#include "views/rule/cRuleEditor.h"
#include "views/rule/modRuleText.h"
#include "views/statement/cFileReport.h"
#include "views/statement/cFileWish.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString KindOf(const cOwnRule& rule)
{
    switch (rule.Sign) {
    case eRuleSign::In: return modWord::Einnahme;
    case eRuleSign::Out: return modWord::Ausgabe;
    case eRuleSign::Any: break;
    }
    return {};
}

// The place of a rule in the list from its number; -1 when there is none.
int PlaceOf(const QString& text, qsizetype count, cCliReader& reader)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) {
        reader.Misused(cText::Tr("'{0}' ist keine Nummer. Die Nummern stehen in der Spalte Nr.", {text}));
        return -1;
    }
    if (number < 1 || number > count) {
        reader.Missing(cText::Tr("Eine Regel mit der Nummer {0} gibt es nicht.", {text}));
        return -1;
    }
    return number - 1;
}

cJsonObject ToJson(const cOwnRule& rule, int place)
{
    cJsonObject json;
    json.Number(u"Number"_s, place + 1)
        .Truth(u"On"_s, rule.IsOn)
        .Text(u"Text"_s, rule.Text)
        .Text(u"Counterparty"_s, rule.Counterparty)
        .Text(u"EntryType"_s, KindOf(rule))
        .Text(u"EntryAccount"_s, rule.Account)
        .Text(u"EntryCategory"_s, rule.Category)
        .Text(u"EntryInterval"_s, rule.Interval)
        .Text(u"EntryDescription"_s, rule.Description)
        .Text(u"Unreadable"_s, rule.Unreadable);
    return json;
}

int List(const cCliContext& context)
{
    const cRuleListModel list(context.Book->Tools);
    QStringList objects;
    cCliTable table({{cText::Tr("Nr."), eAlign::Right},
                     {cText::Tr("Wenn"), eAlign::Left, 60},
                     {cText::Tr("Dann"), eAlign::Left, 60},
                     {cText::Tr("Umsätze"), eAlign::Right},
                     {cText::Tr("Stand")}});
    for (int place = 0; place < list.rowCount(); ++place) {
        const cOwnRule& rule = list.Stored().at(place);
        const int rows = list.CountAt(place);
        objects.append(ToJson(rule, place).Number(u"Rows"_s, rows).ToString());
        table.Add({QString::number(place + 1), modRuleText::Conditions(rule), modRuleText::Result(rule),
                   QString::number(rows), rule.IsOn ? QString() : cText::Tr("aus")});
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
    return modExit::Done;
}

// The options of the call over what the rule says already.
void TakeOptions(const cCliCall& call, cCliReader& reader, cOwnRule& rule)
{
    const auto take = [&](const QString& option, QString& field, const QString& value) {
        field = call.Has(option) ? value : field;
    };
    take(u"text"_s, rule.Text, call.Value(u"text"_s).simplified());
    take(u"counterparty"_s, rule.Counterparty, call.Value(u"counterparty"_s).simplified());
    take(u"account"_s, rule.Account, reader.Account(call.Value(u"account"_s)));
    take(u"category"_s, rule.Category, reader.Category(call.Value(u"category"_s), eCliNames::Used));
    take(u"interval"_s, rule.Interval, reader.Interval(call.Value(u"interval"_s)));
    take(u"description"_s, rule.Description, call.Value(u"description"_s).simplified());
    const QString kind = reader.Kind(call.Value(u"kind"_s));
    if (kind == modWord::Umbuchung) {
        reader.Misused(cText::Tr("Ein Umsatz ist Einnahme oder Ausgabe."));
    } else if (!kind.isEmpty()) {
        rule.Sign = kind == modWord::Einnahme ? eRuleSign::In : eRuleSign::Out;
    }
}

int Add(const cCliContext& context)
{
    cCliReader reader(context);
    cRuleEditor editor(context.Book->Tools);
    editor.StartNew();
    if (context.Call.Has(u"from"_s)) {
        if (const std::optional<cImportEntry> row = reader.StagedRow(context.Call.Value(u"from"_s))) {
            editor.StartFrom(*row);
        }
    }
    cOwnRule rule = editor.Draft();
    TakeOptions(context.Call, reader, rule);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    editor.SetDraft(rule);
    return modCliFlow::Finish(context, editor.Save());
}

int Delete(const cCliContext& context)
{
    cCliReader reader(context);
    cRuleListModel list(context.Book->Tools);
    const int place = PlaceOf(context.Call.Arguments().constFirst(), list.rowCount(), reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird gelöscht.")));
    return modCliFlow::Finish(context, list.Delete(place));
}

int Move(const cCliContext& context)
{
    cCliReader reader(context);
    cRuleListModel list(context.Book->Tools);
    const int place = PlaceOf(context.Call.Arguments().at(0), list.rowCount(), reader);
    const int target = PlaceOf(context.Call.Arguments().at(1), list.rowCount(), reader);
    return reader.IsGood() ? modCliFlow::Finish(context, list.MoveTo(place, target)) : reader.Report();
}

int Switch(const cCliContext& context)
{
    cCliReader reader(context);
    cRuleListModel list(context.Book->Tools);
    const int place = PlaceOf(context.Call.Arguments().at(0), list.rowCount(), reader);
    const QString state = context.Call.Arguments().at(1);
    if (state != u"on" && state != u"off") {
        reader.Misused(cText::Tr("Möglich sind on und off."));
    }
    return reader.IsGood() ? modCliFlow::Finish(context, list.Switch(place, state == u"on")) : reader.Report();
}

// The transactions to try the rules on: a staged one by its number, else those of a file.
cImportEntryList RowsToTest(const cCliContext& context, cCliReader& reader)
{
    cCliBook& book = *context.Book;
    const QString argument = context.Call.Arguments().constFirst();
    bool isNumber = false;
    (void)argument.toInt(&isNumber);
    if (isNumber) {
        const std::optional<cImportEntry> row = reader.StagedRow(argument);
        return row ? cImportEntryList{*row} : cImportEntryList();
    }
    const cFilesReport tried =
        book.Statements.ImportFiles({argument},
                                    {.Account = context.Call.Value(u"account"_s),
                                     .KeepsDuplicates = true,
                                     .IsTrial = true,
                                     .TakesCurrency = true});
    const cFileReport& report = tried.Files.constFirst();
    if (report.IsRefused) {
        reader.Missing(argument + u": "_s + report.Message);
    }
    return report.Rows;
}

int Test(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cCliReader reader(context);
    const cImportEntryList rows = RowsToTest(context, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QList<cOwnRule> rules = cRuleListModel(context.Book->Tools).Stored();
    const QList<int> places = book.Statements.FirstRules(rows, rules);
    QStringList objects;
    cCliTable table({{cText::Tr("Datum")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Empfänger"), eAlign::Left, 30},
                     {cText::Tr("Zweck"), eAlign::Left, 40},
                     {cText::Tr("Regel"), eAlign::Right},
                     {cText::Tr("Dann")}});
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const cImportEntry& row = rows.at(i);
        const int place = places.at(i);
        objects.append(modCliRecord::Row(row)
                           .Raw(u"Rule"_s, place < 0 ? u"null"_s : ToJson(rules.at(place), place).ToString())
                           .ToString());
        table.Add({modDate::ToText(row.ImportDate), book.AmountText(row.ImportValue),
                   modCutText::Name(row.ImportBeneficiary), modCutText::Purpose(row.ImportPurpose),
                   place < 0 ? QString() : QString::number(place + 1),
                   place < 0 ? QString() : modRuleText::Result(rules.at(place))});
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::RulesCommand()
{
    return {.Name = u"rules"_s,
            .Help = cText::Tr("zeigt die eigenen Regeln für Umsätze in ihrer Reihenfolge; die erste, die passt, gilt"),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::RulesAddCommand()
{
    return {
        .Name = u"rules add"_s,
        .Help = cText::Tr("legt eine Regel an; mindestens eine Bedingung und eine Angabe, was sie vorschlägt"),
        .Access = eCliAccess::Write,
        .Options = {{u"text"_s, u"TEXT"_s,
                     cText::Tr("Bedingung: Empfänger, Zweck oder Buchungstext enthält das; | trennt mehrere, * steht "
                               "für beliebige Zeichen")},
                    {u"counterparty"_s, u"NAME"_s, cText::Tr("Bedingung: Name oder Kontonummer des Empfängers")},
                    {u"kind"_s, u"ART"_s, cText::Tr("Bedingung: Einnahme oder Ausgabe")},
                    {u"account"_s, u"NAME"_s, cText::Tr("Bedingung: eigenes Konto")},
                    {u"category"_s, u"PFAD"_s, cText::Tr("Kategorie, die sie vorschlägt")},
                    {u"interval"_s, u"INTERVALL"_s, cText::Tr("Intervall, das sie vorschlägt")},
                    {u"description"_s, u"TEXT"_s, cText::Tr("Beschreibung, die sie vorschlägt")},
                    {u"from"_s, u"UMSATZ"_s,
                     cText::Tr("Bedingungen aus diesem Umsatz; die anderen Optionen gehen vor")}},
        .Run = Add};
}

cCliCommand modCliCommands::RulesDeleteCommand()
{
    return {.Name = u"rules delete"_s,
            .Arguments = u"NR"_s,
            .Help = cText::Tr("löscht eine Regel"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = {modCliFlow::Yes()},
            .Run = Delete};
}

cCliCommand modCliCommands::RulesMoveCommand()
{
    return {.Name = u"rules move"_s,
            .Arguments = u"NR ZIEL"_s,
            .Help = cText::Tr("setzt eine Regel an eine andere Stelle der Reihenfolge"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Move};
}

cCliCommand modCliCommands::RulesSwitchCommand()
{
    return {.Name = u"rules switch"_s,
            .Arguments = u"NR on|off"_s,
            .Help = cText::Tr("schaltet eine Regel ein oder aus"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Switch};
}

cCliCommand modCliCommands::RulesTestCommand()
{
    return {
        .Name = u"rules test"_s,
        .Arguments = u"UMSATZ|DATEI"_s,
        .Help = cText::Tr("zeigt, welche Regel für einen Umsatz oder für die Umsätze einer Datei gilt"),
        .MinArguments = 1,
        .MaxArguments = 1,
        .Options = {{u"account"_s, u"NUMMER"_s, cText::Tr("eigene Kontonummer für Auszüge, die keine nennen")}, Json()},
        .Run = Test};
}
