#include "core/cBackupPlan.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "base/modMD5.h"
#include "core/cBackup.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ending = u".backup"_s;

} // namespace

cBackupPlan::cBackupPlan(const cPorts& ports, cBook& book, cConfiguration& configuration)
    : m_ports(ports),
      m_book(book),
      m_configuration(configuration)
{
}

void cBackupPlan::RunIfDue()
{
    const QString today = modDate::ToIso(m_ports.Clock.Today());
    if (!m_book.IsOpen() || m_book.IsReadOnly() || Count() == 0 || !IsDue(today) || m_book.Data().CountEntries() == 0) {
        return;
    }
    // Today's copy was made before the book was replaced by an older one: it stays as it is.
    const QString target = PathOf(m_ports.Clock.Today());
    const QString problem =
        QFileInfo::exists(target) ? QString() : cBackup(m_book.Database(), m_ports.Shell).Make(target);
    if (problem.isEmpty()) {
        m_configuration.SaveSetting(modSettingKey::BackupLast, today, eSettingPlace::Database);
        RemoveSurplus();
        return;
    }
    if (m_configuration.GetSetting(modSettingKey::BackupFailed) != today) {
        m_configuration.SaveSetting(modSettingKey::BackupFailed, today, eSettingPlace::Database);
        m_ports.User.Show(eTone::Information,
                          cText::Tr("Die automatische Datensicherung konnte nicht erstellt werden:\n{0}", {problem}));
    }
}

bool cBackupPlan::IsDue(const QString& today) const
{
    return m_configuration.GetSetting(modSettingKey::BackupLast) != today;
}

int cBackupPlan::Count() const
{
    bool isNumber = false;
    const int count = m_configuration.GetSetting(modSettingKey::BackupCount).toInt(&isNumber);
    return isNumber ? std::clamp(count, 0, MostCount) : modSettingKey::BackupCount.Default().toInt();
}

QString cBackupPlan::Folder() const
{
    const QString folder = m_configuration.GetSetting(modSettingKey::BackupFolder);
    return folder.isEmpty() ? DefaultFolder() : folder;
}

QString cBackupPlan::DefaultFolder() const
{
    return QFileInfo(m_book.Path()).absolutePath() + u"/Sicherungen"_s;
}

bool cBackupPlan::Save(int count, const QString& folder)
{
    const bool isDefault = folder.isEmpty() || QDir(folder) == QDir(DefaultFolder());
    return !m_book.IsReadOnly()
        && m_configuration.SaveSetting(modSettingKey::BackupCount, QString::number(count), eSettingPlace::Database)
        && m_configuration.SaveSetting(modSettingKey::BackupFolder, isDefault ? QString() : QDir::cleanPath(folder),
                                       eSettingPlace::Database);
}

// The book's name tells its copies from those of another book in the same folder. In a folder of the user's choice
// books of one name from several places may meet, so a mark of the place is added.
QString cBackupPlan::Prefix() const
{
    const QFileInfo file(m_book.Path());
    const QString name = file.suffix() == "db"_L1 ? file.completeBaseName() : file.fileName();
    const bool isOwnFolder = QDir(Folder()) == QDir(DefaultFolder());
    constexpr int markLength = 6;
    return name + (isOwnFolder ? QString() : u'-' + modMD5::Hex(file.canonicalFilePath()).left(markLength))
        + u"-auto-"_s;
}

QString cBackupPlan::PathOf(QDate day) const
{
    return QDir(Folder()).filePath(Prefix() + modDate::ToIso(day) + ending);
}

// Newest first.
QList<QDate> cBackupPlan::Days() const
{
    const QString prefix = Prefix();
    const QStringList names = QDir(Folder()).entryList(QDir::Files);
    QList<QDate> days;
    for (const QString& name : names) {
        if (!name.startsWith(prefix) || !name.endsWith(ending)) {
            continue;
        }
        const QDate day = modDate::FromIso(QStringView(name).mid(prefix.size()).chopped(ending.size()));
        // Written back it has to be the name again: nobody else's file is taken for a copy of ours.
        if (day.isValid() && name == prefix + modDate::ToIso(day) + ending) {
            days.append(day);
        }
    }
    std::sort(days.begin(), days.end(), std::greater<>());
    return days;
}

QList<cBackupPlan::cCopy> cBackupPlan::Copies() const
{
    QList<cCopy> copies;
    const QList<QDate> days = Days();
    for (const QDate day : days) {
        copies.append({PathOf(day), day});
    }
    return copies;
}

QList<QDate> cBackupPlan::Surplus(QList<QDate> days, int count)
{
    std::sort(days.begin(), days.end(), std::greater<>());
    std::set<int> months;
    QList<QDate> surplus;
    for (qsizetype i = 0; i < days.size(); ++i) {
        constexpr int monthsPerYear = 12;
        const bool isLastOfMonth = months.insert(days[i].year() * monthsPerYear + days[i].month()).second;
        if (i >= count && !isLastOfMonth) {
            surplus.append(days[i]);
        }
    }
    return surplus;
}

void cBackupPlan::RemoveSurplus() const
{
    const QList<QDate> surplus = Surplus(Days(), Count());
    for (const QDate day : surplus) {
        QFile::remove(PathOf(day));
    }
}
