#include "app/cFileLock.h"

#include "base/cText.h"

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
    if (IsHeld() && m_lock->fileName() == name) {
        return eLockState::Held;
    }
    Release();
    m_lock = std::make_unique<QLockFile>(name);
    m_lock->setStaleLockTime(0); // a book may stay open for days; only a holder that is gone loses its lock
    if (m_lock->tryLock(0)) {
        return eLockState::Held;
    }
    const bool isForeign = m_lock->error() == QLockFile::LockFailedError;
    m_lock.reset();
    return isForeign ? eLockState::Foreign : eLockState::Impossible;
}

void cFileLock::Release()
{
    m_lock.reset();
}

QString cFileLock::Holder(const QString& database)
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!QLockFile(LockName(database)).getLockInfo(&process, &host, &program)) {
        return {};
    }
    return cText::Tr("{0} (Prozess {1} auf {2})", {program, QString::number(process), host});
}

QString cFileLock::CanonicalPath(const QString& database)
{
    const QFileInfo file(database);
    const QString canonical = file.canonicalFilePath();
    return canonical.isEmpty() ? file.absoluteFilePath() : canonical;
}
