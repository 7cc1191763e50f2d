#pragma once

#include <QString>

// One program per file on this machine and for this user, whatever names the file has: a lock of the kernel, which ends
// with the program, on a small file named by the volume and the number of the file on it. The file itself is not
// touched, because closing it a second time would drop the locks of the database on it. Where there is no folder for
// such files, nothing is locked and everything succeeds.
class cKernelLock
{
public:
    cKernelLock() = default;
    cKernelLock(const cKernelLock&) = delete;
    cKernelLock& operator=(const cKernelLock&) = delete;
    ~cKernelLock() { Release(); }

    // Gives up the lock of another file only on success. False when somebody else has it.
    [[nodiscard]] bool Take(const QString& path);
    void Release();

    // Whether anybody holds the lock of this kind on a file that exists: a lock file whose program is gone is free.
    [[nodiscard]] static bool IsHeldByKernel(const QString& lockFile);

private:
    QString m_name;
    int m_descriptor = -1;
};
