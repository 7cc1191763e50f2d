#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// The words of a text as the bank writes it, so that names can be compared whatever stands between them.
namespace modTextWords {

struct cWord
{
    qsizetype At = 0;
    qsizetype Size = 0;
    QString Folded; // lower case, without marks; "ü" is "ue". It may be the very characters of the text.
};

// The text has to outlive them: long statements are full of words that are lower case already, and nearly all of them
// are looked at once. Letters and digits make a word. "&" and "+" belong to it between single characters: "H&M", "1&1".
[[nodiscard]] QList<cWord> Of(QStringView text);

// True when the folded word holds at least `fewest` digits.
[[nodiscard]] bool HasDigits(QStringView word, int fewest);

} // namespace modTextWords
