#include "base/cText.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Needs no password: the file is not encrypted, so whoever can write to it could remove the setting with any program.
int RunPassword(const cCliContext& context)
{
    cConfiguration& configuration = context.Book->File().Configuration();
    const QString path = context.Book->File().Path();
    const bool isActive = modPassword::IsActive(configuration);
    if (!isActive || !context.Call.Has(u"remove"_s)) {
        modConsole::Out((isActive ? cText::Tr("{0}: mit Passwort; \"password --remove\" entfernt es", {path})
                                  : cText::Tr("{0}: ohne Passwort", {path}))
                        + u'\n');
        return modExit::Done;
    }
    if (!modPassword::Remove(configuration)) {
        modConsole::Error(cText::Tr("Das Passwort konnte nicht entfernt werden."));
        return modExit::Failed;
    }
    modConsole::Out(cText::Tr("{0}: Das Passwort wurde entfernt.", {path}) + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::PasswordCommand()
{
    return {.Name = u"password"_s,
            .Help = cText::Tr("sagt, ob die Datenbank ein Passwort hat, und entfernt ein vergessenes"),
            .Access = eCliAccess::Unlock,
            .Options = {{u"remove"_s, {}, cText::Tr("das Passwort entfernen; die Datei ist nicht verschlüsselt")}},
            .Run = RunPassword};
}
