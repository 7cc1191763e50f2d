#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cCliTrash.h"
#include "cli/console/cJsonObject.h"
#include "model/modPaperDay.h"
#include "views/ledger/cStatementListModel.h"
#include "views/receipt/cReceiptFolder.h"
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

QStringList NumbersMeant(cCliReader& reader, const cCliContext& context)
{
    const cStatementListModel statement(context.Book->Tools);
    return modCliCommands::PaperNumbers(reader, statement, context.Call.Value(u"account"_s));
}

QString PaperJson(const QString& number, const cReceiptFolder::cFile& file)
{
    const QDate day = modPaperDay::Read(file.Name);
    cJsonObject json;
    json.Text(u"Number"_s, number).Text(u"Month"_s, modPaperDay::OfMonth(day));
    if (day.isValid() && !modPaperDay::IsMonthOnly(file.Name)) {
        json.Date(u"Date"_s, day);
    }
    return json.Text(u"Paper"_s, file.Name)
        .Text(u"Path"_s, file.Path)
        .Truth(u"IsMissing"_s, !file.IsThere())
        .Number(u"Bytes"_s, qMax<qint64>(0, file.Size))
        .ToString();
}

int ListPapers(const cCliContext& context)
{
    cCliReader reader(context);
    const QStringList numbers = NumbersMeant(reader, context);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliTable table(
        {{cText::Tr("Kontonummer")}, {cText::Tr("Monat")}, {cText::Tr("Datei")}, {cText::Tr("Bytes"), eAlign::Right}});
    QStringList objects;
    for (const QString& number : numbers) {
        const QList<cReceiptHolder::cItem> items = cStatementPapers(context.Book->Tools, number).Items();
        for (const cReceiptHolder::cItem& item : items) {
            objects.append(PaperJson(number, item.File));
            table.Add({number, item.Text, item.File.Name,
                       item.File.IsThere() ? QString::number(item.File.Size) : cText::Tr("fehlt")});
        }
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
    return modExit::Done;
}

int AddPapers(const cCliContext& context)
{
    cCliReader reader(context);
    const QString number =
        modCliCommands::OneNumber(reader, NumbersMeant(reader, context), context.Call.Value(u"account"_s));
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
    const QString account = context.Call.Value(u"account"_s);
    const QString name = context.Call.Arguments().constFirst();
    QStringList numbers = NumbersMeant(reader, context);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    numbers.removeIf(
        [&](const QString& number) { return !cStatementPapers(context.Book->Tools, number).Names().contains(name); });
    if (numbers.isEmpty()) {
        modConsole::Error(account.isEmpty() ? cText::Tr("Kein Konto hat einen PDF-Auszug '{0}'.", {name})
                                            : cText::Tr("Das Konto {0} hat keinen PDF-Auszug '{1}'.", {account, name}));
        return modExit::Failed;
    }
    const QString number = modCliCommands::OneNumber(reader, numbers, account);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliTrash trash;
    cReceiptListModel papers(context.Book->Tools, trash,
                             std::make_unique<cStatementPapers>(context.Book->Tools, number));
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird er entfernt.")));
    papers.Remove(papers.RowOf(name));
    return modCliFlow::Finish(context, papers.RowOf(name) < 0);
}

} // namespace

cCliCommand modCliCommands::StatementPapersCommand()
{
    return {.Name = u"statement papers"_s,
            .Help = cText::Tr("listet die PDF-Auszüge eines Bankkontos oder aller, die neuesten zuerst"),
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
