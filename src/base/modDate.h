#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

// The form in which the user reads and types days: that of the number format of the book.
struct cDayForm
{
    enum class eOrder : quint8 { DayFirst, MonthFirst, YearFirst };

    eOrder Order = eOrder::DayFirst;
    char16_t Separator = u'.';
};

// The forms in which the program writes and reads days.
namespace modDate {

// Every text for the user has days in this form from now on, which is German at first. Like the language it belongs to
// the whole program, because nearly every message names a day.
void UseForm(cDayForm form);
[[nodiscard]] cDayForm Form();

// The day as the user sees it, always with ten characters: "31.01.2026", "31/01/2026", "01/31/2026", "2026-01-31";
// empty for an invalid date.
[[nodiscard]] QString ToText(QDate date);
[[nodiscard]] QString ToText(QDate date, cDayForm form);

// The same without the year: "31.01.", "31/01", "01/31", "01-31".
[[nodiscard]] QString ToShortText(QDate date);

// "yyyy-mm-dd", as the database and the command line have it; empty for an invalid date.
[[nodiscard]] QString ToIso(QDate date);

// Reads "yyyy-mm-dd"; a time behind it is ignored. Invalid when the text is no date.
[[nodiscard]] QDate FromIso(QStringView text);

// "dd.MM.yyyy" whatever the book says, for files and links; empty for an invalid date.
[[nodiscard]] QString ToGerman(QDate date);

// Reads day.month.year; a two-digit year lies in 2000 to 2099. Invalid when the text is no date.
[[nodiscard]] QDate FromGerman(QStringView text);

} // namespace modDate
