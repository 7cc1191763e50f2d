#include "base/cText.h"
#include "base/modAmount.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliTableChoice.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "cli/console/modCliRecord.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cFileReport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownRows = 100; // of a trial; --json has them all

QString ToJson(const cFileReport::cLeftOut& row)
{
    cJsonObject json;
    json.Number(u"line"_s, row.Reason.Number)
        .Text(u"kind"_s, row.Kind)
        .Text(u"text"_s, row.Reason.Text)
        .Date(u"date"_s, row.Entry.ImportDate)
        .Amount(u"amount"_s, row.Entry.ImportValue)
        .Text(u"beneficiary"_s, row.Entry.ImportBeneficiary)
        .Text(u"purpose"_s, row.Entry.ImportPurpose);
    return json.ToString();
}

QString ToJson(const cFileReport& report, bool isTrial)
{
    QStringList skipped;
    for (const cFileReport::cLeftOut& row : report.Skipped) {
        skipped.append(ToJson(row));
    }
    QStringList problems;
    for (const cFileReport::cLine& problem : report.Problems) {
        problems.append(cJsonObject().Number(u"line"_s, problem.Number).Text(u"text"_s, problem.Text).ToString());
    }
    cJsonObject json;
    json.Text(u"file"_s, report.File)
        .Text(u"format"_s, report.Format)
        .Text(u"layout"_s, report.Layout)
        .Number(u"read"_s, report.Read)
        .Number(u"staged"_s, report.Staged)
        .Number(u"duplicates"_s, report.Duplicates.size())
        .Number(u"repeats"_s, report.Repeats.size())
        .Number(u"zero"_s, report.Zero)
        .Number(u"failed"_s, report.Failed)
        .Raw(u"closingBalance"_s, report.ClosingBalance ? modAmount::CentsToText(*report.ClosingBalance) : u"null"_s)
        .Raw(u"problems"_s, u'[' + problems.join(u", "_s) + u']')
        .Raw(u"skipped"_s, u'[' + skipped.join(u", "_s) + u']')
        .Text(u"message"_s, report.Message);
    if (isTrial) {
        QStringList rows;
        for (const cImportEntry& row : report.Rows) {
            rows.append(modCliRecord::Row(row).ToString());
        }
        json.Raw(u"rows"_s, modJson::Array(rows));
    }
    return json.ToString();
}

QString Summary(const cFileReport& report)
{
    const QString format = report.Layout.isEmpty() ? report.Format : report.Format + u" – "_s + report.Layout;
    return cText::Tr("{0}: {1}, {2}", {report.File, format, report.Numbers});
}

void Print(const cFileReport& report, const cCliBook& book)
{
    QString text = report.IsRefused ? QString() : Summary(report) + u'\n';
    for (const cImportEntry& row : report.Rows.first(qMin(report.Rows.size(), shownRows))) {
        text += cText::Tr("  neu: {0}", {modImportText::Row(row, book.Format())}) + u'\n';
    }
    if (report.Rows.size() > shownRows) {
        text += cText::Tr("  … und {0} weitere", {QString::number(report.Rows.size() - shownRows)}) + u'\n';
    }
    for (const cImportEntry& row : report.Duplicates) {
        text += cText::Tr("  schon vorhanden: {0}", {modImportText::Row(row, book.Format())}) + u'\n';
    }
    for (const cImportEntry& row : report.Repeats) {
        text += cText::Tr("  mehrfach gleich: {0}", {modImportText::Row(row, book.Format())}) + u'\n';
    }
    modConsole::Out(text);
    for (const cFileReport::cLine& problem : report.Problems) {
        modConsole::Error(u"  "_s + problem.Shown);
    }
    for (const cFileReport::cLeftOut& row : report.Skipped) {
        modConsole::Error(u"  "_s + row.Reason.Shown);
    }
}

// Brings the rows that have come since `before` into the book as far as that is safe, and says what is left.
int BookNew(const cCliContext& context, const QList<int>& before)
{
    cStatementDesk& desk = context.Book->Statements;
    QList<int> rows = desk.OpenIds();
    rows.removeIf([&](int id) { return before.contains(id); });
    if (rows.isEmpty()) {
        return modExit::Done;
    }
    context.User.Prepare(modCliFlow::SafeAnswers());
    return modCliFlow::ReportBooked(context, desk.Accept(rows));
}

int ImportFiles(const cCliContext& context, const cFileWish& wish)
{
    cCliBook& book = *context.Book;
    const QList<int> before = book.Statements.OpenIds();
    book.File().CopyIfChanged(); // not for a trial, which can only read
    const cFilesReport imported = book.Statements.ImportFiles(context.Call.Arguments(), wish);
    for (const QString& note : imported.Notes) {
        modConsole::Error(note);
    }
    QStringList objects;
    for (const cFileReport& report : imported.Files) {
        if (context.Call.Has(u"json"_s)) {
            objects.append(ToJson(report, wish.IsTrial));
        } else {
            Print(report, book);
        }
        if (!report.Repeats.isEmpty()) {
            modConsole::Error(modCliCommands::EqualRows(report.Repeats.size()));
        }
        if (!report.Message.isEmpty()) {
            modConsole::Error(report.File + u": "_s + report.Message);
        }
        if (report.HasStrayDetails) {
            modConsole::Error(cText::Tr("Mit --skip-stray-details wird die Datei ohne diese Zeilen gelesen."));
        }
        if (report.HasOtherCurrency) {
            modConsole::Error(modCliCommands::CurrencyHint());
        }
    }
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(modJson::Array(objects) + u'\n');
    }
    const int booked = context.Call.Has(u"book"_s) && !wish.IsTrial ? BookNew(context, before) : int{modExit::Done};
    return imported.IsDone ? booked : modExit::Failed;
}

int RunImport(const cCliContext& context)
{
    cCliReader reader(context);
    cFileWish wish = modCliTableChoice::Read(context.Call, reader);
    wish.BookAccount = context.Call.Value(u"book-account"_s);
    wish.KeepsDuplicates = context.Call.Has(u"keep-duplicates"_s);
    wish.KeepsStart = context.Call.Has(u"keep-start"_s);
    wish.TakesEqual = context.Call.Has(u"take-equal"_s);
    wish.TakesCurrency = context.Call.Has(u"take-currency"_s);
    wish.SkipsStrayDetails = context.Call.Has(u"skip-stray-details"_s);
    wish.Remembers = context.Call.Has(u"remember"_s);
    wish.IsTrial = context.Call.Has(u"dry-run"_s);
    return reader.IsGood() ? ImportFiles(context, wish) : reader.Report();
}

} // namespace

cCliOption modCliCommands::TakeEqual()
{
    return {
        u"take-equal"_s,
        {},
        cText::Tr(
            "auch Umsätze übernehmen, die im Auszug mehrmals gleich stehen und die kein Kontostand der Bank belegt")};
}

cCliOption modCliCommands::TakeCurrency()
{
    return {u"take-currency"_s,
            {},
            cText::Tr("auch Auszüge in einer anderen Währung als der des Buchs übernehmen, ohne umzurechnen")};
}

QString modCliCommands::CurrencyHint()
{
    return cText::Tr(
        "Mit --take-currency wird der Auszug trotzdem eingelesen, und dieses Konto künftig ohne Rückfrage.");
}

QString modCliCommands::EqualRows(qsizetype count)
{
    return count == 1
        ? cText::Tr(
            "Ein Umsatz steht im Auszug noch einmal gleich und wurde nicht übernommen, weil kein Kontostand der Bank "
            "ihn belegt. Mit --take-equal wird er übernommen.")
        : cText::Tr(
            "{0} Umsätze stehen im Auszug noch einmal gleich und wurden nicht übernommen, weil kein Kontostand der "
            "Bank sie belegt. Mit --take-equal werden sie übernommen.",
            {QString::number(count)});
}

cCliCommand modCliCommands::ImportCommand()
{
    return {.Name = u"import"_s,
            .Arguments = u"DATEI..."_s,
            .Help = cText::Tr("liest Kontoauszüge ein; die Umsätze warten dann auf das Buchen"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .ReadsWith = {u"dry-run"_s},
            .Options =
                QList<cCliOption>{
                    {u"account"_s, u"NUMMER"_s,
                     cText::Tr("eigene Kontonummer für Auszüge, die keine nennen; sie wird für "
                               "CSV-Dateien gleichen Aufbaus gemerkt")},
                    {u"book-account"_s, u"NAME"_s, cText::Tr("Konto im Haushaltsbuch für neue Kontonummern")},
                    {u"keep-duplicates"_s, {}, cText::Tr("auch Umsätze übernehmen, die schon vorhanden sind")},
                    TakeEqual(),
                    TakeCurrency(),
                    {u"skip-stray-details"_s,
                     {},
                     cText::Tr("MT940: Angaben (:86:) vor dem ersten Umsatz eines Auszugs übergehen, statt die Datei "
                               "abzulehnen")},
                    {u"book"_s, {}, cText::Tr("danach zuordnen und buchen, was im Buch steht oder sicher ist")},
                    {u"keep-start"_s, {}, cText::Tr("beim ersten Auszug eines Kontos kein Startguthaben eintragen")},
                    {u"remember"_s,
                     {},
                     cText::Tr("Spalten und Aufbau für die nächste Tabelle mit denselben Spaltennamen merken")},
                    {u"dry-run"_s, {}, cText::Tr("nur lesen und zeigen, was neu wäre")}}
                + modCliTableChoice::Options() + QList<cCliOption>{Json()},
            .Run = RunImport};
}
