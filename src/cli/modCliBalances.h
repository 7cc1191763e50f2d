#pragma once

#include "cli/modCliCommands.h"

#include <QList>
#include <QString>

// An account with its balance of today.
struct cCliBalance
{
    QString Group;
    QString Account;
    qint64 Cents = 0;
    int Open = 0; // bank transactions that wait to be booked
};

namespace modCliBalances {

// The accounts of the book in their order, then names that only entries have.
[[nodiscard]] QList<cCliBalance> Load(const cCliContext& context);

} // namespace modCliBalances
