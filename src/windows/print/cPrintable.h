#pragma once

#include <QRectF>
#include <QString>

class QPaintDevice;
class QPainter;

// Something that fills printed pages, whatever it is printed on.
class cPrintable
{
public:
    cPrintable() = default;
    cPrintable(const cPrintable&) = delete;
    cPrintable& operator=(const cPrintable&) = delete;
    virtual ~cPrintable() = default;

    // The name of the print job.
    [[nodiscard]] virtual QString Title() const = 0;

    // Spreads the content over pages of this area, in pixels of the device; how many they are. Called again whenever
    // paper or direction change.
    virtual int LayOut(QPaintDevice& device, const QRectF& area) = 0;

    // Paints one of the pages, counted from 0.
    virtual void PaintPage(QPainter& painter, int page) const = 0;
};
