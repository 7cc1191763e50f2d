#pragma once

#include <QString>
#include <QStringView>

// How far the result of a keyword rule can be trusted. The keywords are short and match inside longer words, so that
// "obi" is found in Tobias; that is how the rules are, but nobody should book it unseen.
namespace modKeywordTrust {

// True when the text holds the keyword as a word of its own, or a longer keyword as the end of a compound
// ("Stadtapotheke") or, where the language does it so, as its beginning ("Stromabschlag" is one, "Apothekerbank" none).
// Both are lower case.
[[nodiscard]] bool IsSound(const QString& keyword, QStringView text);

// Keywords that name more than the category of their rule even as a word: "garage", "total", "metro". Of works that
// sell gas, water and parking too it takes the word for what was sold, and a person may be called Lohn: `name` is the
// part of the text that holds the counterparty.
[[nodiscard]] bool IsDoubtful(const QString& keyword, QStringView text, QStringView name);

// False for an income under a category of expenses and the other way round.
[[nodiscard]] bool FitsSign(const QString& category, qint64 cents);

} // namespace modKeywordTrust
