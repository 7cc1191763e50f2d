#include "windows/statement/cStagedDelegate.h"

#include "model/modWord.h"
#include "views/look/modMoneyTone.h"
#include "views/statement/cStagedListModel.h"
#include "windows/look/modLook.h"
#include "windows/look/modTone.h"
#include "windows/widget/cCategoryBox.h"

#include <QComboBox>
#include <QLineEdit>

cStagedDelegate::cStagedDelegate(cEntrySuggestions& suggestions, QStringList intervals, QObject* parent)
    : cRowDelegate(parent),
      m_suggestions(suggestions),
      m_intervals(std::move(intervals))
{
}

void cStagedDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    cRowDelegate::initStyleOption(option, index);
    modLook::Decorate(*option, index);
    const bool saysWhy = index.column() == cStagedListModel::Reason || index.column() == cStagedListModel::State;
    if (saysWhy && index.data(cStagedListModel::DoubtRole).toBool()) {
        option->palette.setColor(QPalette::Text, modTone::Expense(option->palette));
    } else if (index.data(cStagedListModel::BookedRole).toBool() || index.column() == cStagedListModel::Reason) {
        option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
    } else if (index.column() == cStagedListModel::Amount) {
        SetTone(*option, index.data(cStagedListModel::ToneRole));
    }
}

QWidget* cStagedDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                       const QModelIndex& index) const
{
    QWidget* editor =
        index.column() == cStagedListModel::Category ? CategoryEditor(parent, index) : IntervalEditor(parent);
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    return editor;
}

QWidget* cStagedDelegate::CategoryEditor(QWidget* parent, const QModelIndex& index) const
{
    auto* box = new cCategoryBox(m_suggestions, parent, cCategoryBox::eNew::IsTold);
    connect(box->lineEdit(), &QLineEdit::textEdited, this, [this] { m_declined.clear(); });
    connect(box->lineEdit(), &QLineEdit::returnPressed, this, [this] { m_declined.clear(); });
    const auto tone = index.data(cStagedListModel::ToneRole).value<eMoneyTone>();
    box->SetType(tone == eMoneyTone::Neutral      ? QString()
                     : tone == eMoneyTone::Income ? modWord::Einnahme
                                                  : modWord::Ausgabe);
    auto* delegate = const_cast<cStagedDelegate*>(this);
    // The list of proposals is still at work with the key or the click when it reports.
    connect(
        box, &cCategoryBox::PathPicked, box,
        [delegate, box] {
            // Leaving the field picks what was typed as well, but nobody has confirmed that.
            const bool isEntered = box->hasFocus();
            Q_EMIT delegate->commitData(box); // hides the field where the row goes to another group
            Q_EMIT delegate->closeEditor(box, isEntered ? SubmitModelCache : NoHint);
        },
        Qt::QueuedConnection);
    connect(
        box, &cCategoryBox::NewWanted, box,
        [delegate, place = QPersistentModelIndex(index)](const QString& typed) {
            Q_EMIT delegate->NewCategoryWanted(place, typed);
        },
        Qt::QueuedConnection);
    return box;
}

QWidget* cStagedDelegate::IntervalEditor(QWidget* parent) const
{
    auto* combo = new QComboBox(parent);
    combo->addItems(m_intervals);
    combo->setMaxVisibleItems(16);
    auto* delegate = const_cast<cStagedDelegate*>(this);
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
    const QString text = index.data(Qt::DisplayRole).toString();
    if (auto* box = qobject_cast<cCategoryBox*>(editor)) {
        box->SetPath(m_start.isEmpty() ? text : QString(), m_start);
        box->lineEdit()->end(false);
        box->lineEdit()->home(true); // all of it is selected, and a narrow field shows how it begins
        box->lineEdit()->setModified(!m_start.isEmpty());
        m_start.clear();
        return;
    }
    auto& combo = static_cast<QComboBox&>(*editor);
    combo.setCurrentIndex(combo.findText(text));
}

void cStagedDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const
{
    const auto* box = qobject_cast<cCategoryBox*>(editor);
    if (box != nullptr && !box->UnknownText().isEmpty()) {
        if (box->UnknownText() == m_declined) {
            return;
        }
        m_declined = box->UnknownText();
        // The question would take the focus from the field, which is at the moment being closed.
        auto* delegate = const_cast<cStagedDelegate*>(this);
        QMetaObject::invokeMethod(
            delegate,
            [delegate, place = QPersistentModelIndex(index), typed = box->UnknownText()] {
                Q_EMIT delegate->NewCategoryWanted(place, typed);
            },
            Qt::QueuedConnection);
        return;
    }
    const QString text = box != nullptr ? box->Path() : static_cast<const QComboBox&>(*editor).currentText();
    if (!text.isEmpty() && text != index.data(Qt::DisplayRole).toString()) {
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
