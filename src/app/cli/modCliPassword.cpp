#include "app/cli/cCliBook.h"
#include "app/cli/cConsoleUser.h"
#include "app/cli/modCliCommands.h"
#include "base/cText.h"
#include "core/modPassword.h"

using namespace Qt::Literals::StringLiterals;

// Needs no password: the file is not encrypted, so whoever can write to it could remove the setting with any program.
int modCliCommands::Password(const cCliContext& context)
{
    cConfiguration& configuration = context.Book->Configuration();
    const QString path = context.Book->File().Path();
    if (!context.Call.Has(u"remove"_s)) {
        modConsole::Out((modPassword::IsActive(configuration)
                             ? cText::Tr("{0}: mit Passwort; \"password --remove\" entfernt es", {path})
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
