#pragma once

#include "model/cImportEntry.h"

#include <QList>
#include <QString>

#include <optional>

// A line of a statement file that could not be read, and why.
struct cReadProblem
{
    int Line = 0; // counted from 1; 0 when it concerns the whole file
    QString Text; // German

    bool operator==(const cReadProblem&) const = default;
};

// What a reader makes of a statement text: records that are not staged yet.
struct cStatementRead
{
    cImportEntryList Entries;
    std::optional<qint64> ClosingBalance; // cents, signed
    QList<cReadProblem> Problems;
};
