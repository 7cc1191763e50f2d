#pragma once

#include <QDate>
#include <QStringView>

// Days whose month is a word: "30 Jun 2023", "3. März 2024", "Jun 30, 2023".
namespace modTextDate {

// German and English names of months, whole or shortened, in any case; the name of a weekday may stand in front. A
// two-digit year lies in 2000 to 2099. Invalid when the text is anything else.
[[nodiscard]] QDate Read(QStringView text);

} // namespace modTextDate
