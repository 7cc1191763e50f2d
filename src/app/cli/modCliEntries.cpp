#include "app/cli/cCliBook.h"
#include "app/cli/cCliReader.h"
#include "app/cli/modCliCommands.h"
#include "app/cli/modCliEntryList.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "base/modFold.h"
#include "model/modWord.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// The same texts that the filter of the entry list looks at.
bool IsFound(const cCliBook& book, const cEntryItem& entry, const QList<modFold::cFolded>& words)
{
    const QString text = QStringList{modDate::ToGerman(entry.EntryDate),
                                     entry.EntryType,
                                     entry.EntryCategory,
                                     entry.EntryAccount,
                                     entry.EntryAccountMove,
                                     entry.EntryDescription,
                                     entry.EntryInterval,
                                     book.AmountText(entry.EntryValue)}
                             .join(u'\n');
    return modFold::HoldsAll(modFold::Fold(text), words);
}

int Run(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    const modPeriod::cRange period = reader.Period(modWord::AktuellesJahr);
    const QString kind = call.Value(u"kind"_s);
    const QString account = call.Value(u"account"_s);
    cEntryQuery query;
    query.Start = period.Start;
    query.End = period.End;
    query.Type = modWord::QueryType(kind == modWord::AlleBuchungsarten ? QString() : reader.Kind(kind));
    query.Account = account == modWord::AlleKonten ? QString() : reader.Account(account, eCliNames::Used);
    query.Category = call.Value(u"category"_s);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cEntryItemList entries = book.Data.GetEntries(query);
    const QList<modFold::cFolded> words = modFold::Words(call.Value(u"filter"_s));
    entries.removeIf([&](const cEntryItem& entry) { return !IsFound(book, entry, words); });
    std::stable_sort(entries.begin(), entries.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    modCliEntryList::Print(context, entries);
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::EntriesCommand()
{
    return {.Name = u"entries"_s,
            .Help = cText::Tr("zeigt die Einträge eines Zeitraums, wiederkehrende mit jedem Vorkommen; ohne Angabe das "
                              "aktuelle Jahr"),
            .Options = {{u"period"_s, u"NAME"_s,
                         cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\" oder \"Alle Buchungen\"")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                        {u"kind"_s, u"ART"_s, cText::Tr("Einnahme, Ausgabe oder Umbuchung")},
                        {u"category"_s, u"PFAD"_s,
                         cText::Tr("diese Kategorie und ihre Unterkategorien: \"Wohnung\", \"Wohnung; Miete\"")},
                        {u"filter"_s, u"TEXT"_s, cText::Tr("nur Einträge, die alle diese Wörter enthalten")},
                        Json(),
                        {u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")}},
            .Run = Run};
}
