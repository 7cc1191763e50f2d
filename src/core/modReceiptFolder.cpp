#include "core/modReceiptFolder.h"

#include "base/cText.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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
    const QString time = old.lastModified().toString(u"yyyy-MM-dd HHmmss"_s);
    return QFile::rename(old.filePath(),
                         old.absolutePath() + u"/%1 (bis %2)%3"_s.arg(old.completeBaseName(), time, ending));
}

enum class eSameName { Keep, StepAside };

QString CopyMissing(const QString& from, const QString& to, eSameName same)
{
    const QFileInfoList files = QDir(from).entryInfoList(QDir::Files | QDir::NoSymLinks);
    if (files.isEmpty()) {
        return {};
    }
    if (!QDir().mkpath(to)) {
        return cText::Tr("Der Ordner '{0}' kann nicht angelegt werden.", {QDir::toNativeSeparators(to)});
    }
    for (const QFileInfo& file : files) {
        const QFileInfo target(QDir(to), file.fileName());
        const bool isThere = target.exists();
        if (isThere && (same == eSameName::Keep || IsSame(file, target))) {
            continue;
        }
        if ((isThere && !StepAside(target)) || !CopyWhole(file, target.filePath())) {
            return cText::Tr("Der Beleg '{0}' konnte nicht nach '{1}' kopiert werden. Bitte prüfen Sie die "
                             "Zugriffsrechte und den Speicherplatz.",
                             {file.fileName(), QDir::toNativeSeparators(to)});
        }
    }
    return {};
}

} // namespace

QString modReceiptFolder::Of(const QString& book)
{
    return QFileInfo(book).absolutePath() + u"/Belege"_s;
}

QString modReceiptFolder::CopyOf(const QString& backup)
{
    static const QRegularExpression day(u"-\\d{4}-\\d{2}-\\d{2}(-\\d+)?$"_s);
    const QFileInfo file(backup);
    QString name = file.completeBaseName();
    return file.absolutePath() + u'/' + name.remove(day) + u"-Belege"_s;
}

QString modReceiptFolder::Save(const QString& book, const QString& backup)
{
    return CopyMissing(Of(book), CopyOf(backup), eSameName::StepAside);
}

QString modReceiptFolder::SaveIfWished(const cConfiguration& configuration, const QString& book, const QString& backup)
{
    return cSettings::ToBool(configuration.GetSetting(modSettingKey::ReceiptsInBackup)) ? Save(book, backup)
                                                                                        : QString();
}

QString modReceiptFolder::BringBack(const QString& backup, const QString& book)
{
    return CopyMissing(CopyOf(backup), Of(book), eSameName::Keep);
}
