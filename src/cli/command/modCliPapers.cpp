#include "base/cText.h"
#include "base/modDate.h"
#include "cli/cCliBook.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliReader.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cCliTrash.h"
#include "cli/console/cJsonObject.h"
#include "cli/modCliCommands.h"
#include "model/modPaperDay.h"
#include "views/ledger/cStatementListModel.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cStatementPapers.h"

#include <limits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

cCliOption AccountOption()
{
    return {u"account"_s, u"NUMMER"_s, cText::Tr("Kontonummer, IBAN oder Konto des Buchs")};
}

// The account number that is meant.
QString NumberMeant(cCliReader& reader, const cCliContext& context)
{
    const cStatementListModel statement(context.Book->Tools);
    return modCliCommands::PaperNumber(reader, statement, context.Call.Value(u"account"_s));
}

int ListPapers(const cCliContext& context)
{
    cCliReader reader(context);
    const QString number = NumberMeant(reader, context);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliTable table({{cText::Tr("Monat")}, {cText::Tr("Datei")}, {cText::Tr("Bytes"), eAlign::Right}});
    QStringList objects;
    const QList<cReceiptHolder::cItem> items = cStatementPapers(context.Book->Tools, number).Items();
    for (const cReceiptHolder::cItem& item : items) {
        const QDate day = modPaperDay::Read(item.File.Name);
        cJsonObject json;
        json.Text(u"Number"_s, number).Text(u"Month"_s, modPaperDay::OfMonth(day));
        if (day.isValid() && !modPaperDay::IsMonthOnly(item.File.Name)) {
            json.Date(u"Date"_s, day);
        }
        objects.append(json.Text(u"Paper"_s, item.File.Name)
                           .Text(u"Path"_s, item.File.Path)
                           .Truth(u"IsMissing"_s, !item.File.IsThere())
                           .Number(u"Bytes"_s, qMax<qint64>(0, item.File.Size))
                           .ToString());
        table.Add(
            {item.Text, item.File.Name, item.File.IsThere() ? QString::number(item.File.Size) : cText::Tr("fehlt")});
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
    return modExit::Done;
}

int AddPapers(const cCliContext& context)
{
    cCliReader reader(context);
    const QString number = NumberMeant(reader, context);
    const QString month = context.Call.Value(u"month"_s);
    const QString day = modPaperDay::Find(month);
    if (!month.isEmpty() && day.isEmpty()) {
        reader.Misused(cText::Tr("'{0}' ist kein Monat. Schreiben Sie ihn als 2026-03 oder 03.2026.", {month}));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare({.Hint = cText::Tr("Mit --month 2026-03 sagen Sie den Monat.")});
    cStatementPapers papers(context.Book->Tools, number);
    papers.SetDay(day);
    return modCliFlow::Finish(context, papers.Add(cReceiptFolder::Sources(context.Call.Arguments())));
}

int RemovePaper(const cCliContext& context)
{
    cCliReader reader(context);
    const QString number = NumberMeant(reader, context);
    const QString name = context.Call.Arguments().constFirst();
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliTrash trash;
    cReceiptListModel papers(context.Book->Tools, trash,
                             std::make_unique<cStatementPapers>(context.Book->Tools, number));
    const int row = papers.RowOf(name);
    if (row < 0) {
        modConsole::Error(cText::Tr("Das Konto {0} hat keinen PDF-Auszug '{1}'.", {number, name}));
        return modExit::Failed;
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird er entfernt.")));
    papers.Remove(row);
    return modCliFlow::Finish(context, papers.RowOf(name) < 0);
}

} // namespace

cCliCommand modCliCommands::StatementPapersCommand()
{
    return {.Name = u"statement papers"_s,
            .Help = cText::Tr("listet die PDF-Auszüge eines Bankkontos, die neuesten zuerst"),
            .Options = {AccountOption(), Json()},
            .Run = ListPapers};
}

cCliCommand modCliCommands::StatementAddPaperCommand()
{
    return {.Name = u"statement add-paper"_s,
            .Arguments = u"DATEI…"_s,
            .Help = cText::Tr("kopiert PDF-Auszüge der Bank in den Ordner \"Belege\" neben der Datenbank und hängt sie "
                              "an das Bankkonto"),
            .MinArguments = 1,
            .MaxArguments = std::numeric_limits<int>::max(),
            .Access = eCliAccess::Write,
            .Options = {AccountOption(),
                        {u"month"_s, u"MONAT"_s,
                         cText::Tr("Monat des Auszugs, als 2026-03 oder 03.2026; sonst sagt ihn der Name der Datei")}},
            .Run = AddPapers};
}

cCliCommand modCliCommands::StatementRemovePaperCommand()
{
    return {.Name = u"statement remove-paper"_s,
            .Arguments = u"NAME"_s,
            .Help = cText::Tr("nimmt einen PDF-Auszug vom Bankkonto; die Datei kommt in den Papierkorb, wenn sie sonst "
                              "nirgends hängt"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = {AccountOption(), modCliFlow::Yes()},
            .Run = RemovePaper};
}
