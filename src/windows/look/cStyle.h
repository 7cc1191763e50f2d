#pragma once

#include <QProxyStyle>

class QPainter;
class QStyleHintReturn;
class QStyleOption;
class QWidget;

// The style of the desktop with the program's own pictures for what boxes, overflowing bars and the filter's clear
// button show. The style's own ones are read from files as soon as a bar is made, visible or not, and with them every
// image plugin of the toolkit: a good part of the whole start.
class cStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* more) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    // On a dark ground the style's own edges of fields and check boxes cannot be seen.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    // Titles of narrow columns end in "…" like the texts below them.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
