#pragma once

#include "import/table/cTableMemory.h"

#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

// Finds the line of a table that names its columns.
namespace modTableHeader {

// The first lines of a file: either texts that are still to be separated, or cells.
struct cProbe
{
    QStringView Line;
    QStringList Cells; // of a spreadsheet; Line is empty then
};

struct cFound
{
    int Header = -1; // place in the list of probes; -1: no line names the columns
    int First = 0;   // the first line of data
    QChar Separator;
};

constexpr int searchedLines = 40;

// Cells of a line, cleaned.
[[nodiscard]] QStringList CellsOf(const cProbe& probe, QChar separator);

// A line that the user or a known layout names goes first; then the first one whose words give a date and an amount and
// whose next line holds a date; then the line without digits above the first data; then one with such words and no row
// below it; else there is none.
[[nodiscard]] cFound Find(const QList<cProbe>& probes, const cTableChoice& choice, const cTableMemory* memory);

} // namespace modTableHeader
