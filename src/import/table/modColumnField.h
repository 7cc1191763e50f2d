#pragma once

#include <QStringList>

struct cColumnMap;

// What a column can hold, by the names that people write.
namespace modColumnField {

// "datum", "art", …, "zweck", "zweck2", "zweck3".
[[nodiscard]] QStringList Names();

// Where the map keeps the column; null when there is none of that name. Any case.
[[nodiscard]] int* PlaceOf(cColumnMap& map, const QString& name);

} // namespace modColumnField
