#include "views/statement/cCorrectionFlow.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/modMatchScore.h"
#include "import/propose/modOccurrence.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntryWriter.h"
#include "views/entry/cSplitGroup.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostLines = 8; // of a question

QString Listed(const QStringList& lines)
{
    return modCount::Cut(lines, mostLines).join(u'\n');
}

QString Named(const cEntryItem& entry)
{
    return cText::Tr("'{0}' vom {1}", {entry.Name(), modDate::ToText(entry.EntryDate)});
}

// The entry as its row tells it.
cEntryItem AsRow(cEntryItem entry, const cImportEntry& row)
{
    entry.EntryDate = modOccurrence::DayBy(entry, row);
    entry.EntryValue = std::abs(row.ImportValue);
    return entry;
}

// An entry that is paid in parts is right as it is. What is less than a euro away was written down roundly.
bool IsPart(const cEntryItem& entry, const cEntryItem& changed)
{
    constexpr int mostPercent = 20;
    constexpr qint64 leastCents = 100;
    const qint64 difference = std::abs(entry.EntryValue - changed.EntryValue);
    return difference >= leastCents && difference * 100 > entry.EntryValue * mostPercent;
}

// The occurrence of a series, as corrected so far, by the day that the series plans for it.
std::optional<cEntryItem> PlannedAt(cDataAccess& data, const cEntryItem& series, QDate planned)
{
    cEntryItemFixModList fixMods = data.GetEntryMods(series.ID);
    const QDate start = modRecurrence::OccurrencePeriod(planned, series.EntryInterval).Start;
    fixMods.removeIf([&](const cEntryItemFixMod& fixMod) { return fixMod.EntryStartDate != start; });
    const QDate moved = fixMods.isEmpty() ? QDate() : fixMods.first().EntryDay;
    cEntryItemList occurrences;
    modRecurrence::Expand(series, {moved.isValid() ? std::min(moved, planned) : planned, std::max(moved, planned)},
                          fixMods, occurrences);
    const auto found = std::find_if(occurrences.begin(), occurrences.end(),
                                    [&](const cEntryItem& each) { return each.Planned() == planned; });
    return found == occurrences.end() ? std::nullopt : std::optional(*found);
}

} // namespace

QStringList cCorrectionFlow::cDone::Lines() const
{
    QStringList lines;
    const auto add = [&](int count, const QString& one, const QString& many) {
        if (count > 0) {
            lines.append(count == 1 ? one : many);
        }
    };
    const auto number = [](int count) { return QString::number(count); };
    add(Days, cText::Tr("Ein Vorkommen einer Serie liegt jetzt am Buchungstag der Bank."),
        cText::Tr("{0} Vorkommen von Serien liegen jetzt am Buchungstag der Bank.", {number(Days)}));
    add(Amounts, cText::Tr("Eine Serie auf den Betrag des Kontoauszugs korrigiert."),
        cText::Tr("{0} Beträge von Serien korrigiert.", {number(Amounts)}));
    add(FromHere, cText::Tr("Eine Serie hat ab hier den Betrag des Kontoauszugs."),
        cText::Tr("{0} Serien haben ab hier den Betrag des Kontoauszugs.", {number(FromHere)}));
    add(Entries, cText::Tr("Ein Eintrag hat Tag und Betrag der Bank übernommen."),
        cText::Tr("{0} Einträge haben Tag und Betrag der Bank übernommen.", {number(Entries)}));
    return lines;
}

std::optional<cCorrectionFlow::cDone> cCorrectionFlow::Apply(const QList<cMatch>& matches,
                                                             const QHash<int, cImportEntry>& rows)
{
    m_done = {};
    m_successors.clear();
    m_former.clear();
    if (!ApplyOnce(matches, rows)) {
        return std::nullopt;
    }
    cChanges changes = Collect(matches);
    Plan(changes, eWish::Proposed);
    const bool hasAmounts =
        std::any_of(changes.begin(), changes.end(), [](const cChange& each) { return each.Amount != eAmount::Same; });
    if (hasAmounts) {
        Plan(changes, AskAmounts(changes));
    }
    const bool isWritten =
        std::all_of(changes.begin(), changes.end(), [this](const cChange& change) { return Write(change); });
    return isWritten && KeepLater(changes) ? std::optional(m_done) : std::nullopt;
}

bool cCorrectionFlow::ApplyOnce(const QList<cMatch>& matches, const QHash<int, cImportEntry>& rows)
{
    cEntryItemList sure;
    cPairs unsure;
    for (const cMatch& match : matches) {
        const cEntryItem& entry = match.Candidate.Entry;
        const auto row = rows.constFind(match.RowId);
        const bool isSameDirection = row != rows.constEnd() && (match.Candidate.Cents < 0) == (row->ImportValue < 0);
        if (!isSameDirection || modRecurrence::IsRecurring(entry.EntryInterval) || modSplit::Group(entry) != 0) {
            continue;
        }
        const cEntryItem changed = AsRow(entry, *row);
        if (changed == entry || match.Candidate.IsTaken || IsPart(entry, changed)) {
            continue;
        }
        if (match.Candidate.Score >= modMatchScore::AssignAt && changed.EntryValue == entry.EntryValue) {
            sure.append(changed);
        } else {
            unsure.emplace_back(entry, changed);
        }
    }
    if (AskOnce(unsure)) {
        for (const auto& [entry, changed] : unsure) {
            sure.append(changed);
        }
    }
    m_done.Entries = static_cast<int>(sure.size());
    return std::all_of(sure.begin(), sure.end(),
                       [this](const cEntryItem& entry) { return m_tools.Data.ChangeEntry(entry); });
}

bool cCorrectionFlow::AskOnce(const cPairs& unsure) const
{
    QStringList lines;
    for (const auto& [entry, changed] : unsure) {
        lines.append(cText::Tr("{0}: {1}; Bank: {2} am {3}",
                               {Named(entry), m_tools.Format.Cents(entry.EntryValue),
                                m_tools.Format.Cents(changed.EntryValue), modDate::ToText(changed.EntryDate)}));
    }
    return !lines.isEmpty()
        && m_tools.User.Ask({.Text = cText::Tr("Diese Einträge stehen mit anderem Tag oder Betrag im Haushaltsbuch als "
                                               "bei der Bank:")
                                 + u'\n' + Listed(lines) + u"\n\n"_s
                                 + cText::Tr("Sollen sie Tag und Betrag der Bank übernehmen?"),
                             .Title = cText::Tr("Umsätze zuordnen")})
        == eAnswer::Yes;
}

// The occurrences by series and day, also those that agree with their row: a new amount from an earlier one on reaches
// them. Those that the user corrected by hand only when he agrees.
cCorrectionFlow::cChanges cCorrectionFlow::Collect(const QList<cMatch>& matches) const
{
    cChanges changes;
    QList<cMatch> own;
    const auto add = [&](const cMatchCandidate& candidate) {
        cEntryItem occurrence = candidate.Entry;
        const cEntryItem series = m_tools.Data.LoadEntry(occurrence.ID).value_or(occurrence);
        occurrence.EntryValue = modOccurrence::Usual(series, occurrence); // no amount to ask about
        cEntryItemFixMod fixMod = modSeries::CorrectionFor(occurrence);
        fixMod.EntryValue = occurrence.EntryValue;
        fixMod.EntryDay = occurrence.EntryDate;
        fixMod.EntryComment = modSeries::BankComment();
        changes.push_back({occurrence, candidate.Correction.value_or(fixMod)});
    };
    for (const cMatch& match : matches) {
        const cMatchCandidate& candidate = match.Candidate;
        if (!modRecurrence::IsRecurring(candidate.Entry.EntryInterval)) {
            continue;
        }
        if (candidate.ReplacesOwn) {
            own.append(match);
        } else {
            add(candidate);
        }
    }
    if (!own.isEmpty() && AskOwn(own)) {
        for (const cMatch& match : std::as_const(own)) {
            add(match.Candidate);
        }
    }
    std::sort(changes.begin(), changes.end(), [](const cChange& a, const cChange& b) {
        return std::tuple(a.Occurrence.ID, a.Occurrence.Planned())
            < std::tuple(b.Occurrence.ID, b.Occurrence.Planned());
    });
    return changes;
}

bool cCorrectionFlow::AskOwn(const QList<cMatch>& own) const
{
    QStringList lines;
    for (const cMatch& match : own) {
        const cEntryItem& entry = match.Candidate.Entry;
        const cEntryItemFixMod& fixMod = *match.Candidate.Correction;
        lines.append(
            cText::Tr("{0}: {1}; Bank: {2} am {3}",
                      {Named(entry), m_tools.Format.Cents(entry.EntryValue), m_tools.Format.Cents(fixMod.EntryValue),
                       modDate::ToText(fixMod.EntryDay.isValid() ? fixMod.EntryDay : entry.EntryDate)}));
    }
    return m_tools.User.Ask({.Text = cText::Tr("Diese Vorkommen haben Sie von Hand korrigiert, und die Bank hat anders "
                                               "gebucht:")
                                 + u'\n' + Listed(lines) + u"\n\n"_s
                                 + cText::Tr("Sollen Tag und Betrag der Bank gelten?"),
                             .Title = cText::Tr("Korrektur von Hand")})
        == eAnswer::Yes;
}

void cCorrectionFlow::Plan(cChanges& changes, eWish wish) const
{
    int series = 0;
    std::optional<qint64> price; // of the series from an earlier occurrence on
    for (size_t place = 0; place < changes.size(); ++place) {
        cChange& change = changes[place];
        if (series != change.Occurrence.ID) {
            series = change.Occurrence.ID;
            price.reset();
        }
        change.Amount = eAmount::Same;
        if (change.FixMod.EntryValue == (price ? *price : change.Occurrence.EntryValue)) {
            continue;
        }
        const bool isFromHere = wish == eWish::FromHere || (wish == eWish::Proposed && IsNewPrice(changes, place));
        change.Amount = isFromHere ? eAmount::FromHere : wish == eWish::Keep ? eAmount::Keep : eAmount::Once;
        if (isFromHere) {
            price = change.FixMod.EntryValue;
        }
    }
}

// An amount that comes twice in a row is a new price; one that came once may be an exception.
bool cCorrectionFlow::IsNewPrice(const cChanges& changes, size_t place) const
{
    const cChange& change = changes[place];
    const auto isSame = [&](size_t other) {
        return other < changes.size() && changes[other].Occurrence.ID == change.Occurrence.ID
            && changes[other].FixMod.EntryValue == change.FixMod.EntryValue;
    };
    return isSame(place + 1) || (place > 0 && isSame(place - 1))
        || AmountBefore(change.Occurrence) == change.FixMod.EntryValue;
}

// What the series came to one occurrence earlier; -1 when there is none.
qint64 cCorrectionFlow::AmountBefore(const cEntryItem& occurrence) const
{
    const std::optional<cEntryItem> series = m_tools.Data.LoadEntry(occurrence.ID);
    cEntryItemList occurrences;
    if (series) {
        modRecurrence::Expand(*series, {}, m_tools.Data.GetEntryMods(series->ID), occurrences);
    }
    qint64 cents = -1;
    QDate latest;
    for (const cEntryItem& each : std::as_const(occurrences)) {
        if (each.Planned() < occurrence.Planned() && (!latest.isValid() || each.Planned() > latest)) {
            latest = each.Planned();
            cents = each.EntryValue;
        }
    }
    return cents;
}

cCorrectionFlow::eWish cCorrectionFlow::AskAmounts(const cChanges& changes) const
{
    QStringList lines;
    bool hasOnce = false;
    bool hasFromHere = false;
    for (const cChange& change : changes) {
        if (change.Amount == eAmount::Same) {
            continue;
        }
        const bool isFromHere = change.Amount == eAmount::FromHere;
        hasOnce = hasOnce || !isFromHere;
        hasFromHere = hasFromHere || isFromHere;
        lines.append(cText::Tr("{0}: {1} statt {2}, Vorschlag: {3}",
                               {Named(change.Occurrence), m_tools.Format.Cents(change.FixMod.EntryValue),
                                m_tools.Format.Cents(change.Occurrence.EntryValue),
                                isFromHere ? cText::Tr("ab hier") : cText::Tr("nur dieses Mal")}));
    }
    QStringList options{cText::Tr("Nur dieses Mal"), cText::Tr("Ab hier"), cText::Tr("Nicht ändern")};
    const bool isMixed = hasOnce && hasFromHere;
    if (isMixed) {
        options.append(cText::Tr("Wie vorgeschlagen"));
    }
    const int choice =
        m_tools.User.Decide({.Text = cText::Tr("Die Bank hat andere Beträge gebucht, als diese Serien vorsehen:")
                                 + u'\n' + Listed(lines) + u"\n\n"_s + cText::Tr("Wie sollen sie geändert werden?"),
                             .Title = cText::Tr("Beträge von Serien"),
                             .Options = options,
                             .Default = isMixed ? 3
                                 : hasFromHere  ? 1
                                                : 0});
    constexpr std::array wishes{eWish::Once, eWish::FromHere, eWish::Keep, eWish::Proposed};
    return choice < 0 || choice >= options.size() ? eWish::Keep : wishes.at(static_cast<size_t>(choice));
}

bool cCorrectionFlow::Write(const cChange& change)
{
    const int id = m_successors.value(change.Occurrence.ID, change.Occurrence.ID);
    std::optional<cEntryItem> series = m_tools.Data.LoadEntry(id);
    if (series && change.Amount == eAmount::FromHere) {
        if (!ChangeFrom(*series, change.Occurrence, change.FixMod.EntryValue)) {
            return false;
        }
        ++m_done.FromHere;
        if (!m_former.contains(change.Occurrence.ID)) {
            m_former.insert(change.Occurrence.ID, series->EntryValue);
        }
        series = m_tools.Data.LoadEntry(m_successors.value(change.Occurrence.ID, id));
    }
    const auto now = series ? PlannedAt(m_tools.Data, *series, change.Occurrence.Planned()) : std::nullopt;
    if (!now) {
        return false;
    }
    cEntryItemFixMod fixMod = change.FixMod;
    fixMod.EntryRelation = series->ID;
    fixMod.EntryValue = change.Amount == eAmount::Keep ? change.Occurrence.EntryValue : fixMod.EntryValue;
    const QDate day = fixMod.EntryDay.isValid() ? fixMod.EntryDay : now->Planned();
    const bool isOther = fixMod.EntryValue != now->EntryValue;
    const bool isCorrected = change.Amount == eAmount::Once || (change.Amount == eAmount::Same && isOther);
    m_done.Amounts += isCorrected ? 1 : 0; // a row that joined its series has brought the correction along
    m_done.Days += day != change.Occurrence.EntryDate ? 1 : 0;
    const bool isWhole = modSplit::Group(*series) != 0 && change.Amount == eAmount::Same;
    return (!isOther && day == now->EntryDate) || (isWhole ? WriteParts(change) : m_tools.Data.AddNewEntryMod(fixMod));
}

// The bank knows only the whole of a split entry: all its parts move.
bool cCorrectionFlow::WriteParts(const cChange& change)
{
    const cEntryItemList parts = cSplitGroup(m_tools.Data).Parts(change.Occurrence);
    return std::all_of(parts.begin(), parts.end(), [&](const cEntryItem& part) {
        const auto occurrence = PlannedAt(m_tools.Data, part, change.Occurrence.Planned());
        if (!occurrence) {
            return true; // a part that ended before
        }
        cEntryItemFixMod fixMod = modSeries::CorrectionFor(*occurrence);
        fixMod.EntryValue = modOccurrence::Usual(part, *occurrence);
        fixMod.EntryDay = change.FixMod.EntryDay;
        fixMod.EntryComment = change.FixMod.EntryComment;
        return m_tools.Data.AddNewEntryMod(fixMod);
    });
}

// Divides the series: what was corrected or assigned from the occurrence on goes along.
bool cCorrectionFlow::ChangeFrom(const cEntryItem& series, const cEntryItem& occurrence, qint64 cents)
{
    const QDate from = occurrence.Planned();
    const QDate start = modRecurrence::OccurrencePeriod(from, series.EntryInterval).Start;
    cEntryItemFixModList fixMods = m_tools.Data.GetEntryMods(series.ID);
    const bool isWhole = from <= series.EntryDate;
    fixMods.removeIf([&](const cEntryItemFixMod& fixMod) { return !isWhole && fixMod.EntryStartDate < start; });
    QList<cEntryWrite> rows{{series, fixMods}};
    rows.first().Entry.EntryValue = cents;
    rows.first().Entry.EntryDate = isWhole ? series.EntryDate : from;
    if (!cEntryWriter(m_tools.Data, m_tools.User).Write(rows, {}, isWhole ? QDate() : from)) {
        return false;
    }
    m_successors.insert(occurrence.ID, rows.first().Entry.ID);
    return true;
}

// Statements may be read from the newest to the oldest. What was paid after the last of these occurrences has been
// compared with the former amount and keeps it.
bool cCorrectionFlow::KeepLater(const cChanges& changes)
{
    const cImportEntryList rows = m_former.isEmpty() ? cImportEntryList() : m_tools.Data.GetImportEntries();
    for (auto former = m_former.cbegin(); former != m_former.cend(); ++former) {
        const auto last = std::find_if(changes.rbegin(), changes.rend(),
                                       [&](const cChange& each) { return each.Occurrence.ID == former.key(); });
        const std::optional<cEntryItem> series = m_tools.Data.LoadEntry(m_successors.value(former.key()));
        if (!series) {
            return false;
        }
        const QList<QDate> next = modSeries::Next(*series, last->Occurrence.Planned().addDays(1), 1);
        const bool isPaid = std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& row) {
            return row.ImportAssigned && row.ImportAssignedEntry == series->ID && !next.isEmpty()
                && row.ImportDate >= next.first().addDays(-modOccurrence::Reach(series->EntryInterval));
        });
        const auto later = isPaid ? PlannedAt(m_tools.Data, *series, next.first()) : std::nullopt;
        if (later && !ChangeFrom(*series, *later, former.value())) {
            return false;
        }
    }
    return true;
}
