#include "import/stage/modBookNames.h"

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

void cBookNames::Add(const cBookNames& more)
{
    Accounts += more.Accounts;
    Accounts.removeDuplicates();
    for (auto category = more.Categories.begin(); category != more.Categories.end(); ++category) {
        Categories[category.key()] += *category;
    }
}

cBookNames modBookNames::Of(const cStatementRead& read, const QString& given)
{
    cBookNames names;
    if (!read.IsBook) {
        return names;
    }
    QSet<QString> accounts;
    for (const cImportEntry& row : read.Entries) {
        accounts.insert(row.ImportAccount);
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

cBookNames modBookNames::Missing(const cBookNames& names, cDataAccess& data, cAccountMap& accounts)
{
    cBookNames missing = names;
    missing.Accounts.removeIf([&](const QString& name) {
        return !accounts.AccountOf(name).isEmpty() || (accounts.Has(name) && accounts.Assign(name, name));
    });
    const cBookCategories known(data.GetTemplates());
    missing.Categories.removeIf([&](const auto& category) { return !known.Find(category.key()).isEmpty(); });
    return missing;
}

bool modBookNames::Create(const cBookNames& missing, cDataAccess& data, cAccountMap& accounts)
{
    for (auto category = missing.Categories.begin(); category != missing.Categories.end(); ++category) {
        const QString& path = category.key();
        cTemplateItem item =
            modTemplate::NewCategory(data.GetTemplates(), modTemplate::MainOf(path), modTemplate::SubOf(path));
        item.EntryType = *category > 0 ? modWord::Einnahme : modWord::Ausgabe;
        if (!data.AddNewTemplate(item)) {
            return false;
        }
    }
    return std::all_of(missing.Accounts.begin(), missing.Accounts.end(),
                       [&](const QString& name) { return accounts.Assign(name, name); });
}

QString modBookNames::Count(const cBookNames& names)
{
    QStringList parts;
    if (!names.Categories.isEmpty()) {
        parts.append(modCount::Categories(names.Categories.size()));
    }
    if (const qsizetype count = names.Accounts.size(); count > 0) {
        parts.append(count == 1 ? cText::Tr("1 Konto") : cText::Tr("{0} Konten", {QString::number(count)}));
    }
    return parts.join(u", "_s);
}
