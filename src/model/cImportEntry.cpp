#include "model/cImportEntry.h"

#include <cmath>

bool cImportEntry::Validate()
{
    ImportValue = std::nearbyint(ImportValue * 100.0) / 100.0;
    ImportBeneficiaryAccount.remove(u'\'');
    ImportBeneficiaryBLZ.remove(u'\'');
    ImportBeneficiary.remove(u'\'');
    ImportAssigned = false;
    ImportAssignedEntry = -1;
    return true;
}

bool cImportEntry::isEqual(const cImportEntry& other) const
{
    return ImportDate == other.ImportDate && ImportAccount == other.ImportAccount
        && ImportBeneficiaryAccount == other.ImportBeneficiaryAccount && ImportBeneficiary == other.ImportBeneficiary
        && ImportBeneficiaryBLZ == other.ImportBeneficiaryBLZ && ImportPurpose == other.ImportPurpose
        && !(ImportValue < other.ImportValue) && !(other.ImportValue < ImportValue);
}
