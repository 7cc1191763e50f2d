#pragma once

#include <QString>

// Which amounts a rule holds for.
enum class eRuleSign { Any, In, Out };

// A rule of the user's own for bank transactions: all conditions that are given have to hold, and what it sets replaces
// the program's own proposal.
struct cOwnRule
{
    // Conditions; empty ones do not count.
    QString Text;         // held by counterparty, purpose or booking text; alternatives joined by "|", with wildcards
    QString Counterparty; // exactly this name, or this account number
    eRuleSign Sign = eRuleSign::Any;
    QString Account; // own account: its name in the book, or its number

    // What it sets; empty fields are left to the program.
    QString Category;
    QString Interval; // stored word
    QString Description;

    bool IsOn = true;
    QString Unreadable; // the rule as it is stored, when this program cannot read it; it then does nothing

    [[nodiscard]] bool HasCondition() const
    {
        return !Text.isEmpty() || !Counterparty.isEmpty() || Sign != eRuleSign::Any || !Account.isEmpty();
    }
    [[nodiscard]] bool HasResult() const
    {
        return !Category.isEmpty() || !Interval.isEmpty() || !Description.isEmpty();
    }

    bool operator==(const cOwnRule&) const = default;
};
