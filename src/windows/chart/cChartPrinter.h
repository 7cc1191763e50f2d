#pragma once

#include "views/chart/cChartData.h"
#include "windows/print/cPrintable.h"

#include <QDate>
#include <QList>
#include <QRectF>

#include <memory>

class cPageText;

// Charts on paper, two on a page, with page numbers at its foot.
class cChartPrinter final : public cPrintable
{
public:
    // `today` stands at every page's end.
    cChartPrinter(const QList<cChartData>& charts, QDate today);
    ~cChartPrinter() override;

    [[nodiscard]] QString Title() const override;
    int LayOut(QPaintDevice& device, const QRectF& area) override;
    void PaintPage(QPainter& painter, int page) const override;

private:
    void PaintChart(QPainter& painter, const cChartData& chart, qreal top) const;

    QList<cChartData> m_charts;
    QString m_foot;
    QRectF m_area;
    qreal m_scale = 1;  // pixels of the device per pixel of the chart
    qreal m_height = 0; // of a chart, in pixels of the device
    std::unique_ptr<cPageText> m_text;
};
