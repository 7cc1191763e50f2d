#include "windows/game/cGameView.h"

#include "base/cText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 tick = 1'000'000'000 / cGame::TicksPerSecond;
constexpr qint64 mostBehind = 8 * tick; // a machine that stutters makes the game slower, it does not jump

const QColor nightTop(24, 32, 58);
const QColor nightBottom(44, 62, 96);
const QColor gold(242, 184, 75);
const QColor goldEdge(176, 124, 34);
const QColor paper(244, 240, 230);
const QColor red(196, 58, 52);
const QColor green(86, 158, 104);
const QColor pink(236, 160, 170);
const QColor leather(132, 78, 48);

void WriteCentred(QPainter& painter, const QRectF& place, const QString& text, double height, const QColor& colour)
{
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(height)));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(place, int(Qt::AlignCenter) | int(Qt::TextWordWrap), text);
}

void PaintBill(QPainter& painter, const QRectF& place)
{
    painter.setPen(QPen(red, 60));
    painter.setBrush(paper);
    painter.drawRect(place);
    painter.setPen(QPen(QColor(150, 150, 150), 50));
    for (int line = 1; line <= 3; ++line) {
        const double y = place.top() + place.height() * (0.5 + 0.12 * line);
        painter.drawLine(QPointF(place.left() + 200, y), QPointF(place.right() - 200, y));
    }
    WriteCentred(painter, QRectF(place.left(), place.top(), place.width(), place.height() * 0.55), u"!"_s, 560, red);
}

void PaintPiggy(QPainter& painter, const QRectF& place)
{
    painter.setPen(QPen(pink.darker(130), 50));
    painter.setBrush(pink);
    painter.drawEllipse(place);
    painter.drawEllipse(QRectF(place.right() - 260, place.center().y() - 130, 260, 260));
    painter.setBrush(pink.darker(150));
    painter.drawEllipse(QPointF(place.center().x() + 150, place.center().y() - 110), 40, 40);
}

} // namespace

cGameView::cGameView(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(480, 300);
    setAccessibleName(cText::Tr("Spielfeld"));
    tmrFrame.setTimerType(Qt::PreciseTimer);
    connect(&tmrFrame, &QTimer::timeout, this, &cGameView::Step);
}

void cGameView::Begin(quint32 seed)
{
    m_game.emplace(seed);
    m_target = -1;
    m_isLeft = false;
    m_isRight = false;
    Continue();
}

void cGameView::Pause()
{
    tmrFrame.stop();
    update();
}

void cGameView::Continue()
{
    SetMessage({}, {});
    m_behind = 0;
    m_clock.start();
    tmrFrame.start(std::max(1, static_cast<int>(1000.0 / std::max(30.0, screen()->refreshRate()))));
    setFocus();
    Q_EMIT Changed();
}

void cGameView::SetMessage(const QString& title, const QString& text)
{
    m_title = title;
    m_text = text;
    update();
}

void cGameView::Step()
{
    m_behind = std::min(m_behind + m_clock.nsecsElapsed(), mostBehind);
    m_clock.start();
    while (m_behind >= tick && !m_game->IsOver()) {
        m_behind -= tick;
        m_game->Step({(m_isRight ? 1 : 0) - (m_isLeft ? 1 : 0), m_target});
        const std::vector<cGame::eEvent>& events = m_game->Events();
        if (!events.empty()) {
            Q_EMIT Changed();
        }
        if (std::find(events.begin(), events.end(), cGame::eEvent::LifeLost) != events.end()) {
            Q_EMIT LifeLost();
        }
    }
    update();
    if (m_game->IsOver()) {
        tmrFrame.stop();
        Q_EMIT Over();
    }
}

double cGameView::Scale() const
{
    return std::min(static_cast<double>(width()) / cGame::Width, static_cast<double>(height()) / cGame::Height);
}

void cGameView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), nightTop.darker(140));
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = Scale();
    painter.translate((width() - cGame::Width * scale) / 2, (height() - cGame::Height * scale) / 2);
    painter.scale(scale, scale);
    QLinearGradient night(0, 0, 0, cGame::Height);
    night.setColorAt(0, nightTop);
    night.setColorAt(1, nightBottom);
    painter.setClipRect(QRectF(0, 0, cGame::Width, cGame::Height));
    painter.fillRect(QRectF(0, 0, cGame::Width, cGame::Height), night);
    if (m_game) {
        PaintThings(painter);
        PaintPurse(painter);
        PaintOrder(painter);
    }
    PaintMessage(painter);
}

void cGameView::PaintThings(QPainter& painter) const
{
    for (const cGame::cThing& thing : m_game->Things()) {
        const double half = cGame::Half(thing.Kind);
        const QRectF place(thing.X - half, thing.Y - half, 2 * half, 2 * half);
        switch (thing.Kind) {
        case cGame::eThing::Coin:
        case cGame::eThing::TwoCoin:
            painter.setPen(QPen(goldEdge, 70));
            painter.setBrush(thing.Kind == cGame::eThing::Coin ? gold : gold.lighter(125));
            painter.drawEllipse(place);
            WriteCentred(painter, place, thing.Kind == cGame::eThing::Coin ? u"1"_s : u"2"_s, 520,
                         goldEdge.darker(130));
            break;
        case cGame::eThing::Note:
            painter.setPen(QPen(green.darker(150), 60));
            painter.setBrush(green);
            painter.drawRoundedRect(place.adjusted(-200, 180, 200, -180), 80, 80);
            WriteCentred(painter, place, u"5"_s, 460, paper);
            break;
        case cGame::eThing::Bill: PaintBill(painter, place); break;
        case cGame::eThing::Piggy: PaintPiggy(painter, place); break;
        }
    }
}

void cGameView::PaintPurse(QPainter& painter) const
{
    painter.setOpacity(m_game->IsSafe() ? 0.5 : 1.0);
    const QRectF purse(m_game->PurseX() - cGame::PurseHalf, cGame::PurseY - 300, 2.0 * cGame::PurseHalf, 800);
    painter.setPen(QPen(leather.darker(150), 60));
    painter.setBrush(leather);
    painter.drawRoundedRect(purse, 260, 260);
    painter.setPen(QPen(gold, 110));
    painter.drawLine(purse.topLeft() + QPointF(150, 40), purse.topRight() + QPointF(-150, 40));
    painter.setBrush(gold);
    painter.drawEllipse(QPointF(m_game->PurseX(), purse.top() + 20), 90, 90);
    WriteCentred(painter, purse.adjusted(0, 150, 0, 0), QString::number(m_game->Euros()), 480, paper);
    if (m_game->HasPiggy()) {
        PaintPiggy(painter, QRectF(purse.right() - 100, purse.top() - 450, 520, 430));
    }
    painter.setOpacity(1.0);
}

// From the top over the whole width: nobody gets past it.
void cGameView::PaintOrder(QPainter& painter) const
{
    const int left = m_game->TicksToOrder();
    if (left > cGame::OrderTicks) {
        return;
    }
    const double bottom = (1.0 - static_cast<double>(left) / cGame::OrderTicks) * (cGame::PurseY - 300);
    const bool isCovered = m_game->Euros() >= m_game->Order();
    const QRectF envelope(0, bottom - 1100, cGame::Width, 1100);
    painter.setPen(QPen(isCovered ? green : red, 80));
    painter.setBrush(paper);
    painter.drawRect(envelope);
    WriteCentred(painter, envelope, cText::Tr("Dauerauftrag: {0} €", {QString::number(m_game->Order())}), 620,
                 isCovered ? green.darker(130) : red);
}

void cGameView::PaintMessage(QPainter& painter) const
{
    if (m_title.isEmpty()) {
        return;
    }
    painter.fillRect(QRectF(0, 0, cGame::Width, cGame::Height), QColor(0, 0, 0, 150));
    WriteCentred(painter, QRectF(0, 2400, cGame::Width, 1600), m_title, 1100, gold);
    WriteCentred(painter, QRectF(400, 4200, cGame::Width - 800, 3600), m_text, 520, paper);
}

void cGameView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_A:
        m_isLeft = true;
        m_target = -1;
        break;
    case Qt::Key_Right:
    case Qt::Key_D:
        m_isRight = true;
        m_target = -1;
        break;
    case Qt::Key_Space:
    case Qt::Key_P:
    case Qt::Key_Return:
    case Qt::Key_Enter: Q_EMIT Wanted(); break;
    default: QWidget::keyPressEvent(event);
    }
}

void cGameView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        return;
    }
    m_isLeft = m_isLeft && event->key() != Qt::Key_Left && event->key() != Qt::Key_A;
    m_isRight = m_isRight && event->key() != Qt::Key_Right && event->key() != Qt::Key_D;
    QWidget::keyReleaseEvent(event);
}

void cGameView::mouseMoveEvent(QMouseEvent* event)
{
    const double scale = Scale();
    const double x = (event->position().x() - (width() - cGame::Width * scale) / 2) / scale;
    m_target = std::clamp(static_cast<int>(x), 0, cGame::Width);
}

void cGameView::mousePressEvent(QMouseEvent* /*event*/)
{
    if (IsPaused()) {
        Q_EMIT Wanted();
    }
}

void cGameView::focusOutEvent(QFocusEvent* event)
{
    m_isLeft = false;
    m_isRight = false;
    if (!IsPaused()) {
        Q_EMIT Wanted();
    }
    QWidget::focusOutEvent(event);
}
