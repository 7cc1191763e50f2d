#include "windows/widget/cElidedText.h"

#include <QPainter>

namespace {

constexpr int leastLetters = 12;

} // namespace

cElidedText::cElidedText(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void cElidedText::SetText(const QString& text)
{
    m_text = text;
    setToolTip(text);
    setAccessibleName(text);
    update();
}

QSize cElidedText::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text), fontMetrics().height() + 4};
}

QSize cElidedText::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * leastLetters, sizeHint().height()};
}

void cElidedText::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}
