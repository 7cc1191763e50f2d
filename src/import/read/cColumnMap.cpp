#include "import/read/cColumnMap.h"

#include <QList>

bool cColumnMap::Uses(int column) const
{
    const QList<int> used{Date,  Text,       Purpose[0],  Purpose[1], Purpose[2], Name,  Account,  BankCode,
                          Name2, Account2,   BankCode2,   Amount,     Credit,     Debit, Currency, Indicator,
                          Payer, OwnAccount, OwnBankCode, Status,     Balance,    Fee,   OtherName};
    return used.contains(column);
}
