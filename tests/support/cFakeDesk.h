#pragma once

#include "base/cFileDesk.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

// A desktop that remembers what it was to open. What goes to its trash is gone; without one every file stays.
class cFakeDesk final : public cFileDesk
{
public:
    bool OpenFile(const QString& path) override
    {
        Opened.append(QFileInfo(path).fileName());
        return true;
    }
    bool MoveToTrash(const QString& path) override { return HasTrash && QFile::remove(path); }

    QStringList Opened;
    bool HasTrash = true;
};
