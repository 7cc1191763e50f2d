#include "windows/statement/cLeftOutBox.h"

#include "base/cText.h"
#include "views/statement/cLeftOutList.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

namespace {

constexpr int shownLines = 5; // more of them scroll

} // namespace

cLeftOutBox::cLeftOutBox(cLeftOutList& rows, QWidget* parent)
    : QWidget(parent),
      m_rows(rows),
      m_list(new QListWidget(this)),
      m_stage(new QPushButton(cText::Tr("Trot&zdem übernehmen"), this)),
      m_drop(new QPushButton(cText::Tr("&Schließen"), this))
{
    Build();
    connect(m_stage, &QPushButton::clicked, this, &cLeftOutBox::Stage);
    connect(m_drop, &QPushButton::clicked, &m_rows, &cLeftOutList::Drop);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                &cLeftOutBox::Stage);
    }
    connect(m_list, &QListWidget::itemSelectionChanged, this, &cLeftOutBox::ShowButtons);
    connect(&m_rows, &cLeftOutList::Changed, this, &cLeftOutBox::Fill);
    Fill();
}

void cLeftOutBox::Build()
{
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(cText::Tr("Nicht übernommene Umsätze"));
    m_stage->setToolTip(cText::Tr("Übernimmt die markierten Umsätze (Eingabetaste)"));
    m_list->setFixedHeight((fontMetrics().height() + 2) * shownLines + 2 * m_list->frameWidth());
    auto* title = new QLabel(cText::Tr("Nicht übernommen, mit dem Grund:"), this);
    title->setBuddy(m_list);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_stage);
    buttons->addWidget(m_drop);
    buttons->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(m_list, 1);
    row->addLayout(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addLayout(row);
}

void cLeftOutBox::Fill()
{
    const QStringList rows = m_rows.Texts();
    setVisible(!rows.isEmpty());
    m_list->clear();
    m_list->addItems(rows);
    ShowButtons();
}

void cLeftOutBox::ShowButtons()
{
    m_stage->setEnabled(!m_list->selectedItems().isEmpty());
}

void cLeftOutBox::Stage()
{
    QList<int> places;
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        places.append(row.row());
    }
    m_rows.Stage(places);
}
