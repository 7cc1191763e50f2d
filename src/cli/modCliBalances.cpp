#include "cli/modCliBalances.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "cli/cCliBook.h"
#include "cli/cCliTable.h"
#include "cli/cConsoleUser.h"
#include "cli/cJsonObject.h"
#include "model/modBalance.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The accounts of the book, then names that only entries have (of a renamed account, say): no money may be missing.
QList<cCliBalance> AllAccounts(cCliBook& book, const QList<cAccountSum>& sums)
{
    QList<cCliBalance> list;
    QStringList names;
    const cTemplateItemList accounts = book.Data.GetAccounts();
    for (const cTemplateItem& account : accounts) {
        list.append({account.TemplateCategory, account.TemplateName});
        names.append(account.TemplateName);
    }
    for (const cAccountSum& sum : sums) {
        for (const QString& name : {sum.EntryAccount, sum.EntryAccountMove}) {
            if (!name.isEmpty() && !names.contains(name)) {
                list.append({cText::Tr("Ohne Konto im Buch"), name});
                names.append(name);
            }
        }
    }
    return list;
}

void PrintJson(const QList<cCliBalance>& list)
{
    QStringList objects;
    for (const cCliBalance& balance : list) {
        cJsonObject json;
        json.Text(u"TemplateCategory"_s, balance.Group)
            .Text(u"TemplateName"_s, balance.Account)
            .Amount(u"Balance"_s, balance.Cents)
            .Number(u"Open"_s, balance.Open);
        objects.append(json.ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void Print(const cCliBook& book, const QList<cCliBalance>& list)
{
    cCliTable table({{cText::Tr("Gruppe")},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kontostand"), eAlign::Right},
                     {cText::Tr("Offene Umsätze"), eAlign::Right}});
    qint64 total = 0;
    int open = 0;
    for (const cCliBalance& balance : list) {
        table.Add({balance.Group, balance.Account, book.AmountText(balance.Cents), QString::number(balance.Open)});
        total += balance.Cents;
        open += balance.Open;
    }
    table.Add({cText::Tr("Summe"), {}, book.AmountText(total), QString::number(open)});
    modConsole::Out(table.ToString());
}

int Run(const cCliContext& context)
{
    const QList<cCliBalance> list = modCliBalances::Load(context);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(list);
    } else {
        Print(*context.Book, list);
    }
    return modExit::Done;
}

} // namespace

QList<cCliBalance> modCliBalances::Load(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cEntryQuery query;
    query.End = context.Clock.Today();
    const QList<cAccountSum> sums = book.Data.GetSums(query, true);
    QHash<QString, int> open;
    const QHash<QString, int> openByNumber = book.Data.CountOpenImports();
    for (auto count = openByNumber.begin(); count != openByNumber.end(); ++count) {
        open[book.Accounts.AccountOf(count.key())] += *count;
    }
    QList<cCliBalance> list = AllAccounts(book, sums);
    for (cCliBalance& balance : list) {
        balance.Open = open.value(balance.Account);
        for (const cAccountSum& sum : sums) {
            balance.Cents +=
                modBalance::Effect(sum.EntryType, sum.EntryAccount, sum.EntryAccountMove, sum.Cents, balance.Account);
        }
    }
    return list;
}

cCliCommand modCliCommands::BalancesCommand()
{
    return {
        .Name = u"balances"_s, .Help = cText::Tr("zeigt die Kontostände von heute"), .Options = {Json()}, .Run = Run};
}
