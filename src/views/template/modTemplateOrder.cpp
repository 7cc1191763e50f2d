#include "views/template/modTemplateOrder.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int stepWidth = 10; // between two positions

cTemplateItemList OfGroup(const cTemplateItemList& ordered, const QString& group)
{
    cTemplateItemList items;
    std::copy_if(ordered.begin(), ordered.end(), std::back_inserter(items),
                 [&](const cTemplateItem& item) { return modTemplate::GroupOf(item) == group; });
    return items;
}

bool IsMainItself(const cTemplateItem& item)
{
    return !modTemplate::IsAccount(item) && modTemplate::SubOf(modTemplate::Path(item)).isEmpty();
}

// Swaps a place with its neighbour; false at the end.
template <typename tList>
bool Swap(tList& list, qsizetype place, modTemplateOrder::eWay way)
{
    const qsizetype other = way == modTemplateOrder::eWay::Up ? place - 1 : place + 1;
    if (place < 0 || other < 0 || other >= list.size()) {
        return false;
    }
    list.swapItemsAt(place, other);
    return true;
}

} // namespace

cTemplateItemList modTemplateOrder::OfType(const cTemplateItemList& items, const QString& type)
{
    cTemplateItemList found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found),
                 [&](const cTemplateItem& item) { return item.TemplateType == type; });
    return modTemplate::InOrder(found);
}

QStringList modTemplateOrder::Groups(const cTemplateItemList& ordered)
{
    QStringList groups;
    for (const cTemplateItem& item : ordered) {
        groups.append(modTemplate::GroupOf(item));
    }
    groups.removeDuplicates();
    return groups;
}

bool modTemplateOrder::HasSubs(const cTemplateItemList& items, const QString& main)
{
    return std::any_of(items.begin(), items.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == main && !IsMainItself(item);
    });
}

cTemplateItemList modTemplateOrder::MoveItem(const cTemplateItemList& ordered, int id, eWay way)
{
    cTemplateItemList moved = ordered;
    const auto found =
        std::find_if(moved.begin(), moved.end(), [id](const cTemplateItem& item) { return item.ID == id; });
    const qsizetype place = found == moved.end() ? -1 : std::distance(moved.begin(), found);
    const QString group = place < 0 ? QString() : modTemplate::GroupOf(moved[place]);
    if (place < 0 || IsMainItself(moved[place]) || !Swap(moved, place, way)) {
        return ordered;
    }
    const cTemplateItem& other = ordered[way == eWay::Up ? place - 1 : place + 1];
    return modTemplate::GroupOf(other) != group || IsMainItself(other) ? ordered : moved;
}

cTemplateItemList modTemplateOrder::MoveGroup(const cTemplateItemList& ordered, const QString& group, eWay way)
{
    QStringList groups = Groups(ordered);
    if (!Swap(groups, groups.indexOf(group), way)) {
        return ordered;
    }
    cTemplateItemList moved;
    for (const QString& each : std::as_const(groups)) {
        moved += OfGroup(ordered, each);
    }
    return moved;
}

cTemplateItemList modTemplateOrder::Renumbered(const cTemplateItemList& before, const cTemplateItemList& after)
{
    QList<int> positions;
    for (const cTemplateItem& item : before) {
        positions.append(modTemplate::Priority(item));
    }
    std::sort(positions.begin(), positions.end());
    const bool isUnique = std::adjacent_find(positions.begin(), positions.end()) == positions.end();
    cTemplateItemList changed;
    for (qsizetype i = 0; i < after.size(); ++i) {
        const int position = isUnique ? positions[i] : static_cast<int>(i + 1) * stepWidth;
        if (modTemplate::Priority(after[i]) != position) {
            changed.append(after[i]);
            changed.last().TemplatePriority = QString::number(position);
        }
    }
    return changed;
}
