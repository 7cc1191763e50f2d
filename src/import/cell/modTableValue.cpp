#include "import/cell/modTableValue.h"

#include "base/modAmount.h"
#include "base/modChar.h"
#include "import/cell/modTableNumber.h"
#include "import/cell/modTextDate.h"
#include "import/read/modAccountNumber.h"

#include <QList>

#include <algorithm>
#include <array>

namespace {

bool IsDateSign(QChar c)
{
    return c == u'.' || c == u'/' || c == u'-';
}

// The text in front of a time such as "15:12:22" or "T15:12".
QStringView WithoutTime(QStringView cell)
{
    const qsizetype colon = cell.indexOf(u':');
    if (colon < 0) {
        return cell;
    }
    const QStringView before = cell.left(colon);
    const qsizetype cut = qMax(before.lastIndexOf(u' '), before.lastIndexOf(u'T'));
    return cut > 0 ? cell.left(cut) : cell;
}

struct cDigits
{
    int Value = 0;
    int Size = 0;
};

struct cDateParts
{
    std::array<cDigits, 3> Parts;
    int Count = 0; // 4 for more than three
};

cDateParts PartsOf(QStringView text)
{
    cDateParts parts;
    bool isInside = false;
    for (const QChar c : text) {
        if (modChar::IsDigit(c)) {
            parts.Count += isInside ? 0 : 1;
            isInside = true;
            if (parts.Count > 3) {
                return parts;
            }
            cDigits& part = parts.Parts.at(static_cast<std::size_t>(parts.Count - 1));
            if (++part.Size > 8) {
                return {};
            }
            part.Value = part.Value * 10 + (c.unicode() - u'0');
        } else if (IsDateSign(c)) {
            isInside = false;
        }
    }
    return parts;
}

QDate ToDate(const cDigits& year, const cDigits& month, const cDigits& day)
{
    const bool isFit = (year.Size == 4 || year.Size == 2) && month.Size <= 2 && day.Size <= 2;
    return isFit ? QDate(year.Size == 2 ? 2000 + year.Value : year.Value, month.Value, day.Value) : QDate();
}

constexpr QStringView debitWords = u"S|SOLL|D|DEBIT|DR|DBIT|AF|-|DEBET|BELASTUNG|AUSGABE|AUSGABEN|AUSGANG|OUT|EXPENSE|"
                                   u"LASTSCHRIFT|OUTGOING|ABGANG";
constexpr QStringView creditWords = u"H|HABEN|K|C|CREDIT|CR|CRDT|BIJ|+|KREDIT|EINNAHME|EINNAHMEN|EINGANG|IN|INCOME|"
                                    u"GUTSCHRIFT|INCOMING|ZUGANG";
constexpr qsizetype longestWord = 11;

bool IsOneOf(QStringView cell, QStringView words)
{
    const QList<QStringView> known = words.split(u'|');
    return std::any_of(known.begin(), known.end(),
                       [&](QStringView word) { return cell.compare(word, Qt::CaseInsensitive) == 0; });
}

bool HasFormOfIban(const QString& compact)
{
    if (compact.size() < 15 || compact.size() > 34) {
        return false;
    }
    const auto isLetter = [&](qsizetype at) { return compact[at] >= u'A' && compact[at] <= u'Z'; };
    return isLetter(0) && isLetter(1) && modChar::IsDigit(compact[2]) && modChar::IsDigit(compact[3])
        && std::count_if(compact.begin(), compact.end(), modChar::IsDigit) >= 10
        && std::all_of(compact.begin(), compact.end(),
                       [](QChar c) { return modChar::IsDigit(c) || modChar::IsCapital(c); });
}

// No bank is called "ZZZ", which nearly all of them have; German ones are shorter than an IBAN as well.
bool HasFormOfCreditor(const QString& compact)
{
    constexpr qsizetype german = 18;
    return QStringView(compact).mid(4, 3) == u"ZZZ" || (compact.size() == german && compact.startsWith(u"DE"));
}

} // namespace

QDate modTableValue::ReadDate(QStringView cell, eDateOrder order)
{
    const QStringView text = WithoutTime(cell).trimmed();
    if (const QDate named = modTextDate::Read(text); named.isValid()) {
        return named;
    }
    const cDateParts found = PartsOf(text);
    const auto& [first, second, third] = found.Parts;
    if (found.Count == 1 && first.Size == 8) {
        return {first.Value / 10000, first.Value / 100 % 100, first.Value % 100};
    }
    if (found.Count != 3) {
        return {};
    }
    if (first.Size == 4 || order == eDateOrder::YearMonthDay) {
        return ToDate(first, second, third);
    }
    return order == eDateOrder::MonthDayYear ? ToDate(third, first, second) : ToDate(third, second, first);
}

bool modTableValue::IsDate(QStringView cell)
{
    const QStringView day = WithoutTime(cell).trimmed();
    const auto isDay = [](QDate date) { return date.isValid() && date.year() >= 1970 && date.year() < 2100; };
    const bool isPlain = day.size() >= 6
        && std::all_of(day.begin(), day.end(), [](QChar c) { return modChar::IsDigit(c) || IsDateSign(c); });
    if (!isPlain) {
        return isDay(modTextDate::Read(day));
    }
    // With strokes the month may come first.
    return isDay(ReadDate(day)) || (day.contains(u'/') && isDay(ReadDate(day, eDateOrder::MonthDayYear)));
}

QString modTableValue::ToGerman(QStringView cell, eNumberFormat format)
{
    return modTableNumber::German(cell, format);
}

std::optional<qint64> modTableValue::ReadCents(QStringView cell, eNumberFormat format)
{
    const std::optional<qint64> cents = modAmount::CentsFromGerman(ToGerman(cell, format));
    const int sign = modTableNumber::TrailingSign(cell);
    return cents && sign != 0 ? std::abs(*cents) * sign : cents;
}

bool modTableValue::IsAmount(QStringView cell)
{
    if (IsDate(cell)) {
        return false;
    }
    const QString number = ToGerman(cell, eNumberFormat::Detect);
    const bool hasCurrency =
        std::any_of(cell.begin(), cell.end(), [](QChar c) { return c.category() == QChar::Symbol_Currency; })
        || cell.endsWith(u" EUR");
    return (number.contains(u',') || hasCurrency) && modAmount::CentsFromGerman(number).has_value();
}

int modTableValue::IndicatorSign(QStringView cell)
{
    const QStringView word = cell.trimmed();
    if (word.isEmpty() || word.size() > longestWord) {
        return 0;
    }
    return IsOneOf(word, debitWords) ? -1 : (IsOneOf(word, creditWords) ? 1 : 0);
}

bool modTableValue::IsIban(QStringView cell)
{
    const QString compact = modAccountNumber::Compact(cell.toString());
    return HasFormOfIban(compact) && !HasFormOfCreditor(compact);
}

bool modTableValue::IsCreditor(QStringView cell)
{
    const QString compact = modAccountNumber::Compact(cell.toString());
    return HasFormOfIban(compact) && HasFormOfCreditor(compact);
}

void modTableValue::cNumberVote::Add(QStringView cell)
{
    const auto points = cell.count(u'.');
    const auto commas = cell.count(u',');
    const bool isPointLast = cell.lastIndexOf(u'.') > cell.lastIndexOf(u',');
    if (points > 0 && commas > 0) {
        ++(isPointLast ? m_english : m_german);
    } else if (commas > 0) {
        ++(commas > 1 ? m_english : m_german);
    } else if (points > 1) {
        ++m_german;
    } else if (points == 1) {
        const QStringView behind = cell.sliced(cell.indexOf(u'.') + 1);
        const auto decimals = std::find_if_not(behind.begin(), behind.end(), modChar::IsDigit) - behind.begin();
        m_thousands += decimals == 3 ? 1 : 0;
        m_points += decimals > 0 && decimals != 3 ? 1 : 0;
    }
}

eNumberFormat modTableValue::cNumberVote::Decide() const
{
    if (m_english > 0 || m_german > 0) {
        return m_english > m_german ? eNumberFormat::English : eNumberFormat::German;
    }
    return m_points > 0 ? eNumberFormat::English : eNumberFormat::German;
}
