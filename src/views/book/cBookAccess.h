#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cEntryQuery.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class cBackupPlan;
class cBook;
class cBookLock;
class cClock;
class cConfiguration;
class cDataAccess;
class cRegistry;
class cRescue;
class cSettings;
class cShell;
class cUser;

// A book opened by a program that shows no windows, and what it tells without any.
class cBookAccess
{
public:
    enum class eMode {
        Read, // the file is left untouched
        Write,
        Unlock, // like Write, but nobody is asked for the password
    };

    // The machine and the user; all of it outlives the book.
    struct cPorts
    {
        cShell& Shell;
        cRegistry& Registry;
        cUser& User;
        cRescue& Rescue;
        const cClock& Clock;
        cBookLock& Lock;
        QString Version;                 // of the program, "major.minor.revision"
        std::function<bool()> HasFailed; // whether the user was shown a failure: nobody is there to choose another file
    };

    // Opens the file named, else the configured one, else the default one, which is made when it is missing. For
    // writing it is locked, copied before an upgrade and brought up to date, and the copy of the day is made. Null when
    // that fails; the user has then been told what to do.
    [[nodiscard]] static std::unique_ptr<cBookAccess> Open(const QString& database, eMode mode, const cPorts& ports);
    ~cBookAccess();

    // As it is from the folder of the call.
    [[nodiscard]] static QString FullPath(const QString& path);

    // The file that Open would take; it may be missing or damaged.
    [[nodiscard]] static QString PathFor(const QString& database, cRegistry& registry, cShell& shell);

    [[nodiscard]] QString Path() const;
    [[nodiscard]] QStringList Added() const; // what the opening added to the file, in words
    [[nodiscard]] cDataAccess& Data();
    [[nodiscard]] cSettings& Settings();
    [[nodiscard]] cConfiguration& Configuration() { return *m_configuration; }

    [[nodiscard]] std::optional<cEntryItem> Entry(int id);
    [[nodiscard]] cEntryItemList Parts(const cEntryItem& entry);    // of a split entry; else empty
    [[nodiscard]] cEntryItemList Entries(const cEntryQuery& query); // occurrences, by day
    [[nodiscard]] cEntryItemFixModList Corrections(int id);         // of a series, by day
    [[nodiscard]] int CountEntries();
    // What to do about a book that turned out to be damaged; empty as long as it did not.
    [[nodiscard]] QString DamageText() const;
    [[nodiscard]] QString LastStep(); // what was done last, in words; empty when nothing can be taken back

    // Writes a checked copy; what went wrong, empty when it is there.
    [[nodiscard]] QString MakeBackup(const QString& target, cShell& shell);
    // Copies the receipts beside that backup where the user wants it; what went wrong, empty when nothing is missing.
    [[nodiscard]] QString SaveReceipts(const QString& backup) const;
    // Makes one more of the automatic copies when the book has changed since the newest one. Of a failure the user is
    // told once a day.
    void CopyIfChanged();

private:
    cBookAccess(std::unique_ptr<cBook> book, std::unique_ptr<cConfiguration> configuration, const cPorts& ports);

    std::unique_ptr<cConfiguration> m_configuration;
    std::unique_ptr<cBook> m_book;
    std::unique_ptr<cBackupPlan> m_backups;
};
