#include "testbank/cTestBank.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

static QString Latin(const QByteArray& wire)
{
    return QString::fromLatin1(wire);
}

void cTestBank::Complain(const QString& text)
{
    m_complaints.append(text);
    if (!IsLenient) {
        QTest::qFail(qPrintable(u"The bank complains: "_s + text + u" in "_s + Latin(LastText)), __FILE__, __LINE__);
    }
}

QByteArray cTestBank::StepOf(const QByteArray& base64Body)
{
    return cBankRequest::Read(QByteArray::fromBase64(base64Body)).Step();
}

QByteArray cTestBank::Answer(const QByteArray& base64Body)
{
    const auto decoded = QByteArray::fromBase64Encoding(base64Body, QByteArray::AbortOnBase64DecodingErrors);
    Check(decoded.decodingStatus == QByteArray::Base64DecodingStatus::Ok, u"the body is Base64"_s);
    LastText = decoded.decoded;
    m_replies.clear();
    const cBankRequest request = cBankRequest::Read(LastText);
    for (const QString& fault : request.Faults) {
        Complain(fault);
    }
    if (request.Business.isEmpty()) {
        return Message("9110::Unbekannter Aufbau.+9800::Dialog abgebrochen.", request).toBase64();
    }
    Note(request);
    CheckRequest(request);
    return Respond(request).toBase64();
}

QString cTestBank::Opening(const cBankRequest& request)
{
    const cRequestSegment preparation = request.Of("HKVVB");
    const cRequestSegment tan = request.Of("HKTAN");
    QString text = request.Of("HKSYN").Code.isEmpty() ? u"init"_s : u"sync"_s;
    text += u' ' + Latin(request.Function + ' ' + preparation.At(1) + '/' + preparation.At(2));
    if (!tan.Code.isEmpty()) {
        text += u' ' + Latin(tan.At(2));
    }
    return text;
}

void cTestBank::Note(const cBankRequest& request)
{
    const QByteArray step = request.Step();
    const cRequestSegment& first = request.Business.constFirst();
    if (step == "HKIDN") {
        Journal.append(Opening(request));
    } else if (step == "HKTAN2") {
        Journal.append(u"TAN"_s);
    } else if (step == "HKTANS") {
        Journal.append(u"status"_s);
    } else if (step == "HKEND") {
        Journal.append(u"end"_s);
    } else {
        Journal.append(Latin(step) + QString::number(first.Version));
    }
}

const cOfferedMethod* cTestBank::MethodOf(const cBankRequest& request) const
{
    const auto found = std::find_if(Profile.Methods.begin(), Profile.Methods.end(),
                                    [&](const cOfferedMethod& method) { return method.Function == request.Function; });
    return found == Profile.Methods.end() ? nullptr : &*found;
}

void cTestBank::CheckRequest(const cBankRequest& request)
{
    Check(!m_isPinRefused, u"a PIN that was refused is not sent again"_s);
    CheckLogin(request);
    if (request.Step() == "HKIDN") {
        Check(m_dialogId.isEmpty(), u"the last dialog was ended"_s);
        Check(request.DialogId == "0" && request.Number == 1, u"a dialog begins with 0 and 1"_s);
        m_dialogId = "DIALOG?+" + QByteArray::number(++m_dialogs);
        m_systemId = request.SystemId;
    } else {
        Check(!m_dialogId.isEmpty() && request.DialogId == m_dialogId, u"dialog ID"_s);
        Check(request.Number == m_number + 1, u"message number"_s);
        Check(request.SystemId == m_systemId, u"customer system ID in the dialog"_s);
    }
    m_number = request.Number;
    CheckTanOrder(request);
}

void cTestBank::CheckLogin(const cBankRequest& request)
{
    Check(cBankRequest::Plain(request.Pin) == Profile.Pin || Profile.Refusals.contains("HKIDN"), u"PIN"_s);
    const cRequestSegment identification = request.Of("HKIDN");
    if (identification.Code.isEmpty()) {
        return;
    }
    const bool isCustomer = identification.At(1) == "280:" + Profile.Code
        && cBankRequest::Plain(identification.At(2)) == Profile.User && identification.At(4) == "1";
    Check(isCustomer && identification.At(3) == request.SystemId && identification.Version == 2, u"identification"_s);
    const bool isNew = request.Protocol == "300";
    Check(isNew || request.Protocol == "220", u"protocol"_s);
    const cRequestSegment preparation = request.Of("HKVVB");
    Check(preparation.Version == (isNew ? 3 : 2) && preparation.At(3) == "0" && preparation.Number == 4,
          u"preparation"_s);
    Check(preparation.At(4) == Profile.Product && !preparation.At(5).isEmpty(), u"product"_s);
    const cRequestSegment sync = request.Of("HKSYN");
    Check(sync.Code.isEmpty() || (sync.Version == (isNew ? 3 : 2) && sync.At(1) == "0"), u"synchronisation"_s);
    Check(!sync.Code.isEmpty() || request.SystemId != "0", u"a system ID or the wish for one"_s);
}

void cTestBank::CheckTanOrder(const cBankRequest& request)
{
    const cRequestSegment tan = request.Of("HKTAN");
    const cOfferedMethod* method = MethodOf(request);
    if (request.Function == "999") {
        Check(tan.Code.isEmpty() && request.Tan.isEmpty(), u"no TAN in the one-step procedure"_s);
    } else {
        Check(method != nullptr, u"security function"_s);
    }
    if (tan.Code.isEmpty() || method == nullptr) {
        return;
    }
    m_tanVersion = QByteArray::number(tan.Version);
    Check(tan.Version == method->Version, u"version of the TAN segment"_s);
    if (tan.At(1) == "2" || tan.At(1) == "S") {
        CheckTan(request, tan);
    } else {
        CheckTanWish(request, tan, *method);
    }
}

void cTestBank::CheckTan(const cBankRequest& request, const cRequestSegment& tan)
{
    const bool isShort = tan.Elements.size() == 6 && tan.At(2).isEmpty() && tan.At(6) == "N";
    Check(isShort && m_pending && tan.At(5) == m_pending->Reference, u"reference of the order"_s);
    const bool isTyped = tan.At(1) == "2";
    const bool isRight = cBankRequest::Plain(request.Tan) == Profile.Tan;
    Check(!isTyped || isRight || (m_pending && !m_pending->Tan.Refusal.isEmpty()), u"TAN"_s);
    Check(isTyped != request.Tan.isEmpty(), u"a TAN only where one was asked for"_s);
}

void cTestBank::CheckTanWish(const cBankRequest& request, const cRequestSegment& tan, const cOfferedMethod& method)
{
    const bool isNamed = tan.At(2) == request.Step() || (request.Step() == "HKIDN" && tan.At(2) == "HKTAB");
    Check(isNamed && request.Tan.isEmpty(), u"order that the TAN is for"_s);
    Check(tan.At(1) == (method.Process == "1" ? "1" : "4"), u"process of the TAN"_s);
    Check(tan.At(1) == "4" || (tan.At(4).startsWith("@20@") && tan.At(6) == "N"), u"hash of the order"_s);
    const bool needsMedium = method.MediumRequired == "2" && tan.At(2) != "HKTAB";
    Check(!needsMedium || Profile.Media.contains(tan.At(11)), u"medium is named"_s);
    Check(method.MediumRequired != "0" || tan.Elements.size() == (tan.At(1) == "4" ? 2 : 6),
          u"nothing else is named"_s);
}

QByteArray cTestBank::Respond(const cBankRequest& request)
{
    const QByteArray step = request.Step();
    if (auto refused = Refuse(request, step)) {
        return *refused;
    }
    const bool isSync = !request.Of("HKSYN").Code.isEmpty();
    if (isSync) {
        if (auto refused = Refuse(request, "HKSYN")) {
            return *refused;
        }
    }
    if (step == "HKIDN" && !isSync && !Profile.Systems.contains(request.SystemId)) {
        return Refused(request, {.Nth = 0, .Local = "9391::Kundensystem-ID unbekannt."});
    }
    if (step == "HKTAN2" || step == "HKTANS") {
        return TakeTan(request);
    }
    if (step == "HKEND") {
        const QByteArray answer = Message("0100::Dialog beendet.", request);
        Check(request.Business.constFirst().At(1) == m_dialogId, u"the dialog that ends"_s);
        m_dialogId.clear();
        return answer;
    }
    const QByteArray order = request.Of("HKTAN").At(2);
    if (auto asked = AskTan(request, order)) {
        return *asked;
    }
    Do(request, !order.isEmpty());
    if (!order.isEmpty()) {
        Say(request.Of("HKTAN").Number, "3076::Keine starke Authentifizierung erforderlich.");
        Challenge(request.Of("HKTAN").Number, "4++noref+nochallenge");
    }
    return Message("3060::Bitte beachten Sie die Hinweise.", request);
}

static bool IsRefusalOfPin(const QByteArray& words, bool isToTan)
{
    static const QList<QByteArray> codes{"9942", "9931", "9910", "9930", "9933", "3931", "3938"};
    return std::any_of(codes.begin(), codes.end(),
                       [&](const QByteArray& code) { return words.contains(QByteArray(code + "::")); })
        || (words.contains("9340::") && !isToTan) || words.toUpper().contains("PIN FALSCH")
        || words.contains("PIN ist ung");
}

std::optional<QByteArray> cTestBank::Refuse(const cBankRequest& request, const QByteArray& step)
{
    const int times = ++m_times[step];
    const auto refusal = Profile.Refusals.constFind(step);
    if (refusal == Profile.Refusals.cend() || (refusal->Nth != 0 && refusal->Nth != times)) {
        return std::nullopt;
    }
    return Refused(request, *refusal);
}

QByteArray cTestBank::Refused(const cBankRequest& request, const cRefusal& refusal)
{
    m_isPinRefused = IsRefusalOfPin(refusal.Global + refusal.Local, request.Step() == "HKTAN2");
    if (!refusal.Local.isEmpty()) {
        Say(request.Business.constFirst().Number, refusal.Local);
    }
    for (const QByteArray& extra : cBankRequest::Cut(refusal.Extra, '\'')) {
        const qsizetype head = extra.indexOf('+');
        if (head > 0) {
            Add(extra.left(head), request.Business.constFirst().Number, extra.mid(head));
        }
    }
    const QByteArray answer = Message(refusal.Global, request);
    if (refusal.Global.contains("9800::")) {
        m_dialogId.clear();
    }
    m_pending.reset();
    return answer;
}

// The question for a TAN, when the order needs one.
std::optional<QByteArray> cTestBank::AskTan(const cBankRequest& request, const QByteArray& order)
{
    const auto asked = Profile.AskedTans.constFind(order);
    if (order.isEmpty() || asked == Profile.AskedTans.cend()) {
        return std::nullopt;
    }
    if (asked->Times >= 0 && m_asked[order] >= asked->Times) {
        return std::nullopt;
    }
    const QByteArray number = QByteArray::number(++m_asked[order]);
    m_pending = cPending{
        .Reference = "4567-11-30?:" + order + '?' + '+' + number, .Request = request, .Tan = *asked, .Step = order};
    if (!request.Of("HKSYN").Code.isEmpty()) {
        Synchronise(request);
    }
    const int reference = request.Of("HKTAN").Number;
    Say(reference, asked->Code);
    QByteArray fields = "4++" + m_pending->Reference + "+" + asked->Challenge;
    if (!asked->HhdUc.isEmpty()) {
        fields += "+@" + QByteArray::number(asked->HhdUc.size()) + "@" + asked->HhdUc;
    }
    Challenge(reference, fields);
    return Message("0010::Nachricht entgegengenommen.", request);
}

QByteArray cTestBank::TakeTan(const cBankRequest& request)
{
    Check(m_pending.has_value(), u"a TAN was asked for"_s);
    if (!m_pending) {
        return Message("9050::Nichts offen.", request);
    }
    const bool isStatus = request.Step() == "HKTANS";
    if (isStatus && m_pending->Tan.NotYet != 0) {
        m_pending->Tan.NotYet -= m_pending->Tan.NotYet > 0 ? 1 : 0;
        Say(request.Business.constFirst().Number, "3956::Starke Kundenauthentifizierung steht noch aus.");
        Challenge(request.Business.constFirst().Number, "S++" + m_pending->Reference);
        return Message("3060::Bitte beachten Sie die Hinweise.", request);
    }
    const cPending pending = *m_pending;
    m_pending.reset();
    if (!pending.Tan.Refusal.isEmpty()) {
        return Refused(request, {.Nth = 0, .Local = pending.Tan.Refusal});
    }
    Challenge(request.Business.constFirst().Number, (isStatus ? "S++" : "2++") + pending.Reference);
    Do(pending.Request, true);
    return Message("0020::Auftrag erledigt.", request);
}

void cTestBank::Add(const QByteArray& head, int reference, const QByteArray& body)
{
    m_replies.append({.Head = head, .Reference = reference, .Body = body});
}

void cTestBank::Say(int reference, const QByteArray& words)
{
    Add("HIRMS:2", reference, "+" + words);
}

QByteArray cTestBank::Message(const QByteArray& global, const cBankRequest& request)
{
    int number = Profile.IsSigned ? 3 : 2;
    QByteArray inner;
    if (Profile.IsSigned) {
        inner = "HNSHK:2:4+PIN:1+999+9999999+1+1+2::0+1+1+1:999:1+6:10:19+280:" + Profile.Code + ":x:S:0:0'";
    }
    inner += "HIRMG:" + QByteArray::number(number++) + ":2+" + global + "'";
    for (const cReply& reply : std::as_const(m_replies)) {
        const QList<QByteArray> head = reply.Head.split(':');
        inner += head.at(0) + ":" + QByteArray::number(number++) + ":" + head.at(1);
        if (reply.Reference > 0) {
            inner += ":" + QByteArray::number(reply.Reference);
        }
        inner += reply.Body + "'";
    }
    if (Profile.IsSigned) {
        inner += "HNSHA:" + QByteArray::number(number++) + ":2+9999999'";
    }
    const QByteArray dialog = m_dialogId.isEmpty() ? "0" : m_dialogId;
    const QByteArray count = QByteArray::number(request.Number);
    QByteArray rest = "+300+" + dialog + "+" + count + "+" + dialog + ":" + count + "'";
    rest += "HNVSK:998:3+PIN:1+998+1+2::0+1+2:2:13:@8@" + QByteArray(8, '\0') + ":6:1+280:" + Profile.Code
        + ":x:V:0:0+0'HNVSD:999:1+@" + QByteArray::number(inner.size()) + "@" + inner
        + "'HNHBS:" + QByteArray::number(number) + ":1+" + count + "'";
    return "HNHBK:1:3+" + QByteArray::number(rest.size() + 22).rightJustified(12, '0') + rest;
}
