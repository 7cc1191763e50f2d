#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

cEntryItemList cDataAccess::GetEntriesOfSplit(int group)
{
    cEntryItemList entries;
    const bool isRead = Read("GetEntriesOfSplit", [&] {
        // The flags have other parts as well, so the mark is looked for between their separators.
        cEntryReader reader;
        cRows rows(m_database,
                   std::string(cEntryReader::Select)
                       + " WHERE EntryFlags LIKE '%split=%' AND ';' || EntryFlags || ';' LIKE ? ORDER BY ID",
                   {QStringLiteral("%;split=%1;%").arg(group)});
        while (rows.Next()) {
            entries.append(reader.Read(rows));
        }
    });
    return isRead ? entries : cEntryItemList{};
}

cEntryItemList cDataAccess::GetEntriesFlagged(const QString& key)
{
    cEntryItemList entries;
    const bool isRead = Read("GetEntriesFlagged", [&] {
        cEntryReader reader;
        cRows rows(m_database,
                   std::string(cEntryReader::Select) + " WHERE ';' || EntryFlags LIKE ? ORDER BY EntryDate, ID",
                   {QStringLiteral("%;%1=%").arg(key)});
        while (rows.Next()) {
            entries.append(reader.Read(rows));
        }
    });
    return isRead ? entries : cEntryItemList{};
}

QList<cDescriptionUse> cDataAccess::GetDescriptionUses(int entries)
{
    QList<cDescriptionUse> uses;
    Look("GetDescriptionUses", [&] {
        // Only the newest rows, by the primary key: the time does not grow with the book. Beside MAX(ID), SQLite takes
        // the other columns from the newest row of each group. A use counts less the longer ago it is, half after a
        // hundred entries.
        cRows rows(m_database,
                   "SELECT EntryDescription, EntryCategory, EntryAccount, MAX(ID), "
                   "SUM(100.0 / (100 + (SELECT MAX(ID) FROM data) - ID)) AS Weight "
                   "FROM (SELECT ID, EntryDescription, EntryCategory, EntryAccount FROM data ORDER BY ID DESC LIMIT ?) "
                   "WHERE EntryDescription <> '' AND EntryCategory <> ? "
                   "GROUP BY EntryDescription ORDER BY Weight DESC",
                   {entries, modWord::Startguthaben});
        cWordCache names(eQuotes::Doubled);
        while (rows.Next()) {
            uses.append({modRow::ReadDoubled(rows.Bytes(0)), names.Get(rows.Bytes(1)), names.Get(rows.Bytes(2))});
        }
    });
    return uses;
}

QStringList cDataAccess::GetRecentCategories(int entries)
{
    QStringList paths;
    Look("GetRecentCategories", [&] {
        cRows rows(m_database,
                   "SELECT EntryCategory FROM (SELECT ID, EntryCategory FROM data ORDER BY ID DESC LIMIT ?) "
                   "WHERE EntryCategory <> '' AND EntryCategory <> ? GROUP BY EntryCategory ORDER BY MAX(ID) DESC",
                   {entries, modWord::Startguthaben});
        while (rows.Next()) {
            paths.append(modRow::ReadDoubled(rows.Bytes(0)));
        }
    });
    return paths;
}

QString cDataAccess::GetLastAccount()
{
    QString account;
    Look("GetLastAccount", [&] {
        cRows rows(m_database, "SELECT EntryAccount FROM data WHERE EntryCategory <> ? ORDER BY ID DESC LIMIT 1",
                   {modWord::Startguthaben});
        account = rows.Next() ? modRow::ReadDoubled(rows.Bytes(0)) : QString();
    });
    return account;
}
