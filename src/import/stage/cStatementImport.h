#pragma once

#include "import/read/cReadOptions.h"
#include "import/stage/cImportResult.h"
#include "import/stage/cStaging.h"
#include "import/stage/modStatementFormat.h"

#include <QString>

#include <optional>

class cBankBalances;
class cDataAccess;
class cImportHiveCache;
class cKnownAccounts;
class cFetchMemory;
class cProgress;
struct cFetchedStatement;
struct cStatementSource;

// What becomes of a table whose columns were guessed, cannot be read or lack an account: it is read as far as that
// goes, or the caller asks the user first.
enum class eUncertain { Read, Ask };

// What becomes of rows that a file has more often than the book: those that the balances of the bank prove are staged,
// those about which they say nothing are reported, or staged as well.
enum class eEqualRows { Report, Take };

struct cImportOptions
{
    eDuplicateTest Duplicates = eDuplicateTest::Test;
    QString DefaultAccount;                                 // own account number for statements that do not name theirs
    eMissingPurpose MissingPurpose = eMissingPurpose::Name; // a row without any text could not be recognised later
    cTableChoice Table = {};                                // what the user chose for a file in rows and columns
    eStagingRun Run = eStagingRun::Write;
    eUncertain Uncertain = eUncertain::Read;
    eEqualRows Equal = eEqualRows::Report;
    eStrayDetails StrayDetails = eStrayDetails::Refuse;
    eOfxPayee OfxPayee = eOfxPayee::Take; // without it nothing could be proposed
    QString BookCurrency = {};            // its code: amounts in another one are refused; empty: taken as they are
};

// Statement files into staged rows.
class cStatementImport
{
public:
    // With a memory, layouts that the user confirmed once are read the same way again. With `balances`, what the bank
    // says its accounts hold is kept there. Both outlive the import.
    cStatementImport(cDataAccess& data, cImportHiveCache& hive, cTableMemory* memory = nullptr,
                     cBankBalances* balances = nullptr);

    // Reads a file of any format the program knows and stages its transactions. Whatever the file holds, the result
    // says what happened; only a refusing database shows a message of its own. An account that is already staged under
    // its other form (IBAN or number) keeps that form, so that a booking is known again in another format.
    [[nodiscard]] cImportResult ImportFile(const QString& path, const cImportOptions& options, cProgress& progress);

    // The same for a file that was loaded before. Who hands it over for good has its memory back before the rows are
    // staged.
    [[nodiscard]] cImportResult ImportSource(cStatementSource source, const cImportOptions& options,
                                             cProgress& progress);

    // Stages the transactions of an MT940 or MT942 text, as the online fetch hands it over. The closing balance in
    // cents, negative unless its mark contains "C"; 0 when there is none or when a :86: line stands before its :61:
    // line, in which case nothing is staged, because the text is read to its end before the first transaction is.
    qint64 ImportMT940(cProgress& progress, const cImportOptions& options, const QString& text,
                       const QString& defaultAccount);

    // Stages what an online fetch brought of one account, MT940 and camt documents as one. A text that ends before its
    // end is taken up to the last statement that is whole, for a purpose that was cut off would come again in full.
    // What one of the documents refuses, nothing is taken of. Rows that an earlier fetch brought and that the user
    // deleted since are held back.
    [[nodiscard]] cImportResult ImportFetched(const cFetchedStatement& fetched, const cImportOptions& options,
                                              cProgress& progress);

    // The staged rows with those of the files that were read in this way.
    [[nodiscard]] cStaging& StagingFor(eStagingRun run);

private:
    [[nodiscard]] cImportResult ReadAndStage(cStatementSource source, const cImportOptions& options,
                                             cProgress& progress);
    [[nodiscard]] cStatementRead Read(const cStatementSource& source, eStatementFormat format,
                                      const cImportOptions& options, cProgress& progress);
    [[nodiscard]] QString WhyNot(eStatementFormat format, const cImportOptions& options) const;
    void StageAsOne(cStatementRead read, const cImportOptions& options, cProgress& progress, cImportResult& result,
                    const cFetchedStatement* fetched = nullptr);
    void FitToBook(cStatementRead& read, cKnownAccounts& known, const cImportOptions& options, eStatementFormat kind);
    void Stage(cStatementRead& read, const cImportOptions& options, cProgress& progress, cImportResult& result,
               const cFetchMemory* memory);
    void SettleEqual(const cStatementRead& read, const cImportOptions& options, cImportResult& result,
                     const cFetchMemory* memory);
    [[nodiscard]] int RowCount();
    void NoteFetch(const cStatementRead& read, const cFetchedStatement& fetched, eStagingRun run,
                   cImportResult& result);
    void KeepBalances(const cStatementRead& read, const cKnownAccounts& known, eStagingRun run, cImportResult& result);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    cStaging m_staging;
    std::optional<cStaging> m_trial; // of files that are only tried one after the other
    cTableMemory* m_memory;
    cBankBalances* m_balances;
};
