#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class cAccountMap;
class cDataAccess;
struct cStatementRead;

// What a file of another household book names.
struct cBookNames
{
    QStringList Accounts;             // also those that its transfers lead to
    QMap<QString, qint64> Categories; // path, with the sum in cents

    void Add(const cBookNames& more);
    [[nodiscard]] bool IsEmpty() const { return Accounts.isEmpty() && Categories.isEmpty(); }
};

namespace modBookNames {

// Without the account that the user gave. Of a statement there are none.
[[nodiscard]] cBookNames Of(const cStatementRead& read, const QString& given);

// What this book lacks. The accounts that it has are known by their names from now on.
[[nodiscard]] cBookNames Missing(const cBookNames& names, cDataAccess& data, cAccountMap& accounts);

// Adds them to the book. False when the database refuses.
[[nodiscard]] bool Create(const cBookNames& missing, cDataAccess& data, cAccountMap& accounts);

// "2 Kategorien, 1 Konto"
[[nodiscard]] QString Count(const cBookNames& names);

} // namespace modBookNames
