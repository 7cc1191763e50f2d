#pragma once

class cCamera;

// Tags in the list and in the statistics, and what belongs to a household of several.
[[nodiscard]] bool TakePeople(cCamera& camera);
