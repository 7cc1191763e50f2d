#pragma once

#include "base/modSum.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

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

    // The accounts that there are with what they come to by their start balances and bank rows, and empty rows behind
    // them.
    [[nodiscard]] QList<cRow> Start() const;
    [[nodiscard]] eDecimal Decimal() const;

    // Adds the accounts that are new, gives those that were typed over their new names and stores the balances as those
    // of today, all as one step. What is wrong in words for the user, and nothing stored; empty when all is stored or
    // there was nothing to store.
    [[nodiscard]] QString Save(const QList<cRow>& rows) const;

private:
    // What the bank's rows come to, booked or not.
    struct cTold
    {
        QString Number;
        QDate Day;                   // of the last row
        std::optional<qint64> Cents; // none: neither the bank nor a start balance says where they began
        bool IsBank = false;         // the bank names a balance
    };

    // Nothing where no rows belong to the account, or those of several numbers.
    [[nodiscard]] std::optional<cTold> Told(const QString& account) const;
    [[nodiscard]] QString StoreBalance(const QString& account, qint64 cents) const;
    [[nodiscard]] static QString Problem(const QList<cRow>& rows, eDecimal decimal);
    [[nodiscard]] QString Store(const cRow& row) const;
    [[nodiscard]] QString Rename(const QList<cRow>& rows) const;

    const cBookTools& m_tools;
};
