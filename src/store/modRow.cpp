#include "store/modRow.h"

#include "base/modAmount.h"
#include "base/modDate.h"
#include "store/cDatabase.h"

#include <charconv>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString dayMark = u"; Tag "_s; // between the kind of a correction and the day to which it moves

constexpr size_t wordLimit = 2000; // beyond it a column is not of the kind that repeats

QString FromUtf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

// The digits as a number, or -1.
int Digits(std::string_view bytes)
{
    int value = 0;
    for (const char c : bytes) {
        if (c < '0' || c > '9') {
            return -1;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

// "12.50", the form this program writes, or -1. Everything else takes the thorough way.
qint64 WrittenCents(std::string_view bytes)
{
    const size_t size = bytes.size();
    if (size < 4 || size > 15 || bytes[size - 3] != '.') {
        return -1;
    }
    qint64 cents = 0;
    for (size_t i = 0; i < size; ++i) {
        if (i == size - 3) {
            continue;
        }
        if (bytes[i] < '0' || bytes[i] > '9') {
            return -1;
        }
        cents = cents * 10 + (bytes[i] - '0');
    }
    return cents;
}

// Values as they are stored, read like a row.
struct cStored
{
    [[nodiscard]] std::string_view Bytes(size_t column) const { return Values[column]; }
    [[nodiscard]] qint64 Integer(size_t column) const
    {
        const std::string_view bytes = Values[column];
        qint64 number = 0;
        (void)std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
        return number;
    }

    std::span<const std::string_view> Values;
};

} // namespace

QString modRow::Doubled(const QString& text)
{
    return text.contains(u'\'') ? QString(text).replace(u"'"_s, u"''"_s) : text;
}

QString modRow::Undoubled(QString text)
{
    return text.contains(u"''"_s) ? text.replace(u"''"_s, u"'"_s) : text;
}

QString modRow::ReadDoubled(std::string_view bytes)
{
    QString text = FromUtf8(bytes);
    return bytes.find('\'') == std::string_view::npos ? text : Undoubled(std::move(text));
}

QDate modRow::ReadDate(std::string_view bytes)
{
    if (bytes.size() == 10 && bytes[4] == '-' && bytes[7] == '-') {
        return QDate(Digits(bytes.substr(0, 4)), Digits(bytes.substr(5, 2)), Digits(bytes.substr(8, 2)));
    }
    return modDate::FromIso(FromUtf8(bytes));
}

std::optional<qint64> modRow::ReadCents(std::string_view bytes)
{
    if (const qint64 cents = WrittenCents(bytes); cents >= 0) {
        return cents;
    }
    const std::optional<qint64> cents = modAmount::CentsFromText(FromUtf8(bytes));
    return cents ? std::optional(std::abs(*cents)) : std::nullopt;
}

QString cWordCache::Get(std::string_view bytes)
{
    if (bytes.empty()) {
        return {};
    }
    if (bytes == m_lastBytes) {
        return m_last;
    }
    m_lastBytes = bytes;
    if (const auto found = m_texts.find(bytes); found != m_texts.end()) {
        m_last = found->second;
        return m_last;
    }
    m_last = m_quotes == eQuotes::Doubled ? modRow::ReadDoubled(bytes) : FromUtf8(bytes);
    if (m_texts.size() < wordLimit) {
        m_texts.emplace(bytes, m_last);
    }
    return m_last;
}

QDate cDayCache::Get(std::string_view bytes)
{
    if (bytes != m_lastBytes) {
        m_lastBytes = bytes;
        m_last = modRow::ReadDate(bytes);
    }
    return m_last;
}

template <typename tRow>
cEntryItem cEntryReader::ReadFrom(const tRow& row)
{
    return {
        .ID = static_cast<int>(row.Integer(1)),
        .EntryDate = m_days.Get(row.Bytes(0)),
        .EntryDateEnd = m_ends.Get(row.Bytes(2)),
        .EntryType = m_types.Get(row.Bytes(3)),
        .EntryInterval = m_intervals.Get(row.Bytes(4)),
        .EntryAccount = m_accounts.Get(row.Bytes(5)),
        .EntryAccountMove = m_moves.Get(row.Bytes(6)),
        .EntryCategory = m_categories.Get(row.Bytes(7)),
        .EntryValue = modRow::ReadCents(row.Bytes(8)).value_or(0),
        .EntryDescription = modRow::ReadDoubled(row.Bytes(9)),
        .EntryFlags = FromUtf8(row.Bytes(10)),
        .CorrectionComment = {},
        .PlannedDate = {},
    };
}

cEntryItem cEntryReader::Read(const cRows& row)
{
    return ReadFrom(row);
}

cEntryItem cEntryReader::Read(std::span<const std::string_view> row)
{
    return ReadFrom(cStored{row});
}

QString modFixModRow::Kind(const cEntryItemFixMod& fixMod)
{
    return fixMod.EntryDay.isValid() ? fixMod.EntryModType + dayMark + modDate::ToIso(fixMod.EntryDay)
                                     : fixMod.EntryModType;
}

cEntryItemFixMod modFixModRow::Read(const cRows& row)
{
    const QString kind = row.Text(2);
    const qsizetype mark = kind.lastIndexOf(dayMark);
    const QDate day = mark < 0 ? QDate() : modDate::FromIso(kind.mid(mark + dayMark.size()));
    return {
        .ID = static_cast<int>(row.Integer(0)),
        .EntryRelation = static_cast<int>(row.Integer(1)),
        .EntryModType = day.isValid() ? kind.left(mark) : kind,
        .EntryStartDate = modRow::ReadDate(row.Bytes(3)),
        .EntryEndDate = modRow::ReadDate(row.Bytes(4)),
        .EntryValue = modRow::ReadCents(row.Bytes(5)).value_or(0),
        .EntryComment = row.Text(6),
        .EntryDay = day,
    };
}
