#include "base/cText.h"
#include "base/modCount.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliEntryList.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/list/cSearch.h"
#include "views/list/modEntrySums.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

void ReadAmounts(const cCliCall& call, cCliReader& reader, cSearchQuery& query)
{
    if (call.Has(u"amount"_s) && (call.Has(u"min"_s) || call.Has(u"max"_s))) {
        reader.Misused(cText::Tr("Bitte entweder --amount oder --min und --max angeben."));
    }
    const auto read = [&](const QString& option, std::optional<qint64>& cents) {
        if (call.Has(option)) {
            cents = std::abs(reader.Cents(call.Value(option)));
        }
    };
    read(u"amount"_s, query.Least);
    query.Most = query.Least;
    read(u"min"_s, query.Least);
    read(u"max"_s, query.Most);
}

cSearchQuery ReadQuery(const cCliCall& call, cCliReader& reader)
{
    cSearchQuery query;
    query.Text = call.Arguments().join(u' ');
    ReadAmounts(call, reader, query);
    query.Days = reader.Period({});
    query.Account = reader.Account(call.Value(u"account"_s), eCliNames::Used);
    query.Type = reader.Kind(call.Value(u"kind"_s));
    query.Category = reader.Category(call.Value(u"category"_s), eCliNames::Used);
    query.Payer = reader.Payer(call.Value(u"payer"_s));
    query.IsCorrected = call.Has(u"corrected"_s);
    query.IsFromBank = call.Has(u"from-bank"_s);
    if (query.IsEmpty() && !call.Has(u"period"_s)) {
        reader.Misused(cText::Tr("Bitte nennen Sie ein Suchwort oder eine Option."));
    }
    return query;
}

void PrintSums(const cCliBook& book, const cEntryItemList& entries, const QString& account)
{
    const cEntrySums sums = modEntrySums::Of(entries, account);
    QStringList parts{modCount::Entries(sums.Count)};
    if (sums.Start) {
        parts.append(cText::Tr("Startguthaben {0}", {book.AmountText(*sums.Start)}));
    }
    parts.append(
        cText::Tr("Einnahmen {0}, Ausgaben {1}, Saldo {2}",
                  {book.AmountText(sums.Income), book.AmountText(sums.Expense), book.AmountText(sums.Total())}));
    modConsole::Out(parts.join(u", "_s) + u'\n');
}

int RunSearch(const cCliContext& context)
{
    cCliReader reader(context);
    const cSearchQuery query = ReadQuery(context.Call, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliBook& book = *context.Book;
    cEntryItemList entries = cSearch(book.Tools).Find(query);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    modCliEntryList::Print(context, entries);
    if (!context.Call.Has(u"json"_s) && !context.Call.Has(u"csv"_s)) {
        PrintSums(book, entries, query.Account);
    }
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::SearchCommand()
{
    return {.Name = u"search"_s,
            .Arguments = u"[WORT...]"_s,
            .Help = cText::Tr("sucht im ganzen Buch Einträge, die alle Wörter enthalten und zu allen Optionen passen"),
            .MaxArguments = Any,
            .Options = {{u"amount"_s, u"BETRAG"_s, cText::Tr("genau dieser Betrag")},
                        {u"min"_s, u"BETRAG"_s, cText::Tr("mindestens dieser Betrag")},
                        {u"max"_s, u"BETRAG"_s, cText::Tr("höchstens dieser Betrag")},
                        {u"period"_s, u"NAME"_s, cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\"")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                        {u"kind"_s, u"ART"_s, cText::Tr("Einnahme, Ausgabe oder Umbuchung")},
                        {u"category"_s, u"PFAD"_s, cText::Tr("diese Kategorie und ihre Unterkategorien")},
                        {u"payer"_s, u"NAME"_s,
                         cText::Tr("nur was diese Person bezahlt hat; \"ohne\": wo niemand genannt ist")},
                        {u"corrected"_s, {}, cText::Tr("nur korrigierte und von Hand verschobene Vorkommen")},
                        {u"from-bank"_s, {}, cText::Tr("nur Einträge, zu denen ein Umsatz der Bank gehört")},
                        Json(),
                        {u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")}},
            .Run = RunSearch};
}
