#pragma once

#include "windows/report/cReportCanvas.h"

#include <functional>

class QPainter;

// Draws a report with a painter.
class cPainterCanvas final : public cReportCanvas
{
public:
    using fnColor = std::function<QColor(const QColor&)>;

    // `color` gives the colour that is used in place of the report's; without it they stay as they are.
    explicit cPainterCanvas(QPainter& painter, fnColor color = {});

    void Text(const QRect& place, int baseLine, const QString& text, const QFont& font, const QColor& color) override;
    void Fill(const QRect& place, const QColor& color) override;
    void Mark(const QRect& place, eMark mark, const QColor& color) override;
    void Picture(const QRect& place, const QImage& picture) override;
    void Clip(const QRect& place) override;
    void Unclip() override;

private:
    [[nodiscard]] QColor Shown(const QColor& color) const { return m_color ? m_color(color) : color; }

    QPainter& m_painter;
    fnColor m_color;
};
