#include "windows/cRuleTree.h"

#include "base/cText.h"
#include "views/cRuleList.h"
#include "windows/modEmptyText.h"
#include "windows/modTone.h"

#include <QHeaderView>

void cRuleDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
    if (index.data(cRuleList::QuietRole).toBool()) {
        option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
    }
}

cRuleTree::cRuleTree(cRuleList& rules, QWidget* parent) : QTreeView(parent)
{
    setModel(&rules);
    setItemDelegate(new cRuleDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setAccessibleName(cText::Tr("Regeln"));
    QHeaderView& columns = *header();
    columns.setSectionsMovable(false);
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::Stretch);
    columns.setSectionResizeMode(cRuleList::Count, QHeaderView::Interactive);
    columns.resizeSection(cRuleList::Count, fontMetrics().averageCharWidth() * 11);
}

void cRuleTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model()->rowCount() == 0) {
        modEmptyText::Paint(*viewport(), cRuleList::EmptyTitle(), cRuleList::EmptyHint());
    }
}
