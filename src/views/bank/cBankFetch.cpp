#include "views/bank/cBankFetch.h"

#include "base/cBankUser.h"
#include "base/cClock.h"
#include "base/cHttps.h"
#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "fints/cBankLog.h"
#include "fints/HBCIBusiness.h"
#include "fints/modBankParameters.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cFetchMemory.h"
#include "import/stage/cImportResult.h"
#include "store/cDataAccess.h"
#include "views/bank/cBankCustomer.h"
#include "views/bank/modBankText.h"
#include "views/ledger/cStatementLedger.h"
#include "views/ledger/modBalanceText.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cFilesOutcome.h"
#include "views/statement/cStatementFiles.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int overlap = 10;           // days that are fetched once more
constexpr qsizetype mostProblems = 5; // named of one account

QString NameOf(const cBankAccount& account)
{
    QStringList parts{modBankText::Product(account), modBankText::Number(account)};
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(u", "_s);
}

// As statements name it: their reader leaves leading zeros out. Where accounts share a number it is that of none.
QString NumberIn(const cBankState& state, const cBankAccount& account)
{
    if (!account.Iban.isEmpty() && cBankAccess::IsNumberShared(state, account)) {
        return account.Iban;
    }
    QString number = cBankAccess::NumberOf(state, account);
    while (number.startsWith(u'0')) {
        number.remove(0, 1);
    }
    return number.isEmpty() ? account.Iban : number;
}

QString MemoryKey(const cBankState& state, const cBankAccount& account)
{
    const QString sub = account.SubNumber.isEmpty() ? QString() : u'/' + account.SubNumber;
    return state.BankCode + u':' + (account.Number.isEmpty() ? account.Iban : account.Number) + sub;
}

QString LastText(QDate day)
{
    return day.isValid() ? cText::Tr("zuletzt abgerufen am {0}", {modDate::ToText(day)})
                         : cText::Tr("noch nie abgerufen");
}

// For how many days the bank has the bookings of an account; 0: it does not say.
int KeptDays(const cBankState& state, const cBankAccount& account)
{
    const bool isKaz = modBankParameters::StatementOrder(state.Parameters, account).MT940 > 0;
    return modBankParameters::StatementDays(state.Parameters, isKaz ? "HIKAZS" : "HICAZS");
}

// The IBAN may have become known on the way.
bool IsSame(const cBankAccount& a, const cBankAccount& b)
{
    return a.Number == b.Number && a.SubNumber == b.SubNumber
        && (a.Iban == b.Iban || (!a.Number.isEmpty() && (a.Iban.isEmpty() || b.Iban.isEmpty())));
}

QString Missing(QDate from, QDate to, const QString& why)
{
    return cText::Tr("Umsätze vom {0} bis {1} wurden nicht abgerufen: {2}",
                     {modDate::ToText(from), modDate::ToText(to), why});
}

cBankFailure Cancelled()
{
    return {eBankFault::Cancelled, cText::Tr("Der Abruf wurde abgebrochen."), {}};
}

} // namespace

struct cBankFetch::cLogin
{
    cBankState State;
    QList<cBankAccount> Accounts;
    qsizetype First = 0; // place of the first one
};

struct cBankFetch::cJob
{
    cLogin* Login;
    QList<qsizetype> Places;
    QList<cFetchOrder> Orders;

    void Add(qsizetype place, const cFetchOrder& order)
    {
        Places.append(place);
        Orders.append(order);
    }
};

struct cBankFetch::cCame
{
    qsizetype Place;
    const cLogin* Login;
    cFetchOrder Order;
    cBankFailure Failure; // set when not all came
    bool HasBalance;
    bool IsNamed; // the first day, by the user
};

struct cBankFetch::cRun
{
    bool IsNamed; // the first day, by the user
    QList<cFetchedStatement> Statements{};
    std::vector<cCame> Came{}; // of these
    std::vector<std::unique_ptr<cFetchMemory>> Memories{};
};

cBankFetch::cBankFetch(const cBookTools& tools, cStatementFiles& files, const cPorts& ports, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_files(files),
      m_ports(ports),
      m_access(tools),
      m_customer(std::make_unique<cBankCustomer>(ports.User, [this](const QString& text) { Q_EMIT StepShown(text); })),
      m_log(std::make_unique<cBankLog>())
{
    m_dialog = [this](cBankState& state, const cSecret& pin, const QList<cFetchOrder>& orders,
                      QList<cFetchedAccount>& fetched) {
        HBCIBusiness business({m_ports.Https, *m_customer, m_tools.Clock, *m_log, m_access.ProductId(),
                               modBankText::ProductVersion(m_ports.Version)},
                              state, pin);
        const bool isDone = business.FetchAll(orders);
        fetched = business.Fetched();
        m_otherAddress = business.AddressHint();
        return isDone ? cBankFailure() : business.Failure();
    };
    Load();
}

cBankFetch::~cBankFetch() = default;

void cBankFetch::Load()
{
    m_logins.clear();
    m_accounts.clear();
    const QList<cBankState> banks = m_access.Banks();
    for (const cBankState& state : banks) {
        m_logins.push_back({state, m_access.Chosen(state), m_accounts.size()});
        for (const cBankAccount& account : std::as_const(m_logins.back().Accounts)) {
            const QDate last = m_access.LastFetch(state, account);
            m_accounts.append({modBankText::Bank(state), state.BankCode, state.UserId, NameOf(account),
                               cBankAccess::NumberOf(state, account), account.Iban,
                               m_access.BookAccountOf(state, account), last, LastText(last)});
        }
    }
    m_lines = QList<cLine>(m_accounts.size());
}

QString cBankFetch::EmptyHint() const
{
    return m_accounts.isEmpty()
        ? cText::Tr("Es ist noch kein Bankkonto eingerichtet. Mit „Bankzugang einrichten…“ richten Sie eines ein.")
        : QString();
}

QDate cBankFetch::Today() const
{
    return m_tools.Clock.Today();
}

QDate cBankFetch::FirstDay(qsizetype account) const
{
    const QDate last = m_accounts.at(account).LastFetch;
    return last.isValid() ? qMin(last, Today()).addDays(-overlap) : Today().addDays(-DaysWithoutTan);
}

bool cBankFetch::Run(const cWish& wish, cProgress& progress)
{
    m_customer->SetCancelled(false);
    m_lines = QList<cLine>(m_accounts.size());
    m_notes.clear();
    std::vector<cJob> jobs = Jobs(wish);
    if (!IsPossible(jobs) || !AskAboutOld(jobs)) {
        m_lines = QList<cLine>(m_accounts.size());
        Q_EMIT Finished(false);
        return false;
    }
    cRun run{wish.From.isValid()};
    for (cJob& job : jobs) {
        if (m_customer->IsCancelled()) {
            FailAll(job, Cancelled());
        } else if (!job.Places.isEmpty()) {
            Fetch(job, run);
        }
    }
    const bool isTaken = Stage(run, progress); // with what else became of it
    const bool isDone = isTaken && std::all_of(m_lines.begin(), m_lines.end(), [](const cLine& line) {
                            return line.State == eState::Idle || line.State == eState::Done;
                        });
    Q_EMIT Finished(isDone);
    return isDone;
}

void cBankFetch::Cancel()
{
    m_customer->SetCancelled(true);
    m_ports.Https.Cancel();
}

std::vector<cBankFetch::cJob> cBankFetch::Jobs(const cWish& wish)
{
    std::vector<cJob> jobs;
    for (cLogin& login : m_logins) {
        cJob job{&login, {}, {}};
        for (qsizetype place = login.First; place < login.First + login.Accounts.size(); ++place) {
            if (wish.Accounts.isEmpty() || wish.Accounts.contains(place)) {
                m_lines[place].State = eState::Waiting;
                job.Add(place, Order(login, place, wish));
                Q_EMIT LineChanged(place);
            }
        }
        if (!job.Places.isEmpty()) {
            jobs.push_back(std::move(job));
        }
    }
    return jobs;
}

// Banks refuse days that they do not keep and days to come.
cFetchOrder cBankFetch::Order(const cLogin& login, qsizetype place, const cWish& wish)
{
    cFetchOrder order{login.Accounts.at(place - login.First), wish.From.isValid() ? wish.From : FirstDay(place),
                      wish.To.isValid() ? qMin(wish.To, Today()) : Today()};
    const int kept = KeptDays(login.State, order.Account);
    if (const QDate oldest = Today().addDays(-kept); kept > 0 && order.From < oldest && order.To >= oldest) {
        m_lines[place].Notes.append(
            Missing(order.From, oldest.addDays(-1),
                    cText::Tr("die Bank hält nur die letzten {0} Tage bereit.", {QString::number(kept)})));
        order.From = oldest;
    }
    return order;
}

bool cBankFetch::IsPossible(const std::vector<cJob>& jobs)
{
    QString reason;
    const auto isEmpty = [](const cFetchOrder& order) { return order.From > order.To; };
    if (jobs.empty()) {
        reason = EmptyHint();
    } else if (m_tools.Data.IsReadOnly()) {
        reason = cText::Tr("Die Datenbank ist nur zum Lesen geöffnet. Umsätze können nicht übernommen werden.");
    } else if (std::any_of(jobs.begin(), jobs.end(), [&](const cJob& job) {
                   return std::any_of(job.Orders.begin(), job.Orders.end(), isEmpty);
               })) {
        reason = cText::Tr("Der erste Tag, der abgerufen wird, liegt hinter dem letzten. Wählen Sie einen anderen "
                           "Zeitraum, nicht in der Zukunft.");
    }
    if (!reason.isEmpty()) {
        m_tools.User.Show(eTone::Objection, reason, cText::Tr("Umsätze abrufen"));
    }
    return reason.isEmpty();
}

// Once for the whole run. False when the user gives up.
bool cBankFetch::AskAboutOld(std::vector<cJob>& jobs)
{
    const QDate oldest = Today().addDays(-DaysWithoutTan);
    const bool hasOld = std::any_of(jobs.begin(), jobs.end(), [&](const cJob& job) {
        return std::any_of(job.Orders.begin(), job.Orders.end(),
                           [&](const cFetchOrder& order) { return order.From < oldest; });
    });
    if (!hasOld) {
        return true;
    }
    const eAnswer answer = m_tools.User.Ask(
        {.Text = cText::Tr("Sie rufen auch Umsätze ab, die vor dem {0} gebucht wurden; dafür verlangt die Bank eine "
                           "TAN.\nSollen diese älteren Umsätze mit abgerufen werden?",
                           {modDate::ToText(oldest)}),
         .Title = cText::Tr("Ältere Umsätze"),
         .Buttons = eButtons::YesNoCancel});
    if (answer == eAnswer::No) {
        for (cJob& job : jobs) {
            LeaveOld(job, oldest);
        }
    }
    return answer != eAnswer::Cancel;
}

// Accounts of which nothing is left are out of the run.
void cBankFetch::LeaveOld(cJob& job, QDate oldest)
{
    const cJob all = std::exchange(job, {job.Login, {}, {}});
    for (qsizetype i = 0; i < all.Orders.size(); ++i) {
        cFetchOrder order = all.Orders.at(i);
        const qsizetype place = all.Places.at(i);
        if (order.From < oldest) {
            const QString note =
                Missing(order.From, qMin(order.To, oldest.addDays(-1)), cText::Tr("Sie wollten sie ohne TAN nicht."));
            if (order.To < oldest) {
                Fail(place, {eBankFault::Cancelled, note, {}});
                continue;
            }
            m_lines[place].Notes.append(note);
            order.From = oldest;
        }
        job.Add(place, order);
    }
}

void cBankFetch::Fetch(cJob& job, cRun& run)
{
    cBankState& state = job.Login->State;
    Q_EMIT StepShown(cText::Tr("{0}: Umsätze werden abgerufen …", {modBankText::Bank(state)}));
    for (qsizetype i = 0; i < job.Places.size(); ++i) {
        cLine& line = m_lines[job.Places.at(i)];
        line.State = eState::Asked;
        line.From = job.Orders.at(i).From;
        line.To = job.Orders.at(i).To;
        Q_EMIT LineChanged(job.Places.at(i));
    }
    // Without an identifier nothing is sent, so the PIN is not asked for either.
    std::optional<cSecret> pin = cSecret();
    if (!m_access.ProductId().isEmpty()) {
        pin = m_customer->AskPin(
            {modBankText::Bank(state), state.BankCode, state.UserId, modBankParameters::UserIdLabel(state.Parameters)});
    }
    if (!pin) {
        FailAll(job, {eBankFault::Cancelled, cText::Tr("Ohne PIN wurde nichts abgerufen."), {}});
        return;
    }
    QList<cFetchedAccount> fetched;
    const cBankFailure failure = m_dialog(state, *pin, job.Orders, fetched);
    // Before the step: what the bank wants to hear again is true whatever becomes of the rows.
    (void)m_access.Save(state); // of a refusal the user has been told
    Take(job, fetched, failure, run);
    if (const QString note = modBankText::OtherAddress(m_otherAddress); !note.isEmpty()) {
        m_lines[job.Places.constFirst()].Notes.append(note);
    }
}

void cBankFetch::Take(const cJob& job, QList<cFetchedAccount>& fetched, const cBankFailure& failure, cRun& run)
{
    for (qsizetype i = 0; i < job.Orders.size(); ++i) {
        const cFetchOrder& order = job.Orders.at(i);
        const qsizetype place = job.Places.at(i);
        const auto found = std::find_if(fetched.begin(), fetched.end(), [&](const cFetchedAccount& each) {
            return IsSame(each.Account, order.Account);
        });
        if (found == fetched.end()) {
            Fail(
                place,
                failure.IsSet()
                    ? failure
                    : cBankFailure{eBankFault::Other, cText::Tr("Die Bank hat zu diesem Konto nichts geschickt."), {}});
            continue;
        }
        if (found->Failure.IsSet() && found->MT940.isEmpty() && found->Camt.isEmpty()) {
            Fail(place, found->Failure);
            continue;
        }
        const cBankState& state = job.Login->State;
        run.Memories.push_back(std::make_unique<cFetchMemory>(m_tools.Settings, MemoryKey(state, order.Account)));
        run.Came.push_back({place, job.Login, order, found->Failure, found->Balance.has_value(), run.IsNamed});
        run.Statements.append({.Name = m_accounts.at(place).Name,
                               .Account = NumberIn(state, found->Account),
                               .Product = found->Account.ProductName,
                               .IsNumberShared = cBankAccess::IsNumberShared(state, order.Account),
                               .Iban = found->Account.Iban,
                               .BookAccount = m_access.BookAccountOf(state, found->Account),
                               .Mt940 = std::move(found->MT940),
                               .Camt = std::move(found->Camt),
                               .Balance = found->Balance,
                               .BalanceDay = found->BalanceDay,
                               .IsComplete = !found->Failure.IsSet(),
                               .LastDay = order.To,
                               .Memory = run.Memories.back().get()});
        m_lines[place].State = eState::Came;
        Q_EMIT LineChanged(place);
    }
}

bool cBankFetch::Stage(cRun& run, cProgress& progress)
{
    if (run.Statements.isEmpty()) {
        return true;
    }
    Q_EMIT StepShown(cText::Tr("Die Umsätze werden übernommen …"));
    const cFilesOutcome outcome =
        m_files.TakeFetched(run.Statements, progress, [&](qsizetype place, const cImportResult& result) {
            NoteTaken(run.Came[static_cast<std::size_t>(place)], result);
        });
    m_notes = outcome.Notes;
    for (const cCame& came : run.Came) {
        m_accounts[came.Place].BookAccount = m_access.BookAccountOf(came.Login->State, came.Order.Account);
        Q_EMIT LineChanged(came.Place);
        if (m_lines.at(came.Place).State == eState::Came) {
            Fail(came.Place, Cancelled()); // one before it was stopped
        } else if (!outcome.IsKept) {
            m_lines[came.Place].New = 0;
            Fail(came.Place, {eBankFault::Other, cText::Tr("Die Datenbank hat die Umsätze nicht angenommen."), {}});
        }
    }
    return outcome.IsDone;
}

void cBankFetch::NoteTaken(const cCame& came, const cImportResult& result)
{
    cLine& line = m_lines[came.Place];
    line.HasOtherCurrency = !result.OtherCurrencies.isEmpty();
    if (result.IsCancelled || result.IsRefused) {
        Fail(came.Place, result.IsCancelled ? Cancelled() : cBankFailure{eBankFault::BrokenAnswer, result.Message, {}});
        return;
    }
    line.New = result.Staged;
    line.Known = static_cast<int>(result.Duplicates.size() + result.Alike.size());
    line.LeftOut = result.Zero + static_cast<int>(result.Skipped.size() + result.Deleted.size());
    line.Equal = static_cast<int>(result.Repeats.size());
    line.Text = modImportText::Numbers(result, m_tools.Format);
    for (const cReadProblem& problem : result.Problems.first(qMin(result.Problems.size(), mostProblems))) {
        line.Notes.append(modImportText::Problem(problem));
    }
    NoteBalance(came, result, line);
    if (came.Failure.IsSet() || result.Failed > 0) {
        Fail(came.Place, came.Failure.IsSet() ? came.Failure : cBankFailure{eBankFault::Other, result.Message, {}});
        return;
    }
    NoteLastFetch(came);
    line.State = eState::Done;
    Q_EMIT LineChanged(came.Place);
}

// What the bank says it holds, and since when the rows do not lead there.
void cBankFetch::NoteBalance(const cCame& came, const cImportResult& result, cLine& line)
{
    const cBankBalanceList balances = cBankBalances(m_tools.Settings).Of(result.Number);
    if (balances.isEmpty() || (!came.HasBalance && !result.ClosingBalance)) {
        return;
    }
    line.Balance = balances.last().Cents;
    line.BalanceText =
        cText::Tr("{0} am {1}", {m_tools.Format.Cents(balances.last().Cents), modDate::ToText(balances.last().Day)});
    cStatementLedger ledger(m_tools.Data, m_tools.Settings);
    ledger.Load(result.Number);
    const QList<modBalanceCheck::cFault>& faults = ledger.Check().Faults;
    if (!faults.isEmpty() && faults.last().To >= came.Order.From) {
        line.Notes.append(modBalanceText::Fault(ledger, faults.last(), m_tools.Format));
    }
}

// A period that the user named and that begins behind the last fetch leaves a gap, which the next one has to fill.
void cBankFetch::NoteLastFetch(const cCame& came)
{
    const cBankState& state = came.Login->State;
    const QList<cBankAccount> accounts = m_access.Chosen(state); // as the bank tells of them now
    const auto account = std::find_if(accounts.begin(), accounts.end(),
                                      [&](const cBankAccount& each) { return IsSame(each, came.Order.Account); });
    if (account == accounts.end()) {
        return;
    }
    const QDate last = m_access.LastFetch(state, *account);
    if (came.IsNamed && last.isValid() && came.Order.From > last.addDays(1)) {
        return;
    }
    const QDate day = qMax(last, came.Order.To);
    if (m_access.SetLastFetch(state, *account, day)) {
        m_accounts[came.Place].LastFetch = day;
        m_accounts[came.Place].LastText = LastText(day);
    }
}

void cBankFetch::FailAll(const cJob& job, const cBankFailure& failure)
{
    for (const qsizetype place : job.Places) {
        Fail(place, failure);
    }
}

void cBankFetch::Fail(qsizetype place, const cBankFailure& failure)
{
    cLine& line = m_lines[place];
    line.State = eState::Failed;
    line.Failure = failure;
    line.Text = line.New > 0 ? line.Text : failure.Text;
    if (failure.Fault != eBankFault::Cancelled) {
        m_tools.User.Note(cText::Tr("Umsätze abrufen"), failure.Text);
    }
    Q_EMIT LineChanged(place);
}

QString cBankFetch::Summary() const
{
    const auto count = [&](eState state) {
        return std::count_if(m_lines.begin(), m_lines.end(), [&](const cLine& line) { return line.State == state; });
    };
    int rows = 0;
    for (const cLine& line : m_lines) {
        rows += line.New;
    }
    if (count(eState::Idle) == m_lines.size()) {
        return {};
    }
    const auto done = count(eState::Done);
    const auto failed = count(eState::Failed);
    const QString news = rows == 0 ? cText::Tr("Keine neuen Umsätze.")
        : rows == 1                ? cText::Tr("Ein neuer Umsatz.")
                                   : cText::Tr("{0} neue Umsätze.", {QString::number(rows)});
    if (failed == 0) {
        return news;
    }
    if (done == 0 && rows == 0) {
        return cText::Tr("Es konnte nichts abgerufen werden.");
    }
    return news + u' '
        + (failed == 1 ? cText::Tr("Ein Konto wurde nicht oder nicht ganz abgerufen.")
                       : cText::Tr("{0} Konten wurden nicht oder nicht ganz abgerufen.", {QString::number(failed)}));
}

QString cBankFetch::LogText() const
{
    return m_log->Text();
}

QString cBankFetch::LogForOthers() const
{
    QStringList people;
    for (const cLogin& login : m_logins) {
        people += modBankText::People(login.State);
    }
    people.removeDuplicates();
    return m_log->TextForOthers(people);
}
