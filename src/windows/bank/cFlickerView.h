#pragma once

#include "views/bank/cFlickerPace.h"

#include <QByteArray>
#include <QWidget>

#include <functional>

class QPainter;
class QTimer;

// Five bars that tell a TAN generator its code in black and white, for ever from the beginning. Their width is one on
// the glass of the screen, because the generator's eyes have fixed places.
class cFlickerView final : public QWidget
{
    Q_OBJECT

public:
    // Nanoseconds from any moment on.
    using cMoment = std::function<qint64()>;

    // `states` as in cTanQuestion.
    explicit cFlickerView(const QByteArray& states, QWidget* parent = nullptr, cMoment moment = {});

    void SetWidth(int millimetres); // from the first to the last bar
    void SetSpeed(int statesPerSecond);
    void SetTurned(bool isTurned);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FitScreen(); // its density and its frames
    void PaintBars(QPainter& painter) const;
    [[nodiscard]] int Unit() const;

    QByteArray m_states;
    cMoment m_moment;
    cFlickerPace m_pace;
    QTimer* tmrFrame;
    qsizetype m_state = 0;
    int m_millimetres = 0;
    int m_width = 0; // of the bars
    bool m_isTurned = false;
    bool m_isFrameDue = true;
};
