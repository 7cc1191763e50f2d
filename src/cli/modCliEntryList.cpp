#include "cli/modCliEntryList.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "cli/cCliBook.h"
#include "cli/cCliTable.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliRecord.h"

using namespace Qt::Literals::StringLiterals;

namespace {

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

void modCliEntryList::Print(const cCliContext& context, const cEntryItemList& entries)
{
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(ToJson(entries));
    } else {
        modConsole::Out(context.Call.Has(u"csv"_s) ? ToCsv(entries) : ToTable(*context.Book, entries));
    }
}
