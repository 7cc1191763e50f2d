#include "import/read/modCounterparty.h"

#include "import/read/modAccountNumber.h"
#include "import/read/modPayee.h"
#include "model/cImportEntry.h"
#include "model/modCutText.h"

QString modCounterparty::AccountKey(const cImportEntry& row)
{
    return modAccountNumber::Compact(row.ImportBeneficiaryAccount);
}

QString modCounterparty::NameKey(const cImportEntry& row)
{
    return modCutText::Name(row.ImportBeneficiary).simplified().toCaseFolded();
}

QString modCounterparty::Key(const cImportEntry& row)
{
    const QString account = AccountKey(row);
    return account.isEmpty() ? NameKey(row) : account;
}

QString modCounterparty::PurposeKey(const cImportEntry& row)
{
    return u'*' + modPayee::Of(row).Key; // no name is folded to this
}
