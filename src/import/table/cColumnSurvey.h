#pragma once

#include "import/read/cTableLayout.h"
#include "import/table/cColumnFacts.h"

#include <QList>
#include <QStringView>

class cTable;

// The columns of a table as they look in the first rows with a day, beside the layout that is made of them.
class cColumnSurvey
{
public:
    // Both outlive the survey.
    cColumnSurvey(const cTable& table, cTableLayout& layout);

    static constexpr int SurveyedRows = 200;

    [[nodiscard]] const cTable& Table() const { return m_table; }
    [[nodiscard]] cTableLayout& Layout() { return m_layout; }
    [[nodiscard]] cColumnMap& Map() { return m_layout.Map; }
    [[nodiscard]] const cColumnMap& Map() const { return m_layout.Map; }

    [[nodiscard]] int Rows() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int Row(int place) const { return m_rows.at(place); } // of the table
    [[nodiscard]] int Columns() const { return static_cast<int>(m_facts.size()); }
    [[nodiscard]] const cColumnFacts& Facts(int column) const;
    [[nodiscard]] QStringView Cell(int place, int column) const;

    [[nodiscard]] bool IsNamed(int column, QStringView words) const;
    [[nodiscard]] bool HasNames() const { return !m_layout.Map.Names.isEmpty(); }
    [[nodiscard]] bool IsTaken(int column) const { return m_layout.Map.Uses(column); }
    [[nodiscard]] bool IsFull(int column) const { return Facts(column).Filled == Rows() && Rows() > 0; }
    [[nodiscard]] bool IsBalance(int column) const;
    [[nodiscard]] bool IsEarlier(int column) const; // a balance before the booking
    [[nodiscard]] bool IsForeign(int column) const; // tells of another currency, of fees or taxes
    [[nodiscard]] bool IsCategory(int column) const;

    // The first column that fits; -1 when none does.
    [[nodiscard]] int First(auto isFit) const
    {
        for (int column = 0; column < Columns(); ++column) {
            if (isFit(column)) {
                return column;
            }
        }
        return -1;
    }

    // Puts the first free column that fits into the target that has none.
    void SetFirst(int& target, auto isFit)
    {
        if (target < 0) {
            target = First([&](int column) { return !IsTaken(column) && isFit(column); });
        }
    }

private:
    const cTable& m_table;
    cTableLayout& m_layout;
    QList<cColumnFacts> m_facts;
    QList<int> m_rows;
};
