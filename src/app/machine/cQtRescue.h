#pragma once

#include "base/cRescue.h"
#include "views/book/cPasswordTries.h"

// File dialogs and the password prompt, shown before the main window works and when another book is opened.
class cQtRescue final : public cRescue
{
public:
    [[nodiscard]] std::optional<QString> ChooseDatabase(const QString& current) override;
    [[nodiscard]] std::optional<QString> ChooseBackup(const QString& folder) override;
    [[nodiscard]] bool AskPassword(const std::function<bool(const QString&)>& isRight) override;

private:
    cPasswordTries m_tries; // of all prompts of this run
};
