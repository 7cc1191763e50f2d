#pragma once

#include <QColor>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QRectF>
#include <QSize>
#include <QString>

#include <vector>

// A text on a page or in a window, and where.
struct cWritten
{
    QString Text;
    QRectF Place;
    QColor Pen;
};
using cSheet = std::vector<cWritten>;

// A device that remembers texts instead of painting them.
class cTextRecorder final : public QPaintDevice
{
public:
    cTextRecorder(QSize size, int dotsPerInch) : m_size(size), m_dotsPerInch(dotsPerInch), m_engine(*this) {}

    QPaintEngine* paintEngine() const override { return &m_engine; }

    cSheet Sheet;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_size.width();
        case PdmHeight: return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return m_dotsPerInch;
        case PdmDevicePixelRatio: return 1;
        case PdmDepth: return 32;
        default: return QPaintDevice::metric(metric);
        }
    }

private:
    class cEngine final : public QPaintEngine
    {
    public:
        explicit cEngine(cTextRecorder& owner) : QPaintEngine(AllFeatures), m_owner(owner) {}

        bool begin(QPaintDevice* /*device*/) override { return true; }
        bool end() override { return true; }
        [[nodiscard]] Type type() const override { return User; }
        void updateState(const QPaintEngineState& change) override
        {
            m_pen = (change.state() & DirtyPen) != 0 ? change.pen().color() : m_pen;
        }
        void drawPixmap(const QRectF& /*target*/, const QPixmap& /*pixmap*/, const QRectF& /*source*/) override {}
        void drawPath(const QPainterPath& /*path*/) override {}
        void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
        void drawTextItem(const QPointF& at, const QTextItem& item) override
        {
            m_owner.Sheet.push_back(
                {item.text(), QRectF(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent()),
                 m_pen});
        }

    private:
        cTextRecorder& m_owner;
        QColor m_pen;
    };

    QSize m_size;
    int m_dotsPerInch;
    mutable cEngine m_engine;
};
