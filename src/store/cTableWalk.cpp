#include "store/cTableWalk.h"

#include "store/cDatabase.h"

#include <QElapsedTimer>

#include <array>
#include <limits>
#include <string>

namespace {

constexpr std::array tables{"data", "datamod", "template", "import", "setting", "account"};
constexpr int rowsAtATime = 200; // some tenths of a millisecond

} // namespace

bool cTableWalk::Step(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (m_table < tables.size() && m_database.IsOpen() && !m_database.IsDamaged()) {
        if (time.hasExpired(milliseconds)) {
            return true;
        }
        try {
            ReadSome();
        } catch (const cDatabaseError& error) {
            if (error.Fault() == eDatabaseFault::Busy) {
                return true; // somebody else writes: later
            }
            // A table that this book has never had, or a disk that fails: whoever needs the table is told.
            ++m_table;
            m_isAtStart = true;
        }
    }
    return false;
}

void cTableWalk::ReadSome()
{
    const std::string table = tables.at(m_table);
    const qint64 from = m_isAtStart ? std::numeric_limits<qint64>::min() : m_lastRow;
    // All columns, because a long text lies in pages of its own that nothing else would look at.
    cRows rows(m_database, "SELECT rowid, * FROM main." + table + " WHERE rowid > ? ORDER BY rowid LIMIT ?",
               {from, qint64{rowsAtATime}});
    int count = 0;
    for (; rows.Next(); ++count) {
        m_lastRow = rows.Integer(0);
    }
    m_isAtStart = count < rowsAtATime;
    m_table += m_isAtStart ? 1 : 0;
}
