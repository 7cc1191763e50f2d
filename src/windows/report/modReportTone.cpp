#include "windows/report/modReportTone.h"

#include "windows/look/modTone.h"

#include <algorithm>
#include <cmath>

namespace {

// How much room for colour a lightness leaves, 0 at black and white.
float Room(float lightness)
{
    return 1.0F - std::abs(2.0F * lightness - 1.0F);
}

} // namespace

QColor modReportTone::Shown(const QColor& color, const QPalette& palette)
{
    if (!modTone::IsDark(palette)) {
        return color;
    }
    const float paper = palette.color(QPalette::Base).lightnessF();
    const float ink = palette.color(QPalette::Text).lightnessF();
    const float lightness = paper + (1.0F - color.lightnessF()) * (ink - paper);
    // A tint that is faint on white would glow in the dark: what counts is the strength, not the saturation.
    const float strength = Room(color.lightnessF()) * color.hslSaturationF();
    const float saturation = Room(lightness) > 0.0F ? std::min(1.0F, strength / Room(lightness)) : 0.0F;
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), saturation, lightness, color.alphaF());
}
