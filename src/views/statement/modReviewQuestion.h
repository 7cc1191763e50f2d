#pragma once

#include "base/cUser.h"

#include <QString>
#include <QStringList>

// What the user is asked before bank transactions are booked.
namespace modReviewQuestion {

// Rows that are wanted, by how far they can be booked without looking.
struct cNumbers
{
    int Certain = 0;
    int Unknown = 0; // nothing but an ambiguous keyword or the default speaks for the proposal
    int InBook = 0;  // an entry of the book may be the same
    int Twice = 0;   // another row may be the same
};

// About rows that probably belong to entries of the book, one line each. Yes, where Enter goes: only the others are
// booked. No: these too.
[[nodiscard]] cQuestion Matches(const QStringList& lines);

// The same about rows that may be there twice.
[[nodiscard]] cQuestion Twins(const QStringList& lines);

// Whether all certain proposals are to be booked; without any it is what the user is told instead.
[[nodiscard]] cQuestion Accept(const cNumbers& numbers);

} // namespace modReviewQuestion
