#include "fints/HBCIBusiness.h"

#include "base/cBankUser.h"
#include "base/cText.h"
#include "fints/cBankDialog.h"
#include "fints/cBankRun.h"
#include "fints/cStatementFetch.h"
#include "fints/modBankMemory.h"
#include "fints/modBankParameters.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

struct HBCIBusiness::cSession
{
    cBankRun Run;
    QList<cFetchedAccount> Fetched = {};

    bool Begin();
    [[nodiscard]] bool IsLoginRefused() const;
    bool JudgeDiscovery(const cBankError& error);
    bool HasMethod();
    bool FindMedium();
    bool ReadMedia(cBankDialog& dialog);
    bool RefreshOnce();
    bool DiscoverAgain();
    bool FailSetUp();
    void FetchIn(cBankDialog& dialog, const QList<cFetchOrder>& orders);
    void FailAll(const QList<cFetchOrder>& orders);
};

// The procedure of a dialog before any is known.
static TanVerfahrenItem Unknown()
{
    return modBankMemory::OneStep(u"UnkFinTS"_s);
}

// Clears what the last operation left. False when nothing may be sent.
bool HBCIBusiness::cSession::Begin()
{
    Run.Found.clear();
    Run.HasFunctions = false;
    Run.Collected.clear();
    Run.BankWords.clear();
    Run.Error = {};
    Run.Purpose.clear();
    Fetched.clear();
    if (Run.Parts.ProductId.trimmed().isEmpty()) {
        return Run.Fail(modBankFault::Of(eBankFault::NoProduct));
    }
    return !Run.Refused.IsSet() || Run.Fail(Run.Refused);
}

bool HBCIBusiness::cSession::IsLoginRefused() const
{
    const QString words = Run.Collected.toLower();
    return words.contains(u"benutzerkennung") || words.contains(u"fehlgeschlagen");
}

// Before a strong authentication many banks name the TAN procedures and no accounts: enough to go on.
bool HBCIBusiness::cSession::JudgeDiscovery(const cBankError& error)
{
    const QString words = Run.BankWords.join(u'\n');
    const bool isSilent = Run.Found.isEmpty() && !Run.HasFunctions;
    if (Run.Refused.IsSet()) {
        return Run.Fail(Run.Refused);
    }
    if ((error.IsSet() || isSilent) && IsLoginRefused()) {
        return Run.Fail(modBankFault::Of(eBankFault::LoginRefused, Run.Collected, words));
    }
    // A bank that breaks off because it wants a strong authentication may have told all that this dialog is for.
    const bool isTold = Run.HasFunctions && !Run.State.Methods.isEmpty();
    const bool isHarmless = isTold && error.Failure.Fault == eBankFault::EndedByBank;
    if (error.IsSet() && error.Failure.Fault != eBankFault::Other && !isHarmless) {
        return Run.Fail(error);
    }
    if (isSilent) {
        const QString text = cText::Tr("Die Kontodaten konnten nicht abgerufen werden.");
        return Run.Fail(modBankFault::Of(eBankFault::NoAccounts, text, words));
    }
    if (Run.State.Methods.isEmpty()) {
        const QString text = cText::Tr("Kein unterstütztes TAN-Verfahren gefunden.");
        return Run.Fail(modBankFault::Of(eBankFault::NoMethod, text + u"\r\n" + Run.Collected, words));
    }
    return true;
}

// A procedure that the bank dropped is none any more, and where it offers one only there is nothing to choose.
static void ChooseMethod(cBankState& state)
{
    const auto isChosen = [&](const TanVerfahrenItem& method) {
        return state.Method && method.SecurityFunction == state.Method->SecurityFunction;
    };
    if (std::none_of(state.Methods.cbegin(), state.Methods.cend(), isChosen)) {
        state.Method.reset();
    }
    if (!state.Method && state.Methods.size() == 1) {
        state.Method = state.Methods.constFirst();
    }
}

bool HBCIBusiness::Discover()
{
    cBankRun& run = m_session->Run;
    if (!m_session->Begin()) {
        return false;
    }
    run.IsNew = run.State.Accounts.isEmpty();
    cBankDialog dialog(run, Unknown());
    const bool isOpen = dialog.Open({.IsSync = true, .IsFromScratch = true, .TanSegment = {}});
    dialog.End();
    if (!m_session->JudgeDiscovery(isOpen ? cBankError() : dialog.Error())) {
        return false;
    }
    ChooseMethod(run.State);
    return true;
}

bool HBCIBusiness::cSession::HasMethod()
{
    return Run.State.Method
        || Run.Fail(
            modBankFault::Of(eBankFault::NoMethod, cText::Tr("Es wurden keine unterstützen TAN-Verfahren gefunden.")));
}

// A bank that does not take an order without a medium tells its media in a dialog that is for nothing else.
bool HBCIBusiness::cSession::FindMedium()
{
    cBankState& state = Run.State;
    if (!modBankMemory::LacksMedium(state)) {
        return true;
    }
    cBankDialog dialog(Run, *state.Method);
    const bool isRead =
        dialog.Open({.IsSync = false, .IsFromScratch = false, .TanSegment = "HKTAB"}) && ReadMedia(dialog);
    dialog.End();
    if (!isRead) {
        return Run.Fail(dialog.Error());
    }
    const bool isOpenChoice = modBankMemory::LacksMedium(state) && !state.Media.isEmpty();
    return !isOpenChoice || Run.Fail(modBankFault::Of(eBankFault::MediumMissing));
}

// False only when the dialog is over: a bank may refuse to tell its media.
bool HBCIBusiness::cSession::ReadMedia(cBankDialog& dialog)
{
    const QList<QByteArray>& parameters = Run.State.Parameters;
    const bool hasFour = modBankParameters::Offers(parameters, "HITABS", 4);
    if (!hasFour && !modBankParameters::Offers(parameters, "HITABS", 5)) {
        return true;
    }
    Run.Parts.User.ShowStep(cText::Tr("TAN-Medien werden abgefragt"));
    return dialog.Send({HBCIFactory::Media(hasFour ? 4 : 5)}).has_value() || dialog.CanGoOn();
}

bool HBCIBusiness::cSession::RefreshOnce()
{
    if (!FindMedium()) {
        return false;
    }
    cBankDialog dialog(Run, *Run.State.Method);
    const bool isDone = dialog.Open({}) && ReadMedia(dialog);
    dialog.End();
    return isDone || Run.Fail(dialog.Error());
}

bool HBCIBusiness::cSession::DiscoverAgain()
{
    Run.Error = {};
    cBankDialog dialog(Run, Unknown());
    const bool isOpen = dialog.Open({.IsSync = true, .IsFromScratch = false, .TanSegment = {}});
    dialog.End();
    return isOpen || Run.Fail(dialog.Error());
}

// Nothing but the words of the bank says what is wrong.
static bool IsOfBank(eBankFault fault)
{
    return fault == eBankFault::Other || fault == eBankFault::EndedByBank;
}

// What the bank says when it gives no accounts belongs into a sentence about them.
bool HBCIBusiness::cSession::FailSetUp()
{
    if (!IsOfBank(Run.Error.Failure.Fault)) {
        return false;
    }
    const auto sentence = [&](const QString& why) {
        return Run.IsNew
            ? cText::Tr("Die Kontodaten konnten nicht ermittelt werden.\n{0}", {why})
            : cText::Tr("Legen Sie dieses Bankkonto neu an, sollte der Fehler weiterhin bestehen.\n{0}", {why});
    };
    Run.Error.ErrorText = sentence(Run.Collected);
    Run.Error.Failure.Text = sentence(Run.Error.Failure.Text);
    return false;
}

bool HBCIBusiness::Refresh()
{
    cBankRun& run = m_session->Run;
    if (!m_session->Begin() || !m_session->HasMethod()) {
        return false;
    }
    bool isDone = m_session->RefreshOnce();
    // With the accounts in the same answer the words are news and no error.
    const bool isBankSpeaking = isDone || IsOfBank(run.Error.Failure.Fault);
    if (isBankSpeaking && run.Found.isEmpty() && run.Collected.contains(u"UPD nicht mehr aktuell")) {
        isDone = m_session->DiscoverAgain();
    }
    if (!isDone) {
        return m_session->FailSetUp();
    }
    if (run.State.Accounts.isEmpty()) {
        return run.Fail(modBankFault::Of(eBankFault::NoAccounts,
                                         cText::Tr("Die Kontodaten konnten nicht abgerufen werden."),
                                         run.BankWords.join(u'\n')));
    }
    return true;
}

bool HBCIBusiness::getAccountTransactions(const cFetchOrder& order)
{
    return FetchAll({order});
}

bool HBCIBusiness::FetchAll(const QList<cFetchOrder>& orders)
{
    cBankRun& run = m_session->Run;
    if (m_session->Begin() && m_session->HasMethod() && m_session->FindMedium()) {
        cBankDialog dialog(run, *run.State.Method);
        if (dialog.Open({})) {
            m_session->FetchIn(dialog, orders);
        } else {
            run.Error = dialog.Error();
        }
        dialog.End();
    }
    m_session->FailAll(orders);
    return !run.Error.IsSet();
}

// One account that fails leaves the others, as long as the bank goes on talking.
void HBCIBusiness::cSession::FetchIn(cBankDialog& dialog, const QList<cFetchOrder>& orders)
{
    cStatementFetch fetch(Run, dialog);
    for (const cFetchOrder& order : orders) {
        if (!dialog.CanGoOn()) {
            break;
        }
        Fetched.append(fetch.Fetch(order));
        const eBankFault fault = Fetched.constLast().Failure.Fault;
        if (fault != eBankFault::None && !Run.Error.IsSet()) {
            Run.Error = fault == eBankFault::NoStatements ? modBankFault::Of(fault) : dialog.Error();
        }
    }
    if (Fetched.size() < orders.size()) {
        Run.Error = dialog.Error();
    }
}

// Accounts whose turn never came failed for the reason of the whole.
void HBCIBusiness::cSession::FailAll(const QList<cFetchOrder>& orders)
{
    for (qsizetype at = Fetched.size(); at < orders.size(); ++at) {
        cFetchedAccount missed;
        missed.Account = orders.at(at).Account;
        missed.Failure = Run.Error.Failure;
        Fetched.append(missed);
    }
}

HBCIBusiness::HBCIBusiness(const cParts& parts, cBankState& state, const cSecret& pin)
    : m_session(new cSession{.Run = {.Parts = parts, .State = state, .Pin = pin}})
{
}

HBCIBusiness::~HBCIBusiness() = default;

const QList<cFetchedAccount>& HBCIBusiness::Fetched() const
{
    return m_session->Fetched;
}

const cBankFailure& HBCIBusiness::Failure() const
{
    return m_session->Run.Error.Failure;
}

const QString& HBCIBusiness::ErrorText() const
{
    return m_session->Run.Error.ErrorText;
}

const QString& HBCIBusiness::AddressHint() const
{
    return m_session->Run.AddressHint;
}
