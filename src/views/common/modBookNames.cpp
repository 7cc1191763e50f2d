#include "views/common/modBookNames.h"

#include "store/cDataAccess.h"

QStringList modBookNames::Accounts(cDataAccess& data)
{
    return modTemplate::AccountNames(data.GetAccounts());
}

QStringList modBookNames::UsedAccounts(cDataAccess& data)
{
    QStringList names = Accounts(data) + data.GetEntryAccounts();
    names.removeDuplicates();
    return names;
}

QStringList modBookNames::Categories(cDataAccess& data)
{
    QStringList paths = modTemplate::Paths(data.GetTemplates());
    paths.removeDuplicates();
    return paths;
}

QStringList modBookNames::UsedCategories(cDataAccess& data)
{
    QStringList used = data.CountEntriesByCategory().keys();
    used.sort();
    QStringList paths = Categories(data) + used;
    paths.removeDuplicates();
    return paths;
}

QList<cCategoryLine> modBookNames::CategoryLines(cDataAccess& data)
{
    const QHash<QString, int> counts = data.CountEntriesByCategory();
    QStringList unknown = counts.keys();
    unknown.sort();
    QList<cCategoryLine> lines;
    const cTemplateItemList items = modTemplate::InOrder(data.GetTemplates());
    for (const cTemplateItem& item : items) {
        if (!modTemplate::IsAccount(item)) {
            const QString path = modTemplate::Path(item);
            lines.append({item, counts.value(path)});
            unknown.removeAll(path);
        }
    }
    for (const QString& path : std::as_const(unknown)) {
        cTemplateItem item;
        item.TemplateCategory = modTemplate::MainOf(path);
        item.TemplateName = modTemplate::SubOf(path);
        lines.append({item, counts.value(path)});
    }
    return lines;
}
