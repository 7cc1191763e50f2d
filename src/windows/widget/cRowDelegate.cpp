#include "windows/widget/cRowDelegate.h"

#include "views/look/modMoneyTone.h"
#include "windows/look/modTone.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

QSize cRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
    return {text + 2 * option.fontMetrics.averageCharWidth(), RowHeight(option.fontMetrics)};
}

bool cRowDelegate::IsForBook(QObject& field, const QEvent& event)
{
    const auto* box = qobject_cast<QComboBox*>(&field);
    const auto* line = box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit*>(&field);
    if (line == nullptr || event.type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool isUndo = key.matches(QKeySequence::Undo);
    const bool isRedo = key.matches(QKeySequence::Redo) || key.keyCombination() == (Qt::CTRL | Qt::Key_Y);
    return (isUndo || isRedo) && !line->isModified() && !line->isRedoAvailable();
}

bool cRowDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (IsForBook(*watched, *event)) {
        Q_EMIT closeEditor(static_cast<QWidget*>(watched), NoHint); // the list is about to change below it
        event->ignore(); // the field would take the key and do nothing with it
        return true;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

void cRowDelegate::SetTone(QStyleOptionViewItem& option, const QVariant& tone)
{
    if (const auto meant = tone.value<eMoneyTone>(); meant != eMoneyTone::Neutral) {
        const bool isIncome = meant == eMoneyTone::Income;
        option.palette.setColor(QPalette::Text,
                                isIncome ? modTone::Income(option.palette) : modTone::Expense(option.palette));
    }
}
