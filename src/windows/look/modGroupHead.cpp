#include "windows/look/modGroupHead.h"

#include "windows/look/modLook.h"

#include <QItemSelectionModel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStyleOptionViewItem>
#include <QTreeView>

namespace {

void PaintFocus(const QTreeView& view, QPainter& painter, const QStyleOptionViewItem& option, bool isSelected)
{
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = option.rect;
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.state.setFlag(QStyle::State_Selected, isSelected);
    focus.backgroundColor = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Window);
    view.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, &view);
}

} // namespace

QRect modGroupHead::ArrowIn(const QRect& line)
{
    return {line.left() + 2, line.top(), line.height(), line.height()};
}

void modGroupHead::Paint(const QTreeView& view, QPainter& painter, const QStyleOptionViewItem& option,
                         const QModelIndex& head, int sumColumn)
{
    const QRect line = option.rect;
    const bool isSelected = view.selectionModel()->isSelected(head);
    painter.fillRect(line, isSelected ? option.palette.highlight() : option.palette.window());
    QStyleOption arrow;
    arrow.rect = ArrowIn(line);
    arrow.palette = option.palette;
    arrow.state = QStyle::State_Enabled;
    arrow.state.setFlag(QStyle::State_Selected, isSelected);
    const QStyle::PrimitiveElement shape =
        view.isExpanded(head) ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight;
    view.style()->drawPrimitive(shape, &arrow, &painter, &view);
    QFont font = option.font;
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::WindowText));
    // A sum that is wider than its column takes room from the name: without its sign it would be another one.
    const QString sum = head.siblingAtColumn(sumColumn).data().toString();
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1; // as cells have it
    const int sumRight = view.columnViewportPosition(sumColumn) + view.columnWidth(sumColumn) - margin;
    const int sumLeft = sumRight - qMax(view.columnWidth(sumColumn) - 6, painter.fontMetrics().horizontalAdvance(sum));
    painter.drawText(QRect(sumLeft, line.top(), sumRight - sumLeft, line.height()), Qt::AlignRight | Qt::AlignVCenter,
                     sum);
    int left = arrow.rect.right() + 4;
    if (const auto look = head.data(cCategoryLooks::Role).value<cCategoryLook>(); look != cCategoryLook{}) {
        const int side = option.fontMetrics.height();
        const QRect place(left, line.top() + (line.height() - side) / 2, side, side);
        modLook::Icon(look).paint(&painter, place, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
        left = place.right() + 4;
    }
    const int width = sumLeft > left ? sumLeft - left - 8 : line.right() - left;
    const QString name = painter.fontMetrics().elidedText(head.data().toString(), Qt::ElideRight, width);
    painter.drawText(QRect(left, line.top(), width, line.height()), Qt::AlignLeft | Qt::AlignVCenter, name);
    if (view.hasFocus() && view.currentIndex().siblingAtColumn(0) == head) {
        PaintFocus(view, painter, option, isSelected);
    }
}
