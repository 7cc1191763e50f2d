#include "windows/widget/modPopup.h"

#include <QScreen>
#include <QWidget>

QPoint modPopup::Below(const QWidget& field, QSize size)
{
    const QRect screen = field.screen()->availableGeometry();
    const QPoint below = field.mapToGlobal(QPoint(0, field.height()));
    const bool hasRoom = below.y() + size.height() <= screen.bottom() + 1;
    const int top = hasRoom ? below.y() : field.mapToGlobal(QPoint(0, 0)).y() - size.height();
    const int right = screen.right() + 1 - size.width();
    return {qMax(screen.left(), qMin(below.x(), right)), top};
}
