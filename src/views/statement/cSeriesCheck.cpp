#include "views/statement/cSeriesCheck.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "import/propose/modOccurrence.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modBalance.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cContracts.h"
#include "views/entry/cEntryWriter.h"
#include "views/entry/cSplitGroup.h"
#include "views/ledger/modRowTwins.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int missedOfEnded = 2;    // occurrences without a row after which a series counts as ended
constexpr int daysOfHistory = 365;  // since the last day covered, after which statements are history
constexpr int shareOfLikeness = 20; // percent by which the amounts of row and occurrence may differ

bool MayPay(const cImportEntry& row, const cEntryItem& occurrence, qint64 cents)
{
    const qint64 difference = std::abs(row.ImportValue - cents);
    return std::abs(modOccurrence::Days(occurrence, row.ImportDate)) <= modOccurrence::Reach(occurrence.EntryInterval)
        && difference * 100 <= std::abs(cents) * shareOfLikeness;
}

// The planned occurrence with its corrections; one without an ID when the series has none on that day.
cEntryItem PlannedAt(const cEntryItem& series, const cEntryItemFixModList& fixMods, QDate planned)
{
    cEntryItemList occurrences;
    modRecurrence::Expand(series, {}, fixMods, occurrences);
    const auto found = std::find_if(occurrences.begin(), occurrences.end(),
                                    [&](const cEntryItem& each) { return each.Planned() == planned; });
    return found == occurrences.end() ? cEntryItem() : *found;
}

QDate Earlier(QDate first, QDate second)
{
    return first.isValid() ? std::min(first, second) : second;
}

// Where a late occurrence moves to: behind the rows, and behind today, whose balance does not hold it yet. None when
// the rows reach past the next but one, without which the series went on.
QDate DayToMoveTo(const QString& interval, QDate planned, QDate lastCovered, QDate today)
{
    const QDate second = modRecurrence::Next(modRecurrence::Next(planned, interval), interval);
    return second.addDays(modOccurrence::Reach(interval)) <= lastCovered ? QDate()
                                                                         : std::max(lastCovered, today).addDays(1);
}

// The last day that the statements of a number reach, whose rows end with `end`. Rows with a later value date only do
// not say that the statements reach up to that day.
QDate EndCovered(const cImportEntryList& rows, const QString& number, QDate end, const cBankBalanceList& balances)
{
    if (balances.isEmpty()) {
        return end;
    }
    const cBankBalance& newest = balances.last();
    const auto behind = std::count_if(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        return row.ImportAccount == number && row.ImportDate > newest.Day;
    });
    return behind <= newest.Late.Count ? newest.Day : std::max(end, newest.Day);
}

QDate LastOf(const QList<QDate>& days)
{
    return days.isEmpty() ? QDate() : *std::max_element(days.begin(), days.end());
}

} // namespace

cSeriesCheck::cSeriesCheck(const cBookTools& tools, cImportHiveCache& hive, const cAccountMap& accounts)
    : m_tools(tools),
      m_hive(hive),
      m_accounts(accounts)
{
}

// There are many rows and few numbers.
QString cSeriesCheck::AccountOf(const QString& number)
{
    const auto known = m_names.constFind(number);
    return known != m_names.constEnd() ? *known : *m_names.insert(number, m_accounts.AccountOf(number));
}

QHash<QString, cSeriesCheck::cAccountRows> cSeriesCheck::RowsByAccount()
{
    m_names.clear();
    QHash<QString, cAccountRows> accounts;
    QHash<QString, QDate> ends; // of the rows of each number
    const cImportEntryList rows = m_hive.GetImportHive().getImportEntryList();
    for (const cImportEntry& row : rows) {
        const QString name = AccountOf(row.ImportAccount);
        if (name.isEmpty() || !row.ImportDate.isValid()) {
            continue;
        }
        cAccountRows& account = accounts[name];
        modPeriod::cRange& covered = account.Covered;
        covered.Start = covered.Start.isValid() ? std::min(covered.Start, row.ImportDate) : row.ImportDate;
        QDate& end = ends[row.ImportAccount];
        end = end.isValid() ? std::max(end, row.ImportDate) : row.ImportDate;
        if (!row.ImportAssigned) {
            account.Open.append(row);
        }
    }
    LeaveOutDoubles(rows, accounts);
    const cBankBalances balances(m_tools.Settings);
    for (auto name = m_names.cbegin(); name != m_names.cend(); ++name) {
        const auto account = accounts.find(*name);
        if (account == accounts.end()) {
            continue;
        }
        const QDate end = EndCovered(rows, name.key(), ends.value(name.key()), balances.Of(name.key()));
        QDate& covered = account->Covered.End;
        covered = covered.isValid() ? std::max(covered, end) : end;
    }
    return accounts;
}

// A row that may be a booked one in other words stays open for ever, and pays nothing.
void cSeriesCheck::LeaveOutDoubles(const cImportEntryList& rows, QHash<QString, cAccountRows>& accounts) const
{
    const QHash<int, cRowTwin> twins = modRowTwins::Of(rows, m_accounts, m_tools.Settings);
    for (cAccountRows& account : accounts) {
        account.Open.removeIf([&](const cImportEntry& row) {
            const auto twin = twins.constFind(row.ID);
            return twin != twins.constEnd() && !twins.contains(twin->RowId);
        });
    }
}

// A transfer lies on the day of its debit, so the target's rows speak only where the source has none.
cEntryItemList cSeriesCheck::SeriesOf(const QString& account, const QHash<QString, cAccountRows>& rows)
{
    cEntryItemList all = m_tools.Data.GetSeriesOfAccount(account);
    QSet<int> groups;
    all.removeIf([&](const cEntryItem& entry) {
        const bool isHere = entry.EntryAccount == account || (entry.IsTransfer() && !rows.contains(entry.EntryAccount));
        const int group = modSplit::Group(entry);
        if (!isHere || !modRecurrence::IsRecurring(entry.EntryInterval) || !entry.EntryDate.isValid()
            || (group != 0 && groups.contains(group))) {
            return true;
        }
        groups.insert(group);
        return false;
    });
    return all;
}

QList<int> cSeriesCheck::Parts(const cEntryItem& entry) const
{
    QList<int> ids{entry.ID};
    const cEntryItemList parts = cSplitGroup(m_tools.Data).Parts(entry);
    for (const cEntryItem& part : parts) {
        if (part.ID != entry.ID) {
            ids.append(part.ID);
        }
    }
    return ids;
}

void cSeriesCheck::NotePaid(cSeries& series)
{
    const cEntryItemFixModList fixMods = m_tools.Data.GetEntryMods(series.Entry.ID);
    const QList<int> ids = Parts(series.Entry);
    for (const int id : ids) {
        const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).GetImportEntriesByAssignedID(id);
        for (const cImportEntry& row : rows) {
            if (AccountOf(row.ImportAccount) != series.Account) {
                continue;
            }
            if (const auto paid = modOccurrence::Nearest(series.Entry, row.ImportDate, fixMods)) {
                QDate& day = series.Paid[paid->Planned()];
                day = day.isValid() ? std::max(day, row.ImportDate) : row.ImportDate;
            }
        }
    }
}

QList<cSeriesCheck::cFinding> cSeriesCheck::Find(const QStringList& accounts)
{
    QList<cFinding> findings;
    const QHash<QString, cAccountRows> rows = RowsByAccount();
    QStringList names = rows.keys();
    std::sort(names.begin(), names.end());
    for (const QString& name : std::as_const(names)) {
        if (!accounts.isEmpty() && !accounts.contains(name)) {
            continue;
        }
        const cEntryItemList all = SeriesOf(name, rows);
        for (const cEntryItem& entry : all) {
            cSeries series{entry, name, *rows.constFind(name), {}};
            NotePaid(series);
            findings += FindIn(series);
        }
    }
    return findings;
}

// Those of the days. What a look before this one has put off behind today is among them, because it is still unpaid:
// else who reads old statements one by one would put off each month of a series that has ended.
cEntryItemList cSeriesCheck::OccurrencesOf(const cEntryItem& series, const modPeriod::cRange& days) const
{
    cEntryItemList occurrences;
    const QDate putOff = std::max(days.End, m_tools.Clock.Today().addDays(1));
    modRecurrence::Expand(series, {days.Start, putOff}, m_tools.Data.GetEntryMods(series.ID), occurrences);
    occurrences.removeIf([&](const cEntryItem& each) {
        return each.EntryDate > days.End && (each.Planned() > days.End || !modSeries::IsLate(each.CorrectionComment));
    });
    return occurrences;
}

QList<cSeriesCheck::cFinding> cSeriesCheck::FindIn(const cSeries& series)
{
    const modPeriod::cRange& covered = series.Rows.Covered;
    const bool isHistory = covered.End.addDays(daysOfHistory) < m_tools.Clock.Today();
    const QDate known = isHistory ? m_tools.Clock.Today() : covered.End;
    const int reach = modOccurrence::Reach(series.Entry.EntryInterval);
    const cEntryItemList occurrences = OccurrencesOf(series.Entry, {covered.Start, known});
    const QDate lastPaid = LastOf(series.Paid.keys());
    cFinding base{series.Entry.ID, series.Account, series.Paid.value(lastPaid), {}, false, {}, {}};
    QList<cFinding> late;
    int missed = 0;
    bool mayGoOn = false;
    for (const cEntryItem& occurrence : occurrences) {
        const QDate planned = occurrence.Planned();
        if (series.Paid.contains(planned)) {
            continue;
        }
        const qint64 cents = modBalance::Effect(occurrence, series.Account);
        const bool isTrailing = !lastPaid.isValid() || planned > lastPaid;
        if (std::any_of(series.Rows.Open.begin(), series.Rows.Open.end(),
                        [&](const cImportEntry& row) { return MayPay(row, occurrence, cents); })) {
            mayGoOn = mayGoOn || isTrailing;
            continue;
        }
        if (isTrailing && planned.addDays(reach) <= known) {
            base.Occurrence = Earlier(base.Occurrence, planned);
            ++missed;
        }
        if (cents != 0 && occurrence.EntryDate <= covered.End) {
            cFinding finding = base;
            finding.IsLate = true;
            finding.Occurrence = planned;
            if (isTrailing) { // else a later one was paid, and nothing of it is owed
                finding.MoveTo = DayToMoveTo(series.Entry.EntryInterval, planned, covered.End, m_tools.Clock.Today());
            }
            late.append(finding);
        }
    }
    if (missed < missedOfEnded || mayGoOn) {
        return late;
    }
    // An end before the first day would leave an entry that no list shows.
    base.End = lastPaid.isValid() ? lastPaid : std::max(base.Occurrence.addDays(-1), series.Entry.EntryDate);
    late.removeIf([&](const cFinding& finding) { return finding.Occurrence >= base.Occurrence; });
    return late + QList<cFinding>{base};
}

QString cSeriesCheck::NothingFound()
{
    return cText::Tr("Auf den Tagen, für die Kontoauszüge vorliegen, fehlt zu keiner Serie eine Buchung der Bank.");
}

bool cSeriesCheck::Apply(const QList<cFinding>& chosen)
{
    cUndoStep step(m_tools.Data, cText::Tr("Serien geprüft"));
    return step.DoneIf(std::all_of(chosen.begin(), chosen.end(), [this](const cFinding& finding) {
        const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(finding.EntryId);
        const QList<int> ids = entry ? Parts(*entry) : QList<int>();
        return entry && std::all_of(ids.begin(), ids.end(), [&](int id) { return ApplyOne(finding, id); });
    }));
}

bool cSeriesCheck::ApplyOne(const cFinding& finding, int entryId)
{
    const std::optional<cEntryItem> series = m_tools.Data.LoadEntry(entryId);
    if (!series) {
        return false;
    }
    if (!finding.IsLate) {
        return End(finding, *series);
    }
    const cEntryItem occurrence = PlannedAt(*series, m_tools.Data.GetEntryMods(entryId), finding.Occurrence);
    return occurrence.ID == 0 || Correct(occurrence, finding.MoveTo);
}

bool cSeriesCheck::End(const cFinding& finding, const cEntryItem& series)
{
    const QList<QDate> next = modSeries::Next(series, finding.End.addDays(1), 1);
    if (!next.isEmpty() && !cEntryWriter(m_tools.Data, m_tools.User).End(series.ID, next.first())) {
        return false;
    }
    cEntryItem ended = series;
    ended.EntryDateEnd = finding.End;
    if (!m_tools.Data.ChangeEntry(ended)) {
        return false;
    }
    // Nothing ever paid it, and its only day is left: it stays in sight, but counts for nothing.
    const bool isUnpaid = !finding.LastPaid.isValid() && finding.Occurrence == finding.End;
    const cEntryItem first = PlannedAt(ended, m_tools.Data.GetEntryMods(series.ID), finding.End);
    return !isUnpaid || first.ID == 0 || Correct(first, {});
}

// Moves the occurrence to the day, or leaves it out.
bool cSeriesCheck::Correct(const cEntryItem& occurrence, QDate day)
{
    cEntryItemFixMod fixMod = modSeries::CorrectionFor(occurrence);
    fixMod.EntryValue = day.isValid() ? occurrence.EntryValue : 0;
    fixMod.EntryDay = day.isValid() ? day : occurrence.EntryDate;
    const bool isOwn = occurrence.HasCorrection() && !modSeries::IsFromBank(occurrence.CorrectionComment);
    const QString why = day.isValid() ? modSeries::LateComment() : modSeries::MissedComment();
    fixMod.EntryComment = isOwn && day.isValid() ? occurrence.CorrectionComment : why;
    return m_tools.Data.AddNewEntryMod(fixMod);
}

QString cSeriesCheck::Line(const cFinding& finding) const
{
    const cEntryItem entry = m_tools.Data.LoadEntry(finding.EntryId).value_or(cEntryItem());
    const QString name = cText::Tr("'{0}' ({1})", {entry.Name(), finding.Account});
    const auto day = [](QDate date) { return modDate::ToText(date); };
    if (finding.IsLate && finding.MoveTo.isValid()) {
        return cText::Tr("{0}, fällig am {1}: noch nicht gebucht; wird auf den {2} verschoben",
                         {name, day(finding.Occurrence), day(finding.MoveTo)});
    }
    if (finding.IsLate) {
        return cText::Tr("{0}, fällig am {1}: nicht gebucht; wird ausgelassen", {name, day(finding.Occurrence)});
    }
    if (!finding.LastPaid.isValid()) {
        return cText::Tr("{0}: von der Bank nie gebucht; endet am {1}", {name, day(finding.End)});
    }
    return cText::Tr("{0}: zuletzt gebucht am {1}; endet am {2}", {name, day(finding.LastPaid), day(finding.End)});
}

QString cSeriesCheck::Contracts() const
{
    return cContracts(m_tools).Lines().join(u'\n');
}

QStringList cSeriesCheck::Ask(const QStringList& accounts, cDeclined* declined)
{
    const QList<cFinding> findings = Find(accounts);
    cDeclined found;
    for (const cFinding& finding : findings) {
        found.insert({finding.EntryId, finding.Occurrence});
    }
    if (findings.isEmpty() || (declined != nullptr && declined->contains(found))) {
        return {};
    }
    const QStringList lines = AskAbout(findings);
    if (declined != nullptr && lines.isEmpty()) {
        declined->unite(found);
    }
    return lines;
}

QStringList cSeriesCheck::AskAbout(const QList<cFinding>& findings)
{
    QStringList items;
    for (const cFinding& finding : findings) {
        items.append(Line(finding));
    }
    const QString contracts = Contracts();
    const std::optional<QList<int>> ticked = m_tools.User.Tick(
        {.Text =
             cText::Tr("Diese Serien sehen Buchungen vor, die auf den Kontoauszügen fehlen. Was angekreuzt ist, wird "
                       "geändert, damit das Haushaltsbuch mit der Bank übereinstimmt.")
             + (contracts.isEmpty() ? QString() : QString(u"\n\n"_s + contracts)),
         .Title = cText::Tr("Serien prüfen"),
         .Take = cText::Tr("Ü&bernehmen"),
         .Items = items});
    QList<cFinding> chosen;
    QStringList lines;
    for (const int place : ticked.value_or(QList<int>())) {
        chosen.append(findings.at(place));
        lines.append(items.at(place));
    }
    return !chosen.isEmpty() && Apply(chosen) ? lines : QStringList();
}
