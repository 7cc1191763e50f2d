#include "windows/widget/cFormScroll.h"

#include <QEvent>
#include <QScrollBar>

namespace {

constexpr int leastLines = 6;

} // namespace

cFormScroll::cFormScroll(QWidget* form, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    setWidget(form);
    form->setAutoFillBackground(false);
}

QSize cFormScroll::sizeHint() const
{
    return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
}

QSize cFormScroll::minimumSizeHint() const
{
    if (widget() == nullptr) {
        return QScrollArea::minimumSizeHint(); // the form is just coming or going
    }
    const QSize least = widget()->minimumSizeHint();
    const int lines = fontMetrics().lineSpacing() * leastLines;
    return {least.width() + verticalScrollBar()->sizeHint().width(), qMin(least.height(), lines)};
}

// The form got or lost a field.
bool cFormScroll::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
