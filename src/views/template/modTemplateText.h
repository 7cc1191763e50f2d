#pragma once

#include "model/cTemplateItem.h"

#include <QString>

// Words about categories and accounts that several places say.
namespace modTemplateText {

// "1 Buchung", "7 Buchungen"
[[nodiscard]] QString Entries(int count);

// A path for display; entries may have an empty one.
[[nodiscard]] QString ShownPath(const QString& path);

// What is special about a category or an account: that it is hidden, closed, or has no definition; empty for none.
[[nodiscard]] QString State(const cTemplateItem& item);

// The category that start balances are found by: it can be neither renamed nor removed.
[[nodiscard]] bool IsProtected(const QString& path);
[[nodiscard]] QString ProtectedHint();

} // namespace modTemplateText
