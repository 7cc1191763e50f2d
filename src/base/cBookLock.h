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

    // Who holds the lock of the database, in words; empty when that cannot be told.
    [[nodiscard]] virtual QString HolderOf(const QString& database) const = 0;

protected:
    cBookLock(cBookLock&&) = default; // for a lock that goes from hand to hand
    cBookLock& operator=(cBookLock&&) = default;
};
