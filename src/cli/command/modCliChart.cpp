#include "base/cClock.h"
#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/cCliPaint.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cConsoleUser.h"
#include "model/modWord.h"
#include "views/chart/cChartMaker.h"
#include "views/chart/cForecast.h"
#include "views/chart/modChart.h"
#include "views/chart/modChartTable.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList targets{u"png"_s, u"svg"_s, u"csv"_s};

QString YearBefore()
{
    return u"Vorjahr"_s;
}

// What is to be written where; at least one file, and none over the book.
void CheckTargets(const cCliContext& context, cCliReader& reader)
{
    bool hasTarget = false;
    for (const QString& target : targets) {
        if (!context.Call.Has(target)) {
            continue;
        }
        const QString path = context.Call.Value(target);
        hasTarget = true;
        reader.CheckTarget(path);
        if (target != u"csv" && QFileInfo(path).suffix().toLower() != target) {
            reader.Misused(cText::Tr("Der Name '{0}' muss auf .{1} enden.", {path, target}));
        }
    }
    if (!hasTarget) {
        reader.Misused(
            cText::Tr("Bitte mit --png, --svg oder --csv angeben, wohin das Diagramm geschrieben werden soll."));
    }
}

std::optional<modPeriod::cRange> ReadSecond(const cCliContext& context, cCliReader& reader,
                                            const modPeriod::cRange& range)
{
    const QString name = context.Call.Value(u"compare"_s);
    if (name.isEmpty()) {
        return std::nullopt;
    }
    if (name.compare(YearBefore(), Qt::CaseInsensitive) == 0) {
        return cChartWish::YearBefore(range);
    }
    return reader.PeriodNamed(name);
}

// Months ahead: only the balances look there.
int ReadMonths(const cCliContext& context, cCliReader& reader)
{
    if (!context.Call.Has(u"months"_s)) {
        return cForecast::MostMonths;
    }
    bool isNumber = false;
    const int months = context.Call.Value(u"months"_s).toInt(&isNumber);
    if (!isNumber || months < 0 || months > cForecast::MostMonths) {
        reader.Misused(
            cText::Tr("Die Vorschau reicht von 0 bis {0} Monate.", {QString::number(cForecast::MostMonths)}));
    }
    return months;
}

cChartWish ReadWish(const cCliContext& context, cCliReader& reader)
{
    const cCliCall& call = context.Call;
    const QString name = call.Arguments().constFirst();
    const std::optional<eChartKind> kind = modChart::KindByName(name);
    if (!kind) {
        reader.Misused(cText::Tr("Das Diagramm '{0}' gibt es nicht. Möglich sind: {1}.",
                                 {name, modChart::KindNames().join(u", "_s)}));
    }
    cChartWish wish;
    wish.Kind = kind.value_or(eChartKind::Months);
    wish.Range = reader.Period(modWord::AktuellesJahr);
    wish.Second = ReadSecond(context, reader, wish.Range);
    if (wish.Second && !cChartMaker::CanCompare(wish.Kind)) {
        reader.Misused(cText::Tr("Das Diagramm '{0}' zeigt immer nur einen Zeitraum.", {name}));
    }
    const QString account = call.Value(u"account"_s);
    wish.Account = account == modWord::AlleKonten ? QString() : reader.Account(account, eCliNames::Used);
    if (call.Has(u"category"_s)) {
        wish.Group = reader.Category(call.Value(u"category"_s), eCliNames::Used);
    }
    wish.ShowsFuture = !call.Has(u"no-future"_s);
    wish.ShowsAverage = call.Has(u"average"_s);
    wish.ForecastMonths = ReadMonths(context, reader);
    CheckTargets(context, reader);
    return wish;
}

QByteArray Bytes(const cCliContext& context, const QString& target, const cChartData& chart)
{
    using enum cCliPaint::ePicture;
    return target == u"csv" ? modChartTable::Csv(chart)
                            : context.Ports.Paint->PaintChart(chart, target == u"svg" ? Svg : Png);
}

int RunChart(const cCliContext& context)
{
    cCliReader reader(context);
    const cChartWish wish = ReadWish(context, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cChartData chart = cChartMaker(context.Book->Data, context.Book->Format(), context.Clock.Today()).Make(wish);
    if (chart.IsEmpty()) {
        context.User.Show(eTone::Exclamation,
                          chart.IsUnread ? chart.EmptyText() : cText::Tr("Für dieses Diagramm gibt es keine Daten."));
        return modExit::Failed;
    }
    for (const QString& target : targets) {
        const QString path = context.Call.Value(target);
        if (path.isEmpty()) {
            continue;
        }
        if (!modCliFlow::WriteFile(context, path, {Bytes(context, target, chart)})) {
            return modExit::Failed;
        }
        modCliFlow::SayWritten(path);
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::ChartCommand()
{
    return {.Name = u"chart"_s,
            .Arguments = u"DIAGRAMM"_s,
            .Help = cText::Tr("zeichnet ein Diagramm: {0}; ohne Angabe für das aktuelle Jahr",
                              {modChart::KindNames().join(u", "_s)}),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Options = {{u"png"_s, u"DATEI"_s, cText::Tr("als Bild")},
                        {u"svg"_s, u"DATEI"_s, cText::Tr("als Vektorgrafik")},
                        {u"csv"_s, u"DATEI"_s, cText::Tr("die Zahlen für eine Tabellenkalkulation")},
                        {u"period"_s, u"NAME"_s,
                         cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\" oder \"Alle Buchungen\"")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        {u"compare"_s, u"NAME"_s, cText::Tr("daneben das \"Vorjahr\" oder ein anderer Zeitraum")},
                        {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                        {u"category"_s, u"NAME"_s, cText::Tr("die Unterkategorien dieser Hauptkategorie")},
                        {u"months"_s, u"ZAHL"_s, cText::Tr("Verlauf, Vermögen: Monate der Vorschau, ohne Angabe 12")},
                        {u"average"_s,
                         {},
                         cText::Tr("Verlauf, Vermögen: Vorschau mit dem Durchschnitt der Einzelausgaben")},
                        {u"no-future"_s, {}, cText::Tr("ohne Einträge nach dem heutigen Tag")}},
            .Run = RunChart};
}
