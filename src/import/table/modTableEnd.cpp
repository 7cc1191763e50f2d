#include "import/table/modTableEnd.h"

#include "import/read/cTableLayout.h"
#include "import/table/cTable.h"
#include "import/table/modTableValue.h"

#include <algorithm>

namespace {

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool HasDigit(QStringView cell)
{
    return std::any_of(cell.begin(), cell.end(), IsDigit);
}

bool IsCode(QStringView cell)
{
    return cell.size() == 3 && std::all_of(cell.begin(), cell.end(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
}

qsizetype DecimalsOf(QStringView amount, eNumberFormat number)
{
    const qsizetype sign = amount.lastIndexOf(number == eNumberFormat::English ? u'.' : u',');
    const QStringView behind = sign < 0 ? QStringView() : amount.sliced(sign + 1);
    return std::find_if_not(behind.begin(), behind.end(), IsDigit) - behind.begin();
}

class cEnd
{
public:
    cEnd(const cTable& table, const cTableLayout& layout, eNumberFormat number)
        : m_table(table),
          m_map(layout.Map),
          m_number(number),
          m_first(layout.FirstRow),
          m_last(table.RowCount() - 1)
    {
    }

    [[nodiscard]] int CutOffRow() const
    {
        if (m_last < m_first) {
            return -1;
        }
        const int fewest = FewestCells();
        for (int row = m_last; row >= m_first; --row) {
            if (IsInQuotes(row)) {
                return row; // those below are lines of its text
            }
            if (m_table.CellCount(row) >= fewest) {
                break;
            }
        }
        const QStringView day = m_table.Cell(m_last, m_map.Date);
        return HasDigit(day) && (m_table.CellCount(m_last) < fewest || IsLastCellShort()) ? m_last : -1;
    }

private:
    [[nodiscard]] QStringView LastCell(int row) const { return m_table.Cell(row, m_table.CellCount(row) - 1); }

    // The reader has taken the quotes away where there are two.
    [[nodiscard]] bool IsInQuotes(int row) const { return LastCell(row).startsWith(u'"'); }

    // Of the bookings above the last line. Of a first one the header tells, whose last names may be empty.
    [[nodiscard]] int FewestCells() const
    {
        auto fewest = static_cast<int>(m_map.Names.size());
        while (fewest > 0 && m_map.Names.at(fewest - 1).isEmpty()) {
            --fewest;
        }
        bool hasOne = false;
        for (int row = m_first; row < m_last; ++row) {
            if (modTableValue::IsDate(m_table.Cell(row, m_map.Date))) {
                fewest = hasOne ? qMin(fewest, m_table.CellCount(row)) : m_table.CellCount(row);
                hasOne = true;
            }
        }
        return fewest;
    }

    // What stands in this column above, in the nearest row that has something there.
    [[nodiscard]] QStringView CellAbove(int column) const
    {
        for (int row = m_last - 1; row >= m_first; --row) {
            if (const QStringView cell = m_table.Cell(row, column); !cell.isEmpty()) {
                return cell;
            }
        }
        return {};
    }

    // Only of what is written alike in all rows.
    [[nodiscard]] bool IsLastCellShort() const
    {
        const int column = m_table.CellCount(m_last) - 1;
        const QStringView cell = LastCell(m_last);
        const QStringView above = CellAbove(column);
        if (IsCode(above)) { // of a currency, whose column is not recognised by half a code
            return cell.size() < above.size();
        }
        if (column == m_map.Indicator) {
            return modTableValue::IndicatorSign(cell) == 0 && modTableValue::IndicatorSign(above) != 0;
        }
        const bool isMoney =
            column == m_map.Amount || column == m_map.Debit || column == m_map.Credit || column == m_map.Balance;
        return cell.endsWith(QChar::ReplacementCharacter)
            || (isMoney && HasDigit(cell) && DecimalsOf(cell, m_number) < DecimalsOf(above, m_number));
    }

    const cTable& m_table;
    const cColumnMap& m_map;
    eNumberFormat m_number;
    int m_first;
    int m_last;
};

} // namespace

int modTableEnd::CutOffRow(const cTable& table, const cTableLayout& layout, eNumberFormat number)
{
    return table.IsOpenEnded() ? cEnd(table, layout, number).CutOffRow() : -1;
}
