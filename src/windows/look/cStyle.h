#pragma once

#include <QProxyStyle>

class QPainter;
class QStyleHintReturn;
class QStyleOption;
class QWidget;

// The style of the desktop, or cFlatStyle where it has none of its own, with the program's own pictures for what boxes,
// overflowing bars and the filter's clear button show. A style's own ones are read from files as soon as a bar is made,
// visible or not, and with them every image plugin of the toolkit: a good part of the whole start.
class cStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    cStyle();
    explicit cStyle(QStyle* base); // taken over

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* more) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    // Titles of narrow columns end in "…" like the texts below them.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
