#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class cAccountMap;
class cDataAccess;
struct cStatementRead;

// What a file of another household book names.
struct cForeignNames
{
    QStringList Accounts;             // also those that its transfers lead to
    QMap<QString, qint64> Categories; // path, with the sum in cents
    QStringList Bad;                  // what neither an account nor a category can be called

    void Add(const cForeignNames& more);
    [[nodiscard]] bool IsEmpty() const { return Accounts.isEmpty() && Categories.isEmpty(); }
};

namespace modForeignNames {

// Without the account that the user gave. Of a statement there are none.
[[nodiscard]] cForeignNames Of(const cStatementRead& read, const QString& given);

// What this book lacks, each once, however the file spells it.
[[nodiscard]] cForeignNames Missing(const cForeignNames& names, cDataAccess& data, const cAccountMap& accounts);

// Adds them to the book. False when the database refuses.
[[nodiscard]] bool Create(const cForeignNames& missing, cDataAccess& data, cAccountMap& accounts);

// That there can be no accounts or categories of these names.
[[nodiscard]] QString BadText(const QStringList& names);

// "2 Kategorien, 1 Konto"
[[nodiscard]] QString Count(const cForeignNames& names);

} // namespace modForeignNames
