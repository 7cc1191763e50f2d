#pragma once

#include "import/read/cStatementRead.h"
#include "model/bank/cBankBalance.h"

#include <QDate>

#include <vector>

// The transactions of an account in the order in which the bank entered them, with the balances between. Banks value
// some on a day before or behind, by which the balance of a day differs from the sum of the transactions up to it.
class cBookedOrder
{
public:
    void AddRow(QDate day, qint64 cents) { m_steps.push_back({day, cents, false}); }
    // Where it differs from the balance directly before it, something between the two is not there.
    void AddBalance(QDate day, qint64 cents) { m_steps.push_back({day, cents, true}); }

    [[nodiscard]] QList<cAccountBalance> Balances(const QString& account) const;

private:
    struct cStep
    {
        QDate Day;
        qint64 Cents = 0;
        bool IsBalance = false;
    };

    [[nodiscard]] bool IsGap(std::size_t before) const; // between a step and the next one
    [[nodiscard]] std::vector<cBankBalance::cMoved> Early() const;

    std::vector<cStep> m_steps;
};
