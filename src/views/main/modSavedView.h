#pragma once

#include "views/main/cViewState.h"

#include <QList>
#include <QString>

// A view under a name: what the selectors choose, the switches, and the columns with their sorting.
struct cSavedView
{
    QString Name;
    cViewState View;
    QString Columns; // as cListLayout writes it
};

// Saved views as one text: views joined by ";", their fields by "|", each field percent-encoded. The fields are name,
// period, first and last free day, account, kind, grouping, filter, the five switches as digits, columns, and
// who paid.
namespace modSavedView {

[[nodiscard]] QString ToText(const QList<cSavedView>& views);

// What cannot be read is left out. Fields that a later version adds behind these are passed over.
[[nodiscard]] QList<cSavedView> FromText(const QString& text);

} // namespace modSavedView
