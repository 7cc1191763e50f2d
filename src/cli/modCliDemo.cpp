#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliCommands.h"
#include "core/cBook.h"
#include "core/cSettings.h"
#include "core/modDemo.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/modSchema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

int Run(const cCliContext& context)
{
    const QString path = context.Call.Arguments().constFirst();
    bool isNumber = true;
    const int entries = context.Call.Has(u"entries"_s) ? context.Call.Value(u"entries"_s).toInt(&isNumber) : 0;
    if (!isNumber || entries < 0) {
        modConsole::Error(cText::Tr("'{0}' ist keine Anzahl.", {context.Call.Value(u"entries"_s)}));
        return modExit::Usage;
    }
    if (context.Shell.FileExists(path)) {
        modConsole::Error(cText::Tr("Die Datei '{0}' gibt es schon. Bitte nennen Sie eine neue.", {path}));
        return modExit::Failed;
    }
    const QString source = context.Shell.InstalledFile(u"template.dat"_s);
    if (!context.Shell.FileExists(source)) {
        modConsole::Error(
            cText::Tr("Die Installation ist beschädigt. Eine Neuinstallation könnte das Problem beheben.\nDie "
                      "Datei 'template.dat' konnte nicht gefunden werden!"));
        return modExit::Failed;
    }
    if (!context.Shell.CopyFile(source, path)) {
        modConsole::Error(cText::Tr("Die Datei '{0}' kann nicht geschrieben werden.", {path}));
        return modExit::Failed;
    }
    cBook book(context.User);
    if (!book.Open(path) || !modDemo::Write(book.Data(), modDemo::OfSize(entries, context.Clock.Today()))) {
        return modExit::Failed;
    }
    // Nothing in it is older than this version, so nobody needs a copy of it before an upgrade.
    book.Settings().Set(modSettingKey::LastCommandLineVersion, QStringLiteral(APP_VERSION));
    modConsole::Out(
        cText::Tr("{0}: Beispielhaushalt mit {1} Einträgen", {path, QString::number(book.Data().CountEntries())})
        + u'\n');
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
            .Run = Run};
}
