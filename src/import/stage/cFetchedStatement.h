#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

class cFetchMemory;
struct cImportOptions;
struct cStatementRead;

// What an online fetch brought of one account.
struct cFetchedStatement
{
    QString Name;      // of the account, for the user
    QString Account;   // number that was asked for
    QString Product{}; // what the bank calls the account; may be empty
    // Its number is that of other accounts too: the bookings are those of Account, whichever their statement names.
    bool IsNumberShared = false;
    QString Iban{};                  // which the bank tells for it; its bank code counts; empty when not known
    QString BookAccount{};           // of the book, to which it belongs; empty when that is not known
    QString Mt940{};                 // all booked statements of the answer
    QList<QByteArray> Camt{};        // all booked documents
    std::optional<qint64> Balance{}; // cents, signed, which the bank told beside them
    QDate BalanceDay{};
    bool IsComplete = true;         // false: the dialog ended before all had come
    QDate LastDay{};                // up to which was asked
    cFetchMemory* Memory = nullptr; // of the account; may be missing

    [[nodiscard]] qsizetype Size() const; // bytes
    // What the statements and documents say, as far as they are whole.
    [[nodiscard]] cStatementRead Read(const cImportOptions& wanted) const;
    // Adds the balance that the bank told beside them, of the account as the bookings name it.
    void AddBalance(cStatementRead& read) const;
};
