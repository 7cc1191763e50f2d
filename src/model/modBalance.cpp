#include "model/modBalance.h"

#include "model/modWord.h"

qint64 modBalance::Effect(const QString& type, const QString& account, const QString& target, qint64 cents,
                          const QString& forAccount)
{
    if (type == modWord::Umbuchung) {
        if (forAccount.isEmpty()) {
            return 0;
        }
        return (target == forAccount ? cents : 0) - (account == forAccount ? cents : 0);
    }
    if (!forAccount.isEmpty() && account != forAccount) {
        return 0;
    }
    return type == modWord::Einnahme ? cents : -cents;
}

qint64 modBalance::Effect(const cEntryItem& entry, const QString& forAccount)
{
    return Effect(entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, entry.EntryValue, forAccount);
}

QHash<QString, qint64> modBalance::ByAccount(const QList<cAccountSum>& sums)
{
    QHash<QString, qint64> balances;
    for (const cAccountSum& sum : sums) {
        balances[sum.EntryAccount] += sum.EntryType == modWord::Einnahme ? sum.Cents : -sum.Cents;
        if (sum.EntryType == modWord::Umbuchung) {
            balances[sum.EntryAccountMove] += sum.Cents;
        }
    }
    return balances;
}
