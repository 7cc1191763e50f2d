#pragma once

#include <QString>

// Sum of the entries that share kind, account and target account.
struct cAccountSum
{
    QString EntryType;
    QString EntryAccount;
    QString EntryAccountMove;
    qint64 Cents = 0;
};
