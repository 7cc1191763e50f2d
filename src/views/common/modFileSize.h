#pragma once

#include <QString>

class cAmountFormat;

// The size of a file for people.
namespace modFileSize {

// "1,2 MB": the same units in all languages, the decimal sign of the book.
[[nodiscard]] QString Text(qint64 bytes, const cAmountFormat& format);

} // namespace modFileSize
