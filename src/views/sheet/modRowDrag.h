#pragma once

#include "views/list/cEntryListModel.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Lines of an entry list on their way to another place of the program.
namespace modRowDrag {

inline const QString Format = QStringLiteral("application/x-kontorelle-zeilen");

[[nodiscard]] QByteArray ToBytes(const QList<cEntryListModel::cKey>& rows);
[[nodiscard]] QList<cEntryListModel::cKey> FromBytes(const QByteArray& bytes); // what cannot be read is left out

} // namespace modRowDrag
