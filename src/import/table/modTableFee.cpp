#include "import/table/modTableFee.h"

#include "base/cText.h"
#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/read/cTableLayout.h"
#include "import/table/cTable.h"

#include <cstdlib>
#include <optional>

namespace {

constexpr int surveyedRows = 5000;
constexpr QStringView feeWords = u"Gebühr*|Gebuehr*|Entgelt|Fee|Fees|Total fee*|Fee amount";
constexpr QStringView netWords = u"Netto*|Net|Net amount";

class cFees
{
public:
    cFees(const cTable& table, const cTableLayout& layout)
        : m_table(table),
          m_layout(layout),
          m_end(qMin(table.RowCount(), layout.FirstRow + surveyedRows)),
          m_number(layout.Number)
    {
        if (m_number == eNumberFormat::Detect) {
            modTableValue::cNumberVote vote;
            for (int row = layout.FirstRow; row < m_end; ++row) {
                vote.Add(table.Cell(row, layout.Map.Amount));
            }
            m_number = vote.Decide();
        }
    }

    // Every cell is a number or empty, and one at least is not zero.
    [[nodiscard]] bool IsFee(int column) const
    {
        bool hasOne = false;
        for (int row = m_layout.FirstRow; row < m_end; ++row) {
            const QStringView cell = m_table.Cell(row, column);
            const std::optional<qint64> cents = Cents(row, column);
            if (!cell.isEmpty() && !cents) {
                return false;
            }
            hasOne = hasOne || cents.value_or(0) != 0;
        }
        return hasOne;
    }

    // Whether the fee comes on top of the amount; empty when the balances do not agree on it.
    [[nodiscard]] std::optional<bool> IsBeside(int column)
    {
        int beside = 0;
        int inside = 0;
        for (int row = m_layout.FirstRow; row < m_end; ++row) {
            const qint64 fee = std::abs(Cents(row, column).value_or(0));
            const std::optional<qint64> amount = Cents(row, m_layout.Map.Amount);
            const std::optional<qint64> balance = Cents(row, m_layout.Map.Balance);
            if (fee == 0 || !amount || !balance) {
                continue;
            }
            for (const int next : {row - 1, row + 1}) {
                const std::optional<qint64> other =
                    next < m_layout.FirstRow || next >= m_end ? std::nullopt : Cents(next, m_layout.Map.Balance);
                beside += other && *balance - *other == *amount - fee ? 1 : 0;
                inside += other && *balance - *other == *amount ? 1 : 0;
            }
        }
        return (beside > 0) == (inside > 0) ? std::nullopt : std::optional(beside > 0);
    }

private:
    [[nodiscard]] std::optional<qint64> Cents(int row, int column) const
    {
        return modTableValue::ReadCents(m_table.Cell(row, column), m_number);
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    int m_end;
    eNumberFormat m_number;
};

} // namespace

void modTableFee::Decide(const cTable& table, cTableLayout& layout)
{
    cColumnMap& map = layout.Map;
    const bool isChosen = layout.Origin == eMapOrigin::User || layout.Origin == eMapOrigin::Memory;
    if (isChosen || map.Amount < 0 || modCell::MatchesList(map.Names.value(map.Amount), netWords)) {
        return;
    }
    int column = map.Fee;
    for (int i = 0; column < 0 && layout.Origin != eMapOrigin::Profile && i < map.Names.size(); ++i) {
        column = modCell::MatchesList(map.Names.at(i), feeWords) ? i : -1;
    }
    cFees fees(table, layout);
    if (column < 0 || !fees.IsFee(column)) {
        return;
    }
    const std::optional<bool> isBeside = fees.IsBeside(column);
    if (isBeside) {
        map.Fee = *isBeside ? column : -1;
    } else if (map.Fee < 0) {
        layout.Notes.append({0,
                             cText::Tr("Ob die Gebühren in der Spalte \"{0}\" schon im Betrag enthalten sind, sagt die "
                                       "Datei nicht. Sie wurden nicht abgezogen.",
                                       {map.Names.at(column)})});
    }
}
