#include "windows/cDuplicatesBox.h"

#include "base/cText.h"
#include "views/cImportReview.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr int shownLines = 5; // more of them scroll

} // namespace

cDuplicatesBox::cDuplicatesBox(cImportReview& review, QWidget* parent)
    : QWidget(parent),
      m_review(review),
      m_list(new QListWidget(this)),
      m_stage(new QPushButton(cText::Tr("Trot&zdem übernehmen"), this)),
      m_drop(new QPushButton(cText::Tr("&Schließen"), this))
{
    Build();
    connect(m_stage, &QPushButton::clicked, this, &cDuplicatesBox::Stage);
    connect(m_drop, &QPushButton::clicked, &m_review, &cImportReview::DropDuplicates);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &cDuplicatesBox::ShowButtons);
    connect(&m_review, &cImportReview::SummaryChanged, this, &cDuplicatesBox::Fill);
    Fill();
}

void cDuplicatesBox::Build()
{
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(cText::Tr("Schon vorhandene Umsätze"));
    m_list->setFixedHeight((fontMetrics().height() + 2) * shownLines + 2 * m_list->frameWidth());
    auto* title = new QLabel(cText::Tr("Schon vorhanden und nicht noch einmal übernommen:"), this);
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

void cDuplicatesBox::Fill()
{
    const QStringList duplicates = m_review.Duplicates();
    setVisible(!duplicates.isEmpty());
    m_list->clear();
    m_list->addItems(duplicates);
    ShowButtons();
}

void cDuplicatesBox::ShowButtons()
{
    m_stage->setEnabled(!m_list->selectedItems().isEmpty());
}

void cDuplicatesBox::Stage()
{
    QList<int> places;
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        places.append(row.row());
    }
    m_review.StageDuplicates(places);
}
