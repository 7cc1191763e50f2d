#include "windows/entry/cSplitDelegate.h"

#include "base/modSum.h"
#include "views/entry/modSplitParts.h"
#include "windows/entry/cSplitTable.h"
#include "windows/widget/cAmountEdit.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/cPickList.h"
#include "windows/widget/modProposal.h"

#include <QLineEdit>

cSplitDelegate::cSplitDelegate(cEntrySuggestions& suggestions, eDecimal decimal, QObject* parent)
    : QStyledItemDelegate(parent),
      m_suggestions(suggestions),
      m_decimal(decimal)
{
}

QWidget* cSplitDelegate::CategoryEditor(QWidget* parent, int line) const
{
    auto* box = new cCategoryBox(m_suggestions, parent, cCategoryBox::eNew::IsTold);
    box->SetType(m_type);
    auto* delegate = const_cast<cSplitDelegate*>(this);
    // The list of proposals is still at work with the key when it tells.
    connect(
        box, &cCategoryBox::NewWanted, box,
        [delegate, box, line](const QString& typed) {
            Q_EMIT delegate->closeEditor(box);
            Q_EMIT delegate->NewCategoryWanted(line, typed);
        },
        Qt::QueuedConnection);
    return box;
}

QWidget* cSplitDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& index) const
{
    QWidget* editor = nullptr;
    if (index.column() == cSplitTable::Category) {
        editor = CategoryEditor(parent, index.row());
    } else if (index.column() == cSplitTable::Amount) {
        editor = new cAmountEdit([this] { return m_decimal; }, parent);
    } else {
        auto* line = new QLineEdit(parent);
        connect(modProposal::AddDescriptions(*line, m_suggestions), &cPickList::Picked, this,
                [this, row = index.row()](const QString& text) { Q_EMIT DescriptionPicked(row, text); });
        editor = line;
    }
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    return editor;
}

void cSplitDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* box = qobject_cast<cCategoryBox*>(editor)) {
        box->SetPath(index.data(PathRole).toString(), text);
        box->lineEdit()->selectAll();
    } else {
        auto& line = static_cast<QLineEdit&>(*editor);
        line.setText(text);
        line.selectAll();
    }
}

void cSplitDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<cCategoryBox*>(editor)) {
        const QString path = box->Path();
        const bool isNew = path != index.data(PathRole).toString();
        model->setData(index, path, PathRole);
        model->setData(index, path.isEmpty() ? box->UnknownText() : path);
        if (isNew && !path.isEmpty()) {
            Q_EMIT CategoryPicked(index.row(), path);
        }
        return;
    }
    const QString text = static_cast<const QLineEdit&>(*editor).text();
    const std::optional<qint64> cents =
        index.column() == cSplitTable::Amount ? modSum::Evaluate(text, m_decimal) : std::optional<qint64>();
    model->setData(index, cents ? modSplitParts::AmountText(*cents, m_decimal) : text);
}
