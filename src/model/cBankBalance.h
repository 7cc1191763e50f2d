#pragma once

#include <QDate>
#include <QList>

// What the bank says an account holds on a day. Which moment of the day it means differs from bank to bank.
struct cBankBalance
{
    QDate Day;
    qint64 Cents = 0; // signed

    bool operator==(const cBankBalance&) const = default;
};

using cBankBalanceList = QList<cBankBalance>;
