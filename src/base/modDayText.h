#pragma once

#include <QDate>
#include <QString>

// Days as a person types them.
namespace modDayText {

// Reads "3" or "3." (the 3rd of the month of `today`, also when that day is still to come: bills are entered ahead as
// often as behind, and another month is one more number away), "3.5.", "3.5.26", "3.5.2026", "0305", "030526",
// "03052026", "+7" and "-7" (days from `today`), "2026-05-03", and the words heute, gestern, vorgestern, morgen,
// übermorgen in German and in the chosen language. Two-digit years lie in 2000 to 2099. Invalid for everything else,
// also for an empty text.
//
// Day, month and year stand in the order of modDate::Form and are separated by its sign. Points are understood as well
// where the day comes first, and a comma counts as a point, because the number pad has no other. Where the month or the
// year comes first, points are no day: in every country that writes them the day comes first.
[[nodiscard]] QDate Read(const QString& text, QDate today);

// What the user is told about a text that is no day: that it is none, and how to write one.
[[nodiscard]] QString Fault(const QString& text, QDate today);

} // namespace modDayText
