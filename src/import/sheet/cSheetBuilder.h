#pragma once

#include "import/sheet/cSheet.h"

enum class eSheetCell { Text, Number, Day };

struct cSheetCell
{
    QString Text;
    eSheetCell Kind = eSheetCell::Text;
};

// Puts the cells of a sheet together. Rows without any content are left out; all others are as wide as the widest one
// above, because workbooks do not store the empty cells at the end of a row.
class cSheetBuilder
{
public:
    static constexpr int mostColumns = cTable::mostColumns;
    static constexpr int mostCells =
        4'000'000; // of one sheet; keeps a small file with endless rows from filling memory

    explicit cSheetBuilder(const QString& name) { m_sheet.Name = name; }

    // Begins a row; `line` is its number as the user sees it, from 1.
    void BeginRow(int line);
    // Columns count from 0 and ascend within a row; those passed over are empty. Cells that do not ascend and those
    // beyond the last column are dropped.
    void Put(int column, const cSheetCell& cell);

    // True when nothing more is taken: the sheet is too large.
    [[nodiscard]] bool IsFull() const { return m_cells >= mostCells; }

    [[nodiscard]] cSheet Take();

private:
    void FinishRow();
    void Pad(int column);

    cSheet m_sheet;
    int m_line = 0;
    bool m_hasRow = false; // the row has a cell
    int m_column = 0;      // the next one
    int m_width = 0;
    int m_cells = 0;
};
