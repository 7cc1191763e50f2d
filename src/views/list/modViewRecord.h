#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class cSettings;

// The views that are kept under a name, as the fields of which their setting consists: views joined by ";", their
// fields by "|", each field percent-encoded.
namespace modViewRecord {

enum eField {
    Name,
    Period,
    FirstDay,
    LastDay,
    Account,
    Type,
    Grouping,
    Filter,
    Switches,
    Columns,
    FieldCount,
    Payer = FieldCount,
    Page // empty: the entry list
};
// Older programs wrote the fields before FieldCount.

// What cannot be read is left out. Fields that a later version adds behind these stay.
[[nodiscard]] QList<QStringList> FromText(const QString& text);
[[nodiscard]] QString ToText(const QList<QStringList>& views);

// The stored views that show what has this name in the field show what has the other. False when they cannot be stored.
[[nodiscard]] bool Follow(cSettings& settings, eField field, const QString& oldName, const QString& newName);

} // namespace modViewRecord
