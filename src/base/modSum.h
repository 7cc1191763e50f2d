#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// The sign before the cents, as the amounts of the book are shown: "1.234,50" or "1,234.50".
enum class eDecimal { Comma, Point };

// Amounts as a person types them: a number, or a small calculation.
namespace modSum {

[[nodiscard]] QChar Sign(eDecimal decimal); // as a character

// The whole cents of "12,50", "12.50", "1.234,50", "1,234.50", "-5", "5-" or of a calculation such as
// "12,50+3,99*2-1" or "(10+5)/3": multiplication and division first, parentheses as usual. Blanks, apostrophes, the
// signs of currencies and their usual letters ("CHF", "kr.") before or behind are passed over, so that every amount
// that the program shows is read back, also "($5.00)" as an amount below zero; the result is rounded half away from
// zero. Of a single sign, that which is not the decimal one groups before exactly three digits ("1.234" is 1234 with
// the comma, "1,234" with the point) and is a decimal sign otherwise. Empty when the text is no number, divides by zero
// or IsDoubtful.
[[nodiscard]] std::optional<qint64> Evaluate(const QString& text, eDecimal decimal = eDecimal::Comma);

// True for a text that would be an amount, were it not for a number such as "1,234" with the comma as decimal sign:
// nobody has a thousandth of a euro, so the sign was probably meant to group. A factor may have three decimals, because
// prices of a litre do.
[[nodiscard]] bool IsDoubtful(const QString& text, eDecimal decimal);

// What the user is told about a text that is no amount: that it is none, or both of its possible meanings.
[[nodiscard]] QString Fault(const QString& text, eDecimal decimal);

// The form in which amount fields show cents: "1234,50", without grouping, two decimals, "-" in front.
[[nodiscard]] QString ToText(qint64 cents, eDecimal decimal = eDecimal::Comma);

} // namespace modSum
