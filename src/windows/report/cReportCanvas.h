#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRect>
#include <QString>

// Where a laid out report is drawn: word by word and area by area, in pixels of the page.
class cReportCanvas
{
public:
    enum class eMark { Disc, Circle, Square };

    cReportCanvas() = default;
    cReportCanvas(const cReportCanvas&) = delete;
    cReportCanvas& operator=(const cReportCanvas&) = delete;
    virtual ~cReportCanvas() = default;

    // `baseLine` is a y position.
    virtual void Text(const QRect& place, int baseLine, const QString& text, const QFont& font,
                      const QColor& color) = 0;
    virtual void Fill(const QRect& place, const QColor& color) = 0;
    virtual void Mark(const QRect& place, eMark mark, const QColor& color) = 0;
    virtual void Picture(const QRect& place, const QImage& picture) = 0; // scaled to the place
    virtual void Clip(const QRect& place) = 0;                           // until Unclip, within the clips before it
    virtual void Unclip() = 0;
};
