#pragma once

#include "import/propose/modKeywordRules.h"

#include <QString>

struct cImportEntry;

// What the program knows by itself about a transaction: the keyword rules, then the list of payees. What the user did
// or said is no part of it.
struct cHint
{
    QString Category; // empty when nothing is known
    QString Interval; // stored word; empty when nothing is known
    QString Reason;   // "Regel: rewe"
    bool IsSure = false;
};

namespace modHint {

// The last of the rules that are not marked as uncertain, as it stands.
[[nodiscard]] cHint BySureRule(const cImportEntry& row);

// For rows that are to be booked. A keyword that stands inside a longer name of the list, or in the middle of another
// word, goes behind what the list knows of the payee. Sure is only what nothing else speaks against.
[[nodiscard]] cHint Best(const cImportEntry& row);

} // namespace modHint
