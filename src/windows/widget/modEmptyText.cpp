#include "windows/widget/modEmptyText.h"

#include "windows/look/modTone.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QWidget>

namespace {

void Tell(QAbstractItemView& list, const QString& text)
{
    if (list.accessibleDescription() == text) {
        return;
    }
    list.setAccessibleDescription(text);
    const auto forget = [&list] { list.setAccessibleDescription({}); };
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &list, forget, Qt::SingleShotConnection);
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &list, forget, Qt::SingleShotConnection);
}

} // namespace

void modEmptyText::Paint(QWidget& widget, const QString& title, const QString& hint)
{
    if (auto* list = qobject_cast<QAbstractItemView*>(widget.parentWidget())) {
        Tell(*list, title + u'\n' + hint);
    }
    QPainter painter(&widget);
    painter.setPen(modTone::Quiet(widget.palette()));
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    const int wanted = widget.fontMetrics().averageCharWidth() * 60;
    const int width = qMin(wanted, widget.width() - 24);
    const int middle = widget.height() / 2;
    const int left = (widget.width() - width) / 2;
    painter.setFont(font);
    painter.drawText(QRect(left, 0, width, middle - 6), Qt::AlignHCenter | Qt::AlignBottom, title);
    painter.setFont(widget.font());
    painter.drawText(QRect(left, middle + 6, width, widget.height() - middle - 6),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint);
}
