#pragma once

#include "base/cShell.h"

// Folders, files and programs of the machine the program runs on.
class cQtShell final : public cShell
{
public:
    // With a profile folder all data of the user lies below it; empty for the usual places of the system.
    explicit cQtShell(const QString& profile) : m_profile(profile) {}

    [[nodiscard]] QString DataFolder() override;
    [[nodiscard]] QString StateFolder() override;
    [[nodiscard]] QString InstalledFile(const QString& name) const override;
    [[nodiscard]] bool FileExists(const QString& path) const override;
    [[nodiscard]] bool CopyFile(const QString& from, const QString& to) override;
    [[nodiscard]] bool RenameFile(const QString& from, const QString& to) override;
    [[nodiscard]] QString CurrencySymbol() const override;
    bool OpenRegionalSettings() override;
    bool OpenPage(const QString& url) override;
    bool OpenMail(const cMailDraft& draft) override;
    bool StartCalculator() override;

private:
    QString m_profile;
};
