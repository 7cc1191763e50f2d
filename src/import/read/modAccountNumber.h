#pragma once

#include <QString>

// Account numbers in their two forms.
namespace modAccountNumber {

// Without blanks and in capitals, so that "DE12 3456 ..." and "DE123456..." are one.
[[nodiscard]] QString Compact(const QString& number);

// True for the 22 characters of a German IBAN; its check digits are not looked at.
[[nodiscard]] bool IsGermanIban(const QString& compact);

// True for the eight digits of a German bank code.
[[nodiscard]] bool IsBankCode(const QString& code);

// Numbers of cards have sixteen digits, some of which the bank may hide.
[[nodiscard]] bool IsCard(const QString& number);

// True when both mean the same account: equal but for leading zeros, or a German IBAN and its account number. An empty
// bank code is unknown and does not speak against it.
[[nodiscard]] bool IsSame(const QString& number, const QString& bankCode, const QString& other,
                          const QString& otherBankCode = {});

} // namespace modAccountNumber
