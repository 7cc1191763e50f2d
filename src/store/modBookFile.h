#pragma once

#include "store/cDatabase.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

class cShell;

// A book as a file: what it holds, and how another file takes its place without anything being lost.
namespace modBookFile {

struct cContent
{
    eDatabaseFault Fault = eDatabaseFault::None; // any other: no book that could be opened, and all else is unknown
    QStringList Problems;                        // what SQLite finds wrong with the file
    int Entries = 0;
    QDate LastEntry;    // latest day of an entry; invalid when there is none
    QDateTime Modified; // of the file
};

// Copies the whole open database into a new file. Why that failed; nothing is left behind then.
[[nodiscard]] std::optional<cDatabaseError> Copy(cDatabase& database, const QString& path);

// Reads a whole file; it is left untouched.
[[nodiscard]] cContent Look(const QString& path);

// True when both files can be read and hold the same bytes.
[[nodiscard]] bool IsCopy(const QString& path, const QString& other);

[[nodiscard]] bool IsSound(const cContent& content);

// "120 Einträge, der letzte vom 12.03.2026, Datei vom 13.03.2026 18:05"
[[nodiscard]] QString Describe(const cContent& content);

// "<path>.<day>.<ending>", with a number when that name is taken.
[[nodiscard]] QString FreeName(const cShell& shell, const QString& path, QDate today, const QString& ending);

// Gives a closed file, and what SQLite keeps beside it, the name FreeName; the new name, empty on failure.
[[nodiscard]] QString KeepAside(cShell& shell, const QString& path, QDate today, const QString& ending);

} // namespace modBookFile
