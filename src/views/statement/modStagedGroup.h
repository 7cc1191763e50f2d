#pragma once

#include "model/cImportEntry.h"
#include "views/statement/cStagedSource.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// Gathering bank transactions.
namespace modStagedGroup {

enum class eGrouping { None, Counterparty, Day, Plan, Category };

// Whether the groups hang on what each row is to become.
[[nodiscard]] inline bool NeedsPlan(eGrouping grouping)
{
    return grouping == eGrouping::Plan || grouping == eGrouping::Category;
}

// The groups as the user sees them, in the order of their values, and the words they are stored under.
[[nodiscard]] QStringList Shown();
[[nodiscard]] QString Stored(eGrouping grouping);
[[nodiscard]] eGrouping FromStored(const QString& word); // what is to be done, for other words

// The groups of a list: a number by place in `shown`, upwards in the order of the groups, and their names by number.
struct cGroups
{
    std::vector<qint64> Numbers; // empty without grouping
    QStringList Names;
};
// What is known of a row beyond itself.
struct cKnowledge
{
    std::function<eStagedGroup(const cImportEntry&)> PlanOf; // what is to be done with it
    std::function<QString(const cImportEntry&)> CategoryOf;  // asked where the first says that it is known
};
[[nodiscard]] cGroups Gather(const cImportEntryList& rows, const std::vector<int>& shown, eGrouping grouping,
                             const cKnowledge& known);

} // namespace modStagedGroup
