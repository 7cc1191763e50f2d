#pragma once

#include <QHash>
#include <QList>

#include <functional>

class cBooking;
class cDataAccess;
class cProgress;
struct cBookingResult;
struct cProposal;

// Staged rows into the book as one step of the user.
namespace modRowBooking {

// What the rows are to become. It is asked within the step, so that accounts that are assigned on the way belong to it.
using fnProposals = std::function<QHash<int, cProposal>()>;

[[nodiscard]] cBookingResult Book(cDataAccess& data, cBooking& booking, const QList<int>& rowIds,
                                  const fnProposals& proposals, cProgress& progress);

} // namespace modRowBooking
