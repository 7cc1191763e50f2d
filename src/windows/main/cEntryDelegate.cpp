#include "windows/main/cEntryDelegate.h"

#include "views/list/cEntryListModel.h"
#include "windows/widget/modIcon.h"

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
    if (const int receipts = index.data(cEntryListModel::ReceiptsRole).toInt(); receipts > 0) {
        option->icon = modIcon::Get(QStringLiteral("beleg"));
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->text = receipts > 1 ? option->text : QString(); // the clip alone says that there is one
    }
    if (isMoney) {
        SetTone(*option, index.data(cEntryListModel::ToneRole).toInt());
    }
}
