#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The views that are kept under a name, as the fields of which their setting consists: views joined by ";", their
// fields by "|", each field percent-encoded.
namespace modViewRecord {

enum eField { Name, Period, FirstDay, LastDay, Account, Type, Grouping, Filter, Switches, Columns, FieldCount };

// What cannot be read is left out. Fields that a later version adds behind these stay.
[[nodiscard]] QList<QStringList> FromText(const QString& text);
[[nodiscard]] QString ToText(const QList<QStringList>& views);

// The views of one account show the other one.
[[nodiscard]] QString WithAccount(const QString& text, const QString& oldName, const QString& newName);

} // namespace modViewRecord
