#include "windows/chart/cChartPrinter.h"

#include "base/cText.h"
#include "windows/chart/modChartPainter.h"
#include "windows/print/cPageText.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal dotsPerInch = 96;
constexpr qreal footSize = 8; // points
constexpr qreal shape = 0.62; // height of a chart as part of its width, where there is room
constexpr int perPage = 2;

} // namespace

cChartPrinter::cChartPrinter(const QList<cChartData>& charts, QDate today)
    : m_charts(charts),
      m_foot(cPageText::Foot(today))
{
}

cChartPrinter::~cChartPrinter() = default;

QString cChartPrinter::Title() const
{
    return m_charts.isEmpty() ? cText::Tr("Diagramme") : m_charts.constFirst().Title;
}

int cChartPrinter::LayOut(QPaintDevice& device, const QRectF& area)
{
    m_area = area;
    m_text = std::make_unique<cPageText>(device, footSize);
    m_scale = device.logicalDpiX() / dotsPerInch;
    const qreal room = area.height() - 2 * m_text->LineHeight();
    m_height = std::min(area.width() * shape, room / perPage);
    return std::max(1, (static_cast<int>(m_charts.size()) + perPage - 1) / perPage);
}

void cChartPrinter::PaintPage(QPainter& painter, int page) const
{
    qreal top = m_area.top();
    for (qsizetype i = qsizetype{page} * perPage;
         i < std::min<qsizetype>(m_charts.size(), qsizetype{page + 1} * perPage); ++i) {
        PaintChart(painter, m_charts.at(i), top);
        top += m_height;
    }
    const QRectF line(m_area.left(), m_area.bottom() - m_text->LineHeight(), m_area.width(), m_text->LineHeight());
    const auto pages = (m_charts.size() + perPage - 1) / perPage;
    painter.setPen(Qt::black);
    painter.setFont(m_text->Text());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_foot);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter,
                     cText::Tr("Seite {0} von {1}", {QString::number(page + 1), QString::number(pages)}));
}

void cChartPrinter::PaintChart(QPainter& painter, const cChartData& chart, qreal top) const
{
    constexpr qreal gap = 12; // pixels of the chart below it
    painter.save();
    painter.translate(m_area.left(), top);
    painter.scale(m_scale, m_scale);
    const QSizeF size = QSizeF(m_area.width(), m_height) / m_scale - QSizeF(0, gap);
    modChartPainter::Paint(painter, chart, modChartPainter::PaperStyle(), QRectF(QPointF(), size));
    painter.restore();
}
