#pragma once

#include "views/people/modSettlement.h"

#include <QString>
#include <QStringList>

#include <array>

class cAmountFormat;

// The settlement in words and as a page.
namespace modSettlementText {

[[nodiscard]] QString Heading(const cSettlement& settlement);

// The three tables of a settlement: titles of the columns, and what stands in them. Amounts follow the texts.
[[nodiscard]] QStringList PaymentTitles();
[[nodiscard]] QStringList PersonTitles();
[[nodiscard]] std::array<qint64, 4> PersonCents(const cPersonSum& person); // one for each title behind the name
[[nodiscard]] QStringList EntryTitles();
[[nodiscard]] QStringList EntryTexts(const cCountedEntry& counted); // the day first

// Why there are no payments.
[[nodiscard]] QString NothingToPay(const cSettlement& settlement);

// What is to be paid, what each person paid and bears, and the entries that counted, in German HTML for the report
// view.
[[nodiscard]] QString Html(const cSettlement& settlement, const cAmountFormat& format, QDate today);
[[nodiscard]] QString Page(const cSettlement& settlement, const cAmountFormat& format, QDate today);

} // namespace modSettlementText
