#include "app/machine/cKernelLock.h"

#ifdef Q_OS_UNIX

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::Literals::StringLiterals;

namespace {

// Empty when the file cannot be looked at, or the system has no folder for what belongs to a session.
QString NameFor(const QString& path)
{
    struct stat facts = {};
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QFileInfo(folder).isDir() || stat(QFile::encodeName(path).constData(), &facts) != 0) {
        return {};
    }
    return folder + u"/kontorelle-%1-%2.lock"_s.arg(facts.st_dev, 0, 16).arg(facts.st_ino, 0, 16);
}

enum class eTaken { Yes, No, Impossible };

eTaken TryLock(int descriptor)
{
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return eTaken::Yes;
    }
    return errno == EWOULDBLOCK ? eTaken::No : eTaken::Impossible;
}

} // namespace

bool cKernelLock::Take(const QString& path)
{
    const QString name = NameFor(path);
    if (name.isEmpty() || (m_descriptor >= 0 && name == m_name)) {
        return true;
    }
    constexpr mode_t ownerOnly = 0600;
    const int descriptor = open(QFile::encodeName(name).constData(), O_RDWR | O_CREAT | O_CLOEXEC, ownerOnly);
    if (descriptor < 0) {
        return true;
    }
    const eTaken taken = TryLock(descriptor);
    if (taken != eTaken::Yes) {
        close(descriptor);
        return taken == eTaken::Impossible;
    }
    Release();
    m_descriptor = descriptor;
    m_name = name;
    return true;
}

// The small file stays: removed, it could be locked by one program while another makes it anew.
void cKernelLock::Release()
{
    if (m_descriptor >= 0) {
        close(m_descriptor);
        m_descriptor = -1;
    }
}

bool cKernelLock::IsHeldByKernel(const QString& lockFile)
{
    const int descriptor = open(QFile::encodeName(lockFile).constData(), O_RDWR | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const eTaken taken = TryLock(descriptor);
    close(descriptor);
    return taken == eTaken::No;
}

#else

bool cKernelLock::Take(const QString& /*path*/)
{
    return true;
}

void cKernelLock::Release()
{
}

bool cKernelLock::IsHeldByKernel(const QString& /*lockFile*/)
{
    return false; // a file in use cannot be removed there, which is found out then
}

#endif
