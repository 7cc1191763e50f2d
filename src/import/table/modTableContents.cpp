#include "import/table/modTableContents.h"

#include "base/modAmount.h"
#include "import/table/cTable.h"
#include "import/table/modCell.h"
#include "import/table/modTableValue.h"

#include <QList>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int surveyedRows = 200;
constexpr int mostColumns = 100;

// Words for columns beyond the vocabulary of the header, for layouts that nobody has described yet.
constexpr QStringView currencyWords = u"*Währung|*Waehrung|Currency|Whg|Whg.";
constexpr QStringView foreignWords = u"*Fremd*|*Origin*|*Foreign*|*Urspr*|*Gebühr*|*Fee*|*Steuer*";
constexpr QStringView amountWords = u"*Betrag*|*Amount*|Umsatz*|Bedrag*|Netto";
constexpr QStringView debitWords = u"*Debit*|Money out|Paid out|*Belastung*|*Lastschrift*|Soll*|Abgang|Ausgabe*";
constexpr QStringView creditWords = u"*Credit*|Money in|Paid in|*Gutschrift*|Haben*|Zugang|Einnahme*";
constexpr QStringView balanceWords = u"*Saldo*|*Balance*|*Kontostand*|Guthaben";
constexpr QStringView ownWords = u"*Auftragskonto*|*Kontoinhaber*|*Auftraggeberkonto*|Account No|Account No.|"
                                 u"Eigenes Konto|*Own account*|Eigene IBAN|Konto|IBAN Konto*";
constexpr QStringView bankCodeWords = u"*BIC*|*SWIFT*|BLZ*|*Bankleitzahl*";
constexpr QStringView accountWords = u"*IBAN*|Account number|*Gegenkonto*|*Kontonummer*|*Konto-Nr*";
constexpr QStringView nameWords =
    u"Payee|Beneficiary|*Merchant*Name*|*Beguenstigte*|*Zahlungsbeteiligte*|Counterparty*|"
    u"Gegenpartei|Name*|*Empfänger*|*Auftraggeber*|Händler*|Partner*";
constexpr QStringView purposeWords =
    u"Payment reference|*Notification*|Reference|Memo|Description|Purpose|Betreff|Text|"
    u"*Verwendungszweck*|Details|*Buchungsinfo*";
constexpr QStringView statusWords = u"*Status|Info|State*";

// What the cells of a column look like.
struct cFacts
{
    int Filled = 0;
    int Dates = 0;
    int Amounts = 0;
    int Wholes = 0; // numbers without decimals
    int Signed = 0;
    int Ibans = 0;
    int Numbers = 0; // account numbers: five or more digits and nothing else
    int Codes = 0;   // three capitals
    int Indicators = 0;
    qsizetype Letters = 0;
    bool IsConstant = true;
    QString First;

    [[nodiscard]] bool IsAll(int count) const { return Filled > 0 && count == Filled; }
    [[nodiscard]] bool IsAccount() const { return IsAll(Ibans + Numbers); }
};

bool IsAll(QStringView cell, auto isFit)
{
    return std::all_of(cell.begin(), cell.end(), isFit);
}

void Look(QStringView cell, cFacts& facts)
{
    if (cell.isEmpty()) {
        return;
    }
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    facts.IsConstant = facts.IsConstant && (facts.Filled == 0 || cell == facts.First);
    if (facts.Filled++ == 0) {
        facts.First = cell.toString();
    }
    const bool isDate = modTableValue::IsDate(cell);
    const bool isAmount = !isDate && modTableValue::IsAmount(cell);
    facts.Dates += isDate ? 1 : 0;
    facts.Amounts += isAmount ? 1 : 0;
    facts.Wholes += !isDate && !isAmount && modAmount::TryReadGerman(cell).has_value() ? 1 : 0;
    facts.Signed += isAmount && (cell.contains(u'-') || cell.contains(u'+') || cell.contains(u'\u2212')) ? 1 : 0;
    facts.Ibans += modTableValue::IsIban(cell) ? 1 : 0;
    facts.Numbers += cell.size() >= 5 && IsAll(cell, isDigit) ? 1 : 0;
    facts.Codes += cell.size() == 3 && IsAll(cell, [](QChar c) { return c >= u'A' && c <= u'Z'; }) ? 1 : 0;
    facts.Indicators += modTableValue::IndicatorSign(cell) != 0 ? 1 : 0;
    facts.Letters += std::count_if(cell.begin(), cell.end(), [](QChar c) { return c.isLetter(); });
}

class cCompletion
{
public:
    cCompletion(const cTable& table, cTableLayout& layout) : m_table(table), m_layout(layout), m_map(layout.Map)
    {
        const int end = qMin(table.RowCount(), layout.FirstRow + surveyedRows);
        int columns = m_map.ColumnCount;
        for (int row = layout.FirstRow; row < end; ++row) {
            columns = qMin(qMax(columns, table.CellCount(row)), mostColumns);
        }
        m_facts.resize(columns);
        m_map.ColumnCount = qMax(m_map.ColumnCount, columns);
        for (int row = layout.FirstRow; row < end; ++row) {
            LookAtRow(row);
        }
    }

    void Run()
    {
        CompleteDate();
        DecideDateOrder();
        MoveOwnAccounts();
        CompleteAmount();
        CompleteIndicator();
        CompleteByName();
        CompleteParty();
        CompletePurpose();
    }

private:
    void LookAtRow(int row)
    {
        if (m_table.CellCount(row) < 2) {
            return;
        }
        ++m_rows;
        for (int column = 0; column < m_facts.size(); ++column) {
            Look(m_table.Cell(row, column), m_facts[column]);
        }
    }

    // Columns beyond those that were looked at hold nothing.
    [[nodiscard]] const cFacts& Facts(int column) const
    {
        static const cFacts nothing;
        return column < m_facts.size() ? m_facts.at(column) : nothing;
    }

    [[nodiscard]] bool IsNamed(int column, QStringView words) const
    {
        return column < m_map.Names.size() && modCell::MatchesList(m_map.Names.at(column), words);
    }

    [[nodiscard]] bool IsTaken(int column) const
    {
        const QList<int> taken{m_map.Date,      m_map.Text,       m_map.Purpose[0],  m_map.Purpose[1], m_map.Purpose[2],
                               m_map.Name,      m_map.Account,    m_map.BankCode,    m_map.Name2,      m_map.Account2,
                               m_map.BankCode2, m_map.Amount,     m_map.Credit,      m_map.Debit,      m_map.Currency,
                               m_map.Indicator, m_map.OwnAccount, m_map.OwnBankCode, m_map.Status,     m_map.Balance};
        return taken.contains(column);
    }

    // The first column that fits; -1 when none does.
    [[nodiscard]] int First(auto isFit) const
    {
        for (int column = 0; column < m_facts.size(); ++column) {
            if (isFit(column)) {
                return column;
            }
        }
        return -1;
    }

    void SetFirst(int& target, auto isFit)
    {
        if (target < 0) {
            target = First([&](int column) { return !IsTaken(column) && isFit(column); });
        }
    }

    void CompleteDate()
    {
        if (m_map.Date >= 0 && (Facts(m_map.Date).Dates > 0 || m_rows == 0)) {
            return;
        }
        const int found = First([&](int column) {
            const cFacts& facts = Facts(column);
            return facts.Dates > 0 && facts.Dates * 2 >= facts.Filled && facts.Filled * 2 >= m_rows;
        });
        m_map.Date = found < 0 ? m_map.Date : found;
    }

    // A part above 12 that cannot be the month decides for all rows.
    void DecideDateOrder()
    {
        const int end = qMin(m_table.RowCount(), m_layout.FirstRow + surveyedRows);
        bool isOther = false;
        for (int row = m_layout.FirstRow; row < end; ++row) {
            const QStringView cell = m_table.Cell(row, m_map.Date);
            if (!modTableValue::IsDate(cell)) {
                continue;
            }
            if (!modTableValue::ReadDate(cell, eDateOrder::MonthDayYear).isValid()) {
                return;
            }
            isOther = isOther || !modTableValue::ReadDate(cell).isValid();
        }
        m_layout.Date = isOther ? eDateOrder::MonthDayYear : m_layout.Date;
    }

    // The owner's own number is not the other side's, whatever the header calls it.
    void MoveOwnAccounts()
    {
        if (m_map.Name >= 0 && Facts(m_map.Name).IsAccount()) {
            SetOwn(m_map.Name);
            m_map.Name = -1;
        }
        if (m_map.Account2 >= 0 && Facts(m_map.Account2).IsAccount() && Facts(m_map.Account2).IsConstant) {
            SetOwn(m_map.Account2);
        }
        if (m_map.Account >= 0 && Facts(m_map.Account).IsAll(m_rows) && Facts(m_map.Account).IsAccount()
            && Facts(m_map.Account).IsConstant && (m_rows > 1 || m_map.Account < m_map.Date)) {
            SetOwn(m_map.Account);
            m_map.Account = -1;
        }
        SetFirst(m_map.OwnAccount, [&](int column) { return IsNamed(column, ownWords) && Facts(column).IsAccount(); });
        const bool isNameless = m_map.Names.isEmpty();
        SetFirst(m_map.OwnAccount, [&](int column) {
            const cFacts& facts = Facts(column);
            return isNameless && m_rows > 1 && facts.IsConstant && facts.IsAccount() && facts.Filled == m_rows;
        });
    }

    void SetOwn(int column)
    {
        if (m_map.OwnAccount < 0 || (Facts(column).Ibans > 0 && Facts(m_map.OwnAccount).Ibans == 0)) {
            m_map.OwnAccount = column;
        }
    }

    [[nodiscard]] bool IsBalance(int column) const { return IsNamed(column, balanceWords); }

    [[nodiscard]] bool IsForeign(int column) const { return IsNamed(column, foreignWords); }

    void CompleteAmount()
    {
        // Whole numbers alone ("12") are an amount when the header says so.
        const auto isNumeric = [&](int column) { return Facts(column).Amounts > 0 || Facts(column).Wholes > 0; };
        if (m_map.Amount >= 0 && (IsForeign(m_map.Amount) || !isNumeric(m_map.Amount))) {
            const int better = First([&](int column) {
                return IsNamed(column, amountWords) && !IsForeign(column) && !IsBalance(column)
                    && Facts(column).Amounts > 0;
            });
            m_map.Amount = better < 0 ? m_map.Amount : better;
            ReplaceMisnamedAmount();
        }
        if (m_map.Amount >= 0) {
            return;
        }
        const auto canBeSide = [&](int column) {
            return !IsBalance(column) && Facts(column).Amounts + Facts(column).Wholes == Facts(column).Filled;
        };
        SetFirst(m_map.Debit, [&](int column) { return IsNamed(column, debitWords) && canBeSide(column); });
        SetFirst(m_map.Credit, [&](int column) { return IsNamed(column, creditWords) && canBeSide(column); });
        if (m_map.Debit < 0 || m_map.Credit < 0) {
            GuessAmount();
        }
    }

    // "Umsatz vom" is named like an amount and holds days.
    void ReplaceMisnamedAmount()
    {
        if (Facts(m_map.Amount).Dates == 0) {
            return;
        }
        const int misnamed = std::exchange(m_map.Amount, -1);
        GuessAmount();
        if (m_map.Amount < 0 && m_map.Debit < 0) {
            m_map.Amount = misnamed;
        }
        m_layout.Origin = eMapOrigin::Contents;
    }

    [[nodiscard]] bool IsAmountColumn(int column) const
    {
        return Facts(column).IsAll(Facts(column).Amounts) && !IsBalance(column) && !IsForeign(column);
    }

    void GuessAmount()
    {
        const int found = First([&](int column) {
            return IsAmountColumn(column) && Facts(column).Filled == m_rows && Facts(column).Signed > 0;
        });
        if (found < 0 && TakePair()) {
            return;
        }
        const int unsignedOne =
            First([&](int column) { return IsAmountColumn(column) && Facts(column).Filled == m_rows; });
        const int any = First([&](int column) { return IsAmountColumn(column); });
        m_map.Amount = found >= 0 ? found : (unsignedOne >= 0 ? unsignedOne : any);
        if (m_map.Amount >= 0) {
            m_map.Debit = -1;
            m_map.Credit = -1;
        }
    }

    // Two columns of which every row fills one: what goes out and what comes in.
    bool TakePair()
    {
        for (int first = 0; first < m_facts.size(); ++first) {
            for (int second = first + 1; second < m_facts.size(); ++second) {
                if (IsPair(first, second)) {
                    const bool isTurned =
                        Facts(first).Signed < Facts(first).Filled && Facts(second).First.startsWith(u'-');
                    m_map.Debit = isTurned ? second : first;
                    m_map.Credit = isTurned ? first : second;
                    return true;
                }
            }
        }
        return false;
    }

    [[nodiscard]] bool IsPair(int first, int second) const
    {
        if (!IsAmountColumn(first) || !IsAmountColumn(second) || Facts(first).Filled + Facts(second).Filled != m_rows) {
            return false;
        }
        const int end = qMin(m_table.RowCount(), m_layout.FirstRow + surveyedRows);
        for (int row = m_layout.FirstRow; row < end; ++row) {
            if (!m_table.Cell(row, first).isEmpty() && !m_table.Cell(row, second).isEmpty()) {
                return false;
            }
        }
        return true;
    }

    void CompleteIndicator()
    {
        if (m_map.Amount < 0 || Facts(m_map.Amount).Signed > 0) {
            return;
        }
        SetFirst(m_map.Indicator, [&](int column) {
            return Facts(column).IsAll(Facts(column).Indicators) && Facts(column).Filled * 2 > m_rows;
        });
    }

    void CompleteByName()
    {
        SetFirst(m_map.Currency, [&](int column) {
            return IsNamed(column, currencyWords) && !IsForeign(column) && Facts(column).IsAll(Facts(column).Codes);
        });
        SetFirst(m_map.Balance, [&](int column) { return IsBalance(column) && Facts(column).Amounts > 0; });
        SetFirst(m_map.Status, [&](int column) { return IsNamed(column, statusWords); });
        if (m_map.Names.isEmpty()) {
            SetFirst(m_map.Currency, [&](int column) {
                return Facts(column).IsAll(Facts(column).Codes) && Facts(column).Filled == m_rows && column >= 2;
            });
        }
    }

    void CompleteParty()
    {
        const auto isOther = [&](int column) { return !IsNamed(column, ownWords); };
        SetFirst(m_map.Account, [&](int column) {
            return Facts(column).Ibans > 0 && isOther(column)
                && (m_map.Names.isEmpty() || IsNamed(column, accountWords));
        });
        SetFirst(m_map.BankCode, [&](int column) { return IsNamed(column, bankCodeWords) && isOther(column); });
        SetFirst(m_map.Name, [&](int column) {
            return IsNamed(column, nameWords) && isOther(column) && Facts(column).Letters > 0
                && !Facts(column).IsAccount();
        });
    }

    void CompletePurpose()
    {
        SetFirst(m_map.Purpose[0],
                 [&](int column) { return IsNamed(column, purposeWords) && Facts(column).Letters > 0; });
        if (m_map.Purpose[0] >= 0) {
            return;
        }
        int longest = -1;
        for (int column = 0; column < m_facts.size(); ++column) {
            if (!IsTaken(column) && Facts(column).Letters > (longest < 0 ? 0 : Facts(longest).Letters)) {
                longest = column;
            }
        }
        m_map.Purpose[0] = longest;
    }

    const cTable& m_table;
    cTableLayout& m_layout;
    cColumnMap& m_map;
    QList<cFacts> m_facts;
    int m_rows = 0;
};

// "EUR" in "Betrag (EUR)", "Umsatz in EUR", "Betrag (€)".
QString CurrencyIn(const QString& name)
{
    if (name.contains(u'€')) {
        return u"EUR"_s;
    }
    for (const QStringView word : QStringView(name).split(u' ')) {
        const QStringView code = word.startsWith(u'(') && word.endsWith(u')') ? word.mid(1, word.size() - 2) : word;
        if (code.size() == 3 && IsAll(code, [](QChar c) { return c >= u'A' && c <= u'Z'; })) {
            return code.toString();
        }
    }
    return {};
}

} // namespace

void modTableContents::Complete(const cTable& table, cTableLayout& layout)
{
    cCompletion(table, layout).Run();
}

void modTableContents::CompleteCurrency(cTableLayout& layout)
{
    const cColumnMap& map = layout.Map;
    for (const int column : {map.Amount, map.Debit, map.Credit}) {
        if (layout.Currency.isEmpty() && map.Currency < 0 && column >= 0 && column < map.Names.size()) {
            layout.Currency = CurrencyIn(map.Names.at(column));
        }
    }
}
