#include "windows/bank/cFlickerView.h"

#include "base/cText.h"
#include "windows/bank/modScreenSize.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPolygon>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

constexpr int bars = 5;
constexpr int units = 14; // in the width of the bars: two for each bar, one for each gap between them

cFlickerView::cMoment RunningClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.nsecsElapsed(); };
}

qint64 FrameOf(const QScreen& screen)
{
    constexpr double slowest = 20;
    constexpr double fastest = 500;
    constexpr double usual = 60;
    constexpr double second = 1e9;
    const double rate = screen.refreshRate();
    return static_cast<qint64>(second / (rate < slowest || rate > fastest ? usual : rate));
}

} // namespace

cFlickerView::cFlickerView(const QByteArray& states, QWidget* parent, cMoment moment)
    : QWidget(parent),
      m_states(states),
      m_moment(moment ? std::move(moment) : RunningClock()),
      tmrFrame(new QTimer(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(cText::Tr("Flickercode für den TAN-Generator"));
    tmrFrame->setTimerType(Qt::PreciseTimer);
    tmrFrame->setSingleShot(true);
    connect(tmrFrame, &QTimer::timeout, this, [this] {
        m_isFrameDue = true;
        update();
    });
    FitScreen();
}

void cFlickerView::SetWidth(int millimetres)
{
    m_millimetres = millimetres;
    FitScreen();
}

void cFlickerView::SetSpeed(int statesPerSecond)
{
    m_pace.SetSpeed(statesPerSecond);
}

void cFlickerView::SetTurned(bool isTurned)
{
    m_isTurned = isTurned;
    update();
}

void cFlickerView::showEvent(QShowEvent* event)
{
    FitScreen();
    connect(window()->windowHandle(), &QWindow::screenChanged, this, &cFlickerView::FitScreen, Qt::UniqueConnection);
    QWidget::showEvent(event);
}

void cFlickerView::FitScreen()
{
    m_pace.SetFrame(FrameOf(*screen()));
    m_width = std::max(units, qRound(m_millimetres * modScreenSize::DotsPerMillimetre(*screen())));
    const int margin = Unit();
    setFixedSize(m_width + 2 * margin, m_width / 2 + 4 * margin);
    update();
}

int cFlickerView::Unit() const
{
    return m_width / units;
}

// Only a frame of the bars' own may change them: it is painted as a whole, while others, as after a menu that lay over
// them, paint a part.
void cFlickerView::paintEvent(QPaintEvent* /*event*/)
{
    if (m_isFrameDue) {
        const qint64 moment = m_moment();
        if (m_pace.Paint(moment) && !m_states.isEmpty()) {
            m_state = (m_state + 1) % m_states.size();
        }
        constexpr qint64 inMillisecond = 1'000'000;
        tmrFrame->start(static_cast<int>((m_pace.UntilNext(moment) + inMillisecond - 1) / inMillisecond));
        m_isFrameDue = false;
    }
    QPainter painter(this);
    PaintBars(painter);
}

// Everything is drawn in whole dots, so that no grey edge confuses the reader.
void cFlickerView::PaintBars(QPainter& painter) const
{
    painter.fillRect(rect(), Qt::black);
    if (m_isTurned) {
        painter.translate(width(), height());
        painter.rotate(180);
    }
    const int unit = Unit();
    const int top = 3 * unit; // below the marks
    const int state = m_states.isEmpty() ? 0 : m_states.at(m_state);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (int bar = 0; bar < bars; ++bar) {
        const int left = unit + m_width * 3 * bar / units;
        const int right = unit + m_width * (3 * bar + 2) / units;
        if ((state >> bar & 1) != 0) {
            painter.fillRect(left, top, right - left, height() - top - unit, Qt::white);
        }
        if (bar == 0 || bar == bars - 1) {
            painter.drawPolygon(QPolygon({{left, unit}, {right, unit}, {(left + right) / 2, 2 * unit}}));
        }
    }
}
