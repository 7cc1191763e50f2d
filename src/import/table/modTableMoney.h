#pragma once

class cColumnSurvey;

// The columns of a table that tell how much money went which way.
namespace modTableMoney {

// Amount or the two sides, the letter beside an unsigned amount, balance and currency.
void Complete(cColumnSurvey& survey);

} // namespace modTableMoney
