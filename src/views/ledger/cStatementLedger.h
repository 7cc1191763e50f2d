#pragma once

#include "model/cImportEntry.h"
#include "model/modBalanceCheck.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>
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
    std::optional<qint64> Named; // as in cStatementLedger
    QDate From;                  // since this day they have not been equal any more
    bool HasAgreed = false;      // before that day they were, on some day of the statement
    bool IsStartLate = false;    // the start balance lies behind the first row, which counts beside it
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
    void LoadOnce(const QString& number); // without open rows that may be there twice
    void LoadNewest();                    // the number of the row that was staged last

    [[nodiscard]] const QString& Number() const { return m_number; }
    [[nodiscard]] const cImportEntryList& Rows() const { return m_rows; }
    [[nodiscard]] qint64 CentsOf(qsizetype row) const { return m_amounts[static_cast<std::size_t>(row)].Cents; }
    // After the first `count` rows, counted so that the bank's newest balance comes out; from 0 when none is known.
    [[nodiscard]] qint64 BalanceAfter(qsizetype count) const { return m_balances[static_cast<std::size_t>(count)]; }
    // What the bank says, where it has named a balance, by the days of the transactions.
    [[nodiscard]] qint64 BankOn(QDate day) const;
    // What stands on the statement instead, where it counts some of them on another day than they have.
    [[nodiscard]] std::optional<qint64> NamedOn(QDate day) const;
    [[nodiscard]] const modBalanceCheck::cResult& Check() const { return m_check; }
    // How many rows that were staged between those of the fault are gone.
    [[nodiscard]] int DeletedIn(const modBalanceCheck::cFault& fault) const;
    // By default up to the bank's newest balance.
    [[nodiscard]] cBookComparison CompareWithBook(QDate until = {});
    // Rows of other numbers belong to the same account of the book.
    [[nodiscard]] bool IsShared();

private:
    // Why the account cannot be compared with the book; none when it can.
    [[nodiscard]] std::optional<cBookComparison::eState> Hindrance(const QString& account);
    [[nodiscard]] bool IsStartLate(const QString& account) const;
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
