#pragma once

#include <QStringView>

// Which way money went, by the words in which banks and shops tell it.
namespace modMoneyWords {

struct cVote
{
    int Sign = 0;          // -1: it went out, +1: it came in, 0: the text does not say
    bool IsStrong = false; // nothing but a payment to the owner is told like this
};

[[nodiscard]] cVote Of(QStringView text);

// True for a column of a card's statement, by its name.
[[nodiscard]] bool IsOfCard(QStringView columnName);

} // namespace modMoneyWords
