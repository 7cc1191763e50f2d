#pragma once

#include "views/main/cViewState.h"

#include <QList>
#include <QString>

#include <optional>

// What the list of bank transactions shows, as it is chosen above it.
struct cSavedReview
{
    bool OpenOnly = false;
    bool UncategorisedOnly = false;
    bool HidesOld = false;
    QString Grouping; // stored word of modStagedGroup
    QString Filter;
};

// A view under a name: what the selectors choose, the switches, and the columns with their sorting; of the entry list,
// or of the list of bank transactions.
struct cSavedView
{
    QString Name{};
    cViewState View{};
    QString Columns{};                    // as cListLayout writes it
    std::optional<cSavedReview> Review{}; // then View says nothing
};

// Saved views as one text, in the fields of modViewRecord. The switches are digits.
namespace modSavedView {

[[nodiscard]] QString ToText(const QList<cSavedView>& views);

// What cannot be read is left out.
[[nodiscard]] QList<cSavedView> FromText(const QString& text);

} // namespace modSavedView
