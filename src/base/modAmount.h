#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// Amounts as texts and as whole cents.
namespace modAmount {

// Which of two cents the half between them becomes. Statements round to the even one.
enum class eHalf { ToEven, AwayFromZero };

// Reads an amount written in German form: "," is the decimal sign, "." groups, a sign stands in front or behind, and
// currency sign, brackets, blanks and quotes are passed over. Whole cents, rounded as the digits say; empty when the
// text is no number, or one with more digits than can be told.
[[nodiscard]] std::optional<qint64> CentsFromGerman(QStringView text, eHalf half = eHalf::ToEven);

// Euros to whole cents, halves away from zero. Amounts beyond the range of the type are cut to its ends.
[[nodiscard]] qint64 ToCents(double euros);

[[nodiscard]] double ToEuros(qint64 cents);

// "12.50": the form in which amounts stand in the database.
[[nodiscard]] QString CentsToText(qint64 cents);

// Reads the form of the database, cents rounded half away from zero; a decimal comma and other numbers of decimal
// places are understood, because older files hold them. Empty when the text is no number.
[[nodiscard]] std::optional<qint64> CentsFromText(QStringView text);

} // namespace modAmount
