#include "base/cText.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/bank/cBankDirectory.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestList = 40; // more than that nobody reads on a terminal; a script gets everything

QString ToJson(const cBankInfo& bank)
{
    return cJsonObject()
        .Text(u"Code"_s, bank.Code)
        .Text(u"Bic"_s, bank.Bic)
        .Text(u"Name"_s, bank.Name)
        .Text(u"City"_s, bank.City)
        .Text(u"Url"_s, bank.Url)
        .ToString();
}

void PrintJson(const cBankMatches& answer)
{
    QStringList objects;
    std::transform(answer.Banks.begin(), answer.Banks.end(), std::back_inserter(objects), ToJson);
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void Print(const cBankMatches& answer)
{
    cCliTable table({{cText::Tr("BLZ")},
                     {cText::Tr("BIC")},
                     {cText::Tr("Bank"), eAlign::Left, 60},
                     {cText::Tr("Ort"), eAlign::Left, 30},
                     {cText::Tr("Adresse")}});
    for (const cBankInfo& bank : answer.Banks) {
        table.Add({bank.Code, bank.Bic, bank.Name, bank.City,
                   bank.Url.isEmpty() ? cText::Tr("keine Adresse bekannt") : bank.Url});
    }
    modConsole::Out(table.ToString());
    if (const qsizetype more = answer.Found - answer.Banks.size(); more > 0) {
        const QString text = more == 1
            ? cText::Tr("Eine weitere passt auch. Suchen Sie genauer, zum Beispiel mit der Bankleitzahl.")
            : cText::Tr("Weitere {0} passen auch. Suchen Sie genauer, zum Beispiel mit der Bankleitzahl.",
                        {QString::number(more)});
        modConsole::Out(text + u'\n');
    }
}

int RunBankSearch(const cCliContext& context)
{
    const bool isJson = context.Call.Has(u"json"_s);
    const cBankDirectory directory(context.Shell);
    const cBankMatches answer =
        directory.Search(context.Call.Arguments().join(u' '), isJson ? modCliCommands::Any : longestList);
    if (isJson) {
        PrintJson(answer);
    } else if (!answer.Banks.isEmpty()) {
        Print(answer);
    }
    if (answer.Banks.isEmpty()) {
        modConsole::Error(answer.Problem);
        return modExit::Failed;
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::BankSearchCommand()
{
    return {.Name = u"bank-search"_s,
            .Arguments = u"TEXT..."_s,
            .Help = cText::Tr("sucht eine Bank nach Name, Ort, Bankleitzahl, BIC oder IBAN und zeigt die Adresse für "
                              "das Online-Banking"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::None,
            .Options = {Json()},
            .Run = RunBankSearch};
}
