#pragma once

#include "import/read/cStatementRead.h"
#include "import/stage/cRepeat.h"
#include "import/stage/modForeignNames.h"
#include "import/stage/modStatementFormat.h"
#include "model/cImportEntry.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The staged rows of a file that are of one format: an archive may hold the same bookings in several.
struct cFormatRows
{
    eStatementFormat Format{};
    QList<int> Ids;
};

// What became of a statement file.
struct cImportResult
{
    QString File; // path as given; of a fetch, the name of the account
    bool IsFetched = false;
    eStatementFormat Kind = eStatementFormat::Unknown;
    QString Format; // display name
    int Read = 0;   // transactions in the file
    int Staged = 0;
    QList<cFormatRows> ByFormat;
    int Zero = 0;   // transactions without amount, never staged
    int Failed = 0; // transactions that the database did not take, those behind the point of giving up included
    cImportEntryList Duplicates; // not staged because an equal row is; each can be staged with eDuplicateTest::Skip
    cImportEntryList Alike;      // not staged because one is that differs in nothing but blanks; likewise
    cImportEntryList Deleted;    // of a fetch: not staged because an earlier one brought it and the user deleted it
    cRepeatList Repeats; // equal to others of the file and not staged, because nothing tells whether they are real
    cRepeatList Settled; // equal rows that were staged, or that the bank's balances rule out
    int Proven = 0;      // of the staged ones: equal to others, but the bank's balances need them
    int Told = 0;        // likewise, but the bank marks each of them
    std::optional<qint64> ClosingBalance; // cents, signed
    QStringList FirstBalances;    // own account numbers of whose start the balances tell more than those before them
    QList<cReadProblem> Problems; // lines that could not be read
    QList<cSkippedRow> Skipped;   // rows of the file that are no bookings
    QStringList Accounts;         // own account numbers of the file in their order; "" for statements without one
    bool IsRefused = false;       // nothing was read; Message says why
    bool IsCancelled = false;     // the user stopped; nothing of the file was staged
    QString Message;              // German; empty when all went well
    bool NeedsAccount = false;    // refused only because the file names no account and none was given
    cImportEntryList Unowned;     // refused only because the file names no account: its rows
    bool IsAccountRemembered = false;   // as in cStatementRead
    bool NeedsAssistant = false;        // refused only because a table is not certain, see eUncertain
    bool HasStrayDetails = false;       // refused only because of details before a transaction, see eStrayDetails
    QStringList OtherCurrencies;        // refused only because of them: codes
    std::optional<cTableDoubt> Doubt;   // refused only because of it
    cImportEntryList Rows;              // with eStagingRun::Try: what would have been staged
    cForeignNames Book;                 // what the file names that is of another household book
    QString Layout;                     // name of the table layout that was recognised
    std::optional<eSignRule> KnownSign; // as in cStatementRead
    bool IsSignKept = false;            // of a table: how its amounts count is remembered for the account
    QString AccountKey;                 // of a table, for cTableMemory
    QString Number;                     // of a fetch: its account in the form in which it is staged
};
