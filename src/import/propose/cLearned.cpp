#include "import/propose/cLearned.h"

#include "import/propose/modCorrected.h"
#include "import/read/modCounterparty.h"
#include "import/read/modPayee.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr int fewEntries = 500;     // up to here single entries are read when they are asked for
constexpr qsizetype mostPayees = 8; // an account with more of them is nobody's
constexpr qsizetype lookedBack = 8; // bookings that tell whether somebody is of two minds
constexpr int agreed = 2;           // bookings that make a lesson sure

} // namespace

cLearned::cLearned(cDataAccess& data, cImportHiveCache& hive) : m_data(data)
{
    const QList<int> corrected = modCorrected::Load(data);
    for (qsizetype i = 0; i < corrected.size(); ++i) {
        m_corrected.insert(corrected.at(i), static_cast<int>(i) + 1);
    }
    Build(hive);
    if (m_entryIds.size() > fewEntries) {
        LoadAll();
    }
}

void cLearned::Build(cImportHiveCache& hive)
{
    const cImportEntryList rows = hive.GetImportHive().getImportEntryList();
    for (const cImportEntry& row : rows) {
        const bool isBooked = row.ImportAssigned && row.ImportAssignedEntry >= 0;
        const QString number = modCounterparty::AccountKey(row);
        if (!isBooked && number.isEmpty()) {
            continue;
        }
        const cPayeeKeys::cPayee payee = m_payees.Of(row);
        const cBooked booked{row.ID, row.ImportAssignedEntry, row.ImportValue};
        if (!number.isEmpty()) {
            cAccount& account = m_byAccount[number];
            NotePayee(account, payee);
            if (isBooked && !account.IsMixed) {
                account.Rows.append(booked);
            }
        }
        if (isBooked) {
            m_entryIds.insert(row.ImportAssignedEntry);
            if (!payee.Key.isEmpty()) {
                m_byPayee[payee.Key].append(booked);
            }
        }
    }
}

// Who collects for others has one account for all of them.
void cLearned::NotePayee(cAccount& account, const cPayeeKeys::cPayee& payee)
{
    if (account.IsMixed || account.Payees.contains(payee.Key)) {
        return;
    }
    const bool isAlike = std::all_of(account.Payees.begin(), account.Payees.end(),
                                     [&](const QString& other) { return modPayee::CanBeSame(other, payee.Key); });
    account.IsMixed = !isAlike || payee.IsCollector || payee.IsCash || account.Payees.size() >= mostPayees;
    account.Payees.append(payee.Key);
    if (account.IsMixed) {
        account.Rows.clear();
    }
}

void cLearned::LoadAll()
{
    const QStringList accounts = m_data.GetEntryAccounts();
    for (const QString& account : accounts) {
        const cEntryItemList entries = m_data.GetEntriesOfAccount(account);
        for (const cEntryItem& entry : entries) {
            if (m_entryIds.contains(entry.ID)) {
                m_entries.insert(entry.ID,
                                 {entry.EntryCategory, entry.EntryInterval, entry.EntryType, entry.EntryAccount,
                                  entry.EntryAccountMove, entry.EntryDateEnd});
            }
        }
    }
}

const cLearned::cEntry& cLearned::Entry(int id)
{
    auto found = m_entries.find(id);
    if (found == m_entries.end()) {
        const cEntryItem entry = m_data.LoadEntry(id).value_or(cEntryItem());
        found = m_entries.insert(id,
                                 {entry.EntryCategory, entry.EntryInterval, entry.EntryType, entry.EntryAccount,
                                  entry.EntryAccountMove, entry.EntryDateEnd});
    }
    return *found;
}

std::optional<cLearned::cChoice> cLearned::Find(const cImportEntry& row)
{
    const cPayeeKeys::cPayee payee = m_payees.Of(row);
    if (!payee.Key.isEmpty()) {
        if (std::optional<cChoice> choice = Choose(m_byPayee.value(payee.Key), row)) {
            choice->Who = payee.Name;
            return choice;
        }
    }
    const auto account = m_byAccount.constFind(modCounterparty::AccountKey(row));
    if (account == m_byAccount.constEnd() || account->IsMixed || payee.IsCollector || payee.IsCash) {
        return std::nullopt;
    }
    std::optional<cChoice> choice = Choose(account->Rows, row);
    if (choice) {
        choice->Who = row.ImportBeneficiaryAccount.simplified();
        choice->IsAccount = true;
    }
    return choice;
}

// The rows that a lesson is drawn from, the newest decision first.
QList<cLearned::cBooked> cLearned::Decided(const QList<cBooked>& rows, const cImportEntry& row)
{
    QList<cBooked> decided;
    QList<cBooked> others;
    for (const cBooked& booked : rows) {
        if (booked.RowId != row.ID && !Entry(booked.EntryId).Category.isEmpty()) {
            ((booked.Cents > 0) == (row.ImportValue > 0) ? decided : others).append(booked);
        }
    }
    decided = decided.isEmpty() ? others : decided;
    const auto rank = [&](const cBooked& booked) {
        return std::tuple(m_corrected.value(booked.EntryId), booked.EntryId, booked.RowId);
    };
    const auto shown = std::min(decided.size(), lookedBack);
    std::partial_sort(decided.begin(), decided.begin() + shown, decided.end(),
                      [&](const cBooked& a, const cBooked& b) { return rank(a) > rank(b); });
    return decided.mid(0, shown);
}

// Somebody who is paid for several things: the rent and what is settled once a year differ by their amount.
std::optional<cLearned::cChoice> cLearned::ByAmount(QList<cBooked> decided, qint64 cents)
{
    decided.removeIf([&](const cBooked& booked) { return booked.Cents != cents; });
    const bool isOne = std::all_of(decided.begin(), decided.end(), [&](const cBooked& booked) {
        return Entry(booked.EntryId).Category == Entry(decided.constFirst().EntryId).Category;
    });
    if (decided.isEmpty() || !isOne) {
        return std::nullopt;
    }
    cChoice choice = ChoiceOf(decided, decided.size());
    choice.HasOthers = !choice.IsSure;
    return choice;
}

std::optional<cLearned::cChoice> cLearned::Choose(const QList<cBooked>& rows, const cImportEntry& row)
{
    const QList<cBooked> decided = Decided(rows, row);
    if (decided.isEmpty()) {
        return std::nullopt;
    }
    const auto category = [&](const cBooked& booked) { return Entry(booked.EntryId).Category; };
    int changes = 0;
    qsizetype streak = 1;
    for (qsizetype i = 1; i < decided.size(); ++i) {
        changes += category(decided.at(i)) != category(decided.at(i - 1)) ? 1 : 0;
        streak += changes == 0 ? 1 : 0;
    }
    if (changes > 1) {
        if (std::optional<cChoice> choice = ByAmount(decided, row.ImportValue)) {
            return choice;
        }
    }
    if (streak == lookedBack) {
        streak = std::count_if(rows.begin(), rows.end(), [&](const cBooked& booked) {
            return booked.RowId != row.ID && category(booked) == category(decided.constFirst());
        });
    }
    cChoice choice = ChoiceOf(decided, streak);
    choice.IsSure = choice.IsSure && changes <= 1;
    choice.HasOthers = changes > 0 && !choice.IsSure;
    if ((decided.constFirst().Cents > 0) != (row.ImportValue > 0)) {
        choice.IsSure = false;
        choice.Interval = modWord::Einmalig; // what comes back does not come every month
        choice.SeriesEnd = {};
    }
    return choice;
}

cLearned::cChoice cLearned::ChoiceOf(const QList<cBooked>& decided, qsizetype count)
{
    const cEntry& newest = Entry(decided.constFirst().EntryId);
    cChoice choice;
    choice.Category = newest.Category;
    choice.Interval = newest.Interval;
    choice.Type = newest.Type;
    choice.Account = newest.Account;
    choice.AccountMove = newest.AccountMove;
    choice.SeriesEnd = modRecurrence::IsRecurring(newest.Interval) ? newest.End : QDate();
    choice.Count = static_cast<int>(count);
    choice.IsSure = count >= agreed;
    return choice;
}
