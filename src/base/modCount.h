#pragma once

#include <QString>
#include <QStringList>

// Numbers of things as the user reads them: "1 Eintrag", "7 Einträge", "0 Einträge".
namespace modCount {

[[nodiscard]] QString Entries(qsizetype count);  // Einträge of the book
[[nodiscard]] QString Bookings(qsizetype count); // Buchungen: entries as users of a category or an account
[[nodiscard]] QString Categories(qsizetype count);
[[nodiscard]] QString Rows(qsizetype count); // Umsätze of the bank
[[nodiscard]] QString Series(qsizetype count);
[[nodiscard]] QString Receipts(qsizetype count);
[[nodiscard]] QString Accounts(qsizetype count);

[[nodiscard]] QString Times(qsizetype count); // "1 Mal", "12 Mal"

// The first lines of a list; where there are more, "… und 3 weitere Zeilen" below them.
[[nodiscard]] QStringList Cut(QStringList lines, qsizetype most);

} // namespace modCount
