#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringView>

// Values as they stand on the wire (FinTS 3.0, Formals). Messages are bytes in ISO-8859-1; what the bank sent and hears
// again is kept as it came, escapes included ("wire"), what a person typed is escaped exactly once, here.
namespace modFintsValue {

// A typed text for the wire: ISO-8859-1, with "?" before "?", "'", "+", ":" and "@". Characters outside of it become
// "?" (escaped), which a bank refuses clearly.
[[nodiscard]] QByteArray Escaped(QStringView text);

// The same for display, the other way round.
[[nodiscard]] QString Unescaped(QByteArrayView wire);

// "YYYYMMDD"; empty for an invalid day.
[[nodiscard]] QByteArray CHBCIDate(QDate day);

// "1:YYYYMMDD:HHMMss"
[[nodiscard]] QByteArray SecurityMoment(const QDateTime& moment);

// "@length@data"
[[nodiscard]] QByteArray Binary(const QByteArray& data);

} // namespace modFintsValue
