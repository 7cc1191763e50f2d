#include "import/read/cCounterpartyKeys.h"

#include "import/read/modCounterparty.h"

namespace {

template <typename tMake>
QString Known(QHash<QString, QString>& keys, const QString& text, const tMake& make)
{
    if (text.isEmpty()) {
        return {};
    }
    auto known = keys.constFind(text);
    if (known == keys.constEnd()) {
        known = keys.insert(text, make());
    }
    return *known;
}

} // namespace

QString cCounterpartyKeys::AccountOf(const cImportEntry& row)
{
    return Known(m_accounts, row.ImportBeneficiaryAccount, [&] { return modCounterparty::AccountKey(row); });
}

QString cCounterpartyKeys::Of(const cImportEntry& row)
{
    const QString account = AccountOf(row);
    return account.isEmpty() ? Known(m_names, row.ImportBeneficiary, [&] { return modCounterparty::NameKey(row); })
                             : account;
}
