#pragma once

#include "base/modFold.h"
#include "model/cEntryItem.h"
#include "views/cAmountPattern.h"

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

class cAmountFormat;

// Finds the entries that hold every word of a search text in what a list shows of them. The texts are folded once;
// after that a word costs a few milliseconds in a hundred thousand entries.
class cEntryFilter
{
public:
    using fnCents = std::function<qint64(int)>; // the amount of an entry with its sign, as the list shows it

    cEntryFilter(const cEntryItemList& entries, const cAmountFormat& format);

    // Those of `among` (numbers of entries) that hold all words, in the same order.
    [[nodiscard]] std::vector<int> Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
                                        const fnCents& cents);

    // The account as lists show it; of a transfer both accounts.
    [[nodiscard]] static QString AccountText(const cEntryItem& entry);

    // The amount with the sign under which lists show it; a transfer is an expense of the account it leaves.
    [[nodiscard]] static qint64 ShownCents(const cEntryItem& entry, const QString& account);

private:
    // Where the texts of an entry stand in m_texts.
    struct cPlace
    {
        int Words = 0; // kind, category, account and interval
        int Description = 0;
    };

    // A word and where it was found.
    struct cSearched
    {
        modFold::cFolded Word;
        std::vector<bool> IsFound; // by text
        bool MayBeDay = false;
        bool MayBeAmount = false;
    };

    void FoldTexts();
    [[nodiscard]] cSearched Search(const modFold::cFolded& word) const;
    [[nodiscard]] bool Holds(int entry, const cSearched& searched, const fnCents& cents);
    [[nodiscard]] bool HoldsDay(QDate day, const modFold::cFolded& word);
    [[nodiscard]] bool HoldsAmount(qint64 cents, const modFold::cFolded& word);

    cEntryItemList m_entries;
    cAmountPattern m_amounts;
    modFold::cTexts m_texts;
    std::vector<cPlace> m_places; // by entry
    QDate m_day;                  // of m_dayText, because entries of a day often follow each other
    QString m_dayText;
    QString m_amountText;
};
