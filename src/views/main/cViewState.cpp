#include "views/main/cViewState.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "model/modWord.h"
#include "views/list/modSetting.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Offered(const QString& stored, const QStringList& words, const QString& otherwise)
{
    return words.contains(stored) ? stored : otherwise;
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
    Period = Offered(settings.Get(u"MainZeitraum"_s), modWord::Periods().Stored(), modWord::AktuellesJahr);
    Free = FreeRange(settings.Get(u"MainZeitraumStart"_s), settings.Get(u"MainZeitraumEnd"_s));
    if (Period == modWord::FreierZeitraum && Free == modPeriod::cRange{}) {
        Free = modPeriod::Year(today, 0);
    }
    Account = Offered(settings.Get(u"MainKonto"_s), accounts, modWord::AlleKonten);
    Type = Offered(settings.Get(u"MainBuchungsart"_s), modWord::ViewTypes().Stored(), modWord::AlleBuchungsarten);
    Grouping = Offered(settings.Get(u"MainGruppierung"_s), modWord::Groupings().Stored(), modWord::KeineGruppierung);
    Filter = settings.Get(u"MainFilter"_s);
    ShowsSingle = settings.GetBool(u"ViewSingleBooking"_s);
    ShowsFix = settings.GetBool(u"ViewFixBooking"_s);
    ShowsFuture = settings.GetBool(u"ViewFutureBooking"_s);
    ShowsStart = settings.GetBool(u"ViewStartBooking"_s);
    BalancesToToday = settings.GetBool(u"ViewAccountValueAll"_s);
}

void cViewState::Save(cSettings& settings) const
{
    modSetting::Keep(settings, u"MainBuchungsart"_s, Type);
    modSetting::Keep(settings, u"MainFilter"_s, Filter);
    modSetting::Keep(settings, u"MainZeitraum"_s, Period);
    modSetting::Keep(settings, u"MainZeitraumStart"_s, modDate::ToIso(Free.Start));
    modSetting::Keep(settings, u"MainZeitraumEnd"_s, modDate::ToIso(Free.End));
    modSetting::Keep(settings, u"MainKonto"_s, Account);
    modSetting::Keep(settings, u"MainGruppierung"_s, Grouping);
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
    return query;
}
