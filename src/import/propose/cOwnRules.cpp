#include "import/propose/cOwnRules.h"

#include "core/cSettings.h"
#include "import/propose/modOwnRule.h"
#include "model/cTemplateItem.h"
#include "model/modSettingKey.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

} // namespace

QList<cOwnRule> cOwnRules::Load() const
{
    QList<cOwnRule> rules;
    const QStringList lines = m_settings.Get(modSettingKey::OwnRules).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        rules.append(modOwnRule::FromLine(line));
    }
    return rules;
}

bool cOwnRules::Save(const QList<cOwnRule>& rules)
{
    QStringList lines;
    for (const cOwnRule& rule : rules) {
        lines.append(modOwnRule::ToLine(rule));
    }
    return m_settings.Set(modSettingKey::OwnRules, lines.join(u'\n'));
}

template <typename tChange>
bool cOwnRules::ChangeAll(tChange change)
{
    const QList<cOwnRule> before = Load();
    QList<cOwnRule> rules = before;
    std::for_each(rules.begin(), rules.end(), change);
    return rules == before || Save(rules);
}

bool cOwnRules::RenameCategory(const QString& oldPath, const QString& newPath)
{
    return ChangeAll([&](cOwnRule& rule) { rule.Category = rule.Category == oldPath ? newPath : rule.Category; });
}

bool cOwnRules::RenameMain(const QString& oldMain, const QString& newMain)
{
    return ChangeAll([&](cOwnRule& rule) {
        const bool isBelow = !rule.Category.isEmpty() && modTemplate::MainOf(rule.Category) == oldMain;
        rule.Category = isBelow ? modTemplate::WithMain(rule.Category, newMain) : rule.Category;
    });
}

bool cOwnRules::RenameAccount(const QString& oldName, const QString& newName)
{
    return ChangeAll([&](cOwnRule& rule) { rule.Account = rule.Account == oldName ? newName : rule.Account; });
}
