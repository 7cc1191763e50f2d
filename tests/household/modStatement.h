#pragma once

#include "household/cHousehold.h"

#include <QByteArray>
#include <QString>

// Statements as the banks of the household send them.
namespace modStatement {

// The bookings from one day to the other, both included, with the balances before and after where the format has them.
[[nodiscard]] QByteArray Text(const cHousehold::cAccount& account, QDate from, QDate to);

[[nodiscard]] QString Ending(cHousehold::eFormat format); // ".sta"

} // namespace modStatement
