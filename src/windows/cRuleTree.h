#pragma once

#include "windows/cRowDelegate.h"

#include <QTreeView>

class cRuleList;

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
    cRuleTree(cRuleList& rules, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
