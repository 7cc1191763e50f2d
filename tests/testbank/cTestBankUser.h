#pragma once

#include "base/cBankUser.h"
#include "testbank/cTestBank.h"

#include <optional>

// A customer of the bank of the tests, who writes into its journal what is wanted of him.
class cTestBankUser final : public cBankUser
{
public:
    explicit cTestBankUser(cTestBank& bank) : m_bank(bank) {}

    [[nodiscard]] std::optional<cSecret> AskPin(const cPinQuestion& /*question*/) override
    {
        m_bank.Journal.append(QStringLiteral("PIN?"));
        return Pin ? std::optional<cSecret>(cSecret(*Pin)) : std::nullopt;
    }

    [[nodiscard]] std::optional<cSecret> AskTan(const cTanQuestion& question) override
    {
        m_bank.Journal.append(QStringLiteral("TAN?"));
        LastTan = question;
        return Tan ? std::optional<cSecret>(cSecret(*Tan)) : std::nullopt;
    }

    [[nodiscard]] eApproval WaitForApproval(const cApproval& approval) override
    {
        m_bank.Journal.append(QStringLiteral("wait %1").arg(approval.WaitSeconds));
        LastApproval = approval;
        ++m_waits;
        return m_waits == CancelsWait ? eApproval::Cancel : eApproval::AskBank;
    }

    void EndApproval() override { m_bank.Journal.append(QStringLiteral("done")); }
    void ShowStep(const QString& /*text*/) override {}
    [[nodiscard]] bool IsCancelled() const override
    {
        return CancelsAfter >= 0 && m_bank.Journal.size() >= CancelsAfter;
    }

    std::optional<QString> Pin = QStringLiteral("12345"); // nothing: gives up
    std::optional<QString> Tan = QStringLiteral("777666");
    int CancelsWait = 0;   // at the n-th wait for an approval
    int CancelsAfter = -1; // once the journal has so many entries
    cTanQuestion LastTan;
    cApproval LastApproval;

private:
    cTestBank& m_bank;
    int m_waits = 0;
};
