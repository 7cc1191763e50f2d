#include "app/cli/cCliBook.h"
#include "app/cli/cCliTable.h"
#include "app/cli/cConsoleUser.h"
#include "app/cli/modCliCommands.h"
#include "app/cli/modCliRecord.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "base/modFold.h"
#include "model/modPeriod.h"
#include "model/modWord.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

QDate ReadDay(const QString& text)
{
    const QDate iso = modDate::FromIso(text);
    return iso.isValid() ? iso : modDate::FromGerman(text);
}

// Each of the functions below fills its part of the query; what cannot be understood comes back as message.
QString FillPeriod(const cCliContext& context, cEntryQuery& query)
{
    const cCliCall& call = context.Call;
    if (call.Has(u"from"_s) || call.Has(u"to"_s)) {
        query.Start = ReadDay(call.Value(u"from"_s));
        query.End = ReadDay(call.Value(u"to"_s));
        const bool isUnderstood =
            query.Start.isValid() == call.Has(u"from"_s) && query.End.isValid() == call.Has(u"to"_s);
        if (call.Has(u"period"_s)) {
            return cText::Tr("Bitte entweder --period oder --from und --to angeben.");
        }
        return isUnderstood ? QString() : cText::Tr("Ein Datum wird als 2026-01-31 oder 31.01.2026 geschrieben.");
    }
    const QString name = call.Has(u"period"_s) ? call.Value(u"period"_s) : modWord::AktuellesJahr;
    if (!modWord::Periods().Contains(name) || name == modWord::FreierZeitraum) {
        QStringList names = modWord::Periods().Stored();
        names.removeAll(modWord::FreierZeitraum);
        return cText::Tr("Den Zeitraum '{0}' gibt es nicht. Möglich sind: {1}.", {name, names.join(u", "_s)});
    }
    const modPeriod::cRange range = modPeriod::Range(name, context.Clock.Today(), {});
    query.Start = range.Start;
    query.End = range.End;
    return {};
}

QString FillKind(const QString& word, cEntryQuery& query)
{
    const QStringList kinds = modWord::EntryTypes().Stored();
    for (const QString& kind : kinds) {
        const QString many = modWord::QueryType(kind);
        if (word.compare(kind, Qt::CaseInsensitive) == 0 || word.compare(many, Qt::CaseInsensitive) == 0) {
            query.Type = many;
        }
    }
    const bool isUnderstood = !query.Type.isEmpty() || word.isEmpty() || word == modWord::AlleBuchungsarten;
    return isUnderstood
        ? QString()
        : cText::Tr("Die Buchungsart '{0}' gibt es nicht. Möglich sind: {1}.", {word, kinds.join(u", "_s)});
}

QString FillAccount(cCliBook& book, const QString& name, cEntryQuery& query)
{
    QStringList names = book.Data.GetEntryAccounts();
    const cTemplateItemList accounts = book.Data.GetAccounts();
    for (const cTemplateItem& account : accounts) {
        names.append(account.TemplateName);
    }
    if (name.isEmpty() || name == modWord::AlleKonten || names.contains(name)) {
        query.Account = name == modWord::AlleKonten ? QString() : name;
        return {};
    }
    names.removeDuplicates();
    return cText::Tr("Das Konto '{0}' gibt es nicht. Möglich sind: {1}.", {name, names.join(u", "_s)});
}

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

QString CsvField(QString text)
{
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

// Semicolons and decimal commas, as German table programs expect; the byte order mark tells them that this is UTF-8.
QString ToCsv(const cEntryItemList& entries)
{
    QString text = u"\uFEFFID;EntryDate;EntryType;EntryInterval;EntryAccount;EntryAccountMove;EntryCategory;EntryValue;"
                   "EntryDescription\r\n"_s;
    for (const cEntryItem& entry : entries) {
        const QString amount = modAmount::CentsToText(entry.EntryValue).replace(u'.', u',');
        text += QStringList{QString::number(entry.ID),
                            modDate::ToIso(entry.EntryDate),
                            entry.EntryType,
                            entry.EntryInterval,
                            CsvField(entry.EntryAccount),
                            CsvField(entry.EntryAccountMove),
                            CsvField(entry.EntryCategory),
                            amount,
                            CsvField(entry.EntryDescription)}
                    .join(u';')
            + u"\r\n"_s;
    }
    return text;
}

QString ToJson(const cEntryItemList& entries)
{
    QStringList objects;
    for (const cEntryItem& entry : entries) {
        objects.append(modCliRecord::Entry(entry).ToString());
    }
    return modJson::Array(objects) + u'\n';
}

QString ToTable(const cCliBook& book, const cEntryItemList& entries)
{
    cCliTable table({{cText::Tr("ID"), eAlign::Right},
                     {cText::Tr("Datum")},
                     {cText::Tr("Art")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kategorie")},
                     {cText::Tr("Intervall")},
                     {cText::Tr("Text")}});
    for (const cEntryItem& entry : entries) {
        const QString account = entry.EntryAccountMove.isEmpty()
            ? entry.EntryAccount
            : entry.EntryAccount + u" → "_s + entry.EntryAccountMove;
        table.Add({QString::number(entry.ID), modDate::ToGerman(entry.EntryDate), entry.EntryType,
                   book.AmountText(entry.EntryValue), account, entry.EntryCategory, entry.EntryInterval,
                   entry.EntryDescription});
    }
    return table.ToString();
}

} // namespace

int modCliCommands::Entries(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const cCliCall& call = context.Call;
    cEntryQuery query;
    query.Category = call.Value(u"category"_s);
    for (const QString& problem : {FillPeriod(context, query), FillKind(call.Value(u"kind"_s), query)}) {
        if (!problem.isEmpty()) {
            modConsole::Error(problem);
            return modExit::Usage;
        }
    }
    const QString problem = FillAccount(book, call.Value(u"account"_s), query);
    if (!problem.isEmpty()) {
        modConsole::Error(problem);
        return modExit::Failed;
    }
    cEntryItemList entries = book.Data.GetEntries(query);
    const QList<modFold::cFolded> words = modFold::Words(call.Value(u"filter"_s));
    entries.removeIf([&](const cEntryItem& entry) { return !IsFound(book, entry, words); });
    std::stable_sort(entries.begin(), entries.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    if (call.Has(u"json"_s)) {
        modConsole::Out(ToJson(entries));
    } else {
        modConsole::Out(call.Has(u"csv"_s) ? ToCsv(entries) : ToTable(book, entries));
    }
    return modExit::Done;
}
