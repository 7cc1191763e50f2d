#pragma once

#include "model/bank/cBankState.h"
#include "model/bank/cOnlineAccount.h"

#include <QDate>
#include <QString>

// What the columns of table `account` mean. All rows of a login carry what belongs to the login.
namespace modBankRow {

[[nodiscard]] bool IsOf(const cOnlineAccount& row, const QString& bankCode, const QString& userId);
[[nodiscard]] QString BankCode(const cOnlineAccount& row);
[[nodiscard]] QString UserId(const cOnlineAccount& row);

// The number under which an account stands in its row: the IBAN where the bank tells no number.
[[nodiscard]] QString NumberOf(const cBankAccount& account);

// `today` becomes the day of the system ID when that is another one than the row had.
void WriteLogin(cOnlineAccount& row, const cBankState& state, QDate today);
// Address, names, system ID, versions, procedure and medium; the versions as they stand there.
void ReadLogin(const cOnlineAccount& row, cBankState& state);

void WriteAccount(cOnlineAccount& row, const cBankAccount& account);
[[nodiscard]] cBankAccount ReadAccount(const cOnlineAccount& row);
// To tell rows with one number apart. The column may hold anything in rows of other programs: ReadAccount takes nothing
// from it that a bank would be told.
[[nodiscard]] QString SubNumber(const cOnlineAccount& row);

void WriteCreated(cOnlineAccount& row, QDate day);
void WriteFetched(cOnlineAccount& row, QDate day);
[[nodiscard]] QDate ReadFetched(const cOnlineAccount& row); // invalid: never

} // namespace modBankRow
