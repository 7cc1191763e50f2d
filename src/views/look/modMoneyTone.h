#pragma once

#include <QtGlobal>

// What an amount means, for whoever paints it.
enum class eMoneyTone { Neutral, Income, Expense };

namespace modMoneyTone {

[[nodiscard]] constexpr eMoneyTone Of(qint64 cents)
{
    return cents == 0 ? eMoneyTone::Neutral : cents > 0 ? eMoneyTone::Income : eMoneyTone::Expense;
}

// Of what an account holds: it has a colour where the money has run out.
[[nodiscard]] constexpr eMoneyTone OfBalance(qint64 cents)
{
    return cents < 0 ? eMoneyTone::Expense : eMoneyTone::Neutral;
}

} // namespace modMoneyTone
