#include "views/receipt/cReceipts.h"

#include "base/cText.h"
#include "core/cBookTools.h"
#include "core/modReceiptFolder.h"
#include "core/modReceiptUse.h"
#include "model/modReceiptName.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList receiptEndings{u"pdf"_s,  u"png"_s,  u"jpg"_s,  u"jpeg"_s, u"gif"_s, u"bmp"_s,
                                 u"tif"_s,  u"tiff"_s, u"webp"_s, u"heic"_s, u"svg"_s, u"odt"_s,
                                 u"docx"_s, u"doc"_s,  u"rtf"_s,  u"eml"_s,  u"msg"_s};
const QStringList otherDocuments{u"txt"_s, u"ods"_s, u"xlsx"_s, u"xls"_s, u"csv"_s, u"xml"_s, u"zip"_s};

QString Bare(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

QStringList UnusedIn(cDataAccess& data)
{
    const QStringList names = modReceiptUse::Names(data);
    const QSet<QString> used(names.begin(), names.end());
    if (!data.IsWhole()) {
        return {};
    }
    QStringList unused = QDir(modReceiptFolder::Of(data.BookPath())).entryList(QDir::Files, QDir::Name);
    unused.removeIf([&](const QString& name) { return used.contains(name); });
    return unused;
}

// The first of them by name; a folder may hold thousands.
QString Some(const QStringList& names)
{
    constexpr qsizetype most = 5;
    const QString text = names.mid(0, most).join(u", "_s);
    return names.size() <= most ? text : cText::Tr("{0} und {1} weitere", {text, QString::number(names.size() - most)});
}

} // namespace

bool cReceipts::IsReceipt(const QString& path)
{
    return receiptEndings.contains(Bare(path));
}

bool cReceipts::IsDocument(const QString& path)
{
    return IsReceipt(path) || otherDocuments.contains(Bare(path));
}

cReceipts::cFile cReceipts::File(const QString& name) const
{
    return cReceiptFolder(m_tools).File(name);
}

QList<cReceipts::cFile> cReceipts::Of(int entryId) const
{
    QList<cFile> files;
    if (const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId)) {
        const QStringList names = modReceiptName::Of(*entry);
        for (const QString& name : names) {
            files.append(File(name));
        }
    }
    return files;
}

cEntryItemList cReceipts::Entries() const
{
    return modReceiptUse::Entries(m_tools.Data);
}

cEntryItemList cReceipts::EntriesOf(const QString& name) const
{
    cEntryItemList entries = Entries();
    entries.removeIf([&](const cEntryItem& entry) { return !modReceiptName::Of(entry).contains(name); });
    return entries;
}

qsizetype cReceipts::CountUses(const QString& name) const
{
    return modReceiptUse::Names(m_tools.Data).count(name);
}

QStringList cReceipts::Unused() const
{
    return UnusedIn(m_tools.Data);
}

QString cReceipts::CheckText(cDataAccess& data)
{
    const QDir folder(modReceiptFolder::Of(data.BookPath()));
    QStringList missing = modReceiptUse::Names(data);
    missing.removeDuplicates();
    missing.removeIf([&](const QString& name) { return QFileInfo(folder, name).isFile(); });
    const QStringList unused = UnusedIn(data);
    QStringList lines;
    if (!missing.isEmpty()) {
        lines.append(
            cText::Tr("Im Ordner '{0}' fehlen Belege: {1}", {QDir::toNativeSeparators(folder.path()), Some(missing)}));
    }
    if (!unused.isEmpty()) {
        lines.append(cText::Tr("Im Ordner '{0}' gehören Dateien zu keinem Eintrag und keinem Konto dieses Buchs: {1}",
                               {QDir::toNativeSeparators(folder.path()), Some(unused)}));
    }
    return lines.join(u'\n');
}

bool cReceipts::Store(const cEntryItem& entry, const QString& step) const
{
    cUndoStep undo(m_tools.Data, step);
    return undo.DoneIf(m_tools.Data.ChangeEntry(entry));
}

bool cReceipts::Add(int entryId, const QList<cReceiptSource>& sources) const
{
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    cReceiptFolder folder(m_tools);
    if (sources.isEmpty() || !folder.MayWrite()) {
        return false;
    }
    if (!entry) {
        return folder.Refuse(cText::Tr("Der Eintrag wurde inzwischen gelöscht."));
    }
    QStringList names = modReceiptName::Of(*entry);
    for (const cReceiptSource& source : sources) {
        const QString name = folder.Take(modReceiptName::Stem(*entry), source);
        if (name.isEmpty()) {
            folder.TakeBack();
            return false;
        }
        names.append(name);
    }
    names.removeDuplicates();
    if (names == modReceiptName::Of(*entry)) {
        folder.TellUnchanged();
        return true;
    }
    modReceiptName::Set(*entry, names);
    if (Store(*entry, cText::Tr("Beleg zu '{0}' hinzugefügt", {entry->Name()}))) {
        return true;
    }
    folder.TakeBack();
    return false;
}

bool cReceipts::Detach(int entryId, const QString& name) const
{
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    if (!entry || !cReceiptFolder(m_tools).MayWrite()) {
        return false;
    }
    QStringList names = modReceiptName::Of(*entry);
    names.removeAll(name);
    modReceiptName::Set(*entry, names);
    return Store(*entry, cText::Tr("Beleg von '{0}' entfernt", {entry->Name()}));
}

bool cReceipts::Replace(int entryId, const QString& name, const QString& path) const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    cReceiptFolder folder(m_tools);
    if (!entry || File(name).IsThere() || !folder.MayWrite()) {
        return false;
    }
    const QString other = folder.Take(modReceiptName::Stem(*entry), {path});
    if (other.isEmpty() || other == name) {
        return !other.isEmpty();
    }
    cUndoStep undo(m_tools.Data, cText::Tr("Beleg von '{0}' ersetzt", {entry->Name()}));
    cEntryItemList entries = EntriesOf(name);
    const bool isWritten = std::all_of(entries.begin(), entries.end(), [&](cEntryItem& each) {
        QStringList names = modReceiptName::Of(each);
        std::replace(names.begin(), names.end(), name, other);
        names.removeDuplicates();
        modReceiptName::Set(each, names);
        return m_tools.Data.ChangeEntry(each);
    });
    if (!undo.DoneIf(isWritten)) {
        folder.TakeBack();
        return false;
    }
    return true;
}
