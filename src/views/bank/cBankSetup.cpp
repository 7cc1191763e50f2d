#include "views/bank/cBankSetup.h"

#include "base/cBankUser.h"
#include "base/cClock.h"
#include "base/cHttps.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "fints/cBankLog.h"
#include "fints/HBCIBusiness.h"
#include "fints/modBankParameters.h"
#include "import/read/modAccountNumber.h"
#include "store/cUndoStep.h"
#include "views/bank/cBankCustomer.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/modBankText.h"

#include <QScopeGuard>
#include <QUrl>

#include <algorithm>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shownBanks = 50;

} // namespace

cBankSetup::cBankSetup(const cParts& parts, QObject* parent)
    : QObject(parent),
      m_parts(parts),
      m_access(parts.Tools),
      m_customer(std::make_unique<cBankCustomer>(parts.User, [this](const QString& text) { Q_EMIT StepShown(text); })),
      m_log(std::make_unique<cBankLog>()),
      m_productId(m_access.ProductId()),
      m_firstDay(UsualFirstDay())
{
}

cBankSetup::~cBankSetup() = default;

void cBankSetup::Load(const cBankState& state)
{
    Disconnect();
    m_state = state;
    m_before = state;
    m_isNew = false;
    m_page = ePage::Login;
}

QString cBankSetup::BankText() const
{
    return modBankText::Bank(m_state);
}

cBankMatches cBankSetup::Search(const QString& text) const
{
    return m_parts.Directory.Search(text, shownBanks);
}

QString cBankSetup::Title(const cBankInfo& bank) const
{
    return m_parts.Directory.Title(bank) + u", "_s + bank.Code;
}

void cBankSetup::ChooseBank(const cBankInfo& bank)
{
    Disconnect();
    const QString userId = m_state.UserId;
    m_state = {};
    m_state.UserId = userId;
    m_state.BankCode = bank.Code;
    m_state.BankName = bank.Name;
    m_state.Bic = bank.Bic;
    m_state.Url = bank.Url;
    m_state.HbciVersion = m_access.HbciVersion(bank.Code);
    if (m_state.Url.isEmpty()) { // it may have been typed for another login
        const QList<cBankState> banks = m_access.Banks();
        const auto other =
            std::find_if(banks.begin(), banks.end(), [&](const auto& each) { return each.BankCode == bank.Code; });
        m_state.Url = other == banks.end() ? QString() : other->Url;
    }
}

void cBankSetup::ChooseCode(const QString& code)
{
    const QString digits = QString(code).remove(u' ');
    cBankInfo unknown;
    unknown.Code = digits;
    ChooseBank(m_parts.Directory.Find(digits).value_or(unknown));
}

bool cBankSetup::IsCode(const QString& text)
{
    return modAccountNumber::IsBankCode(QString(text).remove(u' '));
}

void cBankSetup::SetUrl(const QString& url)
{
    if (m_state.Url != url.trimmed()) {
        Disconnect();
        m_state.Url = url.trimmed();
    }
}

void cBankSetup::SetHbciVersion(const QString& version)
{
    m_state.HbciVersion = version;
}

QString cBankSetup::BankProblem() const
{
    if (m_state.BankCode.isEmpty()) {
        return cText::Tr("Suchen Sie Ihre Bank und wählen Sie sie aus der Liste.");
    }
    if (m_state.Url.isEmpty()) {
        return cText::Tr("Für diese Bank ist keine Adresse für das Online-Banking mit Programmen (FinTS) bekannt; "
                         "manche Banken bieten es nicht an. Kennen Sie die Adresse von Ihrer Bank, tragen Sie sie "
                         "unter „Erweitert“ ein. Sonst laden Sie Kontoauszüge bei Ihrer Bank herunter und lesen sie "
                         "mit „Datei“, „Kontoauszug importieren“ ein.");
    }
    const QUrl url(m_state.Url, QUrl::StrictMode);
    if (url.isValid() && url.scheme() == u"https" && !url.host().isEmpty()) {
        return {};
    }
    return m_isNew ? cText::Tr("Die Adresse der Bank muss mit https:// beginnen. Prüfen Sie sie unter „Erweitert“.")
                   : cText::Tr("Die Adresse der Bank muss mit https:// beginnen.");
}

QString cBankSetup::LoginLabel() const
{
    return modBankParameters::UserIdLabel(m_state.Parameters);
}

void cBankSetup::SetUserId(const QString& userId)
{
    if (m_state.UserId != userId.trimmed()) {
        Disconnect();
        m_state.UserId = userId.trimmed();
    }
}

void cBankSetup::SetProductId(const QString& id)
{
    if (m_productId != id.trimmed()) {
        Disconnect();
        m_productId = id.trimmed();
    }
}

QString cBankSetup::LoginProblem() const
{
    if (m_state.UserId.isEmpty()) {
        return cText::Tr("Geben Sie den Anmeldenamen ein, mit dem Sie sich beim Online-Banking Ihrer Bank anmelden.");
    }
    if (m_isNew && m_access.Find(m_state.BankCode, m_state.UserId)) {
        return cText::Tr("Dieser Zugang ist schon eingerichtet. Ändern Sie ihn unter „Bankzugänge…“.");
    }
    return m_productId.isEmpty() ? cText::Tr("Tragen Sie die Produktregistrierung ein. Ohne sie antwortet keine Bank, "
                                             "und es wird nichts gesendet.")
                                 : QString();
}

// The question for the PIN comes before the first message, and again after the bank has refused it.
bool cBankSetup::Connect()
{
    std::optional<cSecret> pin = m_customer->AskPin({BankText(), m_state.BankCode, m_state.UserId, LoginLabel()});
    if (!pin) {
        return false;
    }
    m_pin = *std::move(pin);
    if (m_isNew) {
        m_state.Accounts.clear(); // of a try that failed: the login has none yet
    }
    m_business =
        std::make_unique<HBCIBusiness>(HBCIBusiness::cParts{m_parts.Https, *m_customer, m_parts.Tools.Clock, *m_log,
                                                            m_productId, modBankText::ProductVersion(m_parts.Version)},
                                       m_state, m_pin);
    return true;
}

void cBankSetup::Disconnect()
{
    m_business.reset();
    m_pin = {};
}

bool cBankSetup::Run(bool (HBCIBusiness::*operation)())
{
    m_isRunning = true;
    const auto ended = qScopeGuard([this] { m_isRunning = false; });
    m_failure = {};
    m_customer->SetCancelled(false);
    if (!m_business && !Connect()) {
        m_failure = {eBankFault::Cancelled, cText::Tr("Abgebrochen. Es wurde nichts gesendet."), {}};
        return false;
    }
    if ((m_business.get()->*operation)()) {
        return true;
    }
    m_failure = m_business->Failure();
    if (m_failure.Fault == eBankFault::WrongPin || m_failure.Fault == eBankFault::Locked) {
        Disconnect();
    }
    return false;
}

bool cBankSetup::Discover()
{
    return Run(&HBCIBusiness::Discover);
}

QString cBankSetup::AddressNote() const
{
    return m_business ? modBankText::OtherAddress(m_business->AddressHint()) : QString();
}

bool cBankSetup::Refresh()
{
    if (!Run(&HBCIBusiness::Refresh)) {
        return false;
    }
    m_accounts.emplace(m_parts.Tools, m_state, m_isNew);
    return true;
}

QString cBankSetup::LogText() const
{
    return m_log->Text();
}

QString cBankSetup::LogForOthers() const
{
    return m_log->TextForOthers(modBankText::People(m_state));
}

void cBankSetup::Cancel()
{
    m_customer->SetCancelled(true);
    m_parts.Https.Cancel();
}

QStringList cBankSetup::Methods() const
{
    QStringList names;
    std::transform(m_state.Methods.begin(), m_state.Methods.end(), std::back_inserter(names), modBankText::Method);
    return names;
}

int cBankSetup::Method() const
{
    const auto found =
        std::find_if(m_state.Methods.begin(), m_state.Methods.end(), [this](const TanVerfahrenItem& method) {
            return m_state.Method && method.SecurityFunction == m_state.Method->SecurityFunction;
        });
    return found == m_state.Methods.end() ? -1 : static_cast<int>(found - m_state.Methods.begin());
}

void cBankSetup::ChooseMethod(int method)
{
    if (method != Method() && method >= 0 && method < m_state.Methods.size()) {
        m_state.Method = m_state.Methods.at(method);
        m_state.Medium.clear();
    }
}

int cBankSetup::Medium() const
{
    return static_cast<int>(m_state.Media.indexOf(m_state.Medium));
}

bool cBankSetup::AsksMedium() const
{
    return m_state.Method && m_state.Method->MediaNameRequired != u"0" && m_state.Media.size() > 1;
}

void cBankSetup::ChooseMedium(int medium)
{
    m_state.Medium = m_state.Media.value(medium);
}

// True when there is no problem.
bool cBankSetup::Note(const QString& problem)
{
    m_problem = problem;
    return problem.isEmpty();
}

// The accounts of the book are one step that can be taken back; what the bank told is none.
bool cBankSetup::Save()
{
    m_failure = {};
    if (!Note(m_accounts->Problem())) {
        return false;
    }
    const QList<cBankAccountChoice::cLine>& lines = m_accounts->Lines();
    cUndoStep step(m_parts.Tools.Data, cText::Tr("Bankzugang eingerichtet: {0}", {BankText()}));
    const bool isAssigned = std::all_of(lines.begin(), lines.end(), [this](const cBankAccountChoice::cLine& line) {
        return !line.IsChosen || m_access.Assign(m_state, line.Account, line.BookAccount);
    });
    return step.DoneIf(isAssigned) && m_access.SetProductId(m_productId) && m_access.Save(m_state)
        && m_access.Choose(m_state, m_accounts->Chosen());
}

bool cBankSetup::Next()
{
    m_problem.clear();
    m_failure = {};
    switch (m_page) {
    case ePage::Bank:
        if (!Note(BankProblem())) {
            return false;
        }
        m_page = ePage::Login;
        return true;
    case ePage::Login: return LeaveLogin();
    case ePage::Method: return LeaveMethod();
    case ePage::Accounts:
        if (!Save()) {
            return false;
        }
        m_page = ePage::Done;
        return true;
    case ePage::Done: break;
    }
    return false;
}

// Where there is nothing to choose, the accounts come at once.
bool cBankSetup::LeaveLogin()
{
    if (!Note(BankProblem()) || !Note(LoginProblem())) {
        return false;
    }
    if (!Discover()) {
        m_problem = m_failure.Text;
        return false;
    }
    const bool hasChoice = m_state.Methods.size() > 1;
    if (!m_state.Method && hasChoice) {
        ChooseMethod(0);
    }
    m_page = ePage::Method;
    return hasChoice || LeaveMethod();
}

bool cBankSetup::LeaveMethod()
{
    if (!Refresh()) {
        m_problem = m_failure.Fault == eBankFault::MediumMissing
            ? cText::Tr("Die Bank will wissen, welches TAN-Medium Sie benutzen. Wählen Sie es aus.")
            : m_failure.Text;
        return false;
    }
    m_page = ePage::Accounts;
    return true;
}

// What the bank has told is no loss: it tells it again.
bool cBankSetup::MayClose()
{
    const auto typed = [](const cBankState& state) {
        return std::tuple(state.BankCode, state.UserId, state.Url, state.HbciVersion,
                          state.Method ? state.Method->SecurityFunction : QString(), state.Medium);
    };
    const bool isTouched = typed(m_state) != typed(m_before) || m_productId != m_access.ProductId()
        || (m_accounts && m_accounts->IsChanged()) || m_firstDay != UsualFirstDay();
    return !isTouched
        || m_parts.Tools.User.Ask({.Text = cText::Tr("Der Bankzugang ist noch nicht gespeichert.\nMöchten Sie Ihre "
                                                     "Eingaben verwerfen?"),
                                   .Title = cText::Tr("Nicht gespeichert"),
                                   .Default = eAnswer::No})
        == eAnswer::Yes;
}

bool cBankSetup::CanGoBack() const
{
    return m_page == ePage::Method || m_page == ePage::Accounts || (m_page == ePage::Login && m_isNew);
}

void cBankSetup::Back()
{
    m_problem.clear();
    m_failure = {};
    switch (m_page) {
    case ePage::Login: m_page = ePage::Bank; break;
    case ePage::Method: m_page = ePage::Login; break;
    case ePage::Accounts: m_page = m_state.Methods.size() > 1 ? ePage::Method : ePage::Login; break;
    case ePage::Bank:
    case ePage::Done: break;
    }
}

QDate cBankSetup::UsualFirstDay() const
{
    return m_parts.Tools.Clock.Today().addDays(-cBankFetch::DaysWithoutTan);
}

void cBankSetup::SetFirstDay(QDate day)
{
    m_firstDay = day.isValid() && day <= m_parts.Tools.Clock.Today() ? day : UsualFirstDay();
}

QString cBankSetup::FirstDayNote() const
{
    return m_firstDay < UsualFirstDay() ? cText::Tr("Für ältere Umsätze verlangt die Bank meist eine TAN.") : QString();
}
