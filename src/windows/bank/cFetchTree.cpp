#include "windows/bank/cFetchTree.h"

#include "base/cText.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/modFetchText.h"
#include "windows/look/modTone.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"

#include <QEvent>
#include <QHeaderView>

#include <algorithm>

namespace {

using eKind = cColumnFit::eKind;

const std::vector<cColumnFit::cColumn> columns{
    {54, eKind::Text, 26}, {20}, {28, eKind::Text, 18}, {26, eKind::Text, 26}};

} // namespace

cFetchTree::cFetchTree(cBankFetch& fetch, QWidget* parent) : QTreeWidget(parent), m_fetch(fetch)
{
    setColumnCount(ColumnCount);
    setHeaderLabels(
        {cText::Tr("Konto der Bank"), cText::Tr("Konto im Buch"), cText::Tr("Stand"), cText::Tr("Saldo laut Bank")});
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setItemDelegate(new cRowDelegate(this));
    setAllColumnsShowFocus(true);
    setAccessibleName(cText::Tr("Konten, die abgerufen werden"));
    header()->setSectionsMovable(false);
    m_fit = new cColumnFit(*this, columns, Account);
    Fill();
}

// The model of a tree widget is one of its children and tells of its end, when there are no columns any more.
cFetchTree::~cFetchTree()
{
    delete m_fit;
}

void cFetchTree::Fill()
{
    const QList<cBankFetch::cAccount>& accounts = m_fetch.Accounts();
    QTreeWidgetItem* bank = nullptr;
    for (qsizetype i = 0; i < accounts.size(); ++i) {
        const cBankFetch::cAccount& account = accounts.at(i);
        const bool isSame =
            i > 0 && accounts.at(i - 1).BankCode == account.BankCode && accounts.at(i - 1).UserId == account.UserId;
        if (!isSame) {
            const bool isTwice = std::any_of(accounts.begin(), accounts.end(), [&](const cBankFetch::cAccount& other) {
                return other.Bank == account.Bank && other.UserId != account.UserId;
            });
            bank = AddBank(isTwice ? account.Bank + QStringLiteral(", ") + account.UserId : account.Bank);
        }
        auto* item = new QTreeWidgetItem(bank);
        item->setData(Account, Qt::UserRole, i);
        item->setText(Account, account.Name);
        item->setToolTip(Account, account.Name);
        item->setCheckState(Account, Qt::Checked);
        item->setTextAlignment(Balance, Qt::AlignRight | Qt::AlignVCenter);
        m_items.append(item);
        ShowLine(i);
    }
    expandAll();
    if (!m_items.isEmpty()) {
        setCurrentItem(m_items.constFirst());
    }
}

QTreeWidgetItem* cFetchTree::AddBank(const QString& name)
{
    auto* item = new QTreeWidgetItem(this, {name});
    item->setFirstColumnSpanned(true);
    item->setFlags(Qt::ItemIsEnabled);
    QFont bold = font();
    bold.setBold(true);
    item->setFont(Account, bold);
    return item;
}

QList<qsizetype> cFetchTree::Chosen() const
{
    QList<qsizetype> chosen;
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i)->checkState(Account) == Qt::Checked) {
            chosen.append(i);
        }
    }
    return chosen;
}

qsizetype cFetchTree::Current() const
{
    return m_items.indexOf(currentItem());
}

void cFetchTree::Colour(qsizetype account)
{
    const bool hasFailed =
        account < m_fetch.Lines().size() && m_fetch.Lines().at(account).State == cBankFetch::eState::Failed;
    m_items.at(account)->setForeground(State,
                                       hasFailed ? modTone::Expense(palette()) : palette().color(QPalette::Text));
}

void cFetchTree::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        for (qsizetype account = 0; account < m_items.size(); ++account) {
            Colour(account);
        }
    }
}

void cFetchTree::ShowLine(qsizetype account)
{
    QTreeWidgetItem& item = *m_items.at(account);
    const QString& book = m_fetch.Accounts().at(account).BookAccount;
    const cBankFetch::cLine* line =
        account < m_fetch.Lines().size() ? &m_fetch.Lines().at(account) : nullptr; // none before the first run
    const QString state = modFetchText::State(m_fetch, account);
    item.setText(Book, book.isEmpty() ? cText::Tr("wird gefragt") : book);
    item.setText(State, state);
    item.setToolTip(State, state);
    item.setText(Balance, line == nullptr ? QString() : line->BalanceText);
    Colour(account);
    m_fit->Measure();
    if (line != nullptr && line->State == cBankFetch::eState::Asked) {
        scrollToItem(&item);
    }
}

void cFetchTree::ShowTrouble()
{
    const QList<cBankFetch::cLine>& lines = m_fetch.Lines();
    auto line = std::find_if(lines.begin(), lines.end(),
                             [](const auto& each) { return each.State == cBankFetch::eState::Failed; });
    if (line == lines.end()) {
        line = std::find_if(lines.begin(), lines.end(), [](const auto& each) { return !each.Notes.isEmpty(); });
    }
    if (line != lines.end()) {
        setCurrentItem(m_items.at(line - lines.begin()));
    }
}

void cFetchTree::SetChoosable(bool isChoosable)
{
    for (QTreeWidgetItem* item : m_items) {
        item->setFlags(item->flags().setFlag(Qt::ItemIsUserCheckable, isChoosable));
    }
}

void cFetchTree::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    if (m_items.isEmpty()) {
        modEmptyText::Paint(*viewport(), cText::Tr("Noch kein Bankzugang"), m_fetch.EmptyHint());
    }
}
