#pragma once

#include "model/bank/cBankBalance.h"

#include <QDate>
#include <QList>

#include <vector>

// Transactions of a bank account against the balances that the bank named.
namespace modBalanceCheck {

struct cRow
{
    QDate Day;
    qint64 Cents = 0; // signed
};

enum class eVerdict {
    Agrees,
    Passing, // differs, but the balances before and after it agree with each other: the bank counts some days
             // differently
    Differs,
};

// One balance of the bank beside the sum of the transactions, which is counted back from the newest balance.
struct cPoint
{
    QDate Day;
    qint64 Bank = 0;
    qint64 Own = 0;
    eVerdict Verdict = eVerdict::Agrees;
    qint64 Moved = 0; // as in cBankBalance

    [[nodiscard]] qint64 Difference() const { return Own - Bank; }
};

// Days between two balances whose transactions do not lead from one to the other.
struct cFault
{
    QDate From; // first day on which something can be wrong
    QDate To;
    qint64 Missing = 0;    // what has to be added to the transactions: below zero for missing expenses
    std::size_t First = 0; // the transactions of these days
    std::size_t Count = 0;
};

struct cResult
{
    bool IsAnchored = false; // a balance is known
    qint64 Opening = 0;      // before the first transaction; 0 without any balance
    QList<cPoint> Points;    // oldest first
    QList<cFault> Faults;    // oldest first

    // How far a balance counted from Opening lies above that of the bank on a day: what the faults behind it add up to.
    [[nodiscard]] qint64 ErrorOn(QDate day) const;
};

// `rows` and `balances` by day. A balance agrees when it is that of any moment of its day, because some banks name the
// balance of the morning and others that of the evening, and a statement may be fetched at noon.
[[nodiscard]] cResult Check(const std::vector<cRow>& rows, const cBankBalanceList& balances);

} // namespace modBalanceCheck
