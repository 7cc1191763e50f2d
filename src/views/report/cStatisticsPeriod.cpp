#include "views/report/cStatisticsPeriod.h"

#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "views/common/modSetting.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int Stored(const cSettings& settings, const cSettingKey& key, int least, int most)
{
    const int value = settings.Get(key).toInt();
    return value >= least && value <= most ? value : key.Default().toInt();
}

} // namespace

bool cStatisticsPeriod::IsFree() const
{
    return Name == modWord::FreierZeitraum;
}

modPeriod::cRange cStatisticsPeriod::Free() const
{
    return {QDate(Year, FirstMonth, 1), QDate(Year, LastMonth, 1).addMonths(1).addDays(-1)};
}

modPeriod::cRange cStatisticsPeriod::Range(QDate today) const
{
    return modPeriod::Range(Name, today, Free());
}

void cStatisticsPeriod::Choose(const QString& name, QDate today)
{
    if (!modWord::Periods().Contains(name)) {
        return;
    }
    const modPeriod::cRange shown = Range(today);
    const bool isOneYear = shown.Start.isValid() && shown.End.isValid() && shown.Start.year() == shown.End.year();
    if (name == modWord::FreierZeitraum && !IsFree() && isOneYear) {
        FirstMonth = shown.Start.month();
        LastMonth = shown.End.month();
        Year = shown.Start.year();
    }
    Name = name;
}

void cStatisticsPeriod::ChooseFirst(int month)
{
    FirstMonth = std::clamp(month, 1, 12);
    LastMonth = std::max(FirstMonth, LastMonth);
}

void cStatisticsPeriod::ChooseLast(int month)
{
    LastMonth = std::clamp(month, 1, 12);
    FirstMonth = std::min(FirstMonth, LastMonth);
}

void cStatisticsPeriod::Restore(const cSettings& settings, const QString& pane, QDate today)
{
    const cSettingKey period = modSettingKey::PanePeriod.Of(pane);
    const QString name = settings.Get(period);
    Name = modWord::Periods().Contains(name) ? name : period.Default();
    FirstMonth = Stored(settings, modSettingKey::PaneFirstMonth.Of(pane), 1, 12);
    LastMonth = Stored(settings, modSettingKey::PaneLastMonth.Of(pane), FirstMonth, 12);
    const int year = Stored(settings, modSettingKey::PaneYear.Of(pane), FirstYear, LastYear);
    Year = year > 0 ? year : today.year();
}

void cStatisticsPeriod::Save(cSettings& settings, const QString& pane) const
{
    modSetting::Keep(settings, modSettingKey::PanePeriod.Of(pane), Name);
    modSetting::Keep(settings, modSettingKey::PaneFirstMonth.Of(pane), QString::number(FirstMonth));
    modSetting::Keep(settings, modSettingKey::PaneLastMonth.Of(pane), QString::number(LastMonth));
    modSetting::Keep(settings, modSettingKey::PaneYear.Of(pane), QString::number(Year));
}
