#pragma once

#include "app/cli/cCliCall.h"

class cClock;
class cCliBook;
class cConsoleUser;
class cShell;

// What a command works with.
struct cCliContext
{
    const cCliCall& Call;
    cConsoleUser& User;
    const cClock& Clock;
    cShell& Shell;
    cCliBook* Book; // the open database; null for a command that needs none
};

// The commands of the command line program; each gives the exit code.
namespace modCliCommands {

[[nodiscard]] int Import(const cCliContext& context);
[[nodiscard]] int Staged(const cCliContext& context);
[[nodiscard]] int Propose(const cCliContext& context);
[[nodiscard]] int Book(const cCliContext& context);
[[nodiscard]] int Entries(const cCliContext& context);
[[nodiscard]] int Balances(const cCliContext& context);
[[nodiscard]] int Check(const cCliContext& context);
[[nodiscard]] int Demo(const cCliContext& context);

// All of them, with their options and their help.
[[nodiscard]] const QList<cCliCommand>& All();

} // namespace modCliCommands
