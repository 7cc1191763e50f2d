#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cAccountMap;
class cBooking;
class cImportHiveCache;
class cProgress;
struct cBookTools;
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
    };

    // What came of an action, in words.
    struct cOutcome
    {
        QStringList Lines;
        bool IsDone = false;       // false: nothing was changed
        bool HasCorrected = false; // amounts of series were corrected, so the book itself is another one
        std::shared_ptr<const cMatchResult> Matches{}; // of Match that was done: what goes together, in full
    };

    cMatchFlow(const cBookTools& tools, const cParts& parts);

    // Of a step that could not be written.
    [[nodiscard]] static cOutcome NothingDone();

    // Assigns each open row of the list to the entry that certainly belongs to it, and offers to correct series whose
    // amount differs. All of it is one step of the user.
    [[nodiscard]] cOutcome Match(const QList<int>& rowIds, cProgress& progress);

    // Assigns one row to one of its candidates, which may have other rows; asks before it corrects the amount of a
    // series. Nothing is done, and nothing said, when the user gives up.
    [[nodiscard]] cOutcome Assign(int rowId, const cMatchCandidate& candidate);

    // Sets assigned rows back to open; their entries stay. Open ones are passed over.
    [[nodiscard]] cOutcome Release(const QList<int>& rowIds);

    // "passt zu 'Miete' vom 03.03. (85 %)" for a row that the last Match was not sure of, as long as that still holds;
    // else empty.
    [[nodiscard]] QString Proposal(int rowId);
    void ForgetProposals(); // the book or the rows are others now: they are looked up anew

    [[nodiscard]] const cBookTools& Tools() const { return m_tools; }
    [[nodiscard]] const cParts& Parts() const { return m_parts; }

private:
    [[nodiscard]] std::optional<int> Correct(const cMatchResult& result);
    [[nodiscard]] QStringList Lines(const cMatchResult& result, int corrected);

    const cBookTools& m_tools;
    cParts m_parts;
    QList<int> m_proposed;                         // rows of the last Match
    std::optional<QHash<int, QString>> m_proposal; // by row ID, as far as it was asked for
};
