#pragma once

#include "fints/cBankAnswer.h"
#include "model/bank/cBankState.h"

#include <QList>
#include <QString>

// What a login remembers from one dialog to the next.
namespace modBankMemory {

// Takes over whatever the answer tells: system ID, parameters, accounts, procedures, media. Returns the accounts.
QList<cBankAccount> Take(const cBankAnswer& answer, cBankState& state);

// The versions to send: those whose contents are at hand, else "0".
[[nodiscard]] QString BpdVersion(const cBankState& state);
[[nodiscard]] QString UpdVersion(const cBankState& state);

// PIN without TAN, as long as no procedure is known and where a bank wants nothing else.
[[nodiscard]] TanVerfahrenItem OneStep(const QString& name);
[[nodiscard]] bool IsOneStep(const TanVerfahrenItem& method);
[[nodiscard]] bool IsApproval(const TanVerfahrenItem& method); // given in the bank's app

// What the bank offers and the customer may use, in versions that this program speaks; approval in the app first.
[[nodiscard]] QList<TanVerfahrenItem> Methods(const cBankState& state);

// The bank wants a TAN medium named and none is chosen.
[[nodiscard]] bool LacksMedium(const cBankState& state);

// IBAN and BIC of SEPA accounts (HISPA), for accounts that lack them.
void TakeIbans(const QList<cBankAccount>& sepa, cBankState& state);

// The web address that the bank names in its parameters (HIKOM), with "https://"; empty when it names none.
[[nodiscard]] QString Address(const cBankAnswer& answer);
[[nodiscard]] bool IsSameAddress(const QString& left, const QString& right);

} // namespace modBankMemory
