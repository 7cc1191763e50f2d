#pragma once

#include <QDate>
#include <QString>

// Days as a person types them.
namespace modDayText {

// Reads "3" or "3." (the 3rd of the month of `today`, also when that day is still to come: bills are entered ahead as
// often as behind, and another month is one more number away), "3.5.", "3.5.26", "3.5.2026", "0305", "030526",
// "03052026", "+7" and "-7" (days from `today`), "2026-05-03", and the words heute, gestern, vorgestern, morgen,
// übermorgen in German and in the chosen language. A comma counts as a point, because the number pad has no other.
// Two-digit years lie in 2000 to 2099. Invalid for everything else, also for an empty text.
[[nodiscard]] QDate Read(const QString& text, QDate today);

} // namespace modDayText
