#include "views/look/cCategoryLooks.h"

#include "core/cSettings.h"
#include "model/cTemplateItem.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/look/modCategoryColor.h"
#include "views/look/modCategoryIcon.h"

#include <algorithm>

namespace {

bool Write(cSettings& settings, const cSettingKey& key, const QString& value)
{
    return value.isEmpty() ? settings.Delete(key) : settings.Set(key, value);
}

cCategoryLook StoredLook(const cSettings& settings, const QString& main)
{
    return {settings.Get(modSettingKey::CategoryColor.Of(main)), settings.Get(modSettingKey::CategoryIcon.Of(main))};
}

} // namespace

cCategoryLooks cCategoryLooks::Read(cDataAccess& data)
{
    cCategoryLooks looks;
    const QList<std::pair<QString, QString>> settings = data.GetSettings();
    for (const auto& [name, value] : settings) {
        // What another program or a later version stored, and this one cannot show, is left alone.
        if (const QString main = modSettingKey::CategoryColor.PartOf(name).toLower(); !main.isEmpty()) {
            if (const std::optional<QString> color = modCategoryColor::Read(value)) {
                looks.m_looks[main].Color = *color;
            }
        } else if (const QString other = modSettingKey::CategoryIcon.PartOf(name).toLower(); !other.isEmpty()) {
            if (const std::optional<QString> icon = modCategoryIcon::Read(value)) {
                looks.m_looks[other].Icon = *icon;
            }
        }
    }
    return looks;
}

cCategoryLook cCategoryLooks::Of(const QString& path) const
{
    return m_looks.isEmpty() ? cCategoryLook{} : m_looks.value(modTemplate::MainOf(path).toLower());
}

QVariant cCategoryLooks::Shown(const QString& path) const
{
    return m_looks.isEmpty() ? QVariant() : QVariant::fromValue(Of(path));
}

bool cCategoryLooks::Store(cSettings& settings, const QString& main, const cCategoryLook& look,
                           const cCategoryLook& old)
{
    return (look.Color == old.Color || Write(settings, modSettingKey::CategoryColor.Of(main), look.Color))
        && (look.Icon == old.Icon || Write(settings, modSettingKey::CategoryIcon.Of(main), look.Icon));
}

bool cCategoryLooks::Follow(cDataAccess& data, cSettings& settings, const QString& oldPath, const QString& newPath)
{
    const QString oldMain = modTemplate::MainOf(oldPath);
    const QString newMain = modTemplate::MainOf(newPath);
    const cCategoryLook look = StoredLook(settings, oldMain);
    if (oldMain == newMain || look == cCategoryLook{}) {
        return true;
    }
    const cTemplateItemList items = data.GetTemplates();
    const bool isStillThere = std::any_of(items.begin(), items.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == oldMain;
    });
    if (isStillThere) {
        return true;
    }
    const bool isSameKey = oldMain.compare(newMain, Qt::CaseInsensitive) == 0;
    const bool isTaken = newMain.isEmpty() || (!isSameKey && StoredLook(settings, newMain) != cCategoryLook{});
    return Store(settings, oldMain, {}, look) && (isTaken || Store(settings, newMain, look));
}
