#include "windows/overview/cBalanceCurve.h"

#include "windows/look/modTone.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace {

constexpr int lines = 4; // of text, which the curve is high
constexpr int textLines = 2;
constexpr double margin = 5;
constexpr double dot = 3.5;

} // namespace

cBalanceCurve::cBalanceCurve(cOverviewCurve curve, QWidget* parent) : QWidget(parent), m_curve(std::move(curve))
{
    if (!m_curve.Cents.isEmpty()) {
        const auto [least, most] = std::minmax_element(m_curve.Cents.begin(), m_curve.Cents.end());
        const qint64 air = (*most - *least) / 4 + 1; // so that the lowest point does not lie on the ground
        m_least = *least >= 0 ? std::max<qint64>(*least - air, 0) : *least - air;
        m_most = *most;
    }
    setAccessibleName(m_curve.Text);
    setToolTip(m_curve.Text);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize cBalanceCurve::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, fontMetrics().lineSpacing() * (lines + textLines)};
}

QPolygonF cBalanceCurve::Points(const QRectF& area) const
{
    const auto range = static_cast<double>(std::max<qint64>(m_most - m_least, 1));
    const auto steps = static_cast<double>(std::max<qsizetype>(m_curve.Cents.size() - 1, 1));
    QPolygonF points;
    for (qsizetype i = 0; i < m_curve.Cents.size(); ++i) {
        const double x = area.left() + area.width() * static_cast<double>(i) / steps;
        const double y = area.bottom() - area.height() * static_cast<double>(m_curve.Cents.at(i) - m_least) / range;
        // A balance holds until the day of the next booking, so the line goes in steps.
        if (!points.isEmpty() && points.last().y() != y) {
            points.append({x, points.last().y()});
        }
        points.append({x, y});
    }
    return points;
}

void cBalanceCurve::paintEvent(QPaintEvent* /*event*/)
{
    if (m_curve.Cents.size() < 2) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int text = fontMetrics().lineSpacing() * textLines;
    const QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin - text);
    const QPolygonF points = Points(area);
    const auto range = static_cast<double>(std::max<qint64>(m_most - m_least, 1));
    // The ground is zero where that is in sight, else the lower edge.
    const double zero = std::min(area.bottom(), area.bottom() + area.height() * static_cast<double>(m_least) / range);
    QColor fill = palette().color(QPalette::Highlight);
    fill.setAlphaF(0.18F);
    QPainterPath ground;
    ground.addPolygon(points);
    ground.lineTo(area.right(), zero);
    ground.lineTo(area.left(), zero);
    ground.closeSubpath();
    painter.fillPath(ground, fill);
    painter.setPen(QPen(modTone::Quiet(palette()), 1));
    painter.drawLine(QPointF(area.left(), zero), QPointF(area.right(), zero));
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawPolyline(points);
    if (m_curve.Lowest >= 0) {
        const qint64 cents = m_curve.Cents.at(m_curve.Lowest);
        const double x = area.left()
            + area.width() * static_cast<double>(m_curve.Lowest) / static_cast<double>(m_curve.Cents.size() - 1);
        const double y = area.bottom() - area.height() * static_cast<double>(cents - m_least) / range;
        painter.setPen(Qt::NoPen);
        painter.setBrush(cents < 0 ? modTone::Expense(palette()) : palette().color(QPalette::Highlight));
        painter.drawEllipse(QPointF(x, y), dot, dot);
    }
    painter.setPen(modTone::Quiet(palette()));
    painter.drawText(rect().adjusted(4, height() - text, -4, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     m_curve.Text);
}
