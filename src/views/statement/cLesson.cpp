#include "views/statement/cLesson.h"

#include "base/cText.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/cPayeeKeys.h"
#include "import/propose/cRuleMatcher.h"
#include "import/propose/modOwnRule.h"
#include "import/read/modPayee.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cUndoStep.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shortestText = 4; // "dm" stands in many words

// The text with what a rule would read as a pattern left open.
QString Plain(QString text)
{
    static constexpr std::array special{u'*', u'#', u'[', u']', u'|'};
    for (QChar& c : text) {
        if (std::find(special.begin(), special.end(), c.unicode()) != special.end()) {
            c = u'?';
        }
    }
    return text;
}

bool HasSameConditions(const cOwnRule& rule, const cOwnRule& other)
{
    return rule.Unreadable.isEmpty() && rule.Text == other.Text && rule.Counterparty == other.Counterparty
        && rule.Sign == other.Sign && rule.Account == other.Account;
}

} // namespace

QList<int> cLesson::AlikeRows(const cImportEntry& row)
{
    cPayeeKeys payees;
    const cPayeeKeys::cPayee payee = payees.Of(row);
    if (payee.Key.isEmpty() || payee.IsCash) {
        return {};
    }
    cImportEntryList alike = m_hive.GetImportHive().GetImportEntriesByAssignedID(-1);
    alike.removeIf([&](const cImportEntry& other) {
        return other.ID == row.ID || (other.ImportValue > 0) != (row.ImportValue > 0)
            || payees.Of(other).Key != payee.Key;
    });
    std::stable_sort(alike.begin(), alike.end(),
                     [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate > b.ImportDate; });
    QList<int> ids;
    for (const cImportEntry& other : std::as_const(alike)) {
        ids.append(other.ID);
    }
    return ids;
}

cOwnRule cLesson::RuleFor(const cImportEntry& row, const QString& category)
{
    cOwnRule rule = modOwnRule::FromRow(row);
    rule.Category = category;
    const modPayee::cPayee payee = modPayee::Of(row);
    const bool isWhole = payee.IsOwn && payee.Name == row.ImportBeneficiary.simplified();
    if (isWhole || payee.Name.size() < shortestText) {
        return rule;
    }
    cOwnRule byPayee = rule;
    byPayee.Counterparty.clear();
    byPayee.Text = Plain(payee.Name);
    return cRuleMatcher({byPayee}).Find(cRuleRow(row, {})) == 0 ? byPayee : rule;
}

bool cLesson::Teach(const cImportEntry& row, const QString& category)
{
    const cOwnRule rule = RuleFor(row, category);
    cOwnRules stored(m_tools.Settings);
    QList<cOwnRule> rules = stored.Load();
    const cAccountMap accounts(m_tools.Data, m_tools.Settings);
    const auto same =
        std::find_if(rules.begin(), rules.end(), [&](const cOwnRule& other) { return HasSameConditions(other, rule); });
    if (same != rules.end()) {
        rules.erase(same);
    }
    const int before = cRuleMatcher(rules).Find(cRuleRow(row, accounts.AccountOf(row.ImportAccount)));
    rules.insert(before < 0 ? rules.size() : before, rule);
    cUndoStep step(m_tools.Data, cText::Tr("Regel angelegt"));
    return step.DoneIf(stored.Save(rules));
}
