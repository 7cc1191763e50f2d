#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

class cBook;
class cBookHost;
class cClock;
class cConfiguration;
class cRescue;
class cShell;
class cUser;

// The commands around whole books with all their questions: a new one, another one, a backup and the way back.
class cBookFlow
{
public:
    struct cParts
    {
        cBook& Book;
        cConfiguration& Configuration;
        cUser& User;
        cRescue& Rescue;
        cShell& Shell;
        const cClock& Clock;
        cBookHost& Host;
    };

    static constexpr int MostBooks = 10; // kept in the list

    explicit cBookFlow(const cParts& parts) : m_parts(parts) {}

    void NewBook();    // "Neue Datenbank"
    void SwitchBook(); // "Datenbank wechseln"
    // That was dropped on the window; says so when it is open already. False when it is not open afterwards.
    bool OpenBook(const QString& path);
    // The example household, made when it is not there yet; `version` is that of the program.
    void OpenDemo(const QString& version);
    void MakeBackup(); // "Datensicherung erstellen"
    void LoadBackup(); // "Datensicherung laden"

    // Loads the newest copy that the program made by itself and that is sound, once the user has seen what it holds.
    // Where there is none, he may choose another backup.
    void LoadNewestCopy();
    [[nodiscard]] QDate NewestCopyDay() const; // invalid: there is none

    // Says that the book is damaged and offers the newest copy that is not.
    void TellDamage();

    // The other books that can be switched to, the one used last first.
    [[nodiscard]] QStringList Books() const;

private:
    [[nodiscard]] QString AskForNewPath() const;
    [[nodiscard]] QString AskForBook() const;
    [[nodiscard]] bool IsWanted(const QString& backup) const;
    void Replace(const QString& backup) const;
    [[nodiscard]] QString LeftOutReceipts() const;
    void TellReceipts(const QString& problem) const; // nothing for an empty one
    void Open(const QString& path) const;
    void Remember(const QString& former, const QString& current) const;
    [[nodiscard]] bool IsOpenBook(const QString& path) const;
    [[nodiscard]] QString LastFolder() const;
    [[nodiscard]] QString BackupFolder() const;

    cParts m_parts;
};
