#include "windows/widget/cRowDelegate.h"

#include "windows/look/modTone.h"

QSize cRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
    return {text + 2 * option.fontMetrics.averageCharWidth(), RowHeight(option.fontMetrics)};
}

void cRowDelegate::SetTone(QStyleOptionViewItem& option, int tone)
{
    if (tone != 0) {
        option.palette.setColor(QPalette::Text,
                                tone == 1 ? modTone::Income(option.palette) : modTone::Expense(option.palette));
    }
}
