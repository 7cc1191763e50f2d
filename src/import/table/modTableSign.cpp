#include "import/table/modTableSign.h"

#include "import/cell/modMoneyWords.h"
#include "import/cell/modTableValue.h"
#include "import/table/cColumnSurvey.h"
#include "import/table/cTable.h"
#include "import/table/modBalanceWords.h"
#include "import/table/modTableRows.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

using modBalanceWords::eBalance;
using cRows = QList<modTableRows::cProbed>;

enum class eVerdict { Open, AsRead, Turned };

// How often the balances beside the rows follow from their amounts, as they are read and the other way round.
struct cHits
{
    int AsRead = 0;
    int Turned = 0;

    // One of the two without contradiction worth the name: a stray hit is an amount that comes twice.
    [[nodiscard]] eVerdict Verdict() const
    {
        constexpr int clear = 4;
        if (AsRead > Turned * clear) {
            return eVerdict::AsRead;
        }
        return Turned > AsRead * clear ? eVerdict::Turned : eVerdict::Open;
    }
    [[nodiscard]] int Most() const { return qMax(AsRead, Turned); }
};

cHits Better(const cHits& first, const cHits& second)
{
    return first.Most() >= second.Most() ? first : second;
}

// From each row to the next. `isDown`: the newest row comes first. Some banks tell the balance before the booking: its
// steps are the amounts of the older rows.
cHits StepHits(const cRows& rows, bool isDown)
{
    cHits hits;
    cHits before;
    for (qsizetype i = 1; i < rows.size(); ++i) {
        const modTableRows::cProbed& newer = rows.at(isDown ? i - 1 : i);
        const modTableRows::cProbed& older = rows.at(isDown ? i : i - 1);
        const qint64 value = newer.Entry.ImportValue;
        const qint64 step = *newer.Balance - *older.Balance;
        hits.AsRead += value != 0 && step == value ? 1 : 0;
        hits.Turned += value != 0 && step == -value ? 1 : 0;
        const qint64 earlier = older.Entry.ImportValue;
        before.AsRead += earlier != 0 && step == earlier ? 1 : 0;
        before.Turned += earlier != 0 && step == -earlier ? 1 : 0;
    }
    return Better(hits, before);
}

// Whatever the order of the rows: the balance before a row is that of another one. Without an order nobody can tell
// balances before the booking from amounts the other way round, so only agreement counts.
cHits AnyHits(const cRows& rows)
{
    QSet<qint64> balances;
    for (const modTableRows::cProbed& row : rows) {
        balances.insert(*row.Balance);
    }
    cHits hits;
    for (const modTableRows::cProbed& row : rows) {
        const qint64 value = row.Entry.ImportValue;
        hits.AsRead += value != 0 && balances.contains(*row.Balance - value) ? 1 : 0;
        hits.Turned += value != 0 && balances.contains(*row.Balance + value) ? 1 : 0;
    }
    return hits.Verdict() == eVerdict::AsRead ? hits : cHits();
}

cHits HitsOf(cRows rows)
{
    rows.removeIf([](const modTableRows::cProbed& row) { return !row.Balance; });
    if (rows.size() < 2) {
        return {};
    }
    const QDate first = rows.first().Entry.ImportDate;
    const QDate last = rows.last().Entry.ImportDate;
    const cHits up = first <= last ? StepHits(rows, false) : cHits();
    const cHits down = first >= last ? StepHits(rows, true) : cHits();
    const cHits steps = Better(up, down);
    const bool isSplit = up.Most() == down.Most() && up.Verdict() != down.Verdict();
    return steps.Most() > 0 && !isSplit ? steps : AnyHits(rows);
}

// What the columns of a table are, as its balances prove it.
class cProof
{
public:
    cProof(const cTable& table, cTableLayout& layout) : m_table(table), m_layout(layout), m_survey(table, layout) {}

    // Looks for other columns of amounts and balances only where those that are chosen prove nothing.
    [[nodiscard]] eVerdict Run()
    {
        m_best = HitsOf(modTableRows::Probe(m_table, m_layout, cColumnSurvey::SurveyedRows));
        if (m_best.Verdict() != eVerdict::Open || m_layout.Origin == eMapOrigin::User || m_layout.IsSignOpen) {
            return m_best.Verdict();
        }
        cColumnMap better = m_layout.Map;
        for (int balance = 0; balance < m_survey.Columns(); ++balance) {
            if (CanBeBalance(balance)) {
                TryAmounts(balance, better);
            }
        }
        m_layout.Map = better;
        return m_best.Verdict();
    }

private:
    [[nodiscard]] bool IsMoney(int column) const
    {
        const cColumnFacts& facts = m_survey.Facts(column);
        return facts.IsMoney() && facts.Amounts > 0 && facts.Ibans + facts.Numbers == 0;
    }

    [[nodiscard]] bool CanBeBalance(int column) const
    {
        const bool isNamed = m_survey.IsBalance(column) || column == m_layout.Map.Balance;
        return IsMoney(column) && !m_survey.IsEarlier(column)
            && (isNamed || (m_layout.Map.Balance < 0 && m_survey.IsFull(column))) && !m_survey.IsForeign(column);
    }

    void TryAmounts(int balance, cColumnMap& better)
    {
        const cColumnMap chosen = m_layout.Map;
        Try(chosen, balance, better);
        for (int amount = 0; amount < m_survey.Columns(); ++amount) {
            if (amount != balance && amount != chosen.Amount && IsMoney(amount) && !m_survey.IsBalance(amount)) {
                cColumnMap map = chosen;
                map.Amount = amount;
                map.Debit = -1;
                map.Credit = -1;
                Try(map, balance, better);
            }
        }
    }

    void Try(cColumnMap map, int balance, cColumnMap& better)
    {
        if (map.Amount == balance || map.Debit == balance || map.Credit == balance) {
            return;
        }
        map.Balance = balance;
        cTableLayout layout = m_layout;
        layout.Map = map;
        const cRows rows = modTableRows::Probe(m_table, layout, cColumnSurvey::SurveyedRows);
        const cHits hits = HitsOf(rows);
        const bool isEnough =
            hits.Verdict() != eVerdict::Open && hits.Most() >= 2 && qsizetype{2} * hits.Most() >= rows.size();
        if (isEnough && hits.Most() > m_best.Most()) {
            m_best = hits;
            better = map;
        }
    }

    const cTable& m_table;
    cTableLayout& m_layout;
    cColumnSurvey m_survey;
    cHits m_best;
};

// The first and the last balance that lines of the file tell, beside the sum of all rows.
class cTotal
{
public:
    cTotal(const cTable& table, const cTableLayout& layout) : m_table(table), m_layout(layout) {}

    [[nodiscard]] eVerdict Run()
    {
        constexpr int mostRows = 5000;
        if (m_table.RowCount() > mostRows) {
            return eVerdict::Open;
        }
        for (int row = 0; row < m_table.RowCount(); ++row) {
            Look(row);
        }
        if (!m_opening || !m_closing || *m_opening == *m_closing) {
            return eVerdict::Open;
        }
        qint64 sum = 0;
        for (const modTableRows::cProbed& row : modTableRows::Probe(m_table, m_layout, mostRows)) {
            sum += row.Entry.ImportValue;
        }
        const qint64 difference = *m_closing - *m_opening;
        return difference == sum ? eVerdict::AsRead : (difference == -sum ? eVerdict::Turned : eVerdict::Open);
    }

private:
    void Look(int row)
    {
        for (int column = 0; column < qMin(m_table.CellCount(row), cTable::mostColumns); ++column) {
            const QStringView cell = m_table.Cell(row, column);
            if (cell.size() < 8 || cell.size() > 60 || row == m_layout.HeaderRow) {
                continue;
            }
            const eBalance balance = modBalanceWords::OfLabel(cell);
            if (balance == eBalance::Opening || balance == eBalance::Closing) {
                (balance == eBalance::Opening ? m_opening : m_closing) = AmountBehind(row, column);
                return;
            }
        }
    }

    [[nodiscard]] std::optional<qint64> AmountBehind(int row, int column) const
    {
        for (int next = column + 1; next < m_table.CellCount(row); ++next) {
            const QStringView cell = m_table.Cell(row, next);
            const auto cents =
                modTableValue::IsDate(cell) ? std::nullopt : modTableValue::ReadCents(cell, eNumberFormat::Detect);
            if (cents) {
                return cents;
            }
        }
        return std::nullopt;
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    std::optional<qint64> m_opening;
    std::optional<qint64> m_closing;
};

// How the amounts are distributed, and what the words of the rows say about them.
class cRowWords
{
public:
    cRowWords(const cTable& table, const cTableLayout& layout, const cRows& rows)
        : m_table(table),
          m_layout(layout),
          m_rows(rows)
    {
        m_isOfCard = std::any_of(layout.Map.Names.begin(), layout.Map.Names.end(), modMoneyWords::IsOfCard);
        for (const modTableRows::cProbed& row : rows) {
            m_in += row.Entry.ImportValue > 0 ? 1 : 0;
            m_out += row.Entry.ImportValue < 0 ? 1 : 0;
        }
    }

    [[nodiscard]] eVerdict Run()
    {
        for (const modTableRows::cProbed& row : m_rows) {
            Count(row);
        }
        return IsStriking() ? Verdict() : eVerdict::AsRead;
    }

    // Whether it is the words that say so, in more than a single row: else the verdict is no more than the usual one.
    [[nodiscard]] bool Prove(eVerdict verdict) const
    {
        return (verdict == eVerdict::AsRead && m_for > 1 && m_for > m_against * clear)
            || (verdict == eVerdict::Turned && m_against > 1);
    }

private:
    static constexpr int clear = 5; // times as many words

    [[nodiscard]] bool IsIndicated() const { return m_layout.Map.Indicator >= 0; }

    // Amounts without a single sign: nothing says which way they count.
    [[nodiscard]] bool IsUnsigned() const { return m_out == 0 && !HasPlus() && !IsIndicated() && !HasSides(); }

    [[nodiscard]] bool HasSides() const { return m_layout.Map.Amount < 0; }

    [[nodiscard]] bool HasPlus() const
    {
        return std::any_of(m_rows.begin(), m_rows.end(), [&](const modTableRows::cProbed& row) {
            return m_table.Cell(row.Row, m_layout.Map.Amount).contains(u'+');
        });
    }

    // Who spends from an account has more rows that go out; on a card something else needs a reason.
    [[nodiscard]] bool IsStriking() const
    {
        if (IsIndicated() && m_in > 0 && m_out > 0) {
            return false;
        }
        if (HasSides() && !m_layout.IsSideGuess) {
            return false;
        }
        return m_layout.IsSideGuess || IsUnsigned() || m_in >= m_out || (m_isOfCard && (m_in > 0 || m_out == 1));
    }

    void Count(const modTableRows::cProbed& row)
    {
        int sign = 0;
        bool isMixed = false;
        bool isStrong = false;
        for (int column = 0; column < m_table.CellCount(row.Row); ++column) {
            const modMoneyWords::cVote vote = column == m_layout.Map.Indicator
                ? modMoneyWords::cVote()
                : modMoneyWords::Of(m_table.Cell(row.Row, column));
            isMixed = isMixed || (vote.Sign != 0 && sign == -vote.Sign);
            sign = vote.Sign == 0 ? sign : vote.Sign;
            isStrong = isStrong || vote.IsStrong;
        }
        if (isMixed || sign == 0 || row.Entry.ImportValue == 0) {
            return;
        }
        const bool isFor = (row.Entry.ImportValue > 0) == (sign > 0);
        ++(isFor ? m_for : m_against);
        m_strongAgainst += !isFor && isStrong ? 1 : 0;
    }

    [[nodiscard]] eVerdict Verdict() const
    {
        const bool isSuspicious = m_layout.IsSideGuess || IsUnsigned() || (m_isOfCard && m_in > 0);
        if (m_against > m_for * clear) {
            const bool isSure = (isSuspicious && m_against >= 2) || m_strongAgainst >= 2
                || (m_strongAgainst > 0 && (m_isOfCard || m_against >= 3));
            return isSure ? eVerdict::Turned : eVerdict::Open;
        }
        const bool isBackedUp = m_for > m_against * clear && (!IsUnsigned() || qsizetype{2} * m_for >= m_rows.size());
        if (isBackedUp) {
            return eVerdict::AsRead;
        }
        const bool isMostlyIn = m_in >= 4 && m_in >= m_out * 3;
        return isSuspicious || isMostlyIn ? eVerdict::Open : eVerdict::AsRead;
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    const cRows& m_rows;
    bool m_isOfCard = false;
    int m_in = 0;
    int m_out = 0;
    int m_for = 0;
    int m_against = 0;
    int m_strongAgainst = 0;
};

void Turn(cTableLayout& layout)
{
    const bool hasSides = layout.Map.Amount < 0 && layout.Map.Debit >= 0 && layout.Map.Credit >= 0;
    if (hasSides && layout.Origin != eMapOrigin::User) {
        std::swap(layout.Map.Debit, layout.Map.Credit);
    } else {
        layout.Sign = layout.Sign == eSignRule::Negated ? eSignRule::AsWritten : eSignRule::Negated;
    }
}

// By a booking that a person knows: with a text, and not by chance one of the few that go the other way.
void SetDoubt(const cRows& rows, cTableLayout& layout)
{
    const auto isTelling = [](const modTableRows::cProbed& row) {
        return row.Entry.ImportValue != 0
            && !(row.Entry.ImportBeneficiary.isEmpty() && row.Entry.ImportPurpose.isEmpty());
    };
    const auto found = std::find_if(rows.begin(), rows.end(), isTelling);
    cImportEntry entry = found == rows.end() ? rows.first().Entry : found->Entry;
    cImportEntry turned = entry;
    turned.ImportValue = -entry.ImportValue;
    const bool isNegated = layout.Sign == eSignRule::Negated;
    layout.Doubt = isNegated ? cTableDoubt{turned, entry} : cTableDoubt{entry, turned};
}

} // namespace

void modTableSign::Settle(const cTable& table, cTableLayout& layout)
{
    if (!layout.IsReadable()) {
        return;
    }
    eVerdict verdict = cProof(table, layout).Run();
    const cRows rows = modTableRows::Probe(table, layout, cColumnSurvey::SurveyedRows);
    if (rows.isEmpty()) {
        return;
    }
    bool isProved = verdict != eVerdict::Open;
    if (!isProved) {
        cRowWords words(table, layout, rows);
        verdict = words.Run();
        isProved = words.Prove(verdict);
    }
    const bool hasSign = layout.Map.Amount >= 0; // two sides have none of their own
    if (verdict == eVerdict::Open || (hasSign && !isProved)) {
        const eVerdict total = cTotal(table, layout).Run();
        isProved = total != eVerdict::Open;
        verdict = isProved ? total : verdict;
    }
    layout.IsSignUsual = hasSign && !isProved;
    if (verdict == eVerdict::Turned) {
        Turn(layout);
    } else if (verdict == eVerdict::Open) {
        SetDoubt(rows, layout);
    }
}
