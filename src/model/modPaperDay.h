#pragma once

#include <QDate>
#include <QString>

// The day or the month of a bank's statement on paper, as texts tell it: names of files, and what people type.
namespace modPaperDay {

// "2026-03-31", or "2026-03" where only the month is told; empty where neither is. Knows numbers in the usual orders,
// and German names of months: "Kontoauszug_31.03.2026.pdf", "Auszug 03-2026", "20260331", "März 2026".
[[nodiscard]] QString Find(const QString& text);

// The day at the beginning of a text in the form above, the first of the month for a month alone; invalid for others.
[[nodiscard]] QDate Read(const QString& text);
[[nodiscard]] bool IsMonthOnly(const QString& text);

[[nodiscard]] QString OfMonth(QDate day); // "2026-03"

} // namespace modPaperDay
