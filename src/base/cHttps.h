#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>

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

// A file that a server has for everybody.
struct cHttpsFile
{
    QString Url;
    qint64 MostBytes = 0;               // more of them are TooLarge
    std::chrono::seconds Whole;         // the longest that all of it may take
    std::function<void(qint64)> Came{}; // told how many bytes are there, each time when there are more
};

// The way to a bank, or to the maker of the program: bytes out, bytes or a reason back.
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

    // Fetches a file by GET, with TLS and certificate as above, and says nothing about who asks: no cookie, no
    // language, no version of the toolkit. Follows a redirect within the same server only; any other is Refused.
    [[nodiscard]] virtual cHttpsAnswer Get(const cHttpsFile& file) = 0;

    // Ends the exchange that is under way, if one is.
    virtual void Cancel() = 0;
};
