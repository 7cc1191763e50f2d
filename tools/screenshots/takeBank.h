#pragma once

class cCamera;

// What a bank asks its customer: PIN, TAN in every way, approval; and the log.
[[nodiscard]] bool TakeBank(cCamera& camera);
