#pragma once

#include "base/cUser.h"

#include <QString>
#include <QStringList>

class cBook;
class cClock;
class cConfiguration;
class cShell;

// The automatic backups of the open book, as the user sets them up.
class cBackupSettings
{
public:
    struct cParts
    {
        cBook& Book;
        cConfiguration& Configuration;
        cUser& User;
        cShell& Shell;
        const cClock& Clock;
    };

    struct cFields
    {
        int Count = 0; // 0: no automatic backups
        QString Folder;
        bool HasReceipts = false; // the receipts are copied as well

        bool operator==(const cFields&) const = default;
    };

    static constexpr int MostCount = 999;

    explicit cBackupSettings(const cParts& parts) : m_parts(parts) {}

    [[nodiscard]] cFields Current() const;
    // The backups that are there, newest first: "21.11.2026, 1,2 MB".
    [[nodiscard]] QStringList Copies() const;

    // Lets the user choose a folder; `current` when the user gives up.
    [[nodiscard]] QString ChooseFolder(const QString& current) const;

    // Stores the fields. False, with a message, when the folder cannot be used or the book cannot be written.
    [[nodiscard]] bool Save(const cFields& fields) const;
    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved

private:
    cParts m_parts;
};
