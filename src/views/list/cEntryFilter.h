#pragma once

#include "model/cEntryItem.h"
#include "views/list/cListFilter.h"

#include <QString>

#include <vector>

class cAmountFormat;

// Finds the entries that hold every word of a search text in what a list shows of them.
class cEntryFilter
{
public:
    cEntryFilter(const cEntryItemList& entries, const cAmountFormat& format);

    // Those of `among` (numbers of entries) that hold all words, in the same order.
    [[nodiscard]] std::vector<int> Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
                                        const cListFilter::fnCents& cents);

    // The entries that hold every word of a text, in the same order. `account` is what a list shows alone, so that its
    // transfers have a sign; empty for all.
    [[nodiscard]] static cEntryItemList Search(const cEntryItemList& entries, const QString& text,
                                               const QString& account, const cAmountFormat& format);

    // The amount with the sign under which lists show it; a transfer is an expense of the account it leaves.
    [[nodiscard]] static qint64 ShownCents(const cEntryItem& entry, const QString& account);

private:
    cListFilter m_filter;
};
