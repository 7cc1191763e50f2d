#pragma once

#include "model/cImportEntry.h"
#include "model/cRowPlan.h"

#include <QChar>
#include <QHash>
#include <QString>

#include <functional>

// Bank transactions that may be there twice because two files of the same account say the same in different words.
namespace modStagedTwins {

using eSame = cRowTwin::eSame;
using cTwin = cRowTwin;

// The file that a row came with.
struct cFile
{
    int Number = 0; // 0: not known
    QChar Kind{};   // of its format; null: not known
};

struct cLookups
{
    std::function<QString(const QString&)> AccountOf; // the account of the book by the bank's number
    std::function<cFile(int)> FileOf;                 // by the ID of a row
};

// For each open row, by its ID, another one of the same account, day and amount with the same counterparty. Rows of one
// file are different transactions, and rows equal in every text were taken twice on purpose. Where two formats name
// different days, the one of the booking and that of the value, a row with the same purpose may lie some days away.
[[nodiscard]] QHash<int, cTwin> Find(const cImportEntryList& rows, const cLookups& lookups);

} // namespace modStagedTwins
