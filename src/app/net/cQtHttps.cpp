#include "net/cQtHttps.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QScopeGuard>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

class cSystemProxy final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override { return systemProxyForQuery(query); }
};

// The body of a message, which can be read once. The toolkit sends a request up to three times more when the server
// closes the connection without an answer; a message holds a PIN, and so many wrong ones lock the access.
class cReadOnce final : public QIODevice
{
public:
    explicit cReadOnce(const QByteArray& bytes) : m_bytes(bytes) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return m_at == m_bytes.size(); }
    [[nodiscard]] qint64 bytesAvailable() const override { return m_bytes.size() - m_at; }
    bool reset() override { return false; }

protected:
    qint64 readData(char* to, qint64 most) override
    {
        const qint64 size = qMin<qint64>(most, m_bytes.size() - m_at);
        std::copy_n(m_bytes.constData() + m_at, size, to);
        m_at += size;
        return size == 0 && most > 0 ? -1 : size;
    }
    qint64 writeData(const char* /*bytes*/, qint64 /*size*/) override { return -1; }

private:
    const QByteArray m_bytes;
    qsizetype m_at = 0;
};

QSslConfiguration Security(const QByteArray& authorities)
{
    QSslConfiguration security = QSslConfiguration::defaultConfiguration();
    security.setProtocol(QSsl::TlsV1_2OrLater);
    security.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!authorities.isEmpty()) {
        security.addCaCertificates(QSslCertificate::fromData(authorities));
    }
    return security;
}

eHttpsFault FaultOf(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::NoError: return eHttpsFault::None;
    case QNetworkReply::SslHandshakeFailedError: return eHttpsFault::Certificate;
    case QNetworkReply::RemoteHostClosedError: // the bank may have got the message all the same
    case QNetworkReply::ContentReSendError:    // hung up without an answer, see cReadOnce
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError: // by the transfer timeout; what is ended from here has its reason
                                                // already
        return eHttpsFault::Silent;
    case QNetworkReply::TooManyRedirectsError:
    case QNetworkReply::InsecureRedirectError: // to another server
        return eHttpsFault::Refused;
    default:
        // Those of the network and of the proxy come first; from 200 on the server has answered.
        return error < QNetworkReply::ContentAccessDenied ? eHttpsFault::NotReachable : eHttpsFault::Refused;
    }
}

} // namespace

cQtHttps::cQtHttps(const cLimits& limits, QByteArray authorities)
    : m_limits(limits),
      m_authorities(std::move(authorities))
{
}

cQtHttps::~cQtHttps() = default;

cHttpsAnswer cQtHttps::Obstacle(const QString& url) const
{
    if (QUrl(url).scheme() != "https"_L1 || QUrl(url).host().isEmpty()) {
        return {eHttpsFault::NotReachable, {}, u"not an https address"_s};
    }
    if (m_running != nullptr) {
        return {eHttpsFault::NotReachable, {}, u"another exchange is under way"_s};
    }
    return {};
}

QNetworkAccessManager& cQtHttps::Network()
{
    if (!m_network) {
        m_network = std::make_unique<QNetworkAccessManager>();
        m_network->setProxyFactory(new cSystemProxy); // belongs to the manager from here on
        m_network->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    }
    // Each message has a connection of its own: one that waited while the user looked for a TAN may be closed at the
    // other end, which would only be noticed once the message is on its way.
    m_network->clearConnectionCache();
    return *m_network;
}

cHttpsAnswer cQtHttps::Post(const QString& url, const QByteArray& body)
{
    if (cHttpsAnswer obstacle = Obstacle(url); obstacle.Fault != eHttpsFault::None) {
        return obstacle;
    }
    QNetworkRequest request = Request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/plain"_s);
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true); // a copy could be read again
    cReadOnce once(body);
    const std::unique_ptr<QNetworkReply> reply(Network().post(request, &once));
    return Wait(*reply, {m_limits.Whole, m_limits.MostBytes, {}});
}

cHttpsAnswer cQtHttps::Get(const cHttpsFile& file)
{
    if (cHttpsAnswer obstacle = Obstacle(file.Url); obstacle.Fault != eHttpsFault::None) {
        return obstacle;
    }
    constexpr int mostRedirects = 3;
    QNetworkRequest request = Request(file.Url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setRawHeader("Accept-Language", "*");        // the toolkit would name the user's
    request.setRawHeader("Accept-Encoding", "identity"); // what is checked is what was sent
    const std::unique_ptr<QNetworkReply> reply(Network().get(request));
    return Wait(*reply, {file.Whole, file.MostBytes, file.Came});
}

void cQtHttps::Cancel()
{
    if (m_running != nullptr) {
        m_stopped = eHttpsFault::Cancelled;
        m_running->abort();
    }
}

QNetworkRequest cQtHttps::Request(const QString& url) const
{
    QNetworkRequest request{QUrl(url)};
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Kontorelle"_s);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setTransferTimeout(static_cast<int>(m_limits.Silence.count()));
    request.setSslConfiguration(Security(m_authorities));
    return request;
}

cHttpsAnswer cQtHttps::Wait(QNetworkReply& reply, const cPatience& patience)
{
    m_running = &reply;
    const auto done = qScopeGuard([this] { m_running = nullptr; });
    m_stopped = eHttpsFault::None;
    QByteArray bytes;
    const auto stop = [this, &reply](eHttpsFault why) {
        m_stopped = why;
        reply.abort();
    };
    QObject::connect(&reply, &QNetworkReply::readyRead, &reply, [&] {
        bytes += reply.readAll();
        if (bytes.size() > patience.MostBytes) {
            stop(eHttpsFault::TooLarge);
        } else if (patience.Came) {
            patience.Came(bytes.size());
        }
    });
    QTimer whole;
    whole.setSingleShot(true);
    QObject::connect(&whole, &QTimer::timeout, &reply, [&] { stop(eHttpsFault::Silent); });
    whole.start(patience.Whole);
    QEventLoop loop;
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply.isFinished()) {
        loop.exec();
    }
    if (reply.isOpen()) {
        bytes += reply.readAll();
    }

    cHttpsAnswer answer;
    answer.Fault = m_stopped == eHttpsFault::None ? FaultOf(reply.error()) : m_stopped;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (answer.Fault == eHttpsFault::None && (status < 200 || status >= 300)) {
        answer.Fault = eHttpsFault::Refused; // redirects are no errors to the toolkit
    }
    if (answer.Fault == eHttpsFault::None || answer.Fault == eHttpsFault::Refused) {
        answer.Bytes = bytes;
    }
    if (answer.Fault != eHttpsFault::None) {
        answer.Reason = status == 0 ? reply.errorString() : u"HTTP %1"_s.arg(status);
    }
    return answer;
}
