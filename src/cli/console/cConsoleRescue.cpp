#include "cli/console/cConsoleRescue.h"

#include "base/cText.h"
#include "cli/console/cConsoleUser.h"

#include <iostream>
#include <string>

#ifdef Q_OS_UNIX
#include <termios.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

// A line typed at the terminal without showing it; empty optional when there is no terminal.
std::optional<QString> ReadFromTerminal()
{
#ifdef Q_OS_UNIX
    termios before{};
    if (isatty(STDIN_FILENO) == 0 || tcgetattr(STDIN_FILENO, &before) != 0) {
        return std::nullopt;
    }
    modConsole::Error(cText::Tr("Passwort:"));
    termios silent = before;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    std::string line;
    std::getline(std::cin, line);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
    return QString::fromStdString(line);
#else
    return std::nullopt;
#endif
}

} // namespace

std::optional<QString> cConsoleRescue::ChooseDatabase(const QString& /*current*/)
{
    return std::nullopt;
}

std::optional<QString> cConsoleRescue::ChooseBackup(const QString& /*folder*/)
{
    return std::nullopt;
}

bool cConsoleRescue::AskPassword(const std::function<bool(const QString&)>& isRight)
{
    const char* name = "KONTORELLE_PASSWORT";
    const std::optional<QString> typed =
        qEnvironmentVariableIsSet(name) ? qEnvironmentVariable(name) : ReadFromTerminal();
    if (!typed) {
        modConsole::Error(
            cText::Tr("Die Datenbank ist mit einem Passwort geschützt. Bitte nennen Sie es in der Umgebungsvariable "
                      "KONTORELLE_PASSWORT."));
        return false;
    }
    if (!isRight(*typed)) {
        modConsole::Error(cText::Tr("Das Passwort ist nicht richtig."));
        return false;
    }
    return true;
}
