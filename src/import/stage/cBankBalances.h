#pragma once

#include "model/bank/cBankBalance.h"
#include "model/cImportEntry.h"

#include <QList>
#include <QString>

class cSettings;
struct cAccountBalance;
struct cEarlyRow;

// The balances that statements named, kept per account and day in the settings "SALDO:" + number: with the transactions
// alone nobody would see that one is missing. Beside them the bank codes of account numbers, "KTOBLZ:" + number.
class cBankBalances
{
public:
    explicit cBankBalances(cSettings& settings) : m_settings(settings) {}

    // As below, for who only reads.
    [[nodiscard]] static cBankBalanceList Of(const cSettings& settings, const QString& account);
    // By day; those of one day in the order in which they came. What cannot be read is passed over.
    [[nodiscard]] cBankBalanceList Of(const QString& account) const;

    // The same with those of a statement that is not kept yet.
    [[nodiscard]] cBankBalanceList With(const QString& account, const QList<cAccountBalance>& balances,
                                        const cImportEntryList& entries) const;

    // Keeps the balances of a statement. One without a day gets that of the account's newest transaction in `entries`;
    // without either, or without an account, it is dropped. False when the database refuses.
    bool Add(const QList<cAccountBalance>& balances, const cImportEntryList& entries);
    // Notes with the balances that are known what these lack. False when the database refuses.
    [[nodiscard]] bool AddEarly(const QList<cEarlyRow>& rows);

    // Of the bank at which a staged account has this number; empty when no statement has named it.
    [[nodiscard]] QString BankCodeOf(const QString& number) const;
    // Keeps it unless one is known. False when the database refuses.
    [[nodiscard]] bool KeepBankCode(const QString& number, const QString& bankCode);

private:
    bool Add(const QString& account, const cBankBalanceList& balances);

    cSettings& m_settings;
};
