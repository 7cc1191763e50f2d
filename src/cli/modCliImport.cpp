#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "cli/cCliBook.h"
#include "cli/cCliReader.h"
#include "cli/cConsoleUser.h"
#include "cli/cJsonObject.h"
#include "cli/modCliCommands.h"
#include "cli/modCliRecord.h"
#include "cli/modCliTableChoice.h"
#include "import/read/cStatementSource.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementFile.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cStatementImport.h"
#include "import/table/cTableMemory.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownRows = 100; // of a trial; --json has them all

QString KindName(eSkipped kind)
{
    switch (kind) {
    case eSkipped::Pending: return u"pending"_s;
    case eSkipped::Balance: return u"balance"_s;
    case eSkipped::Unreadable: return u"unreadable"_s;
    case eSkipped::OtherCurrency: return u"otherCurrency"_s;
    }
    return {};
}

QString ToJson(const cSkippedRow& row)
{
    cJsonObject json;
    json.Number(u"line"_s, row.Reason.Line)
        .Text(u"kind"_s, KindName(row.Kind))
        .Text(u"text"_s, row.Reason.Text)
        .Date(u"date"_s, row.Entry.ImportDate)
        .Amount(u"amount"_s, row.Entry.ImportValue)
        .Text(u"beneficiary"_s, row.Entry.ImportBeneficiary)
        .Text(u"purpose"_s, row.Entry.ImportPurpose);
    return json.ToString();
}

QString ToJson(const cImportResult& result, eStagingRun run)
{
    QStringList skipped;
    for (const cSkippedRow& row : result.Skipped) {
        skipped.append(ToJson(row));
    }
    QStringList problems;
    for (const cReadProblem& problem : result.Problems) {
        problems.append(cJsonObject().Number(u"line"_s, problem.Line).Text(u"text"_s, problem.Text).ToString());
    }
    cJsonObject json;
    json.Text(u"file"_s, result.File)
        .Text(u"format"_s, result.Format)
        .Text(u"layout"_s, result.Layout)
        .Number(u"read"_s, result.Read)
        .Number(u"staged"_s, result.Staged)
        .Number(u"duplicates"_s, result.Duplicates.size())
        .Number(u"zero"_s, result.Zero)
        .Number(u"failed"_s, result.Failed)
        .Raw(u"closingBalance"_s, result.ClosingBalance ? modAmount::CentsToText(*result.ClosingBalance) : u"null"_s)
        .Raw(u"problems"_s, u'[' + problems.join(u", "_s) + u']')
        .Raw(u"skipped"_s, u'[' + skipped.join(u", "_s) + u']')
        .Text(u"message"_s, result.Message);
    if (run == eStagingRun::Try) {
        QStringList rows;
        for (const cImportEntry& row : result.Rows) {
            rows.append(modCliRecord::Row(row).ToString());
        }
        json.Raw(u"rows"_s, modJson::Array(rows));
    }
    return json.ToString();
}

QString Summary(const cImportResult& result, const cCliBook& book)
{
    const QStringList values{result.File,
                             result.Layout.isEmpty() ? result.Format : result.Format + u" – "_s + result.Layout,
                             QString::number(result.Read), QString::number(result.Staged)};
    QString text = result.Read == 1 ? cText::Tr("{0}: {1}, 1 Umsatz gelesen, {3} neu", values)
                                    : cText::Tr("{0}: {1}, {2} Umsätze gelesen, {3} neu", values);
    if (!result.Duplicates.isEmpty()) {
        text += cText::Tr(", {0} schon vorhanden", {QString::number(result.Duplicates.size())});
    }
    if (result.Zero > 0) {
        text += cText::Tr(", {0} ohne Betrag", {QString::number(result.Zero)});
    }
    if (result.Failed > 0) {
        text += cText::Tr(", {0} nicht gespeichert", {QString::number(result.Failed)});
    }
    return text
        + (result.ClosingBalance ? cText::Tr(", Endsaldo {0}", {book.AmountText(*result.ClosingBalance)}) : QString());
}

QString RowText(const cImportEntry& row, const cCliBook& book)
{
    return modDate::ToGerman(row.ImportDate) + u"  "_s + book.AmountText(row.ImportValue) + u"  "_s
        + (row.ImportBeneficiary.isEmpty() ? row.ImportPurpose : row.ImportBeneficiary);
}

void Print(const cReadProblem& problem)
{
    modConsole::Error(problem.Line > 0 ? cText::Tr("  Zeile {0}: {1}", {QString::number(problem.Line), problem.Text})
                                       : u"  "_s + problem.Text);
}

void Print(const cImportResult& result, const cCliBook& book)
{
    QString text = result.IsRefused ? QString() : Summary(result, book) + u'\n';
    for (const cImportEntry& row : result.Rows.first(qMin(result.Rows.size(), shownRows))) {
        text += cText::Tr("  neu: {0}", {RowText(row, book)}) + u'\n';
    }
    if (result.Rows.size() > shownRows) {
        text += cText::Tr("  … und {0} weitere", {QString::number(result.Rows.size() - shownRows)}) + u'\n';
    }
    for (const cImportEntry& row : result.Duplicates) {
        text += cText::Tr("  schon vorhanden: {0}", {RowText(row, book)}) + u'\n';
    }
    modConsole::Out(text);
    for (const cReadProblem& problem : result.Problems) {
        Print(problem);
    }
    for (const cSkippedRow& row : result.Skipped) {
        Print(row.Reason);
    }
}

// Numbers that the book does not know yet get an account, so that their rows can be booked; one of their own where no
// account is free.
bool AssignAccounts(const cCliContext& context, const QStringList& numbers)
{
    cCliBook& book = *context.Book;
    const QStringList unknown = book.Accounts.Unknown(numbers);
    for (const QString& number : unknown) {
        const QString wanted = context.Call.Value(u"book-account"_s);
        const QString proposal = book.Accounts.Proposal(number);
        const QString account = !wanted.isEmpty() ? wanted : proposal.isEmpty() ? number : proposal;
        if (!book.Accounts.Assign(number, account)) {
            modConsole::Error(cText::Tr("Der Kontonummer '{0}' konnte kein Konto zugeordnet werden.", {number}));
            return false;
        }
        modConsole::Error(cText::Tr("Die Kontonummer '{0}' gehört nun zum Konto '{1}'.", {number, account}));
    }
    return true;
}

// The number that was given for files that name no account is remembered for the next one of the same layout.
void RememberAccount(const cImportResult& result, const QString& number, cTableMemory& memory)
{
    const bool isUsed = std::any_of(result.Accounts.begin(), result.Accounts.end(), [&](const QString& account) {
        return modAccountNumber::IsSame(account, {}, number);
    });
    if (isUsed && !number.isEmpty() && !result.AccountKey.isEmpty()) {
        memory.SaveAccount(result.AccountKey, number);
    }
}

// What a file leaves behind beside its rows. False when the book refuses.
bool Settle(const cCliContext& context, const cImportResult& result, const cImportOptions& options,
            cTableMemory& memory)
{
    if (options.Run == eStagingRun::Try) {
        return true;
    }
    RememberAccount(result, options.DefaultAccount, memory);
    return AssignAccounts(context, result.Accounts);
}

// With --remember the layout of a table is read the same way next time. False when it cannot be remembered.
bool RememberLayout(const cCliContext& context, const QString& file, const cImportOptions& options,
                    cTableMemory& memory)
{
    if (!context.Call.Has(u"remember"_s) || options.Run == eStagingRun::Try) {
        return true;
    }
    const cStatementSource source =
        modStatementFormat::Source(file, modStatementFile::Read(file).Bytes, options.Table.Charset);
    const eStatementFormat format = modStatementFormat::Detect(source);
    const cReadOptions read{options.DefaultAccount, options.MissingPurpose, options.Table, &memory};
    const cTableLayout layout = format == eStatementFormat::Csv ? modTable::Open(source, read).Layout
        : format == eStatementFormat::Spreadsheet               ? modSpreadsheet::Open(source, read).Layout
                                                                : cTableLayout();
    if (layout.IsReadable() && modTable::Remember(source, options.Table, layout, memory)) {
        return true;
    }
    modConsole::Error(cText::Tr("{0}: Der Aufbau kann nicht gemerkt werden. Das geht nur bei Tabellen mit einer Zeile "
                                "für die Spaltennamen.",
                                {file}));
    return false;
}

int ImportFiles(const cCliContext& context, const cImportOptions& options)
{
    cCliBook& book = *context.Book;
    cTableMemory memory(book.Settings());
    cBankBalances balances(book.Settings());
    cStatementImport reader(book.Data, book.Hive, &memory, &balances);
    cNoProgress progress;
    bool isDone = true;
    QStringList objects;
    for (const QString& file : context.Call.Arguments()) {
        const cImportResult result = reader.ImportFile(file, options, progress);
        isDone = isDone && !result.IsRefused && result.Failed == 0;
        isDone = Settle(context, result, options, memory) && isDone;
        isDone = (result.IsRefused || RememberLayout(context, file, options, memory)) && isDone;
        if (context.Call.Has(u"json"_s)) {
            objects.append(ToJson(result, options.Run));
        } else {
            Print(result, book);
        }
        if (!result.Message.isEmpty()) {
            modConsole::Error(file + u": "_s + result.Message);
        }
    }
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(modJson::Array(objects) + u'\n');
    }
    return isDone ? modExit::Done : modExit::Failed;
}

int Run(const cCliContext& context)
{
    cCliReader reader(context);
    cImportOptions options;
    options.Duplicates = context.Call.Has(u"keep-duplicates"_s) ? eDuplicateTest::Skip : eDuplicateTest::Test;
    options.DefaultAccount = context.Call.Value(u"account"_s);
    options.MissingPurpose = eMissingPurpose::Name; // a row without any text could not be recognised later
    options.Table = modCliTableChoice::Read(context.Call, reader);
    options.Run = context.Call.Has(u"dry-run"_s) ? eStagingRun::Try : eStagingRun::Write;
    return reader.IsGood() ? ImportFiles(context, options) : reader.Report();
}

} // namespace

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
                    {u"remember"_s,
                     {},
                     cText::Tr("Spalten und Aufbau für die nächste Tabelle mit denselben Spaltennamen merken")},
                    {u"dry-run"_s, {}, cText::Tr("nur lesen und zeigen, was neu wäre")}}
                + modCliTableChoice::Options() + QList<cCliOption>{Json()},
            .Run = Run};
}
