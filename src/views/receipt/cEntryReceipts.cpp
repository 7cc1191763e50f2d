#include "views/receipt/cEntryReceipts.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"

QString cEntryReceipts::Title() const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(m_entryId);
    if (!entry) {
        return cText::Tr("Belege");
    }
    return cText::Tr(
        "Belege: {0}, {1}, {2}",
        {modDate::ToText(entry->EntryDate), entry->Name(), m_tools.Format.Cents(modBalance::Effect(*entry, {}))});
}

cReceiptHolder::cWords cEntryReceipts::Words() const
{
    return {
        .Files = cText::Tr("Belege"),
        .Empty = cText::Tr("Noch kein Beleg. Ziehen Sie Dateien hierher, fügen Sie ein Bild aus der "
                           "Zwischenablage ein (Strg+V), oder wählen Sie eine Datei."),
        .EmptyReadOnly = cText::Tr("Dieser Eintrag hat keinen Beleg."),
        .Add = cText::Tr("Beleg hinzufügen"),
        .ChooseAgain = cText::Tr("Beleg neu wählen"),
        .Filter = cText::Tr(
            "Bilder und PDF|*.pdf;*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.tif;*.tiff;*.webp;*.heic|Alle Dateien|*.*"),
        .Purpose = ePurpose::Receipt,
        .Remove = cText::Tr("Soll der Beleg '{0}' von diesem Eintrag entfernt werden?"),
        .RemoveTitle = cText::Tr("Beleg entfernen"),
    };
}

QList<cReceiptHolder::cItem> cEntryReceipts::Items() const
{
    QList<cItem> items;
    const QList<cReceiptFolder::cFile> files = m_receipts.Of(m_entryId);
    for (const cReceiptFolder::cFile& file : files) {
        items.append({file, file.Name});
    }
    return items;
}

bool cEntryReceipts::Add(const QList<cReceiptSource>& sources)
{
    return m_receipts.Add(m_entryId, sources);
}

bool cEntryReceipts::Detach(const QString& name)
{
    return m_receipts.Detach(m_entryId, name);
}

bool cEntryReceipts::Replace(const QString& name, const QString& path)
{
    return m_receipts.Replace(m_entryId, name, path);
}
