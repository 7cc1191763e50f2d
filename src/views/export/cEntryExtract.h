#pragma once

#include "model/cEntryItem.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class cEntryListModel;

// The entry list as it is shown, taken out of its model for whoever writes it down: rows in their order, groups, sums.
// May be filled from any other list of entries as well.
struct cEntryExtract
{
    struct cRow
    {
        cEntryItem Entry;
        qint64 Cents = 0;              // as the list shows it, with its sign
        qint64 Effect = 0;             // what it adds to the sums: nothing for a transfer while all accounts are shown
        std::optional<qint64> Balance; // after this row; empty where the list shows none
    };

    struct cGroup
    {
        QString Name;
        qsizetype First = 0; // position in Rows
        qsizetype Count = 0;
        qint64 Sum = 0;
    };

    QString Title;
    QStringList View; // lines that say what the list was narrowed to
    QString Account;  // empty: all accounts
    std::vector<cRow> Rows;
    std::vector<cGroup> Groups; // in the order of the rows; empty when the list is not grouped
    qint64 Income = 0;
    qint64 Expense = 0;            // cents, not negative
    std::optional<qint64> Start{}; // start balances, which are no income; empty where there are none

    [[nodiscard]] qint64 Total() const { return Start.value_or(0) + Income - Expense; }
    [[nodiscard]] bool HasBalances() const;
    [[nodiscard]] bool HasTransfers() const;
    [[nodiscard]] bool HasPayers() const;
    [[nodiscard]] QStringList Receipts() const; // the names of the files, each once

    // What the model shows at the moment. Title and view are left to the caller.
    [[nodiscard]] static cEntryExtract From(const cEntryListModel& model);
};
