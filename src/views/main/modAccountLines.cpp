#include "views/main/modAccountLines.h"

#include "base/cText.h"
#include "import/stage/cAccountMap.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "views/template/cBankNumbers.h"

#include <QSet>

#include <algorithm>
#include <numeric>

QString modAccountLines::ShownName(const QString& account)
{
    return account.isEmpty() ? cText::Tr("Ohne Konto") : account;
}

modAccountLines::cLines modAccountLines::Of(const cTemplateItemList& accounts, const QHash<QString, qint64>& balances,
                                            const QHash<QString, int>& open)
{
    cLines lines;
    QSet<QString> known;
    const cTemplateItemList ordered = modTemplate::InOrder(accounts);
    for (const cTemplateItem& account : ordered) {
        const QString& name = account.TemplateName;
        lines.Accounts.append({account, balances.value(name), open.value(name)});
        known.insert(name);
    }
    QStringList unknown = balances.keys();
    unknown.removeIf([&](const QString& name) { return known.contains(name); });
    std::sort(unknown.begin(), unknown.end());
    for (const QString& name : std::as_const(unknown)) {
        if (!name.isEmpty() || balances.value(name) != 0) {
            cTemplateItem item;
            item.TemplateCategory = cText::Tr("Ohne Kontoeintrag");
            item.TemplateName = name;
            lines.Accounts.append({item, balances.value(name)});
        }
    }
    lines.Cents = std::accumulate(balances.begin(), balances.end(), qint64(0));
    lines.Open = std::accumulate(open.begin(), open.end(), 0);
    return lines;
}

modAccountLines::cLines modAccountLines::Load(cDataAccess& data, cSettings& settings, QDate day)
{
    cEntryQuery query;
    query.End = day;
    cLines lines = Of(data.GetAccounts(), modBalance::ByAccount(data.GetSums(query, true)),
                      cAccountMap(data, settings).OpenByAccount());
    QHash<QString, QStringList> numbers;
    for (const auto& [number, owner] : cBankNumbers(data, settings).All()) {
        numbers[owner].append(number);
    }
    const QHash<QString, cEntryItem> starts = data.GetStartBalances();
    const QHash<QString, int> counts = data.CountEntriesByAccount();
    for (cAccountLine& line : lines.Accounts) {
        const QString& name = line.Item.TemplateName;
        line.Numbers = numbers.value(name);
        line.Start = starts.contains(name) ? std::optional(starts.value(name)) : std::nullopt;
        line.Entries = counts.value(name);
    }
    return lines;
}
