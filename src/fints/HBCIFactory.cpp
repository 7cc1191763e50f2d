#include "fints/HBCIFactory.h"

#include "base/cSecret.h"
#include "fints/modFintsValue.h"
#include "fints/modSegmentTable.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;
using modFintsValue::Escaped;

namespace {

constexpr int encryptionNumber = 998; // outside of the count of the segments
constexpr int firstBusiness = 3;
constexpr int nationalAccount = 6; // the last version that knows accounts by number alone

// The reference that signature head and tail share. It has to be the same in both, nothing else is asked of it.
const QByteArray& Control()
{
    static const QByteArray control = QByteArrayLiteral("1");
    return control;
}

HBCISegment Segment(const QByteArray& code, int number, const QString& protocol, QList<QByteArray> elements)
{
    return {code, number, modSegmentTable::Version(code, protocol), std::move(elements)};
}

QByteArray Institute(const QString& bankCode)
{
    return "280:" + Escaped(bankCode);
}

QByteArray KeyName(const cEnvelope& envelope, const QByteArray& type)
{
    return Institute(envelope.BankCode) + ':' + Escaped(envelope.UserId) + ':' + type + ":0:0";
}

QByteArray Profile(const cEnvelope& envelope)
{
    return envelope.SecurityFunction == u"999" ? QByteArrayLiteral("PIN:1") : QByteArrayLiteral("PIN:2");
}

HBCISegment MessageHead(const cEnvelope& envelope, const QString& protocol)
{
    return Segment("HNHBK", 1, protocol,
                   {"000000000000", Escaped(protocol), envelope.DialogId, QByteArray::number(envelope.MessageNumber)});
}

// Encrypts nothing: the connection does. The key is eight bytes of nothing.
HBCISegment EncryptionHead(const cEnvelope& envelope, const QString& protocol)
{
    return Segment("HNVSK", encryptionNumber, protocol,
                   {Profile(envelope),
                    "998",
                    "1",
                    "1::" + envelope.SystemId,
                    modFintsValue::SecurityMoment(envelope.Now),
                    "2:2:13:@8@" + QByteArray(8, '\0') + ":5:1",
                    KeyName(envelope, "V"),
                    "0",
                    {}});
}

HBCISegment SignatureHead(const cEnvelope& envelope, const QString& protocol)
{
    return Segment("HNSHK", 2, protocol,
                   {Profile(envelope),
                    Escaped(envelope.SecurityFunction),
                    Control(),
                    "1",
                    "1",
                    "1::" + envelope.SystemId,
                    "1",
                    modFintsValue::SecurityMoment(envelope.Now),
                    "1:999:1",
                    "6:10:16",
                    KeyName(envelope, "S"),
                    {}});
}

// PIN, or PIN:TAN, in one piece of memory of its own that nothing else shares.
QByteArray Signature(const cEnvelope& envelope)
{
    QByteArray pin = envelope.Pin != nullptr ? Escaped(envelope.Pin->Characters()) : QByteArray();
    QByteArray tan = envelope.Tan != nullptr ? Escaped(envelope.Tan->Characters()) : QByteArray();
    QByteArray signature;
    signature.reserve(pin.size() + 1 + tan.size());
    signature.append(pin);
    if (!tan.isEmpty()) {
        signature.append(':').append(tan);
    }
    cSecret::Wipe(pin);
    cSecret::Wipe(tan);
    return signature;
}

HBCISegment SignatureEnd(const cEnvelope& envelope, const QString& protocol, int number)
{
    return Segment("HNSHA", number, protocol, {Control(), {}, Signature(envelope)});
}

// All segments of the inner message, each with its end.
QByteArray Signed(const cEnvelope& envelope, const QString& protocol, const QList<HBCISegment>& business)
{
    HBCISegment end = SignatureEnd(envelope, protocol, firstBusiness + static_cast<int>(business.size()));
    QByteArray tail = end.toString();
    end.Wipe();
    QByteArray text = SignatureHead(envelope, protocol).toString() + '\'';
    for (const HBCISegment& segment : business) {
        text += segment.toString() + '\'';
    }
    text.reserve(text.size() + tail.size() + 1);
    text.append(tail).append('\'');
    cSecret::Wipe(tail);
    return text;
}

QByteArray National(const cBankAccount& account)
{
    return Escaped(account.Number) + ':' + Escaped(account.SubNumber) + ':' + Institute(account.BankCode);
}

QByteArray International(const cBankAccount& account, HBCIFactory::eNational national)
{
    const QByteArray text = Escaped(account.Iban) + ':' + Escaped(account.Bic);
    return national == HBCIFactory::eNational::With ? text + ':' + National(account) : text;
}

QByteArray Account(int version, const cBankAccount& account, HBCIFactory::eNational national)
{
    return version <= nationalAccount ? National(account) : International(account, national);
}

} // namespace

QString HBCIFactory::VersionCode(const QString& version)
{
    return version == u"3.0" ? u"300"_s : version;
}

HBCIMessage HBCIFactory::Message(const cEnvelope& envelope, QList<HBCISegment> business)
{
    const QString protocol = VersionCode(envelope.HbciVersion);
    int number = firstBusiness;
    for (HBCISegment& segment : business) {
        segment.SetNumber(number++);
    }
    QByteArray inner = Signed(envelope, protocol, business);
    QList<HBCISegment> segments{MessageHead(envelope, protocol), EncryptionHead(envelope, protocol),
                                Segment("HNVSD", encryptionNumber + 1, protocol, {modFintsValue::Binary(inner)}),
                                // The tail of the signature has the number before.
                                Segment("HNHBS", number + 1, protocol, {QByteArray::number(envelope.MessageNumber)})};
    cSecret::Wipe(inner);
    return HBCIMessage(std::move(segments));
}

HBCISegment HBCIFactory::Identification(const QString& bankCode, const QString& userId, const QByteArray& systemId)
{
    return Segment("HKIDN", 0, u"300"_s, {Institute(bankCode), Escaped(userId), systemId, "1"});
}

HBCISegment HBCIFactory::Preparation(const QString& hbciVersion, const QString& bpdVersion, const QString& updVersion,
                                     const QString& productId, const QString& productVersion)
{
    return Segment("HKVVB", 0, VersionCode(hbciVersion),
                   {Escaped(bpdVersion), Escaped(updVersion), "0", Escaped(productId), Escaped(productVersion)});
}

HBCISegment HBCIFactory::Synchronisation(const QString& hbciVersion)
{
    return Segment("HKSYN", 0, VersionCode(hbciVersion), {"0"});
}

HBCISegment HBCIFactory::Tan(int version, const cTanRequest& request)
{
    HBCISegment segment("HKTAN", 0, version, {request.Process});
    const auto set = [&](QByteArrayView name, const QByteArray& wire) {
        segment.SetElement(modSegmentTable::Place("HKTAN", version, name), wire);
    };
    if (request.Process == "2" || request.Process == "S") {
        set("Reference", request.Reference);
        set("HasMore", "N");
        return segment;
    }
    set("Segment", request.Segment);
    if (request.Process == "1") {
        set("OrderHash", modFintsValue::Binary(request.OrderHash));
        set("HasMore", "N");
    }
    set("Medium", Escaped(request.Medium));
    return segment;
}

HBCISegment HBCIFactory::Media(int version)
{
    return {"HKTAB", 0, version, {"0", "A"}};
}

HBCISegment HBCIFactory::SepaAccounts()
{
    return Segment("HKSPA", 0, u"300"_s, {});
}

HBCISegment HBCIFactory::Statement(int version, const cBankAccount& account, QDate from, QDate to,
                                   const QByteArray& continuation, eNational national)
{
    return {"HKKAZ",
            0,
            version,
            {Account(version, account, national),
             "N",
             modFintsValue::CHBCIDate(from),
             modFintsValue::CHBCIDate(to),
             {},
             continuation}};
}

HBCISegment HBCIFactory::CamtStatement(const cBankAccount& account, const QByteArray& format, QDate from, QDate to,
                                       const QByteArray& continuation, eNational national)
{
    return Segment("HKCAZ", 0, u"300"_s,
                   {International(account, national),
                    format,
                    "N",
                    modFintsValue::CHBCIDate(from),
                    modFintsValue::CHBCIDate(to),
                    {},
                    continuation});
}

HBCISegment HBCIFactory::Balance(int version, const cBankAccount& account, eNational national)
{
    return {"HKSAL", 0, version, {Account(version, account, national), "N"}};
}

HBCISegment HBCIFactory::End(const QByteArray& dialogId)
{
    return Segment("HKEND", 0, u"300"_s, {dialogId});
}
