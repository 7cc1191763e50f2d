#pragma once

#include <QByteArray>
#include <QPageLayout>

class cPrintable;
class cProgress;
class QPagedPaintDevice;

// Content on the pages of a device.
namespace modPages {

constexpr qreal Margin = 15; // millimetres, room for holes

// One page after the other. False when the device takes none or the user has stopped it.
[[nodiscard]] bool Paint(QPagedPaintDevice& device, cPrintable& content, cProgress& progress);

// A whole PDF file; no bytes when it cannot be painted.
[[nodiscard]] QByteArray
Pdf(cPrintable& content,
    const QPageLayout& layout = {
        QPageSize(QPageSize::A4), QPageLayout::Portrait, {Margin, Margin, Margin, Margin}, QPageLayout::Millimeter});

} // namespace modPages
