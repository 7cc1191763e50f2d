#pragma once

#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "views/statement/cImportRuns.h"
#include "views/statement/cMatchFlow.h"
#include "views/statement/cPlanFlow.h"
#include "views/statement/cRowProposals.h"
#include "views/statement/cStatementFiles.h"

struct cBookTools;

// The tools of the import floor over one book. What its files bring is noted as their import before anybody else hears
// of it.
struct cStatementWorks
{
    explicit cStatementWorks(const cBookTools& tools); // outlive the works

    cImportHiveCache Hive;
    cAccountMap Accounts;
    cBooking Booking;
    cImportRuns Runs;
    cRowProposals Proposals;
    cMatchFlow Matching;
    cPlanFlow Plan;
    cStatementFiles Files;
};
