#pragma once

#include <QString>

// A mail that the user is to complete and send. `Attachment` is the path of a file; it has to stay there.
struct cMailDraft
{
    QString Subject;
    QString Text;
    QString Attachment;
    QString To{}; // an address; empty leaves it to the user
};

// Folders, files and programs of the machine.
class cShell
{
public:
    cShell() = default;
    cShell(const cShell&) = delete;
    cShell& operator=(const cShell&) = delete;
    virtual ~cShell() = default;

    // The user's data folder "Veltrino Kontorelle", created when missing; without a trailing separator.
    [[nodiscard]] virtual QString DataFolder() = 0;

    // The folder for what the program writes for itself, such as its error log; created when missing, for the user
    // only. Without a trailing separator.
    [[nodiscard]] virtual QString StateFolder() = 0;

    // Full path of a file of the installation: beside the program, else in its share folder. When it is in neither, the
    // path beside the program is returned.
    [[nodiscard]] virtual QString InstalledFile(const QString& name) const = 0;

    [[nodiscard]] virtual bool FileExists(const QString& path) const = 0;

    // Copies a file; an existing target is not overwritten. Only the user can read the copy. False on failure.
    [[nodiscard]] virtual bool CopyFile(const QString& from, const QString& to) = 0;

    // Gives a file another name on the same volume; an existing target is not overwritten. False on failure.
    [[nodiscard]] virtual bool RenameFile(const QString& from, const QString& to) = 0;

    // Currency symbol of the system's regional settings, as the system gives it.
    [[nodiscard]] virtual QString CurrencySymbol() const = 0;

    // Opens the system's regional settings. False when none could be started.
    virtual bool OpenRegionalSettings() = 0;

    // Opens an address in the system's browser. False when none could be started.
    virtual bool OpenPage(const QString& url) = 0;

    // Opens a draft in the user's mail program. False when none could be started.
    virtual bool OpenMail(const cMailDraft& draft) = 0;

    // Starts the system's calculator. False when none could be started.
    virtual bool StartCalculator() = 0;
};
