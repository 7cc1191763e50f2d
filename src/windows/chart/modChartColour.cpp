#include "windows/chart/modChartColour.h"

#include "windows/look/modLook.h"
#include "windows/look/modTone.h"

QColor modChartColour::Mixed(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor modChartColour::Series(int number, const QPalette& palette)
{
    const bool isDark = modTone::IsDark(palette);
    const auto& row = isDark ? modCategoryColor::Dark : modCategoryColor::Light;
    const QColor colour(row.at(static_cast<std::size_t>(number % Count)));
    const double shift = 0.3 * (number / Count % 3);
    return Mixed(colour, isDark ? QColor(Qt::black) : QColor(Qt::white), shift);
}

QColor modChartColour::Series(const cChartSeries& series, const QPalette& palette)
{
    return series.OwnColour.isEmpty() ? Series(series.Colour, palette) : modLook::Colour(series.OwnColour, palette);
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
