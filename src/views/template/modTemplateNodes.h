#pragma once

#include "model/cTemplateItem.h"
#include "views/template/cTemplateTreeModel.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// The trees of categories and accounts, built from what the book holds.
namespace modTemplateNodes {

using fnCents = std::function<QString(qint64)>; // an amount as the user sees it

// `counts`: entries by category path. Paths that no category has are listed too, at the end of their main category or
// of the list.
[[nodiscard]] std::vector<cTemplateBranch> Categories(const cTemplateItemList& items, const QHash<QString, int>& counts,
                                                      const fnCents& cents);

// What the book knows about its accounts beside their definitions, by name.
struct cAccountFacts
{
    QHash<QString, int> Entries;
    QHash<QString, qint64> StartBalances; // cents, signed
    QHash<QString, QStringList> Numbers;
};

[[nodiscard]] std::vector<cTemplateBranch> Accounts(const cTemplateItemList& items, const cAccountFacts& facts,
                                                    const fnCents& cents);

} // namespace modTemplateNodes
