#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

enum class eLockState {
    Held,       // this program has the file for itself
    Foreign,    // another program has it
    Impossible, // the folder takes no lock file: nobody can write there
};

// One program per database: the right to write to a database file, shown to others by the file "<database>.lock". A
// lock left by a program that is gone is taken over.
class cFileLock
{
public:
    // Takes the lock of the database, giving up the one held before.
    eLockState Take(const QString& database);
    void Release();
    [[nodiscard]] bool IsHeld() const { return m_lock && m_lock->isLocked(); }

    // "kontorelle (Prozess 4711 auf rechner)": who holds the lock of the database; empty when that cannot be told.
    [[nodiscard]] static QString Holder(const QString& database);

    // The database's path without links and dots, so that two ways to write it mean the same file.
    [[nodiscard]] static QString CanonicalPath(const QString& database);

private:
    std::unique_ptr<QLockFile> m_lock;
};
