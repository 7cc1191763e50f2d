#include "app/machine/cFileLock.h"

#include "base/cText.h"
#include "base/modDate.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

QString LockName(const QString& database)
{
    return cFileLock::CanonicalPath(database) + u".lock"_s;
}

} // namespace

eLockState cFileLock::Take(const QString& database)
{
    const QString name = LockName(database);
    if (!IsHeld() || m_lock->fileName() != name) {
        Release();
        auto lock = std::make_unique<QLockFile>(name);
        lock->setStaleLockTime(0); // a book may stay open for days; only a holder that is gone loses its lock
        if (!lock->tryLock(0)) {
            return lock->error() == QLockFile::LockFailedError ? eLockState::Foreign : eLockState::Impossible;
        }
        m_lock = std::move(lock);
        m_file = std::make_unique<cKernelLock>();
    }
    // Also when the lock was held: the file may be another one since.
    if (!m_file->Take(database)) {
        Release();
        return eLockState::Foreign;
    }
    return eLockState::Held;
}

eLockState cFileLock::TakeOver(const QString& database)
{
    (void)QLockFile(LockName(database)).removeStaleLockFile(); // refused while a program of this machine holds it
    return Take(database);
}

bool cFileLock::IsAbandoned(const QString& database) const
{
    const QString name = LockName(database);
    return QFileInfo::exists(name) && !cKernelLock::IsHeldByKernel(name);
}

QString cFileLock::FileOf(const QString& database) const
{
    return LockName(database);
}

void cFileLock::Release()
{
    m_file.reset();
    m_lock.reset();
}

QString cFileLock::Holder(const QString& database)
{
    const QFileInfo file(LockName(database));
    if (!file.exists()) {
        cKernelLock other;
        return other.Take(database) ? QString()
                                    : cText::Tr("ein Programm, das sie unter einem anderen Namen geöffnet hat");
    }
    const QDateTime time = file.lastModified();
    const QString since = modDate::ToText(time.date()) + time.toString(u" HH:mm"_s);
    qint64 process = 0;
    QString host;
    QString program;
    if (!QLockFile(file.filePath()).getLockInfo(&process, &host, &program)) {
        return cText::Tr("ein unbekanntes Programm, seit {0}", {since});
    }
    return cText::Tr("{0} (Prozess {1} auf {2}, seit {3})", {program, QString::number(process), host, since});
}

QString cFileLock::CanonicalPath(const QString& database)
{
    const QFileInfo file(database);
    const QString canonical = file.canonicalFilePath();
    return canonical.isEmpty() ? file.absoluteFilePath() : canonical;
}
