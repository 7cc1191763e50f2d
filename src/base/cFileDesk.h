#pragma once

#include <QString>

// What the desktop does with a file of the user.
class cFileDesk
{
public:
    cFileDesk() = default;
    cFileDesk(const cFileDesk&) = delete;
    cFileDesk& operator=(const cFileDesk&) = delete;
    virtual ~cFileDesk() = default;

    // Opens the file in the program that the desktop has for it. False when none could be started.
    virtual bool OpenFile(const QString& path) = 0;

    // Moves the file to the desktop's trash. False where there is none; the file then stays where it is.
    virtual bool MoveToTrash(const QString& path) = 0;
};
