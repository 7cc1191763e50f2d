#pragma once

#include "base/modFold.h"
#include "views/list/cAmountPattern.h"

#include <QDate>
#include <QMultiHash>
#include <QString>

#include <functional>
#include <vector>

class cAmountFormat;

// Finds the rows of a list that hold every word of a search text in their texts, their day or their amount. The texts
// are folded once; after that a word costs a few milliseconds in a hundred thousand rows. A word that is a tag of any
// text finds the texts with just this tag, so that a list agrees with what reports count under it.
class cListFilter
{
public:
    using fnCents = std::function<qint64(int)>; // the amount of a row with its sign, as the list shows it

    explicit cListFilter(const cAmountFormat& format);

    // Takes a text in and returns its number. Several rows may share one.
    int AddText(const QString& text);
    // Adds the next row: 0, 1, 2, ... It holds the two texts and the day.
    void AddRow(int text, int other, QDate day);

    // Those of `among` (numbers of rows) that hold all words, in the same order.
    [[nodiscard]] std::vector<int> Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
                                        const fnCents& cents);

    // True when whatever holds all of `words` holds all of `before` too. After a tag it does not: "#auto" leaves out
    // what "#autobahn" finds.
    [[nodiscard]] static bool IsNarrower(const QList<modFold::cFolded>& words, const QList<modFold::cFolded>& before);

private:
    struct cRow
    {
        int Text = 0;
        int Other = 0;
        QDate Day;
    };

    // A word and where it was found.
    struct cSearched
    {
        modFold::cFolded Word;
        std::vector<bool> IsFound; // by text
        bool MayBeDay = false;
        bool MayBeAmount = false;
        QString Ungrouped{}; // see cAmountPattern
    };

    [[nodiscard]] cSearched Search(const modFold::cFolded& word) const;
    [[nodiscard]] std::vector<bool> FindText(const modFold::cFolded& word) const;
    [[nodiscard]] bool Holds(int row, const cSearched& searched, const fnCents& cents);
    [[nodiscard]] bool HoldsDay(QDate day, const modFold::cFolded& word);
    [[nodiscard]] bool HoldsAmount(qint64 cents, const cSearched& searched);

    cAmountPattern m_amounts;
    modFold::cTexts m_texts;
    QMultiHash<QString, int> m_tags; // the texts by the keys of their tags
    int m_count = 0;                 // of texts
    std::vector<cRow> m_rows;
    QDate m_day; // of m_dayText, because rows of a day often follow each other
    QString m_dayText;
    QString m_amountText;
};
