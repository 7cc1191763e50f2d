#pragma once

#include <QString>

#include <functional>
#include <optional>

// What the open sequence needs from the user before the main window works.
class cRescue
{
public:
    cRescue() = default;
    cRescue(const cRescue&) = delete;
    cRescue& operator=(const cRescue&) = delete;
    virtual ~cRescue() = default;

    // Lets the user choose another database file. Empty when the user gives up.
    [[nodiscard]] virtual std::optional<QString> ChooseDatabase(const QString& current) = 0;

    // Lets the user choose a backup to restore. Empty when the user gives up.
    [[nodiscard]] virtual std::optional<QString> ChooseBackup(const QString& folder) = 0;

    // Asks for the password until `isRight` accepts it. False when the user gives up.
    [[nodiscard]] virtual bool AskPassword(const std::function<bool(const QString&)>& isRight) = 0;
};
