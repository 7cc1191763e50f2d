#include "core/modReceiptUse.h"

#include "core/cSettings.h"
#include "model/modReceiptName.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <utility>

cEntryItemList modReceiptUse::Entries(cDataAccess& data)
{
    cEntryItemList entries = data.GetEntriesFlagged(modReceiptName::Mark);
    entries.removeIf([](const cEntryItem& entry) { return modReceiptName::Count(entry) == 0; });
    return entries;
}

QMap<QString, QStringList> modReceiptUse::Papers(cDataAccess& data)
{
    QMap<QString, QStringList> papers;
    const QList<std::pair<QString, QString>> settings = data.GetSettings();
    for (const auto& [name, value] : settings) {
        if (modSettingKey::StatementPapers.Holds(name)) {
            papers.insert(modSettingKey::StatementPapers.PartOf(name), modReceiptName::Read(value));
        }
    }
    return papers;
}

QStringList modReceiptUse::PapersOf(const cSettings& settings, const QString& number)
{
    return modReceiptName::Read(settings.Get(modSettingKey::StatementPapers.Of(number)));
}

QStringList modReceiptUse::Names(cDataAccess& data)
{
    QStringList names;
    const cEntryItemList entries = Entries(data);
    for (const cEntryItem& entry : entries) {
        names += modReceiptName::Of(entry);
    }
    const QMap<QString, QStringList> papers = Papers(data);
    for (const QStringList& each : papers) {
        names += each;
    }
    return names;
}
