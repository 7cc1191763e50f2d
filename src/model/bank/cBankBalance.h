#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

// What the bank says an account holds on a day. Which moment of the day it means differs from bank to bank.
struct cBankBalance
{
    // Transactions that the bank entered on one side of the balance, while their days lie on the other.
    struct cMoved
    {
        qint64 Cents = 0;
        int Count = 0; // the statement that knows more of them reaches further; 0 where nobody counted

        bool operator==(const cMoved&) const = default;
    };

    QDate Day;
    qint64 Cents = 0; // signed
    cMoved Late{};    // contained, with a later day
    cMoved Early{};   // entered later, with this day or one before

    // How far it lies above what the days of the transactions come to.
    [[nodiscard]] qint64 Moved() const { return Late.Cents - Early.Cents; }
    // By the days of the transactions.
    [[nodiscard]] qint64 Valued() const { return Cents - Moved(); }

    // As a part of a setting: "2026-05-31=21270", behind it as far as there is any what is late and how many that are,
    // and the same of what is early.
    [[nodiscard]] QString ToText() const;
    [[nodiscard]] static std::optional<cBankBalance> FromText(const QString& text);

    bool operator==(const cBankBalance&) const = default;
};

using cBankBalanceList = QList<cBankBalance>;
