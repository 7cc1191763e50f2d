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

// Of the database engine: "3.40.1".
[[nodiscard]] QString EngineVersion();

struct cContent
{
    eDatabaseFault Fault = eDatabaseFault::None; // any other: no book that could be opened, and all else is unknown
    QStringList Problems;                        // what SQLite finds wrong with the file
    QStringList Lost;                            // see modSchema
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

// The file itself is all right, whatever is in it.
[[nodiscard]] bool IsSound(const cContent& content);

// Why a file may not take the place of a book, in words for the user; empty when it may.
[[nodiscard]] QString Refusal(const QString& backup, const cContent& content);

// "120 Einträge, der letzte vom 12.03.2026, Datei vom 13.03.2026 18:05"
[[nodiscard]] QString Describe(const cContent& content);

// "<path>.<day>.<ending>", with a number when that name is taken.
[[nodiscard]] QString FreeName(const cShell& shell, const QString& path, QDate today, const QString& ending);

// The name for a file that is made beside `path` and takes its place when it is whole; free. See Leftovers.
[[nodiscard]] QString WorkingName(const QString& path);

// Removes a file with what SQLite keeps beside it.
void Remove(const QString& path);

// Gives a file another name in one move, also where a file of that name exists. False on failure.
[[nodiscard]] bool MoveOver(const QString& from, const QString& to);

// Puts the whole file `working` in the place of the closed file `path` in one move, so that there is a book at every
// moment. The former file stays under the name FreeName, which is given back; empty when there was none. None on
// failure: then all is as before.
[[nodiscard]] std::optional<QString> PutInPlace(cShell& shell, const QString& working, const QString& path, QDate today,
                                                const QString& ending);

// The way back: `kept` takes the place of the closed file `path`, which is lost. False on failure.
[[nodiscard]] bool PutBack(cShell& shell, const QString& kept, const QString& path);

// Sound books beside a missing `path` that a program left behind when it was killed or the user took the file away:
// whole files that were to take its place, and files that were replaced. Complete ones before all
// others, and the newest first.
[[nodiscard]] QStringList Leftovers(const QString& path);

// Removes the working files of programs that were killed, with what SQLite keeps beside them: of targets in `folder`
// whose names match the regular expression. Nobody else may be at work there.
void RemoveWorking(const QString& folder, const QString& targets);

// The same for what was to take the place of the open book `path`, and a second name that the book got on the way. A
// working file that is a sound book stays: it may be somebody's own. Only for who holds the book's lock.
void TidyBeside(const QString& path);

} // namespace modBookFile
