#pragma once

#include <QStyledItemDelegate>

// Cells of a list whose rows are all of one height. Asking the font once per row keeps long lists quick, and texts that
// are too long are cut instead of scrolled sideways.
class cRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] static int RowHeight(const QFontMetrics& metrics) { return metrics.height() + 8; }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    // In a field in which nothing was typed or chosen undo and redo mean the book, whether the user or the list has
    // opened it. Whoever sets what the user meant marks the text as modified.
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] static bool IsForBook(QObject& field, const QEvent& event);

    // The colour of an amount: `tone` holds an eMoneyTone.
    static void SetTone(QStyleOptionViewItem& option, const QVariant& tone);
};
