#pragma once

#include <QFont>
#include <QRect>
#include <QString>

// One word or one coloured area of a laid out report.
struct cReportPiece
{
    QRect Place;
    QString Text; // empty for an area
    QFont Font{}; // of the text
};
