#pragma once

#include "base/cUser.h"

#include <QMap>
#include <QString>
#include <QStringList>

// What the user is asked before bank transactions are booked.
namespace modReviewQuestion {

// Rows that are wanted, by how they can be brought into the book.
struct cNumbers
{
    int InBook = 0;                  // their entries are there already
    int Sure = 0;                    // become new entries
    int Unknown = 0;                 // too little speaks for the proposal
    int Likely = 0;                  // an entry of the book may be the same
    int Twice = 0;                   // another row may be the same
    int Bare = 0;                    // of the unknown ones: without any category
    QMap<QString, int> Transfers{};  // of the unknown ones: perhaps transfers, by their accounts
    QMap<QString, int> Categories{}; // of the other unknown ones, with their numbers
};

// What to do with rows whose entries are in the book, in the order of the buttons.
enum class eMatchAnswer { Assign, New, Leave, OneByOne };

// What to do with several rows that are not all sure, in the order of the buttons.
enum class eUnsureAnswer { Sure, All };

// About rows that somebody should look at, with the categories that they would get. Enter books only the others, or
// nothing where there are none, and leads to the first one to look at.
[[nodiscard]] cDecision Unsure(const cNumbers& numbers);

// About rows that belong to entries of the book, certainly or probably, one line each. Enter assigns them, which leaves
// the book right; a single row is not offered to be decided by itself.
[[nodiscard]] cDecision Matches(const QStringList& lines);

// About rows that may be there twice. Yes, where Enter goes: only the others are booked. No: these too.
[[nodiscard]] cQuestion Twins(const QStringList& lines);

// Whether what is there or sure is to be assigned and booked; without any it is what the user is told instead.
[[nodiscard]] cQuestion Accept(const cNumbers& numbers);

// Whether a category that one row was given is to go to `count` other rows of the payee: to these, to all that come,
// or, where Enter goes, to none of them.
[[nodiscard]] cDecision Alike(const QString& category, int count);

} // namespace modReviewQuestion
