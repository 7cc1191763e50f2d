#pragma once

class cCamera;

// The entry list as a spreadsheet: a cell that is typed, many entries at once, the field for a day.
[[nodiscard]] bool TakeSheet(cCamera& camera);
