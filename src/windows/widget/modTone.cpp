#include "windows/widget/modTone.h"

bool modTone::IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor modTone::Income(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0x7a, 0xd6, 0x9b) : QColor(0x17, 0x70, 0x3a);
}

QColor modTone::Expense(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xff, 0x9a, 0x8f) : QColor(0xb0, 0x2a, 0x20);
}

QColor modTone::Warning(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xff, 0xc4, 0x66) : QColor(0x94, 0x55, 0x00);
}

QColor modTone::Quiet(const QPalette& palette)
{
    QColor text = palette.color(QPalette::Text);
    text.setAlphaF(0.65F);
    return text;
}
