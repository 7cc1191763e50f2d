#include "import/propose/cSeriesFinder.h"

#include "import/cell/modTextDate.h"
#include "import/propose/modOccurrence.h"
#include "import/read/cCounterpartyKeys.h"
#include "import/read/modCounterparty.h"
#include "import/read/modTextWords.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"

#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int nearDays = 5; // what is booked so near to its day may have another amount

bool IsLike(const cEntryItem& series, const cEntryItem& entry)
{
    return (series.EntryInterval == entry.EntryInterval || !modRecurrence::IsRecurring(entry.EntryInterval))
        && series.EntryType == entry.EntryType && series.EntryAccount == entry.EntryAccount
        && series.EntryAccountMove == entry.EntryAccountMove && series.EntryCategory == entry.EntryCategory;
}

bool IsAbout(qint64 cents, qint64 usual)
{
    constexpr int mostPercent = 20;
    return std::abs(std::abs(cents) - std::abs(usual)) * 100 <= std::abs(usual) * mostPercent;
}

// A raised rent or a doubled salary; what is less than half or more than twice as much is paid for something else.
bool MayBe(qint64 cents, qint64 usual)
{
    return std::abs(cents) * 2 >= std::abs(usual) && std::abs(cents) <= std::abs(usual) * 2;
}

// The day from which one step leads exactly to this one, so that a series moved to it keeps all its occurrences. There
// is none before a 31st that follows a shorter month.
QDate Previous(QDate day, const QString& interval)
{
    constexpr int mostShorter = 3; // days by which a month is shorter than another
    const qint64 step = day.daysTo(modRecurrence::Next(day, interval));
    for (QDate previous = day.addDays(-step - mostShorter); previous < day; previous = previous.addDays(1)) {
        if (modRecurrence::Next(previous, interval) == day) {
            return previous;
        }
    }
    return {};
}

QString DaysKey(const cImportEntry& row, const QString& counterparty)
{
    return counterparty.isEmpty() ? modCounterparty::PurposeKey(row) : counterparty;
}

bool IsMonth(const QString& word)
{
    return modTextDate::Read(QString(u"1 "_s + word + u" 2000"_s)).isValid();
}

// All but numbers, dates and months.
QString WordsOf(const QString& text)
{
    QStringList words;
    const QList<modTextWords::cWord> all = modTextWords::Of(text);
    for (const modTextWords::cWord& word : all) {
        if (!modTextWords::HasDigits(word.Folded, 1) && !IsMonth(word.Folded)) {
            words.append(word.Folded);
        }
    }
    return words.join(u' ');
}

} // namespace

cSeriesFinder::cSeriesFinder(cDataAccess& data, cImportHiveCache& hive) : m_data(data), m_hive(hive)
{
}

// Nearly all rows went to entries that happen once, so only those of series are looked at closely.
void cSeriesFinder::Build()
{
    const cEntryItemList series = m_data.GetSeries();
    for (const cEntryItem& each : series) {
        m_series.insert(each.ID, each);
    }
    const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
    for (const cImportEntry& row : rows) {
        if (row.ImportAssigned && m_series.contains(row.ImportAssignedEntry)) {
            Note(row, row.ImportAssignedEntry);
        }
    }
    m_isBuilt = true;
}

void cSeriesFinder::Note(const cImportEntry& row, int series)
{
    const QString key = modCounterparty::Key(row);
    m_entries[key].insert(series);
    if (const QString name = modCounterparty::NameKey(row); !name.isEmpty() && name != key) {
        m_named[name].insert(series);
    }
    if (const QString words = key.isEmpty() ? WordsOf(row.ImportPurpose) : QString(); !words.isEmpty()) {
        m_unnamed[words].insert(series);
    }
}

void cSeriesFinder::BuildDays()
{
    cCounterpartyKeys keys;
    const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
    for (const cImportEntry& row : rows) {
        if (row.ImportDate.isValid()) {
            cDays& days = m_days[DaysKey(row, keys.Of(row))][row.ImportAccount];
            (row.ImportValue < 0 ? days.Out : days.In)
                .insert(row.ImportDate, {row.ID, row.ImportValue, row.ImportAssigned ? row.ImportAssignedEntry : 0});
        }
        QDate& last = m_lastDays[row.ImportAccount];
        last = last.isValid() ? std::max(last, row.ImportDate) : row.ImportDate;
    }
    m_hasDays = true;
}

void cSeriesFinder::Learn(const cImportEntry& row, const cEntryItem& series)
{
    if (m_isBuilt && modRecurrence::IsRecurring(series.EntryInterval)) {
        Note(row, series.ID);
        m_series.insert(series.ID, series);
    }
}

std::optional<cSeriesMatch> cSeriesFinder::Find(const cImportEntry& row, const cEntryItem& entry)
{
    const bool isRecurring = modRecurrence::IsRecurring(entry.EntryInterval);
    if (entry.EntryAccount.isEmpty() || (!isRecurring && entry.IsTransfer())) {
        return std::nullopt;
    }
    if (!m_isBuilt) {
        Build();
    }
    const cEntryItemList alike = Alike(row, entry);
    for (const cEntryItem& series : alike) {
        if (std::optional<cSeriesMatch> match = Match(series, row)) {
            return match;
        }
    }
    if (!isRecurring) {
        return std::nullopt;
    }
    std::optional<cSeriesMatch> match = Reopen(alike, row);
    return match ? match : Precede(alike, row);
}

// Some formats give the account of the counterparty and some do not: rows with and without it belong together by name.
QSet<int> cSeriesFinder::SeriesOf(const cImportEntry& row) const
{
    const QString key = modCounterparty::Key(row);
    const QString name = modCounterparty::NameKey(row);
    const QSet<int> others = (name == key ? m_named : m_entries).value(name);
    return name.isEmpty() ? m_entries.value(key) : m_entries.value(key) + others; // nobody has no name of his own
}

// A bank without a column for them puts names before the purpose and references behind it.
QSet<int> cSeriesFinder::UnnamedLike(const cImportEntry& row) const
{
    QSet<int> series = m_unnamed.value(WordsOf(row.ImportPurpose));
    if (WordsOf(row.ImportBeneficiary).isEmpty()) {
        return series;
    }
    const QString whole = WordsOf(row.ImportBeneficiary + u' ' + row.ImportPurpose);
    for (auto at = m_unnamed.lowerBound(whole); at != m_unnamed.cend() && at.key().startsWith(whole); ++at) {
        const bool isWholeWord = at.key().size() == whole.size() || at.key().at(whole.size()) == u' ';
        series += isWholeWord ? at.value() : QSet<int>();
    }
    return series;
}

// A row that names nobody may pay any of them, because its words change; one that does, those that rows without a name
// have paid in the same words: who comes with others may be somebody new. Whoever pays for two flats has two series:
// the one of the nearer amount first.
cEntryItemList cSeriesFinder::Alike(const cImportEntry& row, const cEntryItem& entry)
{
    const bool isNamed = !modCounterparty::Key(row).isEmpty();
    QList<int> ids = SeriesOf(row).values();
    if (modRecurrence::IsRecurring(entry.EntryInterval)) {
        ids = isNamed ? (SeriesOf(row) + UnnamedLike(row)).values() : m_series.keys();
    }
    std::sort(ids.begin(), ids.end());
    cEntryItemList alike;
    for (const int id : std::as_const(ids)) {
        if (const cEntryItem series = m_series.value(id); IsLike(series, entry)) {
            alike.append(series);
        }
    }
    const auto difference = [&](const cEntryItem& series) {
        return std::abs(std::abs(row.ImportValue) - series.EntryValue);
    };
    std::stable_sort(alike.begin(), alike.end(),
                     [&](const auto& a, const auto& b) { return difference(a) < difference(b); });
    return alike;
}

// Only the latest: one before it ended because another took its place.
std::optional<cSeriesMatch> cSeriesFinder::Reopen(const cEntryItemList& alike, const cImportEntry& row)
{
    constexpr int mostMissed = 3;
    const auto latest = std::max_element(alike.begin(), alike.end(),
                                         [](const auto& a, const auto& b) { return a.EntryDate < b.EntryDate; });
    if (latest == alike.end() || modRecurrence::EffectiveEnd(latest->EntryDateEnd) >= row.ImportDate) {
        return std::nullopt;
    }
    cEntryItem series = *latest;
    series.EntryDateEnd = modRecurrence::OpenEnd;
    const QList<QDate> next = modSeries::Next(series, latest->EntryDateEnd.addDays(1), mostMissed);
    std::optional<cSeriesMatch> match = Match(series, row);
    const qsizetype place = match ? next.indexOf(match->Occurrence.Planned()) : -1;
    if (place < 0 || !IsAbout(row.ImportValue, match->Occurrence.EntryValue)) {
        return std::nullopt;
    }
    match->IsExtended = true;
    match->Missed = Missed(series, next.first(place), row);
    return match;
}

cEntryItemFixModList cSeriesFinder::Missed(cEntryItem occurrence, const QList<QDate>& days, const cImportEntry& row)
{
    cEntryItemFixModList missed;
    for (const QDate day : days) {
        occurrence.EntryDate = day;
        if (!HasPayment(occurrence, row)) {
            cEntryItemFixMod& fixMod = missed.emplace_back(modSeries::CorrectionFor(occurrence));
            fixMod.EntryDay = day;
            fixMod.EntryComment = modSeries::MissedComment();
        }
    }
    return missed;
}

// The first of about that amount that begins behind the row. Its start goes back by whole intervals, so its other
// occurrences stay as they are; the day of the row is a correction like any other.
std::optional<cSeriesMatch> cSeriesFinder::Precede(const cEntryItemList& alike, const cImportEntry& row)
{
    std::optional<cEntryItem> first;
    QDate before; // the days up to it are near the row
    for (const cEntryItem& series : alike) {
        before = row.ImportDate.addDays(modOccurrence::Reach(series.EntryInterval)); // the same for all of them
        if (IsAbout(row.ImportValue, series.EntryValue) && series.EntryDate > before
            && (!first || series.EntryDate < first->EntryDate)) {
            first = series;
        }
    }
    if (!first || modSplit::Group(*first) != 0) {
        return std::nullopt;
    }
    do {
        first->EntryDate = Previous(first->EntryDate, first->EntryInterval);
    } while (first->EntryDate > before && HasPayment(*first, row));
    std::optional<cSeriesMatch> match = first->EntryDate.isValid() ? Match(*first, row) : std::nullopt;
    if (match) {
        match->IsExtended = true;
    }
    return match;
}

// True when a row of the row's counterparty pays about the first occurrence of the series, or is going to: what was
// booked to another entry stands in the book already.
bool cSeriesFinder::HasPayment(const cEntryItem& series, const cImportEntry& row)
{
    const int reach = modOccurrence::Reach(series.EntryInterval);
    const cPayments payments = PaymentsLike(row);
    const auto end = payments.upperBound(series.EntryDate.addDays(reach));
    return std::any_of(payments.lowerBound(series.EntryDate.addDays(-reach)), end, [&](const cPayment& payment) {
        return payment.RowId != row.ID && (payment.EntryId == 0 || payment.EntryId == series.ID)
            && IsAbout(payment.Cents, series.EntryValue);
    });
}

cSeriesFinder::cPayments cSeriesFinder::PaymentsLike(const cImportEntry& row)
{
    const cDays known = DaysOf(row);
    return row.ImportValue < 0 ? known.Out : known.In;
}

cSeriesFinder::cDays cSeriesFinder::DaysOf(const cImportEntry& row)
{
    if (!m_hasDays) {
        BuildDays();
    }
    return m_days.value(DaysKey(row, modCounterparty::Key(row))).value(row.ImportAccount);
}

bool cSeriesFinder::IsTakenBack(const cImportEntry& row)
{
    constexpr int farthestDays = 10; // a returned direct debit takes the bank a week
    const cDays known = DaysOf(row);
    const cPayments& back = row.ImportValue < 0 ? known.In : known.Out;
    const QDate last = row.ImportDate.addDays(farthestDays);
    for (auto day = back.lowerBound(row.ImportDate.addDays(-farthestDays)); day != back.end() && day.key() <= last;
         ++day) {
        if (day->Cents == -row.ImportValue) {
            return true;
        }
    }
    return false;
}

bool cSeriesFinder::IsContradicted(const cImportEntry& row, const QString& interval)
{
    constexpr int mostBeside = 3; // in the half interval before and behind; who is paid more often is a shop
    const int reach = modOccurrence::Reach(interval);
    const QDate next = modRecurrence::Next(row.ImportDate, interval);
    const qint64 step = row.ImportDate.daysTo(next);
    const qint64 nearStep = std::min<qint64>(reach, step / 3); // halfway between two payments is no step from either
    const cPayments payments = PaymentsLike(row);
    bool hasNeighbour = false;
    bool hasOthers = false;
    int beside = 0;
    for (auto payment = payments.cbegin(); payment != payments.cend(); ++payment) {
        const qint64 distance = std::abs(row.ImportDate.daysTo(payment.key()));
        const qint64 off = std::abs(distance - step);
        beside += distance != 0 && distance <= reach ? 1 : 0;
        if (IsAbout(payment->Cents, row.ImportValue)) {
            if (distance != 0 && distance < step - nearStep) {
                return true;
            }
            hasNeighbour = hasNeighbour || off <= nearStep;
            hasOthers = hasOthers || distance != 0;
        } else {
            hasOthers = hasOthers || distance <= step + reach;
            hasNeighbour = hasNeighbour
                || (off <= nearDays && MayBe(row.ImportValue, payment->Cents)
                    && !HasAbout(payments, payment->Cents, row, reach));
        }
    }
    return beside > mostBeside
        || (!hasNeighbour && (hasOthers || m_lastDays.value(row.ImportAccount) > next.addDays(reach)));
}

bool cSeriesFinder::HasAbout(const cPayments& payments, qint64 cents, const cImportEntry& row, int reach)
{
    return std::any_of(
        payments.lowerBound(row.ImportDate.addDays(-reach)), payments.upperBound(row.ImportDate.addDays(reach)),
        [&](const cPayment& payment) { return payment.RowId != row.ID && IsAbout(payment.Cents, cents); });
}

// The amount tells, or the day does where nothing else pays the occurrence.
std::optional<cSeriesMatch> cSeriesFinder::Match(const cEntryItem& series, const cImportEntry& row)
{
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(series.ID);
    const std::optional<cEntryItem> occurrence = modOccurrence::Nearest(series, row.ImportDate, fixMods);
    if (!occurrence || IsTaken(series, *occurrence, fixMods, row)) {
        return std::nullopt;
    }
    cEntryItem usual = *occurrence;
    usual.EntryValue = modOccurrence::Usual(series, *occurrence);
    const bool isLike = IsAbout(row.ImportValue, usual.EntryValue)
        || (MayBe(row.ImportValue, usual.EntryValue) && std::abs(modOccurrence::Days(usual, row.ImportDate)) <= nearDays
            && !HasPayment(usual, row));
    return isLike ? std::optional(cSeriesMatch{series, *occurrence}) : std::nullopt;
}

bool cSeriesFinder::IsTaken(const cEntryItem& series, const cEntryItem& occurrence, const cEntryItemFixModList& fixMods,
                            const cImportEntry& wanted)
{
    const int reach = modOccurrence::Reach(series.EntryInterval);
    const QDate from = std::min(occurrence.EntryDate, occurrence.Planned()).addDays(-reach);
    const QDate to = std::max(occurrence.EntryDate, occurrence.Planned()).addDays(reach);
    const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).GetImportEntryByArea(series.ID, from, to);
    return std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        const std::optional<cEntryItem> paid = modOccurrence::Nearest(series, row.ImportDate, fixMods);
        // A transfer has a row in each of its accounts.
        const bool isSameSide = (row.ImportValue < 0) == (wanted.ImportValue < 0);
        return row.ID != wanted.ID && isSameSide && paid && paid->Planned() == occurrence.Planned();
    });
}
