#pragma once

#include "core/cConfiguration.h"

#include <QDBusConnection>
#include <QPalette>

#include <memory>

class cDesktopTone;
class cRegistry;

// The colours of all windows, changed while they are open: those of the platform as long as they are as light or dark
// as is wanted, the program's own otherwise.
class cAppearance final
{
public:
    explicit cAppearance(cRegistry& registry);
    ~cAppearance();

    // Takes what the desktop prefers from the portal on this bus, where the user leaves it to the desktop.
    void FollowDesktop(const QDBusConnection& bus);

    void Apply();

private:
    [[nodiscard]] bool IsDarkWanted(bool isPlatformDark) const;

    cConfiguration m_configuration; // without a book: of the user
    std::unique_ptr<cDesktopTone> m_desktop;
};
