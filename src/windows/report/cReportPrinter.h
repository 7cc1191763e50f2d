#pragma once

#include "windows/print/cPrintable.h"
#include "windows/report/cReportDocument.h"

#include <QDate>
#include <QRectF>
#include <QString>

#include <vector>

class cPageText;

// A report on paper: headline of the report at the head of every page but the first, there also the names of the
// columns where a table goes on, foot with page numbers. Pages end between lines and between the rows of tables, and
// the line of a group stays with what follows it.
class cReportPrinter final : public cPrintable
{
public:
    // `html`: a report without links. `family`: the font of all text. `today` stands at every page's end.
    cReportPrinter(const QString& html, const QString& family, QDate today);
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
        bool IsRow = false;
        bool IsHead = false; // row of column names
        bool operator==(const cLine&) const = default;
    };
    [[nodiscard]] static int PageEnd(const std::vector<cLine>& lines, int top, int height);

    // What must not be cut, from top to bottom: pieces that overlap are one line, and so is a row of at most
    // `tallestRow`.
    [[nodiscard]] static std::vector<cLine> Lines(const cReportDocument& document, int tallestRow);

private:
    struct cPage
    {
        int Top = 0; // in pixels of the document
        int Bottom = 0;
        cLine Columns{}; // the names of the columns of a table that goes on; empty for none
    };

    [[nodiscard]] static cLine ColumnsAt(const std::vector<cLine>& lines, int top);
    [[nodiscard]] qreal TitleHeight(std::size_t page) const;
    void PaintPart(QPainter& painter, qreal y, int top, int bottom) const;
    void PaintTitle(QPainter& painter) const;
    void PaintFoot(QPainter& painter, int page) const;

    cReportDocument m_document;
    QString m_title;
    QString m_foot;
    QRectF m_area;
    qreal m_scale = 1; // pixels of the device per pixel of the page
    std::vector<cPage> m_pages;
    std::unique_ptr<cPageText> m_text;
};
