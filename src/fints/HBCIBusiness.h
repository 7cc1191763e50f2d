#pragma once

#include "model/bank/cBankAccount.h"
#include "model/bank/cBankFailure.h"
#include "model/bank/cBankState.h"

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

class cBankAnswer;
class cBankLog;
class cBankUser;
class cClock;
class cHttps;
class cSecret;

// The bookings of one account that are to be fetched, both days included.
struct cFetchOrder
{
    cBankAccount Account;
    QDate From;
    QDate To;
};

// What came of it. The texts are those of the bank, decoded.
struct cFetchedAccount
{
    cBankAccount Account;
    QString MT940;                 // all booked blocks joined
    QList<QByteArray> Camt;        // booked documents
    std::optional<qint64> Balance; // cents, signed; only where the bank tells it
    QDate BalanceDay;
    cBankFailure Failure; // not set when all bookings came
};

// Whole dialogs with one bank for one login. Each operation is one dialog from its first message to its end; when the
// PIN was refused, no further message is sent in the life of this object.
class HBCIBusiness
{
public:
    struct cParts
    {
        cHttps& Https;
        cBankUser& User;
        const cClock& Clock;
        cBankLog& Log;
        QString ProductId;      // registration identifier of the program; nothing is sent without one
        QString ProductVersion; // major version and two digits of the minor one
    };

    // A version of parameters or accounts is sent only together with what came with it, which is part of the state.
    // `state` is read and brought up to date by each operation, also by one that fails. All of these outlive the
    // object.
    HBCIBusiness(const cParts& parts, cBankState& state, const cSecret& pin);
    ~HBCIBusiness();

    // Finds accounts and TAN procedures of the login: fills state.Methods and, as far as the bank tells them before a
    // strong authentication, state.Accounts. A single procedure is chosen at once; a chosen one that the bank does not
    // offer any more is dropped.
    [[nodiscard]] bool Discover();

    // Brings accounts, parameters and TAN media up to date in the procedure state.Method. Where the bank wants a medium
    // named and has several, the fault is MediumMissing: choose state.Medium from state.Media and call again. A single
    // one is chosen at once.
    [[nodiscard]] bool Refresh();

    // The bookings of one account, as MT940 or camt; false when the dialog failed. What came before a failure is kept
    // up to the end of the last whole statement.
    [[nodiscard]] bool getAccountTransactions(const cFetchOrder& order);
    // The same for several accounts of the login in one dialog. One that fails leaves the others; false when one
    // failed.
    [[nodiscard]] bool FetchAll(const QList<cFetchOrder>& orders);

    // Of the last operation. As many as were ordered, in that order.
    [[nodiscard]] const QList<cFetchedAccount>& Fetched() const;
    [[nodiscard]] const cBankFailure& Failure() const;
    [[nodiscard]] const QString& ErrorText() const; // with what the bank said, codes included
    // An address that the bank gives as its own and that is not the one in use; empty without. It is for the user to
    // decide about.
    [[nodiscard]] const QString& AddressHint() const;

private:
    struct cSession;
    std::unique_ptr<cSession> m_session;
};
