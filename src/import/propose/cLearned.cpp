#include "import/propose/cLearned.h"

#include "import/propose/modCorrected.h"
#include "import/read/cCounterpartyKeys.h"
#include "import/read/modCounterparty.h"
#include "import/read/modPayee.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

constexpr int fewEntries = 500;     // up to here single entries are read when they are asked for
constexpr qsizetype mostPayees = 8; // an account with more of them is nobody's
constexpr qsizetype lookedBack = 8; // bookings that tell whether somebody is of two minds
constexpr int agreed = 2;           // bookings that make a lesson sure

} // namespace

cLearned::cLearned(cDataAccess& data, cImportHiveCache& hive, QDate cashStart) : m_data(data), m_cashStart(cashStart)
{
    const QList<int> corrected = modCorrected::Load(data);
    for (qsizetype i = 0; i < corrected.size(); ++i) {
        m_corrected.insert(corrected.at(i), static_cast<int>(i) + 1);
    }
    Build(hive);
}

void cLearned::Build(cImportHiveCache& hive)
{
    const cImportEntryList rows = hive.GetImportHive().getImportEntryList();
    cCounterpartyKeys keys;
    for (const cImportEntry& row : rows) {
        const bool isBooked = row.ImportAssigned && row.ImportAssignedEntry >= 0;
        const QString number = keys.AccountOf(row);
        if (!isBooked && number.isEmpty()) {
            continue;
        }
        const cPayeeKeys::cPayee payee = m_payees.Of(row);
        const cBooked booked{row.ID, row.ImportAssignedEntry, row.ImportValue};
        if (!number.isEmpty()) {
            cAccount& account = m_byAccount[number];
            NotePayee(account, payee);
            if (isBooked && !account.IsMixed) {
                account.History.Rows.append(booked);
            }
        }
        if (isBooked) {
            m_entryIds.insert(row.ImportAssignedEntry);
            if (!payee.Key.isEmpty()) {
                m_byPayee[KeyOf(payee, row)].Rows.append(booked);
            }
        }
    }
}

// Notes drawn before the purse was counted are in its start balance: what became of them says nothing about those drawn
// since, and the other way round.
QString cLearned::KeyOf(const cPayeeKeys::cPayee& payee, const cImportEntry& row) const
{
    const bool isBefore = payee.IsCash && m_cashStart.isValid() && row.ImportDate < m_cashStart;
    return isBefore ? payee.Key + u'<' : payee.Key;
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
        account.History.Rows.clear();
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
        const auto known = m_byPayee.find(KeyOf(payee, row));
        std::optional<cChoice> choice = known == m_byPayee.end() ? std::nullopt : Choose(*known, row);
        if (choice) {
            choice->Who = payee.Name;
            return choice;
        }
    }
    const auto account = m_byAccount.find(modCounterparty::AccountKey(row));
    if (account == m_byAccount.end() || account->IsMixed || payee.IsCollector || payee.IsCash) {
        return std::nullopt;
    }
    std::optional<cChoice> choice = Choose(account->History, row);
    if (choice) {
        choice->Who = row.ImportBeneficiaryAccount.simplified();
        choice->IsAccount = true;
    }
    return choice;
}

// Of an entry that is gone it is empty.
QString cLearned::CategoryOf(int entryId)
{
    if (m_entryIds.size() <= fewEntries) {
        return Entry(entryId).Category;
    }
    if (!m_categories) {
        const auto [first, last] = std::minmax_element(m_entryIds.cbegin(), m_entryIds.cend());
        m_categories = m_data.GetEntryCategories(*first, *last);
    }
    return m_categories->value(entryId);
}

// Once for all rows of a payee, because shops have thousands.
void cLearned::Rank(cHistory& history)
{
    if (std::exchange(history.IsRanked, true)) {
        return;
    }
    for (const cBooked& booked : std::as_const(history.Rows)) {
        if (const QString category = CategoryOf(booked.EntryId); !category.isEmpty()) {
            ++history.Counts[category];
            (booked.Cents > 0 ? history.In : history.Out).append(booked);
        }
    }
    RankSide(history.In);
    RankSide(history.Out);
}

void cLearned::RankSide(QList<cBooked>& side) const
{
    const auto rank = [&](const cBooked& booked) {
        return std::tuple(m_corrected.value(booked.EntryId), booked.EntryId, booked.RowId);
    };
    const auto shown = std::min(side.size(), lookedBack + 1); // one of them may be the row that is asked for
    std::partial_sort(side.begin(), side.begin() + shown, side.end(),
                      [&](const cBooked& a, const cBooked& b) { return rank(a) > rank(b); });
    side.resize(shown);
}

// The rows that a lesson is drawn from, the newest decision first.
QList<cLearned::cBooked> cLearned::Decided(cHistory& history, const cImportEntry& row)
{
    Rank(history);
    QList<cBooked> decided = row.ImportValue > 0 ? history.In : history.Out;
    QList<cBooked> others = row.ImportValue > 0 ? history.Out : history.In;
    for (QList<cBooked>* side : {&decided, &others}) {
        side->removeIf([&](const cBooked& booked) { return booked.RowId == row.ID; });
        side->resize(std::min(side->size(), lookedBack));
    }
    return decided.isEmpty() ? others : decided;
}

// Somebody who is paid for several things: the rent and what is settled once a year differ by their amount.
std::optional<cLearned::cChoice> cLearned::ByAmount(QList<cBooked> decided, qint64 cents)
{
    decided.removeIf([&](const cBooked& booked) { return booked.Cents != cents; });
    const bool isOne = std::all_of(decided.begin(), decided.end(), [&](const cBooked& booked) {
        return CategoryOf(booked.EntryId) == CategoryOf(decided.constFirst().EntryId);
    });
    if (decided.isEmpty() || !isOne) {
        return std::nullopt;
    }
    cChoice choice = ChoiceOf(decided, decided.size());
    choice.HasOthers = !choice.IsSure;
    return choice;
}

std::optional<cLearned::cChoice> cLearned::Choose(cHistory& history, const cImportEntry& row)
{
    const QList<cBooked> decided = Decided(history, row);
    if (decided.isEmpty()) {
        return std::nullopt;
    }
    const auto category = [&](const cBooked& booked) { return CategoryOf(booked.EntryId); };
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
        const QString latest = category(decided.constFirst());
        const bool hasOwn = std::any_of(history.Rows.cbegin(), history.Rows.cend(), [&](const cBooked& booked) {
            return booked.RowId == row.ID && category(booked) == latest;
        });
        streak = history.Counts.value(latest) - (hasOwn ? 1 : 0);
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
