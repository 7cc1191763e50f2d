#include "import/sheet/cSheetBuilder.h"

namespace {

void Count(QList<int>& counts, int column)
{
    while (counts.size() <= column) {
        counts.append(0);
    }
    ++counts[column];
}

} // namespace

void cSheetBuilder::BeginRow(int line)
{
    FinishRow();
    m_line = line;
    m_column = 0;
    m_hasRow = false;
}

void cSheetBuilder::Put(int column, const cSheetCell& cell)
{
    if (cell.Text.isEmpty() || column < m_column || column >= mostColumns || IsFull()) {
        return;
    }
    if (!m_hasRow) {
        m_sheet.Table.AddRow(m_line);
        m_hasRow = true;
    }
    Pad(column);
    m_sheet.Table.AddCell(cell.Text);
    ++m_cells;
    m_column = column + 1;
    if (cell.Kind != eSheetCell::Text) {
        Count(cell.Kind == eSheetCell::Number ? m_sheet.Numbers : m_sheet.Days, column);
    }
}

cSheet cSheetBuilder::Take()
{
    FinishRow();
    return std::move(m_sheet);
}

void cSheetBuilder::FinishRow()
{
    if (!m_hasRow) {
        return;
    }
    m_width = qMax(m_width, m_column);
    Pad(m_width);
    m_hasRow = false;
}

void cSheetBuilder::Pad(int column)
{
    for (; m_column < column; ++m_column) {
        m_sheet.Table.AddCell({});
        ++m_cells;
    }
}
