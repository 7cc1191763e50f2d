#include "views/common/modSetting.h"

#include "core/cSettings.h"
#include "model/modSettingKey.h"

void modSetting::Keep(cSettings& settings, const cSettingKey& key, const QString& value)
{
    if (settings.Get(key) != value) {
        settings.Set(key, value);
    }
}
