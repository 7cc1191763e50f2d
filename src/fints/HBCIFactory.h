#pragma once

#include "fints/HBCIMessage.h"
#include "fints/HBCISegment.h"
#include "model/bank/cBankAccount.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

class cSecret;

// What the envelope of a message is made of. Bytes are wire text, texts are as typed and are escaped by the factory.
struct cEnvelope
{
    QString HbciVersion = QStringLiteral("300");
    QByteArray DialogId = QByteArrayLiteral("0");
    int MessageNumber = 1;
    QString BankCode;
    QString UserId;
    QByteArray SystemId = QByteArrayLiteral("0");
    QString SecurityFunction = QStringLiteral("999");
    QDateTime Now;
    const cSecret* Pin = nullptr;
    const cSecret* Tan = nullptr; // only in the message that answers a challenge
};

// A request for a TAN or with one (HKTAN).
struct cTanRequest
{
    QByteArray Process{};   // "4", "1", "2" or "S"
    QByteArray Segment{};   // code of the segment that the TAN is for, with process 4
    QByteArray OrderHash{}; // with process 1
    QByteArray Reference{}; // wire, with process 2 and S
    QString Medium{};       // only when it has to be named
};

// Builds messages and their segments. Numbers of business segments are given by Message.
namespace HBCIFactory {

// "3.0" is "300", anything else stays as it is.
[[nodiscard]] QString VersionCode(const QString& version);

// The message with head, encryption head, signature and end around the business segments.
[[nodiscard]] HBCIMessage Message(const cEnvelope& envelope, QList<HBCISegment> business);

[[nodiscard]] HBCISegment Identification(const QString& bankCode, const QString& userId, const QByteArray& systemId);
[[nodiscard]] HBCISegment Preparation(const QString& hbciVersion, const QString& bpdVersion, const QString& updVersion,
                                      const QString& productId, const QString& productVersion);
[[nodiscard]] HBCISegment Synchronisation(const QString& hbciVersion);
[[nodiscard]] HBCISegment Tan(int version, const cTanRequest& request);
[[nodiscard]] HBCISegment Media(int version); // HKTAB, 4 or 5
[[nodiscard]] HBCISegment SepaAccounts();     // HKSPA 1

// The account in the form of the segment's version: number and code, from version 7 on IBAN and BIC too; without the
// national part where the bank forbids it.
enum class eNational { With, Without };
[[nodiscard]] HBCISegment Statement(int version, const cBankAccount& account, QDate from, QDate to,
                                    const QByteArray& continuation, eNational national); // HKKAZ 5 to 7
[[nodiscard]] HBCISegment CamtStatement(const cBankAccount& account, const QByteArray& format, QDate from, QDate to,
                                        const QByteArray& continuation, eNational national);     // HKCAZ 1
[[nodiscard]] HBCISegment Balance(int version, const cBankAccount& account, eNational national); // HKSAL 5 to 7
[[nodiscard]] HBCISegment End(const QByteArray& dialogId);

} // namespace HBCIFactory
