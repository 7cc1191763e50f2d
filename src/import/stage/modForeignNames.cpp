#include "import/stage/modForeignNames.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "import/read/cStatementRead.h"
#include "import/read/modBookRow.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBookCategories.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

cTemplateItem NewCategory(const cTemplateItemList& items, const QString& path)
{
    return modTemplate::NewCategory(items, modTemplate::MainOf(path), modTemplate::SubOf(path));
}

} // namespace

void cForeignNames::Add(const cForeignNames& more)
{
    Accounts += more.Accounts;
    Accounts.removeDuplicates();
    for (auto category = more.Categories.begin(); category != more.Categories.end(); ++category) {
        Categories[category.key()] += *category;
    }
}

cForeignNames modForeignNames::Of(const cStatementRead& read, const QString& given)
{
    cForeignNames names;
    if (!read.IsBook) {
        return names;
    }
    QSet<QString> accounts;
    for (const cImportEntry& row : read.Entries) {
        if (read.Formats.isEmpty() || modBookRow::IsBook(row)) { // an archive may hold statements beside the book
            accounts.insert(row.ImportAccount);
        }
        if (modBookRow::IsTransfer(row)) {
            accounts.insert(row.ImportBeneficiaryAccount);
        }
        if (const QString path = modBookRow::CategoryOf(row); !path.isEmpty()) {
            names.Categories[path] += row.ImportValue;
        }
    }
    accounts.remove(given);
    names.Accounts = accounts.values();
    names.Accounts.sort();
    return names;
}

cForeignNames modForeignNames::Missing(const cForeignNames& names, cDataAccess& data, const cAccountMap& accounts)
{
    cForeignNames missing;
    cTemplateItemList added = data.GetAccounts(); // as it would be with what is missing
    for (const QString& name : names.Accounts) {
        const cTemplateItem account = modTemplate::NewAccount(added, name);
        if (!accounts.AccountOf(name).isEmpty() || accounts.Has(name)) {
            continue;
        }
        if (account.TemplateName.isEmpty()) {
            missing.Bad.append(name);
        } else if (modTemplate::AccountLike(added, account.TemplateName).isEmpty()) {
            missing.Accounts.append(name);
            added.append(account);
        }
    }
    cTemplateItemList items = data.GetTemplates();
    for (auto category = names.Categories.begin(); category != names.Categories.end(); ++category) {
        if (!cBookCategories(items).Find(category.key()).isEmpty()) {
            continue;
        }
        const cTemplateItem item = NewCategory(items, category.key());
        if (modTemplate::Path(item) == modTemplate::NoPath) {
            missing.Bad.append(category.key());
        } else {
            missing.Categories.insert(category.key(), *category);
            items.append(item);
        }
    }
    return missing;
}

bool modForeignNames::Create(const cForeignNames& missing, cDataAccess& data, cAccountMap& accounts)
{
    for (auto category = missing.Categories.begin(); category != missing.Categories.end(); ++category) {
        cTemplateItem item = NewCategory(data.GetTemplates(), category.key());
        item.EntryType = *category > 0 ? modWord::Einnahme : modWord::Ausgabe;
        if (!data.AddNewTemplate(item)) {
            return false;
        }
    }
    return std::all_of(missing.Accounts.begin(), missing.Accounts.end(),
                       [&](const QString& name) { return accounts.Assign(name, name); });
}

QString modForeignNames::BadText(const QStringList& names)
{
    return cText::Tr("Aus der Datei nicht angelegt, weil im Buch nichts so heißen kann: {0}", {names.join(u", "_s)});
}

QString modForeignNames::Count(const cForeignNames& names)
{
    QStringList parts;
    if (!names.Categories.isEmpty()) {
        parts.append(modCount::Categories(names.Categories.size()));
    }
    if (!names.Accounts.isEmpty()) {
        parts.append(modCount::Accounts(names.Accounts.size()));
    }
    return parts.join(u", "_s);
}
