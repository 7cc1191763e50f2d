#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

// The forms in which the program writes and reads days.
namespace modDate {

// "yyyy-mm-dd", as the database and the command line have it; empty for an invalid date.
[[nodiscard]] QString ToIso(QDate date);

// Reads "yyyy-mm-dd"; a time behind it is ignored. Invalid when the text is no date.
[[nodiscard]] QDate FromIso(QStringView text);

// "dd.MM.yyyy", as the user sees it; empty for an invalid date.
[[nodiscard]] QString ToGerman(QDate date);

// Reads day.month.year; a two-digit year lies in 2000 to 2099. Invalid when the text is no date.
[[nodiscard]] QDate FromGerman(QStringView text);

} // namespace modDate
