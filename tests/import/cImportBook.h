#pragma once

#include "base/cProgress.h"
#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStaging.h"
#include "import/stage/cStatementImport.h"
#include "support/testBook.h"

#include <string>

// A new book with the tools of the import over it.
struct cImportBook : cTestBook
{
    // What another program would do to the file.
    void WriteBehind(const std::string& sql) const
    {
        cDatabase other;
        other.Open(Path(), eOpenMode::ReadWrite);
        other.Execute(sql);
    }

    // Books a row as the user wants it.
    [[nodiscard]] static cBookingResult BookAs(cBooking& booking, int row, const cEntryItem& entry)
    {
        cNoProgress progress;
        cProposal proposal;
        proposal.Entry = entry;
        return booking.Book({row}, {{row, proposal}}, progress);
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
};

// A row as a statement brings it.
inline cImportEntry BankRow(const QString& own, QDate date, qint64 cents, const QString& name,
                            const QString& purpose = {}, const QString& account = {})
{
    cImportEntry row;
    row.ImportAccount = own;
    row.ImportDate = date;
    row.ImportValue = cents;
    row.ImportBeneficiary = name;
    row.ImportBeneficiaryAccount = account;
    row.ImportPurpose = purpose;
    return row;
}

// The same, in which the two accounts of a household have their numbers.
struct cBankBook : cImportBook
{
    cBankBook()
    {
        if (!Accounts.Assign(QStringLiteral("111"), QStringLiteral("Girokonto"))
            || !Accounts.Assign(QStringLiteral("222"), QStringLiteral("Sparkonto"))) {
            qFatal("numbers not assigned");
        }
    }

    // The ID of a row as it came from the bank; 0 when it was not taken.
    int Stage(cImportEntry row)
    {
        return cStaging(Hive).StageImportEntry(row, eDuplicateTest::Skip) == eStaged::Staged ? row.ID : 0;
    }

    // The entry that a row is assigned to.
    [[nodiscard]] int EntryOf(int row)
    {
        return Hive.GetImportHive().GetImportEntryByID(row).value_or(cImportEntry()).ImportAssignedEntry;
    }
};

// The same, into which statements are read.
struct cReadingBook : cImportBook
{
    cImportResult Read(const QString& text, const cImportOptions& options = {},
                       const QString& name = QStringLiteral("a"))
    {
        cNoProgress progress;
        return Import.ImportSource({name, {}, text}, options, progress);
    }
    cImportResult ReadFile(const QString& path, const cImportOptions& options = {})
    {
        cNoProgress progress;
        return Import.ImportFile(path, options, progress);
    }

    cBankBalances Balances{*Settings};
    cStatementImport Import{Data, Hive, nullptr, &Balances};
};
