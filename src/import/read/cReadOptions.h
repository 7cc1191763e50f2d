#pragma once

#include "import/read/cTableChoice.h"

#include <QString>

class cTableMemory;

// What stands in for the purpose of a transaction that has none.
enum class eMissingPurpose { Empty, Name };

// What a reader is told beside the file.
struct cReadOptions
{
    QString Account; // own account number for statements that do not name theirs
    eMissingPurpose MissingPurpose = eMissingPurpose::Empty;
    cTableChoice Table;                   // what the user chose for rows and columns; the rest is detected
    const cTableMemory* Memory = nullptr; // what the user chose for the same layout before; may be missing
};
