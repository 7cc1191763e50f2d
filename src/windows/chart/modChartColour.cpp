#include "windows/chart/modChartColour.h"

#include "windows/widget/modTone.h"

#include <array>

namespace {

using cColours = std::array<QRgb, modChartColour::Count>;

constexpr cColours light{0xff0087e8, 0xfff5aa00, 0xff1e8252, 0xffa54900, 0xff6fc2ee, 0xff88488f,
                         0xff96c75e, 0xff263e3d, 0xff582f09, 0xff0a2fa9, 0xffd9b096, 0xff958da0};
constexpr cColours dark{0xff8ba3f7, 0xfff3a900, 0xff3eb07e, 0xffcd621b, 0xff8edfff, 0xffa864a4,
                        0xffb6f16d, 0xffe6dfd5, 0xff817543, 0xff6269de, 0xffffd6a0, 0xff627772};

} // namespace

QColor modChartColour::Mixed(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor modChartColour::Series(int number, const QPalette& palette)
{
    const bool isDark = modTone::IsDark(palette);
    const QColor colour((isDark ? dark : light)[static_cast<std::size_t>(number % Count)]);
    const double shift = 0.3 * (number / Count % 3);
    return Mixed(colour, isDark ? QColor(Qt::black) : QColor(Qt::white), shift);
}

QColor modChartColour::Pale(const QColor& colour, const QPalette& palette)
{
    return Mixed(colour, palette.color(QPalette::Base), 0.55);
}

QColor modChartColour::TextOn(const QColor& colour)
{
    const int brightness = (colour.red() * 299 + colour.green() * 587 + colour.blue() * 114) / 1000;
    return brightness > 140 ? QColor(0x1b, 0x1e, 0x22) : QColor(Qt::white);
}

QColor modChartColour::Grid(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.13);
}

QColor modChartColour::Future(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.045);
}
