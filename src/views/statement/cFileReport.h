#pragma once

#include "model/cImportEntry.h"

#include <QChar>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// What came of a statement file, with all its figures.
struct cFileReport
{
    struct cLine
    {
        int Number = 0; // counted from 1; 0 when it concerns the whole file
        QString Text;
        QString Shown; // the same with the number
    };

    // A row of the file that is no booking.
    struct cLeftOut
    {
        cLine Reason;
        QString Kind; // "pending", "balance", "unreadable", "otherCurrency", "void", "cutOff"
        cImportEntry Entry;
    };

    QString File; // path as given
    QString Format;
    QString Layout; // name of the table layout that was recognised
    int Read = 0;   // transactions in the file
    int Staged = 0;
    int Zero = 0;                         // without amount
    int Failed = 0;                       // that the database did not take
    cImportEntryList Duplicates;          // also those that differ in nothing but blanks
    cImportEntryList Repeats;             // that the file has more often than the book; nothing proves them
    cImportEntryList Rows;                // of a trial: what would have been staged
    std::optional<qint64> ClosingBalance; // cents, signed
    QList<cLine> Problems;
    QList<cLeftOut> Skipped;
    bool IsRefused = false;
    QString Message;     // why, or what went wrong; empty when all went well
    QString Numbers;     // "7 gelesen, 5 neu"

    bool HasStrayDetails = false;  // refused only because of them, see cFileWish
    bool HasOtherCurrency = false; // likewise
};

// What came of several.
struct cFilesReport
{
    QList<cFileReport> Files{};
    QStringList Notes{}; // what else became of them: accounts that their numbers belong to now
    bool IsDone = false; // all of it is as it should be
};

// What a file is and how it would be read.
struct cFileFinding
{
    QString Format;
    QString Charset; // empty: the file is no text
    bool IsTable = false;
    QString Profile;
    int HeaderLine = 0; // of a table, counted from 1; 0: none
    QChar Separator;
    QString Origin; // what decided about the columns: "words", "contents", "profile", "memory", "user"
    QList<std::pair<QString, int>> Columns;
    QStringList Accounts;
    bool NeedsAccount = false;
    QDate FirstDay;
    QDate LastDay;
    qsizetype Rows = 0;
    qsizetype Skipped = 0;
    std::optional<qint64> ClosingBalance; // cents, signed
    QString Question;                     // what the file leaves open, with both readings; else empty
    QString Refusal;                      // empty when it can be read
};
