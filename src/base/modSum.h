#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// Amounts as a person types them: a number, or a small calculation.
namespace modSum {

// The whole cents of "12,50", "12.50", "1.234,50", "1,234.50", "-5", "5-" or of a calculation such as
// "12,50+3,99*2-1" or "(10+5)/3": multiplication and division first, parentheses as usual. Blanks and the euro sign are
// passed over; the result is rounded half away from zero. A single point with exactly three digits behind it groups
// ("1.234" is 1234), every other single point is a decimal sign. Empty when the text is no number or divides by zero.
[[nodiscard]] std::optional<qint64> Evaluate(const QString& text);

// The form in which amount fields show cents: "1234,50", without grouping, two decimals, "-" in front.
[[nodiscard]] QString ToText(qint64 cents);

} // namespace modSum
