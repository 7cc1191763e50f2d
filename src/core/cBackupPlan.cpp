#include "core/cBackupPlan.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBackup.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/modReceiptFolder.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/modBookFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

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

void cBackupPlan::BookOpened()
{
    TidyUp();
    const QList<cCopy> copies = Copies();
    const bool isCurrent = !copies.isEmpty()
        && QFileInfo(m_book.Path()).lastModified() <= QFileInfo(copies.constFirst().Path).lastModified();
    m_copied = isCurrent ? std::optional(m_book.Data().Journal().RowsWritten()) : std::nullopt;
}

// After a program that was killed. Only who writes the book makes copies of it, so nobody is at work on these files.
void cBackupPlan::TidyUp() const
{
    if (!m_book.IsReadOnly()) {
        modBookFile::TidyBeside(m_book.Path());
        modBookFile::RemoveWorking(
            Folder(), QRegularExpression::escape(Prefix()) + u"[0-9-]+"_s + QRegularExpression::escape(ending));
    }
}

void cBackupPlan::RunIfDue()
{
    const QDate day = m_ports.Clock.Today();
    if (!IsPossible() || m_configuration.GetSetting(modSettingKey::BackupLast) == modDate::ToIso(day)) {
        return;
    }
    // Today's copy was made before the book was replaced by an older one: one for today is enough.
    if (QFileInfo::exists(QDir(Folder()).filePath(Name(day, 1)))) {
        m_configuration.SaveSetting(modSettingKey::BackupLast, modDate::ToIso(day), eSettingPlace::Database);
    } else if (IsChanged()) {
        Copy();
    } else { // the newest copy is as good as the book
        SaveReceipts();
        m_configuration.SaveSetting(modSettingKey::BackupLast, modDate::ToIso(day), eSettingPlace::Database);
    }
}

void cBackupPlan::CopyIfChanged()
{
    if (!IsPossible()) {
        return;
    }
    if (IsChanged()) {
        Copy();
    } else {
        SaveReceipts(); // wished since the copy was made
        NoteCurrent();
    }
}

std::chrono::minutes cBackupPlan::CopyInUse()
{
    constexpr std::chrono::minutes retry{1};
    if (!IsIdle()) {
        return retry;
    }
    CopyIfChanged();
    return UseUntilCopy;
}

bool cBackupPlan::IsIdle() const
{
    return !m_book.Data().Journal().IsOpen();
}

bool cBackupPlan::IsPossible() const
{
    return m_book.IsOpen() && !m_book.Data().IsReadOnly() && IsIdle() && Count() > 0
        && m_book.Data().CountEntries() > 0;
}

bool cBackupPlan::IsChanged() const
{
    return m_copied != m_book.Data().Journal().RowsWritten() || Copies().isEmpty();
}

void cBackupPlan::Copy()
{
    const QDate day = m_ports.Clock.Today();
    const QList<cCopy> copies = Copies();
    const auto newest =
        std::find_if(copies.begin(), copies.end(), [day](const cCopy& copy) { return copy.Day == day; });
    const QString name = Name(day, newest == copies.end() ? 1 : newest->Number + 1);
    const QString target = QDir(Folder()).filePath(name);
    const QString problem = cBackup(m_book.Database(), m_ports.Shell).Make(target);
    if (!problem.isEmpty()) {
        TellOnceADay(modSettingKey::BackupFailed,
                     cText::Tr("Die automatische Datensicherung konnte nicht erstellt werden:\n{0}", {problem}));
        return;
    }
    SaveReceipts();
    m_copied = m_book.Data().Journal().RowsWritten();
    m_configuration.SaveSetting(modSettingKey::BackupLast, modDate::ToIso(day), eSettingPlace::Database);
    NoteCurrent();
    const QList<cCopy> surplus = SurplusCopies();
    for (const cCopy& copy : surplus) {
        QFile::remove(copy.Path);
    }
}

// Beside the newest copy. What keeps them from it is told once a day; the copy of the book is good all the same.
void cBackupPlan::SaveReceipts()
{
    const QList<cCopy> copies = Copies();
    const QString problem = copies.isEmpty()
        ? QString()
        : modReceiptFolder::SaveIfWished(m_configuration, m_book.Path(), copies.constFirst().Path);
    if (!problem.isEmpty()) {
        TellOnceADay(modSettingKey::ReceiptsFailed, problem);
    }
}

void cBackupPlan::TellOnceADay(const cSettingKey& key, const QString& text)
{
    const QString today = modDate::ToIso(m_ports.Clock.Today());
    if (m_configuration.GetSetting(key) != today) {
        m_configuration.SaveSetting(key, today, eSettingPlace::Database);
        m_ports.User.Show(eTone::Information, text);
    }
}

// The newest copy is as good as the book, although settings may have been written since. It gets the time of the book's
// file, by which the next program to open the book will know that.
void cBackupPlan::NoteCurrent()
{
    const QList<cCopy> copies = Copies();
    if (copies.isEmpty()) {
        return;
    }
    QFile newest(copies.constFirst().Path);
    if (newest.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        newest.setFileTime(QFileInfo(m_book.Path()).lastModified(), QFileDevice::FileModificationTime);
    }
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
    return cBackup::OwnFolder(m_book.Path());
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
    return name + (isOwnFolder ? QString() : u'-' + cBackup::PlaceMark(m_book.Path())) + u"-auto-"_s;
}

// The first copy of a day bears the day alone.
QString cBackupPlan::Name(QDate day, int number) const
{
    return Prefix() + modDate::ToIso(day) + (number > 1 ? u'-' + QString::number(number) : QString()) + ending;
}

QList<cBackupPlan::cCopy> cBackupPlan::Copies() const
{
    constexpr qsizetype dayLength = 10;
    const QDir folder(Folder());
    const QString prefix = Prefix();
    const QStringList names = folder.entryList(QDir::Files);
    QList<cCopy> copies;
    for (const QString& name : names) {
        if (!name.startsWith(prefix) || !name.endsWith(ending)) {
            continue;
        }
        const QStringView middle = QStringView(name).mid(prefix.size()).chopped(ending.size());
        const QDate day = modDate::FromIso(middle.left(dayLength));
        const int number = middle.size() > dayLength ? middle.mid(dayLength + 1).toInt() : 1;
        // Written back it has to be the name again: nobody else's file is taken for a copy of ours.
        if (day.isValid() && number > 0 && name == Name(day, number)) {
            copies.append({folder.filePath(name), day, number});
        }
    }
    std::sort(copies.begin(), copies.end(),
              [](const cCopy& a, const cCopy& b) { return std::pair(a.Day, a.Number) > std::pair(b.Day, b.Number); });
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

QList<cBackupPlan::cCopy> cBackupPlan::SurplusCopies() const
{
    const QDate today = m_ports.Clock.Today();
    const QList<cCopy> copies = Copies();
    QMap<QDate, int> seen; // copies by day, so far
    QList<cCopy> surplus;
    for (const cCopy& copy : copies) {
        const int newer = seen[copy.Day]++;
        // The first copy of today is from before all that was done today.
        const bool stays = copy.Day == today ? newer < MostOfToday - 1 || copy.Number == 1 : newer == 0;
        if (!stays) {
            surplus.append(copy);
        }
    }
    const QList<QDate> days = Surplus(seen.keys(), Count());
    std::copy_if(copies.begin(), copies.end(), std::back_inserter(surplus),
                 [&days](const cCopy& copy) { return days.contains(copy.Day); });
    return surplus;
}
