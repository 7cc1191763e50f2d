#include "windows/frmImport.h"

#include "base/cText.h"
#include "views/cImportReview.h"
#include "windows/cProgressBox.h"
#include "windows/cStagedDelegate.h"
#include "windows/cStagedTree.h"
#include "windows/modDrop.h"
#include "windows/modIcon.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostSummaryLines = 5; // more of them scroll
constexpr int duplicateLines = 5;

} // namespace

frmImport::frmImport(cImportReview& review, QWidget* parent)
    : QWidget(parent),
      m_review(review),
      m_import(new QPushButton(modIcon::Get(u"import"_s), cText::Tr("Datei i&mportieren…"), this)),
      m_book(new QPushButton(modIcon::Get(u"buchen"_s), cText::Tr("B&uchen"), this)),
      m_delete(new QPushButton(modIcon::Get(u"loeschen"_s), cText::Tr("&Löschen"), this)),
      m_openOnly(new QCheckBox(cText::Tr("&Nur offene"), this)),
      m_filter(new QLineEdit(this)),
      m_count(new QLabel(this)),
      m_tree(new cStagedTree(review.Rows(), this)),
      m_duplicates(new QWidget(this)),
      m_duplicatesTitle(new QLabel(this)),
      m_duplicatesList(new QListWidget(this)),
      m_stageDuplicates(new QPushButton(cText::Tr("Trot&zdem übernehmen"), this)),
      m_dropDuplicates(new QPushButton(cText::Tr("&Schließen"), this)),
      m_summary(new QPlainTextEdit(this))
{
    setAcceptDrops(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->addLayout(BuildBar());
    layout->addWidget(m_tree, 1);
    layout->addWidget(BuildDuplicates());
    layout->addWidget(m_summary);
    m_summary->setReadOnly(true);
    m_summary->setTabChangesFocus(true);
    m_summary->setAccessibleName(cText::Tr("Ergebnis"));
    m_tree->SetLayoutText(m_review.Layout());
    Connect();
    ShowRows();
    ShowSummary();
}

QBoxLayout* frmImport::BuildBar()
{
    m_book->setToolTip(cText::Tr("Bucht die markierten Umsätze (Eingabetaste)"));
    m_delete->setToolTip(cText::Tr("Löscht die markierten Umsätze (Entf); gebuchte Einträge bleiben"));
    m_openOnly->setChecked(m_review.IsOpenOnly());
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(cText::Tr("Name, Zweck, Betrag …"));
    auto* label = new QLabel(cText::Tr("Fil&ter:"), this);
    label->setBuddy(m_filter);
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_import);
    bar->addWidget(m_book);
    bar->addWidget(m_delete);
    bar->addSpacing(12);
    bar->addWidget(m_openOnly);
    bar->addSpacing(12);
    bar->addWidget(label);
    bar->addWidget(m_filter, 1);
    bar->addSpacing(12);
    bar->addWidget(m_count);
    return bar;
}

QWidget* frmImport::BuildDuplicates()
{
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_stageDuplicates);
    buttons->addWidget(m_dropDuplicates);
    buttons->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(m_duplicatesList, 1);
    row->addLayout(buttons);
    auto* layout = new QVBoxLayout(m_duplicates);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_duplicatesTitle);
    layout->addLayout(row);
    m_duplicatesTitle->setBuddy(m_duplicatesList);
    m_duplicatesList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_duplicatesList->setUniformItemSizes(true);
    m_duplicatesList->setAccessibleName(cText::Tr("Schon vorhandene Umsätze"));
    m_duplicatesList->setFixedHeight((fontMetrics().height() + 2) * duplicateLines
                                     + 2 * m_duplicatesList->frameWidth());
    return m_duplicates;
}

void frmImport::Connect()
{
    auto* delegate = new cStagedDelegate(
        [this](int column) {
            return column == cStagedListModel::Category ? m_review.Categories() : cImportReview::Intervals();
        },
        this);
    m_tree->setItemDelegate(delegate);
    connect(delegate, &cStagedDelegate::Chosen, this, &frmImport::TakeChoice);
    connect(m_import, &QPushButton::clicked, this, &frmImport::ChooseFiles);
    connect(m_book, &QPushButton::clicked, this, &frmImport::BookSelected);
    connect(m_delete, &QPushButton::clicked, this, &frmImport::DeleteSelected);
    connect(m_tree, &cStagedTree::BookRequested, this, &frmImport::BookSelected);
    connect(m_tree, &cStagedTree::DeleteRequested, this, &frmImport::DeleteSelected);
    connect(m_openOnly, &QCheckBox::toggled, &m_review, &cImportReview::SetOpenOnly);
    connect(m_filter, &QLineEdit::textChanged, &m_review, &cImportReview::SetFilter);
    connect(m_stageDuplicates, &QPushButton::clicked, this, &frmImport::StageDuplicates);
    connect(m_dropDuplicates, &QPushButton::clicked, &m_review, &cImportReview::DropDuplicates);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmImport::ShowButtons);
    connect(m_duplicatesList, &QListWidget::itemSelectionChanged, this, &frmImport::ShowButtons);
    connect(&m_review, &cImportReview::RowsChanged, this, &frmImport::ShowRows);
    connect(&m_review, &cImportReview::RowsStaged, m_tree, &cStagedTree::SelectIds);
    connect(&m_review, &cImportReview::SummaryChanged, this, &frmImport::ShowSummary);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, &frmImport::BookSelected);
    }
}

void frmImport::ChooseFiles()
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.ChooseFiles(progress);
}

void frmImport::ImportFiles(const QStringList& paths)
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.ImportFiles(paths, progress);
}

void frmImport::BookSelected()
{
    cProgressBox progress(this, cText::Tr("Die Umsätze werden gebucht …"));
    m_review.Book(m_tree->SelectedIds(), progress);
}

void frmImport::DeleteSelected()
{
    m_review.Delete(m_tree->SelectedIds());
}

// A choice in one of several selected rows is meant for all of them.
void frmImport::TakeChoice(const QModelIndex& index, const QString& text)
{
    const QString value = index.column() == cStagedListModel::Interval ? cImportReview::StoredInterval(text) : text;
    QModelIndexList rows = m_tree->selectionModel()->selectedRows(index.column());
    if (!rows.contains(index)) {
        rows = {index};
    }
    for (const QModelIndex& row : std::as_const(rows)) {
        m_review.Rows().setData(row, value, Qt::EditRole);
    }
}

void frmImport::StageDuplicates()
{
    QList<int> places;
    const QModelIndexList rows = m_duplicatesList->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        places.append(row.row());
    }
    m_review.StageDuplicates(places);
}

void frmImport::ShowRows()
{
    m_tree->SetEmptyText(m_review.EmptyTitle(), m_review.EmptyHint());
    m_count->setText(m_review.CountText());
    ShowButtons();
}

void frmImport::ShowButtons()
{
    const bool canChange = !m_review.IsReadOnly() && m_tree->selectionModel()->hasSelection();
    m_book->setEnabled(canChange);
    m_delete->setEnabled(canChange);
    m_import->setEnabled(!m_review.IsReadOnly());
    m_stageDuplicates->setEnabled(!m_duplicatesList->selectedItems().isEmpty());
}

void frmImport::ShowSummary()
{
    const QStringList lines = m_review.Summary();
    m_summary->setPlainText(lines.join(u'\n'));
    m_summary->setVisible(!lines.isEmpty());
    const int shown = qBound(1, static_cast<int>(lines.size()), mostSummaryLines);
    const int frame = m_summary->frameWidth() + static_cast<int>(m_summary->document()->documentMargin());
    m_summary->setFixedHeight(fontMetrics().lineSpacing() * shown + 2 * frame + 4);

    const QStringList duplicates = m_review.Duplicates();
    m_duplicates->setVisible(!duplicates.isEmpty());
    m_duplicatesList->clear();
    m_duplicatesList->addItems(duplicates);
    m_duplicatesTitle->setText(cText::Tr("Schon vorhanden und nicht noch einmal übernommen:"));
    ShowButtons();
}

void frmImport::showEvent(QShowEvent* event)
{
    m_review.Refresh();
    QWidget::showEvent(event);
}

void frmImport::hideEvent(QHideEvent* event)
{
    m_review.SaveLayout(m_tree->LayoutText());
    QWidget::hideEvent(event);
}

void frmImport::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_review.IsReadOnly() && !modDrop::Files(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void frmImport::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    // The other program waits until the drop is over; questions come after that.
    QMetaObject::invokeMethod(
        this, [this, paths = modDrop::Files(*event->mimeData())] { ImportFiles(paths); }, Qt::QueuedConnection);
}
