#pragma once

#include "model/cImportEntry.h"

#include <QList>
#include <QString>
#include <QStringList>

class cAmountFormat;
enum class eSkipped;
struct cImportResult;

namespace modTable {
struct cOpened;
}

// One row of a file, and what would become of it.
struct cPreviewRow
{
    int Line = 0;
    QStringList Cells{}; // as they stand in the file; only of a table
    QString Day{};
    QString Name{};
    QString Purpose{};
    QString Amount{};
    QString Remark{}; // why it is left out or doubtful; empty when all is well
    bool IsLeftOut = false;
};

// What a file that is only tried would bring, in words.
namespace modImportPreview {

// The first rows of a table, each read by itself, so that the user sees what became of it and of no other.
[[nodiscard]] QList<cPreviewRow> Rows(const modTable::cOpened& opened, const cAmountFormat& format, int most);
[[nodiscard]] QList<cPreviewRow> Rows(const cImportEntryList& entries, const cAmountFormat& format, int most);

// "vorgemerkt"
[[nodiscard]] QString Kind(eSkipped kind);

// How many transactions, from when to when, how much together.
[[nodiscard]] QString Count(const cImportResult& result, const cAmountFormat& format);

// What would be left out or is doubtful, one line each with its reason; of more than `most` lines only so many.
[[nodiscard]] QStringList LeftOut(const cImportResult& result, const cAmountFormat& format, qsizetype most);

} // namespace modImportPreview
