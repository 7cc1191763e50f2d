#pragma once

#include <QDate>
#include <QList>
#include <QString>

// One bank transaction that waits for its place in the book, a row of table `import`.
struct cImportEntry
{
    int ID = 0;            // 0 until stored
    QString ImportAccount; // own account: number, or IBAN where the statement carries one
    QDate ImportDate;
    QString ImportType; // the bank's booking text
    QString ImportPurpose;
    QString ImportBeneficiary;        // name of the counterparty
    QString ImportBeneficiaryAccount; // account number or IBAN of the counterparty
    QString ImportBeneficiaryBLZ;     // bank code or BIC of the counterparty
    qint64 ImportValue = 0;           // cents; negative: money going out
    QString ImportCurrency;
    bool ImportAssigned = false;
    int ImportAssignedEntry = -1; // ID of the entry in table `data`; -1 when none

    // Prepares the record for staging: quotes dropped from the counterparty's fields, assignment cleared. Always true.
    // The amount is whole cents already.
    bool Validate();

    // The duplicate test: same day, accounts, counterparty, bank code, purpose and amount, compared exactly. Booking
    // text and currency take no part, so a statement in another format is recognised.
    [[nodiscard]] bool isEqual(const cImportEntry& other) const;

    // Equal but for blanks in purpose and name, the end of a long one, or the counterparty's bank where one side leaves
    // it out or the account is an IBAN: formats write these in their own ways.
    [[nodiscard]] bool isEqualButBlanks(const cImportEntry& other) const;
    // Rows that are equal, or equal but for blanks, have an equal hash.
    [[nodiscard]] size_t EqualHash() const;

    // How likely the other row is a transaction of the same kind, from 0 to 1.025: expenses by purpose and
    // counterparty, income by purpose and amount. 0 for an expense beside an income.
    [[nodiscard]] double isSimilar(const cImportEntry& other) const;

    bool operator==(const cImportEntry&) const = default;
};

Q_DECLARE_TYPEINFO(cImportEntry, Q_RELOCATABLE_TYPE); // long lists grow without copying each record

using cImportEntryList = QList<cImportEntry>;
