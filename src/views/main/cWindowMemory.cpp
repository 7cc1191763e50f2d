#include "views/main/cWindowMemory.h"

#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "views/common/modSetting.h"

#include <QStringList>

void cWindowMemory::SavePlacement(const cPlacement& placement)
{
    const QStringList numbers{QString::number(placement.Left), QString::number(placement.Top),
                              QString::number(placement.Width), QString::number(placement.Height)};
    m_configuration.SaveSetting(modSettingKey::WindowSize, numbers.join(u'|'), eSettingPlace::Database);
    m_configuration.SaveSetting(modSettingKey::WindowState, QString::number(static_cast<int>(placement.State)),
                                eSettingPlace::Database);
}

cWindowMemory::cPlacement cWindowMemory::Placement() const
{
    const QStringList numbers = m_configuration.GetSetting(modSettingKey::WindowSize).split(u'|');
    cPlacement placement;
    placement.State = static_cast<eWindow>(m_configuration.GetSetting(modSettingKey::WindowState).toInt());
    if (numbers.size() == 4 && numbers.at(2).toInt() > 0 && numbers.at(3).toInt() > 0) {
        placement.Left = numbers.at(0).toInt();
        placement.Top = numbers.at(1).toInt();
        placement.Width = numbers.at(2).toInt();
        placement.Height = numbers.at(3).toInt();
    }
    return placement;
}

void cWindowMemory::SaveLayout(const cSettingKey& key, const QString& layout)
{
    modSetting::Keep(m_settings, key, layout);
}

QString cWindowMemory::Layout(const cSettingKey& key) const
{
    return m_settings.Get(key);
}
