#include "store/cWindowAhead.h"

#include <exception>
#include <system_error>

namespace {

std::optional<cWindowRows> Read(const QString& path, const modPeriod::cRange& days)
{
    try {
        cDatabase database;
        database.Open(path, eOpenMode::ReadOnly);
        // A page is read once: kept, they would only take memory.
        database.Execute("PRAGMA cache_size=50");
        return cWindowRows::Read(database, days);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace

cWindowAhead::cWindowAhead(const QString& path, const modPeriod::cRange& days, const cDatabase::cChangeMark& mark)
    : m_days(days),
      m_mark(mark)
{
    try {
        m_rows = std::async(std::launch::async, [path, days] { return Read(path, days); });
    } catch (const std::system_error&) {
        // Read later, as without it.
    }
}

std::optional<cWindowRows> cWindowAhead::Take(const modPeriod::cRange& days, const cDatabase::cChangeMark& mark)
{
    const bool isSame = m_days.Start == days.Start && m_days.End == days.End && m_mark == mark;
    return m_rows.valid() && isSame ? m_rows.get() : std::nullopt;
}
