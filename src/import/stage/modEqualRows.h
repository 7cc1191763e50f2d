#pragma once

#include "import/stage/cRepeat.h"
#include "model/bank/cBankBalance.h"

#include <QString>

#include <functional>

class cFetchMemory;
class cStaging;
struct cImportResult;
struct cStatementRead;

// The operation of staging takes one of several equal rows, because it cannot know whether the others are real. A file
// knows better: it has each transaction as often as the bank has it.
namespace modEqualRows {

// Moves into result.Repeats what was left out as known although the source has more of it than the book. Of a source
// that consists of several files, which may overlap, the file that has most of it counts. What an earlier fetch brought
// and the user deleted goes to result.Deleted.
void Find(const cStatementRead& read, cStaging& staging, const cFetchMemory* memory, cImportResult& result);

// What the balances of the bank say about a repeat.
enum class eProof { None, Real, Wrong };

// One verdict for each: Real where the staged rows only lead from balance to balance with it, Wrong where they only do
// without it.
using fnBalances = std::function<cBankBalanceList(const QString& account)>;
[[nodiscard]] QList<eProof> Prove(const cRepeatList& repeats, const cImportEntryList& staged,
                                  const fnBalances& balances);

// Removes from the repeats of several files what another one of them has brought meanwhile, or leaves open as well.
void Settle(QList<cImportResult>& results, cStaging& staging);

} // namespace modEqualRows
