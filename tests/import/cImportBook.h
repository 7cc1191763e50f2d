#pragma once

#include "base/cProgress.h"
#include "import/plan/cImportPlan.h"
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

    // What the program makes of rows, each of which came with a file of its own.
    [[nodiscard]] QHash<int, cRowPlan> Plan(const QList<int>& rows)
    {
        cNoProgress progress;
        const auto fileOf = [this](int id) { return modStagedTwins::cFile{id, Kinds.value(id)}; };
        return cImportPlan({Data, Hive, Accounts, fileOf}).Make(rows, progress);
    }

    [[nodiscard]] cRowPlan PlanOf(int row) { return Plan({row}).value(row); }
    [[nodiscard]] cProposal Propose(int row) { return PlanOf(row).Proposal; }

    // Rows whose entry is there go to it, the others become entries.
    [[nodiscard]] cBookingResult BookAll(const QList<int>& rows)
    {
        QHash<int, cProposal> proposals;
        int assigned = 0;
        const QHash<int, cRowPlan> plans = Plan(rows);
        for (const cRowPlan& plan : plans) {
            if (plan.Match) {
                assigned += Booking.Assign(plan.RowId, plan.Match->Entry.ID) ? 1 : 0;
            } else {
                proposals.insert(plan.RowId, plan.Proposal);
            }
        }
        cNoProgress progress;
        cBookingResult result = Booking.Book(proposals.keys(), proposals, progress);
        result.Rows += assigned;
        result.Joined += assigned;
        return result;
    }

    // Books a row as the user wants it.
    [[nodiscard]] bool BookAs(int row, const cEntryItem& entry)
    {
        cNoProgress progress;
        cProposal proposal;
        proposal.Entry = entry;
        return Booking.Book({row}, {{row, proposal}}, progress).Rows == 1;
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
    cBooking Booking{Data, Hive, Accounts};
    QHash<int, QChar> Kinds; // of the formats of rows that two files tell of different days
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
