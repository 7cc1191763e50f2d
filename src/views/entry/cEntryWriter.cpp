#include "views/entry/cEntryWriter.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "import/propose/modCorrected.h"
#include "import/propose/modOccurrence.h"
#include "model/modContract.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
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

// What the bank knows of a purchase.
qint64 Whole(const cEntryItemList& parts)
{
    const cEntryItem& first = parts.first();
    return first.IsTransfer() ? first.EntryValue : modSplit::Net(parts);
}

// What the bank said of an occurrence stays true as long as the series has it; nobody would enter it again.
bool IsKept(const cEntryItem& entry, const cEntryItemFixMod& fixMod)
{
    return modSeries::IsFromBank(fixMod.EntryComment) && modSeries::HasPeriod(entry, fixMod);
}

} // namespace

bool cEntryWriter::Loses(const cEntryWrite& row, QDate from) const
{
    const std::optional<cEntryItem> stored = m_data.LoadEntry(row.Entry.ID);
    if (!stored || row.Corrections.isEmpty() || !modRecurrence::IsRecurring(stored->EntryInterval)) {
        return false;
    }
    if (!from.isValid()) {
        return modSeries::HasOtherPeriod(*stored, row.Entry)
            && !std::all_of(row.Corrections.begin(), row.Corrections.end(),
                            [&](const cEntryItemFixMod& fixMod) { return IsKept(row.Entry, fixMod); });
    }
    return !std::all_of(row.Corrections.begin(), row.Corrections.end(),
                        [&](const cEntryItemFixMod& fixMod) { return modSeries::HasPeriod(row.Entry, fixMod); });
}

bool cEntryWriter::AskLosses(QList<cEntryWrite>& rows, QDate from)
{
    QList<cEntryWrite*> losing;
    for (cEntryWrite& row : rows) {
        if (Loses(row, from)) {
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
        row->Corrections.removeIf([&](const cEntryItemFixMod& fixMod) { return !IsKept(row->Entry, fixMod); });
    }
    return true;
}

// A correction stores an amount even where it only moves an occurrence. That one is the series' own and follows it;
// what the bank has paid stays.
void cEntryWriter::FollowAmount(cEntryWrite& row) const
{
    const std::optional<cEntryItem> stored = m_data.LoadEntry(row.Entry.ID);
    if (!stored || stored->EntryValue == row.Entry.EntryValue) {
        return;
    }
    const cEntryItemFixModList before = m_data.GetEntryMods(stored->ID);
    QList<cEntryItemFixMod*> moved;
    for (cEntryItemFixMod& fixMod : row.Corrections) {
        const cEntryItemFixMod* known = Find(before, fixMod.EntryStartDate);
        if (known != nullptr && known->EntryDay.isValid() && known->EntryValue == stored->EntryValue
            && fixMod.EntryValue == known->EntryValue && !modSeries::IsBooked(fixMod.EntryComment)) {
            moved.append(&fixMod);
        }
    }
    const QSet<QDate> paid = moved.isEmpty() ? QSet<QDate>() : PaidPeriods(*stored, before, row.Entry.EntryValue);
    for (cEntryItemFixMod* fixMod : moved) {
        fixMod->EntryValue = paid.contains(fixMod->EntryStartDate) ? fixMod->EntryValue : row.Entry.EntryValue;
    }
}

int cEntryWriter::KeepPaid(QList<cEntryWrite>& rows) const
{
    cEntryItemList before;
    cEntryItemList after;
    for (const cEntryWrite& row : rows) {
        const std::optional<cEntryItem> stored = m_data.LoadEntry(row.Entry.ID);
        if (!stored || !modRecurrence::IsRecurring(stored->EntryInterval)) {
            return 0;
        }
        before.append(*stored);
        after.append(row.Entry);
    }
    const qint64 cents = Whole(after);
    if (Whole(before) == cents) {
        return 0; // also a purchase that is only divided anew
    }
    QSet<QDate> paid;
    for (const cEntryItem& series : std::as_const(before)) {
        paid += PaidPeriods(series, m_data.GetEntryMods(series.ID), std::abs(cents));
    }
    QSet<QDate> kept;
    for (qsizetype place = 0; place < rows.size(); ++place) {
        if (before.at(place).EntryValue != after.at(place).EntryValue) {
            kept += KeepAmounts(before.at(place), paid, rows[place]);
        }
    }
    return static_cast<int>(kept.size());
}

// The periods out of `paid` that the row goes on having.
QSet<QDate> cEntryWriter::KeepAmounts(const cEntryItem& stored, const QSet<QDate>& paid, cEntryWrite& row) const
{
    const cEntryItemFixModList before = m_data.GetEntryMods(stored.ID);
    QSet<QDate> kept;
    for (const QDate start : paid) {
        const std::optional<cEntryItem> occurrence = modSeries::OccurrenceAt(stored, start);
        cEntryItemFixMod fixMod = modSeries::CorrectionFor(occurrence.value_or(stored));
        if (!occurrence || !modSeries::HasPeriod(row.Entry, fixMod)) {
            continue;
        }
        if (Find(before, fixMod.EntryStartDate) == nullptr && Find(row.Corrections, fixMod.EntryStartDate) == nullptr) {
            fixMod.EntryValue = stored.EntryValue;
            fixMod.EntryDay = occurrence->EntryDate;
            fixMod.EntryComment = modSeries::BankComment();
            row.Corrections.append(fixMod);
        }
        kept.insert(start);
    }
    return kept;
}

// The starts of the periods for which the bank has booked another amount than these cents.
QSet<QDate> cEntryWriter::PaidPeriods(const cEntryItem& series, const cEntryItemFixModList& fixMods, qint64 cents) const
{
    QSet<QDate> starts;
    const cImportEntryList rows = m_data.GetImportEntries();
    for (const cImportEntry& row : rows) {
        const bool isMeant =
            row.ImportAssigned && row.ImportAssignedEntry == series.ID && std::abs(row.ImportValue) != cents;
        const std::optional<cEntryItem> paid =
            isMeant ? modOccurrence::Nearest(series, row.ImportDate, fixMods) : std::nullopt;
        if (paid) {
            starts.insert(modSeries::CorrectionFor(*paid).EntryStartDate);
        }
    }
    return starts;
}

bool cEntryWriter::Write(QList<cEntryWrite>& rows, const QList<int>& removed, QDate from)
{
    for (cEntryWrite& row : rows) {
        FollowAmount(row);
    }
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
    cEntryItemList entries;
    for (const cEntryWrite& row : rows) {
        entries.append(row.Entry);
    }
    return cSplitGroup(m_data).Mark(entries);
}
