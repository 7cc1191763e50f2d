#include "views/template/cNameKeepers.h"

#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "import/stage/cRowChoices.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/budget/modLimits.h"
#include "views/list/modViewRecord.h"
#include "views/look/cCategoryLooks.h"
#include "views/template/cBankNumbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void cNameKeepers::Watch(cDataAccess& data, cSettings& settings)
{
    data.OnNameCleaned([&data, &settings](const cCleanedName& name) {
        cNameKeepers keepers(data, settings);
        return name.IsAccount ? keepers.RenameAccount(name.Old, name.New) : keepers.RenameCategory(name.Old, name.New);
    });
}

bool cNameKeepers::RenameAccount(const QString& oldName, const QString& newName)
{
    return cBankNumbers(m_data, m_settings).Move(oldName, newName) && MoveShares(oldName, newName)
        && JoinAccount(oldName, newName);
}

bool cNameKeepers::JoinAccount(const QString& oldName, const QString& newName)
{
    const QList<cSettingKey> shown{modSettingKey::MainAccount, modSettingKey::StatisticsAccount};
    return cOwnRules(m_settings).RenameAccount(oldName, newName)
        && modViewRecord::Follow(m_settings, modViewRecord::Account, oldName, newName)
        && std::all_of(shown.begin(), shown.end(), [&](const cSettingKey& key) {
               return m_settings.Get(key) != oldName || m_settings.Set(key, newName);
           });
}

bool cNameKeepers::MoveShares(const QString& oldName, const QString& newName)
{
    const cSettingKey before = modSettingKey::AccountShares.Of(oldName);
    const QString shares = m_settings.Get(before);
    return shares.isEmpty()
        || (m_settings.Delete(before) && m_settings.Set(modSettingKey::AccountShares.Of(newName), shares));
}

bool cNameKeepers::RenameCategory(const QString& oldPath, const QString& newPath)
{
    return JoinCategory(oldPath, newPath) && modLimits::Move(m_settings, oldPath, newPath)
        && cCategoryLooks::Follow(m_data, m_settings, oldPath, newPath);
}

bool cNameKeepers::JoinCategory(const QString& oldPath, const QString& newPath)
{
    return cOwnRules(m_settings).RenameCategory(oldPath, newPath)
        && cRowChoices::RenameCategory(m_settings, oldPath, newPath);
}
