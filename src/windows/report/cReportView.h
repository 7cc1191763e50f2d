#pragma once

#include <QAbstractScrollArea>
#include <QList>
#include <QString>
#include <QTimer>

#include <memory>
#include <utility>

class cReportDocument;
class QPainter;

// Shows a report. Links are not followed: each click comes out as a signal once the event that it came from is over.
// Text can be selected, copied and searched, the page magnified, and every link reached with the tabulator key.
class cReportView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class eDirection { Forward, Backward };

    explicit cReportView(QWidget* parent = nullptr);
    ~cReportView() override;

    // `folder`: where the pictures of the page lie; a report has none.
    void SetReport(const QString& html, const QString& folder = {});
    // Puts the headline with this id at the top; the beginning of the page when none has it.
    void GoToAnchor(const QString& anchor);
    [[nodiscard]] QString PlainText() const; // of the whole report

    [[nodiscard]] QString SelectedText() const;
    [[nodiscard]] int SelectionStart() const;
    void Select(int start, int end); // characters of the plain text
    void SelectAll();
    void Copy() const; // the selected text

    // Percent of the usual size, which follows the size of the program's text.
    [[nodiscard]] int Zoom() const { return m_zoom; }
    void SetZoom(int percent);
    void ZoomIn();
    void ZoomOut();

    // Marks every place of a text, in any letter case, and goes to the next one after the selection.
    void SetFindText(const QString& text);
    void FindNext(eDirection direction);
    void FindBelow(const QString& anchor); // goes to the first place below the headline with this id
    [[nodiscard]] int FoundCount() const { return static_cast<int>(m_found.size()); }
    [[nodiscard]] int FoundNumber() const { return m_foundNumber; } // from 1; 0 when none is marked

    // For screen readers: where characters stand, in pixels of the widget, and which one has the focus.
    [[nodiscard]] QRect PlaceOf(int position) const;
    [[nodiscard]] int PositionAt(QPoint point) const;
    [[nodiscard]] int FocusPosition() const;
    void ScrollTo(int position);

Q_SIGNALS:
    // The address exactly as it stands in the page, and the words that it stands on.
    void LinkClicked(const QString& address, const QString& name);
    void ZoomChanged(int percent);
    void FindRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void AddActions();
    void LayOut();
    void Fit();
    void Show(const QRect& place); // scrolls there; pixels of the page
    void FocusLink(int link);
    [[nodiscard]] int NextLink(eDirection direction) const;
    [[nodiscard]] bool IsInView(int link) const;
    void Follow(int link);
    void FindAll();
    void PaintMarks(QPainter& painter) const;
    void PaintFocus(QPainter& painter) const;
    [[nodiscard]] qreal Scale() const;
    [[nodiscard]] QPoint ToPage(QPoint point) const;
    [[nodiscard]] QRect LinkPlace(int link) const;

    std::unique_ptr<cReportDocument> m_document;
    QString m_html;
    QString m_folder;
    int m_zoom = 100;
    qreal m_fit = 1;  // what a wide page is made smaller by
    int m_anchor = 0; // the selection reaches from here
    int m_cursor = 0; // to here; positions in the text
    QPoint m_pressed; // pixels of the viewport
    bool m_isSelecting = false;
    int m_link = -1; // the one with the focus
    QString m_findText;
    QList<int> m_found;
    int m_foundNumber = 0;
    std::pair<QString, QString> m_followed; // address and words of a link
    QTimer tmrURLEntkoppler;
};
