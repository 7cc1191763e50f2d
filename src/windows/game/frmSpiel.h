#pragma once

#include <QDate>
#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;
class cGameView;
class cHighScores;

// The game in a window of its own, with the best runs of the book.
class frmSpiel final : public QDialog
{
    Q_OBJECT

public:
    // `scores` outlives the window; `today` is the day of a run, `seed` gives each game its own.
    frmSpiel(cHighScores& scores, QDate today, std::function<quint32()> seed, QWidget* parent = nullptr);

private:
    void Build();
    void ShowState();
    void ShowStart(const QString& title, const QString& head);
    void Toggle(); // begins, pauses or goes on
    void End();

    cHighScores& m_scores;
    QDate m_today;
    std::function<quint32()> m_seed;
    cGameView* m_view = nullptr;
    QLabel* m_state = nullptr;
    QCheckBox* m_sound = nullptr;
};
