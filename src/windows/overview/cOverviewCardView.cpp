#include "windows/overview/cOverviewCardView.h"

#include "base/cText.h"
#include "windows/look/modCard.h"
#include "windows/look/modTone.h"
#include "windows/overview/cBalanceCurve.h"
#include "windows/overview/cCardLine.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

using modCard::Margin;

QFont Larger(QFont font, double factor, bool isBold)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(isBold);
    return font;
}

} // namespace

cOverviewCardView::cOverviewCardView(const cOverviewCard& card, QWidget* parent) : QFrame(parent), m_card(card.Card)
{
    setAccessibleName(card.Title);
    auto* layout = new QVBoxLayout(this);
    constexpr int side = Margin - cCardLine::Margin; // lines bring the rest, for the shade under the pointer
    layout->setContentsMargins(side, side, side, Margin);
    layout->setSpacing(2);
    AddHead(card, *layout);
    if (!card.Curve.Cents.isEmpty()) {
        layout->addWidget(new cBalanceCurve(card.Curve, this));
        layout->addSpacing(4);
    }
    for (const cOverviewLine& line : card.Lines) {
        AddLine(line, card.Lines, *layout);
    }
    if (card.Lines.isEmpty() && !card.Empty.isEmpty()) {
        AddLine({card.Empty, {}, eOverviewTone::Quiet}, {}, *layout);
    }
}

void cOverviewCardView::AddHead(const cOverviewCard& card, QVBoxLayout& layout)
{
    auto* head = new QHBoxLayout;
    head->setContentsMargins(cCardLine::Margin, 0, 0, 0);
    auto* title = new QLabel(card.Title, this);
    title->setFont(Larger(title->font(), 1.05, true));
    title->setWordWrap(true);
    head->addWidget(title, 1);
    if (card.Follow) {
        auto* all = new QToolButton(this);
        all->setText(cText::Tr("Zeigen"));
        all->setAutoRaise(true);
        all->setFocusPolicy(Qt::StrongFocus);
        all->setAccessibleName(cText::Tr("{0}: {1}", {card.Title, all->text()}));
        all->setToolTip(card.FollowText);
        connect(all, &QToolButton::clicked, this, [follow = card.Follow] { follow(); });
        head->addWidget(all, 0, Qt::AlignTop);
    }
    layout.addLayout(head);
    if (!card.Figure.isEmpty()) {
        auto* figure = new QLabel(card.Figure, this);
        figure->setFont(Larger(figure->font(), 1.7, false));
        figure->setContentsMargins(cCardLine::Margin, 0, cCardLine::Margin, 0);
        figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (card.Tone == eOverviewTone::Expense) {
            QPalette colours = figure->palette();
            colours.setColor(QPalette::WindowText, modTone::Expense(colours));
            figure->setPalette(colours);
        }
        layout.addWidget(figure);
    }
}

void cOverviewCardView::AddLine(const cOverviewLine& line, const QList<cOverviewLine>& card, QVBoxLayout& layout)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(new cCardLine(line, card, this), 1);
    if (!line.Actions.isEmpty()) {
        auto* more = new QToolButton(this);
        auto* menu = new QMenu(more);
        for (const cOverviewAction& action : line.Actions) {
            // Afterwards, because the card with its menu goes when the book has changed.
            connect(
                menu->addAction(action.Text), &QAction::triggered, this, [run = action.Run] { run(); },
                Qt::QueuedConnection);
        }
        connect(more, &QToolButton::clicked, menu,
                [menu, more] { menu->popup(more->mapToGlobal(QPoint(0, more->height()))); });
        more->setArrowType(Qt::DownArrow); // a word would leave no room for what is due
        more->setAutoRaise(true);
        more->setFocusPolicy(Qt::StrongFocus);
        more->setToolTip(cText::Tr("Was damit geschehen soll"));
        more->setAccessibleName(cText::Tr("Was mit '{0}' geschehen soll", {line.Text}));
        row->addWidget(more, 0, Qt::AlignTop);
    }
    layout.addLayout(row);
}

void cOverviewCardView::paintEvent(QPaintEvent* /*event*/)
{
    modCard::Paint(*this);
}
