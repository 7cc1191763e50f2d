#include "app/cSingleInstance.h"

#include "app/cFileLock.h"
#include "base/modMD5.h"

#include <QLocalSocket>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int WaitMilliseconds = 1000;

QString ServerName(const QString& database)
{
    return u"kontorelle-"_s + modMD5::Hex(cFileLock::CanonicalPath(database));
}

} // namespace

cSingleInstance::cSingleInstance(QObject* parent) : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server.nextPendingConnection()) {
            caller->write("ok\n");
            caller->flush();
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
            caller->disconnectFromServer();
            Q_EMIT RaiseRequested();
        }
    });
}

void cSingleInstance::Listen(const QString& database)
{
    m_server.close();
    // The lock file says that nobody else works on this database, so a name that is still taken is a dead program's.
    QLocalServer::removeServer(ServerName(database));
    m_server.listen(ServerName(database));
}

bool cSingleInstance::RaiseOther(const QString& database)
{
    QLocalSocket socket;
    socket.connectToServer(ServerName(database));
    // Only an answer counts: a program that hangs accepts the connection as well.
    return socket.waitForConnected(WaitMilliseconds) && socket.waitForReadyRead(WaitMilliseconds);
}
