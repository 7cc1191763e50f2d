#include "app/cli/cCliBook.h"
#include "app/cli/cConsoleUser.h"
#include "app/cli/cJsonObject.h"
#include "app/cli/modCliCommands.h"
#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "import/cStatementImport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString ToJson(const cImportResult& result)
{
    QStringList problems;
    for (const cReadProblem& problem : result.Problems) {
        problems.append(cJsonObject().Number(u"line"_s, problem.Line).Text(u"text"_s, problem.Text).ToString());
    }
    cJsonObject json;
    json.Text(u"file"_s, result.File)
        .Text(u"format"_s, result.Format)
        .Number(u"read"_s, result.Read)
        .Number(u"staged"_s, result.Staged)
        .Number(u"duplicates"_s, result.Duplicates.size())
        .Number(u"zero"_s, result.Zero)
        .Number(u"failed"_s, result.Failed)
        .Raw(u"closingBalance"_s, result.ClosingBalance ? modAmount::CentsToText(*result.ClosingBalance) : u"null"_s)
        .Raw(u"problems"_s, u'[' + problems.join(u", "_s) + u']')
        .Text(u"message"_s, result.Message);
    return json.ToString();
}

QString Summary(const cImportResult& result, const cCliBook& book)
{
    QString text =
        cText::Tr("{0}: {1}, {2} Umsätze gelesen, {3} neu",
                  {result.File, result.Format, QString::number(result.Read), QString::number(result.Staged)});
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

void Print(const cImportResult& result, const cCliBook& book)
{
    if (!result.IsRefused) {
        modConsole::Out(Summary(result, book) + u'\n');
    }
    for (const cImportEntry& row : result.Duplicates) {
        modConsole::Out(cText::Tr("  schon vorhanden: {0}  {1}  {2}",
                                  {modDate::ToGerman(row.ImportDate),
                                   book.AmountText(modAmount::ToCents(row.ImportValue)), row.ImportBeneficiary})
                        + u'\n');
    }
    for (const cReadProblem& problem : result.Problems) {
        modConsole::Error(problem.Line > 0
                              ? cText::Tr("  Zeile {0}: {1}", {QString::number(problem.Line), problem.Text})
                              : u"  "_s + problem.Text);
    }
}

// Numbers that the book does not know yet get an account, so that their rows can be booked.
bool AssignAccounts(const cCliContext& context, const QStringList& numbers)
{
    cCliBook& book = *context.Book;
    const QStringList unknown = book.Accounts.Unknown(numbers);
    for (const QString& number : unknown) {
        const QString wanted = context.Call.Value(u"book-account"_s);
        const QString account = wanted.isEmpty() ? book.Accounts.Proposal(number) : wanted;
        if (!book.Accounts.Assign(number, account)) {
            modConsole::Error(cText::Tr("Der Kontonummer '{0}' konnte kein Konto zugeordnet werden.", {number}));
            return false;
        }
        modConsole::Error(cText::Tr("Die Kontonummer '{0}' gehört nun zum Konto '{1}'.", {number, account}));
    }
    return true;
}

int Run(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cStatementImport reader(book.Data, book.Hive);
    const cImportOptions options{context.Call.Has(u"keep-duplicates"_s) ? eDuplicateTest::Skip : eDuplicateTest::Test,
                                 context.Call.Value(u"account"_s)};
    cNoProgress progress;
    bool isDone = true;
    QStringList objects;
    for (const QString& file : context.Call.Arguments()) {
        const cImportResult result = reader.ImportFile(file, options, progress);
        isDone = isDone && !result.IsRefused && result.Failed == 0;
        isDone = AssignAccounts(context, result.Accounts) && isDone;
        objects.append(ToJson(result));
        if (!context.Call.Has(u"json"_s)) {
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

} // namespace

cCliCommand modCliCommands::ImportCommand()
{
    return {.Name = u"import"_s,
            .Arguments = u"DATEI..."_s,
            .Help = cText::Tr("liest Kontoauszüge ein; die Umsätze warten dann auf das Buchen"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Options = {{u"account"_s, u"NUMMER"_s, cText::Tr("eigene Kontonummer für Auszüge, die keine nennen")},
                        {u"book-account"_s, u"NAME"_s, cText::Tr("Konto im Haushaltsbuch für neue Kontonummern")},
                        {u"keep-duplicates"_s, {}, cText::Tr("auch Umsätze übernehmen, die schon vorhanden sind")},
                        Json()},
            .Run = Run};
}
