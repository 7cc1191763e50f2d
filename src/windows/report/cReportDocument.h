#pragma once

#include "windows/report/cReportPiece.h"
#include "windows/report/cReportText.h"

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class cReportCanvas;
class cReportContainer; // NOLINT(cppcoreguidelines-virtual-class-destructor)

namespace litehtml {
class context;
class document;
} // namespace litehtml

// A report as HTML, laid out for a width. All measures are pixels of the page.
class cReportDocument
{
public:
    struct cLink
    {
        QString Address; // exactly as it stands in the page
        QString Name;
        QList<QRect> Places; // one for each of its words
    };

    // A row of a table. One of column names (th) is a head.
    struct cRow
    {
        QRect Place;
        bool IsHead = false;
    };

    // `family`: the font of all text. `folder`: where the pictures of the page lie; without it there are none. Words
    // with more characters than `longestWord` may be broken; 0: none is.
    cReportDocument(const QString& html, const QString& family, const QString& folder = {}, int longestWord = 0);
    ~cReportDocument();
    cReportDocument(const cReportDocument&) = delete;
    cReportDocument& operator=(const cReportDocument&) = delete;

    // Lays the page out. It may come out wider than asked for, where something has a fixed width.
    void LayOut(int width);
    [[nodiscard]] QSize Size() const;

    // Draws what lies within `clip`, which is in pixels of the page.
    void Draw(cReportCanvas& canvas, const QRect& clip) const;

    [[nodiscard]] QString Heading() const;                  // text of the first headline
    [[nodiscard]] std::vector<cReportPiece> Pieces() const; // in the order in which they are drawn
    [[nodiscard]] std::vector<cRow> Rows() const;           // of all tables
    [[nodiscard]] const cReportText& Text() const;
    [[nodiscard]] const QList<cLink>& Links() const; // in their order on the page
    [[nodiscard]] QRect
    AnchorPlace(const QString& anchor) const; // of the headline with this id; empty when none has it

    // The mouse at a point of the page. A click is complete with Release; what it hit is its result, empty for nothing.
    void MouseMove(QPoint point);
    void MousePress(QPoint point);
    [[nodiscard]] int MouseRelease(QPoint point); // the link that was clicked, counted from 0; -1 for none
    void MouseLeave();
    [[nodiscard]] bool IsOverLink() const;

private:
    [[nodiscard]] QList<cLink> FindLinks() const;

    // The document reports to the container until its own end, so it is declared last.
    std::unique_ptr<cReportContainer> m_container;
    std::unique_ptr<litehtml::context> m_context;
    std::shared_ptr<litehtml::document> m_document;
    // Looked up in the layout when somebody asks.
    mutable std::optional<cReportText> m_text;
    mutable std::optional<QList<cLink>> m_links;
};
