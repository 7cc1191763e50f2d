#pragma once

#include <QList>

class cDataAccess;

// Entries whose category the user changed after they were booked. What was decided last is what counts for the next
// transaction, and no date of an entry says when that was.
namespace modCorrected {

// Notes it as the newest one, within the caller's undo step. False when the database refuses.
[[nodiscard]] bool Note(cDataAccess& data, int entryId);

// The IDs, the newest last.
[[nodiscard]] QList<int> Load(cDataAccess& data);

} // namespace modCorrected
