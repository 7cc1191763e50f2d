#pragma once

#include "views/people/modSettlement.h"

#include <QByteArray>
#include <QString>

class cAmountFormat;

// The settlement as a page and as a table.
namespace modSettlementText {

[[nodiscard]] QString Heading(const cSettlement& settlement);

// What is to be paid, what each person paid and bears, and the entries that counted, in German HTML for the report
// view.
[[nodiscard]] QString Html(const cSettlement& settlement, const cAmountFormat& format, QDate today);
[[nodiscard]] QString Page(const cSettlement& settlement, const cAmountFormat& format, QDate today);

// The entries that counted.
[[nodiscard]] QByteArray Csv(const cSettlement& settlement);

} // namespace modSettlementText
