#include "import/stage/modRememberedAccount.h"

#include "import/read/modAccountNumber.h"

#include <QMultiHash>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 nearDays = 4; // between the days of two formats

using cDays = QMultiHash<qint64, QDate>; // by amount

cDays DaysOf(const cImportEntryList& rows)
{
    cDays days;
    for (const cImportEntry& row : rows) {
        days.insert(row.ImportValue, row.ImportDate);
    }
    return days;
}

qsizetype CountIn(const cDays& others, const cImportEntryList& rows)
{
    return std::count_if(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        const auto [from, to] = others.equal_range(row.ImportValue);
        return std::any_of(from, to, [&](QDate day) { return std::abs(day.daysTo(row.ImportDate)) <= nearDays; });
    });
}

// Those between the first and the last day of the others.
cImportEntryList Within(cImportEntryList rows, const cImportEntryList& others)
{
    const auto ends =
        std::minmax_element(others.begin(), others.end(),
                            [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate < b.ImportDate; });
    rows.removeIf([&](const cImportEntry& row) {
        return row.ImportDate < ends.first->ImportDate || row.ImportDate > ends.second->ImportDate;
    });
    return rows;
}

} // namespace

bool modRememberedAccount::IsContradicted(const cImportEntryList& rows, const cImportEntryList& staged)
{
    cImportEntryList known = staged;
    known.removeIf([&](const cImportEntry& row) {
        return rows.isEmpty() || !modAccountNumber::IsSame(row.ImportAccount, {}, rows.constFirst().ImportAccount);
    });
    if (known.isEmpty()) {
        return false;
    }
    const cImportEntryList there = Within(known, rows);
    const cImportEntryList again = Within(rows, known);
    return 2 * CountIn(DaysOf(rows), there) < there.size() && CountIn(DaysOf(known), again) < again.size();
}
