#pragma once

class cCamera;

// The receipts of an entry: none yet, an invoice, one whose file is missing.
[[nodiscard]] bool TakeReceipts(cCamera& camera);
