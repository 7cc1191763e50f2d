#pragma once

#include "base/cFileDesk.h"
#include "core/modTrash.h"

// No desktop is needed for its trash, but for everything else.
class cCliTrash final : public cFileDesk
{
public:
    bool OpenFile(const QString& /*path*/) override { return false; }
    bool MoveToTrash(const QString& path) override { return modTrash::Move(path); }
};
