#include "base/cClock.h"
#include "base/cText.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/book/modBookCopy.h"

using namespace Qt::Literals::StringLiterals;

namespace {

int RunDemo(const cCliContext& context)
{
    const QString path = context.Call.Arguments().constFirst();
    bool isNumber = true;
    const int entries = context.Call.Has(u"entries"_s) ? context.Call.Value(u"entries"_s).toInt(&isNumber) : 0;
    if (!isNumber || entries < 0) {
        modConsole::Error(cText::Tr("'{0}' ist keine Anzahl.", {context.Call.Value(u"entries"_s)}));
        return modExit::Usage;
    }
    const int written = modBookCopy::WriteDemo(path, entries, context.Clock.Today(), context.Shell, context.User,
                                               context.Ports.Version);
    if (written < 0) {
        return modExit::Failed;
    }
    modConsole::Out(cText::Tr("{0}: Beispielhaushalt mit {1} Einträgen", {path, QString::number(written)}) + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::DemoCommand()
{
    return {.Name = u"demo"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("schreibt den Beispielhaushalt in eine neue Datenbank"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::None,
            .Options = {{u"entries"_s, u"ANZAHL"_s, cText::Tr("größeres Buch mit so vielen Einträgen")}},
            .Run = RunDemo};
}
