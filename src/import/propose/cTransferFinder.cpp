#include "import/propose/cTransferFinder.h"

#include "import/propose/modSettlement.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace {

constexpr qint64 farthestDays = 5; // between the booking days of the two banks

} // namespace

cTransferFinder::cTransferFinder(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts,
                                 std::function<bool(int)> isDouble)
    : m_data(data),
      m_hive(hive),
      m_accounts(accounts),
      m_isDouble(std::move(isDouble)),
      m_mapping(accounts.Mapping())
{
}

QString cTransferFinder::AccountOf(const QString& number)
{
    auto found = m_known.find(number);
    if (found == m_known.end()) {
        found = m_known.insert(number, m_accounts.AccountOf(number));
    }
    return *found;
}

QString cTransferFinder::OwnAccountOf(const QString& number, const QString& bankCode) const
{
    if (number.trimmed().isEmpty()) {
        return {};
    }
    const auto found = std::find_if(m_mapping.begin(), m_mapping.end(), [&](const auto& mapping) {
        return modAccountNumber::IsSame(number, bankCode, mapping.first)
            && modAccountNumber::IsSame(number, bankCode, mapping.first, m_accounts.BankCodeOf(mapping.first));
    });
    return found == m_mapping.end() ? QString() : found->second;
}

std::optional<cTransferFinder::cTransfer> cTransferFinder::Find(const cImportEntry& row)
{
    cTransfer transfer;
    transfer.Other = OwnAccountOf(row.ImportBeneficiaryAccount, row.ImportBeneficiaryBLZ);
    if (transfer.Other.isEmpty()) {
        return FindSettled(row);
    }
    transfer.Own = AccountOf(row.ImportAccount);
    if (transfer.Own.isEmpty() || transfer.Own == transfer.Other) {
        return std::nullopt;
    }
    FindPartner(row, transfer);
    return transfer;
}

// The nearest row that is certainly the other side and has none of its own. What two accounts might have got is
// nobody's.
std::optional<cTransferFinder::cTransfer> cTransferFinder::FindSettled(const cImportEntry& row)
{
    cTransfer transfer;
    transfer.Own = AccountOf(row.ImportAccount);
    if (transfer.Own.isEmpty()) {
        return std::nullopt;
    }
    const modSettlement::cSides sides(row);
    if (!sides.IsAny()) {
        return std::nullopt;
    }
    if (!m_isBuilt) {
        Build();
    }
    QList<qsizetype> found = m_byCents.values(-row.ImportValue);
    const auto distance = [&](qsizetype i) { return std::abs(m_rows.at(i).ImportDate.daysTo(row.ImportDate)); };
    found.removeIf([&](qsizetype i) {
        const cImportEntry& other = m_rows.at(i);
        const QString account = AccountOf(other.ImportAccount);
        return IsTaken(row, other) || distance(i) > farthestDays || account.isEmpty() || account == transfer.Own
            || m_isDouble(other.ID)
            || !modSettlement::IsPair(sides, transfer.Own, modSettlement::cSides(other), account);
    });
    for (const qsizetype i : std::as_const(found)) {
        const QString account = AccountOf(m_rows.at(i).ImportAccount);
        if (!transfer.Other.isEmpty() && transfer.Other != account) {
            return std::nullopt;
        }
        transfer.Other = account;
    }
    std::sort(found.begin(), found.end(), [&](qsizetype left, qsizetype right) {
        return std::pair(distance(left), left) < std::pair(distance(right), right);
    });
    bool isElsewhere = false;
    for (const qsizetype i : std::as_const(found)) {
        if (HasTaken(m_rows.at(i), transfer)) {
            Pair(row, m_rows.at(i));
            return transfer;
        }
        isElsewhere = isElsewhere || transfer.IsElsewhere;
    }
    transfer.IsElsewhere = isElsewhere;
    return isElsewhere ? std::optional(transfer) : std::nullopt;
}

bool cTransferFinder::IsTaken(const cImportEntry& row, const cImportEntry& other) const
{
    return m_partners.value(other.ID, row.ID) != row.ID || m_partners.value(row.ID, other.ID) != other.ID;
}

void cTransferFinder::Pair(const cImportEntry& row, const cImportEntry& other)
{
    if (m_isDouble(row.ID)) {
        return; // the one that is booked has to find it
    }
    m_partners.insert(row.ID, other.ID);
    m_partners.insert(other.ID, row.ID);
}

void cTransferFinder::Build()
{
    m_rows = m_hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
    m_byCents.reserve(m_rows.size());
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        const cImportEntry& row = m_rows.at(i);
        m_byCents.insert(row.ImportValue, i);
        auto days = m_days.find(row.ImportAccount);
        if (days == m_days.end()) {
            days = m_days.insert(row.ImportAccount, {row.ImportDate, row.ImportDate});
        }
        *days = {std::min(days->first, row.ImportDate), std::max(days->second, row.ImportDate)};
    }
    m_isBuilt = true;
}

void cTransferFinder::FindPartner(const cImportEntry& row, cTransfer& transfer)
{
    if (!m_isBuilt) {
        Build();
    }
    QList<qsizetype> found = m_byCents.values(-row.ImportValue);
    const auto distance = [&](qsizetype i) { return std::abs(m_rows.at(i).ImportDate.daysTo(row.ImportDate)); };
    found.removeIf([&](qsizetype i) {
        return IsTaken(row, m_rows.at(i)) || distance(i) > SlowestDays || !IsPartner(row, m_rows.at(i), transfer)
            || (distance(i) > farthestDays && !IsSlowPartner(row, m_rows.at(i), transfer))
            || m_isDouble(m_rows.at(i).ID);
    });
    const auto rank = [&](qsizetype i) {
        const cImportEntry& other = m_rows.at(i);
        const qint64 days = other.ImportDate.daysTo(row.ImportDate);
        const bool isBackwards = row.ImportValue < 0 ? days > 0 : days < 0; // money leaves before it arrives
        return std::tuple(other.ImportBeneficiaryAccount.isEmpty(), isBackwards, distance(i), i);
    };
    std::sort(found.begin(), found.end(), [&](qsizetype left, qsizetype right) { return rank(left) < rank(right); });
    for (const qsizetype i : std::as_const(found)) {
        const cImportEntry& other = m_rows.at(i);
        if (HasTaken(other, transfer)) {
            Pair(row, other);
            return;
        }
    }
    transfer.IsMissed = !transfer.IsElsewhere && IsCovered(row, transfer);
}

bool cTransferFinder::IsPartner(const cImportEntry& row, const cImportEntry& other, const cTransfer& transfer)
{
    if (other.ID == row.ID || AccountOf(other.ImportAccount) != transfer.Other) {
        return false;
    }
    // A bank that does not name the counterparty may still mean this one; one that names somebody else does not.
    return other.ImportBeneficiaryAccount.isEmpty()
        || OwnAccountOf(other.ImportBeneficiaryAccount, other.ImportBeneficiaryBLZ) == transfer.Own;
}

// Many days go by only where both banks name the other account, and no row of the own one lies nearer: of a weekly
// amount whose first credit is not read yet each debit would get the credit of the next.
bool cTransferFinder::IsSlowPartner(const cImportEntry& row, const cImportEntry& other, const cTransfer& transfer)
{
    const qint64 days = row.ImportDate.daysTo(other.ImportDate) * (row.ImportValue < 0 ? 1 : -1);
    if (days <= farthestDays || days > SlowestDays || other.ImportBeneficiaryAccount.isEmpty()) {
        return false;
    }
    if (other.ImportAssigned) {
        const std::optional<cEntryItem> entry = m_data.LoadEntry(other.ImportAssignedEntry);
        if (!entry || modRecurrence::IsRecurring(entry->EntryInterval)) {
            return false;
        }
    }
    const QList<qsizetype> rivals = m_byCents.values(row.ImportValue);
    return std::none_of(rivals.begin(), rivals.end(), [&](qsizetype i) {
        const cImportEntry& rival = m_rows.at(i);
        return rival.ID != row.ID && std::abs(rival.ImportDate.daysTo(other.ImportDate)) <= days
            && AccountOf(rival.ImportAccount) == transfer.Own
            && OwnAccountOf(rival.ImportBeneficiaryAccount, rival.ImportBeneficiaryBLZ) == transfer.Other;
    });
}

// Whether the rows of the other account reach over all days on which its side could stand.
bool cTransferFinder::IsCovered(const cImportEntry& row, const cTransfer& transfer)
{
    const bool isOutgoing = row.ImportValue < 0;
    const QDate first = isOutgoing ? row.ImportDate : row.ImportDate.addDays(-SlowestDays);
    const QDate last = isOutgoing ? row.ImportDate.addDays(SlowestDays) : row.ImportDate;
    return std::any_of(m_days.constKeyValueBegin(), m_days.constKeyValueEnd(), [&](const auto& days) {
        return days.second.first <= first && days.second.second >= last && AccountOf(days.first) == transfer.Other;
    });
}

bool cTransferFinder::HasTaken(const cImportEntry& other, cTransfer& transfer)
{
    transfer.IsElsewhere = false;
    if (!other.ImportAssigned) {
        transfer.PartnerRow = other.ID;
        transfer.PartnerDay = other.ImportDate;
        return true;
    }
    const std::optional<cEntryItem> entry = m_data.LoadEntry(other.ImportAssignedEntry);
    if (!entry) {
        return false;
    }
    const bool isThis = entry->IsTransfer()
        && ((entry->EntryAccount == transfer.Own && entry->EntryAccountMove == transfer.Other)
            || (entry->EntryAccount == transfer.Other && entry->EntryAccountMove == transfer.Own));
    if (isThis && !IsHalf(*entry, other)) {
        return false;
    }
    if (isThis || CanBecome(transfer, *entry, other)) {
        transfer.ExistingEntry = entry->ID;
        transfer.BookedAs = isThis ? QString() : entry->EntryType;
        return true;
    }
    transfer.IsElsewhere = true;
    return !other.ImportBeneficiaryAccount.isEmpty();
}

// Of a series the rows of one occurrence count.
bool cTransferFinder::IsHalf(const cEntryItem& entry, const cImportEntry& other)
{
    const cImportHive& hive = m_hive.GetImportHive(eKeepCache::Yes);
    const cImportEntryList rows = modRecurrence::IsRecurring(entry.EntryInterval)
        ? hive.GetImportEntryByArea(entry.ID, other.ImportDate.addDays(-farthestDays),
                                    other.ImportDate.addDays(farthestDays))
        : hive.GetImportEntriesByAssignedID(entry.ID);
    return rows.size() == 1;
}

// Booked as the money of somebody else, because the number was not known yet. Nothing that the user made of it since
// may be lost, so it has to be what booking makes of a row.
bool cTransferFinder::CanBecome(const cTransfer& transfer, const cEntryItem& entry, const cImportEntry& other)
{
    const bool isOutgoing = other.ImportValue < 0;
    return entry.EntryType == (isOutgoing ? modWord::Ausgabe : modWord::Einnahme)
        && entry.EntryAccount == transfer.Other && entry.EntryValue == std::abs(other.ImportValue)
        && entry.EntryCategory != modWord::Startguthaben
        && (isOutgoing || entry.EntryDate == other.ImportDate) // the day becomes that of the debit
        && !modRecurrence::IsRecurring(entry.EntryInterval) && modSplit::Group(entry) == 0
        && !other.ImportBeneficiaryAccount.isEmpty()
        && m_hive.GetImportHive(eKeepCache::Yes).GetImportEntriesByAssignedID(entry.ID).size() == 1;
}
