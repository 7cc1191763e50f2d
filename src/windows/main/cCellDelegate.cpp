#include "windows/main/cCellDelegate.h"

#include "views/list/cEntryListModel.h"
#include "views/sheet/cCellEdit.h"
#include "windows/widget/cAmountEdit.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modProposal.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace {

constexpr int leastTextLetters = 26; // width of a field
constexpr int leastAmountLetters = 16;

} // namespace

cCellDelegate::cCellDelegate(cCellEdit& cells, QObject* parent) : cEntryDelegate(parent), m_cells(cells)
{
}

void cCellDelegate::Begin(const QString& text, bool isTyped)
{
    m_text = text;
    m_isTyped = isTyped;
}

std::optional<cCellDelegate::cTyped> cCellDelegate::TakeTyped()
{
    std::optional<cTyped> typed = std::exchange(m_typed, std::nullopt);
    const std::optional<int> step = std::exchange(m_step, std::nullopt);
    if (typed) {
        typed->Step = step;
    }
    return typed;
}

QWidget* cCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& index) const
{
    m_column = index.column();
    QWidget* editor = nullptr;
    if (index.column() == cEntryListModel::Category) {
        auto* box = new cCategoryBox(m_cells.Suggestions(), parent, cCategoryBox::eNew::IsTold);
        auto* delegate = const_cast<cCellDelegate*>(this);
        // The list of proposals is still at work with the key when it tells.
        connect(
            box, &cCategoryBox::NewWanted, box, [delegate, box] { delegate->Leave(*box, 0); }, Qt::QueuedConnection);
        editor = box;
    } else if (index.column() == cEntryListModel::Amount) {
        auto* amount = new cAmountEdit([this] { return m_cells.Decimal(); }, parent);
        amount->setAlignment(Qt::AlignRight);
        editor = amount;
    } else {
        auto* line = new QLineEdit(parent);
        (void)modProposal::AddDescriptions(*line, m_cells.Suggestions());
        editor = line;
    }
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    editor->setAutoFillBackground(true);
    return editor;
}

void cCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<cCategoryBox*>(editor)) {
        const bool isStored = m_text == index.data(Qt::DisplayRole).toString();
        box->SetPath(isStored ? m_text : QString(), m_text);
        box->lineEdit()->selectAll();
        box->lineEdit()->setModified(m_isTyped);
    } else {
        auto& line = static_cast<QLineEdit&>(*editor);
        line.setText(m_text);
        line.selectAll();
        line.setModified(m_isTyped);
    }
}

void cCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    const int letters = index.column() == cEntryListModel::Amount ? leastAmountLetters : leastTextLetters;
    const QRect room = editor->parentWidget()->rect();
    QRect place = option.rect;
    place.setWidth(std::min(std::max(place.width(), letters * option.fontMetrics.averageCharWidth()), room.width()));
    if (index.column() == cEntryListModel::Amount) {
        place.moveRight(option.rect.right()); // in line with the other amounts
    }
    place.moveLeft(std::clamp(place.left(), 0, room.width() - place.width()));
    editor->setGeometry(place);
}

QString cCellDelegate::TextOf(const QWidget& editor)
{
    if (const auto* box = qobject_cast<const cCategoryBox*>(&editor)) {
        return box->Path().isEmpty() ? box->UnknownText() : box->Path();
    }
    return static_cast<const QLineEdit&>(editor).text();
}

void cCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const
{
    m_typed = cTyped{index, TextOf(*editor)};
}

// Marks what cannot be taken, and the field stays.
bool cCellDelegate::IsRefused(QWidget& editor) const
{
    const QString fault = m_cells.Fault(m_column, TextOf(editor));
    if (fault.isEmpty()) {
        return false;
    }
    auto* box = qobject_cast<cCategoryBox*>(&editor);
    modBadField::Mark(box != nullptr ? *box->lineEdit() : static_cast<QLineEdit&>(editor), fault);
    return true;
}

void cCellDelegate::Leave(QWidget& editor, int step)
{
    if (IsRefused(editor)) {
        return;
    }
    m_step = step;
    Q_EMIT commitData(&editor);
    Q_EMIT closeEditor(&editor, NoHint);
}

bool cCellDelegate::eventFilter(QObject* watched, QEvent* event)
{
    // A command would rebuild the list, and what is typed would be gone.
    if (event->type() == QEvent::ShortcutOverride && !IsForBook(*watched, *event)
        && (static_cast<const QKeyEvent*>(event)->modifiers() & Qt::ControlModifier) != 0) {
        event->accept();
        return true;
    }
    auto* editor = qobject_cast<QWidget*>(watched);
    if (editor != nullptr && event->type() == QEvent::KeyPress) {
        switch (static_cast<const QKeyEvent*>(event)->key()) {
        case Qt::Key_Tab: Leave(*editor, 1); return true;
        case Qt::Key_Backtab: Leave(*editor, -1); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: Leave(*editor, 0); return true;
        default: break;
        }
    }
    return cEntryDelegate::eventFilter(watched, event);
}
