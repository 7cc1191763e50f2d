#include "windows/cEntryDelegate.h"

#include "views/cEntryListModel.h"
#include "windows/modTone.h"

QSize cEntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    // Asking the font once per row keeps long lists quick; all rows are of one height.
    return {120, option.fontMetrics.height() + 8};
}

void cEntryDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // A font that nobody writes to stays the list's own, which has been looked up before.
    if (index.data(cEntryListModel::GroupRole).toBool()) {
        option->font.setBold(true);
    }
    if (index.data(cEntryListModel::FutureRole).toBool()) {
        option->font.setItalic(true);
    }
    const bool isMoney = index.column() == cEntryListModel::Amount || index.column() == cEntryListModel::Balance;
    const bool isCorrection =
        index.column() == cEntryListModel::Interval && index.data(cEntryListModel::CorrectedRole).toBool();
    if (isCorrection) {
        option->font.setUnderline(true);
    }
    const int tone = isMoney ? index.data(cEntryListModel::ToneRole).toInt() : cEntryListModel::Neutral;
    if (tone != cEntryListModel::Neutral) {
        const QColor color =
            tone == cEntryListModel::Income ? modTone::Income(option->palette) : modTone::Expense(option->palette);
        option->palette.setColor(QPalette::Text, color);
    }
}
