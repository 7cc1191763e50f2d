#include "base/cClock.h"
#include "base/cText.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/main/modAccountLines.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void PrintJson(const QList<cAccountLine>& accounts)
{
    QStringList objects;
    for (const cAccountLine& line : accounts) {
        cJsonObject json;
        json.Text(u"TemplateCategory"_s, line.Item.TemplateCategory)
            .Text(u"TemplateName"_s, line.Item.TemplateName)
            .Amount(u"Balance"_s, line.Cents)
            .Number(u"Open"_s, line.Open);
        objects.append(json.ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void Print(const cCliBook& book, const modAccountLines::cLines& lines)
{
    cCliTable table({{cText::Tr("Gruppe")},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kontostand"), eAlign::Right},
                     {cText::Tr("Offene Umsätze"), eAlign::Right}});
    for (const cAccountLine& line : lines.Accounts) {
        table.Add({line.Item.TemplateCategory, modAccountLines::ShownName(line.Item.TemplateName),
                   book.AmountText(line.Cents), QString::number(line.Open)});
    }
    table.Add({cText::Tr("Summe"), {}, book.AmountText(lines.Cents), QString::number(lines.Open)});
    modConsole::Out(table.ToString());
}

int RunBalances(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const modAccountLines::cLines lines = modAccountLines::Load(book.Data, book.Settings(), context.Clock.Today());
    if (context.Call.Has(u"json"_s)) {
        PrintJson(lines.Accounts);
    } else {
        Print(book, lines);
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::BalancesCommand()
{
    return {.Name = u"balances"_s,
            .Help = cText::Tr("zeigt die Kontostände von heute"),
            .Options = {Json()},
            .Run = RunBalances};
}
