#pragma once

#include "import/propose/modKeywordRules.h"
#include "model/cProposal.h"

#include <functional>
#include <memory>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;
struct cImportEntry;

// Proposes entries for staged rows: by the user's own rules, from what the user did with earlier rows of the same
// payee, from the keyword rules, from the list of payees, and finally a default. Cash goes to the purse. What it knows
// of the book is read once, when it is made: make one per batch.
class cProposer
{
public:
    // `isDouble`: whether a row, by its ID, is booked already in the words of another file. It is no side of a
    // transfer.
    cProposer(
        cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts,
        std::function<bool(int)> isDouble = [](int) { return false; });
    ~cProposer();
    cProposer(const cProposer&) = delete;
    cProposer& operator=(const cProposer&) = delete;

    // Whether money comes or goes is known of a row, which leaves the keywords that are part of many words ("bar",
    // "auto") for those of which nothing else is known: a surer rule goes before them. Restricted, the program knows no
    // more than the sure rules, and what they do not know stays without a category.
    [[nodiscard]] cProposal Propose(const cImportEntry& row, eRestriction restriction = eRestriction::None);

private:
    struct cKnowledge;

    std::unique_ptr<cKnowledge> m_knowledge;
};
