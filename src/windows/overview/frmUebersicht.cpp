#include "windows/overview/frmUebersicht.h"

#include "base/cText.h"
#include "views/main/modCommand.h"
#include "views/overview/cOverviewModel.h"
#include "windows/overview/cFirstStepsView.h"
#include "windows/overview/cOverviewCardView.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int columnLetters = 46; // least width of a column
constexpr int mostColumns = 3;
constexpr int gap = 12;

} // namespace

frmUebersicht::frmUebersicht(cOverviewModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_heading(new QLabel(this)),
      m_isStartPage(new QCheckBox(cText::Tr("Beim &Start zeigen"), this)),
      m_scroll(new QScrollArea(this)),
      m_ground(new QWidget(this)),
      m_columns(new QHBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(gap, gap, gap, 0);
    QFont font = m_heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    m_heading->setFont(font);
    m_heading->setWordWrap(true); // else it would keep the window from getting small
    head->addWidget(m_heading, 1);
    head->addWidget(m_isStartPage);
    layout->addLayout(head);
    layout->addWidget(m_scroll, 1);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidget(m_ground);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_ground->setLayout(m_columns);
    m_columns->setContentsMargins(gap, 4, gap, gap);
    m_columns->setSpacing(gap);
    m_isStartPage->setToolTip(cText::Tr("Sonst beginnt das Programm mit der Seite, die zuletzt zu sehen war."));
    m_isStartPage->setChecked(m_model.IsStartPage());
    connect(m_isStartPage, &QCheckBox::toggled, this, [this](bool isOn) { m_model.SetStartPage(isOn); });
    connect(&m_model, &cOverviewModel::CardsChanged, this, &frmUebersicht::ShowCards);
    m_heading->setText(m_model.Heading());
}

void frmUebersicht::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_model.Show();
}

void frmUebersicht::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_model.Hide();
}

void frmUebersicht::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (ColumnCount() != m_count) {
        Arrange();
    }
}

void frmUebersicht::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        ShowCards();
    }
}

int frmUebersicht::ColumnCount() const
{
    const int least = fontMetrics().averageCharWidth() * columnLetters;
    return std::clamp(width() / least, 1, m_firstSteps != nullptr ? mostColumns - 1 : mostColumns);
}

// Whoever works on a card with the keyboard stays at it when the book has changed.
void frmUebersicht::ShowCards()
{
    const auto hasFocus = [](const cOverviewCardView* view) { return view->isAncestorOf(view->focusWidget()); };
    const auto focused = std::find_if(m_cards.begin(), m_cards.end(), hasFocus);
    const bool isFocused = focused != m_cards.end() && m_ground->isAncestorOf(focusWidget());
    const eOverviewCard kept = isFocused ? (*focused)->Card() : eOverviewCard::Balances;
    for (cOverviewCardView* view : std::as_const(m_cards)) {
        view->hide();
        view->deleteLater();
    }
    m_cards.clear();
    m_heading->setText(m_model.Heading());
    const QSignalBlocker blocker(m_isStartPage); // another book may have it otherwise
    m_isStartPage->setChecked(m_model.IsStartPage());
    const bool hadFirstSteps = m_firstSteps != nullptr;
    ShowFirstSteps(); // before the cards, as Tab goes
    for (const cOverviewCard& card : m_model.Cards()) {
        m_cards.append(new cOverviewCardView(card, m_ground));
        if (isFocused && card.Card == kept) {
            m_cards.last()->setFocusPolicy(Qt::TabFocus);
            m_cards.last()->setFocus();
        }
    }
    Arrange();
    if (m_firstSteps != nullptr && !hadFirstSteps) {
        m_firstSteps->FocusFirst();
    }
}

void frmUebersicht::ShowFirstSteps()
{
    if (!m_model.IsBookEmpty()) {
        if (m_firstSteps != nullptr) {
            m_firstSteps->hide();
            std::exchange(m_firstSteps, nullptr)->deleteLater(); // one of its buttons may be at work
        }
        return;
    }
    if (m_firstSteps != nullptr) {
        m_firstSteps->Refresh();
        return;
    }
    const auto command = [this](int id) { return [this, id] { m_model.Do(id); }; };
    const QList<cFirstStepsView::cWay> ways{
        {cText::Tr("&Kontoauszug importieren…"),
         cText::Tr("Eine Datei Ihrer Bank. Sie können sie auch einfach in dieses Fenster ziehen."),
         command(modCommand::ImportStatement)},
        {cText::Tr("On&line-Banking einrichten…"), cText::Tr("Umsätze direkt bei der Bank abrufen."),
         command(modCommand::BankLogins)},
        {cText::Tr("Ersten Ein&trag erfassen…"), cText::Tr("Von Hand, zum Beispiel was Sie heute bar bezahlt haben."),
         command(modCommand::NewEntry)},
        {cText::Tr("Aus anderem &Programm übernehmen…"),
         cText::Tr("Lassen Sie es Ihre Buchungen als QIF- oder CSV-Datei speichern, und lesen Sie diese Datei ein."),
         command(modCommand::ImportStatement)},
        {cText::Tr("Beispielha&ushalt ansehen"),
         cText::Tr("Ein erfundenes Haushaltsbuch zum Ausprobieren. Ihr eigenes bleibt, wie es ist."),
         [this] { m_model.ShowDemo(); }},
    };
    m_firstSteps = new cFirstStepsView(m_model.FirstSteps(), ways, m_ground);
    connect(m_firstSteps, &cFirstStepsView::Saved, &m_model, &cOverviewModel::AccountsSaved);
}

// Each card goes to the column that has most room left, so that they end at about the same height.
void frmUebersicht::Arrange()
{
    m_count = ColumnCount();
    while (QLayoutItem* column = m_columns->takeAt(0)) {
        while (QLayoutItem* item = column->layout()->takeAt(0)) {
            delete item;
        }
        delete column;
    }
    std::vector<QVBoxLayout*> columns;
    std::vector<int> heights(static_cast<std::size_t>(m_count), 0);
    for (int i = 0; i < m_count; ++i) {
        columns.push_back(new QVBoxLayout);
        columns.back()->setSpacing(gap);
        m_columns->addLayout(columns.back(), 1);
    }
    const int cardWidth = (width() - gap * (m_count + 1)) / m_count;
    if (m_firstSteps != nullptr) {
        columns.front()->addWidget(m_firstSteps);
        heights.front() += m_firstSteps->sizeHint().height();
        m_firstSteps->show();
    }
    for (cOverviewCardView* view : std::as_const(m_cards)) {
        const auto lowest = std::min_element(heights.begin(), heights.end());
        columns[static_cast<std::size_t>(lowest - heights.begin())]->addWidget(view);
        *lowest += std::max(view->heightForWidth(cardWidth), view->sizeHint().height()) + gap;
        view->show();
    }
    for (QVBoxLayout* column : columns) {
        column->addStretch(1);
    }
}
