#pragma once

#include "base/cBankUser.h"
#include "views/bank/cApprovalWait.h"

#include <functional>
#include <memory>

class cSettings;
class frmTan;
class QEventLoop;

// The customer in front of the windows. Each question is a window over the active one; while an approval is waited for,
// an event loop runs here and nowhere below. Lives for one run, because a cancelled one stays cancelled.
class cQtBankUser final : public cBankUser
{
public:
    struct cParts
    {
        cSettings& Settings;
        const cClock& Clock;
        std::function<void(const QString&)> ShowStep; // where the window of the run shows what is being done
    };

    explicit cQtBankUser(cParts parts);
    ~cQtBankUser() override;

    // The user wants the run to end, said in its window.
    void Cancel();

    [[nodiscard]] std::optional<cSecret> AskPin(const cPinQuestion& question) override;
    [[nodiscard]] std::optional<cSecret> AskTan(const cTanQuestion& question) override;
    [[nodiscard]] eApproval WaitForApproval(const cApproval& approval) override;
    void EndApproval() override;
    void ShowStep(const QString& text) override;
    [[nodiscard]] bool IsCancelled() const override { return m_isCancelled; }

private:
    void OpenApproval();

    cParts m_parts;
    cApprovalWait m_wait;
    std::unique_ptr<frmTan> m_approval; // from the first wait until the approval has ended
    QEventLoop* m_loop = nullptr;       // of the wait that is going on
    bool m_isRefused = false;           // the window of the approval was closed by the user
    bool m_isCancelled = false;
};
