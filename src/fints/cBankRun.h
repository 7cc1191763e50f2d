#pragma once

#include "fints/HBCIBusiness.h"
#include "fints/modBankFault.h"
#include "model/bank/cBankState.h"

#include <QString>
#include <QStringList>

// What all dialogs of one HBCIBusiness share.
struct cBankRun
{
    HBCIBusiness::cParts Parts;
    cBankState& State;
    const cSecret& Pin;
    QList<cBankAccount> Found = {}; // accounts that the bank told in this operation
    QString Collected = {};         // what it said in this operation, code and text, one a line
    QStringList BankWords = {};     // the same for the user, without codes; warnings may say what to do, too
    bool HasFunctions = false;      // it named the TAN procedures of the customer
    cBankError Refused = {};        // set once the bank refused the PIN: no message is sent any more
    cBankError Error = {};          // of this operation
    QString AddressHint = {};
    QString Purpose = {}; // of the orders that follow, for whoever is asked for a TAN; empty: the login
    bool IsNew = false;   // no account of the login was known when its accounts were looked for

    // The operation ends with this error; false, for the caller to return.
    bool Fail(const cBankError& error)
    {
        Error = error;
        return false;
    }
};
