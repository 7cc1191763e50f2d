#pragma once

#include <QList>
#include <QString>

struct cImportEntry;

// Set by callers that want sure proposals only: rules with short, ambiguous keywords and the default are left out.
enum class eRestriction { None, Restricted };

// The program's own knowledge of German household payees: keywords to category and interval.
namespace modKeywordRules {

struct cMatch
{
    QString Category; // empty when no rule set one
    QString Interval; // empty when no rule set one
    QString Keyword;  // the alternative that gave the category

    bool operator==(const cMatch&) const = default;
};

// Lower-cased counterparty, purpose and booking text, joined by "|", without line breaks.
[[nodiscard]] QString MatchText(const cImportEntry& row);

// A rule that matches, and what it sets: it may be no more than an interval.
struct cHit
{
    cMatch Match;
    bool IsUncertain = false; // left out by callers that want sure proposals only
};

// All rules that match, in their order. `cents` is the signed amount.
[[nodiscard]] QList<cHit> Hits(const QString& matchText, qint64 cents);

// What remains when each of them overwrites what earlier ones set.
[[nodiscard]] cMatch Last(const QList<cHit>& hits, eRestriction restriction);

} // namespace modKeywordRules
