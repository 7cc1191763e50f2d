#include "cli/argument/modCliSelection.h"

#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "model/cTemplateItem.h"
#include "model/modPeople.h"
#include "model/modWord.h"
#include "views/list/cEntryFilter.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cCategoryChoice
{
    QString Path; // empty: all categories
    bool HasSubs = true;

    [[nodiscard]] bool Holds(const QString& path) const
    {
        return Path.isEmpty() || (HasSubs ? modTemplate::IsWithin(path, Path) : path == Path);
    }
};

// "Wohnung; Allgemein" stands for what is booked on the main category itself, where it has no sub-category of that
// name.
cCategoryChoice ReadCategory(const QString& text, cCliReader& reader)
{
    const QString general = u"; Allgemein"_s;
    if (text.endsWith(general) && !reader.IsCategoryPath(text, eCliNames::Used)) {
        return {reader.Category(text.chopped(general.size()), eCliNames::Used), false};
    }
    return {reader.Category(text, eCliNames::Used)};
}

cViewState View(const cCliCall& call, const QString& kind, const QString& account)
{
    cViewState view;
    const bool hasDays = call.Has(u"from"_s) || call.Has(u"to"_s);
    const QString period = call.Has(u"period"_s) ? call.Value(u"period"_s) : modWord::AktuellesJahr;
    view.Period = hasDays ? modWord::FreierZeitraum : period;
    view.Account = account.isEmpty() ? modWord::AlleKonten : account;
    view.Type = kind.isEmpty() ? modWord::AlleBuchungsarten : kind;
    view.Grouping = modWord::KeineGruppierung;
    view.Filter = QStringList{call.Value(u"category"_s), call.Value(u"filter"_s)}.join(u' ').trimmed();
    return view;
}

} // namespace

QList<cCliOption> modCliSelection::Options()
{
    return {{u"period"_s, u"NAME"_s, cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\" oder \"Alle Buchungen\"")},
            {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
            {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
            {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
            {u"kind"_s, u"ART"_s, cText::Tr("Einnahme, Ausgabe oder Umbuchung")},
            {u"category"_s, u"PFAD"_s,
             cText::Tr("diese Kategorie und ihre Unterkategorien: \"Wohnung\", \"Wohnung; Miete\"")},
            {u"payer"_s, u"NAME"_s, cText::Tr("nur was diese Person bezahlt hat; \"ohne\": wo niemand genannt ist")},
            {u"filter"_s, u"TEXT"_s, cText::Tr("nur Einträge, die alle diese Wörter enthalten"), true}};
}

modCliSelection::cSelection modCliSelection::Read(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    cSelection selection;
    selection.Days = reader.Period(modWord::AktuellesJahr);
    const QString kindText = call.Value(u"kind"_s);
    const QString kind = kindText == modWord::AlleBuchungsarten ? QString() : reader.Kind(kindText);
    const QString accountText = call.Value(u"account"_s);
    const QString account =
        accountText == modWord::AlleKonten ? QString() : reader.Account(accountText, eCliNames::Used);
    const QString payer = reader.Payer(call.Value(u"payer"_s));
    const cCategoryChoice category = ReadCategory(call.Value(u"category"_s), reader);
    if (!reader.IsGood()) {
        selection.Code = reader.Report();
        return selection;
    }
    cEntryQuery query;
    query.Start = selection.Days.Start;
    query.End = selection.Days.End;
    query.Type = modWord::QueryType(kind);
    query.Account = account;
    const cEntryItemList entries =
        cEntryFilter::Search(book.File().Entries(query), call.Value(u"filter"_s), account, book.Format());
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(selection.Entries), [&](const cEntryItem& entry) {
        return category.Holds(entry.EntryCategory) && modPeople::IsPaidBy(entry, payer);
    });
    selection.View = View(call, kind, account);
    selection.View.Payer = payer;
    return selection;
}
