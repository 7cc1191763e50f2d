#pragma once

class cCamera;

// The grid of the budget over the example household, with its report and its chart.
[[nodiscard]] bool TakeBudget(cCamera& camera);
