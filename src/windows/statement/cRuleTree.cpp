#include "windows/statement/cRuleTree.h"

#include "base/cText.h"
#include "views/rule/cRuleListModel.h"
#include "windows/look/modTone.h"
#include "windows/widget/modEmptyText.h"

#include <QHeaderView>

void cRuleDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
    if (index.data(cRuleListModel::QuietRole).toBool()) {
        option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
    }
}

cRuleTree::cRuleTree(cRuleListModel& rules, QWidget* parent) : QTreeView(parent)
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
    columns.setSectionResizeMode(cRuleListModel::Count, QHeaderView::ResizeToContents);
}

void cRuleTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model()->rowCount() == 0) {
        modEmptyText::Paint(*viewport(), cRuleListModel::EmptyTitle(), cRuleListModel::EmptyHint());
    }
}
