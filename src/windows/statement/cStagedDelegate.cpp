#include "windows/statement/cStagedDelegate.h"

#include "views/statement/cStagedListModel.h"
#include "windows/widget/modTone.h"

#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>

cStagedDelegate::cStagedDelegate(fnItems items, QObject* parent) : cRowDelegate(parent), m_items(std::move(items))
{
}

void cStagedDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
    const bool saysWhy = index.column() == cStagedListModel::Reason || index.column() == cStagedListModel::State;
    if (saysWhy && index.data(cStagedListModel::DoubtRole).toBool()) {
        option->palette.setColor(QPalette::Text, modTone::Expense(option->palette));
    } else if (index.data(cStagedListModel::BookedRole).toBool() || index.column() == cStagedListModel::Reason) {
        option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
    } else if (index.column() == cStagedListModel::Amount) {
        SetTone(*option, index.data(cStagedListModel::ToneRole).toInt());
    }
}

QWidget* cStagedDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                       const QModelIndex& index) const
{
    auto* combo = new QComboBox(parent);
    combo->addItems(m_items(index.column()));
    combo->setMaxVisibleItems(16);
    combo->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    auto* delegate = const_cast<cStagedDelegate*>(this);
    if (index.column() == cStagedListModel::Category) {
        // Typing any part of a path finds it; the list of all stays one click away.
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
        combo->completer()->setFilterMode(Qt::MatchContains);
        combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    }
    // Also what the completer offers arrives here. The combo is still at work with the choice when it reports it.
    connect(
        combo, &QComboBox::activated, combo,
        [delegate, combo] {
            Q_EMIT delegate->commitData(combo);
            Q_EMIT delegate->closeEditor(combo);
        },
        Qt::QueuedConnection);
    return combo;
}

void cStagedDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto& combo = static_cast<QComboBox&>(*editor);
    const QString text = index.data(Qt::DisplayRole).toString();
    combo.setCurrentIndex(combo.findText(text));
    if (combo.isEditable()) {
        combo.setEditText(text);
        combo.lineEdit()->selectAll();
    }
}

void cStagedDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const
{
    const QString text = static_cast<const QComboBox&>(*editor).currentText();
    if (text != index.data(Qt::DisplayRole).toString()) {
        Q_EMIT Chosen(index, text);
    }
}

void cStagedDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                           const QModelIndex& /*index*/) const
{
    // A narrow column must not hide what there is to choose.
    QRect place = option.rect;
    place.setWidth(qMax(place.width(), editor->sizeHint().width()));
    const int overhang = place.right() - editor->parentWidget()->rect().right();
    place.translate(overhang > 0 ? -overhang : 0, 0);
    editor->setGeometry(place);
}
