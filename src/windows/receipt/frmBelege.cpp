#include "windows/receipt/frmBelege.h"

#include "base/cText.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"
#include "windows/receipt/cPreviewView.h"
#include "windows/receipt/modReceiptMime.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/cTurningSplitter.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

frmBelege::frmBelege(cReceiptListModel& receipts, QWidget* parent)
    : QDialog(parent),
      m_receipts(receipts),
      m_list(new QListView(this)),
      m_preview(new cPreviewView(this)),
      m_page(new QLabel(this)),
      m_again(new QPushButton(cText::Tr("Datei &neu wählen…"), this)),
      m_add(new QPushButton(cText::Tr("&Hinzufügen…"), this)),
      m_paste(new QPushButton(cText::Tr("&Einfügen"), this)),
      m_open(new QPushButton(cText::Tr("&Öffnen"), this)),
      m_save(new QPushButton(cText::Tr("&Speichern unter…"), this)),
      m_remove(new QPushButton(cText::Tr("En&tfernen…"), this)),
      m_close(new QPushButton(cText::Tr("S&chließen"), this))
{
    setWindowTitle(m_receipts.Title());
    setAcceptDrops(m_receipts.CanWrite());
    constexpr int lettersSideBySide = 95;
    auto* halves = new cTurningSplitter(lettersSideBySide, this);
    halves->addWidget(BuildList());
    halves->addWidget(BuildPreview());
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(halves, 1);
    layout->addLayout(BuildButtons());
    Connect();
    const QSize wanted(fontMetrics().averageCharWidth() * 140, fontMetrics().height() * 42);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    ShowList();
    m_list->setFocus();
}

QWidget* frmBelege::BuildList()
{
    m_list->setModel(&m_receipts);
    m_list->setItemDelegate(new cRowDelegate(m_list));
    m_list->setAccessibleName(m_receipts.ListName());
    m_list->setTextElideMode(Qt::ElideMiddle); // the number and the size stand at the end
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * 34);
    m_list->setMinimumHeight(fontMetrics().height() * 4);
    return m_list;
}

QToolButton* frmBelege::MakeTool(const QString& text, const QString& name, const QKeySequence& key)
{
    auto* tool = new QToolButton(this);
    tool->setText(text);
    tool->setAutoRaise(true);
    tool->setFocusPolicy(Qt::TabFocus);
    tool->setAccessibleName(name);
    tool->setToolTip(cText::Tr("{0} ({1})", {name, key.toString(QKeySequence::NativeText)}));
    connect(new QShortcut(key, this), &QShortcut::activated, tool, &QToolButton::click);
    return tool;
}

QLayout* frmBelege::BuildPreviewBar()
{
    m_smaller = MakeTool(QStringLiteral("−"), cText::Tr("Kleiner"), QKeySequence(Qt::CTRL | Qt::Key_Minus));
    m_larger = MakeTool(QStringLiteral("+"), cText::Tr("Größer"), QKeySequence(Qt::CTRL | Qt::Key_Plus));
    m_whole = MakeTool(cText::Tr("Ganze Seite"), cText::Tr("Ganze Seite"), QKeySequence(Qt::CTRL | Qt::Key_0));
    m_back = MakeTool(QStringLiteral("◀"), cText::Tr("Vorige Seite"), QKeySequence(Qt::ALT | Qt::Key_PageUp));
    m_forth = MakeTool(QStringLiteral("▶"), cText::Tr("Nächste Seite"), QKeySequence(Qt::ALT | Qt::Key_PageDown));
    auto* row = new QHBoxLayout;
    for (QToolButton* tool : {m_smaller, m_larger, m_whole}) {
        row->addWidget(tool);
    }
    row->addStretch();
    row->addWidget(m_back);
    row->addWidget(m_page);
    row->addWidget(m_forth);
    return row;
}

QWidget* frmBelege::BuildPreview()
{
    auto* half = new QWidget(this);
    auto* layout = new QVBoxLayout(half);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(BuildPreviewBar());
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_again, 0, Qt::AlignHCenter);
    return half;
}

QLayout* frmBelege::BuildButtons()
{
    auto* row = new cFlowLayout;
    for (QPushButton* button : {m_add, m_paste, m_open, m_save, m_remove}) {
        row->addWidget(button);
    }
    row->AddStretch();
    row->addWidget(m_close);
    for (QPushButton* button : {m_again, m_add, m_paste, m_open, m_save, m_remove}) {
        button->setAutoDefault(false); // Enter opens what the list has chosen
    }
    m_paste->setToolTip(cText::Tr("Bild oder Datei aus der Zwischenablage (Strg+V)"));
    m_close->setDefault(true);
    return row;
}

void frmBelege::Connect()
{
    connect(&m_receipts, &QAbstractItemModel::modelReset, this, &frmBelege::ShowList);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmBelege::ShowReceipt);
    connect(m_preview, &cPreviewView::Shown, this, &frmBelege::ShowButtons);
    connect(m_list, &QListView::activated, this, [this] { m_receipts.Open(Row()); }); // says why it cannot
    connect(m_add, &QPushButton::clicked, &m_receipts, &cReceiptListModel::Choose);
    connect(m_paste, &QPushButton::clicked, this, &frmBelege::Paste);
    connect(m_again, &QPushButton::clicked, this, [this] { m_receipts.ChooseAgain(Row()); });
    connect(m_open, &QPushButton::clicked, this, [this] { m_receipts.Open(Row()); });
    connect(m_save, &QPushButton::clicked, this, [this] { m_receipts.SaveAs(Row()); });
    connect(m_remove, &QPushButton::clicked, this, [this] { m_receipts.Remove(Row()); });
    connect(m_close, &QPushButton::clicked, this, &QDialog::close);
    connect(m_smaller, &QToolButton::clicked, m_preview, [this] { m_preview->Zoom(-1); });
    connect(m_larger, &QToolButton::clicked, m_preview, [this] { m_preview->Zoom(1); });
    connect(m_whole, &QToolButton::clicked, m_preview, &cPreviewView::ShowWhole);
    connect(m_back, &QToolButton::clicked, m_preview, [this] { m_preview->ShowPage(m_preview->Page() - 1); });
    connect(m_forth, &QToolButton::clicked, m_preview, [this] { m_preview->ShowPage(m_preview->Page() + 1); });
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, m_paste, &QPushButton::click);
    connect(new QShortcut(Qt::Key_Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_remove, &QPushButton::click);
}

int frmBelege::Row() const
{
    return m_list->currentIndex().row();
}

void frmBelege::ShowList()
{
    const int count = m_receipts.rowCount();
    const int added = m_receipts.AddedRow();
    m_list->setCurrentIndex(m_receipts.index(added >= 0 ? added : std::clamp(m_row, 0, std::max(0, count - 1)), 0));
    ShowReceipt();
}

void frmBelege::ShowReceipt()
{
    m_row = Row();
    if (Row() < 0) {
        m_preview->ShowText(m_receipts.EmptyText());
    } else if (m_receipts.IsMissing(Row())) {
        m_preview->ShowText(m_receipts.MissingText(Row()));
    } else {
        m_preview->ShowFile(m_receipts.PathAt(Row()));
    }
    ShowButtons();
}

void frmBelege::ShowButtons()
{
    const bool isThere = !m_receipts.PathAt(Row()).isEmpty();
    const bool canWrite = m_receipts.CanWrite();
    m_again->setVisible(m_receipts.IsMissing(Row()) && canWrite);
    m_add->setEnabled(canWrite);
    m_paste->setEnabled(canWrite);
    m_open->setEnabled(isThere && cReceipts::IsDocument(m_receipts.PathAt(Row())));
    m_save->setEnabled(isThere);
    m_remove->setEnabled(Row() >= 0 && canWrite);
    m_smaller->setEnabled(m_preview->CanZoom(-1));
    m_larger->setEnabled(m_preview->CanZoom(1));
    m_whole->setEnabled(m_preview->CanZoom(-1));
    m_back->setEnabled(m_preview->Page() > 0);
    m_forth->setEnabled(m_preview->Page() + 1 < m_preview->Pages());
    const bool hasPages = m_preview->HasPicture() && m_preview->Pages() > 1;
    for (QWidget* widget :
         {static_cast<QWidget*>(m_back), static_cast<QWidget*>(m_forth), static_cast<QWidget*>(m_page)}) {
        widget->setVisible(hasPages);
    }
    m_page->setText(
        cText::Tr("Seite {0} von {1}", {QString::number(m_preview->Page() + 1), QString::number(m_preview->Pages())}));
}

void frmBelege::Paste()
{
    m_receipts.Paste(modReceiptMime::Clipboard());
}

void frmBelege::dragEnterEvent(QDragEnterEvent* event)
{
    if (modReceiptMime::HasReceipts(*event->mimeData())) {
        event->acceptProposedAction();
    }
}

void frmBelege::dropEvent(QDropEvent* event)
{
    m_receipts.Add(modReceiptMime::Receipts(*event->mimeData()));
}
