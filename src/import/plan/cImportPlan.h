#pragma once

#include "import/plan/modStagedTwins.h"
#include "model/cImportEntry.h"
#include "model/cRowPlan.h"

#include <QHash>
#include <QList>

#include <functional>
#include <memory>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;
class cMatcher;
class cProgress;
struct cMatchResult;

// What is to become of open bank transactions, in one pass and in this order: rows that may be there twice, transfers
// between own accounts, entries and occurrences that are in the book, series known from earlier rows, and only then a
// new entry as the proposer has it. Nothing is written. It reads the book when it is first asked: make one per state of
// book and rows.
class cImportPlan
{
public:
    struct cParts
    {
        cDataAccess& Data;
        cImportHiveCache& Hive;
        const cAccountMap& Accounts;
        std::function<modStagedTwins::cFile(int)> FileOf; // by the ID of a row
    };

    explicit cImportPlan(const cParts& parts);
    ~cImportPlan();
    cImportPlan(const cImportPlan&) = delete;
    cImportPlan& operator=(const cImportPlan&) = delete;

    // By row ID, the open ones of the rows. An entry goes to the row that it fits best, also when that is a neighbour
    // that was not asked for. Empty when the user stops it.
    [[nodiscard]] QHash<int, cRowPlan> Make(const QList<int>& rowIds, cProgress& progress);

    // The open rows in the order of their days, by place.
    [[nodiscard]] qsizetype OpenCount() const;
    [[nodiscard]] int IdAt(qsizetype place) const;
    [[nodiscard]] QList<int> From(qsizetype place, qsizetype count) const;
    // Up to `count` of them around this one, itself among them.
    [[nodiscard]] QList<int> Around(int rowId, qsizetype count) const;

private:
    struct cKnowledge;
    struct cPass;

    [[nodiscard]] QList<int> WithNeighbours(const QList<int>& rowIds);
    [[nodiscard]] const cProposal& ProposalFor(const cImportEntry& row);
    void TakeMatches(const cMatchResult& matches, cPass& pass);
    static void TakeSeries(const cImportEntry& row, cRowPlan& plan, cPass& pass, cMatcher& matcher);
    [[nodiscard]] static bool IsCrosswise(const cRowPlan& plan, const cRowPlan& other, const cPass& pass);
    [[nodiscard]] static bool IsMatched(int entry, const cPass& pass);
    void MakeSpent(const cImportEntry& row, cRowPlan& plan, const QString& reason) const;
    void TakeTransfer(const cImportEntry& row, cRowPlan& plan, const cPass& pass);
    void TakeTwin(cRowPlan& plan, const cPass& pass);

    std::unique_ptr<cKnowledge> m_knowledge;
};
