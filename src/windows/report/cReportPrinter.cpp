#include "windows/report/cReportPrinter.h"

#include "base/cText.h"
#include "windows/print/cPageText.h"
#include "windows/report/cPainterCanvas.h"

#include <QPainter>

#include <algorithm>
#include <iterator>

namespace {

constexpr qreal dotsPerInch = 96;
constexpr qreal footSize = 8;   // points
constexpr int tallestArea = 40; // pixels; a higher one is the ground of something, not a line
constexpr int longestWord = 24; // characters; what is longer may be broken, so that it does not make all else small

// Draws what begins in a part of the page. The library gives what touches the part, and unseen text of the next page
// would be found and read out twice in a PDF.
class cPartCanvas final : public cReportCanvas
{
public:
    cPartCanvas(cReportCanvas& canvas, int top, int bottom) : m_canvas(canvas), m_top(top), m_bottom(bottom) {}

    void Text(const QRect& place, int baseLine, const QString& text, const QFont& font, const QColor& color) override
    {
        if (IsIn(place)) {
            m_canvas.Text(place, baseLine, text, font, color);
        }
    }
    void Fill(const QRect& place, const QColor& color) override { m_canvas.Fill(place, color); }
    void Mark(const QRect& place, eMark mark, const QColor& color) override
    {
        if (IsIn(place)) {
            m_canvas.Mark(place, mark, color);
        }
    }
    void Picture(const QRect& place, const QImage& picture) override { m_canvas.Picture(place, picture); }
    void Clip(const QRect& place) override { m_canvas.Clip(place); }
    void Unclip() override { m_canvas.Unclip(); }

private:
    [[nodiscard]] bool IsIn(const QRect& place) const { return place.top() >= m_top && place.top() < m_bottom; }

    cReportCanvas& m_canvas;
    int m_top;
    int m_bottom;
};

} // namespace

cReportPrinter::cReportPrinter(const QString& html, const QString& family, QDate today)
    : m_document(html, family, {}, longestWord),
      m_title(m_document.Heading()),
      m_foot(cPageText::Foot(today))
{
}

cReportPrinter::~cReportPrinter() = default;

std::vector<cReportPrinter::cLine> cReportPrinter::Lines(const cReportDocument& document, int tallestRow)
{
    std::vector<cLine> all;
    const std::vector<cReportPiece> pieces = document.Pieces();
    for (const cReportPiece& piece : pieces) {
        if (!piece.Text.isEmpty() || piece.Place.height() <= tallestArea) {
            const bool isHead = !piece.Text.isEmpty() && piece.Font.bold();
            all.push_back({piece.Place.top(), piece.Place.top() + piece.Place.height(), isHead});
        }
    }
    for (const auto& [place, isHead] : document.Rows()) {
        if (place.height() <= tallestRow) {
            all.push_back({place.top(), place.top() + place.height(), isHead, true, isHead});
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
            lines.back().IsRow = lines.back().IsRow || each.IsRow;
            lines.back().IsHead = lines.back().IsHead || each.IsHead;
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
    const int sheet = static_cast<int>(area.height() / m_scale);
    const std::vector<cLine> lines = Lines(m_document, sheet / 2);
    const int end = lines.empty() ? 1 : lines.back().Bottom; // without the empty end of the document
    m_pages.clear();
    for (int top = 0; top < end; top = m_pages.back().Bottom) {
        const cLine columns = ColumnsAt(lines, top);
        const qreal room = area.height() - TitleHeight(m_pages.size()) - 2 * m_text->LineHeight();
        const int height = static_cast<int>(room / m_scale) - (columns.Bottom - columns.Top);
        m_pages.push_back({top, PageEnd(lines, top, std::max(1, height)), columns});
    }
    return static_cast<int>(m_pages.size());
}

// Empty when no row of a table comes first from here on.
cReportPrinter::cLine cReportPrinter::ColumnsAt(const std::vector<cLine>& lines, int top)
{
    auto line = std::find_if(lines.begin(), lines.end(), [top](const cLine& each) { return each.Top >= top; });
    if (line == lines.end() || !line->IsRow || line->IsHead) {
        return {};
    }
    const auto head =
        std::find_if(std::reverse_iterator(line), lines.rend(), [](const cLine& each) { return each.IsHead; });
    return head == lines.rend() ? cLine{} : *head;
}

qreal cReportPrinter::TitleHeight(std::size_t page) const
{
    return page == 0 ? 0 : 2 * m_text->LineHeight();
}

void cReportPrinter::PaintPage(QPainter& painter, int page) const
{
    const auto index = static_cast<std::size_t>(page);
    const auto& [top, bottom, columns] = m_pages[index];
    if (page > 0) {
        PaintTitle(painter);
    }
    const qreal y = m_area.top() + TitleHeight(index);
    PaintPart(painter, y, columns.Top, columns.Bottom);
    PaintPart(painter, y + (columns.Bottom - columns.Top) * m_scale, top, bottom);
    PaintFoot(painter, page);
}

void cReportPrinter::PaintPart(QPainter& painter, qreal y, int top, int bottom) const
{
    const QRect part(0, top, m_document.Size().width(), bottom - top);
    if (part.isEmpty()) {
        return;
    }
    painter.save();
    painter.translate(m_area.left(), y);
    painter.scale(m_scale, m_scale);
    painter.translate(0, -top);
    painter.setClipRect(part, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing); // else thin lines get lost in a preview
    cPainterCanvas whole(painter);
    cPartCanvas canvas(whole, top, bottom);
    m_document.Draw(canvas, part);
    painter.restore();
}

void cReportPrinter::PaintTitle(QPainter& painter) const
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
    const QStringList numbers{QString::number(page + 1), QString::number(m_pages.size())};
    painter.setPen(Qt::black);
    painter.setFont(m_text->Text());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_foot);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, cText::Tr("Seite {0} von {1}", numbers));
}
