#include "windows/bank/frmBankzugaenge.h"

#include "base/cText.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTreeView>

#include <algorithm>

frmBankzugaenge::frmBankzugaenge(cBankListModel& banks, QWidget* parent)
    : QDialog(parent),
      m_banks(banks),
      m_empty(new QLabel(cBankListModel::EmptyTitle() + u'\n' + cBankListModel::EmptyHint(), this)),
      m_tree(new QTreeView(this)),
      m_add(new QPushButton(cText::Tr("&Neuer Zugang…"), this)),
      m_change(new QPushButton(cText::Tr("&Ändern…"), this)),
      m_remove(new QPushButton(cText::Tr("&Entfernen…"), this))
{
    setWindowTitle(cText::Tr("Bankzugänge"));
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setWordWrap(true);
    m_change->setToolTip(cText::Tr("Wählt ein anderes TAN-Verfahren, TAN-Medium oder andere Konten"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_empty);
    BuildList();
    layout->addWidget(m_tree, 1);
    layout->addLayout(BuildButtons());
    connect(&m_banks, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_before = m_banks.Lines();
        m_rowBefore = Row();
    });
    connect(&m_banks, &QAbstractItemModel::modelReset, this, &frmBankzugaenge::ShowReloaded);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmBankzugaenge::ShowButtons);
    const QSize wanted(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 18);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    m_tree->setCurrentIndex(m_banks.index(0, 0));
    ShowButtons();
}

void frmBankzugaenge::BuildList()
{
    m_tree->setModel(&m_banks);
    m_tree->setItemDelegate(new cRowDelegate(m_tree));
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setAccessibleName(cText::Tr("Bankzugänge"));
    constexpr auto text = cColumnFit::eKind::Text;
    new cColumnFit(*m_tree,
                   {{24, text, 20}, {16, text, 10}, {34, text, 34}, {20, text, 12}, {18, text, 14}, {18, text, 12}},
                   cBankListModel::Method); // in large type the list rather scrolls
    connect(m_tree, &QTreeView::doubleClicked, m_change, &QPushButton::click);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, m_change,
                &QPushButton::click);
    }
    connect(new QShortcut(Qt::Key_Delete, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_remove, &QPushButton::click);
}

QLayout* frmBankzugaenge::BuildButtons()
{
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    connect(m_add, &QPushButton::clicked, this, &frmBankzugaenge::AddRequested);
    connect(m_change, &QPushButton::clicked, this, [this] { Q_EMIT ChangeRequested(Row()); });
    connect(m_remove, &QPushButton::clicked, this, [this] { (void)m_banks.Remove(Row()); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_change, m_remove}) {
        button->setAutoDefault(false); // Enter belongs to the list
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(close);
    close->setDefault(true);
    return row;
}

// The login that is new, else the row that was current.
void frmBankzugaenge::ShowReloaded()
{
    const QList<cBankListModel::cLine>& lines = m_banks.Lines();
    const auto added = std::find_if(lines.begin(), lines.end(), [&](const cBankListModel::cLine& line) {
        return std::none_of(m_before.begin(), m_before.end(), [&](const cBankListModel::cLine& before) {
            return before.Bank.BankCode == line.Bank.BankCode && before.Bank.UserId == line.Bank.UserId;
        });
    });
    const int last = m_banks.rowCount() - 1;
    const int row = added == lines.end() ? qMin(m_rowBefore, last) : static_cast<int>(added - lines.begin());
    m_tree->setCurrentIndex(m_banks.index(row, 0));
    ShowButtons();
}

void frmBankzugaenge::ShowButtons()
{
    m_empty->setVisible(m_banks.rowCount() == 0);
    m_change->setEnabled(Row() >= 0);
    m_remove->setEnabled(Row() >= 0);
}

int frmBankzugaenge::Row() const
{
    return m_tree->currentIndex().row();
}
