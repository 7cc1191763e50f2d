#pragma once

#include "import/propose/modKeywordRules.h"
#include "model/cImportEntry.h"
#include "model/cProposal.h"

#include <memory>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;

// Proposes entries for staged rows: by the user's own rules, from what the user did with earlier rows of the same
// counterparty, from the keyword rules, and finally a default. What it knows of the book is read once, when it is made:
// make one per batch.
class cProposer
{
public:
    cProposer(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts);
    ~cProposer();
    cProposer(const cProposer&) = delete;
    cProposer& operator=(const cProposer&) = delete;

    [[nodiscard]] cProposal Propose(const cImportEntry& row, eRestriction restriction = eRestriction::None);

    // For rows that are to be booked. Whether money comes or goes is known of them, which leaves the keywords that are
    // part of many words ("bar", "auto") for those of which nothing else is known: a surer rule goes before them.
    [[nodiscard]] cProposal ProposeBest(const cImportEntry& row);

private:
    struct cKnowledge;
    std::unique_ptr<cKnowledge> m_knowledge;
};
