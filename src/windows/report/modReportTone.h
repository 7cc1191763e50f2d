#pragma once

#include <QColor>
#include <QPalette>

// Reports carry colours meant for white paper.
namespace modReportTone {

// The colour that takes its place on the palette's own background: in a light palette itself, in a dark one of the
// same hue and strength, from light to dark turned over.
[[nodiscard]] QColor Shown(const QColor& color, const QPalette& palette);

} // namespace modReportTone
