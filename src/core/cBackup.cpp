#include "core/cBackup.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modLog.h"
#include "base/modMD5.h"
#include "store/cDatabase.h"
#include "store/modBookFile.h"
#include "store/modFailure.h"
#include "store/modSchema.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

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
    const QString working = modBookFile::WorkingName(target);
    QString problem = MakeChecked(m_book, working);
    if (problem.isEmpty() && !modBookFile::MoveOver(working, target)) {
        problem = CannotWrite(target);
    }
    if (!problem.isEmpty()) {
        modBookFile::Remove(working);
    }
    return problem;
}

// Copies and looks whether the copy is a sound book; what is wrong with it.
QString cBackup::MakeChecked(cDatabase& source, const QString& copy)
{
    if (const std::optional<cDatabaseError> error = modBookFile::Copy(source, copy)) {
        qCInfo(modLog::Backup) << "not copied, fault" << static_cast<int>(error->Fault());
        return error->Fault() == eDatabaseFault::NoAccess ? CannotWrite(copy) : modFailure::Reason(*error);
    }
    const modBookFile::cContent content = modBookFile::Look(copy);
    if (content.Fault != eDatabaseFault::None) {
        return cText::Tr("Die Kopie kann nicht gelesen werden.");
    }
    if (!content.Problems.isEmpty()) {
        return cText::Tr("Die Kopie ist beschädigt: {0}", {content.Problems.constFirst()});
    }
    return content.Lost.isEmpty() ? QString()
                                  : cText::Tr("Sie wäre unvollständig. Es fehlt: {0}", {content.Lost.join(u", "_s)});
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
    if (!QFileInfo::exists(backup)) {
        return {{}, cText::Tr("Die Datensicherung '{0}' wurde nicht gefunden. Bitte prüfen Sie den Pfad.", {backup})};
    }
    cDatabase source;
    if (modSchema::OpenValid(source, backup, eOpenMode::ReadOnly) != eDatabaseFault::None) {
        return {{}, cText::Tr("Die Datensicherung '{0}' ist beschädigt oder keine gültige Datenbank.", {backup})};
    }
    // A link to the book stays one, and leads to the new file.
    const QString place = QFileInfo(path).isSymLink() ? QFileInfo(path).canonicalFilePath() : path;
    const QString working = modBookFile::WorkingName(place);
    cRestored restored{{}, MakeChecked(source, working)};
    if (restored.Problem.isEmpty()) {
        m_book.Close();
        const std::optional<QString> kept = modBookFile::PutInPlace(m_shell, working, place, today, u"ersetzt"_s);
        if (kept) {
            restored.Kept = *kept;
            return restored;
        }
        restored.Problem = CannotWrite(path);
    }
    modBookFile::Remove(working);
    return restored;
}

bool cBackup::PutBack(const QString& path, const QString& kept)
{
    return kept.isEmpty() ? QFile::remove(path) : modBookFile::PutBack(m_shell, kept, path);
}

bool cBackup::IsSameFile(const QString& one, const QString& other)
{
    return QFileInfo(one) == QFileInfo(other);
}

QString cBackup::OwnFolder(const QString& book)
{
    return QFileInfo(book).absolutePath() + u"/Sicherungen"_s;
}

QString cBackup::PlaceMark(const QString& book)
{
    constexpr int letters = 6;
    return modMD5::Hex(QFileInfo(book).canonicalFilePath()).left(letters);
}
