#pragma once

#include "app/cFileLock.h"
#include "cli/cCliCall.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cDataAccess.h"
#include "views/statement/cMatchFlow.h"

#include <QString>

#include <memory>

class cClock;
class cConsoleUser;
class cRegistry;
class cShell;

// The machine as the command line program sees it.
struct cCliPorts
{
    cShell& Shell;
    cRegistry& Registry;
    cConsoleUser& User;
    const cClock& Clock;
};

// The database of a command with all that commands do with it.
class cCliBook
{
public:
    // Opens the file named, else the configured one, else the default one, which is made when it is missing. For
    // reading the file is left untouched; for writing it is locked, copied before an upgrade and brought up to date.
    // Null when that fails; the user has then been told what to do.
    [[nodiscard]] static std::unique_ptr<cCliBook> Open(const QString& database, eCliAccess access,
                                                        const cCliPorts& ports);

    // An amount of signed cents for people.
    [[nodiscard]] QString AmountText(qint64 cents) const { return m_format.Cents(cents); }
    [[nodiscard]] const cAmountFormat& Format() const { return m_format; }
    [[nodiscard]] const cBook& File() const { return *m_book; }
    [[nodiscard]] cSettings& Settings() { return m_book->Settings(); }
    [[nodiscard]] cConfiguration& Configuration() { return *m_configuration; }
    [[nodiscard]] cMatchFlow Matching(cUser& user)
    {
        return cMatchFlow({Data, m_format, user, Hive, Accounts, Booking});
    }
    // Writes a checked copy of the book; what went wrong, empty when it is there.
    [[nodiscard]] QString MakeBackup(const QString& target, cShell& shell);

private:
    cCliBook(std::unique_ptr<cBook> book, std::unique_ptr<cConfiguration> configuration, cFileLock lock);

    // Declared before what works with them.
    cFileLock m_lock;
    std::unique_ptr<cConfiguration> m_configuration;
    std::unique_ptr<cBook> m_book;
    mutable cAmountFormat m_format; // makes its formatter on first use

public:
    cDataAccess& Data;
    cAccountMap Accounts;
    cImportHiveCache Hive;
    cBooking Booking;
};
