#include "windows/chart/modChartPainter.h"

#include "windows/chart/modAreaPainter.h"
#include "windows/chart/modCalendarPainter.h"
#include "windows/chart/modChartLegend.h"
#include "windows/chart/modColumnPainter.h"
#include "windows/chart/modFlowPainter.h"
#include "windows/chart/modLimitPainter.h"
#include "windows/chart/modLinePainter.h"
#include "windows/chart/modPiePainter.h"
#include "windows/look/modTone.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>

namespace {

constexpr double titleScale = 1.15;
constexpr int dotsPerInch = 96;
constexpr int pointsPerInch = 72;

QFont TitleFont(const cChartStyle& style)
{
    QFont font = ScaledFont(style.Font, titleScale);
    font.setBold(true);
    return font;
}

void LayOutTexts(const cChartScene& scene, cChartLayout& layout)
{
    double y = layout.Plot.top();
    if (!scene.Data.Title.isEmpty()) {
        layout.Title = QRectF(layout.Plot.left(), y, layout.Plot.width(), scene.Em() * 1.4);
        y = layout.Title.bottom();
    }
    if (!scene.Data.Note.isEmpty()) {
        layout.Note = QRectF(layout.Plot.left(), y, layout.Plot.width(), scene.Em() * 1.2);
        y = layout.Note.bottom();
    }
    layout.Plot.setTop(y + scene.Em() * 0.5);
}

void PaintTexts(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    const QFont title = TitleFont(scene.Style);
    painter.setFont(title);
    painter.setPen(scene.Text());
    painter.drawText(layout.Title, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(title).elidedText(scene.Data.Title, Qt::ElideRight, layout.Title.width()));
    painter.setFont(scene.Style.Font);
    painter.setPen(modTone::Quiet(scene.Style.Palette));
    painter.drawText(layout.Note, Qt::AlignLeft | Qt::AlignVCenter,
                     scene.Metrics.elidedText(scene.Data.Note, Qt::ElideRight, layout.Note.width()));
}

// True when something is there to be drawn; a pie has no slices when nothing is above zero.
bool IsDrawable(const cChartData& data)
{
    if (data.Kind != eChart::Pie) {
        return !data.IsEmpty();
    }
    for (int index = 0; index < data.Labels.size(); ++index) {
        if (data.Total(index) > 0) {
            return true;
        }
    }
    return false;
}

} // namespace

cChartLayout modChartPainter::LayOut(const cChartData& data, const cChartState& state, const cChartStyle& style,
                                     const QRectF& area)
{
    const cChartScene scene(data, state, style);
    cChartLayout layout;
    const double margin = scene.Em() * 0.7;
    layout.Area = area.adjusted(margin, margin * 0.7, -margin, -margin * 0.7);
    layout.Plot = layout.Area;
    LayOutTexts(scene, layout);
    if (!IsDrawable(data)) {
        return layout;
    }
    modChartLegend::LayOut(scene, layout);
    switch (data.Kind) {
    case eChart::Pie: modPiePainter::LayOut(scene, layout); break;
    case eChart::Columns:
    case eChart::StackedColumns: modColumnPainter::LayOut(scene, layout); break;
    case eChart::Line: modLinePainter::LayOut(scene, layout); break;
    case eChart::Areas: modAreaPainter::LayOut(scene, layout); break;
    case eChart::Flow: modFlowPainter::LayOut(scene, layout); break;
    case eChart::Calendar: modCalendarPainter::LayOut(scene, layout); break;
    case eChart::Limits: modLimitPainter::LayOut(scene, layout); break;
    }
    return layout;
}

void modChartPainter::Paint(QPainter& painter, const cChartData& data, const cChartState& state,
                            const cChartStyle& style, const cChartLayout& layout)
{
    const cChartScene scene(data, state, style);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTexts(painter, scene, layout);
    if (!IsDrawable(data)) {
        painter.drawText(layout.Plot, Qt::AlignCenter, data.EmptyText());
        return;
    }
    switch (data.Kind) {
    case eChart::Pie: modPiePainter::Paint(painter, scene, layout); break;
    case eChart::Columns:
    case eChart::StackedColumns: modColumnPainter::Paint(painter, scene, layout); break;
    case eChart::Line: modLinePainter::Paint(painter, scene, layout); break;
    case eChart::Areas: modAreaPainter::Paint(painter, scene, layout); break;
    case eChart::Flow: modFlowPainter::Paint(painter, scene, layout); break;
    case eChart::Calendar: modCalendarPainter::Paint(painter, scene, layout); break;
    case eChart::Limits: modLimitPainter::Paint(painter, scene, layout); break;
    }
    modChartLegend::Paint(painter, scene, layout);
}

void modChartPainter::Paint(QPainter& painter, const cChartData& data, const cChartStyle& style, const QRectF& area)
{
    const cChartState nothing;
    Paint(painter, data, nothing, style, LayOut(data, nothing, style, area));
}

cChartStyle modChartPainter::PaperStyle()
{
    QPalette paper(Qt::white);
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, QColor(0x22, 0x26, 0x2b));
    // In pixels: a size in points would be another one on every device, and the painter's scale has settled that.
    QFont font = QGuiApplication::font();
    if (font.pointSizeF() > 0) {
        font.setPixelSize(qRound(font.pointSizeF() * dotsPerInch / pointsPerInch));
    }
    return {paper, font};
}

QImage modChartPainter::Image(const cChartData& data, const QSize& size, double scale)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    Paint(painter, data, PaperStyle(), QRectF(QPointF(), size));
    return image;
}

QByteArray modChartPainter::Png(const cChartData& data, const QSize& size, double scale)
{
    QBuffer buffer;
    return Image(data, size, scale).save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QByteArray modChartPainter::Svg(const cChartData& data, const QSize& size)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setResolution(dotsPerInch);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setTitle(data.Title);
    QPainter painter;
    if (!painter.begin(&generator)) {
        return {};
    }
    painter.fillRect(QRect(QPoint(), size), Qt::white);
    Paint(painter, data, PaperStyle(), QRectF(QPointF(), size));
    painter.end();
    return buffer.data();
}
