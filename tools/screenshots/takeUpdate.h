#pragma once

class cCamera;

// What the maker answers to the question for a new version.
[[nodiscard]] bool TakeUpdate(cCamera& camera);
