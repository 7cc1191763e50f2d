#include "windows/widget/cTypedCells.h"

#include "base/cText.h"

#include <QToolTip>

void modTypedCells::Refuse(const QAbstractItemView& view, const QRect& cell)
{
    const QString why = view.currentIndex().data(Qt::ToolTipRole).toString();
    const QString text = cText::Tr("Hier kann nichts eingegeben werden.");
    QToolTip::showText(view.viewport()->mapToGlobal(cell.bottomLeft()), why.isEmpty() ? text : text + u'\n' + why,
                       view.viewport(), cell);
}
