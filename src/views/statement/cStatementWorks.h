#pragma once

#include "views/ledger/cImportRuns.h"
#include "views/statement/cMatchFlow.h"
#include "views/statement/cPlanFlow.h"
#include "views/statement/cRowProposals.h"
#include "views/statement/cStatementFiles.h"

#include <memory>

class cAccountMap;
class cBooking;
class cImportHiveCache;
struct cBookTools;

// The tools of the import floor over one book. What its files bring is noted as their import before anybody else hears
// of it.
struct cStatementWorks
{
    explicit cStatementWorks(const cBookTools& tools); // outlive the works
    ~cStatementWorks();
    cStatementWorks(const cStatementWorks&) = delete;
    cStatementWorks& operator=(const cStatementWorks&) = delete;

private:
    struct cImport;
    std::unique_ptr<cImport> m_import;

public:
    cImportHiveCache& Hive;
    cAccountMap& Accounts;
    cBooking& Booking;
    cImportRuns Runs;
    cRowProposals Proposals;
    cMatchFlow Matching;
    cPlanFlow Plan;
    cStatementFiles Files;
};
