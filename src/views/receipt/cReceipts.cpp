#include "views/receipt/cReceipts.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/modReceiptFolder.h"
#include "model/modReceiptName.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/modEntryFields.h"
#include "views/list/modFileWrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList receiptEndings{u"pdf"_s,  u"png"_s,  u"jpg"_s,  u"jpeg"_s, u"gif"_s, u"bmp"_s,
                                 u"tif"_s,  u"tiff"_s, u"webp"_s, u"heic"_s, u"svg"_s, u"odt"_s,
                                 u"docx"_s, u"doc"_s,  u"rtf"_s,  u"eml"_s,  u"msg"_s};
const QStringList otherDocuments{u"txt"_s, u"ods"_s, u"xlsx"_s, u"xls"_s, u"csv"_s, u"xml"_s, u"zip"_s};

QString EndingOf(const QString& path)
{
    constexpr qsizetype most = 8;
    const QString ending = QFileInfo(path).suffix().toLower();
    const bool isPlain = std::all_of(ending.begin(), ending.end(),
                                     [](QChar letter) { return letter.unicode() < 0x80 && letter.isLetterOrNumber(); });
    return ending.isEmpty() || ending.size() > most || !isPlain ? QString() : QString(u'.' + ending);
}

QString Bare(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

cEntryItemList EntriesIn(cDataAccess& data)
{
    cEntryItemList entries = data.GetEntriesFlagged(modReceiptName::Mark);
    entries.removeIf([](const cEntryItem& entry) { return modReceiptName::Count(entry) == 0; });
    return entries;
}

QStringList UnusedIn(cDataAccess& data)
{
    QSet<QString> used;
    const cEntryItemList entries = EntriesIn(data);
    for (const cEntryItem& entry : entries) {
        const QStringList names = modReceiptName::Of(entry);
        used.unite(QSet<QString>(names.begin(), names.end()));
    }
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

QString Shown(const cReceiptSource& source)
{
    return QFileInfo(source.Path).fileName();
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

QString cReceipts::Folder() const
{
    return modReceiptFolder::Of(m_tools.Data.BookPath());
}

cReceipts::cFile cReceipts::File(const QString& name) const
{
    const QFileInfo file(QDir(Folder()), name);
    return {name, file.filePath(), file.isFile() ? file.size() : -1};
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
    return EntriesIn(m_tools.Data);
}

cEntryItemList cReceipts::EntriesOf(const QString& name) const
{
    cEntryItemList entries = Entries();
    entries.removeIf([&](const cEntryItem& entry) { return !modReceiptName::Of(entry).contains(name); });
    return entries;
}

QStringList cReceipts::Unused() const
{
    return UnusedIn(m_tools.Data);
}

QString cReceipts::CheckText(cDataAccess& data)
{
    const QDir folder(modReceiptFolder::Of(data.BookPath()));
    QStringList missing;
    const cEntryItemList entries = EntriesIn(data);
    for (const cEntryItem& entry : entries) {
        QStringList names = modReceiptName::Of(entry);
        names.removeIf([&](const QString& name) { return missing.contains(name) || QFileInfo(folder, name).isFile(); });
        missing += names;
    }
    const QStringList unused = UnusedIn(data);
    QStringList lines;
    if (!missing.isEmpty()) {
        lines.append(
            cText::Tr("Im Ordner '{0}' fehlen Belege: {1}", {QDir::toNativeSeparators(folder.path()), Some(missing)}));
    }
    if (!unused.isEmpty()) {
        lines.append(cText::Tr("Im Ordner '{0}' gehören Dateien zu keinem Eintrag dieses Buchs: {1}",
                               {QDir::toNativeSeparators(folder.path()), Some(unused)}));
    }
    return lines.join(u'\n');
}

bool cReceipts::Refuse(const QString& text) const
{
    m_tools.User.Show(eTone::Exclamation, text);
    return false;
}

bool cReceipts::MayWrite() const
{
    if (m_tools.Data.IsReadOnly()) {
        return Refuse(cText::Tr("Diese Datenbank kann nur gelesen werden; Belege können nicht geändert werden."));
    }
    const QString folder = Folder();
    return QDir().mkpath(folder)
        || Refuse(cText::Tr("Der Ordner '{0}' kann nicht angelegt werden.", {QDir::toNativeSeparators(folder)}));
}

// Its number is free in the folder, whatever the kind of file, and not that of one that is missing at the moment.
// Letter case makes no other name, because the folder may come to lie on a volume where it does not.
QString cReceipts::FreeName(const cEntryItem& entry, const QString& ending) const
{
    QStringList names = QDir(Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    const cEntryItemList entries = Entries();
    for (const cEntryItem& each : entries) {
        names += modReceiptName::Of(each);
    }
    QSet<QString> taken;
    for (const QString& name : std::as_const(names)) {
        taken.insert(QFileInfo(name).completeBaseName().toCaseFolded());
    }
    const QString stem = modReceiptName::Stem(entry) + u' ';
    int number = 1;
    while (taken.contains(QString(stem + QString::number(number)).toCaseFolded())) {
        ++number;
    }
    return stem + QString::number(number) + ending;
}

bool cReceipts::IsInFolder(const QString& path) const
{
    return !path.isEmpty() && QFileInfo(path).isFile() && QFileInfo(path).absoluteDir() == QDir(Folder())
        && modReceiptName::IsSafe(QFileInfo(path).fileName());
}

bool cReceipts::Copy(const cReceiptSource& source, const QString& name) const
{
    QByteArray bytes = source.Bytes;
    if (!source.Path.isEmpty()) {
        if (!QFileInfo(source.Path).isFile()) {
            return Refuse(cText::Tr("'{0}' ist keine Datei.", {Shown(source)}));
        }
        QFile file(source.Path);
        if (file.size() > MostBytes) {
            return Refuse(cText::Tr("Die Datei '{0}' ist größer als {1} MB. Bitte verkleinern Sie sie.",
                                    {Shown(source), QString::number(MostBytes / 1'000'000)}));
        }
        if (!file.open(QIODevice::ReadOnly)) {
            return Refuse(cText::Tr("Die Datei '{0}' kann nicht gelesen werden.", {Shown(source)}));
        }
        bytes = file.readAll();
        if (file.error() != QFileDevice::NoError || bytes.isEmpty()) {
            return Refuse(cText::Tr("Die Datei '{0}' ist leer oder kann nicht gelesen werden.", {Shown(source)}));
        }
    }
    const QString path = QDir(Folder()).filePath(name);
    const QString problem = modFileWrite::Replace(path, bytes);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner); // as private as the book
    return problem.isEmpty() || Refuse(cText::Tr("Der Beleg konnte nicht kopiert werden:\n{0}", {problem}));
}

QString cReceipts::Take(const cEntryItem& entry, const cReceiptSource& source) const
{
    if (IsInFolder(source.Path)) {
        return QFileInfo(source.Path).fileName();
    }
    const QString name = FreeName(entry, source.Path.isEmpty() ? u".png"_s : EndingOf(source.Path));
    return Copy(source, name) ? name : QString();
}

bool cReceipts::Store(const cEntryItem& entry, const QString& step) const
{
    cUndoStep undo(m_tools.Data, step);
    return undo.DoneIf(m_tools.Data.ChangeEntry(entry));
}

bool cReceipts::Add(int entryId, const QList<cReceiptSource>& sources) const
{
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    if (sources.isEmpty() || !MayWrite()) {
        return false;
    }
    if (!entry) {
        return Refuse(cText::Tr("Der Eintrag wurde inzwischen gelöscht."));
    }
    QStringList names = modReceiptName::Of(*entry);
    QStringList copied;
    bool isWhole = true;
    for (const cReceiptSource& source : sources) {
        const QString name = isWhole ? Take(*entry, source) : QString();
        isWhole = isWhole && !name.isEmpty();
        if (isWhole && !IsInFolder(source.Path)) {
            copied.append(name);
        }
        if (isWhole && !names.contains(name)) {
            names.append(name);
        }
    }
    modReceiptName::Set(*entry, names);
    if (isWhole && Store(*entry, cText::Tr("Beleg zu '{0}' hinzugefügt", {modEntryFields::Name(*entry)}))) {
        return true;
    }
    for (const QString& name : copied) {
        QFile::remove(QDir(Folder()).filePath(name)); // a copy made just now; where it came from is untouched
    }
    return false;
}

bool cReceipts::Detach(int entryId, const QString& name) const
{
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    if (!entry || !MayWrite()) {
        return false;
    }
    QStringList names = modReceiptName::Of(*entry);
    names.removeAll(name);
    modReceiptName::Set(*entry, names);
    return Store(*entry, cText::Tr("Beleg von '{0}' entfernt", {modEntryFields::Name(*entry)}));
}

bool cReceipts::Replace(int entryId, const QString& name, const QString& path) const
{
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(entryId);
    if (!entry || File(name).IsThere() || !MayWrite()) {
        return false;
    }
    if (!IsInFolder(path) && EndingOf(path) == EndingOf(name)) {
        return Copy({path}, name);
    }
    const QString other = Take(*entry, {path});
    if (other.isEmpty()) {
        return false;
    }
    QStringList names = modReceiptName::Of(*entry);
    std::replace(names.begin(), names.end(), name, other);
    modReceiptName::Set(*entry, names);
    return Store(*entry, cText::Tr("Beleg von '{0}' ersetzt", {modEntryFields::Name(*entry)}));
}
