#pragma once

#include <QString>

enum class eLockState {
    Held,       // this program has the file for itself
    Foreign,    // another program has it
    Impossible, // the folder takes no lock file: nobody can write there
};

// The right to write to a book, which one program at a time has.
class cBookLock
{
public:
    cBookLock() = default;
    cBookLock(const cBookLock&) = delete;
    cBookLock& operator=(const cBookLock&) = delete;
    virtual ~cBookLock() = default;

    // Takes the lock of the database, giving up the one held before.
    virtual eLockState Take(const QString& database) = 0;

    // Who holds the lock of the database and since when, in words; empty when nobody does.
    [[nodiscard]] virtual QString HolderOf(const QString& database) const = 0;

    // Whether the lock is a file whose holder is not to be found on this machine: it was killed, or it runs elsewhere.
    [[nodiscard]] virtual bool IsAbandoned(const QString& database) const = 0;
    // That file.
    [[nodiscard]] virtual QString FileOf(const QString& database) const = 0;

protected:
    cBookLock(cBookLock&&) = default; // for a lock that goes from hand to hand
    cBookLock& operator=(cBookLock&&) = default;
};
