#pragma once

#include <QElapsedTimer>
#include <QPalette>
#include <QProxyStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionComplex;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QStyleOptionToolButton;
class QWidget;

// How controls look where the desktop has no style of its own: the toolkit's plain one, drawn flat. One soft edge, one
// accent, no gradients. What is not drawn here is the plain style's, and so are nearly all sizes.
class cFlatStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    cFlatStyle();

    // Whether the colours are those that the toolkit takes where the desktop names none.
    [[nodiscard]] static bool IsPlain(const QPalette& palette);

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const override;
    // Scroll bars have no buttons at their ends: the whole length is for the handle.
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    void DrawMenuBarItem(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void DrawComboBox(const QStyleOptionComboBox& box, QPainter& painter, const QWidget* widget) const;
    void DrawSpinBox(const QStyleOptionSpinBox& box, QPainter& painter, const QWidget* widget) const;
    void DrawMenuTool(const QStyleOptionToolButton& button, QPainter& painter, const QWidget* widget) const;
    void DrawProgress(const QStyleOptionProgressBar& bar, QPainter& painter, const QWidget* widget) const;
    void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;

    QElapsedTimer m_running; // for what moves
};
