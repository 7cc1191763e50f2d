#pragma once

#include <QStringView>

// The words by which banks name the balance of an account.
namespace modBalanceWords {

enum class eBalance {
    None,
    Opening, // before the bookings
    Closing, // behind them
    Present, // "Kontostand": behind them too, where nothing names both
    Any      // "Saldo": which one it is the word does not say
};

// What a line begins with that tells a balance; the words may stand among others: "Neuer Saldo vom 31.01.2026 in EUR:".
[[nodiscard]] eBalance OfLabel(QStringView label);

// What a cell among bookings names that holds nothing but the words: a purpose may mention them.
[[nodiscard]] eBalance OfCell(QStringView cell);

} // namespace modBalanceWords
