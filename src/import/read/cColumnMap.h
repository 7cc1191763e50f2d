#pragma once

#include <QString>
#include <QStringList>

#include <array>

// Which column of a table holds what, counted from 0; -1 when there is none.
struct cColumnMap
{
    int ColumnCount = 0;
    int Date = -1;
    int Text = -1; // the bank's kind of transaction
    std::array<int, 3> Purpose{-1, -1, -1};
    int Name = -1; // of the counterparty
    int Account = -1;
    int BankCode = -1;
    int Name2 = -1; // the owner's own where both sides are listed
    int Account2 = -1;
    int BankCode2 = -1;
    int Amount = -1;
    int Credit = -1;
    int Debit = -1;
    int Currency = -1;
    QStringList Names; // the cleaned header fields

    // Columns that the header's words do not tell: from a known layout, from the contents or from the user.
    int Indicator = -1;  // "S" or "H" beside an amount without sign
    int Payer = -1;      // counterparty of incoming money where `Name` is only that of outgoing money
    int OwnAccount = -1; // own account number of each row
    int OwnBankCode = -1;
    int Status = -1; // says which rows are pending
    int Balance = -1;
    int Fee = -1;       // what the bank took beside the amount of the row
    int OtherName = -1; // counterparty where the columns for it are empty

    // True when the column holds one of these.
    [[nodiscard]] bool Uses(int column) const;

    bool operator==(const cColumnMap&) const = default;
};
