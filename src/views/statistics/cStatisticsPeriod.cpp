#include "views/statistics/cStatisticsPeriod.h"

#include "core/cSettings.h"
#include "model/modWord.h"
#include "views/list/modSetting.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int Stored(const cSettings& settings, const QString& key, int least, int most, int otherwise)
{
    const int value = settings.Get(key).toInt();
    return value >= least && value <= most ? value : otherwise;
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

void cStatisticsPeriod::Restore(const cSettings& settings, const QString& prefix, QDate today)
{
    const QString name = settings.Get(prefix + u"Zeitraum"_s);
    Name = modWord::Periods().Contains(name) ? name : modWord::AktuellesJahr;
    FirstMonth = Stored(settings, prefix + u"VonMonat"_s, 1, 12, 1);
    LastMonth = Stored(settings, prefix + u"BisMonat"_s, FirstMonth, 12, 12);
    Year = Stored(settings, prefix + u"Jahr"_s, FirstYear, LastYear, today.year());
}

void cStatisticsPeriod::Save(cSettings& settings, const QString& prefix) const
{
    modSetting::Keep(settings, prefix + u"Zeitraum"_s, Name);
    modSetting::Keep(settings, prefix + u"VonMonat"_s, QString::number(FirstMonth));
    modSetting::Keep(settings, prefix + u"BisMonat"_s, QString::number(LastMonth));
    modSetting::Keep(settings, prefix + u"Jahr"_s, QString::number(Year));
}
