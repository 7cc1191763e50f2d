#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modCliRecord.h"
#include "model/modWord.h"
#include "views/ledger/cStatementListModel.h"
#include "views/ledger/modBalanceText.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString RowsJson(const cStatementListModel& statement, const cEntryExtract& extract)
{
    QStringList objects;
    const std::pair<qsizetype, qsizetype> places = statement.Places();
    for (qsizetype row = places.first; row < places.second; ++row) {
        const std::size_t shown = static_cast<std::size_t>(row - places.first);
        cJsonObject json = modCliRecord::Row(statement.Ledger().Rows().at(row));
        objects.append(json.Amount(u"Balance"_s, statement.Ledger().BalanceAfter(row + 1))
                           .Text(u"Category"_s, extract.Rows[shown].Entry.EntryCategory)
                           .ToString());
    }
    return modJson::Array(objects);
}

QString BalancesJson(const modBalanceCheck::cResult& check)
{
    QStringList objects;
    for (const modBalanceCheck::cPoint& point : check.Points) {
        cJsonObject json;
        json.Date(u"Date"_s, point.Day).Amount(u"Bank"_s, point.Bank).Amount(u"Statement"_s, point.Own);
        json.Amount(u"Difference"_s, point.Difference());
        objects.append(json.Truth(u"Agrees"_s, point.Verdict == modBalanceCheck::eVerdict::Agrees).ToString());
    }
    return modJson::Array(objects);
}

QString DifferencesJson(const cCliBook& book, const cStatementLedger& ledger)
{
    QStringList objects;
    for (const modBalanceCheck::cFault& fault : ledger.Check().Faults) {
        cJsonObject json;
        json.Date(u"From"_s, fault.From).Date(u"To"_s, fault.To).Amount(u"Missing"_s, fault.Missing);
        objects.append(json.Text(u"Text"_s, modBalanceText::Fault(ledger, fault, book.Format())).ToString());
    }
    return modJson::Array(objects);
}

QString BookJson(const cBookComparison& book)
{
    constexpr std::array<const char16_t*, 6> states{u"not mapped", u"shared", u"no balance",
                                                    u"unread",     u"agrees", u"differs"};
    static_assert(states.size() == static_cast<std::size_t>(cBookComparison::eState::Differs) + 1);
    cJsonObject json;
    json.Text(u"State"_s, QString::fromUtf16(states.at(static_cast<std::size_t>(book.State))));
    if (book.Day.isValid()) {
        json.Date(u"Date"_s, book.Day).Amount(u"Book"_s, book.Book).Amount(u"Bank"_s, book.Bank);
        json.Date(u"From"_s, book.From);
    }
    return json.ToString();
}

void PrintJson(const cCliBook& book, const cStatementListModel& statement)
{
    cJsonObject json;
    json.Text(u"Number"_s, statement.Number())
        .Text(u"Account"_s, statement.Ledger().AccountOf(statement.Number()))
        .Raw(u"Rows"_s, RowsJson(statement, statement.Extract()))
        .Raw(u"Balances"_s, BalancesJson(statement.Ledger().Check()))
        .Raw(u"Differences"_s, DifferencesJson(book, statement.Ledger()))
        .Raw(u"Book"_s, BookJson(statement.Book()));
    modConsole::Out(json.ToString() + u'\n');
}

void PrintTable(const cStatementListModel& statement)
{
    QList<cCliTable::cColumn> columns;
    for (int column = 0; column < cStatementListModel::ColumnCount; ++column) {
        const bool isMoney = column == cStatementListModel::Amount || column == cStatementListModel::Balance;
        columns.append({statement.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                        isMoney ? eAlign::Right : eAlign::Left, column == cStatementListModel::Category ? 0 : 30});
    }
    cCliTable table(columns);
    for (int row = 0; row < statement.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < cStatementListModel::ColumnCount; ++column) {
            cells.append(statement.index(row, column).data().toString());
        }
        table.Add(cells);
    }
    modConsole::Out(table.ToString() + u'\n' + statement.Findings().join(u'\n') + u'\n');
}

int RunStatement(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cCliReader reader(context);
    cStatementListModel statement(book.Tools);
    const modPeriod::cRange range = reader.Period(modWord::AlleBuchungen);
    const QString number = modCliCommands::StatementNumber(reader, statement, context.Call.Value(u"account"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    statement.ChooseAccount(number);
    statement.ChoosePeriod(modWord::FreierZeitraum);
    statement.ChooseFreeRange(range);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(book, statement);
    } else {
        PrintTable(statement);
    }
    return modExit::Done;
}

// Those of `numbers` that are meant, all of them without a text; `unknown` is said where there is none.
QStringList NumbersOf(const QStringList& numbers, const QString& text, const QString& unknown, cCliReader& reader,
                      const cStatementListModel& statement)
{
    if (text.isEmpty()) {
        return numbers;
    }
    if (numbers.contains(text)) {
        return {text};
    }
    QStringList meant = statement.NumbersMeant(text);
    meant.removeIf([&](const QString& number) { return !numbers.contains(number); });
    if (meant.isEmpty()) {
        reader.Missing(unknown);
    }
    return meant;
}

} // namespace

QString modCliCommands::StatementNumber(cCliReader& reader, const cStatementListModel& statement, const QString& text)
{
    const QStringList meant =
        NumbersOf(statement.Ledger().Numbers(), text,
                  cText::Tr("Von diesem Konto ist kein Umsatz eingelesen: {0}", {text}), reader, statement);
    return OneNumber(reader, meant, text);
}

QStringList modCliCommands::PaperNumbers(cCliReader& reader, const cStatementListModel& statement, const QString& text)
{
    return NumbersOf(statement.Numbers(), text, cText::Tr("Diese Kontonummer kennt das Buch nicht: {0}", {text}),
                     reader, statement);
}

QString modCliCommands::OneNumber(cCliReader& reader, const QStringList& meant, const QString& text)
{
    if (meant.size() == 1) {
        return meant.first();
    }
    const QString numbers = meant.join(u", "_s);
    if (text.isEmpty()) {
        reader.Misused(cText::Tr("Mit --account muss die Kontonummer genannt werden. Es gibt: {0}", {numbers}));
    } else if (!meant.isEmpty()) {
        reader.Missing(cText::Tr("'{0}' hat mehrere Kontonummern: {1}", {text, numbers}));
    }
    return {};
}

cCliCommand modCliCommands::StatementCommand()
{
    return {.Name = u"statement"_s,
            .Help = cText::Tr("zeigt den Auszug eines Bankkontos und vergleicht seinen Saldo mit der Bank"),
            .Options = {{u"account"_s, u"NUMMER"_s, cText::Tr("Kontonummer, IBAN oder Konto des Buchs")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        Json()},
            .Run = RunStatement};
}
