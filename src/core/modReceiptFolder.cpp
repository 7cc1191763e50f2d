#include "core/modReceiptFolder.h"

#include "base/cText.h"
#include "core/cBackup.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

// Some volumes keep times in steps of two seconds.
bool IsSame(const QFileInfo& one, const QFileInfo& other)
{
    return one.size() == other.size() && std::abs(one.lastModified().secsTo(other.lastModified())) <= 2;
}

// Under a hidden name first: a copy that was cut short never has the name of the whole. The time tells copies apart.
bool CopyWhole(const QFileInfo& from, const QString& to)
{
    const QString working = QFileInfo(to).absolutePath() + u"/.kontorelle-beleg.teil"_s;
    QFile::remove(working);
    if (!QFile::copy(from.filePath(), working)) {
        return false;
    }
    QFile::setPermissions(working, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QFile file(working);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        file.setFileTime(from.lastModified(), QFileDevice::FileModificationTime);
        file.close();
    }
    return file.size() == from.size() && QFile::rename(working, to);
}

// Makes room for a file of the same name: "Rechnung.pdf" becomes "Rechnung (bis 2026-11-22 101530).pdf".
bool StepAside(const QFileInfo& old)
{
    const QString ending = old.suffix().isEmpty() ? QString() : QString(u'.' + old.suffix());
    const QString until = old.lastModified().toString(u"yyyy-MM-dd HHmmss"_s);
    const QString stem = old.absolutePath() + u"/%1 (bis %2"_s.arg(old.completeBaseName(), until);
    QString target = stem + u')' + ending;
    for (int number = 2; QFileInfo::exists(target); ++number) {
        target = stem + u' ' + QString::number(number) + u')' + ending;
    }
    return QFile::rename(old.filePath(), target);
}

// One file that cannot be copied keeps none of the others back; the first problem is told.
QString CopyAll(const QFileInfoList& files, const QString& to)
{
    if (files.isEmpty()) {
        return {};
    }
    if (!QDir().mkpath(to)) {
        return cText::Tr("Der Ordner '{0}' kann nicht angelegt werden.", {QDir::toNativeSeparators(to)});
    }
    QString problem;
    for (const QFileInfo& file : files) {
        const QFileInfo target(QDir(to), file.fileName());
        const bool isCopied = (!target.exists() || StepAside(target)) && CopyWhole(file, target.filePath());
        if (!isCopied && problem.isEmpty()) {
            problem = cText::Tr("Der Beleg '{0}' konnte nicht nach '{1}' kopiert werden. Bitte prüfen Sie die "
                                "Zugriffsrechte und den Speicherplatz.",
                                {file.fileName(), QDir::toNativeSeparators(to)});
        }
    }
    return problem;
}

// But for those that are there already.
QString CopyNew(QFileInfoList files, const QString& to)
{
    files.removeIf([&](const QFileInfo& file) {
        const QFileInfo copy(QDir(to), file.fileName());
        return copy.exists() && IsSame(file, copy);
    });
    return CopyAll(files, to);
}

// The name of a backup without its day.
QString NameOf(const QFileInfo& backup)
{
    static const QRegularExpression day(u"-\\d{4}-\\d{2}-\\d{2}(-\\d+)?$"_s);
    return backup.completeBaseName().remove(day);
}

const QString folderEnding = u"-Belege"_s;

// Where the receipts of a backup may lie: in the folder of the book that it is loaded into, and in those of other
// books, the one changed last first, for the book may have been somewhere else when the backup was made.
QStringList FoldersFor(const QString& backup, const QString& book)
{
    const QFileInfo file(backup);
    const QRegularExpression name(u'^' + QRegularExpression::escape(NameOf(file)) + u"(-[0-9a-f]{6})?"_s + folderEnding
                                  + u'$');
    QStringList folders{modReceiptFolder::CopyOf(book, backup)};
    const QFileInfoList all = file.absoluteDir().entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo& each : all) {
        if (name.match(each.fileName()).hasMatch()) {
            folders.append(each.filePath());
        }
    }
    return folders;
}

} // namespace

// A book opened by a link has its receipts where it lies.
QString modReceiptFolder::Of(const QString& book)
{
    const QFileInfo file(book);
    const QString canonical = file.canonicalFilePath();
    return QFileInfo(canonical.isEmpty() ? file.absoluteFilePath() : canonical).absolutePath() + u"/Belege"_s;
}

QString modReceiptFolder::CopyOf(const QString& book, const QString& backup)
{
    const QFileInfo file(backup);
    const QString mark = cBackup::PlaceMark(book);
    const bool isOwn = file.absoluteDir() == QDir(cBackup::OwnFolder(book)) || NameOf(file).contains(mark);
    return file.absolutePath() + u'/' + NameOf(file) + (isOwn ? QString() : u'-' + mark) + folderEnding;
}

QString modReceiptFolder::Save(const QString& book, const QString& backup)
{
    return CopyNew(QDir(Of(book)).entryInfoList(QDir::Files), CopyOf(book, backup));
}

QString modReceiptFolder::CopyTo(const QString& folder, const QString& book, const QStringList& names)
{
    QFileInfoList files;
    QString missing;
    for (const QString& name : names) {
        const QFileInfo file(QDir(Of(book)), name);
        if (file.isFile()) {
            files.append(file);
        } else if (missing.isEmpty()) {
            missing = cText::Tr("Der Beleg '{0}' fehlt im Ordner '{1}'.", {name, QDir::toNativeSeparators(Of(book))});
        }
    }
    const QString problem = CopyNew(files, folder);
    return problem.isEmpty() ? missing : problem;
}

QString modReceiptFolder::SaveIfWished(const cConfiguration& configuration, const QString& book, const QString& backup)
{
    return cSettings::ToBool(configuration.GetSetting(modSettingKey::ReceiptsInBackup)) ? Save(book, backup)
                                                                                        : QString();
}

QString modReceiptFolder::BringBack(const QString& backup, const QString& book, const QStringList& names)
{
    const QDir receipts(Of(book));
    const QStringList folders = FoldersFor(backup, book);
    QFileInfoList files;
    const QSet<QString> wanted(names.begin(), names.end());
    for (const QString& name : wanted) {
        const auto folder = std::find_if(folders.begin(), folders.end(),
                                         [&](const QString& each) { return QFileInfo(QDir(each), name).isFile(); });
        if (folder != folders.end() && !receipts.exists(name)) {
            files.append(QFileInfo(QDir(*folder), name));
        }
    }
    return CopyAll(files, receipts.path());
}
