#pragma once

#include "model/cRowPlan.h"

#include <QHash>
#include <QList>
#include <QStringList>

class cBooking;
class cMatchFlow;
class cProgress;
class cRowProposals;
struct cBookTools;

// Brings bank transactions into the book as they were planned: assigns what is there, books what is new, and asks
// before anything could stand in the book twice.
class cPlanFlow
{
public:
    // What the flow works with beside the tools; all of it outlives the flow.
    struct cParts
    {
        cBooking& Booking;
        cMatchFlow& Matching;
        cRowProposals& Proposals;
    };

    // What came of an action.
    struct cOutcome
    {
        bool IsDone = false;           // false: the user gave up, or nothing could be written
        int Left = 0;                  // rows that stay open because the user, or the plan, says so
        QStringList Lines{};           // for the user; empty when nothing was done
        QStringList UnknownAccounts{}; // numbers without account; their rows stay open
    };

    cPlanFlow(const cBookTools& tools, const cParts& parts);

    // Whether several rows are booked without a word about those whose proposal is not sure. Who names rows one by one
    // has looked at them; a list has them marked with a single key.
    enum class eUnsure { Ask, Take };

    // Books the rows; those that are booked already are passed over. Those that have an entry, or may be there twice,
    // are asked about, all at once or one by one. Done as well when the user wants to look at the rows first.
    [[nodiscard]] cOutcome Book(const QList<int>& rowIds, eUnsure unsure, cProgress& progress);

    // Of the rows what is in the book or sure, after a question that names the numbers.
    [[nodiscard]] cOutcome Accept(const QList<int>& rowIds, cProgress& progress);

private:
    // What is to be done with the rows.
    struct cWish
    {
        QList<cMatch> Assign;
        QList<int> New;
        QHash<int, cProposal> Proposals;
        int Left = 0;
    };
    using cPlans = QHash<int, cRowPlan>;
    enum class eWay { Assign, New, Leave };

    static void Take(const cRowPlan& plan, eWay way, cWish& wish);
    [[nodiscard]] QStringList MatchLines(const QList<cRowPlan>& matched) const;
    [[nodiscard]] bool AskAboutUnsure(QList<cRowPlan>& plans, cWish& wish);
    [[nodiscard]] bool AskAboutTwins(QList<cRowPlan>& plans, cWish& wish);
    [[nodiscard]] bool AskAboutMatches(const QList<cRowPlan>& matched, cWish& wish);
    [[nodiscard]] bool AskOneByOne(const QList<cRowPlan>& matched, cWish& wish);
    [[nodiscard]] cOutcome Carry(const cWish& wish, cProgress& progress);
    [[nodiscard]] static cOutcome Stopped();

    const cBookTools& m_tools;
    cParts m_parts;
};
