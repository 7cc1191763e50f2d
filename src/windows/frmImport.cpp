#include "windows/frmImport.h"

#include "base/cText.h"
#include "views/cAssignList.h"
#include "views/cImportReview.h"
#include "windows/cDuplicatesBox.h"
#include "windows/cProgressBox.h"
#include "windows/cStagedDelegate.h"
#include "windows/cStagedTree.h"
#include "windows/frmZuordnung.h"
#include "windows/modDrop.h"
#include "windows/modIcon.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostSummaryLines = 5; // more of them scroll

} // namespace

frmImport::frmImport(cImportReview& review, QWidget* parent)
    : QWidget(parent),
      m_review(review),
      m_import(new QPushButton(modIcon::Get(u"import"_s), cText::Tr("Datei i&mportieren…"), this)),
      m_book(new QPushButton(modIcon::Get(u"buchen"_s), cText::Tr("B&uchen"), this)),
      m_match(new QPushButton(modIcon::Get(u"zusammen"_s), cText::Tr("Ab&gleichen"), this)),
      m_assign(new QPushButton(cText::Tr("Zuo&rdnen…"), this)),
      m_release(new QAction(cText::Tr("L&ösen"), this)),
      m_delete(new QAction(modIcon::Get(u"loeschen"_s), cText::Tr("&Löschen"), this)),
      m_openOnly(new QCheckBox(cText::Tr("&Nur offene"), this)),
      m_filter(new QLineEdit(this)),
      m_count(new QLabel(this)),
      m_tree(new cStagedTree(review.Rows(), this)),
      m_summary(new QPlainTextEdit(this))
{
    setAcceptDrops(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->addLayout(BuildBar());
    layout->addWidget(m_tree, 1);
    layout->addWidget(new cDuplicatesBox(m_review, this));
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
    m_match->setToolTip(cText::Tr("Findet zu den markierten oder allen gezeigten offenen Umsätzen die Einträge, die "
                                  "schon im Haushaltsbuch stehen (Strg+G)"));
    m_assign->setToolTip(cText::Tr("Zeigt die Einträge, zu denen der markierte Umsatz gehören kann (Strg+R)"));
    m_openOnly->setChecked(m_review.IsOpenOnly());
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(cText::Tr("Name, Zweck, Betrag …"));
    auto* label = new QLabel(cText::Tr("Fil&ter:"), this);
    label->setBuddy(m_filter);
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_import);
    bar->addWidget(m_book);
    bar->addWidget(m_match);
    bar->addWidget(m_assign);
    bar->addWidget(BuildMore());
    bar->addSpacing(12);
    bar->addWidget(m_openOnly);
    bar->addSpacing(12);
    bar->addWidget(label);
    bar->addWidget(m_filter, 1);
    bar->addSpacing(12);
    bar->addWidget(m_count);
    return bar;
}

QPushButton* frmImport::BuildMore()
{
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    menu->addAction(m_release);
    menu->addAction(m_delete);
    m_release->setToolTip(cText::Tr("Macht die markierten gebuchten Umsätze wieder offen; die Einträge bleiben"));
    m_delete->setToolTip(cText::Tr("Löscht die markierten Umsätze (Entf); gebuchte Einträge bleiben"));
    auto* more = new QPushButton(cText::Tr("Me&hr"), this);
    more->setMenu(menu);
    return more;
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
    connect(m_tree, &cStagedTree::BookRequested, this, &frmImport::BookSelected);
    connect(m_tree, &cStagedTree::DeleteRequested, this, &frmImport::DeleteSelected);
    connect(m_openOnly, &QCheckBox::toggled, &m_review, &cImportReview::SetOpenOnly);
    connect(m_filter, &QLineEdit::textChanged, &m_review, &cImportReview::SetFilter);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmImport::ShowButtons);
    connect(&m_review, &cImportReview::RowsChanged, this, &frmImport::ShowRows);
    connect(&m_review, &cImportReview::RowsStaged, m_tree, &cStagedTree::SelectIds);
    connect(&m_review, &cImportReview::SummaryChanged, this, &frmImport::ShowSummary);
    ConnectActions();
}

void frmImport::ConnectActions()
{
    connect(m_match, &QPushButton::clicked, this, &frmImport::Match);
    connect(m_assign, &QPushButton::clicked, this, &frmImport::AssignSelected);
    connect(m_release, &QAction::triggered, this, &frmImport::ReleaseSelected);
    connect(m_delete, &QAction::triggered, this, &frmImport::DeleteSelected);
    // Through the buttons, so that a key does nothing when its button cannot.
    AddKey(Qt::CTRL | Qt::Key_Return, m_book);
    AddKey(Qt::CTRL | Qt::Key_Enter, m_book);
    AddKey(Qt::CTRL | Qt::Key_G, m_match);
    AddKey(Qt::CTRL | Qt::Key_R, m_assign);
    m_release->setShortcut(Qt::CTRL | Qt::Key_L);
    m_release->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(m_release);
}

void frmImport::AddKey(const QKeySequence& keys, QPushButton* button)
{
    auto* shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
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

void frmImport::Match()
{
    cProgressBox progress(this, cText::Tr("Die Umsätze werden abgeglichen …"));
    m_review.Match(m_tree->SelectedIds(), progress);
}

void frmImport::AssignSelected()
{
    if (const std::unique_ptr<cAssignList> list = m_review.StartAssign(m_tree->SelectedIds())) {
        frmZuordnung(*list, this).exec();
    }
}

void frmImport::ReleaseSelected()
{
    m_review.Release(m_tree->SelectedIds());
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

void frmImport::ShowRows()
{
    m_tree->SetEmptyText(m_review.EmptyTitle(), m_review.EmptyHint());
    m_count->setText(m_review.CountText());
    ShowButtons();
}

void frmImport::ShowButtons()
{
    const cImportReview::cActions can = m_review.ActionsFor(m_tree->SelectedIds());
    m_book->setEnabled(can.Change);
    m_match->setEnabled(can.Match);
    m_assign->setEnabled(can.Assign);
    m_release->setEnabled(can.Release);
    m_delete->setEnabled(can.Change);
    m_import->setEnabled(!m_review.IsReadOnly());
}

void frmImport::ShowSummary()
{
    const QStringList lines = m_review.Summary();
    m_summary->setPlainText(lines.join(u'\n'));
    m_summary->setVisible(!lines.isEmpty());
    const int shown = qBound(1, static_cast<int>(lines.size()), mostSummaryLines);
    const int frame = m_summary->frameWidth() + static_cast<int>(m_summary->document()->documentMargin());
    m_summary->setFixedHeight(fontMetrics().lineSpacing() * shown + 2 * frame + 4);
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
