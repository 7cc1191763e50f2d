#include "windows/statement/frmKontoauszug.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/ledger/cStatementListModel.h"
#include "views/receipt/cStatementPapers.h"
#include "views/report/modReport.h"
#include "windows/look/modTone.h"
#include "windows/main/cSumBar.h"
#include "windows/statement/cReconcilePanel.h"
#include "windows/statement/cStatementTree.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cFieldGrid.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/cSummaryText.h"
#include "windows/widget/modChoice.h"
#include "windows/widget/modDayRange.h"
#include "windows/widget/modDrop.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

frmKontoauszug::frmKontoauszug(cStatementListModel& statement, QWidget* parent)
    : QDialog(parent),
      m_statement(statement),
      m_account(new QComboBox(this)),
      m_period(new QComboBox(this)),
      m_start(new cDayEdit(statement.Today(), this)),
      m_end(new cDayEdit(statement.Today(), this)),
      m_filter(new QLineEdit(this)),
      m_mark(new QFrame(this)),
      m_finding(new cSummaryText(this)),
      m_tree(new cStatementTree(statement, this)),
      m_differences(new cReconcilePanel(statement.Differences(), this)),
      m_sums(new cSumBar(this)),
      m_entry(new QPushButton(cText::Tr("Ein&trag öffnen"), this)),
      m_papers(new QPushButton(statement.PapersText(), this)),
      m_copy(new QPushButton(cText::Tr("Kopi&eren"), this)),
      m_print(new QPushButton(cText::Tr("&Drucken…"), this)),
      m_preview(new QPushButton(cText::Tr("Seiten&ansicht"), this)),
      m_export(new QPushButton(cText::Tr("E&xportieren…"), this))
{
    setWindowTitle(cText::Tr("Kontoauszug"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setAcceptDrops(true);
    Build();
    Offer();
    Connect();
    ShowDays();
    ShowRows();
    GoToNewest();
    m_tree->setFocus();
}

void frmKontoauszug::Build()
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildFields());
    layout->addLayout(BuildFinding());
    constexpr int leastLines = 6; // with the headline
    m_tree->setMinimumHeight(cRowDelegate::RowHeight(fontMetrics()) * leastLines + 2 * m_tree->frameWidth());
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_sums);
    layout->addWidget(m_differences);
    layout->addLayout(BuildButtons());
    const QSize wanted(fontMetrics().averageCharWidth() * 185, fontMetrics().height() * 40);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

QLayout* frmKontoauszug::BuildFields()
{
    m_filter->setPlaceholderText(cText::Tr("Wörter, Teile von Wörtern, Betrag oder Datum"));
    m_filter->setClearButtonEnabled(true);
    // A long number must not take the room from the text beside it on a small screen.
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_account->setMinimumContentsLength(20);
    m_account->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_start->setAccessibleName(cText::Tr("Erster Tag des Zeitraums"));
    m_end->setAccessibleName(cText::Tr("Letzter Tag des Zeitraums"));
    constexpr int mostColumns = 2;
    auto* grid = new cFieldGrid(mostColumns);
    grid->AddField(cText::Tr("&Konto:"), m_account);
    grid->AddField(cText::Tr("&Suchtext:"), m_filter);
    grid->AddField(cText::Tr("&Zeitraum:"), m_period);
    grid->AddField(cText::Tr("&von:"), modDayRange::Make(*m_start, *m_end, this));
    const std::array<QWidget*, 6> order{m_account, m_filter, m_period, m_start, m_end, m_tree};
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
    return grid;
}

QHBoxLayout* frmKontoauszug::BuildFinding()
{
    m_mark->setAutoFillBackground(true);
    m_mark->setMinimumWidth(fontMetrics().averageCharWidth() / 2);
    m_finding->setFrameShape(QFrame::NoFrame);
    m_finding->viewport()->setAutoFillBackground(false);
    m_finding->setAccessibleName(cText::Tr("Vergleich der Salden"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_mark);
    row->addWidget(m_finding, 1);
    return row;
}

QLayout* frmKontoauszug::BuildButtons()
{
    m_entry->setToolTip(cText::Tr("Öffnet den Eintrag, als der dieser Umsatz gebucht ist (Eingabetaste)"));
    m_copy->setToolTip(cText::Tr("Kopiert die markierten Umsätze, sonst alle (Strg+C)"));
    m_papers->setToolTip(cText::Tr("Auszüge der Bank als PDF; Dateien können auch in dieses Fenster gezogen werden"));
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* row = new cFlowLayout;
    for (QPushButton* button : {m_entry, m_papers, m_copy, m_print, m_preview, m_export}) {
        row->addWidget(button);
    }
    row->AddStretch();
    row->addWidget(close);
    for (QPushButton* button : {m_entry, m_papers, m_copy, m_print, m_preview, m_export, close}) {
        button->setAutoDefault(false); // Enter belongs to the list
    }
    return row;
}

void frmKontoauszug::Offer()
{
    const QStringList texts = m_statement.AccountTexts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        m_account->addItem(texts.at(i), m_statement.Numbers().at(i));
    }
    m_account->setEnabled(!texts.isEmpty());
    m_account->setCurrentIndex(m_account->findData(m_statement.Number()));
    modChoice::AddWords(*m_period, modWord::Periods());
    modChoice::Choose(*m_period, m_statement.Period());
}

void frmKontoauszug::Connect()
{
    connect(m_account, &QComboBox::currentIndexChanged, this, [this] {
        m_statement.ChooseAccount(m_account->currentData().toString());
        GoToNewest();
    });
    connect(m_period, &QComboBox::currentIndexChanged, this, &frmKontoauszug::ChoosePeriod);
    for (cDayEdit* edit : {m_start, m_end}) {
        connect(edit, &cDayEdit::DayChosen, this, [this] {
            m_statement.ChooseFreeRange({m_start->Chosen(), m_end->Chosen()});
            ShowDays();
        });
    }
    connect(m_filter, &QLineEdit::textChanged, &m_statement, &cStatementListModel::TypeFilter);
    connect(&m_statement, &cStatementListModel::Changed, this, &frmKontoauszug::ShowRows);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmKontoauszug::ShowButtons);
    connect(m_tree, &QTreeView::doubleClicked, this, &frmKontoauszug::OpenEntry);
    connect(m_entry, &QPushButton::clicked, this, &frmKontoauszug::OpenEntry);
    connect(m_copy, &QPushButton::clicked, this, &frmKontoauszug::Copy);
    connect(m_print, &QPushButton::clicked, this, &frmKontoauszug::PrintRequested);
    connect(m_preview, &QPushButton::clicked, this, &frmKontoauszug::PreviewRequested);
    connect(m_export, &QPushButton::clicked, this, &frmKontoauszug::ExportRequested);
    connect(m_papers, &QPushButton::clicked, this, &frmKontoauszug::PapersRequested);
    connect(m_differences, &cReconcilePanel::EntryRequested, this, &frmKontoauszug::EntryRequested);
    connect(m_differences, &cReconcilePanel::BookRequested, this, &frmKontoauszug::BookRequested);
    connect(m_differences, &cReconcilePanel::DeleteRequested, this, &frmKontoauszug::DeleteRequested);
    connect(m_differences, &cReconcilePanel::Cured, this, [this] {
        m_statement.Reload();
        Q_EMIT ReconcileChanged();
    });
    connect(new QShortcut(QKeySequence::Copy, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, &frmKontoauszug::Copy);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_print, &QPushButton::click);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                &frmKontoauszug::OpenEntry);
    }
}

void frmKontoauszug::ChoosePeriod()
{
    m_statement.ChoosePeriod(m_period->currentData().toString());
    ShowDays();
}

void frmKontoauszug::ShowDays()
{
    const modPeriod::cRange range = m_statement.Range();
    m_start->SetDay(modReport::HasStart(range) ? range.Start : QDate());
    m_end->SetDay(range.End);
    m_start->setEnabled(m_statement.IsFreePeriod());
    m_end->setEnabled(m_statement.IsFreePeriod());
}

void frmKontoauszug::ShowRows()
{
    ShowFinding();
    m_sums->ShowSums(m_statement.SumTexts());
    ShowButtons();
}

void frmKontoauszug::ShowFinding()
{
    using eFinding = cStatementListModel::eFinding;
    const eFinding finding = m_statement.Finding();
    modTone::Use(*m_mark,
                 finding == eFinding::Bad ? modTone::Expense
                                          : (finding == eFinding::Good ? modTone::Income : modTone::Quiet),
                 QPalette::Window);
    m_finding->ShowLines(m_statement.Findings());
    m_mark->setVisible(m_finding->isVisibleTo(this));
}

void frmKontoauszug::ShowButtons()
{
    const bool hasRows = m_statement.rowCount() > 0;
    m_entry->setEnabled(m_statement.EntryOf(m_tree->currentIndex().row()).has_value());
    for (QPushButton* button : {m_copy, m_print, m_preview, m_export}) {
        button->setEnabled(hasRows);
    }
    m_papers->setText(m_statement.PapersText());
    m_papers->setEnabled(!m_statement.Numbers().isEmpty());
}

// The keys start there. It is not selected: all rows are printed and copied while none is.
void frmKontoauszug::GoToNewest()
{
    const QModelIndex newest = m_statement.index(m_statement.rowCount() - 1, 0);
    m_tree->selectionModel()->setCurrentIndex(newest, QItemSelectionModel::NoUpdate);
    m_tree->scrollToBottom();
}

void frmKontoauszug::OpenEntry()
{
    const int row = m_tree->currentIndex().row();
    if (const auto entry = m_statement.EntryOf(row)) {
        Q_EMIT EntryRequested(entry->first, entry->second);
        m_tree->setCurrentIndex(m_statement.index(row, 0)); // the rows may have been read again
    }
}

void frmKontoauszug::dragEnterEvent(QDragEnterEvent* event)
{
    const QStringList files = modDrop::Files(*event->mimeData());
    const bool arePapers = std::all_of(files.begin(), files.end(), &cStatementPapers::IsPaper);
    if (!files.isEmpty() && arePapers && m_papers->isEnabled()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void frmKontoauszug::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT PapersDropped(modDrop::Files(*event->mimeData()));
}

std::vector<int> frmKontoauszug::SelectedRows() const
{
    std::vector<int> rows;
    const QModelIndexList selected = m_tree->selectionModel()->selectedRows();
    for (const QModelIndex& row : selected) {
        rows.push_back(row.row());
    }
    if (rows.empty()) {
        rows.resize(static_cast<std::size_t>(m_statement.rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void frmKontoauszug::Copy()
{
    QApplication::clipboard()->setText(m_statement.TextOf(SelectedRows()));
}
