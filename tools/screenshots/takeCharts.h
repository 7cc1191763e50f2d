#pragma once

class cCamera;

// Money flow, calendar, net worth and limits, and the line of the status bar that reminds.
[[nodiscard]] bool TakeMoreCharts(cCamera& camera);
