#pragma once

#include "app/machine/cKernelLock.h"
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
    // Takes an abandoned lock away from whoever had it; as Take.
    [[nodiscard]] eLockState TakeOver(const QString& database);
    [[nodiscard]] QString HolderOf(const QString& database) const override { return Holder(database); }
    [[nodiscard]] bool IsAbandoned(const QString& database) const override;
    [[nodiscard]] QString FileOf(const QString& database) const override;
    void Release();
    [[nodiscard]] bool IsHeld() const { return m_lock && m_lock->isLocked(); }

    // "kontorelle (Prozess 4711 auf rechner, seit 12.03.2026 18:05)": who holds the lock of the database.
    [[nodiscard]] static QString Holder(const QString& database);

    // The database's path without links and dots, so that two ways to write it mean the same file.
    [[nodiscard]] static QString CanonicalPath(const QString& database);

private:
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<cKernelLock> m_file; // with it: another name of the file has another lock file
};
