#pragma once

#include "model/cEntryItem.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// Whole numbers that stand for texts and groups of entries, so that lists of any length are sorted by comparing
// numbers.
namespace modEntryOrder {

struct cRanked
{
    std::vector<qint64> Ranks; // by row; equal texts share a rank
    QStringList Names;         // the texts by rank
};

// Ranks of texts in the language's alphabetical order. `text(i)` gives the text of row i.
[[nodiscard]] cRanked Rank(int count, const std::function<QString(int)>& text);

// The group of each shown entry under a grouping, numbered in the order in which groups are shown. Empty for "Keine
// Gruppierung" and unknown words.
[[nodiscard]] cRanked Groups(const cEntryItemList& entries, const std::vector<int>& shown, const QString& grouping);

// "Samstag, 03.01.2026"
[[nodiscard]] QString DayName(QDate day);

} // namespace modEntryOrder
