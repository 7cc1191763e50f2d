#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Tables as text, in the form that German table programs open: semicolons, decimal commas, UTF-8.
namespace modCsv {

// What stands in front of the first line, so that table programs take the file for UTF-8.
inline constexpr char Mark[] = "\xEF\xBB\xBF";

// A text as field: quoted where it has to be, and never taken for a formula.
[[nodiscard]] QString Text(const QString& text);

// Whole cents as field, without grouping and currency, so that every program takes it for a number.
[[nodiscard]] QString Money(qint64 cents);

// Finished fields as a line with its end.
[[nodiscard]] QByteArray Line(const QStringList& fields);

} // namespace modCsv
