#pragma once

#include "model/cImportEntry.h"
#include "views/list/cListFilter.h"

#include <vector>

class cAmountFormat;

// Finds the bank transactions that hold every word of a search text in name, purpose, kind, accounts, day or amount.
class cStagedFilter
{
public:
    // `rows` outlives the filter and does not change.
    cStagedFilter(const cImportEntryList& rows, const cAmountFormat& format);

    // Those of `among` (numbers of rows) that hold all words, in the same order.
    [[nodiscard]] std::vector<int> Find(const QList<modFold::cFolded>& words, const std::vector<int>& among);

private:
    const cImportEntryList& m_rows;
    cListFilter m_filter;
};
