#include "windows/report/cPainterCanvas.h"

#include <QPainter>

#include <algorithm>

cPainterCanvas::cPainterCanvas(QPainter& painter, fnColor color) : m_painter(painter), m_color(std::move(color))
{
}

void cPainterCanvas::Text(const QRect& place, int baseLine, const QString& text, const QFont& font, const QColor& color)
{
    m_painter.setFont(font);
    m_painter.setPen(Shown(color));
    m_painter.drawText(QPointF(place.x(), baseLine), text);
}

// Edges lie on whole pixels whatever the magnification, and a thin line never gets lost between two of them.
void cPainterCanvas::Fill(const QRect& place, const QColor& color)
{
    if (place.isEmpty()) {
        return;
    }
    const QTransform transform = m_painter.worldTransform();
    const QRectF exact = transform.mapRect(QRectF(place));
    const int right = qRound(exact.right());
    const int bottom = qRound(exact.bottom());
    // A thin line grows to the left and upwards: what comes behind it is painted later.
    const int left = std::min(qRound(exact.left()), right - 1);
    const int top = std::min(qRound(exact.top()), bottom - 1);
    m_painter.setWorldTransform({});
    m_painter.fillRect(QRect(left, top, right - left, bottom - top), Shown(color));
    m_painter.setWorldTransform(transform);
}

void cPainterCanvas::Mark(const QRect& place, eMark mark, const QColor& color)
{
    const QRectF area(place);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(mark == eMark::Circle ? QPen(Shown(color)) : QPen(Qt::NoPen));
    m_painter.setBrush(mark == eMark::Circle ? QBrush(Qt::NoBrush) : QBrush(Shown(color)));
    if (mark == eMark::Square) {
        m_painter.drawRect(area);
    } else {
        m_painter.drawEllipse(area);
    }
    m_painter.restore();
}

void cPainterCanvas::Picture(const QRect& place, const QImage& picture)
{
    m_painter.save();
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(place, picture);
    m_painter.restore();
}

void cPainterCanvas::Clip(const QRect& place)
{
    m_painter.save();
    m_painter.setClipRect(place, Qt::IntersectClip);
}

void cPainterCanvas::Unclip()
{
    m_painter.restore();
}
