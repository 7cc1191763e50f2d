#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

class cSettings;
struct cStatementRead;

// The form in which an account is staged: statements in one format name it by its number, others by its IBAN. Two forms
// are one account when number and bank code agree; a bank code that nobody has named speaks against nothing.
class cKnownAccounts
{
public:
    // `staged` are the own accounts of the staged rows.
    cKnownAccounts(QStringList staged, cSettings& settings);

    // Gives every row of the file the form of its account that is staged already.
    void UseIn(cStatementRead& read);

    // Keeps the bank codes that the file names for its account numbers, for the files to come. False when the database
    // refuses.
    [[nodiscard]] bool KeepBankCodes() const;

private:
    [[nodiscard]] const QString& FormOf(const QString& number);
    [[nodiscard]] QString Find(const QString& number) const;

    QStringList m_staged;
    cSettings& m_settings;
    QMap<QString, QString> m_bankCodes; // of the file, by number
    QHash<QString, QString> m_forms;
};
