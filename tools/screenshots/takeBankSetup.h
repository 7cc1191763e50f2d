#pragma once

class cCamera;

// The set-up of a bank login, page by page, and the list of logins. False when the scene could not be made.
[[nodiscard]] bool TakeBankSetup(cCamera& camera);
