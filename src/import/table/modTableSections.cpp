#include "import/table/modTableSections.h"

#include "import/read/cReadOptions.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modCell.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableValue.h"

namespace {

constexpr int leastNames = 3;
constexpr int rowsBelow = 5; // among which a day must stand
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
            if (!BeginsWithLetter(row) || !IsHeader(row)) {
                continue;
            }
            const QString title = TitleAbove(row);
            const bool isAgain = m_table.Row(row) == m_layout.Map.Names;
            if (!isAgain || modCell::MatchesList(title, titleWords)) {
                return {StartOf(row), row, title};
            }
        }
        return {};
    }

private:
    // Nearly all rows of data are done with this.
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

    // The last line above the header that is not empty and no booking.
    [[nodiscard]] QString TitleAbove(int header) const
    {
        for (int row = header - 1; row >= m_layout.FirstRow; --row) {
            const int filled = Filled(row);
            if (filled >= leastNames) {
                return {};
            }
            if (filled > 0) {
                QStringList cells = m_table.Row(row);
                cells.removeAll(QString());
                return cells.first();
            }
        }
        return {};
    }

    // Behind the last booking of the part before. Lines with few cells may belong to either.
    [[nodiscard]] int StartOf(int header) const
    {
        int start = header;
        while (start > m_layout.FirstRow && Filled(start - 1) < leastNames) {
            --start;
        }
        return start;
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
