#pragma once

#include <QByteArray>
#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>

#include <functional>

// A web server on loopback that answers every request with what the test says.
class cTlsServer final : public QObject
{
public:
    // What comes back for a body: the whole answer with its head; nothing for silence.
    using fnAnswer = std::function<QByteArray(const QByteArray& body)>;

    cTlsServer(const QString& certificate, fnAnswer answer) : m_answer(std::move(answer))
    {
        const QString folder = QStringLiteral(TEST_DATA "/tls/");
        QFile key(folder + certificate + QStringLiteral(".key"));
        const bool isOpen = key.open(QIODevice::ReadOnly);
        QSslConfiguration security = QSslConfiguration::defaultConfiguration();
        security.setLocalCertificateChain(QSslCertificate::fromPath(folder + certificate + QStringLiteral(".pem")));
        security.setPrivateKey(isOpen ? QSslKey(&key, QSsl::Rsa) : QSslKey());
        m_server.setSslConfiguration(security);
        connect(&m_server, &QSslServer::pendingConnectionAvailable, this,
                [this] { Serve(m_server.nextPendingConnection()); });
        if (!m_server.listen(QHostAddress::LocalHost)) {
            qFatal("no port");
        }
    }

    [[nodiscard]] QString Url(const QString& host = QStringLiteral("localhost")) const
    {
        return QStringLiteral("https://%1:%2/fints").arg(host).arg(m_server.serverPort());
    }

    // The certificate that those of the tests are signed with.
    [[nodiscard]] static QByteArray Authority()
    {
        QFile file(QStringLiteral(TEST_DATA "/tls/authority.pem"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // Says nothing and closes the connection.
    static inline const QByteArray Hangup = "hang up";

    [[nodiscard]] static QByteArray Redirect(const QByteArray& to)
    {
        return "HTTP/1.1 302 Found\r\nLocation: " + to + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
    }
    [[nodiscard]] static QByteArray Page(const QByteArray& body, const QByteArray& status = "200 OK")
    {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
            + "\r\nConnection: close\r\n\r\n" + body;
    }

    QList<QByteArray> Requests; // heads and bodies as they came

private:
    void Serve(QTcpSocket* socket)
    {
        if (socket == nullptr) {
            return;
        }
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, all = QByteArray()]() mutable {
            all += socket->readAll();
            const qsizetype end = all.indexOf("\r\n\r\n");
            if (end < 0 || all.size() < end + 4 + Length(all.first(end))) {
                return;
            }
            Requests.append(all);
            const QByteArray answer = m_answer(all.mid(end + 4));
            if (answer == Hangup) {
                socket->abort();
            } else if (!answer.isEmpty()) {
                socket->write(answer);
                socket->disconnectFromHost();
            }
        });
    }

    [[nodiscard]] static qsizetype Length(const QByteArray& head)
    {
        const QByteArray name = "content-length:";
        const qsizetype at = head.toLower().indexOf(name);
        return at < 0 ? 0 : head.mid(at + name.size()).split('\r').constFirst().trimmed().toLongLong();
    }

    QSslServer m_server;
    fnAnswer m_answer;
};
