#include "windows/book/frmPruefung.h"

#include "base/cText.h"
#include "views/book/cBookCheck.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTreeView>

#include <array>
#include <utility>

namespace {

// Widths of the columns that do not share what is left, in letters.
constexpr std::array<std::pair<int, int>, 3> widths{
    {{cBookCheck::Day, 14}, {cBookCheck::Account, 16}, {cBookCheck::Amount, 16}}};

} // namespace

frmPruefung::frmPruefung(cBookCheck& check, QWidget* parent)
    : QDialog(parent),
      m_check(check),
      m_file(new QLabel(this)),
      m_entries(new QLabel(this)),
      m_receipts(new QLabel(this)),
      m_tree(new QTreeView(this)),
      m_edit(new QPushButton(cText::Tr("Eintrag &bearbeiten…"), this)),
      m_delete(new QPushButton(cText::Tr("Eintrag &löschen…"), this))
{
    setWindowTitle(cText::Tr("Buch prüfen"));
    auto* layout = new QVBoxLayout(this);
    for (QLabel* text : {m_file, m_entries}) {
        text->setWordWrap(true);
        text->setTextFormat(Qt::PlainText);
        layout->addWidget(text);
    }
    BuildList();
    layout->addWidget(m_tree, 1);
    m_receipts->setWordWrap(true);
    m_receipts->setTextFormat(Qt::PlainText);
    m_receipts->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_receipts);
    layout->addLayout(BuildButtons());
    connect(&m_check, &QAbstractItemModel::modelReset, this, &frmPruefung::ShowFindings);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmPruefung::ShowButtons);
    const QSize wanted(fontMetrics().averageCharWidth() * 125, fontMetrics().height() * 20);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    ShowFindings();
}

void frmPruefung::BuildList()
{
    m_tree->setModel(&m_check);
    m_tree->setItemDelegate(new cRowDelegate(m_tree));
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setAccessibleName(cText::Tr("Gefundene Einträge"));
    QHeaderView& columns = *m_tree->header();
    columns.setStretchLastSection(false);
    for (const auto& [column, letters] : widths) {
        columns.resizeSection(column, fontMetrics().averageCharWidth() * letters);
    }
    columns.setSectionResizeMode(cBookCheck::Fault, QHeaderView::Stretch);
    columns.setSectionResizeMode(cBookCheck::Text, QHeaderView::Stretch);
    connect(m_tree, &QTreeView::doubleClicked, this, [this] { Request(&frmPruefung::EntryRequested); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, m_edit,
                &QPushButton::click);
    }
    connect(new QShortcut(Qt::Key_Delete, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_delete, &QPushButton::click);
}

QLayout* frmPruefung::BuildButtons()
{
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    connect(m_edit, &QPushButton::clicked, this, [this] { Request(&frmPruefung::EntryRequested); });
    connect(m_delete, &QPushButton::clicked, this, [this] { Request(&frmPruefung::DeleteRequested); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* row = new QHBoxLayout;
    row->addWidget(m_edit);
    row->addWidget(m_delete);
    row->addStretch();
    row->addWidget(close);
    for (QPushButton* button : {m_edit, m_delete}) {
        button->setAutoDefault(false); // Enter belongs to the list
    }
    close->setDefault(true);
    return row;
}

void frmPruefung::ShowFindings()
{
    m_file->setText(m_check.FileText());
    m_entries->setText(m_check.EntriesText());
    m_receipts->setText(m_check.ReceiptText());
    m_receipts->setVisible(!m_receipts->text().isEmpty());
    m_tree->setCurrentIndex(m_check.index(0, 0));
    ShowButtons();
}

void frmPruefung::ShowButtons()
{
    const bool isChosen = Entry() > 0;
    m_edit->setEnabled(isChosen);
    m_delete->setEnabled(isChosen && m_check.CanDelete());
}

int frmPruefung::Entry() const
{
    return m_check.EntryAt(m_tree->currentIndex().row());
}

void frmPruefung::Request(void (frmPruefung::*request)(int))
{
    if (const int entry = Entry(); entry > 0) {
        Q_EMIT(this->*request)(entry);
    }
}
