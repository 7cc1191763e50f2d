#pragma once

#include "core/modDemo.h"
#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cImportEntry.h"

#include <QList>
#include <QString>

// What the example household buys, and what its bank reports of it.
namespace modDemo {

// Number of the family's current account and savings account at the bank.
inline const QString GiroNumber = QStringLiteral("4711000815");
inline const QString SparNumber = QStringLiteral("4711000816");

struct cDemoPurchase
{
    cEntryItem Entry;
    cImportEntry Staged; // the bank's row; without own account for a purchase in cash
};

// One-off purchases in date order, spread evenly over the book. When there are more of them than a family of four
// makes, the amounts shrink, so that the balances stay believable.
[[nodiscard]] QList<cDemoPurchase> Purchases(const cDemoPlan& plan, int count);

// How many purchases such a family makes in the years of the plan.
[[nodiscard]] int UsualPurchases(const cDemoPlan& plan);

// Cash withdrawals, holidays, a large purchase a year: one-off entries that come on fixed days.
[[nodiscard]] cEntryItemList Events(const cDemoPlan& plan);

// The bank's rows are there from this day on, all of them up to the end of the book.
[[nodiscard]] QDate FirstBankDay(const cDemoPlan& plan);

// What the bank reports of a stored entry, assigned to it: a row for each occurrence and each account at the bank. Of
// the rent the last one waits.
[[nodiscard]] cImportEntryList BankRows(const cEntryItem& entry, const cEntryItemFixModList& fixMods,
                                        const cDemoPlan& plan);

// Rows of the last days that are no purchases: a transfer pair between the own accounts, a tax refund, a fine.
[[nodiscard]] cImportEntryList Mail(const cDemoPlan& plan);

} // namespace modDemo
