#pragma once

#include "model/cImportEntry.h"
#include "model/cRowPlan.h"

#include <QHash>
#include <QString>

#include <functional>

// Bank transactions that may be there twice because two files of the same account say the same in different words.
namespace modStagedTwins {

using eSame = cRowTwin::eSame;
using cTwin = cRowTwin;

struct cLookups
{
    std::function<QString(const QString&)> AccountOf; // the account of the book by the bank's number
    std::function<int(int)> FileOf;                   // a number for the file that a row came with; 0: not known
};

// For each open row, by its ID, another one of the same account, day and amount with the same counterparty. Rows of one
// file are different transactions, and rows equal in every text were taken twice on purpose.
[[nodiscard]] QHash<int, cTwin> Find(const cImportEntryList& rows, const cLookups& lookups);

} // namespace modStagedTwins
