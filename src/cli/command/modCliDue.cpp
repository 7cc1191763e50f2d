#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliEntryList.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "model/modBalance.h"
#include "views/entry/cContracts.h"
#include "views/overview/cDueItems.h"
#include "views/overview/modOverview.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostDays = 366;

void PrintSum(const cCliBook& book, const cEntryItemList& due)
{
    qint64 sum = 0;
    for (const cEntryItem& item : due) {
        sum += modBalance::Effect(item, {});
    }
    modConsole::Out(cText::Tr("Summe: {0}", {book.AmountText(sum)}) + u'\n');
}

int RunDue(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    bool isNumber = true;
    const int days = call.Has(u"days"_s) ? call.Value(u"days"_s).toInt(&isNumber) : modOverview::DueDays;
    if (!isNumber || days < 1 || days > mostDays) {
        reader.Misused(cText::Tr("Möglich sind 1 bis {0} Tage.", {QString::number(mostDays)}));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    if (call.Has(u"contracts"_s)) {
        modCliEntryList::Print(context, cContracts(context.Book->Tools).Ahead(days));
        return modExit::Done;
    }
    const cEntryItemList due = cDueItems(context.Book->Tools).Within(days);
    modCliEntryList::Print(context, due);
    if (call.Has(u"json"_s) || call.Has(u"csv"_s)) {
        return modExit::Done;
    }
    PrintSum(*context.Book, due);
    const QStringList contracts = cContracts(context.Book->Tools).Lines();
    for (const QString& contract : contracts) {
        modConsole::Out(contract + u'\n');
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::DueCommand()
{
    return {.Name = u"due"_s,
            .Help = cText::Tr(
                "zeigt, was in den nächsten Tagen fällig wird, und welche Verträge in 30 Tagen zu kündigen sind"),
            .Options = {{u"days"_s, u"ZAHL"_s, cText::Tr("so viele Tage weit, heute eingeschlossen; ohne Angabe 14")},
                        {u"contracts"_s, {}, cText::Tr("nur die Serien, die in diesen Tagen zu kündigen sind")},
                        Json(),
                        {u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")}},
            .Run = RunDue};
}
