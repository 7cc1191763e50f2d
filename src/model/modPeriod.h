#pragma once

#include <QDate>
#include <QString>

// The named periods of the views as days.
namespace modPeriod {

// First and last day, both included. Invalid days leave that side open.
struct cRange
{
    QDate Start;
    QDate End;

    bool operator==(const cRange&) const = default;
};

// The month that lies `offset` months after the one of `today`; the same for quarters and years.
[[nodiscard]] cRange Month(QDate today, int offset);
[[nodiscard]] cRange Quarter(QDate today, int offset);
[[nodiscard]] cRange Year(QDate today, int offset);

// The range of a period name. "Alle Buchungen" and unknown names are open on both sides; "Freier Zeitraum" is `free`.
[[nodiscard]] cRange Range(const QString& name, QDate today, const cRange& free);

// The free period after its days were typed: one that ends before it starts becomes the day that is new in it.
[[nodiscard]] cRange Typed(const cRange& typed, const cRange& before);

// True for the three names that lie wholly in the future.
[[nodiscard]] bool IsNext(const QString& name);

} // namespace modPeriod
