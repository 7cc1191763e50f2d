#pragma once

#include "model/cTemplateItem.h"

#include <QList>
#include <QStringList>

class cDataAccess;

// A category with the number of its entries.
struct cCategoryLine
{
    cTemplateItem Item; // without ID when only entries know the category
    int Entries = 0;
};

// The accounts and categories of a book, in the user's order, and those that only its entries know behind them.
namespace modBookNames {

[[nodiscard]] QStringList Accounts(cDataAccess& data);     // what the book defines
[[nodiscard]] QStringList UsedAccounts(cDataAccess& data); // also what only entries know
[[nodiscard]] QStringList Categories(cDataAccess& data);   // paths
[[nodiscard]] QStringList UsedCategories(cDataAccess& data);
[[nodiscard]] QList<cCategoryLine> CategoryLines(cDataAccess& data); // the same with all that is known

} // namespace modBookNames
