#include "fints/cBankExchange.h"

#include "base/cHttps.h"
#include "base/cSecret.h"
#include "base/modLog.h"
#include "fints/cBankLog.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

// The page of a web server that knows nothing of banking, or its excuse.
static bool IsPage(const QByteArray& bytes)
{
    const QByteArray beginning = bytes.left(5).toUpper();
    return beginning == "<HTML" || beginning == "ERROR" || beginning == "<!DOC";
}

// Most banks send Base64, broken into lines or not, some send the message as it is. Decoded where it stands, because an
// answer may have 64 MB.
static QByteArray FromBase64(QByteArray bytes)
{
    if (bytes.startsWith("HNHBK")) {
        return bytes;
    }
    bytes.removeIf([](char letter) { return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n'; });
    auto decoded = QByteArray::fromBase64Encoding(std::move(bytes), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::move(decoded.decoded) : QByteArray();
}

std::optional<cBankAnswer> cBankExchange::Send(const HBCIMessage& message, const cSecret* tan)
{
    m_error = {};
    QList<const cSecret*> secrets{&m_run.Pin};
    if (tan != nullptr) {
        secrets.append(tan);
    }
    QByteArray bytes = message.Text();
    m_run.Parts.Log.AddRequest(bytes, secrets, m_run.Parts.ProductId);
    QByteArray body = bytes.toBase64();
    cHttpsAnswer answer = m_run.Parts.Https.Post(m_run.State.Url, body);
    qCInfo(modLog::Bank) << "sent" << bytes.size() << "came" << answer.Bytes.size() << "fault"
                         << static_cast<int>(answer.Fault);
    cSecret::Wipe(bytes);
    cSecret::Wipe(body);
    m_isSent = answer.Fault != eHttpsFault::NotReachable && answer.Fault != eHttpsFault::Certificate;
    return Read(std::move(answer), secrets);
}

std::optional<cBankAnswer> cBankExchange::Read(cHttpsAnswer answer, const QList<const cSecret*>& secrets)
{
    if (answer.Fault != eHttpsFault::None) {
        return Fail(modBankFault::OfTransport(answer, m_run.State.Url), answer.Reason);
    }
    QByteArray bytes = std::move(answer.Bytes).trimmed();
    if (bytes.isEmpty()) {
        return Fail(modBankFault::Silence(m_run.State.Url), u"Leere Antwort."_s);
    }
    const QByteArray beginning = bytes.left(500); // of a page, for the log
    const QByteArray message = IsPage(bytes) ? QByteArray() : FromBase64(std::move(bytes));
    m_run.Parts.Log.AddAnswer(message.isEmpty() ? beginning : message, secrets, m_run.Parts.ProductId);
    std::optional<cBankAnswer> read = cBankAnswer::Read(message);
    if (!read) {
        return Fail(modBankFault::Of(eBankFault::BrokenAnswer), u"Die Antwort ist keine ganze Nachricht."_s);
    }
    return read;
}

std::nullopt_t cBankExchange::Fail(const cBankError& error, const QString& remark)
{
    m_error = error;
    m_run.Parts.Log.AddRemark(remark);
    return std::nullopt;
}
