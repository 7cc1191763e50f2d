#include "import/table/modTableRows.h"

#include "base/cText.h"
#include "base/modChar.h"
#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/read/cRepeatedText.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementFile.h"
#include "import/table/cRowBalances.h"
#include "import/table/cTable.h"
#include "import/table/modBalanceWords.h"
#include "import/table/modTableAbove.h"
#include "import/table/modTableDetails.h"
#include "import/table/modTableEnd.h"
#include "import/table/modTablePurpose.h"
#include "import/table/modTableStatus.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate noDate(1001, 1, 1); // what is no date is staged on this day

constexpr std::array<QStringView, 5> totalWords = {u"Summe", u"Gesamt", u"Gesamtsumme", u"Zwischensumme", u"Total"};
constexpr QStringView bookingDayWords = u"Buchungstag|Buchungsdatum|Buchung|Booking date";

bool IsTotalWord(QStringView cell)
{
    return std::any_of(totalWords.begin(), totalWords.end(), [&](QStringView word) {
        return cell.size() == word.size() && cell.compare(word, Qt::CaseInsensitive) == 0;
    });
}

using modBalanceWords::eBalance;
using eState = modTableStatus::eState;

class cRowReader
{
public:
    cRowReader(const cTable& table, const cTableLayout& layout, const QString& account,
               int rows = std::numeric_limits<int>::max())
        : m_table(table),
          m_layout(layout),
          m_map(layout.Map),
          m_account(account),
          m_number(layout.Number),
          m_end(static_cast<int>(qMin<qint64>(table.RowCount(), qint64{layout.FirstRow} + rows))),
          m_purposes(modTablePurpose::Columns(layout.Map))
    {
        if (m_number == eNumberFormat::Detect) {
            DetectNumber();
        }
        m_cut = modTableEnd::Find(table, layout, m_number);
        for (int column = 0; column < m_map.Names.size(); ++column) {
            if (column != m_map.Date && modCell::MatchesList(m_map.Names.at(column), bookingDayWords)) {
                m_bookingDay = column;
            }
        }
        CountColumns();
        const QList<int> texts{m_map.Date,       m_map.Purpose[0], m_map.Purpose[1], m_map.Purpose[2],
                               m_map.Name,       m_map.Payer,      m_map.Name2,      m_map.Account,
                               m_map.OwnAccount, m_map.Amount,     m_map.Debit,      m_map.Credit,
                               m_map.Currency,   m_map.Balance,    m_map.Status,     m_map.OtherName};
        for (int column = 0; column < m_map.ColumnCount; ++column) {
            if (!texts.contains(column) && !m_purposes.contains(column)) {
                m_others.append(column);
            }
        }
    }

    [[nodiscard]] cStatementRead Run(const std::optional<cAccountBalance>& above)
    {
        m_read.Layout = m_layout.Profile;
        m_read.AccountKey = m_layout.AccountKey;
        m_read.Problems += m_layout.Notes;
        m_read.Entries.reserve(m_end - qMin(m_layout.FirstRow, m_end));
        for (m_row = m_layout.FirstRow; m_row < m_end; ++m_row) {
            ReadRow();
        }
        TellUnknownStates();
        TellFees();
        // What stands above a table that was cut off belongs to rows that are missing.
        m_balances.KeepIn(m_read, m_account, m_cut.IsCertain ? std::nullopt : above);
        return std::move(m_read);
    }

    [[nodiscard]] QList<modTableRows::cProbed> Probe()
    {
        QList<modTableRows::cProbed> probed;
        for (m_row = m_layout.FirstRow; m_row < m_end; ++m_row) {
            ReadRow();
            if (!m_read.Entries.isEmpty()) {
                probed.append({m_row, m_read.Entries.takeLast(), BalanceCents()});
            }
        }
        return probed;
    }

private:
    [[nodiscard]] QStringView Cell(int column) const { return m_table.Cell(m_row, column); }

    void DetectNumber()
    {
        modTableValue::cNumberVote vote;
        for (int row = m_layout.FirstRow; row < m_end; ++row) {
            for (const int column : {m_map.Amount, m_map.Debit, m_map.Credit}) {
                vote.Add(m_table.Cell(row, column));
            }
        }
        m_number = vote.Decide();
        if (!vote.IsDoubtful()) {
            return;
        }
        // Who separates columns by commas has the point for decimals.
        m_number = m_layout.Separator == u',' ? eNumberFormat::English : m_number;
        m_read.Problems.append({0,
                                m_number == eNumberFormat::English
                                    ? cText::Tr("Der Punkt in den Beträgen wurde als Dezimalpunkt gelesen.")
                                    : cText::Tr("Der Punkt in den Beträgen wurde als Tausenderpunkt gelesen.")});
    }

    // A separator inside of a field moves all that stands behind it. Where every row has more fields than there are
    // names, or the last name is that of a text, nothing is moved.
    void CountColumns()
    {
        constexpr int surveyed = 50;
        const auto names = static_cast<int>(m_map.Names.size());
        const int end = qMin(m_end, m_layout.FirstRow + surveyed);
        int longer = 0;
        for (m_row = m_layout.FirstRow; m_row < end; ++m_row) {
            longer += IsLonger(names) ? 1 : 0;
        }
        const bool isText = m_purposes.contains(names - 1) || m_map.Name == names - 1;
        m_columns = names == 0 || isText || longer * 2 > end - m_layout.FirstRow ? cTable::mostColumns : names;
    }

    [[nodiscard]] bool IsLonger(int columns) const
    {
        for (int column = columns; column < m_table.CellCount(m_row); ++column) {
            if (!Cell(column).isEmpty()) {
                return true;
            }
        }
        return false;
    }

    void ReadRow()
    {
        if (IsBlank() || IsHeaderAgain()) {
            return;
        }
        if (IsBalanceRow()) {
            TakeBalanceRow();
            return;
        }
        if (m_row == m_cut.Row) {
            Skip(eSkipped::CutOff, modStatementFile::CutOff(Start(), m_cut.IsCertain),
                 ToEntry(ValueOf(Cell(m_map.Amount)).value_or(0)));
            m_end = m_row; // what follows are lines of its text
            return;
        }
        if (IsLonger(m_columns)) {
            Skip(eSkipped::Unreadable, cText::Tr("Die Zeile hat mehr Felder als die Tabelle Spalten: {0}", {Start()}));
            return;
        }
        const QStringView amount = Cell(m_map.Amount);
        const bool hasSides = !Cell(m_map.Debit).isEmpty() || !Cell(m_map.Credit).isEmpty();
        if (m_table.CellCount(m_row) <= m_map.Date || (amount.isEmpty() && !hasSides)) {
            Skip(eSkipped::Unreadable, cText::Tr("Die Zeile hat keinen Betrag: {0}", {Start()}));
            return;
        }
        const std::optional<qint64> value = ValueOf(amount);
        cImportEntry entry = ToEntry(value.value_or(0));
        const eState state = State();
        if (IsTotal(entry)) {
            Skip(eSkipped::Balance, cText::Tr("Die Zeile ist eine Summe und kein Umsatz: {0}", {Start()}));
        } else if (state == eState::Void) {
            Skip(eSkipped::Void, cText::Tr("Der Umsatz wurde nicht ausgeführt oder rückgängig gemacht: {0}", {Start()}),
                 entry);
        } else if (state == eState::Pending) {
            Skip(eSkipped::Pending, cText::Tr("Der Umsatz ist noch vorgemerkt: {0}", {Start()}), entry);
        } else if (!entry.ImportDate.isValid() && !modChar::HasDigit(Cell(m_map.Date))) {
            Skip(eSkipped::Unreadable, cText::Tr("Die Zeile hat kein Datum: {0}", {Start()}), entry);
        } else if (!value) {
            Skip(eSkipped::Unreadable, cText::Tr("Der Betrag ist keine Zahl: {0}", {Start()}));
        } else if (!m_layout.OnlyCurrency.isEmpty() && entry.ImportCurrency != m_layout.OnlyCurrency) {
            Skip(eSkipped::OtherCurrency,
                 cText::Tr("Der Umsatz in {0} verändert das Guthaben nicht: {1}",
                           {entry.ImportCurrency.left(10), Start()}),
                 entry);
        } else {
            Take(entry);
        }
    }

    [[nodiscard]] bool IsBlank() const
    {
        for (int column = 0; column < m_table.CellCount(m_row); ++column) {
            if (!Cell(column).isEmpty()) {
                return false;
            }
        }
        return true;
    }

    // Some banks repeat the header on every page.
    [[nodiscard]] bool IsHeaderAgain() const
    {
        return !m_map.Names.isEmpty() && !m_map.Names.first().isEmpty() && Cell(0) == m_map.Names.first()
            && m_table.Row(m_row) == m_map.Names;
    }

    // The beginning of the row, as the user finds it in the file.
    [[nodiscard]] QString Start() const { return m_table.Row(m_row).join(u';').left(60); }

    [[nodiscard]] cReadProblem Problem(const QString& text) const { return {m_table.Line(m_row), text}; }

    void Skip(eSkipped kind, const QString& reason, const cImportEntry& entry = {})
    {
        m_read.Skipped.append({Problem(reason), kind, entry});
    }

    [[nodiscard]] bool HasCell(const auto& isWanted) const
    {
        for (int column = 0; column < m_table.CellCount(m_row); ++column) {
            if (isWanted(Cell(column))) {
                return true;
            }
        }
        return false;
    }

    // A line below the bookings that adds them up. A shop may be called "Total": with a day it must be their sum.
    [[nodiscard]] bool IsTotal(const cImportEntry& entry) const
    {
        return HasCell(IsTotalWord)
            && (!entry.ImportDate.isValid() || (m_read.Entries.size() > 1 && entry.ImportValue == m_sum));
    }

    [[nodiscard]] bool IsBalanceRow() const
    {
        return HasCell([](QStringView cell) {
            return modBalanceWords::OfCell(cell) != eBalance::None
                || cell.compare(u"Turnover", Qt::CaseInsensitive) == 0;
        });
    }

    [[nodiscard]] bool IsClosing() const
    {
        return HasCell([](QStringView cell) {
            const eBalance balance = modBalanceWords::OfCell(cell);
            return balance == eBalance::Closing || balance == eBalance::Present;
        });
    }

    void TakeBalanceRow()
    {
        Skip(eSkipped::Balance, cText::Tr("Die Zeile ist ein Saldo und kein Umsatz: {0}", {Start()}));
        if (IsClosing()) {
            if (const std::optional<qint64> value = BalanceValue()) {
                m_balances.SetClosing(*value, modTableValue::ReadDate(Cell(m_map.Date), m_layout.Date));
            }
        }
    }

    // In the column of amounts, or where the row has one at all.
    [[nodiscard]] std::optional<qint64> BalanceValue() const
    {
        if (!Cell(m_map.Amount).isEmpty()) {
            return ValueOf(Cell(m_map.Amount));
        }
        for (int column = 0; column < m_table.CellCount(m_row); ++column) {
            if (modTableValue::IsAmount(Cell(column))) {
                return modTableValue::ReadCents(Cell(column), m_number);
            }
        }
        return std::nullopt;
    }

    // Cents; empty when the cell is no number.
    [[nodiscard]] std::optional<qint64> ValueOf(QStringView amount) const
    {
        if (amount.isEmpty()) {
            const std::optional<qint64> sides = SidesValue();
            return sides ? std::optional(Signed(*sides) - Fee()) : sides;
        }
        std::optional<qint64> value = modTableValue::ReadCents(amount, m_number);
        if (value && m_map.Indicator >= 0) {
            const int sign = modTableValue::IndicatorSign(Cell(m_map.Indicator));
            value = sign == 0 ? *value : std::abs(*value) * sign;
        }
        return value ? std::optional(Signed(*value) - Fee()) : value;
    }

    // Banks write fees with either sign; they always go out.
    [[nodiscard]] qint64 Fee() const
    {
        return m_map.Fee < 0 ? 0 : std::abs(modTableValue::ReadCents(Cell(m_map.Fee), m_number).value_or(0));
    }

    [[nodiscard]] qint64 Signed(qint64 value) const { return m_layout.Sign == eSignRule::Negated ? -value : value; }

    // Empty when one of the two is no number. A dash or a word stands for nothing.
    [[nodiscard]] std::optional<qint64> SidesValue() const
    {
        const std::optional<qint64> debit = SideSize(m_map.Debit);
        const std::optional<qint64> credit = SideSize(m_map.Credit);
        if (!debit || !credit) {
            return std::nullopt;
        }
        return *debit != 0 ? -*debit : *credit;
    }

    [[nodiscard]] std::optional<qint64> SideSize(int column) const
    {
        const QStringView cell = Cell(column);
        if (!modChar::HasDigit(cell)) {
            return 0;
        }
        const std::optional<qint64> cents = modTableValue::ReadCents(cell, m_number);
        return cents ? std::optional(std::abs(*cents)) : cents;
    }

    [[nodiscard]] cImportEntry ToEntry(qint64 value)
    {
        cImportEntry entry;
        entry.ImportAccount = OwnAccount();
        entry.ImportDate = modTableValue::ReadDate(Cell(m_map.Date), m_layout.Date);
        entry.ImportType = m_type.Of(Cell(m_map.Text));
        entry.ImportPurpose = Purpose();
        entry.ImportBeneficiary = Counterparty(value);
        if (entry.ImportBeneficiary.isEmpty()) {
            entry.ImportBeneficiary = Cell(m_map.OtherName).toString();
        }
        entry.ImportBeneficiaryAccount = CounterAccount(entry.ImportAccount);
        entry.ImportBeneficiaryBLZ = Cell(m_map.BankCode).toString();
        entry.ImportValue = value;
        // Beside "Betrag (EUR)" a column of currencies tells what was paid in elsewhere.
        entry.ImportCurrency = m_layout.Currency.isEmpty() ? m_currency.Of(Cell(m_map.Currency)) : m_layout.Currency;
        modTableDetails::Apply(m_layout.Details, Cell(m_map.Purpose[0]), entry);
        return entry;
    }

    [[nodiscard]] QString OwnAccount()
    {
        const QStringView cell = Cell(m_map.OwnAccount);
        if (cell.isEmpty()) {
            return m_account;
        }
        if (cell != m_ownCell) {
            m_ownCell = cell.toString();
            m_ownAccount = modTableAbove::OwnNumber(cell);
        }
        return m_ownAccount;
    }

    // Some banks name only the one of payer and payee that is not the owner, whichever column it has.
    [[nodiscard]] QString Counterparty(qint64 value) const
    {
        if (m_map.Payer < 0) {
            return Cell(m_map.Name).toString();
        }
        const QStringView wanted = Cell(value > 0 ? m_map.Payer : m_map.Name);
        return (wanted.isEmpty() ? Cell(value > 0 ? m_map.Name : m_map.Payer) : wanted).toString();
    }

    // Where both sides are listed, the owner's number stands on the one or the other.
    [[nodiscard]] QString CounterAccount(const QString& own) const
    {
        const QString number = CompactIban(Cell(m_map.Account));
        return m_map.Account2 >= 0 && !own.isEmpty() && modAccountNumber::Compact(number) == own
            ? CompactIban(Cell(m_map.Account2))
            : number;
    }

    [[nodiscard]] static QString CompactIban(QStringView cell)
    {
        return cell.contains(u' ') && modTableValue::IsIban(cell) ? modAccountNumber::Compact(cell.toString())
                                                                  : cell.toString();
    }

    [[nodiscard]] QString Purpose() const
    {
        QString joined;
        for (const int column : m_purposes) {
            joined += joined.isEmpty() ? QString() : QString(u' ');
            joined += Cell(column);
        }
        return modTablePurpose::Clean(std::move(joined));
    }

    [[nodiscard]] eState State()
    {
        const QStringView status = Cell(m_map.Status);
        if (status != m_status) {
            m_status = status.toString();
            m_state = modTableStatus::Of(status);
        }
        if (m_state != eState::Unknown) {
            return m_state;
        }
        if (!status.isEmpty() && m_unknownStates.size() <= mostUnknownStates) {
            m_unknownStates.insert(status.toString());
        }
        for (const int column : std::as_const(m_others)) {
            if (const eState state = modTableStatus::OfAny(Cell(column)); state != eState::Unknown) {
                return state;
            }
        }
        const auto isPending = [&](int column) {
            const QStringView cell = Cell(column);
            const bool isDay = !cell.isEmpty() && cell.front().isDigit(); // as nearly always, and the quickest to see
            return column >= 0 && !isDay && (cell.isEmpty() || modTableStatus::Of(cell) == eState::Pending);
        };
        return isPending(m_map.Date) || isPending(m_bookingDay) ? eState::Pending : eState::Booked;
    }

    // A column with more of them is none of states.
    void TellUnknownStates()
    {
        if (m_unknownStates.isEmpty() || m_unknownStates.size() > mostUnknownStates) {
            return;
        }
        QStringList states(m_unknownStates.begin(), m_unknownStates.end());
        states.sort();
        m_read.Problems.append(
            {0,
             cText::Tr("Ob diese Umsätze schon gebucht sind, ist nicht sicher; sie wurden übernommen. In der Spalte "
                       "\"{0}\" steht: {1}",
                       {m_map.Names.value(m_map.Status), states.join(u", "_s).left(80)})});
    }

    void TellFees()
    {
        if (m_fees > 0) {
            m_read.Problems.append({0,
                                    cText::Tr("Zeilen mit einer Gebühr neben dem Betrag, die abgezogen wurde: {0}",
                                              {QString::number(m_fees)})});
        }
    }

    void Take(cImportEntry& entry)
    {
        if (!entry.ImportDate.isValid()) {
            m_read.Problems.append(
                Problem(cText::Tr("Das Buchungsdatum ist kein Datum: {0}", {Cell(m_map.Date).left(40).toString()})));
            entry.ImportDate = noDate;
        }
        m_sum += entry.ImportValue;
        m_fees += Fee() != 0 ? 1 : 0;
        m_balances.AddRow(entry, BookingDay(), BalanceCents());
        m_read.Entries.append(std::move(entry));
    }

    // Where the row has one beside its own day; else invalid.
    [[nodiscard]] QDate BookingDay() const
    {
        return m_bookingDay < 0 ? QDate() : modTableValue::ReadDate(Cell(m_bookingDay), m_layout.Date);
    }

    [[nodiscard]] std::optional<qint64> BalanceCents() const
    {
        return modTableValue::ReadCents(Cell(m_map.Balance), m_number);
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    const cColumnMap& m_map;
    QString m_account;
    eNumberFormat m_number;
    static constexpr qsizetype mostUnknownStates = 3;

    int m_end; // behind the last row that is read
    modTableEnd::cCut m_cut;
    int m_columns = cTable::mostColumns; // a row has no more of them
    int m_bookingDay = -1;
    QList<int> m_others; // columns that may say in what state a row is, beside the one for it
    QSet<QString> m_unknownStates;
    QString m_status; // of the row before, which is mostly the same
    eState m_state = eState::Unknown;
    qint64 m_sum = 0; // cents of the rows taken
    int m_fees = 0;
    int m_row = 0;
    QList<int> m_purposes; // in the order in which they are joined
    cStatementRead m_read;
    cRepeatedText m_type;
    cRepeatedText m_currency;
    QString m_ownCell;
    QString m_ownAccount;
    cRowBalances m_balances;
};

} // namespace

cStatementRead modTableRows::Read(const cTable& table, const cTableLayout& layout, const QString& account,
                                  const std::optional<cAccountBalance>& above)
{
    return cRowReader(table, layout, account).Run(above);
}

QList<modTableRows::cProbed> modTableRows::Probe(const cTable& table, const cTableLayout& layout, int rows)
{
    return cRowReader(table, layout, {}, rows).Probe();
}
