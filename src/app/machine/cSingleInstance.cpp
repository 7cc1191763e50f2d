#include "app/machine/cSingleInstance.h"

#include "app/machine/cFileLock.h"
#include "base/modMD5.h"

#include <QFile>
#include <QLocalSocket>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int WaitMilliseconds = 1000;
constexpr qint64 MostBytes = 1'000'000; // of a request

// In the folder of the signed-in user, which nobody else can look into or put anything in. Without one the file would
// lie where everybody writes; then the name names no place, and nobody answers.
QString InUsersFolder(const QString& name)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (const QString sandbox = qEnvironmentVariable("FLATPAK_ID"); !folder.isEmpty() && !sandbox.isEmpty()) {
        folder += u"/app/"_s % sandbox; // of that folder each start in the sandbox has its own, but for this part
    }
    return folder.isEmpty() ? QString() : QString(folder % u'/' % name);
}

QString ServerName(const QString& database)
{
    return InUsersFolder(u"kontorelle-"_s + modMD5::Hex(cFileLock::CanonicalPath(database)));
}

QString UsedName(const QString& profile)
{
    return InUsersFolder(u"kontorelle-used-"_s + modMD5::Hex(profile));
}

} // namespace

cSingleInstance::cSingleInstance(QObject* parent) : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server.nextPendingConnection()) {
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
            connect(caller, &QLocalSocket::readyRead, this, [this, caller] { Take(*caller); });
        }
    });
}

void cSingleInstance::Listen(const QString& database)
{
    m_server.close();
    // The lock file says that nobody else works on this database, so a name that is still taken is a dead program's.
    const QString name = ServerName(database);
    if (!name.isEmpty()) {
        QLocalServer::removeServer(name);
        m_server.listen(name);
    }
}

void cSingleInstance::NoteUsed(const QString& profile, const QString& database)
{
    QSaveFile file(UsedName(profile)); // the book is found without it, only not while it is open
    if (file.open(QIODevice::WriteOnly)) {
        file.write(database.toUtf8());
        (void)file.commit();
    }
}

QString cSingleInstance::LastUsed(const QString& profile)
{
    QFile file(UsedName(profile));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void cSingleInstance::Take(QLocalSocket& caller)
{
    if (!caller.canReadLine()) {
        if (caller.bytesAvailable() > MostBytes) {
            caller.abort();
        }
        return;
    }
    const std::optional<cStartRequest> request = cStartRequest::FromLine(caller.readLine(MostBytes));
    if (request) {
        caller.write("ok\n");
        caller.flush();
    }
    caller.disconnectFromServer();
    if (request) {
        Q_EMIT Requested(*request);
    }
}

bool cSingleInstance::HandOver(const QString& database, const cStartRequest& request)
{
    QLocalSocket socket;
    socket.connectToServer(ServerName(database));
    if (!socket.waitForConnected(WaitMilliseconds)) {
        return false;
    }
    socket.write(request.ToLine());
    socket.flush();
    // Only an answer counts: a program that hangs accepts the connection as well.
    return socket.waitForReadyRead(WaitMilliseconds);
}
