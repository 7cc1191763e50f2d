#include "core/modDemo.h"

#include "base/modDate.h"
#include "core/modDemoSeries.h"
#include "core/modDemoShopping.h"
#include "model/bank/cBankBalance.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int OpenRows = 16; // of the purchases by card the last ones are not booked yet

bool WriteStartBalances(cDataAccess& data, QDate day)
{
    return data.SetStartGuthaben(u"Girokonto"_s, 424250, day) && data.SetStartGuthaben(u"Sparkonto"_s, 420000, day)
        && data.SetStartGuthaben(u"Bargeld"_s, 9500, day);
}

bool WriteRows(cDataAccess& data, cImportEntryList list)
{
    return std::all_of(list.begin(), list.end(), [&](cImportEntry& row) { return data.AddNewImportEntry(row); });
}

bool WriteOneSeries(cDataAccess& data, const modDemo::cDemoPlan& plan, modDemo::cDemoSeries series)
{
    if (!data.AddNewEntry(series.Entry)) {
        return false;
    }
    const bool isCorrected = std::all_of(series.Mods.begin(), series.Mods.end(), [&](cEntryItemFixMod& fixMod) {
        fixMod.EntryRelation = series.Entry.ID;
        return data.AddNewEntryMod(fixMod);
    });
    return isCorrected && WriteRows(data, modDemo::BankRows(series.Entry, series.Mods, plan));
}

bool WriteSeries(cDataAccess& data, const modDemo::cDemoPlan& plan, const QList<modDemo::cDemoSeries>& list)
{
    return std::all_of(list.begin(), list.end(),
                       [&](const modDemo::cDemoSeries& series) { return WriteOneSeries(data, plan, series); });
}

bool WritePurchase(cDataAccess& data, const modDemo::cDemoPlan& plan, modDemo::cDemoPurchase purchase,
                   int cardPurchasesAfter)
{
    const bool isCard = !purchase.Staged.ImportAccount.isEmpty();
    if (isCard && cardPurchasesAfter < OpenRows) {
        return data.AddNewImportEntry(purchase.Staged);
    }
    if (!data.AddNewEntry(purchase.Entry)) {
        return false;
    }
    if (!isCard || purchase.Staged.ImportDate < modDemo::FirstBankDay(plan)) {
        return true;
    }
    purchase.Staged.ImportAssigned = true;
    purchase.Staged.ImportAssignedEntry = purchase.Entry.ID;
    return data.AddNewImportEntry(purchase.Staged);
}

bool WritePurchases(cDataAccess& data, const modDemo::cDemoPlan& plan, const QList<modDemo::cDemoPurchase>& list)
{
    auto cardPurchases =
        static_cast<int>(std::count_if(list.begin(), list.end(), [](const modDemo::cDemoPurchase& purchase) {
            return !purchase.Staged.ImportAccount.isEmpty();
        }));
    return std::all_of(list.begin(), list.end(), [&](const modDemo::cDemoPurchase& purchase) {
        cardPurchases -= purchase.Staged.ImportAccount.isEmpty() ? 0 : 1;
        return WritePurchase(data, plan, purchase, cardPurchases);
    });
}

bool WriteEvents(cDataAccess& data, const modDemo::cDemoPlan& plan, cEntryItemList list)
{
    return std::all_of(list.begin(), list.end(), [&](cEntryItem& entry) {
        return data.AddNewEntry(entry) && WriteRows(data, modDemo::BankRows(entry, {}, plan));
    });
}

struct cLimit
{
    const char* Path;
    const char* Amount; // a month, as it is stored
};

constexpr std::array<cLimit, 8> limits{{
    {"Haushalt; Lebensmittel", "650.00"},
    {"Haushalt; Anschaffungen", "150.00"},
    {"Alltag; Kleidung", "120.00"},
    {"Alltag; Bücher und Zeitschriften", "30.00"},
    {"Auto; Benzin", "180.00"},
    {"Auto; Parken", "20.00"},
    {"Freizeit; Restaurant / Café", "150.00"},
    {"Kinder; Spielzeug", "40.00"},
}};

// What the family wants to spend in a month at most.
bool WriteLimits(cDataAccess& data)
{
    return std::all_of(limits.begin(), limits.end(), [&](const cLimit& limit) {
        const QString path = QString::fromUtf8(limit.Path);
        std::optional<cTemplateItem> item = data.FindTemplate(modTemplate::MainOf(path), modTemplate::SubOf(path));
        if (!item) {
            return false;
        }
        item->TemplateDefaultValue = QString::fromLatin1(limit.Amount);
        return data.ChangeTemplate(*item);
    });
}

// The bank's number of an account of the book, and what the bank says of it on the last day: what the book had before
// the bank's first row, and all rows since.
bool WriteBankAccount(cDataAccess& data, const modDemo::cDemoPlan& plan, const QString& number, const QString& account)
{
    qint64 cents = 0;
    const QDate before = modDemo::FirstBankDay(plan).addDays(-1);
    const cEntryItemList entries = data.GetEntries({{}, before, {}, account, {}, eBookingKind::All});
    for (const cEntryItem& entry : entries) {
        cents += modBalance::Effect(entry, account);
    }
    const cImportEntryList rows = data.GetImportEntries();
    for (const cImportEntry& row : rows) {
        cents += row.ImportAccount == number ? row.ImportValue : 0;
    }
    return data.ChangeSettingItem(modSettingKey::BankNumber.Of(number).Name(), account)
        && data.ChangeSettingItem(modSettingKey::BankBalances.Of(number).Name(),
                                  cBankBalance{plan.Today, cents}.ToText());
}

} // namespace

modDemo::cDemoPlan modDemo::OfSize(int entries, QDate today)
{
    if (entries <= 5000) {
        return {today, 3, entries};
    }
    return {today, entries <= 50000 ? 10 : 25, entries};
}

bool modDemo::Write(cDataAccess& data, const cDemoPlan& plan)
{
    constexpr int startBalances = 3;
    const QList<cDemoSeries> series = Series(plan);
    const cEntryItemList events = Events(plan);
    const auto fixed = static_cast<int>(series.size() + events.size()) + startBalances;
    const int purchases = plan.Entries == 0 ? UsualPurchases(plan) : qMax(plan.Entries - fixed, 0) + OpenRows;
    return WriteStartBalances(data, FirstDay(plan)) && WriteSeries(data, plan, series)
        && WriteEvents(data, plan, events) && WritePurchases(data, plan, Purchases(plan, purchases))
        && WriteRows(data, Mail(plan)) && WriteBankAccount(data, plan, GiroNumber, u"Girokonto"_s)
        && WriteBankAccount(data, plan, SparNumber, u"Sparkonto"_s) && WriteLimits(data);
}
