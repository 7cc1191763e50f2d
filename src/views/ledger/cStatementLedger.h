#pragma once

#include "model/cImportEntry.h"
#include "model/modBalanceCheck.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class cDataAccess;
class cSettings;

// How the book's account stands beside the bank, on the day of the bank's newest balance.
struct cBookComparison
{
    enum class eState {
        NotMapped, // the number belongs to no account of the book
        Shared,    // so do other numbers, whose transactions would count as well
        NoBalance, // the bank's balance is not known
        Unread,    // the entries of the account could not be read
        Agrees,
        Differs,
    };

    eState State = eState::NotMapped;
    QDate Day;
    qint64 Book = 0;
    qint64 Bank = 0;
    QDate From;                  // since this day they have not been equal any more
    bool HasAgreed = false;      // before that day they were, on some day of the statement
    bool AreRowsMissing = false; // of the bank: left out on import, or a balance of the bank says so
};

// The bank transactions of one account number in the order of their days, their balances, and what becomes of these
// beside the balances that the bank named.
class cStatementLedger
{
public:
    cStatementLedger(cDataAccess& data, cSettings& settings) : m_data(data), m_settings(settings) {}

    [[nodiscard]] QStringList Numbers() const;                    // of all staged rows
    [[nodiscard]] QString AccountOf(const QString& number) const; // of the book; empty when the number is not assigned

    void Load(const QString& number);
    void LoadNewest(); // the number of the row that was staged last

    [[nodiscard]] const QString& Number() const { return m_number; }
    [[nodiscard]] const cImportEntryList& Rows() const { return m_rows; }
    [[nodiscard]] qint64 CentsOf(qsizetype row) const { return m_amounts[static_cast<std::size_t>(row)].Cents; }
    // After the first `count` rows, counted so that the bank's newest balance comes out; from 0 when none is known.
    [[nodiscard]] qint64 BalanceAfter(qsizetype count) const { return m_balances[static_cast<std::size_t>(count)]; }
    [[nodiscard]] const modBalanceCheck::cResult& Check() const { return m_check; }
    // How many rows that were staged between those of the fault are gone.
    [[nodiscard]] int DeletedIn(const modBalanceCheck::cFault& fault) const;
    [[nodiscard]] cBookComparison CompareWithBook();
    // Rows of other numbers belong to the same account of the book.
    [[nodiscard]] bool IsShared();

private:
    void Take(cImportEntryList rows, const QString& number);

    cDataAccess& m_data;
    cSettings& m_settings;
    QString m_number;
    cImportEntryList m_rows;
    std::vector<modBalanceCheck::cRow> m_amounts;
    std::vector<qint64> m_balances{0};
    std::vector<int> m_ids; // of all staged rows of all accounts, sorted
    modBalanceCheck::cResult m_check;
};
