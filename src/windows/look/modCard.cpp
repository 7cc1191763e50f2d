#include "windows/look/modCard.h"

#include <QPainter>
#include <QWidget>

void modCard::Paint(QWidget& widget)
{
    constexpr double radius = 8;
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = widget.palette().color(QPalette::Text);
    edge.setAlphaF(0.18F);
    painter.setPen(edge);
    painter.setBrush(widget.palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
