#include "import/table/cColumnFacts.h"

#include "base/modChar.h"
#include "import/cell/modTableNumber.h"
#include "import/cell/modTableValue.h"

#include <algorithm>

namespace {

bool IsAllOf(QStringView cell, auto isFit)
{
    return std::all_of(cell.begin(), cell.end(), isFit);
}

} // namespace

void cColumnFacts::Look(QStringView cell)
{
    if (cell.isEmpty()) {
        return;
    }
    Kinds.insert(qHash(cell));
    if (Filled++ == 0) {
        First = cell.toString();
    }
    Dashes += cell == u"-" || cell == u"--" || cell == u"\u2013" ? 1 : 0;
    const bool isDate = modTableValue::IsDate(cell);
    const bool isAmount = !isDate && modTableValue::IsAmount(cell);
    const QString number = isDate ? QString() : modTableNumber::German(cell, eNumberFormat::Detect);
    Dates += static_cast<int>(isDate);
    Amounts += static_cast<int>(isAmount);
    Wholes += !isAmount && !number.isEmpty() ? 1 : 0;
    const bool isNegative = number.startsWith(u'-');
    Negative += static_cast<int>(isNegative);
    Signed += isNegative || (!number.isEmpty() && cell.contains(u'+')) ? 1 : 0;
    Ibans += static_cast<int>(modTableValue::IsIban(cell));
    Creditors += static_cast<int>(modTableValue::IsCreditor(cell));
    Numbers += cell.size() >= 5 && IsAllOf(cell, modChar::IsDigit) ? 1 : 0;
    Codes += cell.size() == 3 && IsAllOf(cell, modChar::IsCapital) ? 1 : 0;
    Indicators += modTableValue::IndicatorSign(cell) != 0 ? 1 : 0;
    Letters += std::count_if(cell.begin(), cell.end(), [](QChar c) { return c.isLetter(); });
}
