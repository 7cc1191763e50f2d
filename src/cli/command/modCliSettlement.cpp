#include "base/cClock.h"
#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/cCliPaint.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "cli/console/modCliRecord.h"
#include "model/modWord.h"
#include "views/common/modUnread.h"
#include "views/people/cPeople.h"
#include "views/people/modSettlementExport.h"
#include "views/people/modSettlementText.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// The files that a settlement can become, by their options.
QStringList FileOptions()
{
    return {u"html"_s, u"csv"_s, u"xlsx"_s, u"pdf"_s};
}

modFileWrite::cContent Content(const QString& option, const cSettlement& settlement, const cCliContext& context)
{
    const cBookTools& tools = context.Book->Tools;
    if (option == u"pdf") {
        return {context.Ports.Paint->PaintReport(
            modSettlementText::Html(settlement, tools.Format, context.Clock.Today()), context.Clock.Today())};
    }
    using enum cReportExport::eFormat;
    return modSettlementExport::Content(settlement, option == u"csv" ? Csv : option == u"xlsx" ? Xlsx : Html, tools);
}

QString ToJson(const cSettlement& settlement)
{
    QStringList payments;
    for (const cPayment& payment : settlement.Payments) {
        cJsonObject json;
        json.Text(u"From"_s, payment.From).Text(u"To"_s, payment.To).Amount(u"Amount"_s, payment.Cents);
        payments.append(json.ToString());
    }
    QStringList people;
    for (const cPersonSum& person : settlement.People) {
        cJsonObject json;
        json.Text(u"Name"_s, person.Name)
            .Amount(u"Paid"_s, person.Paid)
            .Amount(u"Borne"_s, person.Borne)
            .Amount(u"Settled"_s, person.Settled)
            .Amount(u"Balance"_s, person.Balance());
        people.append(json.ToString());
    }
    QStringList entries;
    for (const cCountedEntry& counted : settlement.Counted) {
        cJsonObject json = modCliRecord::Entry(counted.Entry);
        json.Text(u"Payer"_s, counted.Payer)
            .Amount(u"Counted"_s, counted.Cents)
            .Raw(u"Shares"_s, modCliRecord::Shares(counted.Shares));
        entries.append(json.ToString());
    }
    cJsonObject json;
    json.Date(u"Start"_s, settlement.Range.Start)
        .Date(u"End"_s, settlement.Range.End)
        .Raw(u"Payments"_s, modJson::Array(payments))
        .Raw(u"People"_s, modJson::Array(people))
        .Raw(u"Entries"_s, modJson::Array(entries));
    return json.ToString() + u'\n';
}

// The columns after so many of texts are amounts.
cCliTable Table(const QStringList& titles, qsizetype texts)
{
    QList<cCliTable::cColumn> columns;
    for (const QString& title : titles) {
        columns.append({title, columns.size() < texts ? eAlign::Left : eAlign::Right});
    }
    return cCliTable(columns);
}

QString ToText(const cSettlement& settlement, const cCliBook& book)
{
    using namespace modSettlementText;
    QString text = Heading(settlement) + u"\n\n"_s;
    if (settlement.Payments.isEmpty()) {
        text += NothingToPay(settlement) + u'\n';
    } else {
        cCliTable payments = Table(PaymentTitles(), 2);
        for (const cPayment& payment : settlement.Payments) {
            payments.Add({payment.From, payment.To, book.AmountText(payment.Cents)});
        }
        text += payments.ToString();
    }
    if (settlement.Counted.isEmpty()) {
        return text;
    }
    cCliTable people = Table(PersonTitles(), 1);
    for (const cPersonSum& person : settlement.People) {
        QStringList row{person.Name};
        for (const qint64 cents : PersonCents(person)) {
            row.append(book.AmountText(cents));
        }
        people.Add(row);
    }
    const QStringList titles = EntryTitles();
    cCliTable entries = Table(titles, titles.size() - 1);
    for (const cCountedEntry& counted : settlement.Counted) {
        entries.Add(EntryTexts(counted) << book.AmountText(counted.Cents));
    }
    return text + u'\n' + people.ToString() + u'\n' + entries.ToString();
}

// Writes the files that are asked for, and says so. How many; nothing after a message.
std::optional<int> WriteFiles(const cCliContext& context, const cSettlement& settlement)
{
    QStringList written;
    const QStringList options = FileOptions();
    for (const QString& option : options) {
        const QString path = context.Call.Value(option);
        if (path.isEmpty()) {
            continue;
        }
        if (!modCliFlow::WriteFile(context, path, Content(option, settlement, context))) {
            return std::nullopt;
        }
        written.append(path);
    }
    if (!context.Call.Has(u"json"_s)) {
        std::for_each(written.begin(), written.end(), modCliFlow::SayWritten);
    }
    return static_cast<int>(written.size());
}

int Run(const cCliContext& context)
{
    cCliReader reader(context);
    const modPeriod::cRange days = reader.Period(modWord::AktuellesJahr);
    modCliFlow::CheckTargets(context, reader, FileOptions());
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cSettlement settlement = cPeople(context.Book->Tools).Settlement(days);
    if (settlement.IsUnread) {
        modConsole::Error(modUnread::Title());
        return modExit::Failed;
    }
    const std::optional<int> files = WriteFiles(context, settlement);
    if (files && context.Call.Has(u"json"_s)) {
        modConsole::Out(ToJson(settlement));
    } else if (files == 0) {
        modConsole::Out(ToText(settlement, *context.Book));
    }
    return files && !context.User.HasFailed() ? modExit::Done : modExit::Failed;
}

} // namespace

cCliCommand modCliCommands::SettlementCommand()
{
    return {.Name = u"settlement"_s,
            .Help = cText::Tr("rechnet aus, wer im Haushalt wem wie viel schuldet; ohne Angabe für das aktuelle Jahr "
                              "bis heute"),
            .Options = {{u"period"_s, u"NAME"_s, cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\"")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        Json(),
                        {u"html"_s, u"DATEI"_s, cText::Tr("schreibt den Bericht als HTML-Seite")},
                        {u"csv"_s, u"DATEI"_s, cText::Tr("schreibt die gezählten Einträge als CSV-Datei")},
                        {u"xlsx"_s, u"DATEI"_s, cText::Tr("schreibt alle drei Tabellen als Excel-Datei")},
                        {u"pdf"_s, u"DATEI"_s, cText::Tr("schreibt den Bericht als PDF-Datei")}},
            .Run = Run};
}
