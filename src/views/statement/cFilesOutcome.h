#pragma once

#include <QList>
#include <QStringList>

struct cImportResult;

// What came of statement files.
struct cFilesOutcome
{
    QList<cImportResult> Files{};
    QStringList Notes{}; // accounts of new numbers, start balances
    bool IsDone = true;  // the database took what else became of them
    bool IsKept = true;  // of a fetch: the database took it at all
};
