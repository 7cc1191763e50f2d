#include "windows/budget/cBudgetTable.h"

#include "base/cText.h"
#include "views/budget/cBudgetModel.h"
#include "windows/look/modLook.h"
#include "windows/look/modTone.h"
#include "windows/widget/cRowDelegate.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSortFilterProxyModel>

using namespace Qt::Literals::StringLiterals;

namespace {

QRect CheckRect(const QStyleOptionViewItem& option)
{
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    QStyleOptionButton box;
    const QSize size = style.subElementRect(QStyle::SE_CheckBoxIndicator, &box, option.widget).size();
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

class cCellDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QVariant check = index.data(Qt::CheckStateRole);
        cRowDelegate::paint(painter, option, index);
        if (!check.isValid()) {
            return;
        }
        QStyleOptionViewItem box(option);
        box.rect = CheckRect(option);
        box.state.setFlag(check.toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
        box.state.setFlag(QStyle::State_HasFocus, false);
        option.widget->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
    }

    // Wide enough for the sums, which are bold.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem bold(option);
        bold.font.setBold(true);
        bold.fontMetrics = QFontMetrics(bold.font);
        return cRowDelegate::sizeHint(bold, index);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override
    {
        auto* edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight);
        edit->setFrame(false);
        edit->setAccessibleName(index.model()->headerData(index.row(), Qt::Vertical).toString().trimmed() + u", "_s
                                + index.model()->headerData(index.column(), Qt::Horizontal).toString());
        return edit;
    }

    // A click anywhere in the cell, or the space bar.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override
    {
        const QVariant check = index.data(Qt::CheckStateRole);
        const bool isMeant = event->type() == QEvent::MouseButtonRelease
            || (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space);
        if (!check.isValid() || !isMeant || !index.flags().testFlag(Qt::ItemIsUserCheckable)) {
            return cRowDelegate::editorEvent(event, model, option, index);
        }
        return model->setData(index, check.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        cRowDelegate::initStyleOption(option, index);
        option->features.setFlag(QStyleOptionViewItem::HasCheckIndicator, false); // it is painted in the middle
        option->font.setBold(index.data(cBudgetModel::IsHeadRole).toBool());
        if (index.column() == cBudgetModel::Plain && !index.flags().testFlag(Qt::ItemIsEditable)) {
            QColor shade = option->palette.color(QPalette::Text); // as a field that cannot be used
            shade.setAlphaF(0.09F);
            option->backgroundBrush = shade;
        }
        const int tone = index.data(cBudgetModel::ToneRole).toInt();
        if (tone != cBudgetModel::Normal && !option->state.testFlag(QStyle::State_Selected)) {
            option->palette.setColor(QPalette::Text,
                                     tone == cBudgetModel::Bad ? modTone::Expense(option->palette)
                                                               : modTone::Quiet(option->palette));
        }
    }
};

// The categories or the sum, which is the model's last line, with the heads of sums in bold and the categories with
// their pictures: a model without widgets knows no fonts.
class cPart final : public QSortFilterProxyModel
{
public:
    cPart(cBudgetTable::ePart part, QObject* parent) : QSortFilterProxyModel(parent), m_part(part) {}

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Vertical && role == Qt::FontRole) {
            QFont font = QApplication::font();
            font.setBold(headerData(section, orientation, cBudgetModel::IsHeadRole).toBool());
            return font;
        }
        if (orientation == Qt::Vertical && role == Qt::DecorationRole) {
            const QVariant look = headerData(section, orientation, cCategoryLooks::Role);
            return look.isValid() && look.value<cCategoryLook>() != cCategoryLook{}
                ? QVariant(modLook::Icon(look.value<cCategoryLook>()))
                : QVariant();
        }
        return QSortFilterProxyModel::headerData(section, orientation, role);
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override
    {
        return (row == sourceModel()->rowCount() - 1) == (m_part == cBudgetTable::ePart::Sum);
    }

private:
    cBudgetTable::ePart m_part;
};

} // namespace

cBudgetTable::cBudgetTable(cBudgetModel& model, ePart part, QWidget* parent)
    : cTypedCells(parent),
      m_model(model),
      m_part(part),
      m_lines(new cPart(part, this))
{
    m_lines->setSourceModel(&model);
    setModel(m_lines);
    setItemDelegate(new cCellDelegate(this));
    setAccessibleName(part == ePart::Sum ? cText::Tr("Summe des Budgets") : cText::Tr("Budget"));
    setTabKeyNavigation(part == ePart::Categories); // a line to read is no way through all of its cells
    setFrameShape(NoFrame);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setSelectionMode(ContiguousSelection);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(cRowDelegate::RowHeight(fontMetrics()));
    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->setHighlightSections(true);
    verticalHeader()->setMaximumWidth(fontMetrics().averageCharWidth() * 32); // long names leave room for amounts
    horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeader()->setSectionsClickable(false);
}

int cBudgetTable::ContentWidth(int column) const
{
    const int least = fontMetrics().averageCharWidth() * 10;
    return std::max({sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column), least});
}

void cBudgetTable::SetHeadWidth(int width)
{
    verticalHeader()->setFixedWidth(width);
    updateGeometries();
}

void cBudgetTable::Begin()
{
    setCurrentIndex(m_lines->index(m_lines->rowCount() > 1 ? 1 : 0, 0));
}

QModelIndex cBudgetTable::Current() const
{
    return m_lines->mapToSource(currentIndex());
}

QModelIndexList cBudgetTable::Chosen() const
{
    QModelIndexList chosen;
    const QModelIndexList cells = selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : cells) {
        chosen.append(m_lines->mapToSource(cell));
    }
    return chosen;
}

void cBudgetTable::MoveDown()
{
    const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
    if (below.isValid()) {
        setCurrentIndex(below);
    }
}

void cBudgetTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(m_model.Copy(Chosen()));
    } else if (event->matches(QKeySequence::Paste)) {
        m_model.Paste(Current(), QApplication::clipboard()->text());
    } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        m_model.Clear(Chosen());
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (state() != EditingState) { // else the editor passes on the key that closes it
            MoveDown();
        }
    } else {
        QTableView::keyPressEvent(event);
    }
}

// Enter goes on to the next line, as in every table of amounts.
void cBudgetTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::SubmitModelCache) {
        MoveDown();
    }
}

// The sum is read in passing: where it has no focus, nothing of it looks chosen.
void cBudgetTable::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    if (m_part == ePart::Sum) {
        const QModelIndex cell = currentIndex().isValid() ? currentIndex() : m_lines->index(0, 0);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    }
}

void cBudgetTable::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    if (m_part == ePart::Sum) {
        clearSelection();
    }
}

// At its end the table is left as any other widget is. The item view's own answer would be the next cell.
// NOLINTBEGIN(bugprone-parent-virtual-call)
bool cBudgetTable::focusNextPrevChild(bool next)
{
    const bool isAtEnd = next
        ? currentIndex().row() == model()->rowCount() - 1 && currentIndex().column() == cBudgetModel::Year
        : currentIndex().row() <= 0 && currentIndex().column() <= 0;
    return isAtEnd ? QAbstractScrollArea::focusNextPrevChild(next) : QTableView::focusNextPrevChild(next);
}
// NOLINTEND(bugprone-parent-virtual-call)
