#include "windows/statement/cStagedPanel.h"

#include "base/cText.h"
#include "views/statement/cImportReview.h"
#include "windows/main/cCategoryDrop.h"
#include "windows/statement/cStagedActions.h"
#include "windows/statement/cStagedDelegate.h"
#include "windows/statement/cStagedTree.h"
#include "windows/widget/cActionButton.h"
#include "windows/widget/cElidedText.h"
#include "windows/widget/cFlowLayout.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 12; // between what does not belong together

} // namespace

cStagedPanel::cStagedPanel(cImportReview& review, QWidget* parent)
    : QWidget(parent),
      m_review(review),
      m_tree(new cStagedTree(review.Rows(), this)),
      m_actions(new cStagedActions(review, *m_tree, *this)),
      m_more(new QMenu(this)),
      m_showTitle(new QAction(cText::Tr("&Zeile über der Liste zeigen"), this)),
      m_openOnly(new QCheckBox(cText::Tr("&Nur offene"), this)),
      m_uncategorised(new QCheckBox(cText::Tr("Unkategori&siert"), this)),
      m_hideOld(new QCheckBox(cText::Tr("&Ältere ausblenden"), this)),
      m_grouping(new QComboBox(this)),
      m_filter(new QLineEdit(this)),
      m_count(new QLabel(this)),
      m_title(new cElidedText(this)),
      m_planning(new QTimer(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(BuildActions());
    layout->addLayout(BuildView());
    layout->addWidget(m_title);
    layout->addWidget(m_tree, 1);
    m_tree->SetLayoutText(m_review.View().Layout());
    Connect();
    ShowView();
}

cFlowLayout* cStagedPanel::BuildActions()
{
    m_bar = new cFlowLayout;
    for (const cStagedActions::eId id : {cStagedActions::Book, cStagedActions::Accept, cStagedActions::Edit,
                                         cStagedActions::Choose, cStagedActions::Match, cStagedActions::Assign}) {
        QAction* action = m_actions->Get(id);
        auto* button = new cActionButton(action, this);
        button->setToolTip(action->toolTip());
        button->setFocusPolicy(Qt::TabFocus); // a click leaves a field open, so that the command sees what is in it
        m_bar->addWidget(button);
        if (id == cStagedActions::Accept) {
            connect(&m_review.View(), &cStagedChoice::Changed, button,
                    [this, button] { button->setText(m_review.Guide().AcceptText()); });
        }
    }
    m_bar->addWidget(BuildMore());
    return m_bar;
}

QPushButton* cStagedPanel::BuildMore()
{
    m_more->setToolTipsVisible(true);
    if (!m_review.View().IsOfOneImport()) { // the window of one import has a button for it
        m_more->addAction(m_actions->Get(cStagedActions::All));
    }
    for (const cStagedActions::eId id :
         {cStagedActions::Release, cStagedActions::Delete, cStagedActions::Rule, cStagedActions::Import}) {
        m_more->addAction(m_actions->Get(id));
    }
    m_more->addSeparator();
    m_showTitle->setCheckable(true);
    m_showTitle->setToolTip(cText::Tr("Die Zeile sagt, was aus den markierten Umsätzen wird"));
    m_more->addAction(m_showTitle);
    auto* more = new QPushButton(cText::Tr("Me&hr"), this);
    more->setAutoDefault(false);
    more->setFocusPolicy(Qt::TabFocus); // as those beside it
    more->setMenu(m_more);
    return more;
}

cFlowLayout* cStagedPanel::BuildView()
{
    m_hideOld->setToolTip(
        cText::Tr("Blendet Umsätze aus, die mehr als drei Monate älter sind als der neueste ihres Kontos"));
    m_uncategorised->setToolTip(
        cText::Tr("Zeigt nur Umsätze ohne Kategorie oder unter „Allgemein“, auch die gebuchten"));
    m_hideOld->setVisible(!m_review.View().IsOfOneImport());
    m_grouping->addItems(cStagedChoice::Groupings());
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(cText::Tr("Name, Zweck, Betrag …"));
    auto* grouping = new QLabel(cText::Tr("Gru&ppieren:"), this);
    grouping->setBuddy(m_grouping);
    auto* filter = new QLabel(cText::Tr("Fil&ter:"), this);
    filter->setBuddy(m_filter);
    auto* bar = new cFlowLayout;
    bar->addWidget(m_openOnly);
    bar->addWidget(m_uncategorised);
    bar->addWidget(m_hideOld);
    bar->AddGap(gap);
    bar->AddField(grouping, m_grouping);
    bar->AddGap(gap);
    bar->AddField(filter, m_filter);
    bar->AddGap(gap);
    bar->addWidget(m_count);
    return bar;
}

void cStagedPanel::AddFirst(QPushButton* button)
{
    m_bar->InsertFirst(button);
    setTabOrder(button, m_bar->itemAt(1)->widget());
}

void cStagedPanel::AddMore(QAction* action)
{
    m_more->insertAction(m_showTitle, action);
}

void cStagedPanel::Connect()
{
    cStagedChoice& view = m_review.View();
    auto* delegate = new cStagedDelegate(m_review.Suggestions(), cImportReview::Intervals(), this);
    m_tree->setItemDelegate(delegate);
    connect(delegate, &cStagedDelegate::Chosen, m_actions, &cStagedActions::TakeChoice);
    connect(delegate, &cStagedDelegate::NewCategoryWanted, this,
            [this, delegate](const QPersistentModelIndex& index, const QString& typed) {
                const bool isOwn = m_tree->DropField(index); // else the question would leave it
                if (!index.isValid() || m_actions->TakeNewCategory(index, typed, isOwn)) {
                    return;
                }
                delegate->StartWith(typed); // what was typed is not lost
                if (isOwn) {
                    m_tree->OpenCategory(m_review.Rows().IdAt(index));
                    return;
                }
                m_tree->setFocus(); // closes a field that Tab has opened meanwhile
                m_tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
                m_tree->edit(index);
            });
    auto* drop = new cCategoryDrop(*m_tree, cStagedTree::DragFormat,
                                   [&view](const QModelIndex& line) { return view.GroupCategory(line); });
    connect(drop, &cCategoryDrop::Dropped, this, [this](const QByteArray& /*lines*/, const QString& category) {
        m_actions->TakeCategory(m_tree->SelectedIds(), category);
    });
    connect(m_openOnly, &QCheckBox::toggled, &view, &cStagedChoice::SetOpenOnly);
    connect(m_uncategorised, &QCheckBox::toggled, &view, &cStagedChoice::SetUncategorisedOnly);
    connect(m_hideOld, &QCheckBox::toggled, &view, &cStagedChoice::SetOldHidden);
    connect(m_showTitle, &QAction::toggled, &view, &cStagedChoice::SetTitleShown);
    connect(m_grouping, &QComboBox::activated, &view, &cStagedChoice::SetGrouping);
    connect(m_filter, &QLineEdit::textChanged, &view, &cStagedChoice::SetFilter);
    connect(new QShortcut(Qt::Key_Escape, m_filter, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_filter, &QLineEdit::clear);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &cStagedPanel::ShowSelection);
    connect(m_tree, &cStagedTree::FieldChanged, this, &cStagedPanel::ShowSelection);
    connect(&view, &cStagedChoice::Changed, this, &cStagedPanel::ShowView);
    connect(&view, &cStagedChoice::LayoutWanted, this, &cStagedPanel::SaveLayout);
    connect(&view, &cStagedChoice::LayoutTaken, this, &cStagedPanel::ResetLayout);
    // A high pile is planned bit by bit, whenever there is nothing else to do.
    m_planning->setInterval(0);
    connect(m_planning, &QTimer::timeout, this, [this] {
        if (!isVisible() || !m_review.PlanNext()) {
            m_planning->stop();
        }
    });
}

void cStagedPanel::showEvent(QShowEvent* event)
{
    m_planning->start();
    QWidget::showEvent(event);
}

void cStagedPanel::ShowView()
{
    const cStagedChoice& view = m_review.View();
    const QSignalBlocker open(m_openOnly);
    const QSignalBlocker uncategorised(m_uncategorised);
    const QSignalBlocker old(m_hideOld);
    const QSignalBlocker title(m_showTitle);
    m_openOnly->setChecked(view.IsOpenOnly());
    m_uncategorised->setChecked(view.IsUncategorisedOnly());
    m_openOnly->setEnabled(!view.IsUncategorisedOnly());
    m_hideOld->setChecked(view.IsOldHidden());
    m_showTitle->setChecked(view.IsTitleShown());
    m_grouping->setCurrentIndex(view.Grouping());
    if (m_filter->text() != view.Filter()) { // what is being typed keeps its cursor
        m_filter->setText(view.Filter());
    }
    m_title->setVisible(view.IsTitleShown());
    m_tree->SetEmptyText(view.EmptyTitle(), view.EmptyHint());
    m_count->setText(view.CountText());
    m_planning->start();
    ShowSelection();
}

void cStagedPanel::ShowSelection()
{
    m_actions->ShowState();
    if (m_review.View().IsTitleShown()) {
        m_title->SetText(m_review.Guide().SelectionText(m_tree->SelectedIds(), m_tree->IsFieldOpen()));
    }
}

void cStagedPanel::ResetLayout()
{
    m_tree->SetLayoutText(m_review.View().Layout());
}

void cStagedPanel::SaveLayout()
{
    m_review.View().SaveLayout(m_tree->LayoutText());
}

void cStagedPanel::hideEvent(QHideEvent* event)
{
    SaveLayout();
    QWidget::hideEvent(event);
}
