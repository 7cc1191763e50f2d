#pragma once

#include "model/cEntryItem.h"
#include "model/modPeople.h"
#include "model/modPeriod.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

// What one person has paid and had to bear, in cents.
struct cPersonSum
{
    QString Name;
    qint64 Paid = 0;                                                        // less what came in
    qint64 Borne = 0;                                                       // by the shares
    qint64 Settled = 0;                                                     // given to others, less what was received
    [[nodiscard]] qint64 Balance() const { return Paid - Borne + Settled; } // above zero: is owed this
    bool operator==(const cPersonSum&) const = default;
};

// Who has to give whom how much.
struct cPayment
{
    QString From;
    QString To;
    qint64 Cents = 0;
    bool operator==(const cPayment&) const = default;
};

// An entry that counted, with those who bear it (or received it) and their shares.
struct cCountedEntry
{
    cEntryItem Entry;
    QString Payer;
    modPeople::cShares Shares;
    qint64 Cents = 0; // with the sign under which it counts: above zero the payer laid it out
};

struct cSettlement
{
    modPeriod::cRange Range;
    QList<cPersonSum> People;
    QList<cPayment> Payments;
    QList<cCountedEntry> Counted; // by day
    bool IsUnread = false;        // there are no figures because the book could not be read
};

// Who owes whom. Entries with a payer count and no others: all else was paid by those whose account it is.
namespace modSettlement {

using fnShares = std::function<modPeople::cShares(const QString& account)>; // empty account: what all share

// An expense is borne by the shares of its account. What somebody paid from an account that is theirs alone was laid
// out for all and is borne by the shares of the household. Income counts the other way round. A transfer gives its
// amount to those whose account it reaches. A payer who is none of `people` counts with them, at the end.
[[nodiscard]] cSettlement Figures(const cEntryItemList& entries, const QStringList& people, const fnShares& shares);

// The fewest payments that bring every balance to zero; they come to zero together.
[[nodiscard]] QList<cPayment> Payments(const QList<cPersonSum>& people);

} // namespace modSettlement
