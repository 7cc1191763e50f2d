#pragma once

#include "model/bank/cBankFailure.h"
#include "views/bank/cBankAccess.h"

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class cBankCustomer;
class cBankLog;
class cBankUser;
class cHttps;
class cProgress;
class cSecret;
class cStatementFiles;
struct cBookTools;
struct cFetchedAccount;
struct cFetchOrder;
struct cImportResult;

// Fetches the new transactions of the bank accounts of a book into staged rows: asks for the PIN of each login, has one
// dialog with its bank, and hands all that came to the reading of statements as one step.
class cBankFetch final : public QObject
{
    Q_OBJECT

public:
    struct cPorts
    {
        cHttps& Https;
        cBankUser& User;
        QString Version; // of the program, "major.minor.revision"
    };

    // All of these outlive the object.
    cBankFetch(const cBookTools& tools, cStatementFiles& files, const cPorts& ports, QObject* parent = nullptr);
    ~cBankFetch() override;

    // An account that can be fetched.
    struct cAccount
    {
        QString Bank; // name, else code
        QString BankCode;
        QString UserId;      // the login
        QString Name;        // "Privatgiro, DE02 1002 0030 0001 2345 67"
        QString Number;      // of the bank; with the sub-account, "77/01", where others have the same
        QString Iban;        // empty when the bank did not tell it
        QString BookAccount; // empty: not assigned yet
        QDate LastFetch;     // up to which day it was fetched; invalid: never
        QString LastText;    // "zuletzt abgerufen am 12.03.2026", "noch nie abgerufen"
    };
    // Reads banks and accounts anew.
    void Load();
    [[nodiscard]] const QList<cAccount>& Accounts() const { return m_accounts; } // those of a login together
    [[nodiscard]] QString EmptyHint() const;                                     // what to do when there is none

    // The law lets banks give so many without a TAN.
    static constexpr int DaysWithoutTan = 89;

    // The first day that is fetched when none is named: ten days before the last fetch, else DaysWithoutTan ago.
    [[nodiscard]] QDate FirstDay(qsizetype account) const;
    [[nodiscard]] QDate Today() const;

    struct cWish
    {
        QList<qsizetype> Accounts{}; // places in Accounts(); empty: all of them
        QDate From{};                // invalid: FirstDay of each
        QDate To{};                  // invalid or later than today: today
    };
    // Asks, fetches, stages. True only when every account of the wish came through; what did not is in Lines.
    bool Run(const cWish& wish, cProgress& progress);
    void Cancel(); // the run that is under way

    enum class eState {
        Idle,    // not part of the run
        Waiting, // its bank has not been asked yet
        Asked,   // the dialog runs
        Came,    // not staged yet
        Done,
        Failed,
    };

    // What came of an account; they stand in the order of Accounts().
    struct cLine
    {
        eState State = eState::Idle;
        QDate From; // what was asked for
        QDate To;
        int New = 0;
        int Known = 0;                 // there already
        int LeftOut = 0;               // pending, without amount, or deleted by the user before
        int Equal = 0;                 // the statement has them more often than the book, and no balance proves them
        std::optional<qint64> Balance; // cents, signed, as the bank tells it
        bool HasOtherCurrency = false; // than the book, which is why nothing was taken
        QString Text;                  // "5 neu, 7 schon vorhanden", or why not
        QString BalanceText;           // "1.234,56 € am 15.03.2026"; empty when not known
        cBankFailure Failure;          // in the words of the user, the bank's own beside them
        QStringList Notes;             // differences to the balance, days that are missing, what could not be read
    };
    [[nodiscard]] const QList<cLine>& Lines() const { return m_lines; }
    // What else came into the book: accounts of new numbers, start balances.
    [[nodiscard]] const QStringList& Notes() const { return m_notes; }
    [[nodiscard]] QString Summary() const; // "7 neue Umsätze." and failures; empty when nothing ran

    // All messages of this object's runs: as they are, and with nothing in it that says who somebody is.
    [[nodiscard]] QString LogText() const;
    [[nodiscard]] QString LogForOthers() const;

    // Stands in for the dialog with a bank: fills what came of each order, and says why it failed as a whole.
    using fnDialog = std::function<cBankFailure(cBankState& state, const cSecret& pin, const QList<cFetchOrder>& orders,
                                                QList<cFetchedAccount>& fetched)>;
    void SetDialog(fnDialog dialog) { m_dialog = std::move(dialog); }

Q_SIGNALS:
    void StepShown(const QString& text); // what is being done, in words
    void LineChanged(qsizetype account);
    void Finished(bool isDone); // nothing is under way any more

private:
    struct cLogin; // with its accounts
    struct cJob;   // what one login is asked for
    struct cCame;  // what came of one account
    struct cRun;   // what came so far

    [[nodiscard]] std::vector<cJob> Jobs(const cWish& wish);
    [[nodiscard]] cFetchOrder Order(const cLogin& login, qsizetype place, const cWish& wish);
    [[nodiscard]] bool IsPossible(const std::vector<cJob>& jobs);
    [[nodiscard]] bool AskAboutOld(std::vector<cJob>& jobs);
    void LeaveOld(cJob& job, QDate oldest);
    void Fetch(cJob& job, cRun& run);
    void Take(const cJob& job, QList<cFetchedAccount>& fetched, const cBankFailure& failure, cRun& run);
    [[nodiscard]] bool Stage(cRun& run, cProgress& progress);
    void NoteTaken(const cCame& came, const cImportResult& result);
    void NoteBalance(const cCame& came, const cImportResult& result, cLine& line);
    void NoteLastFetch(const cCame& came);
    void Fail(qsizetype place, const cBankFailure& failure);
    void FailAll(const cJob& job, const cBankFailure& failure);

    const cBookTools& m_tools;
    cStatementFiles& m_files;
    cPorts m_ports;
    cBankAccess m_access;
    std::unique_ptr<cBankCustomer> m_customer;
    std::unique_ptr<cBankLog> m_log;
    fnDialog m_dialog;
    QString m_otherAddress; // that the bank of the last dialog names
    std::vector<cLogin> m_logins;
    QList<cAccount> m_accounts;
    QList<cLine> m_lines;
    QStringList m_notes;
};
