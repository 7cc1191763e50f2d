#pragma once

#include "views/list/cEntryListModel.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Lines of an entry list on their way to another place of the program.
namespace modRowDrag {

inline const QString Format = QStringLiteral("application/x-kontorelle-zeilen");

// `shown`: the account by which their list shows them; empty for all accounts.
[[nodiscard]] QByteArray ToBytes(const QList<cEntryListModel::cKey>& rows, const QString& shown = {});
[[nodiscard]] QList<cEntryListModel::cKey> FromBytes(const QByteArray& bytes); // what cannot be read is left out
[[nodiscard]] QString ShownFromBytes(const QByteArray& bytes);

} // namespace modRowDrag
