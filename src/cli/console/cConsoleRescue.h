#pragma once

#include "base/cRescue.h"

// The command line's part in opening a book: nobody is there to choose a file. The password comes from the environment
// (KONTORELLE_PASSWORT) or from the terminal.
class cConsoleRescue final : public cRescue
{
public:
    [[nodiscard]] std::optional<QString> ChooseDatabase(const QString& current) override;
    [[nodiscard]] std::optional<QString> ChooseBackup(const QString& folder) override;
    // One try; a wrong password is said on the error output.
    [[nodiscard]] bool AskPassword(const std::function<bool(const QString&)>& isRight) override;
};
