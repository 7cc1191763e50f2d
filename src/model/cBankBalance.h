#pragma once

#include <QDate>
#include <QList>

// What the bank says an account holds on a day. Which moment of the day it means differs from bank to bank.
struct cBankBalance
{
    QDate Day;
    qint64 Cents = 0; // signed
    qint64 Late = 0;  // what it contains of transactions with a later day, without those entered later with this day

    // By the days of the transactions.
    [[nodiscard]] qint64 Valued() const { return Cents - Late; }

    bool operator==(const cBankBalance&) const = default;
};

using cBankBalanceList = QList<cBankBalance>;
