#include "fints/cBankDialog.h"

#include "base/cBankUser.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "fints/cBankExchange.h"
#include "fints/modBankMemory.h"

using namespace Qt::Literals::StringLiterals;

static bool IsUnset(const QByteArray& systemId)
{
    return systemId.isEmpty() || systemId == "0";
}

bool cBankDialog::Open(const cOpening& opening)
{
    if (Start(opening)) {
        return true;
    }
    if (!m_isSystemIdUnknown || m_run.Refused.IsSet() || opening.IsSync) {
        return false;
    }
    End();
    m_run.State.SystemId = "0";
    m_dialogId = "0";
    m_number = 0;
    m_line = eLine::Open;
    return Start(opening);
}

bool cBankDialog::Start(const cOpening& opening)
{
    m_isSystemIdUnknown = false;
    m_error = {};
    m_systemId = opening.IsFromScratch || IsUnset(m_run.State.SystemId) ? QByteArray("0") : m_run.State.SystemId;
    m_run.Parts.User.ShowStep(cText::Tr("Anmeldung bei der Bank"));
    return Send(Initialisation(opening)).has_value();
}

QList<HBCISegment> cBankDialog::Initialisation(const cOpening& opening) const
{
    const cBankState& state = m_run.State;
    const QString none = u"0"_s;
    QList<HBCISegment> segments;
    segments.append(HBCIFactory::Identification(state.BankCode, state.UserId, m_systemId));
    segments.append(HBCIFactory::Preparation(state.HbciVersion,
                                             opening.IsFromScratch ? none : modBankMemory::BpdVersion(state),
                                             opening.IsFromScratch ? none : modBankMemory::UpdVersion(state),
                                             m_run.Parts.ProductId, m_run.Parts.ProductVersion));
    if (opening.IsSync || IsUnset(m_systemId)) {
        segments.append(HBCIFactory::Synchronisation(state.HbciVersion));
    }
    if (!modBankMemory::IsOneStep(m_method)) {
        segments.append(TanFor(opening.TanSegment));
    }
    return segments;
}

HBCISegment cBankDialog::TanFor(const QByteArray& segment) const
{
    cTanRequest request{.Process = "4", .Segment = segment};
    if (m_method.TanProcess == u"1") {
        request.Process = "1";
        request.OrderHash = QByteArray(20, '\0'); // the order itself stands beside it
    }
    if (m_method.MediaNameRequired == u"1" || m_method.MediaNameRequired == u"2") {
        request.Medium = m_run.State.Medium;
    }
    return HBCIFactory::Tan(m_method.SegmentVersion, request);
}

cEnvelope cBankDialog::Envelope(const cSecret* tan) const
{
    cEnvelope envelope;
    envelope.HbciVersion = m_run.State.HbciVersion;
    envelope.DialogId = m_dialogId;
    envelope.MessageNumber = m_number;
    envelope.BankCode = m_run.State.BankCode;
    envelope.UserId = m_run.State.UserId;
    envelope.SystemId = m_systemId;
    envelope.SecurityFunction = m_method.SecurityFunction;
    envelope.Now = m_run.Parts.Clock.Now();
    envelope.Pin = &m_run.Pin;
    envelope.Tan = tan;
    return envelope;
}

std::optional<cBankAnswer> cBankDialog::Send(const QList<HBCISegment>& business)
{
    std::optional<cBankAnswer> answer = Exchange(business, nullptr);
    if (answer) {
        answer = Answered(*answer);
    }
    return answer;
}

std::optional<cBankAnswer> cBankDialog::Order(const HBCISegment& order)
{
    if (modBankMemory::IsOneStep(m_method)) {
        return Send({order});
    }
    return Send({order, TanFor(order.Code())});
}

void cBankDialog::End()
{
    const bool isKnown = m_dialogId != "0"; // the bank has not opened a dialog that could be ended
    if (m_line == eLine::Closed || !isKnown || m_run.Refused.IsSet()) {
        return;
    }
    m_line = eLine::Closed;
    ++m_number;
    cBankExchange exchange(m_run);
    const auto answer = exchange.Send(HBCIFactory::Message(Envelope(nullptr), {HBCIFactory::End(m_dialogId)}), nullptr);
    if (!answer) {
        return; // what was fetched has come; the bank ends the dialog by itself after a while
    }
    const cBankError error = modBankFault::OfAnswer(*answer, eAnswerTo::Order);
    if (modBankFault::IsPinRefused(error.Failure.Fault)) {
        m_run.Refused = error;
    }
}

// A message and what is read from its answer in any case. The answer may be a refusal or a question.
std::optional<cBankAnswer> cBankDialog::Exchange(const QList<HBCISegment>& business, const cSecret* tan)
{
    if (m_run.Refused.IsSet()) {
        return Stop(m_run.Refused);
    }
    if (m_run.Parts.User.IsCancelled()) {
        return Stop(modBankFault::Of(eBankFault::Cancelled));
    }
    ++m_number;
    cBankExchange exchange(m_run);
    std::optional<cBankAnswer> answer = exchange.Send(HBCIFactory::Message(Envelope(tan), business), tan);
    if (!answer) {
        if (!exchange.IsSent()) {
            --m_number;
        }
        return Stop(exchange.Error());
    }
    Heed(*answer);
    const cBankError error = modBankFault::OfAnswer(*answer, tan == nullptr ? eAnswerTo::Order : eAnswerTo::Tan);
    if (!modBankFault::IsPinRefused(error.Failure.Fault)) {
        return answer;
    }
    m_run.Refused = error;
    return Stop(error);
}

void cBankDialog::Heed(const cBankAnswer& answer)
{
    if (!answer.DialogId().isEmpty() && answer.DialogId() != "0") {
        m_dialogId = answer.DialogId(); // an error may come with 0 in the middle of a dialog
    }
    const QList<cBankAccount> found = modBankMemory::Take(answer, m_run.State);
    if (!found.isEmpty()) {
        m_run.Found = found;
    }
    const auto systemId = answer.SystemId();
    if (systemId && !systemId->isEmpty()) {
        m_systemId = *systemId;
    }
    const QString address = modBankMemory::Address(answer);
    if (!address.isEmpty()) {
        m_run.AddressHint = modBankMemory::IsSameAddress(address, m_run.State.Url) ? QString() : address;
    }
    m_run.HasFunctions = m_run.HasFunctions || answer.AllowedFunctions().has_value();
    const QString collected = answer.CollectedText();
    if (!collected.isEmpty()) {
        m_run.Collected += (m_run.Collected.isEmpty() ? QString() : u"\r\n"_s) + collected;
    }
    m_run.BankWords += answer.BankWords().split(u'\n', Qt::SkipEmptyParts);
    m_run.BankWords.removeDuplicates();
    m_isSystemIdUnknown = m_isSystemIdUnknown || answer.Has(u"9391");
    if (answer.IsAborted()) {
        m_line = eLine::Closed;
    }
}

std::nullopt_t cBankDialog::Fail(const cBankError& error)
{
    m_error = error;
    return std::nullopt;
}

std::nullopt_t cBankDialog::Stop(const cBankError& error)
{
    if (m_line == eLine::Open) {
        m_line = eLine::Ending;
    }
    return Fail(error);
}
