#pragma once

#include "base/cFileDesk.h"

// The desktop as Qt reaches it.
class cQtFileDesk final : public cFileDesk
{
public:
    bool OpenFile(const QString& path) override;
    bool MoveToTrash(const QString& path) override;
};
