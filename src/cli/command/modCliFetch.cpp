#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleBankUser.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/bank/cBankFetch.h"
#include "views/common/modFileWrite.h"
#include "views/statement/cStatementFiles.h"
#include "views/statement/cStatementWishes.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsNamed(const cBankFetch::cAccount& account, const QStringList& names)
{
    return names.isEmpty() || std::any_of(names.begin(), names.end(), [&](const QString& name) {
               return cCliReader::Compact(name) == cCliReader::Compact(account.Number)
                   || cCliReader::Compact(name) == account.Iban
                   || name.compare(account.BookAccount, Qt::CaseInsensitive) == 0;
           });
}

// The accounts that the options choose.
QList<qsizetype> Places(const cBankFetch& fetch, const cCliCall& call)
{
    QList<qsizetype> places;
    for (qsizetype place = 0; place < fetch.Accounts().size(); ++place) {
        const cBankFetch::cAccount& account = fetch.Accounts().at(place);
        const bool isOfBank = !call.Has(u"blz"_s) || call.Value(u"blz"_s) == account.BankCode;
        const bool isOfLogin = !call.Has(u"login"_s) || call.Value(u"login"_s) == account.UserId;
        if (isOfBank && isOfLogin && IsNamed(account, call.Values(u"account"_s))) {
            places.append(place);
        }
    }
    return places;
}

QString StateName(const cBankFetch::cLine& line)
{
    return line.State == cBankFetch::eState::Done ? u"done"_s : u"failed"_s;
}

QString ToJson(const cBankFetch::cAccount& account, const cBankFetch::cLine& line)
{
    QStringList notes;
    for (const QString& note : line.Notes) {
        notes.append(modJson::Quoted(note));
    }
    cJsonObject json;
    json.Text(u"bank"_s, account.Bank)
        .Text(u"bankCode"_s, account.BankCode)
        .Text(u"login"_s, account.UserId)
        .Text(u"number"_s, account.Number)
        .Text(u"iban"_s, account.Iban)
        .Text(u"account"_s, account.BookAccount)
        .Text(u"state"_s, StateName(line))
        .Date(u"from"_s, line.From)
        .Date(u"to"_s, line.To)
        .Number(u"new"_s, line.New)
        .Number(u"known"_s, line.Known)
        .Number(u"leftOut"_s, line.LeftOut)
        .Number(u"repeats"_s, line.Equal)
        .Raw(u"balance"_s, line.Balance ? modAmount::CentsToText(*line.Balance) : u"null"_s)
        .Text(u"message"_s, line.Failure.Text)
        .Text(u"bankWords"_s, line.Failure.BankWords)
        .Raw(u"notes"_s, modJson::Array(notes));
    return json.ToString();
}

void Print(const cBankFetch& fetch, const QList<qsizetype>& places)
{
    for (const qsizetype place : places) {
        const cBankFetch::cLine& line = fetch.Lines().at(place);
        if (line.State == cBankFetch::eState::Idle) {
            continue; // nothing was asked for; the user has been told why
        }
        const QString name = cText::Tr("{0}, {1}", {fetch.Accounts().at(place).Bank, fetch.Accounts().at(place).Name});
        modConsole::Out(cText::Tr("{0}: {1}", {name, line.Text}) + u'\n');
        for (const QString& note : line.Notes) {
            modConsole::Error(u"  "_s + note);
        }
        if (line.Failure.IsSet()) {
            QStringList words = line.Failure.BankWords.split(u'\n', Qt::SkipEmptyParts);
            if (line.Text != line.Failure.Text) {
                words.prepend(line.Failure.Text);
            }
            for (const QString& text : words) {
                modConsole::Error(u"  "_s + text);
            }
        }
    }
    if (const QString summary = fetch.Summary(); !summary.isEmpty()) {
        modConsole::Out(summary + u'\n');
    }
}

void Print(const cCliContext& context, const cBankFetch& fetch, const QList<qsizetype>& places)
{
    if (!context.Call.Has(u"json"_s)) {
        Print(fetch, places);
        return;
    }
    QStringList objects;
    for (const qsizetype place : places) {
        objects.append(ToJson(fetch.Accounts().at(place), fetch.Lines().at(place)));
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void SayEqual(const cCliContext& context, const cBankFetch& fetch, const QList<qsizetype>& places)
{
    const int equal = std::accumulate(places.begin(), places.end(), 0,
                                      [&](int sum, qsizetype place) { return sum + fetch.Lines().at(place).Equal; });
    if (equal > 0 && !context.Call.Has(u"take-equal"_s)) {
        modConsole::Error(modCliCommands::EqualRows(equal));
    }
}

void SayCurrency(const cBankFetch& fetch)
{
    const auto hasOther = [](const cBankFetch::cLine& line) { return line.HasOtherCurrency; };
    if (std::any_of(fetch.Lines().begin(), fetch.Lines().end(), hasOther)) {
        modConsole::Error(modCliCommands::CurrencyHint());
    }
}

// Of a failed fetch as well, for that is what somebody wants to read about.
bool IsLogWritten(const QString& path, const cBankFetch& fetch)
{
    const QString problem = path.isEmpty() ? QString() : modFileWrite::Replace(path, fetch.LogForOthers().toUtf8());
    if (!problem.isEmpty()) {
        modConsole::Error(modFileWrite::Failed(path, problem));
    }
    return problem.isEmpty();
}

int FetchAccounts(const cCliContext& context, const cBankFetch::cWish& wish)
{
    cCliBook& book = *context.Book;
    cConsoleBankUser customer({.PinFd = modCliCommands::Fd(context, u"pin-fd"_s),
                               .TanFd = modCliCommands::Fd(context, u"tan-fd"_s),
                               .TanImage = context.Call.Value(u"tan-image"_s)});
    cBankFetch fetch(book.Tools, book.Statements.Files(), {*context.Ports.Https, customer, context.Ports.Version});
    cBankFetch::cWish chosen = wish;
    chosen.Accounts = Places(fetch, context.Call);
    if (chosen.Accounts.isEmpty()) {
        modConsole::Error(fetch.Accounts().isEmpty() ? cText::Tr("Es ist noch kein Bankkonto eingerichtet. Der Befehl "
                                                                 "banks add richtet eines ein.")
                                                     : cText::Tr("Kein eingerichtetes Bankkonto passt dazu."));
        return modExit::Failed;
    }
    using eWish = cStatementWishes::eWish; // nobody can be asked
    book.Statements.Files().SetWishes({.Repeats = context.Call.Has(u"take-equal"_s) ? eWish::Take : eWish::Leave,
                                       .Start = eWish::Take,
                                       .Currency = context.Call.Has(u"take-currency"_s) ? eWish::Take : eWish::Leave,
                                       .Accounts = eWish::Take});
    book.File().CopyIfChanged();
    // Who names the first day wants what lies that far back; else the days that are missing are named.
    context.User.Prepare({.Answer = wish.From.isValid() ? eAnswer::Yes : eAnswer::No});
    cNoProgress progress;
    const bool isDone = fetch.Run(chosen, progress);
    for (const QString& note : fetch.Notes()) {
        modConsole::Error(note);
    }
    Print(context, fetch, chosen.Accounts);
    SayEqual(context, fetch, chosen.Accounts);
    SayCurrency(fetch);
    return IsLogWritten(context.Call.Value(u"log"_s), fetch) && isDone ? modExit::Done : modExit::Failed;
}

int RunFetch(const cCliContext& context)
{
    cCliReader reader(context);
    cBankFetch::cWish wish;
    wish.From = reader.Day(context.Call.Value(u"from"_s));
    wish.To = reader.Day(context.Call.Value(u"to"_s));
    for (const QString& file : {context.Call.Value(u"log"_s), context.Call.Value(u"tan-image"_s)}) {
        if (!file.isEmpty()) {
            reader.CheckTarget(file);
        }
    }
    reader.CheckOpenFile(u"pin-fd"_s);
    reader.CheckOpenFile(u"tan-fd"_s);
    return reader.IsGood() ? FetchAccounts(context, wish) : reader.Report();
}

} // namespace

cCliCommand modCliCommands::FetchCommand()
{
    return {.Name = u"fetch"_s,
            .Help = cText::Tr("ruft neue Umsätze von der Bank ab; sie warten dann auf das Buchen"),
            .Access = eCliAccess::Write,
            .IsOnline = true,
            .Options =
                QList<cCliOption>{
                    {u"blz"_s, u"BLZ"_s, cText::Tr("nur die Konten bei dieser Bankleitzahl")},
                    {u"login"_s, u"NAME"_s, cText::Tr("nur die Konten dieses Bankzugangs")},
                    {u"account"_s, u"KONTO"_s,
                     cText::Tr("nur dieses Konto: Kontonummer, IBAN oder Konto im Haushaltsbuch")},
                    {u"from"_s, u"TAG"_s,
                     cText::Tr("erster Tag; sonst ab zehn Tagen vor dem letzten Abruf, beim ersten Mal 89 Tage. Für "
                               "Älteres verlangt die Bank eine TAN")},
                    {u"to"_s, u"TAG"_s, cText::Tr("letzter Tag; sonst heute")},
                    {u"log"_s, u"DATEI"_s, cText::Tr("schreibt den Nachrichtenverkehr ohne persönliche Angaben auf")},
                    {u"tan-image"_s, u"DATEI"_s, cText::Tr("hierhin kommt das Bild einer photoTAN")}}
                + QList<cCliOption>{TakeEqual(), TakeCurrency()} + BankSecrets() + QList<cCliOption>{Json()},
            .Run = RunFetch};
}
