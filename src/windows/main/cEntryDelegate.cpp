#include "windows/main/cEntryDelegate.h"

#include "views/list/cEntryListModel.h"
#include "windows/look/modIcon.h"
#include "windows/look/modLook.h"
#include "windows/main/modTagText.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace {

bool HasLabels(const QModelIndex& index)
{
    return index.column() == cEntryListModel::Description && !index.data(cEntryListModel::GroupRole).toBool()
        && modTagText::HasTags(index.data().toString());
}

const QStyle& StyleOf(const QStyleOptionViewItem& option)
{
    return option.widget != nullptr ? *option.widget->style() : *QApplication::style();
}

// Where the style draws the text of a cell.
QRect TextRect(const QStyleOptionViewItem& option)
{
    const QStyle& style = StyleOf(option);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    return style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget).adjusted(margin, 0, -margin, 0);
}

} // namespace

void cEntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!HasLabels(index)) {
        cRowDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QRect rect = TextRect(cell);
    const QString text = std::exchange(cell.text, QString());
    StyleOf(cell).drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(cell.font);
    modTagText::Paint(*painter, rect, text, cell.palette,
                      isSelected ? modTagText::eLook::Selected : modTagText::eLook::Usual);
    painter->restore();
}

bool cEntryDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index)
{
    const bool isClick = event->type() == QEvent::MouseButtonRelease && HasLabels(index);
    if (isClick) {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        const bool isPlain = mouse.button() == Qt::LeftButton && mouse.modifiers() == Qt::NoModifier;
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QString tag = modTagText::TagAt(mouse.position().toPoint(), TextRect(cell), cell.text, cell.font);
        if (isPlain && !tag.isEmpty()) {
            // The list is still at work with the row, which the filter may take away.
            QMetaObject::invokeMethod(
                this, [this, tag] { Q_EMIT TagClicked(tag); }, Qt::QueuedConnection);
            return true;
        }
    }
    return cRowDelegate::editorEvent(event, model, option, index);
}

void cEntryDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
    modLook::Decorate(*option, index);
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
        SetTone(*option, index.data(cEntryListModel::ToneRole));
    }
}
