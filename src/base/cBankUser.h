#pragma once

#include "base/cSecret.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

struct cPinQuestion
{
    QString Bank; // name, else code
    QString BankCode;
    QString UserId;      // the login
    QString UserIdLabel; // what this bank calls it; empty when not known
};

// How a challenge is shown.
enum class eTanDisplay { Text, Flicker, Picture };

struct cTanQuestion
{
    QString Bank;
    QString Procedure;
    QString Medium;
    QString Purpose;   // what the bank is asked for, in the program's words; empty: for the login
    QString Label;     // of the field
    QString Challenge; // the bank's words, cleaned; may have several lines
    eTanDisplay Display = eTanDisplay::Text;
    bool IsUnreadable = false; // the bank sent bars or a picture that nobody can read
    QByteArray
        Flicker; // the states of the five bars, one a byte: bit 0 is the clock, bits 1 to 4 the data; repeated for ever
    QStringList ByHand;     // what the flicker code says: the start code, then the data, for a reader with keys
    QByteArray Picture;     // the file as the bank sent it
    QString PictureType;    // MIME type of the picture
    int MostCharacters = 0; // of the TAN; 0: not known
    bool IsNumber = false;  // digits only
};

// A consent that the customer gives elsewhere, mostly in the bank's app.
struct cApproval
{
    QString Bank;
    QString Procedure;
    QString Medium;
    QString Purpose;         // as above
    QString Challenge;       // what is to be approved, cleaned
    int WaitSeconds = 0;     // the bank may not be asked again before
    bool IsAutomatic = true; // ask by itself after the wait; else only when the user says so
    bool HasButton = true;   // the user may have the bank asked once the wait is over
    int Asked = 0;           // so many times
    int MostAsked = 0;       // then no more; 0: no limit
    QDateTime ValidUntil;    // invalid: not known
};

enum class eApproval { AskBank, Cancel };

// What a bank wants of its customer while a dialog with it runs.
class cBankUser
{
public:
    cBankUser() = default;
    cBankUser(const cBankUser&) = delete;
    cBankUser& operator=(const cBankUser&) = delete;
    virtual ~cBankUser() = default;

    // Empty when the user gives up, as below.
    [[nodiscard]] virtual std::optional<cSecret> AskPin(const cPinQuestion& question) = 0;
    [[nodiscard]] virtual std::optional<cSecret> AskTan(const cTanQuestion& question) = 0;

    // Shows what is to be approved and returns when the bank may be asked whether it was. Waiting is done in here.
    [[nodiscard]] virtual eApproval WaitForApproval(const cApproval& approval) = 0;
    // The approval came or will not come any more.
    virtual void EndApproval() = 0;

    // What is being done at the moment, in words for the user.
    virtual void ShowStep(const QString& text) = 0;
    // True once the user wants the run to end; asked between two messages.
    [[nodiscard]] virtual bool IsCancelled() const = 0;
};
