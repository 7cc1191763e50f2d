#include "views/statement/modRowBooking.h"

#include "base/cText.h"
#include "import/propose/cBooking.h"
#include "store/cUndoStep.h"
#include "views/statement/modImportText.h"

cBookingResult modRowBooking::Book(cDataAccess& data, cBooking& booking, const QList<int>& rowIds,
                                   const fnProposals& proposals, cProgress& progress)
{
    cUndoStep step(data, cText::Tr("{0} gebucht", {modImportText::Count(static_cast<int>(rowIds.size()))}));
    const QHash<int, cProposal> wanted = proposals();
    const cBookingResult result = booking.Book(rowIds, wanted, progress);
    return result.Failed == 0 && step.Done() ? result : cBookingResult::Nothing(rowIds.size());
}
