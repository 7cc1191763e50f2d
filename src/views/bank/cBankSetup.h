#pragma once

#include "base/cSecret.h"
#include "model/bank/cBankFailure.h"
#include "model/bank/cBankState.h"
#include "views/bank/cBankAccess.h"
#include "views/bank/cBankAccountChoice.h"

#include <QDate>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cBankDirectory;
class cBankLog;
class cBankCustomer;
class cBankUser;
class cHttps;
class HBCIBusiness;
struct cBankInfo;
struct cBankMatches;
struct cBookTools;

// Sets up a bank login, or changes one: bank, login, TAN procedure and medium, accounts. The PIN is asked for once,
// when the first message is sent, and lives as long as this object.
class cBankSetup final : public QObject
{
    Q_OBJECT

public:
    // All of them outlive the object.
    struct cParts
    {
        const cBookTools& Tools;
        const cBankDirectory& Directory;
        cHttps& Https;
        cBankUser& User;
        QString Version; // of the program
    };

    enum class ePage { Bank, Login, Method, Accounts, Done };

    explicit cBankSetup(const cParts& parts, QObject* parent = nullptr);
    ~cBankSetup() override;

    // Goes on from a login that is set up already.
    void Load(const cBankState& state);
    [[nodiscard]] bool IsNew() const { return m_isNew; }
    [[nodiscard]] const cBankState& State() const { return m_state; }
    [[nodiscard]] QString BankText() const; // "Übungsbank"

    // The bank. A choice brings its address, which can be changed.
    [[nodiscard]] cBankMatches Search(const QString& text) const;
    [[nodiscard]] QString Title(const cBankInfo& bank) const; // "Sparkasse Musterstadt, 12345678"
    void ChooseBank(const cBankInfo& bank);
    void ChooseCode(const QString& code); // also one that the directory does not have
    [[nodiscard]] static bool IsCode(const QString& text);
    void SetUrl(const QString& url);             // also of a login that is set up already
    void SetHbciVersion(const QString& version); // "220" or "300"
    [[nodiscard]] QString BankProblem() const;   // what to do about what is missing; empty when nothing is

    // The login
    [[nodiscard]] QString LoginLabel() const; // as the bank calls it; empty as long as that is not known
    void SetUserId(const QString& userId);
    [[nodiscard]] QString ProductId() const { return m_productId; }
    void SetProductId(const QString& id);
    [[nodiscard]] QString LoginProblem() const;

    // The dialogs with the bank. What goes wrong is in Failure.
    [[nodiscard]] bool Discover();
    [[nodiscard]] bool Refresh();
    [[nodiscard]] const cBankFailure& Failure() const { return m_failure; }
    // That the bank names another address than the one in use; empty when it does not.
    [[nodiscard]] QString AddressNote() const;
    // Called from the window while one of them runs, which then ends as soon as it can.
    void Cancel();
    [[nodiscard]] bool IsRunning() const { return m_isRunning; }
    [[nodiscard]] const cBankLog& Log() const { return *m_log; } // of all dialogs of this object
    [[nodiscard]] QString LogText() const;
    [[nodiscard]] QString LogForOthers() const;

    // The procedure, app approval first, and its medium
    [[nodiscard]] QStringList Methods() const; // names
    [[nodiscard]] int Method() const;          // -1: none is chosen
    void ChooseMethod(int method);
    [[nodiscard]] int Medium() const;      // its place in State().Media; -1: none is chosen
    [[nodiscard]] bool AsksMedium() const; // the procedure has one to be chosen
    void ChooseMedium(int medium);

    // After Refresh
    [[nodiscard]] cBankAccountChoice& Accounts() { return *m_accounts; }

    // Writes login, registration, accounts and where they belong. False when something is missing, which Problem says,
    // or when the book refuses.
    [[nodiscard]] bool Save();

    // The same step by step, as an assistant goes. Next does what the page is for; false when it has to stay, which
    // Problem explains.
    [[nodiscard]] ePage Page() const { return m_page; }
    [[nodiscard]] bool Next();
    [[nodiscard]] bool CanGoBack() const;
    void Back();
    // False when something would be lost that the user wants to keep.
    [[nodiscard]] bool MayClose();
    [[nodiscard]] const QString& Problem() const { return m_problem; }
    [[nodiscard]] QString BankWords() const { return m_failure.BankWords; } // beneath the problem; may be empty

    // From which day on the first fetch is to go, and the day from which on banks ask for no TAN.
    [[nodiscard]] QDate FirstDay() const { return m_firstDay; }
    void SetFirstDay(QDate day);
    [[nodiscard]] QDate UsualFirstDay() const;
    // That this may need a TAN, or that the day cannot be; empty when all is well.
    [[nodiscard]] QString FirstDayNote() const;

Q_SIGNALS:
    void StepShown(const QString& text); // what a dialog is doing, in words

private:
    bool Run(bool (HBCIBusiness::*operation)());
    bool Connect();
    void Disconnect();
    [[nodiscard]] bool Note(const QString& problem);
    [[nodiscard]] bool LeaveLogin();
    [[nodiscard]] bool LeaveMethod();

    cParts m_parts;
    cBankAccess m_access;
    std::unique_ptr<cBankCustomer> m_customer;
    std::unique_ptr<cBankLog> m_log;
    cBankState m_state;
    cBankState m_before; // at the beginning
    QString m_productId;
    cSecret m_pin;
    std::unique_ptr<HBCIBusiness> m_business; // from the PIN on
    std::optional<cBankAccountChoice> m_accounts;
    cBankFailure m_failure;
    QString m_problem;
    ePage m_page = ePage::Bank;
    QDate m_firstDay;
    bool m_isNew = true;
    bool m_isRunning = false;
};
