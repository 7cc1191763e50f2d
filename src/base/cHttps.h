#pragma once

#include <QByteArray>
#include <QString>

// Why an answer did not come.
enum class eHttpsFault {
    None,
    NotReachable, // no such host, no network, refused: nothing was sent
    Certificate,  // the server is not the one it claims to be; nothing was sent
    Silent,       // no whole answer: hung up, no byte for a minute, or not done after five
    TooLarge,
    Refused, // an answer that is no success, a redirect included; the bytes are what came with it
    Cancelled,
};

struct cHttpsAnswer
{
    eHttpsFault Fault = eHttpsFault::None;
    QByteArray Bytes;
    QString Reason; // of the machine, for the log; may be English
};

// The way to a bank: bytes out, bytes or a reason back.
class cHttps
{
public:
    cHttps() = default;
    cHttps(const cHttps&) = delete;
    cHttps& operator=(const cHttps&) = delete;
    virtual ~cHttps() = default;

    // Sends `body` as text/plain by POST over TLS 1.2 or newer with the host's certificate checked, follows no
    // redirect, and waits for the answer. The window stays alive meanwhile.
    [[nodiscard]] virtual cHttpsAnswer Post(const QString& url, const QByteArray& body) = 0;

    // Ends the exchange that is under way, if one is.
    virtual void Cancel() = 0;
};
