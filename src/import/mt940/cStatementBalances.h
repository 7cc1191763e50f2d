#pragma once

#include "import/read/cBookedOrder.h"

#include <QMap>

#include <optional>

// The balances of the statements in a text, with what their own transactions tell of them.
class cStatementBalances
{
public:
    // Of a statement whose transactions are the entries from `first` on.
    void Add(const std::optional<cAccountBalance>& opening, const QList<cAccountBalance>& closings,
             const cImportEntryList& entries, qsizetype first);

    [[nodiscard]] QList<cAccountBalance> All() const;

private:
    QList<cAccountBalance> m_loose;
    QMap<QString, cBookedOrder> m_orders; // by account
};
