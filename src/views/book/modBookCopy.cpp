#include "views/book/modBookCopy.h"

#include "base/cBookLock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBackup.h"
#include "core/cBook.h"
#include "core/cSettings.h"
#include "core/modDemo.h"
#include "core/modReceiptFolder.h"
#include "core/modReceiptUse.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString NotWritten(const QString& path)
{
    return cText::Tr("Die Datei '{0}' kann nicht geschrieben werden.", {path});
}

// The number of its entries; negative where they could not all be written.
int FillDemo(const QString& path, const modDemo::cDemoPlan& plan, cUser& user, const QString& version)
{
    cBook book(user);
    if (!book.Open(path) || !modDemo::Write(book.Data(), plan)) {
        return -1;
    }
    // Nothing in it is older than this version, so nobody needs a copy of it before an upgrade.
    book.Settings().Set(modSettingKey::LastCommandLineVersion, version);
    return book.Data().CountEntries();
}

} // namespace

QString modBookCopy::Refusal(const QString& backup)
{
    return modBookFile::Refusal(backup, modBookFile::Look(backup));
}

QString modBookCopy::Describe(const QString& path)
{
    const modBookFile::cContent content = modBookFile::Look(path);
    return modBookFile::IsSound(content) ? modBookFile::Describe(content) : QString();
}

bool modBookCopy::IsSameFile(const QString& one, const QString& other)
{
    return cBackup::IsSameFile(one, other);
}

QString modBookCopy::InUse(const cBookLock& lock, const QString& path)
{
    const QStringList values{path, lock.HolderOf(path), lock.FileOf(path)};
    return lock.IsAbandoned(path)
        ? cText::Tr("Die Datenbank '{0}' ist in Benutzung: {1}. Auf diesem Rechner läuft dieses Programm nicht. Ist es "
                    "abgestürzt, löschen Sie die Datei '{2}', und versuchen Sie es noch einmal. Läuft es auf einem "
                    "anderen Rechner, beenden Sie es dort; lesende Befehle gehen auch so.",
                    values)
        : cText::Tr("Die Datenbank '{0}' ist in Benutzung: {1}. Beenden Sie dieses Programm, und versuchen Sie "
                    "es noch einmal; lesende Befehle gehen auch so.",
                    values);
}

modBookCopy::cRestored modBookCopy::Restore(const QString& path, const QString& backup, QDate today, cShell& shell,
                                            cBookLock& lock, cUser& user)
{
    if (lock.Take(path) == eLockState::Foreign) {
        return {{}, InUse(lock, path)};
    }
    cDatabase closed;
    const cBackup::cRestored restored = cBackup(closed, shell).Restore(path, backup, today);
    cBook book(user);
    const bool isOpen = restored.Problem.isEmpty() && book.OpenForReading(path);
    return {restored.Kept, restored.Problem,
            isOpen ? modReceiptFolder::BringBack(backup, path, modReceiptUse::Names(book.Data())) : QString()};
}

int modBookCopy::WriteDemo(const QString& path, int entries, QDate today, cShell& shell, cUser& user,
                           const QString& version)
{
    // A part of it, left where the disk was full, would be taken for the household the next time.
    const QString working = modBookFile::WorkingName(path);
    QString problem = shell.FileExists(path)
        ? cText::Tr("Die Datei '{0}' gibt es schon. Bitte nennen Sie eine neue.", {path})
        : modSchema::FromTemplate(shell, working);
    const int written = problem.isEmpty() ? FillDemo(working, modDemo::OfSize(entries, today), user, version) : -1;
    if (written >= 0 && !modBookFile::MoveOver(working, path)) {
        problem = NotWritten(path);
    }
    if (!problem.isEmpty()) {
        user.Show(eTone::Critical, problem);
    }
    if (written >= 0 && problem.isEmpty()) {
        return written;
    }
    modBookFile::Remove(working);
    return -1;
}
