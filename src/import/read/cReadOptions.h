#pragma once

#include "import/read/cTableChoice.h"

#include <QString>

class cTableMemory;

// What stands in for the purpose of a transaction that has none.
enum class eMissingPurpose { Empty, Name };

// Whether transactions of OFX get the counterparty that the file names. The plain reading leaves it empty.
enum class eOfxPayee { Leave, Take };

// What becomes of details in an MT940 statement that stand before its first transaction: the whole text is refused, or
// they are passed over because the user has seen that.
enum class eStrayDetails { Refuse, PassOver };

// What a reader is told beside the file.
struct cReadOptions
{
    QString Account; // own account number for statements that do not name theirs
    eMissingPurpose MissingPurpose = eMissingPurpose::Empty;
    cTableChoice Table;                   // what the user chose for rows and columns; the rest is detected
    const cTableMemory* Memory = nullptr; // what the user chose for the same layout before; may be missing

    eStrayDetails StrayDetails = eStrayDetails::Refuse;
    eOfxPayee OfxPayee = eOfxPayee::Leave;
};
