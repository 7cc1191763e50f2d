#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "cli/console/modCliRecord.h"
#include "views/ledger/cReconcileListModel.h"
#include "views/ledger/cStatementListModel.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString ToJson(const cReconcileItem& item)
{
    cJsonObject json;
    json.Text(u"Kind"_s, cReconciliation::KindName(item)).Number(u"Row"_s, item.RowId).Number(u"Entry"_s, item.EntryId);
    if (item.BankDay.isValid()) {
        json.Date(u"BankDate"_s, item.BankDay).Amount(u"Bank"_s, item.BankCents);
    }
    if (item.BookDay.isValid()) {
        json.Date(u"BookDate"_s, item.BookDay).Amount(u"Book"_s, item.BookCents);
    }
    return json.Text(u"Text"_s, item.Text).ToString();
}

void PrintJson(const cReconciliation& found)
{
    QStringList items;
    for (const cReconcileItem& item : found.Items()) {
        items.append(ToJson(item));
    }
    cJsonObject json;
    json.Text(u"Number"_s, found.Number()).Text(u"Account"_s, found.Account()).Date(u"Until"_s, found.Until());
    if (found.Bank()) {
        json.Amount(u"Bank"_s, *found.Bank());
    }
    json.Amount(u"Book"_s, found.Book()).Truth(u"Agrees"_s, found.Agrees());
    modConsole::Out(json.Raw(u"Differences"_s, modJson::Array(items)).ToString() + u'\n');
}

void PrintTable(const cReconcileListModel& model)
{
    QList<cCliTable::cColumn> columns;
    for (int column = 0; column < cReconcileListModel::ColumnCount; ++column) {
        const bool isMoney = column == cReconcileListModel::BankAmount || column == cReconcileListModel::BookAmount;
        columns.append({model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                        isMoney ? eAlign::Right : eAlign::Left, 30});
    }
    cCliTable table(columns);
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < cReconcileListModel::ColumnCount; ++column) {
            cells.append(model.index(row, column).data().toString());
        }
        table.Add(cells);
    }
    const QString list = model.rowCount() > 0 ? table.ToString() + u'\n' : QString();
    const QString finding = model.Finding() + u' ' + model.Found().WayOut(u"match"_s);
    modConsole::Out(list + finding.trimmed() + u'\n');
}

// Everything that differs gets the bank's day and amount. What only one of the two has is booked and deleted by other
// commands.
bool TakeBank(cReconcileListModel& model)
{
    bool isDone = true;
    for (int row = 0; row < model.rowCount();) {
        const cReconcileItem::eKind kind = model.ItemAt(row)->Kind;
        const bool isCurable = kind == cReconcileItem::eKind::Differs || kind == cReconcileItem::eKind::Start;
        const int before = model.rowCount();
        isDone = (!isCurable || model.TakeBank(row)) && isDone;
        row += model.rowCount() < before ? 0 : 1;
    }
    return isDone;
}

bool Confirm(cReconcileListModel& model)
{
    if (!model.Found().Agrees()) {
        modConsole::Error(cText::Tr("Solange sich Bank und Buch unterscheiden, wird nichts vermerkt."));
        return false;
    }
    model.Confirm();
    return true;
}

int RunReconcile(const cCliContext& context)
{
    cCliReader reader(context);
    cStatementListModel statement(context.Book->Tools);
    const QString number = modCliCommands::StatementNumber(reader, statement, context.Call.Value(u"account"_s));
    const QDate until = reader.Day(context.Call.Value(u"to"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cReconcileListModel& model = statement.Differences();
    model.Show(number, until);
    bool isDone = !context.Call.Has(u"take-bank"_s) || TakeBank(model);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(model.Found());
    } else {
        PrintTable(model);
    }
    isDone = (!context.Call.Has(u"confirm"_s) || Confirm(model)) && isDone;
    return isDone ? modExit::Done : modExit::Failed;
}

} // namespace

cCliCommand modCliCommands::ReconcileCommand()
{
    return {
        .Name = u"reconcile"_s,
        .Help = cText::Tr("vergleicht ein Bankkonto Umsatz für Umsatz mit dem Buch"),
        .Access = eCliAccess::Write,
        .WritesWith = {u"take-bank"_s, u"confirm"_s},
        .Options = {{u"account"_s, u"NUMMER"_s, cText::Tr("Kontonummer, IBAN oder Konto des Buchs")},
                    {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag; sonst der des neuesten Kontostands der Bank")},
                    {u"take-bank"_s,
                     {},
                     cText::Tr("Einträgen mit anderem Tag oder Betrag beides von der Bank geben, und das Startguthaben "
                               "anpassen")},
                    {u"confirm"_s, {}, cText::Tr("vermerken, dass Bank und Buch bis dahin übereinstimmen")},
                    Json()},
        .Run = RunReconcile};
}
