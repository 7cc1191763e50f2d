#include "views/ledger/cOpeningBalance.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/stage/cLeftOutRows.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/entry/cStartBalance.h"
#include "views/ledger/cStatementLedger.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace {

// An entry made by hand may lie some days before the bank's booking, which draws it behind the first row.
constexpr int drawnDays = 10;

// What the entries up to a day come to, without the start balance and without those that rows behind that day pay.
class cHandEntries
{
public:
    cHandEntries(const cEntryItemList& entries, const QString& account, int startId, QDate day)
        : m_account(account),
          m_day(day)
    {
        for (const cEntryItem& entry : entries) {
            if (entry.ID != startId) {
                (entry.EntryDate <= day ? m_before : m_behind).append(entry);
            }
        }
    }

    [[nodiscard]] qint64 Sum(const cImportEntryList& rows) const
    {
        QHash<qint64, int> unpaid = Unpaid(rows);
        qint64 cents = 0;
        for (const cEntryItem& entry : m_before) {
            const qint64 effect = modBalance::Effect(entry, m_account);
            const bool isNear = entry.EntryDate > m_day.addDays(-drawnDays);
            if (isNear && unpaid.value(effect) > 0) {
                --unpaid[effect];
            } else {
                cents += effect;
            }
        }
        return cents;
    }

    [[nodiscard]] QDate First() const
    {
        QDate first = m_day;
        for (const cEntryItem& entry : m_before) {
            first = entry.EntryDate.isValid() ? qMin(first, entry.EntryDate) : first;
        }
        return first;
    }

private:
    // The amounts of the first rows that no entry of their own days stands for.
    [[nodiscard]] QHash<qint64, int> Unpaid(const cImportEntryList& rows) const
    {
        QHash<qint64, int> unpaid;
        for (const cImportEntry& row : rows) {
            unpaid[row.ImportValue] += row.ImportDate <= m_day.addDays(drawnDays) ? 1 : 0;
        }
        for (const cEntryItem& entry : m_behind) {
            --unpaid[modBalance::Effect(entry, m_account)];
        }
        return unpaid;
    }

    QString m_account;
    QDate m_day;
    cEntryItemList m_before;
    cEntryItemList m_behind;
};

// Before the first row. What is missing behind a balance named by then may have a day before that row.
qint64 ErrorOn(const modBalanceCheck::cResult& check, QDate day)
{
    const auto named = std::find_if(check.Points.rbegin(), check.Points.rend(),
                                    [&](const modBalanceCheck::cPoint& point) { return point.Day <= day; });
    return check.ErrorOn(named == check.Points.rend() ? day : named->Day);
}

bool IsOneAccount(cStatementLedger& ledger)
{
    return !ledger.AccountOf(ledger.Number()).isEmpty() && !ledger.Rows().isEmpty() && !ledger.IsShared();
}

QDate DayBefore(const cStatementLedger& ledger)
{
    return ledger.Rows().constFirst().ImportDate.addDays(-1);
}

// The bank may have named the balance long before the first row: without it the book would hold nothing until then.
QDate NamedSince(const modBalanceCheck::cResult& check, QDate day, qint64 cents)
{
    QDate since = day;
    const auto other = std::find_if(check.Points.rbegin(), check.Points.rend(), [&](const auto& point) {
        return point.Day <= day && point.Bank - point.Moved != cents;
    });
    std::for_each(check.Points.rbegin(), other, [&](const auto& point) { since = qMin(since, point.Day); });
    return since;
}

// What was there before all rows, when it came to the cents by the end of the day.
qint64 Before(const cStatementLedger& ledger, QDate day, qint64 cents)
{
    for (const cImportEntry& row : ledger.Rows()) {
        cents -= row.ImportDate <= day ? row.ImportValue : 0;
    }
    return cents;
}

} // namespace

QStringList cOpeningBalance::Due(QStringList numbers, int newestBefore, const QStringList& balanced) const
{
    numbers += balanced; // perhaps without a row
    numbers.removeDuplicates();
    numbers.removeIf([&](const QString& number) { return !balanced.contains(number) && !IsDue(number, newestBefore); });
    return numbers;
}

// Of a refusal the user has been told.
void cOpeningBalance::Expect(const QStringList& numbers) const
{
    for (const QString& number : numbers) {
        (void)m_tools.Settings.SetBool(modSettingKey::StartDue.Of(number), true);
    }
}

void cOpeningBalance::Settle(const QString& number) const
{
    (void)m_tools.Settings.Delete(modSettingKey::StartDue.Of(number));
}

bool cOpeningBalance::IsDue(const QString& number, int newestBefore) const
{
    cStatementLedger ledger(m_tools.Data, m_tools.Settings);
    if (ledger.AccountOf(number).isEmpty() || m_tools.Settings.GetBool(modSettingKey::StartDue.Of(number))) {
        return true;
    }
    ledger.Load(number); // with rows that may be there twice: to find those takes longer than to see that all is right
    const cImportEntryList& rows = ledger.Rows();
    const auto isKnown = [&](const cImportEntry& row) { return row.ID <= newestBefore; };
    const auto known = std::find_if(rows.begin(), rows.end(), isKnown);
    if (known == rows.end()) {
        return true;
    }
    const auto fresh = std::find_if_not(rows.begin(), rows.end(), isKnown);
    if (fresh == rows.end()) {
        return false;
    }
    const bool isFirst = fresh->ImportDate < known->ImportDate;
    if (ledger.Check().IsAnchored) { // perhaps by a balance that came without the rows behind it
        return isFirst || fresh->ImportDate <= ledger.Check().Points.constFirst().Day;
    }
    const std::optional<cEntryItem> start = m_tools.Data.GetStartGuthaben(ledger.AccountOf(number));
    return isFirst && start && start->EntryDate >= fresh->ImportDate;
}

std::optional<cOpeningBalance::cOffer> cOpeningBalance::For(const QString& number) const
{
    cStatementLedger ledger(m_tools.Data, m_tools.Settings);
    ledger.LoadOnce(number);
    if (!IsOneAccount(ledger)) {
        return std::nullopt;
    }
    const std::optional<cEntryItem> stored = m_tools.Data.GetStartGuthaben(ledger.AccountOf(number));
    const std::optional<qint64> bank = ledger.Check().IsAnchored ? Opening(ledger) : CountBack(ledger, stored);
    return bank ? OfferOf(ledger, *bank, stored) : std::nullopt;
}

std::optional<cOpeningBalance::cOffer> cOpeningBalance::For(const QString& number, QDate day, qint64 cents) const
{
    cStatementLedger ledger(m_tools.Data, m_tools.Settings);
    ledger.LoadOnce(number);
    if (!IsOneAccount(ledger)) {
        return std::nullopt;
    }
    const std::optional<qint64> bank = ledger.Check().IsAnchored ? Opening(ledger) : std::nullopt;
    return OfferOf(ledger, bank.value_or(Before(ledger, day, cents)),
                   m_tools.Data.GetStartGuthaben(ledger.AccountOf(number)));
}

std::optional<cOpeningBalance::cOffer> cOpeningBalance::OfferOf(const cStatementLedger& ledger, qint64 bank,
                                                                const std::optional<cEntryItem>& stored) const
{
    cOffer offer;
    offer.Account = ledger.AccountOf(ledger.Number());
    offer.Day = DayBefore(ledger);
    offer.Bank = bank;
    offer.LastDay = ledger.Rows().constLast().ImportDate;
    const modBalanceCheck::cResult& check = ledger.Check();
    if (check.IsAnchored && check.ErrorOn(offer.LastDay) != ErrorOn(check, offer.Day)) {
        offer.LastDay = offer.Day; // rows are missing in between, so the book will not come to what the bank says last
        offer.Last = bank;
    } else {
        offer.Last = std::accumulate(ledger.Rows().begin(), ledger.Rows().end(), bank,
                                     [](qint64 sum, const cImportEntry& row) { return sum + row.ImportValue; });
    }
    offer.FormerDay = ledger.Check().IsAnchored || !stored ? QDate() : stored->EntryDate;
    const cEntryItemList entries =
        m_tools.Data.GetEntries({{}, offer.Day.addDays(drawnDays), {}, offer.Account, {}, eBookingKind::All});
    const cHandEntries hand(entries, offer.Account, stored ? stored->ID : 0, offer.Day);
    const qint64 sum = hand.Sum(ledger.Rows());
    const qint64 former = stored ? modBalance::Effect(*stored, offer.Account) : 0;
    const bool counts = stored && stored->EntryDate <= offer.Day;
    offer.Book = sum + (counts ? former : 0);
    offer.Former = stored ? std::optional(former) : std::nullopt;
    offer.Start = offer.Bank - sum;
    const QDate since = offer.Start == bank ? NamedSince(check, offer.Day, bank) : offer.Day;
    offer.StartDay = qMin(since, hand.First());
    if (counts && stored->EntryDate.isValid()) {
        offer.IsOnlyDay = offer.Book == bank && former != 0 && since < stored->EntryDate;
        offer.StartDay = qMin(stored->EntryDate, offer.StartDay);
    }
    const bool agrees = offer.Book == offer.Bank && (counts || former == 0); // a later start balance counts on top
    return agrees && !offer.IsOnlyDay ? std::nullopt : std::optional(offer);
}

// What the balances of the bank say; none where rows before the first of them were left out. Those that are missing
// between two of them change nothing before.
std::optional<qint64> cOpeningBalance::Opening(const cStatementLedger& ledger) const
{
    const QDate day = DayBefore(ledger);
    const modBalanceCheck::cResult& check = ledger.Check();
    const bool isNamed = check.Points.constFirst().Day <= day;
    if (!isNamed && !cLeftOutRows(m_tools.Settings).Of(ledger.Number()).isEmpty()) {
        return std::nullopt;
    }
    return check.Opening - ErrorOn(check, day);
}

// Where the bank names no balance, what the user has stored as that of a later day: all rows up to that day led to it,
// when none was left out. On the day of the first row it is rather what the account began with.
std::optional<qint64> cOpeningBalance::CountBack(const cStatementLedger& ledger,
                                                 const std::optional<cEntryItem>& stored) const
{
    if (!stored || stored->EntryDate <= ledger.Rows().constFirst().ImportDate
        || !cLeftOutRows(m_tools.Settings).Of(ledger.Number()).isEmpty()) {
        return std::nullopt;
    }
    return Before(ledger, stored->EntryDate, modBalance::Effect(*stored, stored->EntryAccount));
}

// First what the user can see on the statement, because that is what he can answer; then how the book gets there.
QString cOpeningBalance::Question(const cOffer& offer) const
{
    const QStringList values{offer.Account,
                             modDate::ToText(offer.FormerDay.isValid() ? offer.FormerDay : offer.LastDay),
                             m_tools.Format.Cents(offer.FormerDay.isValid() ? offer.Former.value_or(0) : offer.Last),
                             m_tools.Format.Cents(offer.Start),
                             modDate::ToText(offer.StartDay),
                             m_tools.Format.Cents(offer.Former.value_or(0))};
    if (offer.IsOnlyDay) {
        return cText::Tr(
            "Schon am {4} waren laut Kontoauszug {3} auf dem Konto '{0}'. Soll das Startguthaben von diesem "
            "Tag an zählen?",
            values);
    }
    if (offer.FormerDay.isValid()) {
        return cText::Tr("Als Stand vom {1} sind {2} für das Konto '{0}' eingetragen. Soll das so bleiben?", values)
            + u"\n\n"
            + cText::Tr("Mit „Ja“ wird er auf den {4} zurückgerechnet ({3}), mit „Nein“ zählen die früheren Umsätze "
                        "zusätzlich.",
                        values);
    }
    return cText::Tr("Am {1} waren laut Kontoauszug {2} auf dem Konto '{0}'. Soll Ihr Buch dasselbe sagen, sobald die "
                     "Umsätze gebucht sind?",
                     values)
        + u"\n\n"
        + (offer.Former
               ? cText::Tr(
                   "Mit „Ja“ wird das Startguthaben von {5} auf {3} geändert: so viel war vor dem ersten Umsatz da.",
                   values)
               : cText::Tr(
                   "Mit „Ja“ werden {3} als Startguthaben vom {4} eingetragen: so viel war vor dem ersten Umsatz da.",
                   values));
}

QString cOpeningBalance::Report(const cOffer& offer) const
{
    return cText::Tr(offer.FormerDay.isValid()
                         ? QT_TRANSLATE_NOOP("cText", "Startguthaben von '{0}': {1} am {2}, zurückgerechnet.")
                         : QT_TRANSLATE_NOOP("cText", "Startguthaben von '{0}': {1} am {2}, laut Kontoauszug."),
                     {offer.Account, m_tools.Format.Cents(offer.Start), modDate::ToText(offer.StartDay)});
}

bool cOpeningBalance::Take(const cOffer& offer) const
{
    return cStartBalance(m_tools.Data, m_tools.Format.Decimal()).Save(offer.Account, offer.Start, offer.StartDay);
}
