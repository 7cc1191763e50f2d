#include "views/budget/modLimits.h"

#include "base/cText.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

cBudget modLimits::BudgetOf(const cSettings& settings, const QString& path)
{
    return modBudget::Read(settings.Get(modSettingKey::Budget.Of(path)));
}

bool modLimits::Store(cSettings& settings, const QString& path, const cBudget& budget)
{
    const cSettingKey key = modSettingKey::Budget.Of(path);
    const QString text = modBudget::ToText(budget, settings.Get(key));
    return text.isEmpty() ? Remove(settings, path) : settings.Set(key, text);
}

cLimits modLimits::Read(cDataAccess& data, const cSettings& settings, const cTemplateItemList& templates, QDate start)
{
    cLimits limits;
    for (const cTemplateItem& item : templates) {
        if (modBudget::IsLimitable(item)) {
            limits.Add(item, BudgetOf(settings, modTemplate::Path(item)));
        }
    }
    const QDate from = limits.CarriesFrom();
    const QDate month = modBudget::MonthOf(start);
    if (from.isValid() && from < month) {
        cEntryQuery query;
        query.Start = from;
        query.End = month.addDays(-1);
        limits.SetSpent(modBudget::Spent(data.GetEntries(query)));
    }
    return limits;
}

QString modLimits::SumNote()
{
    return cText::Tr("In den Summen zählen nur Kategorien mit einem Limit mit.");
}

bool modLimits::Move(cSettings& settings, const QString& oldPath, const QString& newPath)
{
    const QString text = settings.Get(modSettingKey::Budget.Of(oldPath));
    const cSettingKey target = modSettingKey::Budget.Of(newPath);
    if (oldPath == newPath || text.isEmpty()) {
        return true;
    }
    const bool isTaken = !settings.Get(target).isEmpty() && newPath.compare(oldPath, Qt::CaseInsensitive) != 0;
    return Remove(settings, oldPath) && (isTaken || settings.Set(target, text));
}

bool modLimits::Remove(cSettings& settings, const QString& path)
{
    const cSettingKey key = modSettingKey::Budget.Of(path);
    return settings.Get(key).isEmpty() || settings.Delete(key);
}
