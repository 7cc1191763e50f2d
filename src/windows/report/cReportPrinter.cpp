#include "windows/report/cReportPrinter.h"

#include "base/cText.h"
#include "windows/print/cPageText.h"
#include "windows/report/cPainterCanvas.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal dotsPerInch = 96;
constexpr qreal footSize = 8;   // points
constexpr int tallestArea = 40; // pixels; a higher one is the ground of something, not a line

} // namespace

cReportPrinter::cReportPrinter(const QString& html, const QString& family, const QString& foot)
    : m_document(html, family),
      m_title(m_document.Heading()),
      m_foot(foot)
{
}

cReportPrinter::~cReportPrinter() = default;

std::vector<cReportPrinter::cLine> cReportPrinter::Lines(const std::vector<cReportPiece>& pieces)
{
    std::vector<cLine> all;
    for (const cReportPiece& piece : pieces) {
        if (!piece.Text.isEmpty() || piece.Place.height() <= tallestArea) {
            const bool isHead = !piece.Text.isEmpty() && piece.Font.bold();
            all.push_back({piece.Place.top(), piece.Place.top() + piece.Place.height(), isHead});
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const cLine& a, const cLine& b) { return a.Top < b.Top; });
    std::vector<cLine> lines;
    for (const cLine& each : all) {
        if (lines.empty() || each.Top >= lines.back().Bottom) {
            lines.push_back(each);
        } else {
            lines.back().Bottom = std::max(lines.back().Bottom, each.Bottom);
            lines.back().KeepsWithNext = lines.back().KeepsWithNext || each.KeepsWithNext;
        }
    }
    return lines;
}

int cReportPrinter::PageEnd(const std::vector<cLine>& lines, int top, int height)
{
    const int limit = top + height;
    // The first line that is not wholly on the page.
    const auto cut =
        std::find_if(lines.begin(), lines.end(), [limit](const cLine& line) { return line.Bottom > limit; });
    if (cut == lines.end()) {
        return limit;
    }
    int end = std::min(cut->Top, limit);
    auto first = cut;
    while (first != lines.begin() && std::prev(first)->KeepsWithNext) {
        --first;
    }
    if (first != cut && first->Top > top) {
        end = first->Top;
    }
    return end > top ? end : limit;
}

int cReportPrinter::LayOut(QPaintDevice& device, const QRectF& area)
{
    m_area = area;
    m_text = std::make_unique<cPageText>(device, footSize);
    const qreal resolution = device.logicalDpiX() / dotsPerInch;
    m_document.LayOut(static_cast<int>(area.width() / resolution));
    const QSize size = m_document.Size();
    m_scale = std::min(resolution, area.width() / std::max(1, size.width()));
    const std::vector<cLine> lines = Lines(m_document.Pieces());
    const int end = lines.empty() ? size.height() : lines.back().Bottom; // without the empty end of the document
    m_starts = {0};
    while (m_starts.back() < end) {
        const int page = static_cast<int>(m_starts.size()) - 1;
        const qreal room = area.height() - HeadHeight(page) - 2 * m_text->LineHeight();
        m_starts.push_back(PageEnd(lines, m_starts.back(), std::max(1, static_cast<int>(room / m_scale))));
    }
    if (m_starts.size() == 1) {
        m_starts.push_back(1); // an empty report is an empty page
    }
    return static_cast<int>(m_starts.size()) - 1;
}

qreal cReportPrinter::HeadHeight(int page) const
{
    return page == 0 ? 0 : 2 * m_text->LineHeight();
}

void cReportPrinter::PaintPage(QPainter& painter, int page) const
{
    const auto index = static_cast<std::size_t>(page);
    const QRect part(0, m_starts[index], m_document.Size().width(), m_starts[index + 1] - m_starts[index]);
    if (page > 0) {
        PaintHead(painter);
    }
    painter.save();
    painter.translate(m_area.left(), m_area.top() + HeadHeight(page));
    painter.scale(m_scale, m_scale);
    painter.translate(0, -part.top());
    painter.setClipRect(part, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing); // else thin lines get lost in a preview
    cPainterCanvas canvas(painter);
    m_document.Draw(canvas, part);
    painter.restore();
    PaintFoot(painter, page);
}

void cReportPrinter::PaintHead(QPainter& painter) const
{
    const QRectF line(m_area.left(), m_area.top(), m_area.width(), m_text->LineHeight());
    painter.setPen(Qt::black);
    painter.setFont(m_text->Bold());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_text->BoldElided(m_title, m_area.width()));
    painter.setPen(QPen(Qt::black, m_text->Points(0.5)));
    painter.drawLine(line.bottomLeft() + QPointF(0, m_text->Points(2)),
                     line.bottomRight() + QPointF(0, m_text->Points(2)));
}

void cReportPrinter::PaintFoot(QPainter& painter, int page) const
{
    const QRectF line(m_area.left(), m_area.bottom() - m_text->LineHeight(), m_area.width(), m_text->LineHeight());
    const QStringList numbers{QString::number(page + 1), QString::number(m_starts.size() - 1)};
    painter.setPen(Qt::black);
    painter.setFont(m_text->Text());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_foot);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, cText::Tr("Seite {0} von {1}", numbers));
}
