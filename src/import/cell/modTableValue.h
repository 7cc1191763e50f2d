#pragma once

#include "import/read/cTableChoice.h"

#include <QDate>
#include <QString>
#include <QStringView>

#include <optional>

// Days and amounts as they stand in the cells of a table.
namespace modTableValue {

// A time behind the day is cut. The month may be a word; else all letters are passed over, and it is read as
// day.month.year (or the order given), yyyy-mm-dd, yyyymmdd. A two-digit year lies in 2000 to 2099. Invalid when the
// text is no date.
[[nodiscard]] QDate ReadDate(QStringView cell, eDateOrder order = eDateOrder::DayMonthYear);

// True when the cell is a day and nothing else but a time.
[[nodiscard]] bool IsDate(QStringView cell);

// The amount in the form that the shared reader understands: without currency signs and codes, with a decimal comma.
// Detect decides from this one cell.
[[nodiscard]] QString ToGerman(QStringView cell, eNumberFormat format);

// Whole cents; empty when the cell is no number. A letter "S" or "H" behind it gives the sign.
[[nodiscard]] std::optional<qint64> ReadCents(QStringView cell, eNumberFormat format);

// True for a number with decimal places or with a currency sign: "12,50", "-$76.00", "10 EUR".
[[nodiscard]] bool IsAmount(QStringView cell);

// -1 for "S", "SOLL" and other words for a debit, +1 for "H", "HABEN" and other words for a credit, 0 for all else.
[[nodiscard]] int IndicatorSign(QStringView cell);

// Two letters, two digits, letters and digits; blanks are allowed.
[[nodiscard]] bool IsIban(QStringView cell);

// The identifier by which a creditor collects direct debits: built like an IBAN, and no account.
[[nodiscard]] bool IsCreditor(QStringView cell);

// Collects the cells of a column and says how they are written.
class cNumberVote
{
public:
    void Add(QStringView cell);
    [[nodiscard]] eNumberFormat Decide() const;
    // True when nothing but points before three digits was seen: thousands in German, decimals elsewhere.
    [[nodiscard]] bool IsDoubtful() const { return m_thousands > 0 && m_german + m_english + m_points == 0; }

private:
    int m_german = 0;
    int m_english = 0;
    int m_thousands = 0;
    int m_points = 0; // one point with decimals behind it, which either form could have
};

} // namespace modTableValue
