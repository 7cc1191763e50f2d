#pragma once

#include "windows/print/cPrintable.h"
#include "windows/report/cReportDocument.h"

#include <QRectF>
#include <QString>

#include <vector>

class cPageText;

// A report on paper: headline of the report at the head of every page but the first, foot with page numbers. Pages end
// between lines, and the line of a group stays with what follows it.
class cReportPrinter final : public cPrintable
{
public:
    // `html`: a report without links. `family`: the font of all text. `foot`: at the left of every page's end.
    cReportPrinter(const QString& html, const QString& family, const QString& foot);
    ~cReportPrinter() override;

    [[nodiscard]] QString Title() const override { return m_title; }
    int LayOut(QPaintDevice& device, const QRectF& area) override;
    void PaintPage(QPainter& painter, int page) const override;

    // Where a page ends that begins at `top` and has room for `height`: not within any of `lines`. Something that is
    // higher than a page is cut.
    struct cLine
    {
        int Top = 0;
        int Bottom = 0; // behind its last pixel
        bool KeepsWithNext = false;
        bool operator==(const cLine&) const = default;
    };
    [[nodiscard]] static int PageEnd(const std::vector<cLine>& lines, int top, int height);

    // What must not be cut, from top to bottom: pieces that touch or overlap are one line.
    [[nodiscard]] static std::vector<cLine> Lines(const std::vector<cReportPiece>& pieces);

private:
    [[nodiscard]] qreal HeadHeight(int page) const;
    void PaintHead(QPainter& painter) const;
    void PaintFoot(QPainter& painter, int page) const;

    cReportDocument m_document;
    QString m_title;
    QString m_foot;
    QRectF m_area;
    qreal m_scale = 1;         // pixels of the device per pixel of the page
    std::vector<int> m_starts; // of the pages, in pixels of the document; the last one is its end
    std::unique_ptr<cPageText> m_text;
};
