#pragma once

#include "import/read/cTableChoice.h"
#include "import/read/cTableDoubt.h"
#include "model/bank/cBankBalance.h"
#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

// A line of a statement file that could not be read, and why.
struct cReadProblem
{
    int Line = 0; // counted from 1; 0 when it concerns the whole file
    QString Text; // German

    bool operator==(const cReadProblem&) const = default;
};

// Why a row of the file is no booking.
enum class eSkipped { Pending, Balance, Unreadable, OtherCurrency, Void, CutOff };

// A row that was read but is not to be staged. The user can have it staged all the same when it has an amount.
struct cSkippedRow
{
    cReadProblem Reason;
    eSkipped Kind = eSkipped::Unreadable;
    cImportEntry Entry;
};

// The bank's balance of one of the accounts in the file, at the end or at the beginning of what the file lists.
struct cAccountBalance
{
    QString Account;
    qint64 Cents = 0;            // signed
    QDate Date;                  // invalid when the file does not say
    cBankBalance::cMoved Late{}; // as far as the file knows
    cBankBalance::cMoved Early{};

    bool operator==(const cAccountBalance&) const = default;
};

// A row that the bank entered behind its day. Balances between the two lack it, also those of earlier statements.
struct cEarlyRow
{
    QString Account;
    QDate Day;
    QDate Booked;
    qint64 Cents = 0;
};

// A booking in parts, and the row that would be all of it.
struct cWholeBooking
{
    qsizetype First = 0; // place of the first part among the entries
    qsizetype Count = 0;
    cImportEntry Row;
};

enum class eStatementFormat;

// What a reader makes of a statement file: records that are not staged yet. A file with several accounts is one list;
// each record carries its account.
struct cStatementRead
{
    cImportEntryList Entries;
    std::optional<qint64> ClosingBalance; // cents, signed; the last one of the file
    QList<cReadProblem> Problems;
    QList<cSkippedRow> Skipped;
    QList<cAccountBalance> Balances;  // by account, where the format has them; the closing one comes last
    QList<cEarlyRow> EarlyRows;       // of tables that name no balance before them
    QString Refusal;                  // German; why nothing could be read at all. Empty when the file was read
    bool NeedsAccount = false;        // no account in the file and none was given: nothing may be staged
    bool IsAccountRemembered = false; // the file names none: it is the one that such files were given before
    bool IsTable = false;             // made of rows and columns
    bool IsGuessed = false;           // nothing but the contents told the columns of the table
    std::optional<cTableDoubt> Doubt; // to be answered before anything is staged
    QString Layout;                   // name of the table layout (a bank's) that was recognised
    QList<qsizetype> Parts; // places of the entries with which further files of the source begin: these may overlap
    QList<eStatementFormat> Formats;    // of these files, where they may differ
    QHash<qsizetype, QString> Ids;      // by the place of an entry, the bank's own mark of the transaction
    QString SignKey;                    // of a table, under which its sign is remembered; empty: it cannot be
    std::optional<eSignRule> Sign;      // to be remembered under it
    std::optional<eSignRule> KnownSign; // that was remembered under it and settled what the table leaves open
    QString AccountKey;                 // under which the account of such files is remembered; empty: it cannot be

    QList<cWholeBooking> Wholes; // in the order of the entries

    bool IsBook = false; // of another household book: its rows may name categories and accounts, see modBookRow

    bool WasNameless = false;     // earlier versions of the program staged such rows without their counterparties
    bool HasStrayDetails = false; // refused only because of them: eStrayDetails::PassOver reads the rest

    QMap<QString, QString> BankCodes; // of own accounts by their number, as far as the file names them

    // Of the file that the entry at this place came with; none where all are of one format.
    [[nodiscard]] std::optional<eStatementFormat> FormatAt(qsizetype place) const;

    // Adds what was read of a further part.
    void Append(cStatementRead more);

    [[nodiscard]] static cStatementRead Refused(const QString& reason);

    // A file with more transactions is no household's statement: readers refuse it before it fills memory.
    static constexpr qsizetype mostEntries = 500'000;
    [[nodiscard]] static cStatementRead TooMany();
};
