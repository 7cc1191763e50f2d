#include "cli/modCliMain.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modModule.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "cli/help/modCliHelp.h"
#include "core/cConfiguration.h"
#include "core/cErrorLog.h"
#include "views/help/modDiagnosis.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int ShowHelp(const cCliCall& call)
{
    const QList<cCliCommand>& commands = modCliCommands::All();
    const QString named = call.Command() != nullptr ? call.Command()->Name : call.Arguments().join(u' ');
    const QString topic = cCliCall::IsHelpWord(named) ? QString() : named;
    const auto command =
        std::find_if(commands.begin(), commands.end(), [&](const cCliCommand& known) { return known.Name == topic; });
    if (command == commands.end() && !topic.isEmpty()) {
        modConsole::Error(cText::Tr("Den Befehl '{0}' gibt es nicht.", {topic}));
        return modExit::Usage;
    }
    modConsole::Out(topic.isEmpty() ? modCliHelp::All(commands) : modCliHelp::Of(*command));
    return modExit::Done;
}

int RunCommand(const QStringList& arguments, const cCliPorts& ports)
{
    const cCliCall call = cCliCall::Parse(arguments, modCliCommands::All());
    if (!call.Error().isEmpty()) {
        modConsole::Error(call.Error() + u' ' + cText::Tr("\"kontorelle-cli hilfe\" zeigt alle Befehle."));
        return modExit::Usage;
    }
    if (call.WantsHelp()) {
        return ShowHelp(call);
    }
    if (ports.Paint == nullptr && modCliMain::NeedsMore(arguments)) {
        modConsole::Error(modModule::Missing(modCliMain::WindowProgram));
        return modExit::Failed;
    }
    cConsoleUser user;
    std::unique_ptr<cCliBook> book;
    if (call.Access() != eCliAccess::None) {
        book = cCliBook::Open(call.Value(u"database"_s), call.Access(), ports, user);
        if (!book) {
            return modExit::Failed;
        }
    }
    const int code = call.Command()->Run({call, ports, user, ports.Clock, ports.Shell, book.get()});
    if (const QString damage = book ? book->File().DamageText() : QString(); !damage.isEmpty()) {
        modConsole::Error(damage);
        return modExit::Failed;
    }
    return code == modExit::Done && user.HasFailed() ? modExit::Failed : code;
}

// A wrong call is no failure of the program, and what it said has helped already.
void TakeDown(const QStringList& arguments, const cCliPorts& ports)
{
    const cCliCall call = cCliCall::Parse(arguments, modCliCommands::All());
    cErrorLog log({ports.Shell.StateFolder(), u"kontorelle-cli"_s, ports.Build, cErrorLog::eKind::Command},
                  ports.Clock);
    const QString command = call.Command() != nullptr ? call.Command()->Name : QString();
    log.Begin(command);
    for (const QString& text : modConsole::Errors()) {
        log.Record({}, text);
    }
}

} // namespace

bool modCliMain::NeedsPaint(const QStringList& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        const QString name = argument.section(u'=', 0, 0);
        return name == u"--pdf" || name == u"--png" || name == u"--svg";
    });
}

bool modCliMain::NeedsMore(const QStringList& arguments)
{
    const cCliCall call = cCliCall::Parse(arguments, modCliCommands::All());
    return NeedsPaint(arguments) || (call.Command() != nullptr && call.Command()->IsOnline);
}

QString modCliMain::Profile(const QStringList& arguments)
{
    return cCliCall::Parse(arguments, modCliCommands::All()).Value(u"profile"_s);
}

int modCliMain::Run(const QStringList& arguments, const cCliPorts& ports)
{
    int code = modExit::Done;
    const cCliCall call = cCliCall::Parse(arguments, modCliCommands::All());
    if (call.Has(u"version"_s)) {
        modConsole::Out(u"kontorelle-cli "_s + ports.Build + u'\n');
    } else if (call.Has(u"debug-info"_s)) {
        modConsole::Out(
            modDiagnosis::Text({ports.Shell, cConfiguration(ports.Registry), u"kontorelle-cli "_s + ports.Build}));
    } else {
        code = RunCommand(arguments, ports);
    }
    const bool isSaid = modConsole::Finish();
    code = code == modExit::Done && !isSaid ? modExit::Failed : code;
    if (code == modExit::Failed) {
        TakeDown(arguments, ports);
    }
    return code;
}
