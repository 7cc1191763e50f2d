#pragma once

#include "model/cLimits.h"

class cDataAccess;
class cSettings;

// The limits as the open book has them.
namespace modLimits {

// The budget that the settings keep for a category path.
[[nodiscard]] cBudget BudgetOf(const cSettings& settings, const QString& path);
// Stores it; one that says nothing is removed. False when the database refuses.
[[nodiscard]] bool Store(cSettings& settings, const QString& path, const cBudget& budget);

// The limits of these categories. What is carried over is right for periods that begin up to the month of `start`;
// reads entries only where something is.
[[nodiscard]] cLimits Read(cDataAccess& data, const cSettings& settings, const cTemplateItemList& templates,
                           QDate start);

// What has to be known of sums of spending beside limits.
[[nodiscard]] QString SumNote();

// The budget goes along with a category that gets another path, and goes when its category does. One that the new path
// has already stays, like all else of it. False when the database refuses.
[[nodiscard]] bool Move(cSettings& settings, const QString& oldPath, const QString& newPath);
[[nodiscard]] bool Remove(cSettings& settings, const QString& path);

} // namespace modLimits
