#include "base/modAmount.h"
#include "base/modDate.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

// The three columns whose stored text may say the same in another form.
struct cStoredForm
{
    QString EntryDate;
    QString EntryDateEnd;
    QString EntryValue;
};

cStoredForm NewForm(const cEntryItem& entry)
{
    return {modDate::ToIso(entry.EntryDate), modDate::ToIso(modRecurrence::EffectiveEnd(entry.EntryDateEnd)),
            modAmount::CentsToText(std::abs(entry.EntryValue))};
}

// What reads as the value the entry has stays as it was written, be it in an older form or unreadable.
cStoredForm KeptForm(cDatabase& database, const cEntryItem& entry)
{
    cStoredForm form = NewForm(entry);
    cRows rows(database, "SELECT EntryDate, EntryDateEnd, EntryValue, date(EntryDate) FROM data WHERE ID = ?",
               {entry.ID});
    if (!rows.Next()) {
        return form;
    }
    // A readable day that SQLite cannot compare with a period hides the entry, so it is not kept in that form.
    const bool isCompared = !entry.EntryDate.isValid() || rows.Text(3) == form.EntryDate;
    if (isCompared && modRow::ReadDate(rows.Bytes(0)) == entry.EntryDate) {
        form.EntryDate = rows.Text(0);
    }
    if (entry.EntryDateEnd.isValid() && modRow::ReadDate(rows.Bytes(1)) == entry.EntryDateEnd) {
        form.EntryDateEnd = rows.Text(1);
    }
    if (modRow::ReadCents(rows.Bytes(2)).value_or(0) == std::abs(entry.EntryValue)) {
        form.EntryValue = rows.Text(2);
    }
    return form;
}

cBoundList EntryValues(const cEntryItem& entry, const cStoredForm& form)
{
    return {form.EntryDate,
            form.EntryDateEnd,
            entry.EntryType,
            entry.EntryInterval,
            modRow::Doubled(entry.EntryAccount),
            modRow::Doubled(entry.EntryAccountMove),
            modRow::Doubled(entry.EntryCategory),
            form.EntryValue,
            modRow::Doubled(entry.EntryDescription),
            entry.EntryFlags};
}

cEntryItemList ReadEntries(cDatabase& database, const std::string& rest, const cBoundList& values)
{
    cEntryItemList entries;
    cEntryReader reader;
    cRows rows(database, cEntryReader::Select + rest, values);
    while (rows.Next()) {
        entries.append(reader.Read(rows));
    }
    return entries;
}

int Count(cDatabase& database, const std::string& sql, const cBoundList& values)
{
    cRows rows(database, sql, values);
    return rows.Next() ? static_cast<int>(rows.Integer(0)) : 0;
}

// Number of rows by the doubled text in the first column.
QHash<QString, int> CountByText(cDatabase& database, const std::string& sql)
{
    QHash<QString, int> counts;
    cRows rows(database, sql);
    while (rows.Next()) {
        counts[modRow::ReadDoubled(rows.Bytes(0))] += static_cast<int>(rows.Integer(1));
    }
    return counts;
}

std::optional<cEntryItem> First(const cEntryItemList& entries)
{
    return entries.isEmpty() ? std::nullopt : std::optional(entries.first());
}

// Of several start balances of an account the first one counts.
std::optional<cEntryItem> StartOf(cDatabase& database, const QString& account)
{
    return First(ReadEntries(database,
                             " WHERE EntryAccount = ? AND EntryCategory = ? AND EntryInterval = ? ORDER BY ID LIMIT 1",
                             {modRow::Doubled(account), modWord::Startguthaben, modWord::Einmalig}));
}

} // namespace

bool cDataAccess::AddNewEntry(cEntryItem& entry)
{
    return Write("AddNewEntry", [&] {
        m_database.Execute("INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, "
                           "EntryAccountMove, EntryCategory, EntryValue, EntryDescription, EntryFlags) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                           EntryValues(entry, NewForm(entry)));
        entry = First(ReadEntries(m_database, " ORDER BY ID DESC LIMIT 1", {})).value_or(entry);
    });
}

bool cDataAccess::ChangeEntry(const cEntryItem& entry)
{
    return Write("ChangeEntry", [&] {
        cBoundList values = EntryValues(entry, KeptForm(m_database, entry));
        values.emplace_back(entry.ID);
        m_database.Execute("UPDATE data SET EntryDate=?, EntryDateEnd=?, EntryType=?, EntryInterval=?, EntryAccount=?, "
                           "EntryAccountMove=?, EntryCategory=?, EntryValue=?, EntryDescription=?, EntryFlags=? "
                           "WHERE ID = ?",
                           values);
    });
}

bool cDataAccess::DeleteEntry(int id)
{
    return ReleaseImports(id) && DeleteEntryModByRelation(id)
        && Write("DeleteEntry", [&] { m_database.Execute("DELETE FROM data WHERE ID = ?", {id}); });
}

bool cDataAccess::ChangeEntryAccount(const QString& newName, const QString& oldName)
{
    // Lower-casing only one side means that no name with a capital letter is ever matched. Existing books rely on what
    // this leaves untouched, so it stays; renaming an account moves the remaining entries by itself.
    return Write("ChangeEntryAccount", [&] {
        const cBoundList names{modRow::Doubled(newName), modRow::Doubled(oldName)};
        m_database.Execute("UPDATE data SET EntryAccount=? WHERE EntryAccount=lower(?)", names);
        m_database.Execute("UPDATE data SET EntryAccountMove=? WHERE EntryAccountMove=lower(?)", names);
    });
}

bool cDataAccess::ChangeEntryCategory(const QString& newPath, const QString& oldPath)
{
    return Write("ChangeEntryCategory", [&] {
        m_database.Execute("UPDATE data SET EntryCategory=? WHERE EntryCategory=?",
                           {modRow::Doubled(newPath), modRow::Doubled(oldPath)});
    });
}

std::optional<cEntryItem> cDataAccess::LoadEntry(int id)
{
    std::optional<cEntryItem> entry;
    Read("LoadEntry", [&] { entry = First(ReadEntries(m_database, " WHERE ID = ?", {id})); });
    return entry;
}

cEntryItemList cDataAccess::GetEntriesByTarget(const QString& account, const QString& target, const QString& type)
{
    cEntryItemList entries;
    Read("GetEntriesByTarget", [&] {
        entries = ReadEntries(m_database, " WHERE EntryAccount = ? AND EntryAccountMove = ? AND EntryType = ?",
                              {modRow::Doubled(account), modRow::Doubled(target), type});
    });
    return entries;
}

cEntryItemList cDataAccess::GetSeries()
{
    cEntryItemList entries;
    Read("GetSeries",
         [&] { entries = ReadEntries(m_database, " WHERE EntryInterval <> ? ORDER BY ID", {modWord::Einmalig}); });
    return entries;
}

cEntryItemList cDataAccess::GetSeriesOfAccount(const QString& account)
{
    cEntryItemList entries;
    Read("GetSeriesOfAccount", [&] {
        const QString stored = modRow::Doubled(account);
        entries = ReadEntries(m_database, " WHERE EntryInterval <> ? AND (EntryAccount = ? OR EntryAccountMove = ?)",
                              {modWord::Einmalig, stored, stored});
    });
    return entries;
}

QHash<int, QString> cDataAccess::GetEntryCategories(int firstId, int lastId)
{
    QHash<int, QString> categories;
    Read("GetEntryCategories", [&] {
        cWordCache words(eQuotes::Doubled);
        cRows rows(m_database, "SELECT ID, EntryCategory FROM data WHERE ID BETWEEN ? AND ?", {firstId, lastId});
        while (rows.Next()) {
            categories.insert(static_cast<int>(rows.Integer(0)), words.Get(rows.Bytes(1)));
        }
    });
    return categories;
}

int cDataAccess::CountEntries()
{
    int count = 0;
    Read("CountEntries", [&] { count = Count(m_database, "SELECT COUNT(*) FROM data", {}); });
    return count;
}

int cDataAccess::CountEntriesOfAccount(const QString& account)
{
    int count = 0;
    Read("CountEntriesOfAccount", [&] {
        count = Count(m_database, "SELECT COUNT(*) FROM data WHERE EntryAccount = ?", {modRow::Doubled(account)});
    });
    return count;
}

int cDataAccess::CountEntriesOfCategory(const QString& path)
{
    int count = 0;
    Read("CountEntriesOfCategory", [&] {
        count = Count(m_database, "SELECT COUNT(*) FROM data WHERE EntryCategory LIKE ?", {modRow::Doubled(path)});
    });
    return count;
}

QHash<QString, int> cDataAccess::CountEntriesByCategory()
{
    QHash<QString, int> counts;
    Read("CountEntriesByCategory", [&] {
        counts = CountByText(m_database,
                             "SELECT EntryCategory, COUNT(*) FROM data WHERE EntryCategory IS NOT NULL "
                             "GROUP BY EntryCategory");
    });
    return counts;
}

QHash<QString, int> cDataAccess::CountEntriesByAccount()
{
    QHash<QString, int> counts;
    Read("CountEntriesByAccount", [&] {
        counts = CountByText(m_database,
                             "SELECT EntryAccount AS Name, COUNT(*) FROM data WHERE Name <> '' GROUP BY Name "
                             "UNION ALL SELECT EntryAccountMove AS Name, COUNT(*) FROM data "
                             "WHERE EntryType = 'Umbuchung' AND Name <> '' AND Name <> EntryAccount GROUP BY Name");
    });
    return counts;
}

bool cDataAccess::MoveEntriesToAccount(const QString& newName, const QString& oldName)
{
    return Write("MoveEntriesToAccount", [&] {
        const cBoundList names{modRow::Doubled(newName), modRow::Doubled(oldName)};
        m_database.Execute("UPDATE data SET EntryAccount=? WHERE EntryAccount=?", names);
        m_database.Execute("UPDATE data SET EntryAccountMove=? WHERE EntryAccountMove=?", names);
    });
}

QStringList cDataAccess::GetEntryAccounts()
{
    QStringList accounts;
    Read("GetEntryAccounts", [&] {
        cRows rows(m_database, "SELECT DISTINCT EntryAccount FROM data");
        while (rows.Next()) {
            accounts.append(modRow::ReadDoubled(rows.Bytes(0)));
        }
    });
    return accounts;
}

std::optional<cEntryItem> cDataAccess::GetStartGuthaben(const QString& account)
{
    std::optional<cEntryItem> entry;
    Read("GetStartGuthaben", [&] { entry = StartOf(m_database, account); });
    return entry;
}

QHash<QString, cEntryItem> cDataAccess::GetStartBalances()
{
    QHash<QString, cEntryItem> byAccount;
    Read("GetStartBalances", [&] {
        const cEntryItemList entries =
            ReadEntries(m_database, " WHERE EntryCategory = ? AND EntryInterval = ? ORDER BY ID DESC",
                        {modWord::Startguthaben, modWord::Einmalig});
        for (const cEntryItem& entry : entries) {
            byAccount.insert(entry.EntryAccount, entry);
        }
    });
    return byAccount;
}

bool cDataAccess::SetStartGuthaben(const QString& account, qint64 cents, QDate date)
{
    cEntryItem entry;
    const bool isRead = Write("SetStartGuthaben", [&] { entry = StartOf(m_database, account).value_or(cEntryItem{}); });
    if (!isRead) {
        return false; // a second start balance would be worse than none
    }
    entry.EntryDate = date;
    entry.EntryType = cents < 0 ? modWord::Ausgabe : modWord::Einnahme;
    entry.EntryValue = std::abs(cents);
    if (entry.ID > 0) {
        return ChangeEntry(entry);
    }
    entry.EntryDateEnd = modRecurrence::OpenEnd;
    entry.EntryInterval = modWord::Einmalig;
    entry.EntryAccount = account;
    entry.EntryCategory = modWord::Startguthaben;
    entry.EntryDescription = u"Startguthaben"_s;
    return AddNewEntry(entry);
}
