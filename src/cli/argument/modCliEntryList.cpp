#include "cli/argument/modCliEntryList.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "cli/call/cCliBook.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modCliRecord.h"
#include "views/export/modCsv.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The form in which the export writes tables: for German table programs, texts never taken for formulas.
QString ToCsv(const cEntryItemList& entries)
{
    QByteArray text = "ID;EntryDate;EntryType;EntryInterval;EntryAccount;EntryAccountMove;EntryCategory;EntryValue;"
                      "EntryDescription\r\n";
    for (const cEntryItem& entry : entries) {
        text += modCsv::Line({QString::number(entry.ID), modDate::ToIso(entry.EntryDate), modCsv::Text(entry.EntryType),
                              modCsv::Text(entry.EntryInterval), modCsv::Text(entry.EntryAccount),
                              modCsv::Text(entry.EntryAccountMove), modCsv::Text(entry.EntryCategory),
                              modCsv::Money(entry.EntryValue), modCsv::Text(entry.EntryDescription)});
    }
    return QChar(QChar::ByteOrderMark) + QString::fromUtf8(text);
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
        table.Add({QString::number(entry.ID), modDate::ToText(entry.EntryDate), entry.EntryType,
                   book.AmountText(entry.EntryValue), entry.Accounts(), entry.EntryCategory, entry.EntryInterval,
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
