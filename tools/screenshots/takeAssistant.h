#pragma once

class cCamera;

// A table that no bank's layout describes, as its owner finds it before the account is named, and with all columns
// chosen. False when the file could not be made.
[[nodiscard]] bool TakeAssistant(cCamera& camera);
