#pragma once

#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"

#include <QHash>
#include <QSet>
#include <QString>

class cDataAccess;
class cSettings;

// Which account of the book the rows of a bank's number may belong to, by what speaks for each: its name, what it
// holds, and entries that the user made by hand. Nothing rather than any account: two banks would be mixed up there.
class cAccountGuess
{
public:
    // `taken` are the accounts that have a number.
    cAccountGuess(cDataAccess& data, const cSettings& settings, const QSet<QString>& taken);

    // Empty where nothing speaks for one account more than for the others.
    [[nodiscard]] QString AccountFor(const QString& number) const;
    // For the rows of a file that names no account: where nothing speaks for one, the first that is no cash.
    [[nodiscard]] QString Likeliest(const cImportEntryList& rows) const;
    // A name for an account that the book does not have yet: what the bank calls it, where that is known and no account
    // with a number has the name.
    [[nodiscard]] QString NewName(const QString& number, const QString& product) const;

private:
    [[nodiscard]] int Weight(const cTemplateItem& account, const QString& number, const cImportEntryList& rows) const;
    [[nodiscard]] bool IsUsed(const QString& account) const;
    [[nodiscard]] bool HoldsSame(const QString& account, const QString& number) const;
    [[nodiscard]] QHash<QString, int> KnownNames(const cImportEntryList& rows) const;
    [[nodiscard]] bool HasSameEntries(const QString& account, const cImportEntryList& rows) const;

    cDataAccess& m_data;
    const cSettings& m_settings;
    QSet<QString> m_taken;
    cTemplateItemList m_accounts;
};
