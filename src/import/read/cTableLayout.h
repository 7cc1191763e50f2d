#pragma once

#include "import/read/cColumnMap.h"
#include "import/read/cStatementRead.h"
#include "import/read/cTableChoice.h"
#include "import/read/cTableDoubt.h"

#include <QChar>
#include <QString>

#include <optional>

// Who or what decided about the columns.
enum class eMapOrigin { Words, Contents, Profile, Memory, User };
// Texts that hold more than the purpose.
enum class eDetails { None, Labelled, Austrian, Spaced };

// How a table is to be read.
struct cTableLayout
{
    QChar Separator;
    int HeaderRow = -1; // row of the table; -1: the table has no header
    int FirstRow = 0;   // the first row of data
    int EndRow = -1;    // the row behind the last one, where another part of the file begins; -1: there is none
    cColumnMap Map;
    eMapOrigin Origin = eMapOrigin::Words;
    eNumberFormat Number = eNumberFormat::Detect; // Detect: decided from the cells when rows are read
    eDateOrder Date = eDateOrder::DayMonthYear;
    eSignRule Sign = eSignRule::AsWritten;
    eDetails Details = eDetails::None;
    QString Currency;         // of all rows; empty where only a column tells it
    QString OnlyCurrency;     // rows in another one are no bookings of the account; empty: all are
    QString OwnNumber;        // own account that is on one of the two sides of every row; empty: the file does not say
    bool IsDateGuess = false; // day and month could be the other way round in every row
    bool IsSideGuess = false; // nothing tells which of the two sides is which
    bool IsSignUsual = false; // nothing proves the sign; one that is remembered for the account goes before it
    bool IsSignOpen = false;  // the columns are remembered, which way their amounts count is not
    std::optional<cTableDoubt> Doubt; // which nothing but the sign rule of a choice ends
    QString Profile;                  // name of the known layout; empty when there is none
    QString Key;                      // hash of the header for the memory; empty without a header
    QString AccountKey;               // the same with the lines above it
    QList<cReadProblem> Notes = {};   // what was put right in the table or is doubtful about it

    // A table can only be read with a date and an amount.
    [[nodiscard]] bool IsReadable() const
    {
        return Map.Date >= 0 && (Map.Amount >= 0 || Map.Credit >= 0 || Map.Debit >= 0);
    }
};
