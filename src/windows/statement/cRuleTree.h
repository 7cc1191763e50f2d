#pragma once

#include "windows/widget/cRowDelegate.h"

#include <QTreeView>

class cRuleListModel;

// Rules that are switched off stay in the background.
class cRuleDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// The list of the user's own rules.
class cRuleTree final : public QTreeView
{
public:
    cRuleTree(cRuleListModel& rules, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
