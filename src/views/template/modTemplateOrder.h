#pragma once

#include "model/cTemplateItem.h"

#include <QString>
#include <QStringList>

// The order of categories or accounts, and what changes in it. All lists are of one type and in order.
namespace modTemplateOrder {

enum class eWay { Up, Down };

[[nodiscard]] cTemplateItemList OfType(const cTemplateItemList& items, const QString& type);

// Main categories, or groups of accounts.
[[nodiscard]] QStringList Groups(const cTemplateItemList& ordered);

// True when the main category has more than itself.
[[nodiscard]] bool HasSubs(const cTemplateItemList& items, const QString& main);

// The list with one item a place further among its siblings, or one group as a whole. The same list when it stands at
// the end already, or is the main category itself, which always comes first.
[[nodiscard]] cTemplateItemList MoveItem(const cTemplateItemList& ordered, int id, eWay way);
[[nodiscard]] cTemplateItemList MoveGroup(const cTemplateItemList& ordered, const QString& group, eWay way);

// The items of `after` whose stored position has to change, with it. The positions in use are dealt out anew; only
// where some of them are equal, everything is numbered from the start.
[[nodiscard]] cTemplateItemList Renumbered(const cTemplateItemList& before, const cTemplateItemList& after);

} // namespace modTemplateOrder
