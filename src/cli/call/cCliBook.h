#pragma once

#include "cli/call/modCliCommands.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "views/book/cBookAccess.h"
#include "views/statement/cStatementDesk.h"

#include <QString>

#include <memory>

// The database of a command with all that commands do with it.
class cCliBook
{
public:
    // See cBookAccess::Open.
    [[nodiscard]] static std::unique_ptr<cCliBook> Open(const QString& database, eCliAccess access,
                                                        const cCliPorts& ports, cConsoleUser& user);

    // An amount of signed cents for people.
    [[nodiscard]] QString AmountText(qint64 cents) const { return m_format.Cents(cents); }
    [[nodiscard]] const cAmountFormat& Format() const { return m_format; }
    [[nodiscard]] cBookAccess& File() { return *m_file; }
    [[nodiscard]] cSettings& Settings() { return m_file->Settings(); }

private:
    cCliBook(std::unique_ptr<cBookAccess> file, cUser& user, const cClock& clock);

    // Declared before what works with them.
    std::unique_ptr<cBookAccess> m_file;
    mutable cAmountFormat m_format; // makes its formatter on first use

public:
    cDataAccess& Data;
    const cBookTools Tools;
    cStatementDesk Statements;
};
