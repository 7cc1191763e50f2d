#pragma once

#include "base/cBankUser.h"

#include <QString>

#include <functional>

// The customer at the terminal: PIN and TAN are typed without being shown, or come as a line each from a file that the
// caller has opened. They stand in no argument and in no variable of the environment, where other programs see them.
// Everything that is said goes to the error output.
class cConsoleBankUser final : public cBankUser
{
public:
    struct cOptions
    {
        int PinFd = -1; // number of an open file; negative: the terminal
        int TanFd = -1;
        QString TanImage{}; // where a picture for a TAN is written to
        // Says the text and lets so many seconds pass, false when the user breaks it off; empty: really.
        std::function<bool(const QString&, int)> Wait{};
    };

    explicit cConsoleBankUser(cOptions options);

    [[nodiscard]] std::optional<cSecret> AskPin(const cPinQuestion& question) override;
    [[nodiscard]] std::optional<cSecret> AskTan(const cTanQuestion& question) override;
    [[nodiscard]] eApproval WaitForApproval(const cApproval& approval) override;
    void EndApproval() override;
    void ShowStep(const QString& text) override;
    // Ctrl+C during an approval takes leave of the bank; at any other time it ends the program.
    [[nodiscard]] bool IsCancelled() const override { return m_isCancelled; }

private:
    [[nodiscard]] bool ShowPicture(const cTanQuestion& question) const;
    [[nodiscard]] std::optional<cSecret> ReadTan(const cTanQuestion& question) const;
    [[nodiscard]] bool AskWhenApproved();

    cOptions m_options;
    bool m_isCancelled = false;
};
