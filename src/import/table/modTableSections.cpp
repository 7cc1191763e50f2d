#include "import/table/modTableSections.h"

#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/read/cReadOptions.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableProfile.h"

#include <algorithm>

namespace {

constexpr int leastNames = 3;
constexpr int rowsBelow = 5; // among which a day must stand
constexpr QStringView balanceWords = u"*Kontostand*|*Saldo*|*balance*";
constexpr QStringView titleWords = u"*Umsätze*|*Umsaetze*|*konto*|*Karte*|*Depot*|*account*|*card*|*Verrechnung*";

class cSections
{
public:
    cSections(const cTable& table, const cTableLayout& layout, const cReadOptions& options)
        : m_table(table),
          m_layout(layout),
          m_options(options)
    {
    }

    [[nodiscard]] modTableSections::cNext Run() const
    {
        for (int row = m_layout.FirstRow + 1; row < m_table.RowCount(); ++row) {
            if (HasDigitForDay(row) || !BeginsWithLetter(row) || !IsHeader(row)) {
                continue;
            }
            const int titleRow = TitleRow(row);
            const QString title = titleRow < 0 ? QString() : FirstCell(titleRow);
            const bool isAgain = m_table.Row(row) == m_layout.Map.Names;
            if (!isAgain || modCell::MatchesList(title, titleWords)) {
                return {StartOf(row, titleRow), row, title};
            }
        }
        return {};
    }

private:
    // Nearly all rows of data are done with this.
    [[nodiscard]] bool HasDigitForDay(int row) const
    {
        const QStringView day = m_table.Cell(row, m_layout.Map.Date);
        return !day.isEmpty() && day.front().isDigit();
    }

    [[nodiscard]] bool BeginsWithLetter(int row) const
    {
        for (int column = 0; column < m_table.CellCount(row); ++column) {
            if (const QStringView cell = m_table.Cell(row, column); !cell.isEmpty()) {
                return cell.front().isLetter();
            }
        }
        return false;
    }

    [[nodiscard]] int Filled(int row) const
    {
        int filled = 0;
        for (int column = 0; column < m_table.CellCount(row); ++column) {
            filled += m_table.Cell(row, column).isEmpty() ? 0 : 1;
        }
        return filled;
    }

    [[nodiscard]] bool HasDay(int row) const
    {
        for (int column = 0; column < m_table.CellCount(row); ++column) {
            if (modTableValue::IsDate(m_table.Cell(row, column))) {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] bool IsHeader(int row) const
    {
        if (HasDay(row) || Filled(row) < leastNames) {
            return false;
        }
        const QStringList names = m_table.Row(row);
        cTableLayout known;
        if (modTableProfile::Apply(names, known)
            || (m_options.Memory != nullptr && m_options.Memory->HasMap(cTableMemory::KeyOf(names)))) {
            return true;
        }
        const cColumnMap map = modColumnWords::Detect(names);
        return map.Date >= 0 && (map.Amount >= 0 || map.Debit >= 0 || map.Credit >= 0) && HasDayBelow(row);
    }

    [[nodiscard]] bool HasDayBelow(int row) const
    {
        const int end = qMin(m_table.RowCount(), row + 1 + rowsBelow);
        for (int next = row + 1; next < end; ++next) {
            if (HasDay(next)) {
                return true;
            }
        }
        return false;
    }

    // The first line of those directly above the header, as far as they are no bookings and no balances; -1 when there
    // is none.
    [[nodiscard]] int TitleRow(int header) const
    {
        int title = -1;
        for (int row = header - 1; row >= m_layout.FirstRow && Filled(row) < leastNames; --row) {
            if (Filled(row) == 0 && title >= 0) {
                break;
            }
            title = Filled(row) > 0 && !modCell::MatchesList(FirstCell(row), balanceWords) ? row : title;
        }
        return title;
    }

    [[nodiscard]] QString FirstCell(int row) const
    {
        QStringList cells = m_table.Row(row);
        cells.removeAll(QString());
        return cells.value(0);
    }

    // Sums and balances below the bookings of the part before still belong to that one.
    [[nodiscard]] int StartOf(int header, int title) const
    {
        int start = title < 0 ? header : title;
        while (start > m_layout.FirstRow && Filled(start - 1) < leastNames && !HasAmount(start - 1)) {
            --start;
        }
        return start;
    }

    [[nodiscard]] bool HasAmount(int row) const
    {
        const QStringList cells = m_table.Row(row);
        return std::any_of(cells.begin(), cells.end(), modTableValue::IsAmount);
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    const cReadOptions& m_options;
};

} // namespace

modTableSections::cNext modTableSections::Find(const cTable& table, const cTableLayout& layout,
                                               const cReadOptions& options)
{
    return layout.HeaderRow < 0 ? cNext() : cSections(table, layout, options).Run();
}
