// The part of cBankDialog that asks the user.

#include "base/cBankUser.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "fints/cBankDialog.h"
#include "fints/modBankMemory.h"
#include "fints/modChallenge.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// The bank wants a TAN or an approval. Banks that need neither still send the segment, with placeholders or beside
// 3076; one that answers a TAN repeats the reference.
static bool IsQuestion(const cBankAnswer& answer)
{
    const auto tan = answer.Tan();
    if (!tan || tan->Process == "2" || tan->Process == "S" || answer.Has(u"3076")) {
        return false;
    }
    return answer.Has(u"3955") || (!tan->Challenge.isEmpty() && tan->Challenge != u"nochallenge");
}

static QString BankOf(const cBankState& state)
{
    return state.BankName.isEmpty() ? state.BankCode : state.BankName;
}

static QString MediumOf(const cTanChallenge& challenge, const cBankState& state)
{
    return challenge.Medium.isEmpty() ? state.Medium : challenge.Medium;
}

static cApproval ApprovalFor(const cTanChallenge& challenge, const TanVerfahrenItem& method, const cBankState& state,
                             const QString& purpose)
{
    cApproval approval;
    approval.Bank = BankOf(state);
    approval.Procedure = method.Name;
    approval.Medium = MediumOf(challenge, state);
    approval.Purpose = purpose;
    if (challenge.Challenge != u"nochallenge") {
        approval.Challenge = modChallenge::Cleaned(challenge.Challenge);
    }
    approval.WaitSeconds = method.WaitBeforeFirst;
    approval.IsAutomatic = method.IsAutomaticAllowed;
    approval.HasButton = method.IsManualAllowed || !method.IsAutomaticAllowed; // one way there has to be
    approval.MostAsked = method.MostPolls;
    approval.ValidUntil = challenge.ValidUntil;
    return approval;
}

// The final answer behind a question, or the answer itself when it is none. A bank that asks although it found a fault
// in one segment has taken the order.
std::optional<cBankAnswer> cBankDialog::Answered(const cBankAnswer& question)
{
    const bool isQuestion = !modBankMemory::IsOneStep(m_method) && IsQuestion(question);
    const cBankError error = modBankFault::OfAnswer(question, eAnswerTo::Order);
    if (error.IsSet() && !(isQuestion && error.Failure.Fault == eBankFault::Other)) {
        return Fail(error);
    }
    if (!isQuestion) {
        return question;
    }
    const cTanChallenge challenge = *question.Tan();
    const bool isApproval = question.Has(u"3955") || modBankMemory::IsApproval(m_method);
    std::optional<cBankAnswer> answer = isApproval ? Approved(challenge) : WithTan(challenge);
    if (!answer) {
        return std::nullopt;
    }
    const cBankError refusal = modBankFault::OfAnswer(*answer, isApproval ? eAnswerTo::Approval : eAnswerTo::Tan);
    if (refusal.IsSet()) {
        return Fail(refusal);
    }
    return answer;
}

std::optional<cBankAnswer> cBankDialog::WithTan(const cTanChallenge& challenge)
{
    cTanQuestion question =
        modChallenge::Question(challenge, m_method, BankOf(m_run.State), MediumOf(challenge, m_run.State));
    question.Purpose = m_run.Purpose;
    const std::optional<cSecret> tan = m_run.Parts.User.AskTan(question);
    if (!tan) {
        return Stop(modBankFault::Of(eBankFault::Cancelled));
    }
    const cTanRequest request{.Process = "2", .Reference = challenge.Reference};
    auto answer = Exchange({HBCIFactory::Tan(m_method.SegmentVersion, request)}, &*tan);
    if (!answer && m_error.Failure.Fault == eBankFault::BrokenAnswer) {
        m_error =
            modBankFault::Specific(eBankFault::BrokenAnswer, cText::Tr("Fehler: Ungültige Antwort nach TAN-Eingabe!"));
    }
    return answer;
}

std::optional<cBankAnswer> cBankDialog::Approved(const cTanChallenge& challenge)
{
    auto answer = Polled(challenge);
    m_run.Parts.User.EndApproval();
    return answer;
}

// Asks the bank until it has the approval, never earlier or more often than it allows.
std::optional<cBankAnswer> cBankDialog::Polled(const cTanChallenge& challenge)
{
    cApproval approval = ApprovalFor(challenge, m_method, m_run.State, m_run.Purpose);
    const cTanRequest request{.Process = "S", .Reference = challenge.Reference};
    const int version = std::max(m_method.SegmentVersion, 7); // the status request came with this version
    while (approval.MostAsked == 0 || approval.Asked < approval.MostAsked) {
        const bool isOver = approval.ValidUntil.isValid() && m_run.Parts.Clock.Now() > approval.ValidUntil;
        if (m_run.Parts.User.WaitForApproval(approval) == eApproval::Cancel) {
            return Stop(modBankFault::Of(eBankFault::Cancelled));
        }
        auto answer = Exchange({HBCIFactory::Tan(version, request)}, nullptr);
        if (!answer || !answer->Has(u"3956")) {
            return answer;
        }
        if (isOver) {
            break; // asked once more after the time, because clocks differ
        }
        ++approval.Asked;
        approval.WaitSeconds = m_method.WaitBeforeNext;
    }
    return Fail(modBankFault::Of(eBankFault::ApprovalMissing));
}
