#include "testbank/cTestHttps.h"

using namespace Qt::Literals::StringLiterals;

eSpoil cTestHttps::Fate(const QByteArray& body)
{
    const QByteArray step = cTestBank::StepOf(body);
    const int times = ++m_times[step];
    const bool isHit = (Accident.Step.isEmpty() || Accident.Step == step)
        && (Accident.Nth == 0 || Accident.Step.isEmpty() || Accident.Nth == times);
    return isHit ? Accident.How : eSpoil::None;
}

QByteArray cTestHttps::Spoiled(const QByteArray& answer, eSpoil how)
{
    const QByteArray message = QByteArray::fromBase64(answer);
    switch (how) {
    case eSpoil::Html: return "<html><body>Wartungsarbeiten</body></html>";
    case eSpoil::Error: return "Error 500";
    case eSpoil::Cut: return message.left(message.size() / 2).toBase64();
    case eSpoil::Noise: return QByteArray("Nothing that a bank would say").toBase64();
    case eSpoil::Plain: return message;
    case eSpoil::Lines: return answer.left(76) + "\r\n" + answer.mid(76) + "\r\n";
    case eSpoil::Empty: return {};
    default: return answer;
    }
}

cHttpsAnswer cTestHttps::Post(const QString& url, const QByteArray& body)
{
    ++Posts;
    const eSpoil fate = Fate(body);
    if (fate == eSpoil::Certificate) {
        return {.Fault = eHttpsFault::Certificate, .Bytes = {}, .Reason = u"self-signed"_s};
    }
    if (fate == eSpoil::NotReachable || url != Url) {
        return {.Fault = eHttpsFault::NotReachable, .Bytes = {}, .Reason = u"host not found"_s};
    }
    const QByteArray answer = m_bank.Answer(body);
    switch (fate) {
    case eSpoil::Silent: return {.Fault = eHttpsFault::Silent, .Bytes = {}, .Reason = u"timeout"_s};
    case eSpoil::Refused: return {.Fault = eHttpsFault::Refused, .Bytes = "gone", .Reason = u"HTTP 404"_s};
    case eSpoil::TooLarge: return {.Fault = eHttpsFault::TooLarge, .Bytes = {}, .Reason = u"64 MB"_s};
    case eSpoil::Cancelled: return {.Fault = eHttpsFault::Cancelled, .Bytes = {}, .Reason = {}};
    default: return {.Fault = eHttpsFault::None, .Bytes = Spoiled(answer, fate), .Reason = {}};
    }
}
