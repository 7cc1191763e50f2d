#include "views/statement/modRowBooking.h"

#include "base/cText.h"
#include "import/propose/cBooking.h"
#include "store/cUndoStep.h"
#include "views/statement/modImportText.h"

cBookingResult modRowBooking::Book(cDataAccess& data, cBooking& booking, const QList<int>& rowIds,
                                   const fnProposals& proposals, cProgress& progress)
{
    const cUndoStep step(data, cText::Tr("{0} gebucht", {modImportText::Count(static_cast<int>(rowIds.size()))}));
    const QHash<int, cProposal> wanted = proposals();
    return booking.Book(rowIds, wanted, progress);
}
