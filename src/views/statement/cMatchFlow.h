#pragma once

#include "views/statement/cCorrectionFlow.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cAccountMap;
class cBooking;
class cImportHiveCache;
class cProgress;
class cRowProposals;
struct cBookTools;
struct cMatch;
struct cMatchCandidate;
struct cMatchResult;

// Bank transactions and the entries that are in the book already: finds what belongs together, assigns and releases.
class cMatchFlow
{
public:
    // What the flow works with beside the tools; all of it outlives the flow.
    struct cParts
    {
        cImportHiveCache& Hive;
        const cAccountMap& Accounts;
        cBooking& Booking;
        cRowProposals& Proposals;
    };

    // What came of an action, in words.
    struct cOutcome
    {
        QStringList Lines;
        bool IsDone = false;       // false: nothing was changed
        bool HasCorrected = false; // entries got another day or amount, so the book itself is another one
        std::shared_ptr<const cMatchResult> Matches{}; // of Match that was done: what goes together, in full
    };

    cMatchFlow(const cBookTools& tools, const cParts& parts);

    // Of a step that could not be written.
    [[nodiscard]] static cOutcome NothingDone();

    // Assigns each open row of the list to the entry that certainly belongs to it, and brings these in line. All of it
    // is one step of the user.
    [[nodiscard]] cOutcome Match(const QList<int>& rowIds, cProgress& progress);

    // Assigns one row to one of its candidates, which may have other rows, and brings that in line with it.
    [[nodiscard]] cOutcome Assign(int rowId, const cMatchCandidate& candidate);

    // Sets assigned rows back to open; their entries stay. Open ones are passed over.
    [[nodiscard]] cOutcome Release(const QList<int>& rowIds);

    // Assigns a row to the entry that the user has made of its proposal, within a step of the caller, and with it the
    // other row of a transfer (0: none) while the entry still is that transfer: else that row's money is in no entry
    // yet. False when the database refuses.
    [[nodiscard]] bool AssignSaved(int rowId, int partnerId, int entryId);

    // Assigns rows to the entries that they belong to, within a step of the caller. False when the database refuses.
    [[nodiscard]] bool AssignRows(const QList<cMatch>& matches);
    // Brings the entries of rows that were assigned in line with these, see cCorrectionFlow.
    [[nodiscard]] std::optional<cCorrectionFlow::cDone> Correct(const QList<cMatch>& matches);
    // What was assigned, one line each, as far as it is worth saying.
    [[nodiscard]] QStringList AssignedLines(const QList<cMatch>& matches);

    // What goes together, from the plans of the rows; nothing is written. Empty when the user stops it.
    [[nodiscard]] std::optional<cMatchResult> Find(const QList<int>& rowIds, cProgress& progress);

    [[nodiscard]] const cBookTools& Tools() const { return m_tools; }
    [[nodiscard]] const cParts& Parts() const { return m_parts; }

private:
    [[nodiscard]] QStringList Lines(const cMatchResult& result, const cCorrectionFlow::cDone& corrected);

    const cBookTools& m_tools;
    cParts m_parts;
};
