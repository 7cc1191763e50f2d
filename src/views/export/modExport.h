#pragma once

#include "views/export/cEntryExtract.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class cAmountFormat;
class cProgress;

// Entries as files for other programs. Every writer gives the whole file as bytes, so that nothing half-written ever
// lies on the disk.
namespace modExport {

enum class eFormat { Csv, Xlsx, Html, Qif };

// Bytes, or the reason why there are none. Neither of them: the user stopped it.
struct cResult
{
    std::optional<QByteArray> Bytes;
    QString Error;
};

// What the writers share.
struct cJob
{
    const cEntryExtract& Extract;
    const cAmountFormat& Format;
    cProgress& Progress;
};

[[nodiscard]] cResult Write(eFormat format, const cJob& job);

// The formats as a file dialog offers them: "CSV-Datei|*.csv|...|Alle Dateien|*.*".
[[nodiscard]] QString Filter();

// The format of a file name. A name without ending and ".txt" are CSV; empty for an ending of another kind of file.
[[nodiscard]] std::optional<eFormat> FormatOf(const QString& path);

// The format by its ending without the dot, as the command line names it.
[[nodiscard]] std::optional<eFormat> FormatByName(const QString& name);
[[nodiscard]] QStringList Names();

// The single writers.
[[nodiscard]] cResult Csv(const cJob& job);
[[nodiscard]] cResult Xlsx(const cJob& job);
[[nodiscard]] cResult Html(const cJob& job);
[[nodiscard]] cResult Qif(const cJob& job);

enum class eContent { Date, Text, Money };

// One column of the tables; exactly one of the readers is set, as `Content` says.
struct cColumn
{
    const char* Title = nullptr; // German
    eContent Content = eContent::Text;
    int Width = 0; // characters
    QString (*Text)(const cEntryExtract::cRow& row) = nullptr;
    std::optional<qint64> (*Cents)(const cEntryExtract::cRow& row) = nullptr;
};

// The columns of the tables. Target account, payer, receipts and balance are there only when a row has one.
[[nodiscard]] std::vector<cColumn> Columns(const cEntryExtract& extract);

// One of the lines under a table.
struct cSum
{
    const char* Title = nullptr; // German
    qint64 Cents = 0;
};
[[nodiscard]] std::vector<cSum> Sums(const cEntryExtract& extract);

// Calls `write` for every row and reports progress. False when the user stopped it.
template <typename tWrite>
[[nodiscard]] bool ForEachRow(const cJob& job, tWrite write);

// Counts rows for the progress; kept apart from the template. False when the user stopped.
[[nodiscard]] bool Count(cProgress& progress, qsizetype done);

} // namespace modExport

template <typename tWrite>
bool modExport::ForEachRow(const cJob& job, tWrite write)
{
    for (std::size_t row = 0; row < job.Extract.Rows.size(); ++row) {
        write(static_cast<qsizetype>(row), job.Extract.Rows[row]);
        if (!Count(job.Progress, static_cast<qsizetype>(row) + 1)) {
            return false;
        }
    }
    return true;
}
