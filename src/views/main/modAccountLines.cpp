#include "views/main/modAccountLines.h"

#include "base/cText.h"
#include "import/stage/cAccountMap.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "views/template/cBankNumbers.h"

#include <algorithm>
#include <numeric>

modAccountLines::cLines modAccountLines::Of(const cTemplateItemList& accounts, const QHash<QString, qint64>& balances,
                                            const QHash<QString, int>& open)
{
    cLines lines;
    QStringList unknown = balances.keys();
    const cTemplateItemList ordered = modTemplate::InOrder(accounts);
    for (const cTemplateItem& account : ordered) {
        const QString& name = account.TemplateName;
        lines.Accounts.append({account, balances.value(name), open.value(name)});
        unknown.removeAll(name);
    }
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
    const cBankNumbers numbers(data, settings);
    const QHash<QString, int> counts = data.CountEntriesByAccount();
    for (cAccountLine& line : lines.Accounts) {
        line.Numbers = numbers.Of(line.Item.TemplateName);
        line.Start = data.GetStartGuthaben(line.Item.TemplateName);
        line.Entries = counts.value(line.Item.TemplateName);
    }
    return lines;
}
