#pragma once

#include "import/stage/cImportResult.h"

#include <QList>
#include <QStringList>

// What came of statement files.
struct cFilesOutcome
{
    QList<cImportResult> Files{};
    QStringList Notes{}; // accounts of new numbers, start balances
    bool IsDone = true;  // the database took what else became of them
};
