#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modFailure.h"
#include "store/modRow.h"
#include "store/modSchema.h"

#include <QSet>

// What is wrong with a book: with its file, its tables, its entries.

namespace {

// The entries for which a condition holds.
QSet<int> Where(cDatabase& database, const char* condition)
{
    QSet<int> ids;
    cRows rows(database, std::string("SELECT ID FROM data WHERE ") + condition);
    while (rows.Next()) {
        ids.insert(static_cast<int>(rows.Integer(0)));
    }
    return ids;
}

// True for a last day that the query for series takes for the end, and that lies before the first one.
bool EndsBeforeItBegins(const cEntryItem& entry)
{
    return entry.EntryDate.isValid() && modRecurrence::EffectiveEnd(entry.EntryDateEnd) < entry.EntryDate;
}

class cFaultReader
{
public:
    cFaultReader(cDatabase& database, QDate today)
        : m_today(today),
          m_withoutDay(Where(database, "date(EntryDate) IS NULL"))
    {
    }

    [[nodiscard]] cFaultyEntry Read(const cRows& row)
    {
        cFaultyEntry found{m_reader.Read(row), row.Text(0), row.Text(8), {}};
        const cEntryItem& entry = found.Entry;
        const bool isSeries = modRecurrence::IsRecurring(entry.EntryInterval);
        const auto note = [&](bool isFaulty, eEntryFault fault) {
            if (isFaulty) {
                found.Faults.append(fault);
            }
        };
        note(!entry.EntryDate.isValid() || m_withoutDay.contains(entry.ID), eEntryFault::Day);
        note(!modWord::EntryTypes().Contains(entry.EntryType), eEntryFault::Kind);
        note(!modWord::Intervals().Contains(entry.EntryInterval), eEntryFault::Interval);
        note(isSeries && EndsBeforeItBegins(entry), eEntryFault::End);
        note(isSeries && LacksDays(entry), eEntryFault::Length);
        note(!modRow::ReadCents(row.Bytes(8)), eEntryFault::Amount);
        note(entry.EntryAccount.isEmpty(), eEntryFault::Account);
        note(entry.IsTransfer() && entry.EntryAccountMove.isEmpty(), eEntryFault::Target);
        return found;
    }

private:
    [[nodiscard]] bool LacksDays(const cEntryItem& entry) const
    {
        const QDate last = modRecurrence::CutOffAt(entry);
        return last.isValid() && modRecurrence::Next(last, entry.EntryInterval) <= m_today;
    }

    QDate m_today;
    cEntryReader m_reader;
    QSet<int> m_withoutDay; // that SQLite can compare with a period
};

} // namespace

std::optional<QList<cFaultyEntry>> cDataAccess::GetFaultyEntries(QDate today)
{
    QList<cFaultyEntry> faulty;
    const bool isRead = Look("GetFaultyEntries", [&] {
        cFaultReader reader(m_database, today);
        cRows rows(m_database, cEntryReader::Select + std::string(" ORDER BY ID"));
        while (rows.Next()) {
            const cFaultyEntry entry = reader.Read(rows);
            if (!entry.Faults.isEmpty()) {
                faulty.append(entry);
            }
        }
    });
    return isRead ? std::optional(faulty) : std::nullopt;
}

QStringList cDataAccess::GetFileProblems()
{
    try {
        return m_database.IntegrityCheck();
    } catch (const cDatabaseError& error) {
        return {modFailure::Reason(error)};
    }
}

QStringList cDataAccess::GetMissingParts()
{
    return modSchema::Lost(m_database);
}
