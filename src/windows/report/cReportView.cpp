#include "windows/report/cReportView.h"

#include "base/cText.h"
#include "windows/look/modTone.h"
#include "windows/report/cPainterCanvas.h"
#include "windows/report/cReportDocument.h"
#include "windows/report/modReportAccess.h"
#include "windows/report/modReportStyle.h"
#include "windows/report/modReportTone.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QtMath>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<int, 11> zooms{50, 67, 80, 90, 100, 110, 125, 150, 200, 250, 300};

QRect Scaled(const QRect& place, qreal factor)
{
    return QRectF(QPointF(place.topLeft()) * factor, QSizeF(place.size()) * factor).toAlignedRect();
}

QColor Mixed(const QColor& color, const QColor& other, float part)
{
    const auto mix = [part](float a, float b) { return a * part + b * (1.0F - part); };
    return QColor::fromRgbF(mix(color.redF(), other.redF()), mix(color.greenF(), other.greenF()),
                            mix(color.blueF(), other.blueF()));
}

} // namespace

cReportView::cReportView(QWidget* parent)
    : QAbstractScrollArea(parent),
      m_document(std::make_unique<cReportDocument>(QString(), font().family()))
{
    modReportAccess::Install();
    setAccessibleName(cText::Tr("Bericht"));
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    tmrURLEntkoppler.setSingleShot(true);
    tmrURLEntkoppler.setInterval(0);
    connect(&tmrURLEntkoppler, &QTimer::timeout, this,
            [this] { Q_EMIT LinkClicked(m_followed.first, m_followed.second); });
    AddActions();
}

cReportView::~cReportView() = default;

void cReportView::AddActions()
{
    const auto add = [this](const QString& text, const QList<QKeySequence>& keys, auto run) {
        auto* action = new QAction(text, this);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    add(cText::Tr("&Kopieren"), {QKeySequence::Copy}, [this] { Copy(); });
    add(cText::Tr("&Alles markieren"), {QKeySequence::SelectAll}, [this] { SelectAll(); });
    add(cText::Tr("Im Bericht &suchen…"), {QKeySequence::Find}, [this] { Q_EMIT FindRequested(); });
    add(cText::Tr("&Vergrößern"), {QKeySequence::ZoomIn, QKeySequence(u"Ctrl+="_s)}, [this] { ZoomIn(); });
    add(cText::Tr("Verk&leinern"), {QKeySequence::ZoomOut}, [this] { ZoomOut(); });
    add(cText::Tr("&Normale Größe"), {QKeySequence(u"Ctrl+0"_s)}, [this] { SetZoom(100); });
}

void cReportView::SetReport(const QString& html, const QString& folder)
{
    m_html = html;
    m_folder = folder;
    m_document = std::make_unique<cReportDocument>(html, font().family(), folder);
    m_anchor = m_cursor = 0;
    m_isSelecting = false;
    m_link = -1;
    LayOut();
    FindAll();
    if (QAccessible::isActive()) { // else nobody needs the text
        QAccessibleTextUpdateEvent changed(this, 0, QString(), PlainText());
        QAccessible::updateAccessibility(&changed);
    }
}

qreal cReportView::Scale() const
{
    return m_fit * m_zoom / 100.0 * QFontInfo(font()).pixelSize() / modReportStyle::FontSize;
}

// Wide pages are made smaller to fit, as far as they stay readable.
void cReportView::Fit()
{
    constexpr qreal smallest = 0.75;
    const int zoom = std::exchange(m_zoom, 100);
    m_fit = 1;
    const qreal width = viewport()->width() / Scale();
    m_document->LayOut(static_cast<int>(width));
    const int needed = m_document->Size().width();
    if (needed > width) {
        m_fit = std::clamp(width / (needed + modReportStyle::Margin), smallest, 1.0);
    }
    m_zoom = zoom;
}

void cReportView::LayOut()
{
    Fit();
    const qreal scale = Scale();
    if (m_fit < 1 || m_zoom != 100) {
        m_document->LayOut(static_cast<int>(viewport()->width() / scale));
    }
    const QSizeF size = QSizeF(m_document->Size()) * scale;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(fontMetrics().height());
    verticalScrollBar()->setRange(0, qCeil(size.height()) - viewport()->height());
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().height());
    horizontalScrollBar()->setRange(0, qCeil(size.width()) - viewport()->width());
    viewport()->update();
}

void cReportView::GoToAnchor(const QString& anchor)
{
    const QRect heading = m_document->AnchorPlace(anchor);
    verticalScrollBar()->setValue(heading.isNull() ? 0 : qRound(heading.top() * Scale()) - fontMetrics().height() / 2);
}

QPoint cReportView::ToPage(QPoint point) const
{
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return (QPointF(point + scrolled) / Scale()).toPoint();
}

QString cReportView::PlainText() const
{
    return m_document->Text().Text();
}

QString cReportView::SelectedText() const
{
    return PlainText().mid(SelectionStart(), std::abs(m_cursor - m_anchor));
}

int cReportView::SelectionStart() const
{
    return std::min(m_anchor, m_cursor);
}

void cReportView::Select(int start, int end)
{
    m_anchor = start;
    m_cursor = end;
    viewport()->update();
}

void cReportView::SelectAll()
{
    Select(0, static_cast<int>(PlainText().size()));
}

void cReportView::Copy() const
{
    if (m_anchor != m_cursor) {
        QApplication::clipboard()->setText(SelectedText());
    }
}

void cReportView::SetZoom(int percent)
{
    const int zoom = std::clamp(percent, zooms.front(), zooms.back());
    if (zoom != m_zoom) {
        const qreal shown = verticalScrollBar()->value() / Scale();
        m_zoom = zoom;
        LayOut();
        verticalScrollBar()->setValue(qRound(shown * Scale()));
        Q_EMIT ZoomChanged(zoom);
    }
}

void cReportView::ZoomIn()
{
    const auto next = std::upper_bound(zooms.begin(), zooms.end(), m_zoom);
    SetZoom(next == zooms.end() ? zooms.back() : *next);
}

void cReportView::ZoomOut()
{
    const auto next = std::lower_bound(zooms.begin(), zooms.end(), m_zoom);
    SetZoom(next == zooms.begin() ? zooms.front() : *std::prev(next));
}

void cReportView::SetFindText(const QString& text)
{
    m_findText = text;
    FindAll();
    m_cursor = std::min(m_anchor, m_cursor); // the place found before may go on to match
    m_anchor = m_cursor;
    FindNext(eDirection::Forward);
}

void cReportView::FindAll()
{
    m_found.clear();
    m_foundNumber = 0;
    viewport()->update();
    if (m_findText.isEmpty()) {
        return;
    }
    const QString& text = m_document->Text().Text();
    for (qsizetype at = 0; at >= 0; at += m_findText.size()) {
        at = text.indexOf(m_findText, at, Qt::CaseInsensitive);
        if (at < 0) {
            break;
        }
        m_found.append(static_cast<int>(at));
    }
}

void cReportView::FindNext(eDirection direction)
{
    if (m_found.isEmpty()) {
        return;
    }
    const int count = FoundCount();
    const bool isForward = direction == eDirection::Forward;
    const int from = isForward ? std::max(m_anchor, m_cursor) : std::min(m_anchor, m_cursor);
    const auto next = std::lower_bound(m_found.begin(), m_found.end(), from);
    const int index = static_cast<int>(next - m_found.begin()) + (isForward ? 0 : -1);
    m_foundNumber = (index + count) % count + 1; // round at both ends
    const int start = m_found.at(m_foundNumber - 1);
    Select(start, start + static_cast<int>(m_findText.size()));
    ScrollTo(start);
}

void cReportView::FindBelow(const QString& anchor)
{
    const int start = m_document->Text().PositionAt(m_document->AnchorPlace(anchor).topLeft());
    Select(start, start);
    FindNext(eDirection::Forward);
}

void cReportView::ScrollTo(int position)
{
    const QList<QRect> places = m_document->Text().Places(position, position + 1);
    if (!places.isEmpty()) {
        Show(places.constFirst());
    }
}

void cReportView::Show(const QRect& place)
{
    const QRect shown = Scaled(place, Scale());
    const auto bring = [](QScrollBar& bar, int first, int last) {
        const int margin = bar.singleStep();
        if (first - margin < bar.value()) {
            bar.setValue(first - margin);
        } else if (last + margin > bar.value() + bar.pageStep()) {
            bar.setValue(last + margin - bar.pageStep());
        }
    };
    bring(*verticalScrollBar(), shown.top(), shown.bottom());
    bring(*horizontalScrollBar(), shown.left(), shown.right());
}

QRect cReportView::PlaceOf(int position) const
{
    const QList<QRect> places = m_document->Text().Places(position, position + 1);
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return places.isEmpty() ? QRect() : Scaled(places.constFirst(), Scale()).translated(viewport()->pos() - scrolled);
}

int cReportView::PositionAt(QPoint point) const
{
    return m_document->Text().PositionAt(ToPage(point - viewport()->pos()));
}

int cReportView::FocusPosition() const
{
    if (m_link < 0) {
        return m_cursor;
    }
    const QList<QRect>& words = m_document->Links().at(m_link).Places;
    return words.isEmpty() ? 0 : std::max(0, m_document->Text().WordAt(words.constFirst().center()));
}

QRect cReportView::LinkPlace(int link) const
{
    QRect whole;
    const QList<QRect>& places = m_document->Links().at(link).Places;
    for (const QRect& place : places) {
        whole |= place;
    }
    return whole;
}

void cReportView::FocusLink(int link)
{
    m_link = link;
    if (link >= 0) {
        QAccessibleTextCursorEvent moved(this, FocusPosition());
        QAccessible::updateAccessibility(&moved);
    }
    viewport()->update();
}

// The page is read where it is shown: from there the first link, or the last one, is the next.
int cReportView::NextLink(eDirection direction) const
{
    const bool isForward = direction == eDirection::Forward;
    if (m_link >= 0) {
        return m_link + (isForward ? 1 : -1);
    }
    const int count = static_cast<int>(m_document->Links().size());
    const int top = ToPage({}).y();
    const int bottom = ToPage({0, viewport()->height()}).y();
    int link = isForward ? 0 : count - 1;
    while (isForward ? link < count && LinkPlace(link).top() < top : link >= 0 && LinkPlace(link).bottom() > bottom) {
        link += isForward ? 1 : -1;
    }
    return link;
}

bool cReportView::IsInView(int link) const
{
    const QRect shown(ToPage({}), ToPage({viewport()->width(), viewport()->height()}));
    return link >= 0 && link < m_document->Links().size() && shown.contains(LinkPlace(link));
}

void cReportView::Follow(int link)
{
    // Whoever listens may put another report in place of this one, which must not happen within its own event.
    const cReportDocument::cLink& followed = m_document->Links().at(link);
    m_followed = {followed.Address, followed.Name};
    tmrURLEntkoppler.start();
}

void cReportView::paintEvent(QPaintEvent* event)
{
    const QPalette& colors = palette();
    QPainter painter(viewport());
    painter.fillRect(event->rect(), modReportTone::Shown(Qt::white, colors));
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    painter.scale(Scale(), Scale());
    const QRect clip = painter.transform().inverted().mapRect(QRectF(event->rect())).toAlignedRect();
    cPainterCanvas canvas(painter, [&colors](const QColor& color) { return modReportTone::Shown(color, colors); });
    m_document->Draw(canvas, clip);
    PaintMarks(painter);
    PaintFocus(painter);
}

void cReportView::PaintMarks(QPainter& painter) const
{
    // So that the ground takes the colour and the text stays as it is.
    const bool isDark = modTone::IsDark(palette());
    painter.setCompositionMode(isDark ? QPainter::CompositionMode_Screen : QPainter::CompositionMode_Multiply);
    const auto fill = [&](int start, int end, const QColor& color, float strength) {
        const QColor tint = Mixed(color, isDark ? Qt::black : Qt::white, strength);
        const QList<QRect> places = m_document->Text().Places(start, end);
        for (const QRect& place : places) {
            painter.fillRect(place, tint);
        }
    };
    for (const int start : m_found) {
        fill(start, start + static_cast<int>(m_findText.size()), QColor(0xff, 0xc1, 0x07), 0.45F);
    }
    if (m_anchor != m_cursor) {
        fill(std::min(m_anchor, m_cursor), std::max(m_anchor, m_cursor), palette().color(QPalette::Highlight), 0.4F);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void cReportView::PaintFocus(QPainter& painter) const
{
    if (m_link >= 0 && hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(LinkPlace(m_link)).adjusted(-3, -2, 3, 2), 3, 3);
    }
}

void cReportView::resizeEvent(QResizeEvent* /*event*/)
{
    LayOut();
}

void cReportView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        m_document = std::make_unique<cReportDocument>(m_html, font().family(), m_folder);
        LayOut();
    }
    QAbstractScrollArea::changeEvent(event);
}

void cReportView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_pressed = event->position().toPoint();
    m_isSelecting = false;
    m_document->MousePress(ToPage(m_pressed));
    const int position = m_document->Text().PositionAt(ToPage(m_pressed));
    Select(event->modifiers().testFlag(Qt::ShiftModifier) ? m_anchor : position, position);
}

void cReportView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        m_document->MouseMove(ToPage(point));
        viewport()->setCursor(m_document->IsOverLink() ? Qt::PointingHandCursor : Qt::IBeamCursor);
        return;
    }
    m_isSelecting = m_isSelecting || (point - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (m_isSelecting) {
        const int beyond = std::min(0, point.y()) + std::max(0, point.y() - viewport()->height());
        verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond);
        Select(m_anchor, m_document->Text().PositionAt(ToPage(point)));
    }
}

void cReportView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (m_isSelecting) { // dragging over a link is no click
        m_document->MouseLeave();
        return;
    }
    const int link = m_document->MouseRelease(ToPage(event->position().toPoint()));
    if (link >= 0) {
        Follow(link);
    }
}

void cReportView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int start = m_document->Text().WordAt(ToPage(event->position().toPoint()));
    if (start >= 0) {
        const qsizetype end = PlainText().indexOf(QRegularExpression(u"[ \\t\\n]"_s), start);
        Select(start, static_cast<int>(end < 0 ? PlainText().size() : end));
    }
}

bool cReportView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) {
        m_document->MouseLeave();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void cReportView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
    } else if (event->angleDelta().y() > 0) {
        ZoomIn();
    } else if (event->angleDelta().y() < 0) {
        ZoomOut();
    }
}

void cReportView::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_link >= 0) {
        Follow(m_link);
    } else if (event->key() == Qt::Key_Home) {
        verticalScrollBar()->setValue(0);
    } else if (event->key() == Qt::Key_End) {
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

// Nothing is scrolled: a window that opens hands the focus on as the tabulator key does.
void cReportView::focusInEvent(QFocusEvent* event)
{
    const bool isBack = event->reason() == Qt::BacktabFocusReason;
    if (isBack || event->reason() == Qt::TabFocusReason) {
        m_link = -1;
        const int link = NextLink(isBack ? eDirection::Backward : eDirection::Forward);
        FocusLink(IsInView(link) ? link : -1);
    }
    QAbstractScrollArea::focusInEvent(event);
}

void cReportView::focusOutEvent(QFocusEvent* event)
{
    viewport()->update(); // without the frame of the link
    QAbstractScrollArea::focusOutEvent(event);
}

bool cReportView::focusNextPrevChild(bool next)
{
    const int link = NextLink(next ? eDirection::Forward : eDirection::Backward);
    if (link >= 0 && link < m_document->Links().size()) {
        Show(LinkPlace(link));
        FocusLink(link);
        return true;
    }
    FocusLink(-1);
    return QAbstractScrollArea::focusNextPrevChild(next);
}
