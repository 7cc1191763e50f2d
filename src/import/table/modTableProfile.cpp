#include "import/table/modTableProfile.h"

#include "base/modChar.h"
#include "import/cell/modTableValue.h"
#include "import/table/cKnownLayout.h"
#include "import/table/cTable.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableAbove.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int surveyedRows = 200;
constexpr int mostUnknown = 2; // columns that a layout nearly like a known one may have besides

struct cField
{
    const char16_t* Name = nullptr;
    int& (*Place)(cColumnMap&) = nullptr;
};

constexpr std::array fields = {
    cField{u"date", [](cColumnMap& map) -> int& { return map.Date; }},
    cField{u"type", [](cColumnMap& map) -> int& { return map.Text; }},
    cField{u"purpose", [](cColumnMap& map) -> int& { return map.Purpose[0]; }},
    cField{u"purpose2", [](cColumnMap& map) -> int& { return map.Purpose[1]; }},
    cField{u"purpose3", [](cColumnMap& map) -> int& { return map.Purpose[2]; }},
    cField{u"name", [](cColumnMap& map) -> int& { return map.Name; }},
    cField{u"name2", [](cColumnMap& map) -> int& { return map.Name2; }},
    cField{u"account", [](cColumnMap& map) -> int& { return map.Account; }},
    cField{u"bank", [](cColumnMap& map) -> int& { return map.BankCode; }},
    cField{u"amount", [](cColumnMap& map) -> int& { return map.Amount; }},
    cField{u"credit", [](cColumnMap& map) -> int& { return map.Credit; }},
    cField{u"debit", [](cColumnMap& map) -> int& { return map.Debit; }},
    cField{u"currency", [](cColumnMap& map) -> int& { return map.Currency; }},
    cField{u"indicator", [](cColumnMap& map) -> int& { return map.Indicator; }},
    cField{u"payer", [](cColumnMap& map) -> int& { return map.Payer; }},
    cField{u"own", [](cColumnMap& map) -> int& { return map.OwnAccount; }},
    cField{u"ownbank", [](cColumnMap& map) -> int& { return map.OwnBankCode; }},
    cField{u"status", [](cColumnMap& map) -> int& { return map.Status; }},
    cField{u"balance", [](cColumnMap& map) -> int& { return map.Balance; }},
    cField{u"fee", [](cColumnMap& map) -> int& { return map.Fee; }},
    cField{u"othername", [](cColumnMap& map) -> int& { return map.OtherName; }},
};

// Columns without which a layout can still be read.
constexpr std::array<QStringView, 9> dispensable = {u"status",  u"bank",  u"type",     u"balance", u"fee",
                                                    u"ownbank", u"name2", u"purpose2", u"purpose3"};

// Columns of a known layout, one after the other: what they are and how they are called.
void ForEachColumn(const cKnownLayout& known, auto take)
{
    for (const QStringView column : QStringView(known.Columns).split(u';')) {
        const qsizetype sign = column.indexOf(u'=');
        take(column.left(sign), column.mid(sign + 1));
    }
}

// In any case; a letter that was lost on the way stands for any.
bool IsSameName(QStringView pattern, QStringView name)
{
    const bool isOpen = pattern.endsWith(u'*') && pattern.size() > 1;
    pattern.chop(isOpen ? 1 : 0);
    if (isOpen ? name.size() < pattern.size() : name.size() != pattern.size()) {
        return false;
    }
    return std::equal(pattern.begin(), pattern.end(), name.begin(), [](QChar wanted, QChar c) {
        return wanted == c || wanted.toCaseFolded() == c.toCaseFolded() || c == QChar::ReplacementCharacter;
    });
}

bool IsShape(const cKnownLayout& known)
{
    return QStringView(known.Header).startsWith(u'=');
}

// True when the header has the fields in their order, "…" standing for any run of them.
bool IsHeader(const cKnownLayout& known, const QStringList& header)
{
    const QList<QStringView> pattern = QStringView(known.Header).split(u';');
    qsizetype end = header.size();
    while (end > 0 && header.at(end - 1).isEmpty()) {
        --end;
    }
    qsizetype at = 0;
    bool isOpen = false;
    for (const QStringView field : pattern) {
        if (field == u"…") {
            isOpen = true;
            continue;
        }
        while (isOpen && at < end && !IsSameName(field, header.at(at))) {
            ++at;
        }
        if (at >= end || !IsSameName(field, header.at(at))) {
            return false;
        }
        ++at;
        isOpen = false;
    }
    return isOpen || at == end;
}

int ColumnOf(QStringView name, const QStringList& header, int columns)
{
    if (name.startsWith(u'#')) {
        const int place = name.mid(1).toInt();
        return place < columns ? place : -1;
    }
    const auto found =
        std::find_if(header.begin(), header.end(), [&](const QString& field) { return IsSameName(name, field); });
    return found == header.end() ? -1 : static_cast<int>(found - header.begin());
}

// Columns of a header that a known layout does not have, when its other columns are nearly all those of the layout.
class cNearness
{
public:
    cNearness(const cKnownLayout& known, const QStringList& header)
    {
        const QList<QStringView> pattern = QStringView(known.Header).split(u';');
        m_isFit = !IsShape(known) && HasColumns(known, header);
        for (const QStringView field : pattern) {
            const auto count = std::count_if(header.begin(), header.end(),
                                             [&](const QString& name) { return IsSameName(field, name); });
            m_isFit = m_isFit && count <= 1; // which of the two would be meant?
            m_isOpen = m_isOpen || field == u"…";
            m_named += field == u"…" ? 0 : 1;
            m_found += count > 0 ? 1 : 0;
        }
        for (int column = 0; m_isFit && column < header.size(); ++column) {
            const QString& name = header.at(column);
            const bool isKnown =
                std::any_of(pattern.begin(), pattern.end(), [&](QStringView field) { return IsSameName(field, name); });
            if (!isKnown && !name.isEmpty()) {
                m_unknown.append(column);
            }
        }
    }

    [[nodiscard]] bool IsNear(const cColumnMap& told) const
    {
        return m_isFit && m_found * 4 >= m_named * 3 && (m_isOpen || m_unknown.size() <= mostUnknown)
            && std::none_of(m_unknown.begin(), m_unknown.end(), [&](int column) { return IsWanted(told, column); });
    }

    [[nodiscard]] int Found() const { return m_found; }

private:
    [[nodiscard]] static bool HasColumns(const cKnownLayout& known, const QStringList& header)
    {
        bool hasAll = true;
        ForEachColumn(known, [&](QStringView field, QStringView name) {
            const bool isNeeded = std::find(dispensable.begin(), dispensable.end(), field) == dispensable.end();
            hasAll = hasAll && !name.startsWith(u'#') && (!isNeeded || ColumnOf(name, header, 0) >= 0);
        });
        return hasAll;
    }

    // True for a column whose name tells that it should be read.
    [[nodiscard]] static bool IsWanted(const cColumnMap& told, int column)
    {
        const std::array wanted{told.Name,  told.Name2,  told.Account, told.BankCode,   told.Amount,
                                told.Debit, told.Credit, told.Date,    told.Purpose[0], told.Account2};
        return std::find(wanted.begin(), wanted.end(), column) != wanted.end();
    }

    bool m_isFit = false;
    bool m_isOpen = false;
    int m_named = 0;
    int m_found = 0;
    QList<int> m_unknown;
};

// The known layout with this header, or the one with nearly the same; null when there is none.
const cKnownLayout* Find(const QStringList& header)
{
    const auto all = cKnownLayout::All();
    const auto exact =
        std::find_if(all.begin(), all.end(), [&](const cKnownLayout& known) { return IsHeader(known, header); });
    if (exact != all.end()) {
        return &*exact;
    }
    const cColumnMap told = modColumnWords::Detect(header);
    const cKnownLayout* best = nullptr;
    int most = 0;
    for (const cKnownLayout& known : all) {
        const cNearness nearness(known, header);
        if (nearness.Found() > most && nearness.IsNear(told)) {
            best = &known;
            most = nearness.Found();
        }
    }
    return best;
}

void Take(const cKnownLayout& known, const QStringList& header, int columns, cTableLayout& layout)
{
    cColumnMap map;
    map.Names = header;
    map.ColumnCount = columns;
    ForEachColumn(known, [&](QStringView field, QStringView name) {
        const auto* const found = std::find_if(fields.begin(), fields.end(),
                                               [&](const cField& entry) { return field == QStringView(entry.Name); });
        if (found != fields.end()) {
            found->Place(map) = ColumnOf(name, header, columns);
        }
    });
    layout.Map = map;
    layout.Origin = eMapOrigin::Profile;
    layout.Profile = QString::fromUtf16(known.Name);
    layout.Number = known.Number;
    layout.Sign = known.Sign;
    layout.Details = known.Details;
    layout.Currency = QString::fromUtf16(known.Currency);
    layout.OnlyCurrency = QString::fromUtf16(known.OnlyCurrency);
}

// A number, perhaps with a currency and with signs that make none of it for others.
bool LooksNumeric(QStringView cell)
{
    constexpr int longestCode = 4;
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    return std::any_of(cell.begin(), cell.end(), [](QChar c) { return c.isDigit(); })
        && std::count_if(cell.begin(), cell.end(), isLetter) <= longestCode && !modTableValue::IsDate(cell);
}

bool IsOfKind(QStringView cell, QStringView kind)
{
    if (kind == u"empty") {
        return cell.isEmpty();
    }
    if (kind == u"day") {
        return modTableValue::IsDate(cell);
    }
    if (kind == u"amount") {
        return LooksNumeric(cell);
    }
    if (kind == u"side") {
        return cell.isEmpty() || LooksNumeric(cell);
    }
    if (kind == u"iban") {
        return modTableValue::IsIban(modTableAbove::OwnNumber(cell));
    }
    return kind == u"code" ? modChar::IsCurrencyCode(cell)
                           : std::any_of(cell.begin(), cell.end(), [](QChar c) { return c.isLetter(); });
}

bool IsRowOfShape(const cTable& table, int row, const QList<QStringView>& kinds)
{
    if (table.CellCount(row) != kinds.size()) {
        return false;
    }
    for (int column = 0; column < kinds.size(); ++column) {
        if (!IsOfKind(table.Cell(row, column), kinds.at(column))) {
            return false;
        }
    }
    return true;
}

bool HasShape(const cTable& table, int first, const QList<QStringView>& kinds)
{
    const int end = qMin(table.RowCount(), first + surveyedRows);
    int rows = 0;
    int fits = 0;
    for (int row = first; row < end; ++row) {
        const bool isEmpty = table.CellCount(row) < 2;
        rows += isEmpty ? 0 : 1;
        fits += !isEmpty && IsRowOfShape(table, row, kinds) ? 1 : 0;
    }
    constexpr int most = 20; // one row in twenty may be something else
    return fits > 0 && (rows - fits) * most <= rows;
}

} // namespace

bool modTableProfile::Apply(const QStringList& header, cTableLayout& layout)
{
    const cKnownLayout* const found = Find(header);
    if (found == nullptr) {
        return false;
    }
    Take(*found, header, static_cast<int>(header.size()), layout);
    return true;
}

bool modTableProfile::ApplyShape(const cTable& table, cTableLayout& layout)
{
    for (const cKnownLayout& known : cKnownLayout::All()) {
        const QList<QStringView> kinds = QStringView(known.Header).mid(1).split(u';');
        if (IsShape(known) && HasShape(table, layout.FirstRow, kinds)) {
            Take(known, {}, static_cast<int>(kinds.size()), layout);
            return true;
        }
    }
    return false;
}

bool modTableProfile::Fits(const cTable& table, const cTableLayout& layout)
{
    const cColumnMap& map = layout.Map;
    const int end = qMin(table.RowCount(), layout.FirstRow + surveyedRows);
    int rows = 0;
    int days = 0;
    int amounts = 0;
    for (int row = layout.FirstRow; row < end; ++row) {
        if (table.CellCount(row) * 2 < map.ColumnCount) {
            continue; // titles and balances between the bookings
        }
        const QStringView day = table.Cell(row, map.Date);
        ++rows;
        days += day.isEmpty() || modTableValue::ReadDate(day, layout.Date).isValid()
                || !std::any_of(day.begin(), day.end(), [](QChar c) { return c.isDigit(); })
            ? 1
            : 0;
        const std::array sides{map.Amount, map.Debit, map.Credit};
        amounts += std::all_of(sides.begin(), sides.end(),
                               [&](int column) {
                                   const QStringView cell = table.Cell(row, column);
                                   return cell.isEmpty() || LooksNumeric(cell);
                               })
            ? 1
            : 0;
    }
    return days * 2 >= rows && amounts * 2 >= rows;
}

bool modTableProfile::ApplyNamed(const QString& name, const QStringList& header, cTableLayout& layout)
{
    const auto all = cKnownLayout::All();
    const auto isNamed = [&](const cKnownLayout& known) {
        return name.compare(QStringView(known.Name), Qt::CaseInsensitive) == 0;
    };
    const auto exact = std::find_if(
        all.begin(), all.end(), [&](const cKnownLayout& known) { return isNamed(known) && IsHeader(known, header); });
    const auto found = exact != all.end() ? exact : std::find_if(all.begin(), all.end(), isNamed);
    if (found == all.end()) {
        return false;
    }
    const qsizetype columns = IsShape(*found) ? QStringView(found->Header).split(u';').size() : header.size();
    Take(*found, header, static_cast<int>(columns), layout);
    return true;
}

QStringList modTableProfile::Names()
{
    QStringList names;
    for (const cKnownLayout& known : cKnownLayout::All()) {
        names.append(QString::fromUtf16(known.Name));
    }
    names.removeDuplicates();
    return names;
}
