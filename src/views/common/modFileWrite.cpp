#include "views/common/modFileWrite.h"

#include "base/cText.h"
#include "base/modMD5.h"
#include "core/cStartRequest.h"
#include "store/cDataAccess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

// The new file beside its target until it is whole. Its name depends on the target only, so what a killed program left
// is found by the next one; the system's lock tells whether somebody is still writing it. The functions return the
// system's number of the error, 0 when all went well.
class cPart
{
public:
    explicit cPart(const QFileInfo& target)
        : m_folder(QFile::encodeName(target.absolutePath())),
          m_target(QFile::encodeName(target.absoluteFilePath())),
          m_path(m_folder + "/.kontorelle-" + modMD5::Hex(target.fileName()).toLatin1() + ".teil")
    {
    }
    cPart(const cPart&) = delete;
    cPart& operator=(const cPart&) = delete;
    ~cPart()
    {
        if (m_file >= 0) {
            ::unlink(m_path.constData());
            ::close(m_file);
        }
    }

    [[nodiscard]] int Create()
    {
        int error = TryCreate();
        if (error == EEXIST) {
            error = RemoveLeftover();
            error = error == 0 ? TryCreate() : error;
        }
        return error;
    }

    [[nodiscard]] int Write(const QByteArray& bytes) const
    {
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t count = ::write(m_file, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
            if (count < 0 && errno != EINTR) {
                return errno;
            }
            done += count > 0 ? count : 0;
        }
        return ::fsync(m_file) == 0 ? 0 : errno;
    }

    // Takes the place of the target, with its rights.
    [[nodiscard]] int Finish()
    {
        struct stat old
        {
        };
        if (::stat(m_target.constData(), &old) == 0) {
            (void)::fchmod(m_file, old.st_mode & ~static_cast<mode_t>(S_IFMT)); // not every file system has rights
        }
        // Some servers only say at the closing that there is no room. The lock lasts as long as the file is open once.
        const int closed = ::dup(m_file);
        int error = closed >= 0 && ::close(closed) == 0 ? 0 : errno;
        if (error == 0 && std::rename(m_path.constData(), m_target.constData()) != 0) {
            error = errno;
        }
        if (error == 0) {
            SyncFolder();
            ::close(m_file);
            m_file = -1;
        }
        return error;
    }

private:
    [[nodiscard]] int TryCreate()
    {
        constexpr mode_t rights = 0666; // less what the user's mask takes away
        m_file = ::open(m_path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rights);
        if (m_file < 0) {
            return errno;
        }
        (void)::flock(m_file, LOCK_EX | LOCK_NB); // no file system without locks shall keep anybody from writing
        return 0;
    }

    [[nodiscard]] int RemoveLeftover() const
    {
        const int file = ::open(m_path.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        const bool isBusy = file >= 0 && ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        int error = EBUSY;
        if (!isBusy) {
            error = ::unlink(m_path.constData()) == 0 ? 0 : errno;
        }
        if (file >= 0) {
            ::close(file);
        }
        return error;
    }

    // The new name counts after a power cut as well. The file is there either way, so nothing depends on the result.
    void SyncFolder() const
    {
        if (const int folder = ::open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); folder >= 0) {
            (void)::fsync(folder);
            ::close(folder);
        }
    }

    QByteArray m_folder;
    QByteArray m_target;
    QByteArray m_path;
    int m_file = -1;
};

// The system's own words are for errors that no household meets.
QString Reason(int error, const QFileInfo& target)
{
    switch (error) {
    case 0: return {};
    case ENOSPC:
    case EDQUOT:
        return cText::Tr("Der Datenträger ist voll. Bitte schaffen Sie Platz und versuchen Sie es noch einmal.");
    case EFBIG: return cText::Tr("Die Datei ist für diesen Datenträger zu groß.");
    case EACCES:
    case EPERM: return cText::Tr("Dafür fehlen Ihnen in diesem Ordner die Rechte.");
    case EROFS: return cText::Tr("Der Datenträger kann nur gelesen werden.");
    case ENOENT:
    case ENOTDIR:
        return cText::Tr("Den Ordner '{0}' gibt es nicht.", {QDir::toNativeSeparators(target.absolutePath())});
    case ENAMETOOLONG: return cText::Tr("Der Name ist zu lang.");
    case EIO: return cText::Tr("Der Datenträger meldet einen Fehler beim Schreiben.");
    case EBUSY: return cText::Tr("Ein anderes Programm schreibt gerade dieselbe Datei.");
    default: return QString::fromLocal8Bit(std::strerror(error));
    }
}

// True for a database and for what is kept beside one while it is open. A look into the file tells more than the path
// of the open book would: safety copies, other books and second names of a book are as dear.
bool IsOfDatabase(const QFileInfo& target)
{
    const QString path = target.absoluteFilePath();
    const std::array<QLatin1StringView, 4> companions{"-journal"_L1, "-wal"_L1, "-shm"_L1, ".lock"_L1};
    return cStartRequest::IsDatabase(path)
        || std::any_of(companions.begin(), companions.end(), [&path](QLatin1StringView ending) {
               return path.endsWith(ending) && cStartRequest::IsDatabase(path.chopped(ending.size()));
           });
}

// Why nothing may take the place of what stands there; empty when something may.
QString Obstacle(const QFileInfo& target)
{
    if (target.isSymLink() && !target.exists()) {
        return cText::Tr("Sie ist eine Verknüpfung mit einer Datei, die es nicht gibt.");
    }
    if (target.isDir()) {
        return cText::Tr("Unter diesem Namen gibt es einen Ordner.");
    }
    if (target.exists() && !target.isFile()) {
        return cText::Tr("Unter diesem Namen gibt es etwas anderes als eine Datei, zum Beispiel ein Gerät.");
    }
    if (IsOfDatabase(target)) {
        return cText::Tr("Sie gehört zu einer Datenbank, zum Beispiel zu Ihrem Haushaltsbuch oder zu einer "
                         "Datensicherung. Bitte wählen Sie einen anderen Namen.");
    }
    return target.exists() && !target.isWritable() ? cText::Tr("Die Datei ist schreibgeschützt.") : QString();
}

} // namespace

QString modFileWrite::Replace(const QString& path, const QByteArray& bytes)
{
    const QFileInfo named(path);
    if (const QString obstacle = Obstacle(named); !obstacle.isEmpty()) {
        return obstacle;
    }
    // A link stays one: the file that it leads to is replaced.
    const QFileInfo target(named.exists() ? named.canonicalFilePath() : named.absoluteFilePath());
    cPart part(target);
    int error = part.Create();
    error = error == 0 ? part.Write(bytes) : error;
    error = error == 0 ? part.Finish() : error;
    return Reason(error, target);
}

QString modFileWrite::Export(const cDataAccess& book, const QString& path, const QByteArray& bytes)
{
    QString reason;
    if (!book.IsWhole()) {
        reason = cText::Tr("Das Buch konnte nicht vollständig gelesen werden.");
    } else if (bytes.isEmpty()) {
        reason = cText::Tr("Ihr Inhalt konnte nicht zusammengestellt werden. Vielleicht ist der Datenträger voll, auf "
                           "dem das System Zwischendateien ablegt.");
    } else {
        reason = Replace(path, bytes);
    }
    return reason.isEmpty() ? QString() : Failed(path, reason);
}

QString modFileWrite::Export(const cDataAccess& book, const QString& path, const cContent& content)
{
    return content.Fault.isEmpty() ? Export(book, path, content.Bytes) : Failed(path, content.Fault);
}

QString modFileWrite::Failed(const QString& path, const QString& reason)
{
    return cText::Tr("Die Datei '{0}' konnte nicht geschrieben werden: {1}\nWas dort schon stand, ist unverändert.",
                     {QDir::toNativeSeparators(path), reason});
}

QString modFileWrite::NameOf(const QString& title)
{
    return QString(title).replace(u'.', u'-').replace(u'/', u'-');
}
