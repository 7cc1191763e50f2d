#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// Amounts as texts and as whole cents.
namespace modAmount {

// Reads an amount written in German form: "," is the decimal sign, "." groups, a sign stands in front or behind, and
// currency sign, brackets, blanks and quotes are passed over. Euros; empty when the text is no number, or one with more
// digits than can be told.
[[nodiscard]] std::optional<double> TryReadGerman(QStringView text);

// The same, with 0 for a text that is no number.
[[nodiscard]] double ReadGerman(QStringView text);

// Euros to whole cents, halves away from zero. Amounts beyond the range of the type are cut to its ends.
[[nodiscard]] qint64 ToCents(double euros);

// The same, halves to the even cent: so the amounts of statements are rounded.
[[nodiscard]] qint64 ToEvenCents(double euros);

[[nodiscard]] double ToEuros(qint64 cents);

// "12.50": the form in which amounts stand in the database.
[[nodiscard]] QString CentsToText(qint64 cents);

// Reads the form of the database, cents rounded half away from zero; a decimal comma and other numbers of decimal
// places are understood, because older files hold them. Empty when the text is no number.
[[nodiscard]] std::optional<qint64> CentsFromText(QStringView text);

} // namespace modAmount
