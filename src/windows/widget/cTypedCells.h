#pragma once

#include <QAbstractItemView>
#include <QKeyEvent>

// Says at the current cell that it takes no text, and why, where the cell knows that.
namespace modTypedCells {

void Refuse(const QAbstractItemView& view, const QRect& cell);

} // namespace modTypedCells

// A list or table in whose cells is typed at once. The item view's own answer to a key in a cell that takes no text is
// to go to another cell that begins like it, and the next key would then overwrite that one.
template <typename tView>
class cTypedCells : public tView
{
public:
    using tView::tView;

    void keyboardSearch(const QString& /*typed*/) override {}

protected:
    using tView::edit;

    bool edit(const QModelIndex& cell, QAbstractItemView::EditTrigger trigger, QEvent* event) override
    {
        if (tView::edit(cell, trigger, event)) {
            return true;
        }
        if (cell.flags().testFlag(Qt::ItemIsEditable)) {
            return false;
        }
        const bool isTyped = trigger == QAbstractItemView::AnyKeyPressed && event != nullptr
            && event->type() == QEvent::KeyPress // input methods ask as well
            && !static_cast<const QKeyEvent*>(event)->text().trimmed().isEmpty();
        if (isTyped || trigger == QAbstractItemView::EditKeyPressed) {
            modTypedCells::Refuse(*this, this->visualRect(cell));
        }
        return false;
    }
};
