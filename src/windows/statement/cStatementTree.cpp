#include "windows/statement/cStatementTree.h"

#include "base/cText.h"
#include "views/ledger/cStatementListModel.h"
#include "windows/look/modTone.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"

#include <QHeaderView>

namespace {

using eKind = cColumnFit::eKind;

const std::vector<cColumnFit::cColumn> columns{
    {13, eKind::Day}, {28}, {20}, {14, eKind::Amount}, {14, eKind::Amount}, {11, eKind::Text, 10}, {22}};

class cStatementDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        cRowDelegate::initStyleOption(option, index);
        const int column = index.column();
        if (column == cStatementListModel::Amount || column == cStatementListModel::Balance) {
            SetTone(*option, index.data(cStatementListModel::ToneRole));
        } else if (column == cStatementListModel::State && index.data(cStatementListModel::BookedRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
        }
    }
};

} // namespace

cStatementTree::cStatementTree(cStatementListModel& statement, QWidget* parent)
    : QTreeView(parent),
      m_statement(statement)
{
    setModel(&statement);
    setItemDelegate(new cStatementDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setAccessibleName(cText::Tr("Umsätze des Kontoauszugs"));
    header()->setSectionsMovable(false);
    new cColumnFit(*this, columns, cStatementListModel::Purpose);
}

void cStatementTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_statement.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_statement.EmptyTitle(), m_statement.EmptyHint());
    }
}
