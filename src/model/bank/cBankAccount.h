#pragma once

#include <QString>
#include <QStringList>

// An account as the bank tells of it.
struct cBankAccount
{
    QString Number;
    QString SubNumber; // "Unterkontomerkmal"; empty for most
    QString BankCode;
    QString Iban;
    QString Bic;
    QString CustomerId; // the login it belongs to
    QString Currency = QStringLiteral("EUR");
    QString Owner1;
    QString Owner2;
    QString ProductName;
    QString Limit;
    QStringList Orders; // codes of the segments that are allowed for it: HKKAZ, HKSAL, ...

    bool operator==(const cBankAccount&) const = default;
};
