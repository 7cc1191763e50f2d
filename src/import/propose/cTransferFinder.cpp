#include "import/propose/cTransferFinder.h"

#include "import/read/modAccountNumber.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 farthestDays = 5; // between the booking days of the two banks

} // namespace

cTransferFinder::cTransferFinder(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts)
    : m_data(data),
      m_hive(hive),
      m_accounts(accounts),
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
        return std::nullopt;
    }
    transfer.Own = AccountOf(row.ImportAccount);
    if (transfer.Own.isEmpty() || transfer.Own == transfer.Other) {
        return std::nullopt;
    }
    FindPartner(row, transfer);
    return transfer;
}

void cTransferFinder::Build()
{
    m_rows = m_hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
    m_byCents.reserve(m_rows.size());
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_byCents.insert(m_rows.at(i).ImportValue, i);
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
        const int otherId = m_rows.at(i).ID;
        const bool isTaken =
            m_partners.value(otherId, row.ID) != row.ID || m_partners.value(row.ID, otherId) != otherId;
        return isTaken || distance(i) > farthestDays || !IsPartner(row, m_rows.at(i), transfer);
    });
    std::sort(found.begin(), found.end(), [&](qsizetype left, qsizetype right) {
        return std::pair(distance(left), left) < std::pair(distance(right), right);
    });
    for (const qsizetype i : std::as_const(found)) {
        const cImportEntry& other = m_rows.at(i);
        transfer.ExistingEntry = other.ImportAssigned ? HalfTransfer(other, transfer) : 0;
        transfer.PartnerRow = other.ImportAssigned ? 0 : other.ID;
        transfer.PartnerDay = other.ImportAssigned ? QDate() : other.ImportDate;
        if (transfer.ExistingEntry != 0 || transfer.PartnerRow != 0) {
            m_partners.insert(row.ID, other.ID);
            m_partners.insert(other.ID, row.ID);
            return;
        }
    }
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

int cTransferFinder::HalfTransfer(const cImportEntry& other, const cTransfer& transfer)
{
    const cImportEntryList rows =
        m_hive.GetImportHive(eKeepCache::Yes)
            .GetImportEntryByArea(other.ImportAssignedEntry, other.ImportDate.addDays(-farthestDays),
                                  other.ImportDate.addDays(farthestDays));
    const std::optional<cEntryItem> entry = m_data.LoadEntry(other.ImportAssignedEntry);
    if (rows.size() != 1 || !entry || entry->EntryType != modWord::Umbuchung) {
        return 0;
    }
    const bool isThis = (entry->EntryAccount == transfer.Own && entry->EntryAccountMove == transfer.Other)
        || (entry->EntryAccount == transfer.Other && entry->EntryAccountMove == transfer.Own);
    return isThis ? entry->ID : 0;
}
