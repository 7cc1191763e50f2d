#pragma once

#include <QString>

enum class eBankFault {
    None,
    NoProduct,    // no registration identifier is set; nothing was sent
    Registration, // the bank does not take the registration identifier
    NotReachable,
    Silent,
    Certificate, // nothing was sent
    BrokenAnswer,
    WrongPin,
    Locked, // access or PIN
    LoginRefused,
    TanWrong,
    ApprovalRejected,
    ApprovalMissing, // not given in time
    NoAccounts,
    NoMethod,      // no TAN procedure that this program knows
    MediumMissing, // several TAN media, and the bank wants one named
    NoStatements,  // the account has none that can be fetched
    EndedByBank,
    Cancelled,
    Other,
};

// Why a dialog with a bank did not do what it should.
struct cBankFailure
{
    eBankFault Fault = eBankFault::None;
    QString Text;      // German, for the user; what to do included
    QString BankWords; // what the bank said, without codes, one message a line; may be empty

    [[nodiscard]] bool IsSet() const { return Fault != eBankFault::None; }
};
