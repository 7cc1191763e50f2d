#include "testbank/cBankRequest.h"

#include "support/each.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Reads one request; every check leaves a line when it fails.
class cReader
{
public:
    explicit cReader(const QByteArray& message) : m_message(message) {}

    cBankRequest Read();

private:
    void Check(bool isRight, const QString& rule)
    {
        if (!isRight) {
            m_request.Faults.append(rule);
        }
    }
    void ReadSegments(const QByteArray& text, QList<cRequestSegment>& segments);
    void CheckFrame();
    void CheckEncryption(const cRequestSegment& head);
    void CheckSignature(const cRequestSegment& head, const cRequestSegment& tail);
    void CheckNumbers();
    void CheckKey(const QByteArray& key, const QByteArray& type);

    QByteArray m_message;
    QList<cRequestSegment> m_outer;
    QList<cRequestSegment> m_inner;
    QByteArray m_keyOwner;
    cBankRequest m_request;
};

} // namespace

QList<QByteArray> cRequestSegment::Group(int place) const
{
    return cBankRequest::Cut(At(place), ':');
}

// The position behind binary data that begins here, or behind the "@" that is none.
static qsizetype BehindBinary(const QByteArray& wire, qsizetype at)
{
    const qsizetype second = wire.indexOf('@', at + 1);
    bool isNumber = false;
    const qsizetype length = second < 0 ? 0 : wire.mid(at + 1, second - at - 1).toLongLong(&isNumber);
    return isNumber ? second + 1 + length : at + 1;
}

QList<QByteArray> cBankRequest::Cut(const QByteArray& wire, char separator)
{
    QList<QByteArray> pieces;
    qsizetype start = 0;
    for (qsizetype at = 0; at < wire.size();) {
        if (wire[at] == '?') {
            at += 2;
        } else if (wire[at] == '@') {
            at = BehindBinary(wire, at);
        } else if (wire[at] == separator) {
            pieces.append(wire.mid(start, at - start));
            start = ++at;
        } else {
            ++at;
        }
    }
    pieces.append(wire.mid(start));
    return pieces;
}

QByteArray cBankRequest::Plain(const QByteArray& wire)
{
    QByteArray plain;
    for (qsizetype at = 0; at < wire.size(); ++at) {
        if (wire[at] == '?') {
            ++at;
        }
        plain.append(wire.mid(at, 1));
    }
    return plain;
}

cRequestSegment cBankRequest::Of(const QByteArray& code) const
{
    const auto found = std::find_if(Business.begin(), Business.end(),
                                    [&](const cRequestSegment& segment) { return segment.Code == code; });
    return found == Business.end() ? cRequestSegment() : *found;
}

QByteArray cBankRequest::Step() const
{
    if (Business.isEmpty()) {
        return {};
    }
    const cRequestSegment& first = Business.constFirst();
    return first.Code == "HKTAN" ? first.Code + first.At(1) : first.Code;
}

cBankRequest cBankRequest::Read(const QByteArray& message)
{
    return cReader(message).Read();
}

void cReader::ReadSegments(const QByteArray& text, QList<cRequestSegment>& segments)
{
    QList<QByteArray> texts = cBankRequest::Cut(text, '\'');
    Check(texts.takeLast().isEmpty(), u"every segment has an end"_s);
    for (const QByteArray& wire : std::as_const(texts)) {
        Check(!wire.endsWith('+'), u"no empty elements at the end: "_s + QString::fromLatin1(wire));
        QList<QByteArray> elements = cBankRequest::Cut(wire, '+');
        const QList<QByteArray> head = cBankRequest::Cut(elements.takeFirst(), ':');
        Check(head.size() == 3, u"a head has three parts: "_s + QString::fromLatin1(wire));
        segments.append({.Code = head.value(0),
                         .Number = head.value(1).toInt(),
                         .Version = head.value(2).toInt(),
                         .Elements = elements});
    }
}

cBankRequest cReader::Read()
{
    ReadSegments(m_message, m_outer);
    CheckFrame();
    if (!m_request.Faults.isEmpty()) {
        return m_request;
    }
    const QByteArray data = m_outer.at(2).At(1);
    const QByteArray inner = data.mid(data.indexOf('@', 1) + 1);
    Check(data == "@" + QByteArray::number(inner.size()) + "@" + inner, u"length of the binary data"_s);
    ReadSegments(inner, m_inner);
    const bool isFramed =
        m_inner.size() > 2 && m_inner.constFirst().Code == "HNSHK" && m_inner.constLast().Code == "HNSHA";
    Check(isFramed, u"signature head and tail"_s);
    if (!m_request.Faults.isEmpty()) {
        return m_request;
    }
    CheckEncryption(m_outer.at(1));
    CheckSignature(m_inner.constFirst(), m_inner.constLast());
    CheckNumbers();
    m_request.Business = m_inner.mid(1, m_inner.size() - 2);
    return m_request;
}

void cReader::CheckFrame()
{
    Check(Each(m_outer, &cRequestSegment::Code) == QList<QByteArray>({"HNHBK", "HNVSK", "HNVSD", "HNHBS"}),
          u"frame of the message"_s);
    if (!m_request.Faults.isEmpty()) {
        return;
    }
    const cRequestSegment& head = m_outer.constFirst();
    m_request.Protocol = head.At(2);
    m_request.DialogId = head.At(3);
    m_request.Number = head.At(4).toInt();
    const QByteArray size = QByteArray::number(m_message.size()).rightJustified(12, '0');
    Check(head.At(1) == size, u"size: "_s + QString::fromLatin1(head.At(1) + " for " + size));
    Check(head.Number == 1 && head.Version == 3 && head.Elements.size() == 4, u"message head"_s);
    Check(m_outer.at(1).Number == 998 && m_outer.at(2).Number == 999 && m_outer.at(2).Version == 1,
          u"numbers of the encryption"_s);
    Check(m_outer.constLast().At(1).toInt() == m_request.Number && m_outer.constLast().Version == 1, u"message end"_s);
}

// 280:code:user:type:0:0, for the same user everywhere
void cReader::CheckKey(const QByteArray& key, const QByteArray& type)
{
    const QList<QByteArray> parts = cBankRequest::Cut(key, ':');
    Check(parts.size() == 6 && parts.value(0) == "280" && parts.mid(3) == QList<QByteArray>({type, "0", "0"}),
          u"key name"_s);
    const QByteArray owner = parts.value(1) + ':' + parts.value(2);
    Check(m_keyOwner.isEmpty() || m_keyOwner == owner, u"owner of the keys"_s);
    m_keyOwner = owner;
}

static bool IsMoment(const QByteArray& wire)
{
    static const QRegularExpression form(u"^1:20\\d{6}:[0-2]\\d[0-5]\\d[0-5]\\d$"_s);
    return form.match(QString::fromLatin1(wire)).hasMatch();
}

void cReader::CheckEncryption(const cRequestSegment& head)
{
    const bool isNew = m_request.Protocol == "300";
    Check(head.Version == (isNew ? 3 : 2), u"version of the encryption head"_s);
    m_request.Profile = head.At(1);
    Check(head.At(2) == "998" && head.At(3) == "1", u"encryption function"_s);
    Check(head.At(4).startsWith("1::"), u"customer system in the encryption head"_s);
    m_request.SystemId = head.At(4).mid(3);
    Check(IsMoment(head.At(5)), u"moment of the encryption"_s);
    Check(head.At(6) == QByteArray("2:2:13:@8@") + QByteArray(8, '\0') + ":5:1", u"encryption algorithm"_s);
    CheckKey(head.At(7), "V");
    Check(head.At(8) == "0" && head.Elements.size() == 8, u"end of the encryption head"_s);
}

void cReader::CheckSignature(const cRequestSegment& head, const cRequestSegment& tail)
{
    const bool isNew = m_request.Protocol == "300";
    Check(head.Version == (isNew ? 4 : 3) && tail.Version == (isNew ? 2 : 1), u"versions of the signature"_s);
    m_request.Function = head.At(2);
    const QByteArray profile = m_request.Function == "999" ? "PIN:1" : "PIN:2";
    Check(head.At(1) == profile && m_request.Profile == profile, u"security profile"_s);
    Check(head.At(3) == "1" && tail.At(1) == "1" && tail.At(2).isEmpty(), u"control reference"_s);
    Check(head.At(4) == "1" && head.At(5) == "1" && head.At(7) == "1", u"fixed places of the signature"_s);
    Check(head.At(6) == "1::" + m_request.SystemId, u"customer system in the signature"_s);
    Check(IsMoment(head.At(8)), u"moment of the signature"_s);
    Check(head.At(9) == "1:999:1" && head.At(10) == "6:10:16", u"algorithms of the signature"_s);
    CheckKey(head.At(11), "S");
    Check(head.Elements.size() == 11, u"end of the signature head"_s);
    const QList<QByteArray> secrets = tail.Group(3);
    m_request.Pin = secrets.value(0);
    m_request.Tan = secrets.value(1);
    Check(secrets.size() <= 2, u"PIN and TAN"_s);
}

void cReader::CheckNumbers()
{
    for (qsizetype at = 0; at < m_inner.size(); ++at) {
        Check(m_inner.at(at).Number == at + 2, u"number of segment "_s + QString::fromLatin1(m_inner.at(at).Code));
    }
    Check(m_outer.constLast().Number == m_inner.constLast().Number + 1, u"number of the message end"_s);
}
