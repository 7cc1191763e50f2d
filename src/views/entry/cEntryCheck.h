#pragma once

#include "views/entry/cEntryFields.h"

#include <QString>

class cEntrySuggestions;
struct cBookTools;

// The checks before an entry is stored, in the order in which the user is told.
class cEntryCheck
{
public:
    // Both outlive the check.
    cEntryCheck(const cBookTools& tools, cEntrySuggestions& suggestions) : m_tools(tools), m_suggestions(suggestions) {}

    // Saved when nothing is wrong; the message of a refusal has been shown. A typed text that names no category is
    // offered to become one, and the fields then have its path.
    [[nodiscard]] eEntrySaved Check(cEntryFields& fields);

    // The row of the split table that the failure is about; -1 when it is about none.
    [[nodiscard]] int FailedPart() const { return m_failedPart; }

private:
    [[nodiscard]] eEntrySaved CheckAmounts(const cEntryFields& fields);
    [[nodiscard]] bool CheckChoices(cEntryFields& fields);
    [[nodiscard]] bool CheckType(const cEntryFields& fields) const;
    [[nodiscard]] bool OfferNew(cEntryFields& fields);
    [[nodiscard]] bool HasCategory(const cEntryFields& fields);
    [[nodiscard]] bool CheckAccount(const cEntryFields& fields) const;
    [[nodiscard]] bool CheckParts(const cEntryFields& fields) const;
    [[nodiscard]] eEntrySaved CheckDays(const cEntryFields& fields) const;

    const cBookTools& m_tools;
    cEntrySuggestions& m_suggestions;
    int m_failedPart = -1;
};
