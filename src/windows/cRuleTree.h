#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

class cRuleList;

// Rows that are cut instead of scrolled sideways; rules that are switched off stay in the background.
class cRuleDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] static int RowHeight(const QFontMetrics& metrics) { return metrics.height() + 8; }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

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
