#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// Rows of cells as texts. Cells of one table may be many, so they are kept as places in two buffers: the text they were
// cut from and a buffer for those that had to be changed.
class cTable
{
public:
    cTable() = default;
    // A table whose cells are cut from this text with AddSlice.
    explicit cTable(const QString& text) : m_text(text) {}

    // What is more than this is no statement, and would only fill memory.
    static constexpr int mostColumns = 256;
    static constexpr qsizetype mostCells = 8'000'000;
    [[nodiscard]] bool IsFull() const { return m_cells.size() >= mostCells; }

    // Begins a row; `line` is its place in the file as the user counts it, from 1.
    void AddRow(int line) { m_rows.append({m_cells.size(), line}); }
    // Appends a cell to the last row. The text is cleaned: trimmed, enclosing quotes removed, no tabs; line breaks
    // become blanks.
    void AddCell(QStringView text);
    // The same for a piece of the table's own text; nothing is copied unless it has to be changed.
    void AddSlice(qsizetype start, qsizetype size);

    // The text ends without the end of its last line, which may have been cut off.
    void SetOpenEnded(bool isOpenEnded) { m_isOpenEnded = isOpenEnded; }
    [[nodiscard]] bool IsOpenEnded() const { return m_isOpenEnded; }

    [[nodiscard]] int RowCount() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int CellCount(int row) const;
    [[nodiscard]] int Line(int row) const { return m_rows.at(row).Line; }
    // Empty for a cell that the row does not have. Valid as long as the table is not changed.
    [[nodiscard]] QStringView Cell(int row, int column) const;
    [[nodiscard]] QStringList Row(int row) const;
    // Rows `first` to `end` - 1 as a table of their own, with the lines that they have here.
    [[nodiscard]] cTable Part(int first, int end) const;

private:
    struct cSpan
    {
        quint32 Start;
        quint32 Size : 31;
        quint32 IsChanged : 1;
    };
    struct cRow
    {
        qsizetype FirstCell;
        int Line;
    };

    QString m_text;
    QString m_changed;
    QList<cSpan> m_cells;
    QList<cRow> m_rows;
    bool m_isOpenEnded = false;
};
