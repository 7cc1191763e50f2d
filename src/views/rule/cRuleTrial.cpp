#include "views/rule/cRuleTrial.h"

#include "import/propose/cRuleMatcher.h"
#include "import/stage/cAccountMap.h"

#include <algorithm>

namespace {

constexpr qsizetype mostExamples = 5;

} // namespace

cRuleTrial::cRuleTrial(const cImportEntryList& rows, const cAccountMap& accounts) : m_accounts(accounts), m_rows(rows)
{
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate > b.ImportDate; });
    m_prepared.reserve(static_cast<std::size_t>(m_rows.size()));
    for (const cImportEntry& row : std::as_const(m_rows)) {
        m_prepared.emplace_back(row, AccountOf(row));
    }
}

cRuleTrial::~cRuleTrial() = default;

QString cRuleTrial::AccountOf(const cImportEntry& row) const
{
    auto known = m_known.constFind(row.ImportAccount);
    if (known == m_known.constEnd()) {
        known = m_known.insert(row.ImportAccount, m_accounts.AccountOf(row.ImportAccount));
    }
    return *known;
}

void cRuleTrial::SetRules(const QList<cOwnRule>& rules)
{
    m_rules = rules;
    m_counts.clear();
    m_firsts.clear();
    const cRuleMatcher matcher(rules);
    for (const cRuleRow& row : m_prepared) {
        const int place = matcher.Find(row);
        m_firsts.push_back(place);
        ++m_counts[place];
    }
}

cRuleTrial::cFound cRuleTrial::Try(const cOwnRule& rule, int place) const
{
    cOwnRule tried = rule;
    tried.IsOn = true;
    const cRuleMatcher matcher({tried});
    cFound found;
    cImportEntryList others;
    for (std::size_t i = 0; i < m_prepared.size(); ++i) {
        if (matcher.Find(m_prepared[i]) < 0) {
            continue;
        }
        const bool isEarlier = m_firsts[i] >= 0 && m_firsts[i] < place;
        found.Earlier += isEarlier ? 1 : 0;
        ++found.Count;
        cImportEntryList& list = isEarlier ? others : found.Examples;
        if (list.size() < mostExamples) {
            list.append(m_rows.at(static_cast<qsizetype>(i)));
        }
    }
    found.Examples = (found.Examples + others).mid(0, mostExamples);
    return found;
}

int cRuleTrial::PlaceFor(const cImportEntry& row) const
{
    return cRuleMatcher(m_rules).Find(cRuleRow(row, AccountOf(row)));
}
