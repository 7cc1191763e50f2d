#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// An entry of the book, or one occurrence of a series, that a staged row may belong to.
struct cMatchCandidate
{
    cEntryItem Entry;     // an occurrence has its own day and its corrected amount; of a split entry the first part
    qint64 Cents = 0;     // what it comes to on the account of the row, all parts of a split entry together
    double Score = 0.0;   // 0 to 1
    QString Reason;       // "gleicher Betrag, 2 Tage später, Empfänger stimmt überein"
    bool IsTaken = false; // another row belongs to it already; a second one only by hand
    std::optional<cEntryItemFixMod>
        Correction;           // offered for an occurrence whose amount or day differs; with the row's day
    bool ReplacesOwn = false; // it would take back what the user gave this occurrence by hand
};

// A staged row with the place found for it.
struct cMatch
{
    int RowId = 0;
    cMatchCandidate Candidate;
};

// What came of matching many rows.
struct cMatchResult
{
    QList<cMatch> Assigned;               // best first
    QList<cMatch> Proposed;               // good enough to be shown with the row, not to be assigned unseen; best first
    QList<int> Left;                      // rows without either, in the order given
    int Listed = 0;                       // of these: rows that have candidates all the same
    QList<std::pair<int, int>> Transfers; // rows left that are the two sides of one transfer between own accounts
    QStringList UnknownAccounts;          // own account numbers without an account of the book; their rows are left
    int Failed = 0;                       // matches that were not written because the database refused
    bool IsCancelled = false;             // nothing was written

    // "Zugeordnet: 3, vorgeschlagen: 1, offen: 5"
    [[nodiscard]] QString Summary() const;
};
