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

// Saved views as one text, in the fields of modViewRecord. The five switches are digits.
namespace modSavedView {

[[nodiscard]] QString ToText(const QList<cSavedView>& views);

// What cannot be read is left out.
[[nodiscard]] QList<cSavedView> FromText(const QString& text);

} // namespace modSavedView
