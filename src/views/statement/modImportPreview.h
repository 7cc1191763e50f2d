#pragma once

#include <QString>
#include <QStringList>

class cAmountFormat;
enum class eSkipped;
struct cImportEntry;
struct cImportResult;

// What a file that is only tried would bring, in words.
namespace modImportPreview {

// "vorgemerkt"
[[nodiscard]] QString Kind(eSkipped kind);

// How many transactions, from when to when, how much together.
[[nodiscard]] QString Count(const cImportResult& result, const cAmountFormat& format);

// What would be left out or is doubtful, one line each with its reason; of more than `most` lines only so many.
[[nodiscard]] QStringList LeftOut(const cImportResult& result, const cAmountFormat& format, qsizetype most);

} // namespace modImportPreview
