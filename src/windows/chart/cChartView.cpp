#include "windows/chart/cChartView.h"

#include "base/cText.h"
#include "windows/chart/modChartAccess.h"
#include "windows/chart/modChartPainter.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int farStep = 12;   // a year of months
constexpr int weekStep = 7;   // a line of a calendar
constexpr int monthStep = 30; // about one of its months

struct cMove
{
    int Key;
    int Series;
    int Index;
};

// The slices of a pie stand where other charts have their labels.
constexpr cMove moves[] = {{Qt::Key_Left, 0, -1}, {Qt::Key_Right, 0, 1},         {Qt::Key_Up, -1, 0},
                           {Qt::Key_Down, 1, 0},  {Qt::Key_PageUp, 0, -farStep}, {Qt::Key_PageDown, 0, farStep}};

} // namespace

cChartView::cChartView(QWidget* parent) : QWidget(parent)
{
    modChartAccess::Install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setAccessibleDescription(
        cText::Tr("Pfeiltasten wählen einen Teil, die Eingabetaste zeigt seine Buchungen, Tab führt "
                  "zur Legende."));
    Say({});
}

cChartView::~cChartView() = default;

void cChartView::SetData(const cChartData& chart)
{
    cChartData next = chart;
    next.HideAsIn(m_data); // what the reader switched off stays off when the book changes
    m_data = next;
    m_state = {};
    Say({});
    Invalidate();
}

cChartData cChartView::ShownData() const
{
    return m_data.Shown();
}

int cChartView::SeriesAt(int shown) const
{
    for (int series = 0; series < m_data.Series.size(); ++series) {
        if (!m_data.IsHidden(series) && shown-- == 0) {
            return series;
        }
    }
    return -1;
}

cChartStyle cChartView::Style() const
{
    return {palette(), font()};
}

const cChartLayout& cChartView::Layout() const
{
    if (!m_layout) {
        m_layout = std::make_unique<cChartLayout>(modChartPainter::LayOut(m_data, m_state, Style(), rect()));
    }
    return *m_layout;
}

std::optional<cChartPart> cChartView::PartAt(QPointF position) const
{
    return Layout().PartAt(position);
}

QSize cChartView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 20};
}

QSize cChartView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 36, fontMetrics().height() * 17}; // a dozen names in the legend
}

void cChartView::Invalidate()
{
    m_layout.reset();
    update();
}

void cChartView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    cChartState state = m_state;
    if (!hasFocus()) {
        state.Current.reset();
        state.Legend = -1;
    }
    modChartPainter::Paint(painter, m_data, state, Style(), Layout());
}

void cChartView::resizeEvent(QResizeEvent* event)
{
    m_layout.reset();
    QWidget::resizeEvent(event);
}

void cChartView::changeEvent(QEvent* event)
{
    Invalidate();
    QWidget::changeEvent(event);
}

bool cChartView::event(QEvent* event)
{
    if (event->type() == QEvent::Leave) {
        Hover({}, {});
    }
    if (event->type() == QEvent::ToolTip) {
        return true; // shown while the pointer moves
    }
    return QWidget::event(event);
}

void cChartView::mouseMoveEvent(QMouseEvent* event)
{
    const int item = Layout().LegendAt(event->position());
    Hover(item < 0 ? PartAt(event->position()) : std::nullopt, event->globalPosition().toPoint());
    const bool isClickable = item >= 0 || m_state.Hovered;
    setCursor(isClickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void cChartView::Hover(const std::optional<cChartPart>& part, QPoint position)
{
    if (part == m_state.Hovered) {
        return;
    }
    m_state.Hovered = part;
    if (part) {
        QToolTip::showText(position, m_data.PartText(part->Series, part->Index), this);
    } else {
        QToolTip::hideText();
    }
    update();
}

void cChartView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const int item = Layout().LegendAt(event->position());
    if (item >= 0) {
        Switch(Layout().Legend[static_cast<std::size_t>(item)].Series);
    } else if (const std::optional<cChartPart> part = PartAt(event->position())) {
        SetCurrent(part);
        Click(*part);
    }
}

void cChartView::Click(const cChartPart& part)
{
    QToolTip::hideText();
    Q_EMIT PartClicked(part.Series, part.Index);
}

void cChartView::Switch(int series)
{
    const bool isHidden = !m_data.IsHidden(series);
    for (cChartSeries& each : m_data.Series) {
        // A stack laid beside has no item of its own in the legend; it goes with the one of its colour.
        const bool isBeside = m_data.Kind == eChart::StackedColumns && each.IsComparison
            && each.Colour == m_data.Series.at(series).Colour;
        each.IsHidden = isBeside ? isHidden : each.IsHidden;
    }
    m_data.Series[series].IsHidden = isHidden;
    if (m_state.Current && m_data.IsHidden(m_state.Current->Series)) {
        m_state.Current.reset();
    }
    m_state.Hovered.reset();
    const QString& name = m_data.Series[series].Name;
    Say(m_data.IsHidden(series) ? cText::Tr("{0}, ausgeblendet", {name}) : cText::Tr("{0}, eingeblendet", {name}));
    Invalidate();
    Q_EMIT SeriesSwitched();
}

bool cChartView::Exists(const cChartPart& part) const
{
    return part.Series >= 0 && part.Series < m_data.Series.size() && part.Index >= 0
        && part.Index < m_data.Labels.size() && Layout().AnchorOf(part);
}

std::optional<cChartPart> cChartView::FirstPart() const
{
    for (int series = 0; series < m_data.Series.size(); ++series) {
        for (int index = 0; index < m_data.Labels.size(); ++index) {
            if (Exists({series, index})) {
                return cChartPart{series, index};
            }
        }
    }
    return std::nullopt;
}

void cChartView::SetCurrent(const std::optional<cChartPart>& part)
{
    m_state.Current = part;
    m_state.Legend = -1;
    Say(part ? m_data.PartText(part->Series, part->Index) : QString());
    update();
}

void cChartView::SetLegend(int item)
{
    m_state.Legend = item;
    m_state.Current.reset();
    const int series = Layout().Legend[static_cast<std::size_t>(item)].Series;
    const QString& name = m_data.Series[series].Name;
    Say(m_data.IsHidden(series) ? cText::Tr("Legende: {0}, ausgeblendet", {name})
                                : cText::Tr("Legende: {0}, eingeblendet", {name}));
    update();
}

// The focused part as the widget's name: that is what screen readers say when it changes.
void cChartView::Say(const QString& text)
{
    const QString name = cText::Tr("Diagramm {0}", {m_data.Title}).trimmed();
    setAccessibleName(text.isEmpty() ? name : cText::Tr("{0}: {1}", {name, text}));
}

// Goes on in the direction until there is a part: gaps and hidden series are passed over.
void cChartView::MovePart(int seriesStep, int indexStep)
{
    if (!m_state.Current) {
        SetCurrent(FirstPart());
        return;
    }
    if (m_data.Kind == eChart::Pie) {
        std::swap(seriesStep, indexStep);
    } else if (m_data.Kind == eChart::Flow && indexStep != 0) {
        MoveAcross();
        return;
    } else if (m_data.Kind == eChart::Calendar) {
        indexStep = seriesStep != 0   ? seriesStep * weekStep
            : std::abs(indexStep) > 1 ? indexStep / farStep * monthStep
                                      : indexStep;
        seriesStep = 0;
    }
    cChartPart part = *m_state.Current;
    const int last = static_cast<int>(m_data.Labels.size()) - 1;
    const bool isFar = std::abs(indexStep) > 1;
    do {
        part.Series += seriesStep;
        part.Index = isFar ? std::clamp(part.Index + indexStep, 0, last) : part.Index + indexStep;
        if (part.Series < 0 || part.Series >= m_data.Series.size() || part.Index < 0 || part.Index > last) {
            return;
        }
    } while (!Exists(part) && !isFar);
    if (Exists(part)) {
        SetCurrent(part);
    }
}

// To the other side of a flow, as straight as possible.
void cChartView::MoveAcross()
{
    const int other = 1 - m_state.Current->Index;
    const double y = Layout().AnchorOf(*m_state.Current).value_or(QPointF()).y();
    std::optional<cChartPart> nearest;
    double best = 0;
    for (int series = 0; series < m_data.Series.size(); ++series) {
        const cChartPart part{series, other};
        const std::optional<QPointF> anchor = Exists(part) ? Layout().AnchorOf(part) : std::nullopt;
        if (anchor && (!nearest || std::abs(anchor->y() - y) < best)) {
            nearest = part;
            best = std::abs(anchor->y() - y);
        }
    }
    if (nearest) {
        SetCurrent(nearest);
    }
}

void cChartView::PressInLegend(int key)
{
    const int last = static_cast<int>(Layout().Legend.size()) - 1;
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        Switch(Layout().Legend[static_cast<std::size_t>(m_state.Legend)].Series);
    } else if (key == Qt::Key_Left || key == Qt::Key_Up) {
        SetLegend(std::max(0, m_state.Legend - 1));
    } else if (key == Qt::Key_Right || key == Qt::Key_Down) {
        SetLegend(std::min(last, m_state.Legend + 1));
    }
}

bool cChartView::PressOnPart(int key)
{
    const auto* const move =
        std::find_if(std::begin(moves), std::end(moves), [key](const cMove& each) { return each.Key == key; });
    if (move != std::end(moves)) {
        MovePart(move->Series, move->Index);
        return true;
    }
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (isEnter && m_state.Current) {
        Click(*m_state.Current);
        return true;
    }
    if (key == Qt::Key_Backspace && !m_data.BackText.isEmpty()) {
        Q_EMIT BackRequested();
        return true;
    }
    return false;
}

void cChartView::keyPressEvent(QKeyEvent* event)
{
    if (m_state.Legend >= 0) {
        PressInLegend(event->key());
    } else if (!PressOnPart(event->key())) {
        QWidget::keyPressEvent(event);
    }
}

// Within the chart, Tab goes from the parts to the legend and only then on.
bool cChartView::focusNextPrevChild(bool next)
{
    const bool isInLegend = m_state.Legend >= 0;
    if (next && !isInLegend && !Layout().Legend.empty()) {
        SetLegend(0);
        return true;
    }
    if (!next && isInLegend) {
        SetCurrent(FirstPart());
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

void cChartView::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::BacktabFocusReason && !Layout().Legend.empty()) {
        SetLegend(0);
    } else if (!m_state.Current && event->reason() != Qt::MouseFocusReason) {
        SetCurrent(FirstPart());
    }
    QWidget::focusInEvent(event);
    update();
}

void cChartView::focusOutEvent(QFocusEvent* event)
{
    m_state.Legend = -1;
    QWidget::focusOutEvent(event);
    update();
}
