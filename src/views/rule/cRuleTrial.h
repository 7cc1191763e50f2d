#pragma once

#include "model/cImportEntry.h"
#include "model/cOwnRule.h"

#include <QHash>
#include <QList>

#include <vector>

class cAccountMap;
struct cRuleRow;

// Which of the staged rows rules match. The rows are prepared once, so that it can be asked with every letter typed.
class cRuleTrial
{
public:
    cRuleTrial(const cImportEntryList& rows, const cAccountMap& accounts);
    ~cRuleTrial();
    cRuleTrial(const cRuleTrial&) = delete;
    cRuleTrial& operator=(const cRuleTrial&) = delete;

    // Takes the rules against which single ones are tried.
    void SetRules(const QList<cOwnRule>& rules);

    // For how many rows the rule at this place is the first one that matches.
    [[nodiscard]] int CountAt(int place) const { return m_counts.value(place); }
    [[nodiscard]] int Total() const { return static_cast<int>(m_rows.size()); }

    struct cFound
    {
        int Count = 0;
        int Earlier = 0; // of these: rows that a rule before it has already
        cImportEntryList Examples;
    };
    // The rows that a rule matches when it stands at `place`, switched on or not; some of them as examples, the newest
    // first and those before that it really gets.
    [[nodiscard]] cFound Try(const cOwnRule& rule, int place) const;

    // The place of the first rule that matches; -1 when none does.
    [[nodiscard]] int PlaceFor(const cImportEntry& row) const;

private:
    [[nodiscard]] QString AccountOf(const cImportEntry& row) const;

    const cAccountMap& m_accounts;
    mutable QHash<QString, QString> m_known; // number to account, as asked for
    cImportEntryList m_rows;                 // newest first
    std::vector<cRuleRow> m_prepared;
    std::vector<int> m_firsts; // by row, the place of the rule that it gets
    QHash<int, int> m_counts;  // by place
    QList<cOwnRule> m_rules;
};
