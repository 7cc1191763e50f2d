#include "base/modAmount.h"
#include "base/modDate.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

namespace {

// The numbers under which a truth value stands in table `import`
constexpr int isTrue = -1;
constexpr int isFalse = 0;

cBoundList ImportValues(const cImportEntry& entry)
{
    return {modRow::Doubled(entry.ImportAccount),
            modDate::ToIso(entry.ImportDate),
            modRow::Doubled(entry.ImportType),
            modRow::Doubled(entry.ImportPurpose),
            modRow::Doubled(entry.ImportBeneficiary),
            modRow::Doubled(entry.ImportBeneficiaryAccount),
            modRow::Doubled(entry.ImportBeneficiaryBLZ),
            modAmount::ToEuros(entry.ImportValue), // the column holds euros
            modRow::Doubled(entry.ImportCurrency),
            entry.ImportAssigned ? isTrue : isFalse,
            entry.ImportAssignedEntry};
}

// Reads rows of table `import`; one reader per query.
class cImportReader
{
public:
    [[nodiscard]] cImportEntry Read(const cRows& row)
    {
        return {
            .ID = static_cast<int>(row.Integer(0)),
            .ImportAccount = m_accounts.Get(row.Bytes(1)),
            .ImportDate = m_days.Get(row.Bytes(2)),
            .ImportType = m_types.Get(row.Bytes(3)),
            .ImportPurpose = modRow::ReadDoubled(row.Bytes(4)),
            .ImportBeneficiary = m_names.Get(row.Bytes(5)),
            .ImportBeneficiaryAccount = m_numbers.Get(row.Bytes(6)),
            .ImportBeneficiaryBLZ = m_banks.Get(row.Bytes(7)),
            .ImportValue = modAmount::ToCents(row.Real(8)),
            .ImportCurrency = m_currencies.Get(row.Bytes(9)),
            .ImportAssigned = row.Integer(10) != isFalse,
            .ImportAssignedEntry = row.Bytes(11).empty() ? -1 : static_cast<int>(row.Integer(11)),
        };
    }

private:
    cDayCache m_days;
    cWordCache m_accounts{eQuotes::Doubled};
    cWordCache m_types{eQuotes::Doubled};
    cWordCache m_names{eQuotes::Doubled};
    cWordCache m_numbers{eQuotes::Doubled};
    cWordCache m_banks{eQuotes::Doubled};
    cWordCache m_currencies{eQuotes::Doubled};
};

} // namespace

cImportEntryList cDataAccess::GetImportEntries()
{
    cImportEntryList entries;
    const bool isRead = Read("GetImportEntries", [&] {
        cImportReader reader;
        cRows rows(m_database,
                   "SELECT ID, ImportAccount, ImportDate, ImportType, ImportPurpose, ImportBeneficiary, "
                   "ImportBeneficiaryAccount, ImportBeneficiaryBLZ, ImportValue, ImportCurrency, "
                   "ImportAssigned, ImportAssignedEntry FROM import ORDER BY ID");
        while (rows.Next()) {
            entries.append(reader.Read(rows));
        }
    });
    return isRead ? entries : cImportEntryList{};
}

bool cDataAccess::AddNewImportEntry(cImportEntry& entry)
{
    return Write("AddNewImportEntry", [&] {
        m_database.Execute(
            "INSERT INTO import (ImportAccount, ImportDate, ImportType, ImportPurpose, ImportBeneficiary, "
            "ImportBeneficiaryAccount, ImportBeneficiaryBLZ, ImportValue, ImportCurrency, ImportAssigned, "
            "ImportAssignedEntry) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            ImportValues(entry));
        m_database.NoteImportWrite();
        entry.ID = static_cast<int>(m_database.LastInsertId());
    });
}

bool cDataAccess::ChangeImportEntry(const cImportEntry& entry)
{
    return Write("ChangeImportEntry", [&] {
        cBoundList values = ImportValues(entry);
        values.emplace_back(entry.ID);
        m_database.Execute("UPDATE import SET ImportAccount=?, ImportDate=?, ImportType=?, ImportPurpose=?, "
                           "ImportBeneficiary=?, ImportBeneficiaryAccount=?, ImportBeneficiaryBLZ=?, ImportValue=?, "
                           "ImportCurrency=?, ImportAssigned=?, ImportAssignedEntry=? WHERE ID = ?",
                           values);
        m_database.NoteImportWrite();
    });
}

bool cDataAccess::DeleteImport(int id)
{
    return Write("DeleteImport", [&] {
        m_database.Execute("DELETE FROM import WHERE ID = ?", {id});
        m_database.NoteImportWrite();
    });
}

bool cDataAccess::DeleteAllImports()
{
    return Write("DeleteAllImports", [&] {
        m_database.Execute("DELETE FROM import");
        m_database.NoteImportWrite();
    });
}

bool cDataAccess::ReleaseImports(int entryId)
{
    return Write("ReleaseImports", [&] {
        m_database.Execute("UPDATE import SET ImportAssigned=?, ImportAssignedEntry=? WHERE ImportAssignedEntry = ?",
                           {isFalse, -1, entryId});
        m_database.NoteImportWrite();
    });
}

QStringList cDataAccess::GetImportAccounts()
{
    QStringList accounts;
    Look("GetImportAccounts", [&] {
        cRows rows(m_database, "SELECT DISTINCT ImportAccount FROM import");
        while (rows.Next()) {
            accounts.append(modRow::ReadDoubled(rows.Bytes(0)));
        }
    });
    return accounts;
}

QHash<QString, int> cDataAccess::CountOpenImports()
{
    QHash<QString, int> counts;
    Look("CountOpenImports", [&] {
        cRows rows(m_database,
                   "SELECT ImportAccount, COUNT(*) FROM import "
                   "WHERE IFNULL(CAST(ImportAssigned AS INTEGER), 0) = 0 GROUP BY ImportAccount");
        while (rows.Next()) {
            counts[modRow::ReadDoubled(rows.Bytes(0))] += static_cast<int>(rows.Integer(1));
        }
    });
    return counts;
}

quint64 cDataAccess::KnownImportVersion() const
{
    return m_database.KnownImportVersion();
}

quint64 cDataAccess::ImportVersion()
{
    quint64 version = 0;
    Read("ImportVersion", [&] { version = m_database.ImportVersion(); });
    return version;
}
