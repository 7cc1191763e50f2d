#include "views/main/cViewState.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "views/common/modSetting.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// What is stored, where it is one of the words.
QString Offered(const cSettings& settings, const cSettingKey& key, const QStringList& words)
{
    const QString stored = settings.Get(key);
    return words.contains(stored) ? stored : key.Default();
}

// Days before the one that "Buchungen bis heute" begins with were never meant by anybody: they stood for an open side.
constexpr int firstYear = 1001;

// The stored free days; an empty text leaves its side open. None for what can be no period: days that cannot be read,
// or the last one before the first.
modPeriod::cRange FreeRange(const QString& start, const QString& end)
{
    const modPeriod::cRange range{modDate::FromIso(start), modDate::FromIso(end)};
    const auto isRead = [](const QString& text, QDate day) {
        return text.isEmpty() || (day.isValid() && day.year() >= firstYear);
    };
    const bool isTurned = range.End.isValid() && range.Start > range.End;
    return isRead(start, range.Start) && isRead(end, range.End) && !isTurned ? range : modPeriod::cRange{};
}

bool IsKnown(const QString& payer, const cSettings& settings)
{
    return modPeople::IsChoice(payer, modPeople::NamesOf(settings.Get(modSettingKey::People)));
}

eBookingKind Kind(const cViewState& view)
{
    if (view.ShowsSingle && view.ShowsFix) {
        return eBookingKind::All;
    }
    return view.ShowsSingle ? eBookingKind::Single : eBookingKind::Fix;
}

} // namespace

void cViewState::Restore(const cSettings& settings, const QStringList& accounts, QDate today)
{
    Period = Offered(settings, modSettingKey::MainPeriod, modWord::Periods().Stored());
    Free = FreeRange(settings.Get(modSettingKey::MainPeriodStart), settings.Get(modSettingKey::MainPeriodEnd));
    if (Period == modWord::FreierZeitraum && Free == modPeriod::cRange{}) {
        Free = modPeriod::Year(today, 0);
    }
    Account = Offered(settings, modSettingKey::MainAccount, accounts);
    Type = Offered(settings, modSettingKey::MainType, modWord::ViewTypes().Stored());
    Grouping = Offered(settings, modSettingKey::MainGrouping, modWord::Groupings().Stored());
    Filter = settings.Get(modSettingKey::MainFilter);
    Payer = settings.Get(modSettingKey::MainPayer);
    TakeKnownPayer(settings);
    ShowsSingle = settings.GetBool(modSettingKey::ViewSingle);
    ShowsFix = settings.GetBool(modSettingKey::ViewFix);
    ShowsFuture = settings.GetBool(modSettingKey::ViewFuture);
    ShowsStart = settings.GetBool(modSettingKey::ViewStart);
    BalancesToToday = settings.GetBool(modSettingKey::ViewAllBalances);
}

void cViewState::TakeKnownPayer(const cSettings& settings)
{
    if (!IsKnown(Payer, settings)) {
        Payer = settings.Get(modSettingKey::MainPayer);
        DropUnknownPayer(settings);
    }
}

void cViewState::DropUnknownPayer(const cSettings& settings)
{
    Payer = IsKnown(Payer, settings) ? Payer : QString();
}

void cViewState::Save(cSettings& settings) const
{
    modSetting::Keep(settings, modSettingKey::MainType, Type);
    modSetting::Keep(settings, modSettingKey::MainFilter, Filter);
    modSetting::Keep(settings, modSettingKey::MainPayer, Payer);
    modSetting::Keep(settings, modSettingKey::MainPeriod, Period);
    modSetting::Keep(settings, modSettingKey::MainPeriodStart, modDate::ToIso(Free.Start));
    modSetting::Keep(settings, modSettingKey::MainPeriodEnd, modDate::ToIso(Free.End));
    modSetting::Keep(settings, modSettingKey::MainAccount, Account);
    modSetting::Keep(settings, modSettingKey::MainGrouping, Grouping);
}

QString cViewState::FilterAccount() const
{
    return Account == modWord::AlleKonten ? QString() : Account;
}

modPeriod::cRange cViewState::Range(QDate today) const
{
    return modPeriod::Range(Period, today, Free);
}

cEntryQuery cViewState::Query(QDate today) const
{
    const modPeriod::cRange range = Range(today);
    cEntryQuery query;
    query.Start = range.Start;
    query.End = ShowsFuture ? range.End : range.End.isValid() ? std::min(range.End, today) : today;
    query.Account = FilterAccount();
    query.Type = modWord::QueryType(Type);
    query.Kind = Kind(*this);
    return query;
}

bool cViewState::ShowsChange(QDate today) const
{
    return !BalancesToToday && Range(today).Start.year() > firstYear;
}

cEntryQuery cViewState::BalanceQuery(QDate today) const
{
    cEntryQuery query;
    if (BalancesToToday) {
        query.End = today;
        return query;
    }
    query = Query(today);
    query.Account.clear();
    query.Type.clear();
    if (IsOpenEnd(today)) {
        query.End = today; // all that series bring in the years to come is nothing that an account holds
    }
    return query;
}
