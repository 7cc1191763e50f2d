#include "import/table/cTable.h"

#include "import/cell/modCell.h"

#include <algorithm>

namespace {

bool IsBreak(QChar c)
{
    return c == u'\r' || c == u'\n';
}

// Programs that protect a text from being taken for a number write ="0042".
bool IsProtected(QStringView text)
{
    return text.size() >= 3 && text.startsWith(u"=\"") && text.endsWith(u'"');
}

// Line breaks and the blanks around them become one blank: what stood in two lines are two words.
QString OneLine(QStringView text)
{
    QString line;
    line.reserve(text.size());
    bool isBehindBreak = false;
    for (const QChar c : text) {
        if (IsBreak(c)) {
            while (line.endsWith(u' ')) {
                line.chop(1);
            }
            isBehindBreak = true;
        } else if (!isBehindBreak || c != u' ') {
            if (isBehindBreak && !line.isEmpty()) {
                line.append(u' ');
            }
            isBehindBreak = false;
            line.append(c);
        }
    }
    return line;
}

} // namespace

void cTable::AddCell(QStringView text)
{
    text = text.trimmed();
    const QStringView plain = IsProtected(text) ? text.mid(1) : text;
    const bool hasBreaks = std::any_of(plain.begin(), plain.end(), IsBreak);
    const QString cleaned = modCell::Clean(hasBreaks ? OneLine(plain) : plain.toString());
    m_cells.append({static_cast<quint32>(m_changed.size()), static_cast<quint32>(cleaned.size()) & 0x7FFFFFFFU, 1U});
    m_changed += cleaned;
}

void cTable::AddSlice(qsizetype start, qsizetype size)
{
    const QStringView slice = QStringView(m_text).mid(start, size).trimmed();
    if (modCell::NeedsCleaning(slice) || IsProtected(slice)) {
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

cTable cTable::Part(int first, int end) const
{
    cTable part;
    for (int row = first; row < end; ++row) {
        part.AddRow(Line(row));
        for (int column = 0; column < CellCount(row); ++column) {
            part.AddCell(Cell(row, column));
        }
    }
    part.SetOpenEnded(m_isOpenEnded && end == RowCount());
    return part;
}
