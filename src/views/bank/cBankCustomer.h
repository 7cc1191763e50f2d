#pragma once

#include "base/cBankUser.h"

#include <QString>

#include <functional>
#include <utility>

// The customer during the runs of one window, who can also end a run there and reads there what is being done.
class cBankCustomer final : public cBankUser
{
public:
    // `user` outlives the object.
    cBankCustomer(cBankUser& user, std::function<void(const QString&)> showStep)
        : m_user(user),
          m_showStep(std::move(showStep))
    {
    }

    [[nodiscard]] std::optional<cSecret> AskPin(const cPinQuestion& question) override
    {
        return m_user.AskPin(question);
    }
    [[nodiscard]] std::optional<cSecret> AskTan(const cTanQuestion& question) override
    {
        return m_user.AskTan(question);
    }
    [[nodiscard]] eApproval WaitForApproval(const cApproval& approval) override
    {
        return m_user.WaitForApproval(approval);
    }
    void EndApproval() override { m_user.EndApproval(); }
    void ShowStep(const QString& text) override
    {
        m_user.ShowStep(text);
        m_showStep(text);
    }
    [[nodiscard]] bool IsCancelled() const override { return m_isCancelled || m_user.IsCancelled(); }

    void SetCancelled(bool isCancelled) { m_isCancelled = isCancelled; }

private:
    cBankUser& m_user;
    std::function<void(const QString&)> m_showStep;
    bool m_isCancelled = false;
};
