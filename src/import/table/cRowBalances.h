#pragma once

#include "import/read/cStatementRead.h"
#include "model/bank/cBankBalance.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

// The balances that a table names: beside its rows, in a row of their own or above them.
class cRowBalances
{
public:
    // In the order of the table. `booked` is the day on which the bank entered the row, where it has one beside its
    // own.
    void AddRow(const cImportEntry& entry, QDate booked, std::optional<qint64> balance);
    // What the rows lead to, as a row of its own says; the last one counts.
    void SetClosing(qint64 cents, QDate day) { m_closing = {{}, cents, day}; }

    // `above` counts where the rows name none. `account` is that of a table without rows.
    void KeepIn(cStatementRead& read, const QString& account, const std::optional<cAccountBalance>& above);

private:
    struct cPoint
    {
        QDate Date;
        qint64 Balance = 0;
        qint64 Value = 0;
    };
    struct cLate
    {
        QDate Booked;
        QDate Day;
        qint64 Cents = 0;
    };

    [[nodiscard]] bool IsNewestFirst() const;
    [[nodiscard]] cBankBalance::cMoved LateOn(QDate day) const;
    void KeepDays(cStatementRead& read, const QString& account) const;

    std::vector<cPoint> m_points; // rows with a balance
    std::vector<cLate> m_late;    // rows that are valued after they were entered
    QList<cEarlyRow> m_early;
    std::optional<cAccountBalance> m_closing;
};
