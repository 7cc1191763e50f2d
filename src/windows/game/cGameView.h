#pragma once

#include "game/cGame.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <optional>

class QPainter;

// The game on screen: steps it in its own time, however often the display is painted, and takes keys and mouse. It
// pauses when the window is left.
class cGameView final : public QWidget
{
    Q_OBJECT

public:
    explicit cGameView(QWidget* parent = nullptr);

    void Begin(quint32 seed);
    void Pause();
    void Continue();
    [[nodiscard]] bool IsPaused() const { return !tmrFrame.isActive(); }
    [[nodiscard]] const cGame* Game() const { return m_game ? &*m_game : nullptr; }
    void SetMessage(const QString& title, const QString& text); // over the scene; empty for none

Q_SIGNALS:
    void Changed(); // what a line of text tells of the game
    void LifeLost();
    void Over();
    void Wanted(); // the user wants to begin, to pause or to go on

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Step();
    [[nodiscard]] double Scale() const;
    void PaintThings(QPainter& painter) const;
    void PaintPurse(QPainter& painter) const;
    void PaintOrder(QPainter& painter) const;
    void PaintMessage(QPainter& painter) const;

    std::optional<cGame> m_game;
    QTimer tmrFrame;
    QElapsedTimer m_clock;
    qint64 m_behind = 0; // nanoseconds that the game lags behind the clock
    bool m_isLeft = false;
    bool m_isRight = false;
    int m_target = -1;
    QString m_title;
    QString m_text;
};
