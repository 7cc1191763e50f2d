#include "import/table/modTableEnd.h"

#include "base/modChar.h"
#include "import/cell/modTableValue.h"
#include "import/read/cTableLayout.h"
#include "import/table/cTable.h"

#include <QList>

#include <algorithm>

namespace {

QStringView DecimalsOf(QStringView amount, eNumberFormat number)
{
    const qsizetype sign = amount.lastIndexOf(number == eNumberFormat::English ? u'.' : u',');
    const QStringView behind = sign < 0 ? QStringView() : amount.sliced(sign + 1);
    return behind.first(std::find_if_not(behind.begin(), behind.end(), modChar::IsDigit) - behind.begin());
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
        for (int row = m_first; row < m_last; ++row) {
            if (modTableValue::IsDate(m_table.Cell(row, m_map.Date))) {
                m_bookings.append(row);
            }
        }
    }

    [[nodiscard]] modTableEnd::cCut Cut() const
    {
        const int fewest = FewestCells();
        for (int row = m_last; row >= m_first; --row) {
            if (IsInQuotes(row)) {
                return {row, true}; // those below are lines of its text
            }
            if (m_table.CellCount(row) >= fewest) {
                break;
            }
        }
        if (m_last < m_first || !IsBooking()) {
            return {};
        }
        if (m_table.CellCount(m_last) < fewest || IsLastCellShort()) {
            return {m_last, true};
        }
        const eDecimals decimals = Decimals();
        return decimals == eDecimals::Whole ? modTableEnd::cCut()
                                            : modTableEnd::cCut{m_last, decimals == eDecimals::CutOff};
    }

private:
    enum class eDecimals { Whole, Doubtful, CutOff };

    [[nodiscard]] QStringView LastCell(int row) const { return m_table.Cell(row, m_table.CellCount(row) - 1); }

    // The reader has taken the quotes away where there are two.
    [[nodiscard]] bool IsInQuotes(int row) const { return LastCell(row).startsWith(u'"'); }

    // The last line begins like the days above it. "Erstellt am 05.11.2026" is a note.
    [[nodiscard]] bool IsBooking() const
    {
        const QStringView day = m_table.Cell(m_last, m_map.Date);
        const QStringView above = m_bookings.isEmpty() ? day : m_table.Cell(m_bookings.constLast(), m_map.Date);
        const bool isNote =
            m_table.CellCount(m_last) == 1 && std::any_of(day.begin(), day.end(), [](QChar c) { return c.isLetter(); });
        return modChar::HasDigit(day) && !isNote && modChar::IsDigit(day.front()) == modChar::IsDigit(above.front());
    }

    // Of the bookings above the last line. Of a first one the header tells, whose last names may be empty.
    [[nodiscard]] int FewestCells() const
    {
        auto fewest = static_cast<int>(m_map.Names.size());
        while (fewest > 0 && m_map.Names.at(fewest - 1).isEmpty()) {
            --fewest;
        }
        for (const int row : m_bookings) {
            fewest = row == m_bookings.constFirst() ? m_table.CellCount(row) : qMin(fewest, m_table.CellCount(row));
        }
        return fewest;
    }

    // What stands in this column above, in the nearest booking that has something there.
    [[nodiscard]] QStringView CellAbove(int column) const
    {
        const auto found = std::find_if(m_bookings.rbegin(), m_bookings.rend(),
                                        [&](int row) { return !m_table.Cell(row, column).isEmpty(); });
        return found == m_bookings.rend() ? QStringView() : m_table.Cell(*found, column);
    }

    // Only of what is written alike in all rows.
    [[nodiscard]] bool IsLastCellShort() const
    {
        const QStringView cell = LastCell(m_last);
        const int column = m_table.CellCount(m_last) - 1;
        const QStringView above = CellAbove(column);
        if (modChar::IsCurrencyCode(above)) { // of a currency, whose column is not recognised by half a code
            return cell.size() < above.size();
        }
        if (column == m_map.Indicator) {
            return modTableValue::IndicatorSign(cell) == 0 && modTableValue::IndicatorSign(above) != 0;
        }
        return cell.endsWith(QChar::ReplacementCharacter);
    }

    // An amount in the last cell with fewer decimals than all above it. Some programs leave zeros at the end out; one
    // that has written any is none of them.
    [[nodiscard]] eDecimals Decimals() const
    {
        const int column = m_table.CellCount(m_last) - 1;
        const QStringView cell = LastCell(m_last);
        const bool isMoney =
            column == m_map.Amount || column == m_map.Debit || column == m_map.Credit || column == m_map.Balance;
        const qsizetype usual = DecimalsOf(CellAbove(column), m_number).size();
        if (!isMoney || !modChar::HasDigit(cell) || DecimalsOf(cell, m_number).size() >= usual) {
            return eDecimals::Whole;
        }
        bool hasZeros = cell.endsWith(u',') || cell.endsWith(u'.'); // which nobody writes without a digit behind it
        for (const int row : m_bookings) {
            const QStringView above = m_table.Cell(row, column);
            const QStringView decimals = DecimalsOf(above, m_number);
            if (modChar::HasDigit(above) && decimals.size() != usual) {
                return eDecimals::Whole;
            }
            hasZeros = hasZeros || decimals.endsWith(u'0');
        }
        return hasZeros ? eDecimals::CutOff : eDecimals::Doubtful;
    }

    const cTable& m_table;
    const cColumnMap& m_map;
    eNumberFormat m_number;
    int m_first;
    int m_last;
    QList<int> m_bookings; // rows above the last line
};

} // namespace

modTableEnd::cCut modTableEnd::Find(const cTable& table, const cTableLayout& layout, eNumberFormat number)
{
    return table.IsOpenEnded() ? cEnd(table, layout, number).Cut() : cCut();
}
