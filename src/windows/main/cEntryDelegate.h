#pragma once

#include "windows/widget/cRowDelegate.h"

// Paints entries: income and expense in their colours, future rows in italics, group heads bold.
class cEntryDelegate : public cRowDelegate
{
    Q_OBJECT

public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
