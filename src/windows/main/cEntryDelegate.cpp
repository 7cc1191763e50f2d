#include "windows/main/cEntryDelegate.h"

#include "views/list/cEntryListModel.h"

void cEntryDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
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
    if (isMoney) {
        SetTone(*option, index.data(cEntryListModel::ToneRole).toInt());
    }
}
