#pragma once

#include "model/bank/cBankAccount.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// What is kept of a bank login from one dialog to the next: everything but PIN and TAN. Texts of the bank that are sent
// back to it stay as they came over the wire, escapes included.
struct cBankState
{
    QString BankCode;
    QString BankName;
    QString UserId; // the login
    QString Url;
    QString Bic; // of the bank; empty when not known
    QString HbciVersion = QStringLiteral("300");
    QByteArray SystemId = QByteArrayLiteral("0"); // as on the wire
    // Sent back only together with the contents that came with them, else "0": a bank that hears its present version
    // does not send the contents again.
    QString BpdVersion = QStringLiteral("0");
    QString UpdVersion = QStringLiteral("0");
    QList<QByteArray> Parameters;           // HIBPA and the parameter segments HI…S, each as it came, without its end
    QStringList AllowedFunctions;           // security functions that the user may use
    QList<cBankAccount> Accounts;           // all that may be shown
    QList<TanVerfahrenItem> Methods;        // usable procedures, approval in the app first
    std::optional<TanVerfahrenItem> Method; // the chosen one
    QStringList Media;                      // names of the user's active TAN media
    QString Medium;                         // the chosen one

    bool operator==(const cBankState&) const = default;
};
