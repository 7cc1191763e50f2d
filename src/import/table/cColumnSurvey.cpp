#include "import/table/cColumnSurvey.h"

#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/table/cTable.h"

namespace {

constexpr int mostColumns = 100;
constexpr QStringView foreignWords = u"*Fremd*|*Origin*|*Foreign*|*Urspr*|*Gebühr*|*Fee*|*Steuer*|Tax*|MwSt*|VAT*|"
                                     u"*Entgelt*|*Rate*|*Kurs*|*Exchange*|*Detail|Einzelbetrag|Individual*";
constexpr QStringView balanceWords = u"*Saldo*|*Balance*|*Kontostand*|Guthaben|*Solde*";
// What was there before the booking.
constexpr QStringView earlierWords = u"*vor*|*Begin*|*before*|*previous*|*Anfang*|*Opening*|*alter *";
constexpr QStringView categoryWords = u"*Categor*|*Kategorie*|*Category*|Tags|*Stichw*|Rubrik|*Rubriek*";

// Sub rows and totals have no day; what they lack says nothing about a column.
bool HasDate(const cTable& table, int row)
{
    for (int column = 0; column < qMin(table.CellCount(row), mostColumns); ++column) {
        if (modTableValue::IsDate(table.Cell(row, column))) {
            return true;
        }
    }
    return false;
}

} // namespace

cColumnSurvey::cColumnSurvey(const cTable& table, cTableLayout& layout) : m_table(table), m_layout(layout)
{
    const int end = qMin(table.RowCount(), layout.FirstRow + SurveyedRows);
    int columns = layout.Map.ColumnCount;
    QList<int> others;
    for (int row = layout.FirstRow; row < end; ++row) {
        columns = qMin(qMax(columns, table.CellCount(row)), mostColumns);
        if (table.CellCount(row) >= 2) {
            (HasDate(table, row) ? m_rows : others).append(row);
        }
    }
    if (m_rows.isEmpty()) {
        m_rows = others;
    }
    layout.Map.ColumnCount = qMax(layout.Map.ColumnCount, columns);
    m_facts.resize(columns);
    for (const int row : std::as_const(m_rows)) {
        for (int column = 0; column < columns; ++column) {
            m_facts[column].Look(table.Cell(row, column));
        }
    }
}

// Columns beyond those that were looked at hold nothing.
const cColumnFacts& cColumnSurvey::Facts(int column) const
{
    static const cColumnFacts nothing;
    return column >= 0 && column < m_facts.size() ? m_facts.at(column) : nothing;
}

QStringView cColumnSurvey::Cell(int place, int column) const
{
    return m_table.Cell(m_rows.at(place), column);
}

bool cColumnSurvey::IsNamed(int column, QStringView words) const
{
    return column >= 0 && column < m_layout.Map.Names.size()
        && modCell::MatchesList(m_layout.Map.Names.at(column), words);
}

bool cColumnSurvey::IsBalance(int column) const
{
    return IsNamed(column, balanceWords) && !IsEarlier(column);
}

bool cColumnSurvey::IsEarlier(int column) const
{
    return IsNamed(column, balanceWords) && IsNamed(column, earlierWords);
}

bool cColumnSurvey::IsForeign(int column) const
{
    return IsNamed(column, foreignWords);
}

bool cColumnSurvey::IsCategory(int column) const
{
    return IsNamed(column, categoryWords);
}
