#include "windows/game/frmSpiel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "views/help/cHighScores.h"
#include "windows/game/cGameView.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <utility>

using namespace Qt::Literals::StringLiterals;

frmSpiel::frmSpiel(cHighScores& scores, QDate today, std::function<quint32()> seed, QWidget* parent)
    : QDialog(parent),
      m_scores(scores),
      m_today(today),
      m_seed(std::move(seed))
{
    setWindowTitle(cText::Tr("Monatsende"));
    Build();
    ShowStart(cText::Tr("Monatsende"),
              cText::Tr("Fangen Sie Geld, weichen Sie Rechnungen aus.\nDer Dauerauftrag kommt immer."));
}

void frmSpiel::Build()
{
    m_view = new cGameView(this);
    m_state = new QLabel(this);
    m_sound = new QCheckBox(cText::Tr("&Ton"), this);
    m_sound->setFocusPolicy(Qt::TabFocus);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(m_view, &cGameView::Changed, this, &frmSpiel::ShowState);
    connect(m_view, &cGameView::Wanted, this, &frmSpiel::Toggle);
    connect(m_view, &cGameView::Over, this, &frmSpiel::End);
    connect(m_view, &cGameView::LifeLost, this, [this] {
        if (m_sound->isChecked()) {
            QApplication::beep();
        }
    });

    auto* row = new QHBoxLayout;
    row->addWidget(m_state, 1);
    row->addWidget(m_sound);
    row->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addLayout(row);
    resize(modPlace::Fitting(QSize(960, 660), screen()->availableGeometry()));
    m_view->setFocus();
}

void frmSpiel::ShowState()
{
    const cGame* game = m_view->Game();
    if (game == nullptr) {
        return;
    }
    m_state->setText(
        cText::Tr("Monat {0}   ·   {1} € für den Dauerauftrag von {2} €   ·   {3} Leben   ·   {4} Punkte",
                  {QString::number(game->Month()), QString::number(game->Euros()), QString::number(game->Order()),
                   QString::number(game->Lives()), QString::number(game->Points())}));
}

void frmSpiel::ShowStart(const QString& title, const QString& head)
{
    QString text = head;
    const QList<cHighScores::cRun> best = m_scores.Best();
    for (const cHighScores::cRun& run : best) {
        text += u'\n'
            + cText::Tr("{0} Punkte, {1} Monate, {2}",
                        {QString::number(run.Points), QString::number(run.Months), modDate::ToText(run.Day)});
    }
    m_view->SetMessage(title, text + u"\n\n"_s + cText::Tr("Eingabe beginnt, Pfeile oder Maus bewegen, P hält an."));
}

void frmSpiel::Toggle()
{
    const cGame* game = m_view->Game();
    if (!m_view->IsPaused()) {
        m_view->Pause();
        m_view->SetMessage(cText::Tr("Pause"), cText::Tr("Eingabe geht weiter."));
    } else if (game == nullptr || game->IsOver()) {
        m_view->Begin(m_seed());
    } else {
        m_view->Continue();
    }
}

void frmSpiel::End()
{
    const cGame* game = m_view->Game();
    const int place = m_scores.Add({game->Points(), game->Month(), m_today});
    const QStringList values{QString::number(game->Points()), QString::number(game->Month())};
    ShowStart(place == 1 ? cText::Tr("Bester Lauf!") : cText::Tr("Konto leer"),
              game->Month() == 1 ? cText::Tr("{0} Punkte im ersten Monat", values)
                                 : cText::Tr("{0} Punkte nach {1} Monaten", values));
}
