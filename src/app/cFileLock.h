#pragma once

#include "base/cBookLock.h"

#include <QLockFile>
#include <QString>

#include <memory>

// One program per database: the right to write to a database file, shown to others by the file "<database>.lock". A
// lock left by a program that is gone is taken over.
class cFileLock final : public cBookLock
{
public:
    eLockState Take(const QString& database) override;
    [[nodiscard]] QString HolderOf(const QString& database) const override { return Holder(database); }
    void Release();
    [[nodiscard]] bool IsHeld() const { return m_lock && m_lock->isLocked(); }

    // "kontorelle (Prozess 4711 auf rechner)": who holds the lock of the database; empty when that cannot be told.
    [[nodiscard]] static QString Holder(const QString& database);

    // The database's path without links and dots, so that two ways to write it mean the same file.
    [[nodiscard]] static QString CanonicalPath(const QString& database);

private:
    std::unique_ptr<QLockFile> m_lock;
};
