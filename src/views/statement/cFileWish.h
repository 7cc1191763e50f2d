#pragma once

#include <QString>

// How a statement file is to be read by a program that asks nobody on the way. Empty texts leave the choice to what the
// file says.
struct cFileWish
{
    QString Account{};     // own account number for files that name none
    QString BookAccount{}; // account of the book for numbers that it does not know yet
    QString Charset{};     // of modTableOption::CharsetNames
    QString Profile{};     // a bank's known layout
    QString Columns{};     // of a table: "datum=0,betrag=5,zweck=3"
    QString Sign{};        // of modTableOption::SignNames; of a table that does not tell which way its amounts count
    bool KeepsDuplicates = false;
    bool KeepsStart = false;    // the first statement of an account changes no start balance
    bool TakesEqual = false;    // rows that the file has more often than the book, also where no balance proves them
    bool Remembers = false;     // columns and layout, for the next table with the same header
    bool IsTrial = false;       // nothing is written
    bool TakesCurrency = false; // another than the book's
    bool SkipsStrayDetails = false; // of an MT940 statement, before its first transaction
};
