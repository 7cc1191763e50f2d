#include "base/cClock.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "model/modWord.h"
#include "views/chart/cForecast.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// The forecast of one account, or of all together.
struct cRow
{
    QString Name;
    const cBalanceLine& Line;
};

std::vector<cRow> Rows(const cBalanceDays& days, const QString& account)
{
    std::vector<cRow> rows;
    for (const cBalanceLine& line : days.Accounts) {
        const bool isUsed = std::any_of(line.Cents.begin(), line.Cents.end(), [](qint64 cents) { return cents != 0; });
        if (account.isEmpty() ? isUsed : line.Account == account) {
            rows.push_back({line.Account, line});
        }
    }
    if (account.isEmpty()) {
        rows.push_back({cText::Tr("Summe"), days.Sum});
    }
    return rows;
}

void PrintTable(const cCliContext& context, const cBalanceDays& days, const std::vector<cRow>& rows)
{
    const QString last = modDate::ToText(days.Day(days.Count() - 1));
    cCliTable table({{cText::Tr("Konto")},
                     {cText::Tr("Heute"), eAlign::Right},
                     {cText::Tr("Tiefster Stand"), eAlign::Right},
                     {cText::Tr("am"), eAlign::Right},
                     {last, eAlign::Right}});
    for (const cRow& row : rows) {
        const int lowest = cBalanceDays::Lowest(row.Line, 0);
        table.Add({row.Name, context.Book->AmountText(row.Line.Cents.first()),
                   context.Book->AmountText(row.Line.Cents[lowest]), modDate::ToText(days.Day(lowest)),
                   context.Book->AmountText(row.Line.Cents.last())});
    }
    modConsole::Out(table.ToString());
}

QString ToJson(const cBalanceDays& days, const cRow& row)
{
    QStringList balances;
    for (const qint64 cents : row.Line.Cents) {
        balances.append(modAmount::CentsToText(cents));
    }
    const int lowest = cBalanceDays::Lowest(row.Line, 0);
    cJsonObject json;
    json.Text(u"TemplateName"_s, row.Line.Account)
        .Date(u"First"_s, days.First)
        .Amount(u"Balance"_s, row.Line.Cents.first())
        .Amount(u"Lowest"_s, row.Line.Cents[lowest])
        .Date(u"LowestDate"_s, days.Day(lowest))
        .Amount(u"End"_s, row.Line.Cents.last())
        .Date(u"EndDate"_s, days.Day(days.Count() - 1))
        .Raw(u"Days"_s, u'[' + balances.join(u", "_s) + u']');
    return json.ToString();
}

QString ToJson(const cLimitWarning& warning)
{
    cJsonObject json;
    json.Text(u"TemplateName"_s, warning.Account)
        .Amount(u"Limit"_s, warning.Limit)
        .Date(u"Date"_s, warning.Day)
        .Amount(u"Balance"_s, warning.Cents)
        .Number(u"Entry"_s, warning.Entry.ID)
        .Text(u"EntryDescription"_s, warning.Entry.EntryDescription);
    return json.ToString();
}

void PrintJson(const cBalanceDays& days, const std::vector<cRow>& rows, const QList<cLimitWarning>& warnings)
{
    QStringList accounts;
    for (const cRow& row : rows) {
        accounts.append(ToJson(days, row));
    }
    QStringList limits;
    for (const cLimitWarning& warning : warnings) {
        limits.append(ToJson(warning));
    }
    cJsonObject json;
    json.Raw(u"Accounts"_s, modJson::Array(accounts)).Raw(u"Warnings"_s, modJson::Array(limits));
    modConsole::Out(json.ToString() + u'\n');
}

int RunForecast(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    const QString name = call.Value(u"account"_s);
    const QString account = name == modWord::AlleKonten ? QString() : reader.Account(name, eCliNames::Used);
    bool isNumber = true;
    const int months = call.Has(u"months"_s) ? call.Value(u"months"_s).toInt(&isNumber) : cForecast::MostMonths;
    if (!isNumber || months < 1 || months > cForecast::MostMonths) {
        reader.Misused(
            cText::Tr("Die Vorschau reicht von 1 bis {0} Monate.", {QString::number(cForecast::MostMonths)}));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cForecast forecast(context.Book->Data, context.Clock.Today());
    const cBalanceDays days =
        forecast.Ahead(months, call.Has(u"average"_s) ? cForecast::eAverage::With : cForecast::eAverage::Without);
    QList<cLimitWarning> warnings = forecast.Warnings();
    warnings.removeIf([&](const cLimitWarning& each) { return !account.isEmpty() && each.Account != account; });
    const std::vector<cRow> rows = Rows(days, account);
    if (call.Has(u"json"_s)) {
        PrintJson(days, rows, warnings);
        return modExit::Done;
    }
    PrintTable(context, days, rows);
    for (const cLimitWarning& warning : std::as_const(warnings)) {
        modConsole::Out(cForecast::Text(warning, context.Book->Format()) + u'\n');
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::ForecastCommand()
{
    return {
        .Name = u"forecast"_s,
        .Help = cText::Tr("sagt die Kontostände voraus: aus wiederkehrenden und schon eingetragenen Buchungen"),
        .Options = {{u"months"_s, u"ZAHL"_s, cText::Tr("so viele Monate weit, 1 bis 12; ohne Angabe 12")},
                    {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                    {u"average"_s, {}, cText::Tr("auch mit dem Durchschnitt der Einzelausgaben des letzten Jahres")},
                    Json()},
        .Run = RunForecast};
}
