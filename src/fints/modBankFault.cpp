#include "fints/modBankFault.h"

#include "base/cText.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QString TextOfConnection(eBankFault fault)
{
    switch (fault) {
    case eBankFault::NotReachable:
        return cText::Tr("Die Bank ist nicht erreichbar. Prüfen Sie die Verbindung zum Internet und die Adresse der "
                         "Bank.");
    case eBankFault::Silent: return cText::Tr("Versuchen Sie es später noch einmal.");
    case eBankFault::Certificate:
        return cText::Tr("Die Gegenstelle konnte sich nicht als Ihre Bank ausweisen. Es wurde nichts gesendet. Prüfen "
                         "Sie die Adresse der Bank und ob Sie in einem fremden Netz sind.");
    case eBankFault::BrokenAnswer:
        return cText::Tr("Die Antwort der Bank ist unvollständig oder nicht lesbar. Versuchen Sie es später noch "
                         "einmal; bleibt es dabei, prüfen Sie die Adresse der Bank.");
    default: return cText::Tr("Die Bank hat den Vorgang beendet. Versuchen Sie es später noch einmal.");
    }
}

QString TextOfAccess(eBankFault fault)
{
    switch (fault) {
    case eBankFault::NoProduct:
        return cText::Tr("Es ist keine Produktregistrierung eingetragen, ohne die keine Bank antwortet. Tragen Sie "
                         "diese unter „Bankzugänge…“ ein. Es wurde nichts gesendet.");
    case eBankFault::Registration:
        return cText::Tr("Die Bank nimmt die Produktregistrierung nicht an. Prüfen Sie, ob sie richtig eingetragen "
                         "und noch gültig ist.");
    case eBankFault::WrongPin:
        return cText::Tr("Sie haben die falsche PIN eingegeben. Häufige Fehleingaben können zur Sperrung von Ihrem "
                         "Account führen.");
    case eBankFault::Locked:
        return cText::Tr("Ihr Zugang oder Ihre PIN ist gesperrt. Entsperren Sie ihn auf der Internetseite oder in der "
                         "App Ihrer Bank oder fragen Sie dort nach. Die PIN wurde nicht noch einmal gesendet.");
    default:
        return cText::Tr("Die Bank hat die Anmeldung abgelehnt. Prüfen Sie den Anmeldenamen, und ob der Zugang für "
                         "Online-Banking mit Programmen (FinTS) freigeschaltet ist.");
    }
}

QString TextOfTan(eBankFault fault)
{
    switch (fault) {
    case eBankFault::TanWrong:
        return cText::Tr("Die TAN war falsch oder nicht mehr gültig. Wiederholen Sie den Vorgang mit einer neuen TAN.");
    case eBankFault::ApprovalRejected:
        return cText::Tr("Die Freigabe wurde abgelehnt. Waren Sie das nicht selbst, wenden Sie sich an Ihre Bank.");
    case eBankFault::ApprovalMissing:
        return cText::Tr("Die Freigabe kam nicht rechtzeitig. Wiederholen Sie den Vorgang und bestätigen Sie ihn in "
                         "der App Ihrer Bank.");
    case eBankFault::NoMethod:
        return cText::Tr("Die Bank bietet für Ihren Zugang kein TAN-Verfahren an, das dieses Programm kennt. Richten "
                         "Sie bei der Bank ein anderes ein.");
    default:
        return cText::Tr("Die Bank will wissen, welches Gerät die TAN bekommt. Wählen Sie unter „Bankzugänge…“ eines "
                         "aus.");
    }
}

} // namespace

static QString TextOf(eBankFault fault)
{
    switch (fault) {
    case eBankFault::None: return {};
    case eBankFault::NoProduct:
    case eBankFault::Registration:
    case eBankFault::WrongPin:
    case eBankFault::Locked:
    case eBankFault::LoginRefused: return TextOfAccess(fault);
    case eBankFault::TanWrong:
    case eBankFault::ApprovalRejected:
    case eBankFault::ApprovalMissing:
    case eBankFault::NoMethod:
    case eBankFault::MediumMissing: return TextOfTan(fault);
    case eBankFault::NotReachable:
    case eBankFault::Silent:
    case eBankFault::Certificate:
    case eBankFault::BrokenAnswer:
    case eBankFault::EndedByBank: return TextOfConnection(fault);
    case eBankFault::NoAccounts:
        return cText::Tr("Die Bank hat keine Konten genannt. Prüfen Sie, ob Ihr Zugang für Online-Banking mit "
                         "Programmen (FinTS) freigeschaltet ist.");
    case eBankFault::NoStatements:
        return cText::Tr("Die Bank stellt für dieses Konto keine Umsätze zum Abruf bereit. Laden Sie dort eine Datei "
                         "herunter und importieren Sie diese.");
    case eBankFault::Cancelled: return cText::Tr("Abgebrochen.");
    case eBankFault::Other: break;
    }
    return cText::Tr("Die Bank hat den Auftrag nicht ausgeführt. Was sie dazu sagt, steht darunter.");
}

cBankError modBankFault::Of(eBankFault fault, const QString& errorText, const QString& bankWords)
{
    const QString text = TextOf(fault);
    return {.Failure = {.Fault = fault, .Text = text, .BankWords = bankWords},
            .ErrorText = errorText.isEmpty() ? text : errorText};
}

cBankError modBankFault::Specific(eBankFault fault, const QString& errorText)
{
    cBankError error = Of(fault, errorText);
    error.Failure.Text.prepend(errorText + u' ');
    return error;
}

cBankError modBankFault::Silence(const QString& url)
{
    return Specific(eBankFault::Silent,
                    cText::Tr("Fehler: Der Server '{0}' antwortet nicht oder nicht schnell genug!", {url}));
}

cBankError modBankFault::OfTransport(const cHttpsAnswer& answer, const QString& url)
{
    cBankError error = Silence(url);
    switch (answer.Fault) {
    case eHttpsFault::NotReachable: error.Failure = Of(eBankFault::NotReachable).Failure; break;
    case eHttpsFault::Certificate: error.Failure = Of(eBankFault::Certificate).Failure; break;
    case eHttpsFault::TooLarge:
    case eHttpsFault::Refused: error.Failure = Of(eBankFault::BrokenAnswer).Failure; break;
    case eHttpsFault::Cancelled: return Of(eBankFault::Cancelled);
    case eHttpsFault::None:
    case eHttpsFault::Silent: break;
    }
    return error;
}

static bool HasAny(const cBankAnswer& answer, std::initializer_list<QStringView> codes)
{
    return std::any_of(codes.begin(), codes.end(), [&](QStringView code) { return answer.Has(code); });
}

static bool HasError(const cBankAnswer& answer)
{
    const auto& messages = answer.Messages();
    return std::any_of(messages.begin(), messages.end(),
                       [](const cReturnMessage& message) { return message.Code.startsWith(u'9'); });
}

static eBankFault FaultOf(const cBankAnswer& answer, eAnswerTo to)
{
    if (answer.IsLocked()) {
        return eBankFault::Locked; // a locked access answers "PIN wrong" too, to a right one
    }
    const bool isUnsigned = answer.Has(u"9340"); // by the TAN, where one was sent: its PIN was good before
    if (answer.IsWrongPin() || (isUnsigned && to != eAnswerTo::Tan)) {
        return eBankFault::WrongPin;
    }
    if (to != eAnswerTo::Order && (isUnsigned || HasAny(answer, {u"9941", u"9943"}))) {
        return to == eAnswerTo::Tan ? eBankFault::TanWrong : eBankFault::ApprovalRejected;
    }
    if (!HasError(answer)) {
        return eBankFault::None;
    }
    if (HasAny(answer, {u"3078", u"3079", u"9078", u"9952", u"9160", u"9400"})) {
        return eBankFault::Registration;
    }
    return answer.IsAborted() ? eBankFault::EndedByBank : eBankFault::Other;
}

cBankError modBankFault::OfAnswer(const cBankAnswer& answer, eAnswerTo to)
{
    const eBankFault fault = FaultOf(answer, to);
    if (fault == eBankFault::None) {
        return {};
    }
    // The wrong PIN has a sentence of its own; everything else is told in the words of the bank.
    return Of(fault, fault == eBankFault::WrongPin ? QString() : answer.CollectedText(), answer.BankWords());
}

bool modBankFault::IsPinRefused(eBankFault fault)
{
    return fault == eBankFault::WrongPin || fault == eBankFault::Locked;
}
