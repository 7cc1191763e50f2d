#pragma once

#include "base/cHttps.h"
#include "testbank/cTestBank.h"

#include <QList>
#include <QMap>

// What happens to an exchange on its way.
enum class eSpoil {
    None,
    Silent,       // the bank does what it is asked for, the answer gets lost
    Empty,        // an answer without bytes
    NotReachable, // nothing reaches the bank, as with the next ones
    Certificate,
    Refused,
    TooLarge,
    Cancelled, // by the user, while the answer is waited for
    Html,
    Error,
    Cut,   // half of the answer
    Noise, // Base64 of no message
    Plain, // not in Base64
    Lines, // Base64 in lines
};

// The line to a bank in the same process.
class cTestHttps final : public cHttps
{
public:
    explicit cTestHttps(cTestBank& bank) : m_bank(bank) {}

    struct cAccident
    {
        QByteArray Step; // see cBankRequest::Step; empty: every one
        eSpoil How = eSpoil::None;
        int Nth = 1; // when the step comes for the n-th time; 0: always
    };

    [[nodiscard]] cHttpsAnswer Post(const QString& url, const QByteArray& body) override;
    [[nodiscard]] cHttpsAnswer Get(const cHttpsFile& /*file*/) override { return {eHttpsFault::Refused, {}, {}}; }
    void Cancel() override {}

    QString Url = QStringLiteral("https://bank.example/fints"); // of the bank
    cAccident Accident;
    int Posts = 0;

private:
    [[nodiscard]] eSpoil Fate(const QByteArray& body);
    [[nodiscard]] static QByteArray Spoiled(const QByteArray& answer, eSpoil how);

    cTestBank& m_bank;
    QMap<QByteArray, int> m_times;
};
