#include "windows/widget/cFlowLayout.h"

#include <QBoxLayout>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

bool WantsMore(const QLayoutItem& item)
{
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

int Height(const QList<QLayoutItem*>& line)
{
    int height = 0;
    for (const QLayoutItem* item : line) {
        height = std::max(height, item->sizeHint().height());
    }
    return height;
}

} // namespace

void cFlowLayout::AddField(QWidget* label, QWidget* field)
{
    auto* pair = new QHBoxLayout;
    pair->setContentsMargins(0, 0, 0, 0);
    pair->addWidget(label);
    pair->addWidget(field);
    addChildLayout(pair);
    addItem(pair);
}

void cFlowLayout::AddStretch()
{
    addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
}

void cFlowLayout::AddGap(int width)
{
    addItem(new QSpacerItem(width, 0, QSizePolicy::Fixed));
}

int cFlowLayout::Gap(const QLayoutItem& item) const
{
    return const_cast<QLayoutItem&>(item).spacerItem() != nullptr ? 0 : spacing();
}

int cFlowLayout::Width(const cLine& line) const
{
    int width = 0;
    for (const QLayoutItem* item : line) {
        width += (item == line.constFirst() ? 0 : Gap(*item)) + item->sizeHint().width();
    }
    return width;
}

QList<cFlowLayout::cLine> cFlowLayout::Lines(int width) const
{
    QList<cLine> lines;
    const QList<QLayoutItem*> items = Shown();
    for (QLayoutItem* item : items) {
        const bool isFirst = lines.isEmpty();
        const cLine longer = isFirst ? cLine{item} : lines.constLast() + cLine{item};
        if (!isFirst && Width(longer) <= width) {
            lines.last() = longer;
        } else if (isFirst || item->spacerItem() == nullptr || WantsMore(*item)) {
            lines.append(cLine{item}); // a gap between two lines is none
        }
    }
    for (cLine& line : lines) {
        if (line.constLast()->spacerItem() != nullptr && !WantsMore(*line.constLast())) {
            line.removeLast();
        }
    }
    return lines;
}

int cFlowLayout::Arrange(const QRect& place, eArrange arrange) const
{
    int top = place.top();
    const QList<cLine> lines = Lines(place.width());
    bool isBehindStretch = false;
    for (const cLine& line : lines) {
        const int height = Height(line);
        if (arrange == eArrange::Place) {
            PlaceLine(line, QRect(place.left(), top, place.width(), height), isBehindStretch);
        }
        isBehindStretch = isBehindStretch || std::any_of(line.begin(), line.end(), [](QLayoutItem* item) {
                              return item->spacerItem() != nullptr && WantsMore(*item);
                          });
        top += height + spacing();
    }
    return lines.isEmpty() ? 0 : top - spacing() - place.top();
}

void cFlowLayout::PlaceLine(const cLine& line, const QRect& place, bool isBehindStretch) const
{
    const auto wanting =
        static_cast<int>(std::count_if(line.begin(), line.end(), [](const auto* item) { return WantsMore(*item); }));
    const int left = std::max(0, place.width() - Width(line));
    int x = place.left() + (isBehindStretch && wanting == 0 ? left : 0);
    for (QLayoutItem* item : line) {
        x += item == line.constFirst() ? 0 : Gap(*item);
        const int more = WantsMore(*item) ? left / wanting : 0;
        const int width = std::min(item->sizeHint().width() + more, place.width());
        item->setGeometry(
            QStyle::visualRect(parentWidget()->layoutDirection(), place, QRect(x, place.top(), width, place.height())));
        x += width;
    }
}

QSize cFlowLayout::WantedSize() const
{
    const QList<QLayoutItem*> items = Shown();
    return {Width(items), Height(items)};
}

QSize cFlowLayout::LeastSize() const
{
    QSize least;
    const QList<QLayoutItem*> items = Shown();
    for (const QLayoutItem* item : items) {
        least = least.expandedTo(item->minimumSize());
    }
    return least;
}
