#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

class cBankBalances;
struct cStatementRead;

// The form in which an account is staged: statements in one format name it by its number, others by its IBAN. Two forms
// are one account when number and bank code agree; a bank code that nobody has named speaks against nothing.
class cKnownAccounts
{
public:
    // `staged` are the own accounts of the staged rows. `balances` knows their banks; it may be missing.
    cKnownAccounts(QStringList staged, const cBankBalances* balances);

    // Gives every row of the file the form of its account that is staged already.
    void UseIn(cStatementRead& read);

    // Keeps the bank codes that the file names for its account numbers, for the files to come. False when the database
    // refuses.
    [[nodiscard]] bool KeepBankCodes(cBankBalances& balances) const;

private:
    void LearnForms(QStringList numbers);
    [[nodiscard]] const QString& FormOf(const QString& number);
    [[nodiscard]] QString Find(const QString& number) const;

    QStringList m_staged;
    const cBankBalances* m_balances;
    QMap<QString, QString> m_bankCodes; // of the file, by number
    QHash<QString, QString> m_forms;
};
