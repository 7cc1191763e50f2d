#include "app/cAppearance.h"

#include "app/machine/cDesktopTone.h"
#include "views/main/modAppearance.h"
#include "windows/look/cFlatStyle.h"
#include "windows/look/modPalette.h"
#include "windows/look/modTone.h"

#include <QApplication>

cAppearance::cAppearance(cRegistry& registry) : m_configuration(registry)
{
    Apply();
}

cAppearance::~cAppearance() = default;

void cAppearance::FollowDesktop(const QDBusConnection& bus)
{
    m_desktop = std::make_unique<cDesktopTone>(bus);
    QObject::connect(m_desktop.get(), &cDesktopTone::ToneChanged, m_desktop.get(), [this] { Apply(); });
}

bool cAppearance::IsDarkWanted(bool isPlatformDark) const
{
    using eTone = cDesktopTone::eTone;
    const eAppearance chosen = modAppearance::Chosen(m_configuration);
    if (chosen != eAppearance::System) {
        return chosen == eAppearance::Dark;
    }
    const eTone tone = m_desktop ? m_desktop->Tone() : eTone::Unknown;
    return tone == eTone::Unknown ? isPlatformDark : tone == eTone::Dark;
}

void cAppearance::Apply()
{
    QApplication::setPalette(QPalette()); // the platform's, which may have changed since
    const bool isPlatformDark = modTone::IsDark(QApplication::palette());
    const bool isDark = IsDarkWanted(isPlatformDark);
    if (isDark != isPlatformDark || cFlatStyle::IsPlain(QApplication::palette())) {
        QApplication::setPalette(isDark ? modPalette::Dark() : modPalette::Light());
    }
}
