#pragma once

#include "model/cImportEntry.h"
#include "model/cMatch.h"
#include "model/cProposal.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;
class cMatchIndex;
class cProgress;

enum class eMatchRun { Try, Write };
enum class eCandidates { Likely, All }; // All: every entry of the same direction in those days

// Finds the entries of the book that staged rows belong to, see modMatchScore. What it knows of the book is read when
// it is first needed: make one per question or batch.
class cMatcher
{
public:
    // Where a row's proposal comes from that is known already; without it the matcher makes its own.
    using fnPropose = std::function<cProposal(const cImportEntry&)>;

    cMatcher(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts, fnPropose propose = {});
    ~cMatcher();
    cMatcher(const cMatcher&) = delete;
    cMatcher& operator=(const cMatcher&) = delete;

    // The entries that the row may belong to, best first, also those that other rows have. Empty when the row's account
    // number has no account, or the row is gone.
    [[nodiscard]] QList<cMatchCandidate> Candidates(int rowId, eCandidates which = eCandidates::Likely);

    // What it means to assign the row to an entry by hand: of a series the occurrence nearest to the row, with a
    // correction offered when the amount differs. Score and reason stay empty. Empty when row or entry are gone, or
    // when the series has no occurrence near the row.
    [[nodiscard]] std::optional<cMatchCandidate> ByHand(int rowId, int entryId);

    // Gives each open row of the list the best entry that is left; an entry gets one row. Assigns what is certain, in
    // Write only, and proposes what is likely. Corrections are offered, not written. It stops at the first row that the
    // database refuses.
    [[nodiscard]] cMatchResult MatchAll(const QList<int>& rowIds, cProgress& progress, eMatchRun run);

private:
    struct cKnowledge;
    enum class eWanted { Free, Likely, All }; // Free: likely, and no other row has it
    // A row and an item of its account's index that go together.
    struct cPair
    {
        size_t Row = 0; // place in the batch
        size_t Item = 0;
        cMatchIndex* Index = nullptr;
        double Score = 0.0;
        qint64 Days = 0;
        QString Reason;
    };

    [[nodiscard]] static bool IsBetter(const cPair& a, const cPair& b);
    [[nodiscard]] cMatchIndex* IndexFor(const cImportEntry& row);
    void ReadIndexes(const std::vector<cImportEntry>& rows);
    [[nodiscard]] std::vector<cPair> PairsOf(const cImportEntry& row, size_t place, eWanted wanted);
    [[nodiscard]] cMatchCandidate CandidateOf(const cPair& pair, const cImportEntry& row) const;
    [[nodiscard]] std::vector<cImportEntry> OpenRows(const QList<int>& rowIds, cMatchResult& result);
    void Distribute(std::vector<cPair> pairs, const std::vector<cImportEntry>& rows, cMatchResult& result);
    void Write(const std::vector<cImportEntry>& rows, cMatchResult& result);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    std::unique_ptr<cKnowledge> m_knowledge;
};
