#pragma once

#include <QString>

// Numbers of things as the user reads them: "1 Eintrag", "7 Einträge", "0 Einträge".
namespace modCount {

[[nodiscard]] QString Entries(qsizetype count);  // Einträge of the book
[[nodiscard]] QString Bookings(qsizetype count); // Buchungen: entries as users of a category or an account
[[nodiscard]] QString Categories(qsizetype count);
[[nodiscard]] QString Rows(qsizetype count); // Umsätze of the bank

[[nodiscard]] QString Times(qsizetype count); // "1 Mal", "12 Mal"

// "… und 3 weitere Zeilen", below a list that was cut.
[[nodiscard]] QString MoreLines(qsizetype count);

} // namespace modCount
