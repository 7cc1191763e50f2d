#include "app/machine/modCliProgram.h"

#include "app/machine/cFileLock.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cSystemClock.h"
#include "app/machine/modBuild.h"
#include "app/machine/modLocale.h"
#include "base/modModule.h"
#include "cli/call/modCliCommands.h"
#include "cli/modCliMain.h"

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

namespace {

// Comes back only when the window program cannot be started, which is said as soon as the command wants what it lacks.
void BecomeWindowProgram(char** arguments)
{
    QByteArray name(modCliProgram::Name);
    char* const before = arguments[0];
    arguments[0] = name.data();
    (void)execv(QFile::encodeName(modModule::Path(modCliMain::WindowProgram)).constData(), arguments);
    arguments[0] = before;
}

} // namespace

int modCliProgram::Run(char** arguments, cCliPaint* paint, cHttps* https)
{
    QCoreApplication::setApplicationName(QLatin1StringView(Name));
    QCoreApplication::setApplicationVersion(QStringLiteral(APP_VERSION));
    cLanguage language;
    language.Use(modLocale::Messages(), cQtShell({})); // before the table of commands is made
    const QStringList texts = QCoreApplication::arguments().mid(1);
    if (paint == nullptr && modCliMain::NeedsMore(texts)) {
        BecomeWindowProgram(arguments);
    }
    const QString profile = modCliMain::Profile(texts);
    cQtShell shell(profile);
    cQtRegistry registry(profile);
    cSystemClock clock;
    cFileLock lock;
    return modCliMain::Run(
        texts,
        {shell, registry, clock, lock, paint, https, QCoreApplication::applicationVersion(), modBuild::Version()});
}
