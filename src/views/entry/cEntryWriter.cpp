#include "views/entry/cEntryWriter.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "import/propose/modCorrected.h"
#include "import/propose/modOccurrence.h"
#include "model/modContract.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cSplitGroup.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int noEntry = -1; // of a bank transaction that waits

const cEntryItemFixMod* Find(const cEntryItemFixModList& fixMods, QDate start)
{
    const auto found = std::find_if(fixMods.begin(), fixMods.end(),
                                    [&](const cEntryItemFixMod& fixMod) { return fixMod.EntryStartDate == start; });
    return found == fixMods.end() ? nullptr : &*found;
}

// What the bank knows of a purchase, below zero where the account pays it.
qint64 Whole(const cEntryItemList& parts)
{
    const cEntryItem& first = parts.first();
    return first.IsTransfer() ? -first.EntryValue : modSplit::Net(parts);
}

bool IsIncome(const cEntryItem& entry)
{
    return entry.EntryType == modWord::Einnahme;
}

cEntryItemList EntriesOf(const QList<cEntryWrite>& rows)
{
    cEntryItemList entries;
    for (const cEntryWrite& row : rows) {
        entries.append(row.Entry);
    }
    return entries;
}

// What the bank said of an occurrence, or booked for it, stays true as long as the series has it; nobody would enter it
// again.
bool IsKept(const cEntryItem& entry, const cEntryItemFixMod& fixMod, const QSet<QDate>& booked)
{
    return (modSeries::IsFromBank(fixMod.EntryComment) || booked.contains(fixMod.EntryStartDate))
        && modSeries::HasPeriod(entry, fixMod);
}

} // namespace

bool cEntryWriter::Loses(const cEntryWrite& row, QDate from, const QSet<QDate>& booked) const
{
    const std::optional<cEntryItem> stored = m_data.LoadEntry(row.Entry.ID);
    if (!stored || row.Corrections.isEmpty() || !modRecurrence::IsRecurring(stored->EntryInterval)) {
        return false;
    }
    if (!from.isValid()) {
        return modSeries::HasOtherPeriod(*stored, row.Entry)
            && !std::all_of(row.Corrections.begin(), row.Corrections.end(),
                            [&](const cEntryItemFixMod& fixMod) { return IsKept(row.Entry, fixMod, booked); });
    }
    return !std::all_of(row.Corrections.begin(), row.Corrections.end(),
                        [&](const cEntryItemFixMod& fixMod) { return modSeries::HasPeriod(row.Entry, fixMod); });
}

bool cEntryWriter::AskLosses(QList<cEntryWrite>& rows, QDate from)
{
    QSet<QDate> booked;
    if (std::any_of(rows.begin(), rows.end(), [&](const cEntryWrite& row) { return Loses(row, from, {}); })) {
        ForBooked(StoredSeries(rows, {}), [&](QDate start, qint64) { booked.insert(start); });
    }
    QList<cEntryWrite*> losing;
    for (cEntryWrite& row : rows) {
        if (Loses(row, from, booked)) {
            losing.append(&row);
        }
    }
    if (losing.isEmpty()) {
        return true;
    }
    const eAnswer answer =
        m_user.Ask({.Text = cText::Tr("Der Zeitraum für diesen Eintrag wurde modifiziert.\nDie manuellen "
                                      "Korrekturen gehen dadurch verloren.\nSoll der Eintrag trotzdem "
                                      "gespeichert werden?"),
                    .Title = {}});
    if (answer != eAnswer::Yes) {
        return false;
    }
    for (cEntryWrite* row : losing) {
        row->Corrections.removeIf([&](const cEntryItemFixMod& fixMod) { return !IsKept(row->Entry, fixMod, booked); });
    }
    return true;
}

// A correction stores an amount even where it only moves an occurrence. That one is the series' own and follows it;
// what the bank has paid stays.
void cEntryWriter::FollowAmounts(QList<cEntryWrite>& rows, const QList<int>& removed) const
{
    QList<std::pair<cEntryItemFixMod*, qint64>> moved; // and what the series comes to
    for (cEntryWrite& row : rows) {
        const std::optional<cEntryItem> stored = m_data.LoadEntry(row.Entry.ID);
        if (!stored || stored->EntryValue == row.Entry.EntryValue) {
            continue;
        }
        const cEntryItemFixModList before = m_data.GetEntryMods(stored->ID);
        for (cEntryItemFixMod& fixMod : row.Corrections) {
            const cEntryItemFixMod* known = Find(before, fixMod.EntryStartDate);
            if (known != nullptr && known->EntryDay.isValid() && known->EntryValue == stored->EntryValue
                && fixMod.EntryValue == known->EntryValue && !modSeries::IsBooked(fixMod.EntryComment)) {
                moved.append({&fixMod, row.Entry.EntryValue});
            }
        }
    }
    const cPaid paid = moved.isEmpty() ? cPaid() : PaidPeriods(StoredSeries(rows, removed), rows);
    for (const auto& [fixMod, cents] : std::as_const(moved)) {
        fixMod->EntryValue = paid.contains(fixMod->EntryStartDate) ? fixMod->EntryValue : cents;
    }
}

std::optional<int> cEntryWriter::KeepPaid(QList<cEntryWrite>& rows, const QList<int>& removed)
{
    const cEntryItemList before = StoredSeries(rows, removed);
    if (before.isEmpty()) {
        return 0;
    }
    const cPaid paid = PaidPeriods(before, rows);
    const bool isTurned = std::any_of(rows.begin(), rows.end(), [&](const cEntryWrite& row) {
        return std::any_of(before.begin(), before.end(), [&](const cEntryItem& series) {
            return series.ID == row.Entry.ID && IsIncome(series) != IsIncome(row.Entry);
        });
    });
    if (!removed.isEmpty() || isTurned) { // a correction has no sign
        return AskLosing(before.first(), paid, rows.first().Entry) ? std::optional(0) : std::nullopt;
    }
    QSet<QDate> kept;
    for (cEntryWrite& row : rows) {
        const auto own = std::find_if(before.begin(), before.end(),
                                      [&](const cEntryItem& series) { return series.ID == row.Entry.ID; });
        if (own == before.end()) {
            kept += KeepAmounts(before.first(), 0, paid, row); // a new part, which was not among what was paid
        } else if (own->EntryValue != row.Entry.EntryValue) {
            kept += KeepAmounts(*own, own->EntryValue, paid, row);
        }
    }
    return static_cast<int>(kept.size());
}

// What a part was of a payment has no place any more where it goes, or counts the other way. True when that is none, or
// the user agrees.
bool cEntryWriter::AskLosing(const cEntryItem& stored, const cPaid& paid, const cEntryItem& after)
{
    const QList<QDate> starts = paid.keys();
    const auto count = std::count_if(starts.begin(), starts.end(), [&](QDate start) {
        const std::optional<cEntryItem> occurrence = modSeries::OccurrenceAt(stored, start);
        return occurrence && modSeries::HasPeriod(after, modSeries::CorrectionFor(*occurrence));
    });
    return count == 0
        || m_user.Ask({.Text = cText::Tr("Ein Teil dieser Serie fällt weg oder wechselt die Art. Damit ändert sich "
                                         "auch, was die Bank schon gebucht hat ({0}), und der Saldo stimmt nicht mehr "
                                         "mit ihr überein.\nSoll der "
                                         "Eintrag trotzdem gespeichert werden?",
                                         {modCount::Times(count)}),
                       .Title = {},
                       .Default = eAnswer::No})
        == eAnswer::Yes;
}

// Gives the row this amount for the periods out of `paid` that it has; these.
QSet<QDate> cEntryWriter::KeepAmounts(const cEntryItem& stored, qint64 cents, const cPaid& paid, cEntryWrite& row) const
{
    const cEntryItemFixModList before = m_data.GetEntryMods(stored.ID);
    QSet<QDate> kept;
    for (auto period = paid.cbegin(); period != paid.cend(); ++period) {
        const std::optional<cEntryItem> occurrence = modSeries::OccurrenceAt(stored, period.key());
        cEntryItemFixMod fixMod = modSeries::CorrectionFor(occurrence.value_or(stored));
        if (!occurrence || !modSeries::HasPeriod(row.Entry, fixMod)) {
            continue;
        }
        const cEntryItemFixMod* known = Find(before, fixMod.EntryStartDate);
        const bool isFree = known == nullptr || row.Entry.ID != stored.ID;
        if (isFree && Find(row.Corrections, fixMod.EntryStartDate) == nullptr) {
            fixMod.EntryValue = cents;
            fixMod.EntryDay = known != nullptr && known->EntryDay.isValid() ? known->EntryDay : occurrence->EntryDate;
            fixMod.EntryComment = *period ? modSeries::BankComment() : QString();
            row.Corrections.append(fixMod);
        }
        if (Find(row.Corrections, fixMod.EntryStartDate) != nullptr) { // else the user has taken it out
            kept.insert(period.key());
        }
    }
    return kept;
}

// Also those that go. None when it is no series.
cEntryItemList cEntryWriter::StoredSeries(const QList<cEntryWrite>& rows, const QList<int>& removed) const
{
    QList<int> ids;
    for (const cEntryWrite& row : rows) {
        ids.append(row.Entry.ID);
    }
    ids += removed;
    cEntryItemList series;
    for (const int id : std::as_const(ids)) {
        const std::optional<cEntryItem> stored = m_data.LoadEntry(id);
        if (stored && !modRecurrence::IsRecurring(stored->EntryInterval)) {
            return {};
        }
        series += stored ? cEntryItemList{*stored} : cEntryItemList();
    }
    return series;
}

// Which part a row of the bank hangs at does not matter: it paid the whole.
void cEntryWriter::ForBooked(const cEntryItemList& series, const std::function<void(QDate, qint64)>& take) const
{
    const cImportEntryList imports = series.isEmpty() ? cImportEntryList() : m_data.GetImportEntries();
    for (const cEntryItem& part : series) {
        const cEntryItemFixModList fixMods = m_data.GetEntryMods(part.ID);
        for (const cImportEntry& row : imports) {
            const std::optional<cEntryItem> occurrence = row.ImportAssigned && row.ImportAssignedEntry == part.ID
                ? modOccurrence::Nearest(part, row.ImportDate, fixMods)
                : std::nullopt;
            if (occurrence) {
                take(modSeries::CorrectionFor(*occurrence).EntryStartDate, std::abs(row.ImportValue));
            }
        }
    }
}

// The starts of the periods for which the bank has booked something else than the rows come to together; true where it
// is what is stored.
cEntryWriter::cPaid cEntryWriter::PaidPeriods(const cEntryItemList& before, const QList<cEntryWrite>& rows) const
{
    cPaid paid;
    const qint64 stored = Whole(before);
    const qint64 wanted = Whole(EntriesOf(rows));
    const bool isTurned = (stored < 0) != (wanted < 0);
    ForBooked(before, [&](QDate start, qint64 booked) {
        if (isTurned || booked != std::abs(wanted)) {
            bool& isAsStored = paid[start];
            isAsStored = isAsStored || booked == std::abs(stored);
        }
    });
    return paid;
}

bool cEntryWriter::Write(QList<cEntryWrite>& rows, const QList<int>& removed, QDate from)
{
    FollowAmounts(rows, removed);
    const auto remove = [&](int id) { return Remove(id, from, rows.constFirst().Entry.ID); };
    const auto write = [&](cEntryWrite& row) {
        return from.isValid() && row.Entry.ID > 0 ? WriteFrom(row, from) : WriteRow(row);
    };
    return std::all_of(rows.begin(), rows.end(), write) && std::all_of(removed.begin(), removed.end(), remove)
        && ((rows.size() == 1 && removed.isEmpty()) || MarkGroup(rows));
}

bool cEntryWriter::WriteRow(cEntryWrite& row)
{
    const bool isStored = row.Entry.ID == 0 ? m_data.AddNewEntry(row.Entry) : Change(row.Entry);
    return isStored && WriteCorrections(row);
}

// A category that the user corrects is what the next bank transactions of this payee should get.
bool cEntryWriter::Change(const cEntryItem& entry)
{
    const std::optional<cEntryItem> stored = m_data.LoadEntry(entry.ID);
    const bool isCorrected =
        stored && (stored->EntryCategory != entry.EntryCategory || stored->EntryType != entry.EntryType);
    return m_data.ChangeEntry(entry) && (!isCorrected || modCorrected::Note(m_data, entry.ID));
}

bool cEntryWriter::WriteFrom(cEntryWrite& row, QDate from)
{
    const int oldId = row.Entry.ID;
    const std::optional<cEntryItem> old = m_data.LoadEntry(oldId);
    if (!old) {
        return false;
    }
    row.Entry.ID = 0;
    const QList<int> paying = RowsFrom(*old, from); // as the series still is
    return EndBefore(oldId, from, eContract::GoesOn) && WriteRow(row) && MoveImports(paying, row.Entry.ID);
}

bool cEntryWriter::EndBefore(int id, QDate from, eContract contract)
{
    std::optional<cEntryItem> series = m_data.LoadEntry(id);
    if (!series) {
        return false;
    }
    const QDate start = modRecurrence::OccurrencePeriod(from, series->EntryInterval).Start;
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(id);
    for (const cEntryItemFixMod& fixMod : fixMods) {
        if (fixMod.EntryStartDate >= start && !m_data.DeleteEntryMod(fixMod.ID)) {
            return false;
        }
    }
    series->EntryDateEnd = from.addDays(-1);
    if (contract == eContract::GoesOn) {
        modContract::SetCancelBy(*series, {});
    }
    return m_data.ChangeEntry(*series);
}

// What the bank booked some days before an occurrence still belongs to it. Without a day: all rows.
QList<int> cEntryWriter::RowsFrom(const cEntryItem& series, QDate from) const
{
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(series.ID);
    const QDate start = modRecurrence::OccurrencePeriod(from, series.EntryInterval).Start;
    QList<int> ids;
    const cImportEntryList rows = m_data.GetImportEntries();
    for (const cImportEntry& row : rows) {
        if (row.ImportAssignedEntry != series.ID) {
            continue;
        }
        const std::optional<cEntryItem> paid = modOccurrence::Nearest(series, row.ImportDate, fixMods);
        if (!from.isValid() || (paid ? paid->Planned() >= from : row.ImportDate >= start)) {
            ids.append(row.ID);
        }
    }
    return ids;
}

bool cEntryWriter::MoveImports(const QList<int>& rowIds, int newId)
{
    cImportEntryList rows = m_data.GetImportEntries();
    return std::all_of(rows.begin(), rows.end(), [&](cImportEntry& row) {
        if (!rowIds.contains(row.ID)) {
            return true;
        }
        row.ImportAssigned = row.ImportAssigned && newId != noEntry;
        row.ImportAssignedEntry = newId;
        return m_data.ChangeImportEntry(row);
    });
}

// What the bank booked paid the whole purchase, so it hangs at the first part that stays.
bool cEntryWriter::Remove(int id, QDate from, int heir)
{
    const std::optional<cEntryItem> part = m_data.LoadEntry(id);
    return !part
        || (MoveImports(RowsFrom(*part, from), heir)
            && (from.isValid() ? EndBefore(id, from, eContract::GoesOn) : m_data.DeleteEntry(id)));
}

bool cEntryWriter::End(int id, QDate from)
{
    const std::optional<cEntryItem> series = m_data.LoadEntry(id);
    if (!series) {
        return false;
    }
    const QList<int> paying = RowsFrom(*series, from);
    return EndBefore(id, from, eContract::Ends) && MoveImports(paying, noEntry);
}

bool cEntryWriter::WriteCorrections(const cEntryWrite& row)
{
    const cEntryItemFixModList stored = m_data.GetEntryMods(row.Entry.ID);
    for (const cEntryItemFixMod& fixMod : stored) {
        if (Find(row.Corrections, fixMod.EntryStartDate) == nullptr && !m_data.DeleteEntryMod(fixMod.ID)) {
            return false;
        }
    }
    return std::all_of(row.Corrections.begin(), row.Corrections.end(), [&](cEntryItemFixMod fixMod) {
        const cEntryItemFixMod* known = Find(stored, fixMod.EntryStartDate);
        fixMod.EntryRelation = row.Entry.ID;
        const bool isSame = known != nullptr && known->EntryValue == fixMod.EntryValue
            && known->EntryComment == fixMod.EntryComment && known->EntryDay == fixMod.EntryDay;
        return isSame || m_data.AddNewEntryMod(fixMod);
    });
}

bool cEntryWriter::MarkGroup(QList<cEntryWrite>& rows)
{
    return cSplitGroup(m_data).Mark(EntriesOf(rows));
}
