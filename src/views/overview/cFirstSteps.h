#pragma once

#include "base/modSum.h"

#include <QList>
#include <QString>

struct cBookTools;

// The accounts of a new book with what they hold today, as a small table to be filled in.
class cFirstSteps
{
public:
    struct cRow
    {
        QString Name;
        QString Amount;   // as typed; empty: nobody knows yet
        QString Former{}; // the account that stood in the row; empty: none
    };

    static constexpr int Rows = 5;

    explicit cFirstSteps(const cBookTools& tools) : m_tools(tools) {}

    // The accounts that there are with their start balances, and empty rows behind them.
    [[nodiscard]] QList<cRow> Start() const;
    [[nodiscard]] eDecimal Decimal() const;

    // Adds the accounts that are new, gives those that were typed over their new names and stores the balances as those
    // of today, all as one step. What is wrong in words for the user, and nothing stored; empty when all is stored or
    // there was nothing to store.
    [[nodiscard]] QString Save(const QList<cRow>& rows) const;

private:
    [[nodiscard]] static QString Problem(const QList<cRow>& rows, eDecimal decimal);
    [[nodiscard]] QString Store(const cRow& row) const;
    [[nodiscard]] QString Rename(const QList<cRow>& rows) const;

    const cBookTools& m_tools;
};
