#include "core/cBackup.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modLog.h"
#include "store/cDatabase.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

// The copy while it is made. Another program may be at the same work, so an existing one is left alone.
QString WorkingName(const QString& target)
{
    QString name = target + u".neu"_s;
    for (int number = 2; QFileInfo::exists(name); ++number) {
        name = target + u".neu"_s + QString::number(number);
    }
    return name;
}

// Gives a file another name in one move, also where a file of that name exists.
bool MoveOver(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return !error;
}

QString CannotWrite(const QString& path)
{
    return cText::Tr(
        "In den Ordner '{0}' kann nicht geschrieben werden. Bitte prüfen Sie die Zugriffsrechte und den Speicherplatz.",
        {QDir::toNativeSeparators(QFileInfo(path).absolutePath())});
}

} // namespace

QString cBackup::Make(const QString& target)
{
    QElapsedTimer time;
    time.start();
    const QString problem = TryMake(target);
    qCInfo(modLog::Backup) << (problem.isEmpty() ? "made" : "not made") << "ms" << time.elapsed();
    return problem;
}

QString cBackup::TryMake(const QString& target)
{
    if (IsSameFile(target, m_book.Path())) {
        return cText::Tr("Die Datensicherung braucht einen anderen Namen als die Datenbank.");
    }
    if (!QDir().mkpath(QFileInfo(target).absolutePath())) {
        return CannotWrite(target);
    }
    const QString working = WorkingName(target);
    QString problem = MakeChecked(m_book, working);
    if (problem.isEmpty() && !MoveOver(working, target)) {
        problem = CannotWrite(target);
    }
    if (!problem.isEmpty()) {
        QFile::remove(working);
    }
    return problem;
}

// Copies and looks whether the copy is a sound book; what is wrong with it.
QString cBackup::MakeChecked(cDatabase& source, const QString& copy)
{
    if (const std::optional<cDatabaseError> error = modBookFile::Copy(source, copy)) {
        qCInfo(modLog::Backup) << "not copied, fault" << static_cast<int>(error->Fault());
        return error->Fault() == eDatabaseFault::NoAccess ? CannotWrite(copy) : error->Text();
    }
    const modBookFile::cContent content = modBookFile::Look(copy);
    if (content.Fault != eDatabaseFault::None) {
        return cText::Tr("Die Kopie kann nicht gelesen werden.");
    }
    return content.Problems.isEmpty() ? QString()
                                      : cText::Tr("Die Kopie ist beschädigt: {0}", {content.Problems.constFirst()});
}

cBackup::cRestored cBackup::Restore(const QString& path, const QString& backup, QDate today)
{
    QElapsedTimer time;
    time.start();
    cRestored restored = TryRestore(path, backup, today);
    qCInfo(modLog::Backup) << (restored.Problem.isEmpty() ? "restored" : "not restored") << "ms" << time.elapsed();
    return restored;
}

cBackup::cRestored cBackup::TryRestore(const QString& path, const QString& backup, QDate today)
{
    cDatabase source;
    if (modSchema::OpenValid(source, backup, eOpenMode::ReadOnly) != eDatabaseFault::None) {
        return {{}, cText::Tr("Die Datensicherung '{0}' ist beschädigt oder keine gültige Datenbank.", {backup})};
    }
    const QString working = WorkingName(path);
    cRestored restored{{}, MakeChecked(source, working)};
    if (restored.Problem.isEmpty()) {
        m_book.Close();
        const bool isThere = m_shell.FileExists(path);
        restored.Kept = isThere ? modBookFile::KeepAside(m_shell, path, today, u"ersetzt"_s) : QString();
        const bool isFree = !isThere || !restored.Kept.isEmpty();
        if (isFree && m_shell.RenameFile(working, path)) {
            return restored;
        }
        restored.Problem = CannotWrite(path);
        if (!restored.Kept.isEmpty() && m_shell.RenameFile(restored.Kept, path)) {
            restored.Kept.clear();
        }
    }
    QFile::remove(working);
    return restored;
}

bool cBackup::PutBack(const QString& path, const QString& kept)
{
    QFile::remove(path);
    return kept.isEmpty() || m_shell.RenameFile(kept, path);
}

bool cBackup::IsSameFile(const QString& one, const QString& other)
{
    return QFileInfo(one) == QFileInfo(other);
}
