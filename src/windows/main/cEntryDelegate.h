#pragma once

#include "windows/widget/cRowDelegate.h"

class QPainter;

// Paints entries: income and expense in their colours, future rows in italics, group heads bold, tags as labels that
// can be clicked.
class cEntryDelegate : public cRowDelegate
{
    Q_OBJECT

public:
    using cRowDelegate::cRowDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

Q_SIGNALS:
    void TagClicked(const QString& tag);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};
