#pragma once

#include "import/table/cTable.h"

#include <QList>
#include <QString>

// A sheet of a workbook. Cells that are numbers and days in the workbook are German texts here, whatever the rest of
// the sheet looks like.
struct cSheet
{
    QString Name;
    cTable Table;
    QList<int> Numbers; // how many cells of each column are numbers in the workbook
    QList<int> Days;    // the same for days

    [[nodiscard]] bool HasNumbers(int column) const { return column >= 0 && Numbers.value(column) > 0; }
    [[nodiscard]] bool HasDays(int column) const { return column >= 0 && Days.value(column) > 0; }
};

// What a reader makes of a workbook.
struct cSpreadsheet
{
    QList<cSheet> Sheets;
    QString Refusal; // German; why it could not be read. Empty when it was
};
