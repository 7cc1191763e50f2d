#pragma once

#include "base/cHttps.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

// The way to a bank or the maker over the network of the machine, with its proxy and the certificates that it trusts.
// Nothing of the network is touched before the first message.
class cQtHttps final : public cHttps
{
public:
    struct cLimits
    {
        std::chrono::milliseconds Silence = std::chrono::seconds(60); // without a byte
        std::chrono::milliseconds Whole = std::chrono::minutes(5);
        qint64 MostBytes = 64LL * 1024 * 1024;
    };

    // `authorities` are certificates in PEM to trust beside those of the machine.
    explicit cQtHttps(const cLimits& limits, QByteArray authorities = {});
    cQtHttps() : cQtHttps(cLimits()) {}
    ~cQtHttps() override;

    [[nodiscard]] cHttpsAnswer Post(const QString& url, const QByteArray& body) override;
    [[nodiscard]] cHttpsAnswer Get(const cHttpsFile& file) override;
    void Cancel() override;

private:
    // What one exchange may take, and who is told how many bytes have come.
    struct cPatience
    {
        std::chrono::milliseconds Whole;
        qint64 MostBytes;
        std::function<void(qint64)> Came;
    };

    [[nodiscard]] cHttpsAnswer Obstacle(const QString& url) const; // without a fault where there is none
    [[nodiscard]] QNetworkAccessManager& Network();
    [[nodiscard]] QNetworkRequest Request(const QString& url) const;
    [[nodiscard]] cHttpsAnswer Wait(QNetworkReply& reply, const cPatience& patience);

    const cLimits m_limits;
    const QByteArray m_authorities;
    std::unique_ptr<QNetworkAccessManager> m_network;
    QNetworkReply* m_running = nullptr;
    eHttpsFault m_stopped = eHttpsFault::None; // why the running exchange was ended from here
};
