#include "import/table/cTable.h"

#include "import/table/modCell.h"

void cTable::AddCell(QStringView text)
{
    const QString cleaned = modCell::Clean(text);
    m_cells.append({static_cast<quint32>(m_changed.size()), static_cast<quint32>(cleaned.size()) & 0x7FFFFFFFU, 1U});
    m_changed += cleaned;
}

void cTable::AddSlice(qsizetype start, qsizetype size)
{
    const QStringView slice = QStringView(m_text).mid(start, size).trimmed();
    if (modCell::NeedsCleaning(slice)) {
        AddCell(slice);
        return;
    }
    const qsizetype first = slice.isEmpty() ? 0 : slice.data() - QStringView(m_text).data();
    m_cells.append({static_cast<quint32>(first), static_cast<quint32>(slice.size()) & 0x7FFFFFFFU, 0U});
}

int cTable::CellCount(int row) const
{
    const qsizetype end = row + 1 < m_rows.size() ? m_rows.at(row + 1).FirstCell : m_cells.size();
    return static_cast<int>(end - m_rows.at(row).FirstCell);
}

QStringView cTable::Cell(int row, int column) const
{
    if (column < 0 || column >= CellCount(row)) {
        return {};
    }
    const cSpan& span = m_cells.at(m_rows.at(row).FirstCell + column);
    return QStringView(span.IsChanged != 0 ? m_changed : m_text)
        .mid(static_cast<qsizetype>(span.Start), static_cast<qsizetype>(span.Size));
}

QStringList cTable::Row(int row) const
{
    QStringList cells;
    for (int column = 0; column < CellCount(row); ++column) {
        cells.append(Cell(row, column).toString());
    }
    return cells;
}
