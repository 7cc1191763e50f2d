#include "views/list/modSetting.h"

#include "core/cSettings.h"

void modSetting::Keep(cSettings& settings, const QString& name, const QString& value)
{
    if (settings.Get(name) != value) {
        settings.Set(name, value);
    }
}
