#include "import/table/modTableMend.h"

#include "base/cText.h"
#include "base/modChar.h"
#include "import/cell/modTableValue.h"
#include "import/table/modTableAbove.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostShift = 3; // fields that a row may lack or have too many

// "-30;98"
bool IsSemicolonNumber(QStringView cell)
{
    const qsizetype sign = cell.indexOf(u';');
    if (sign < 1 || cell.size() - sign < 2) {
        return false;
    }
    QStringView whole = cell.left(sign);
    if (whole.startsWith(u'-') || whole.startsWith(u'+')) {
        whole = whole.mid(1);
    }
    const QStringView decimals = cell.mid(sign + 1);
    return !whole.isEmpty() && decimals.size() <= 2 && modChar::AreDigits(whole) && modChar::AreDigits(decimals);
}

// "1,23457E+21"
bool IsExponent(QStringView cell)
{
    const qsizetype sign = cell.indexOf(u'+') - 1;
    return sign > 0 && (cell[sign] == u'E' || cell[sign] == u'e') && modChar::IsDigit(cell.front())
        && modChar::IsDigit(cell.back()) && std::all_of(cell.begin(), cell.begin() + sign, [](QChar c) {
               return modChar::IsDigit(c) || c == u',' || c == u'.';
           });
}

class cMender
{
public:
    cMender(const cTable& table, const cTableLayout& layout)
        : m_table(table),
          m_layout(layout),
          m_map(layout.Map),
          m_names(static_cast<int>(layout.Map.Names.size())),
          m_end(layout.EndRow < 0 ? table.RowCount() : layout.EndRow)
    {
        for (const int column : {m_map.Amount, m_map.Debit, m_map.Credit}) {
            if (column >= 0) {
                m_sides.append(column);
            }
        }
        m_hasSemicolons = HasSemicolons();
        m_own = MostlyOwn();
    }

    [[nodiscard]] std::optional<modTableMend::cMended> Run()
    {
        bool isBroken = m_hasSemicolons;
        for (int row = m_layout.FirstRow; !isBroken && row < m_end; ++row) {
            isBroken = ShiftOf(row) != 0 || IsContinued(row) || HasBrokenNumber(row);
        }
        if (!isBroken) {
            return std::nullopt;
        }
        for (int row = 0; row < m_table.RowCount(); ++row) {
            Take(row);
        }
        FlushRow();
        m_mended.Table.SetOpenEnded(m_table.IsOpenEnded());
        Tell();
        return std::move(m_mended);
    }

private:
    // Only where no amount has a comma: what was saved by a spreadsheet has lost all of them.
    [[nodiscard]] bool HasSemicolons() const
    {
        bool hasOne = false;
        for (int row = m_layout.FirstRow; row < m_end; ++row) {
            for (const int column : m_sides) {
                const QStringView cell = m_table.Cell(row, column);
                if (cell.contains(u',')) {
                    return false;
                }
                hasOne = hasOne || IsSemicolonNumber(cell);
            }
        }
        return hasOne;
    }

    // The own account of nearly all rows; empty when there is none.
    [[nodiscard]] QString MostlyOwn() const
    {
        QHash<QString, int> counts;
        int rows = 0;
        QStringView last; // of a run of equal cells
        auto place = counts.end();
        for (int row = m_layout.FirstRow; m_map.OwnAccount >= 0 && row < m_end; ++row) {
            const QStringView cell = m_table.Cell(row, m_map.OwnAccount);
            if (cell.isEmpty()) {
                continue;
            }
            if (place == counts.end() || cell != last) {
                last = cell;
                const QString number = modTableAbove::OwnNumber(cell);
                place = counts.insert(number, counts.value(number));
            }
            ++place.value();
            ++rows;
        }
        const auto most = std::max_element(counts.cbegin(), counts.cend());
        return most != counts.cend() && most.value() > 1 && most.value() * 4 >= rows * 3 ? most.key() : QString();
    }

    // The own account with a digit too many or too few.
    [[nodiscard]] bool IsMistyped(QStringView cell) const
    {
        constexpr qsizetype shortest = 10;
        if (m_own.isEmpty() || cell.isEmpty() || cell == m_own) {
            return false;
        }
        const QString typed = modTableAbove::OwnNumber(cell);
        return typed.size() != m_own.size() && qMin(typed.size(), m_own.size()) >= shortest
            && (typed.startsWith(m_own) || m_own.startsWith(typed));
    }

    [[nodiscard]] bool HasBrokenNumber(int row) const
    {
        return IsExponent(m_table.Cell(row, m_map.Account)) || IsExponent(m_table.Cell(row, m_map.OwnAccount))
            || IsMistyped(m_table.Cell(row, m_map.OwnAccount));
    }

    // An amount where it should be, and a currency beside it where that has a column.
    [[nodiscard]] bool HasAmount(int row, int shift) const
    {
        const auto isNumber = [&](int column) {
            const QStringView cell = m_table.Cell(row, column + shift);
            return !cell.isEmpty() && modTableValue::ReadCents(cell, eNumberFormat::Detect).has_value();
        };
        const QStringView currency = m_map.Currency < 0 ? QStringView() : m_table.Cell(row, m_map.Currency + shift);
        return std::any_of(m_sides.begin(), m_sides.end(), isNumber)
            && (currency.isEmpty() || modChar::IsCurrencyCode(currency));
    }

    // How far the amounts of a row stand to the right of where they should be; 0 for a row that is in order.
    [[nodiscard]] int ShiftOf(int row) const
    {
        const int shift = m_table.CellCount(row) - m_names;
        const bool canMove = m_layout.HeaderRow >= 0 && shift != 0 && qAbs(shift) <= mostShift
            && FirstNumber() > m_map.Date && FirstNumber() + shift > m_map.Date;
        return canMove && !HasAmount(row, 0) && HasAmount(row, shift)
                && modTableValue::ReadDate(m_table.Cell(row, m_map.Date), m_layout.Date).isValid()
            ? shift
            : 0;
    }

    [[nodiscard]] int FirstNumber() const
    {
        int first = m_names;
        for (const int column : m_sides) {
            first = qMin(first, column);
        }
        return first;
    }

    // The last text in front of the amounts, where a field is missing or was cut in two.
    [[nodiscard]] int LastText() const
    {
        int last = -1;
        for (const int column : {m_map.Purpose[0], m_map.Purpose[1], m_map.Purpose[2], m_map.Name, m_map.Text}) {
            last = column < FirstNumber() ? qMax(last, column) : last;
        }
        return last < 0 ? FirstNumber() - 1 : last;
    }

    // A row with nothing but texts, which belong to the booking above.
    [[nodiscard]] bool IsContinued(int row) const
    {
        if (m_layout.HeaderRow < 0 || row <= m_layout.FirstRow || m_table.CellCount(row) < 3) {
            return false;
        }
        bool hasText = false;
        for (int column = 0; column < m_table.CellCount(row); ++column) {
            const bool isText = IsPurpose(column) || column == m_map.Name;
            if (!isText && !m_table.Cell(row, column).isEmpty()) {
                return false;
            }
            hasText = hasText || (isText && !m_table.Cell(row, column).isEmpty());
        }
        return hasText;
    }

    [[nodiscard]] bool IsPurpose(int column) const
    {
        return std::find(m_map.Purpose.begin(), m_map.Purpose.end(), column) != m_map.Purpose.end();
    }

    void Take(int row)
    {
        if (row >= m_layout.FirstRow && row < m_end && !m_cells.isEmpty() && m_hasDay && IsContinued(row)) {
            ++m_continued;
            for (int column = 0; column < qMin(m_table.CellCount(row), static_cast<int>(m_cells.size())); ++column) {
                m_cells[column] = QString(m_cells.at(column) + u' ' + m_table.Cell(row, column)).trimmed();
            }
            return;
        }
        FlushRow();
        m_line = m_table.Line(row);
        m_cells = m_table.Row(row);
        if (row < m_layout.FirstRow || row >= m_end) {
            return;
        }
        if (const int shift = ShiftOf(row); shift != 0) {
            Move(shift);
        }
        MendCells();
        m_hasDay = modTableValue::ReadDate(m_cells.value(m_map.Date), m_layout.Date).isValid();
    }

    void Move(int shift)
    {
        const int last = LastText();
        const QString start = m_cells.join(u';').left(60);
        if (shift < 0) {
            m_cells.insert(qMax(0, last + shift), -shift, QString());
            m_mended.Notes.append(
                {m_line, cText::Tr("Der Zeile fehlt ein Feld; Name und Zweck können vertauscht sein: {0}", {start})});
            return;
        }
        const QStringList text = m_cells.mid(last, shift + 1);
        m_cells.remove(last, shift);
        m_cells[last] = text.join(u' ').simplified();
        m_mended.Notes.append(
            {m_line, cText::Tr("Die Zeile hat ein Feld zu viel; Name und Zweck können vertauscht sein: {0}", {start})});
    }

    void MendCells()
    {
        for (const int column : {m_map.Amount, m_map.Debit, m_map.Credit, m_map.Balance, m_map.Fee}) {
            if (m_hasSemicolons && column >= 0 && column < m_cells.size() && IsSemicolonNumber(m_cells.at(column))) {
                m_cells[column].replace(u';', u',');
            }
        }
        for (const int column : {m_map.Account, m_map.OwnAccount}) {
            if (column >= 0 && column < m_cells.size() && IsExponent(m_cells.at(column))) {
                m_cells[column].clear();
                ++m_lost;
            }
        }
        if (m_map.OwnAccount >= 0 && IsMistyped(m_cells.value(m_map.OwnAccount))) {
            m_mended.Notes.append({m_line,
                                   cText::Tr("Die Kontonummer weicht ab und wurde als {0} gelesen: {1}",
                                             {m_own, m_cells.at(m_map.OwnAccount).left(40)})});
            m_cells[m_map.OwnAccount] = m_own;
        }
    }

    void FlushRow()
    {
        if (m_line == 0) {
            return;
        }
        m_mended.Table.AddRow(m_line);
        for (const QString& cell : std::as_const(m_cells)) {
            m_mended.Table.AddCell(cell);
        }
    }

    void Tell()
    {
        if (m_hasSemicolons) {
            m_mended.Notes.prepend({0,
                                    cText::Tr("In den Beträgen steht ein Semikolon statt des Kommas, vermutlich nach "
                                              "dem Speichern mit einer Tabellenkalkulation. Es wurde als Komma "
                                              "gelesen.")});
        }
        if (m_lost > 0) {
            m_mended.Notes.prepend({0,
                                    cText::Tr("Zeilen, deren Kontonummer verloren ist, weil eine Tabellenkalkulation "
                                              "sie als Zahl gespeichert hat (1,23E+21): {0}",
                                              {QString::number(m_lost)})});
        }
        if (m_continued > 0) {
            m_mended.Notes.prepend(
                {0,
                 cText::Tr("Zeilen ohne Tag und Betrag, deren Text an die Zeile darüber gehängt wurde: {0}",
                           {QString::number(m_continued)})});
        }
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    const cColumnMap& m_map;
    int m_names;
    int m_end; // the row behind the last one of the layout
    QList<int> m_sides;
    bool m_hasSemicolons = false;
    QString m_own;
    modTableMend::cMended m_mended;
    QStringList m_cells; // of the row at hand
    int m_line = 0;
    bool m_hasDay = false;
    int m_lost = 0;
    int m_continued = 0;
};

} // namespace

std::optional<modTableMend::cMended> modTableMend::Mend(const cTable& table, const cTableLayout& layout)
{
    return layout.IsReadable() ? cMender(table, layout).Run() : std::nullopt;
}

QString modTableMend::WithoutLineQuotes(const QString& text)
{
    QStringList lines = text.split(u'\n');
    int quoted = 0;
    for (QString& line : lines) {
        line = line.trimmed();
        QStringView whole(line);
        while (whole.endsWith(u';') || whole.endsWith(u',')) {
            whole.chop(1); // empty columns that the spreadsheet added
        }
        if (whole.isEmpty()) {
            continue;
        }
        const bool isWhole = whole.size() > 2 && whole.startsWith(u'"') && whole.endsWith(u'"')
            && whole.mid(1, whole.size() - 2).toString().remove(u"\"\""_s).count(u'"') == 0;
        if (!isWhole) {
            return {};
        }
        ++quoted;
        line = whole.mid(1, whole.size() - 2).toString().replace(u"\"\""_s, u"\""_s);
    }
    return quoted > 1 ? lines.join(u'\n') : QString();
}
