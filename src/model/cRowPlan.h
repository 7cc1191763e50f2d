#pragma once

#include "model/cMatch.h"
#include "model/cProposal.h"

#include <QString>

#include <optional>

// How a bank transaction can be brought into the book: its entry is there already ("schon im Buch"), its proposal can
// be booked unseen ("sicher"), or somebody should look at it ("bitte ansehen").
enum class eRowGroup { InBook, Sure, Look };

// Another row that may be the same transaction, and what they have in common beside the amount: the counterparty's
// account, or a similar name.
struct cRowTwin
{
    enum class eSame { Counterparty, Name };

    int RowId = 0;
    eSame Same = eSame::Counterparty;
    int Days = 0; // from this row to the other one; negative: that one is earlier
};

// What one look at the open rows and the book says of one of them.
struct cRowPlan
{
    int RowId = 0;
    eRowGroup Group = eRowGroup::Look;
    cProposal Proposal;                   // the new entry, where one is to be made
    std::optional<cMatchCandidate> Match; // the entry that is there: certain in the group InBook, else likely
    std::optional<cRowTwin> Twin;
    bool IsSecond = false; // the twin goes first: booking this one too would be one too many
    bool IsBeside = false; // the series that it belongs to has had its payment for that time
    QString Reason;        // of the match, else of the proposal; empty for the mere default
};
