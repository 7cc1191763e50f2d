#pragma once

#include "model/cImportEntry.h"

#include <QHash>
#include <QString>

// The keys of modCounterparty for many rows, where the same numbers and names come again and again.
class cCounterpartyKeys
{
public:
    // As modCounterparty::Key.
    [[nodiscard]] QString Of(const cImportEntry& row);
    // As modCounterparty::AccountKey.
    [[nodiscard]] QString AccountOf(const cImportEntry& row);

private:
    QHash<QString, QString> m_accounts;
    QHash<QString, QString> m_names;
};
