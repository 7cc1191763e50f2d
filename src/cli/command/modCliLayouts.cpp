#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliTableChoice.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/statement/cLayoutTaken.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

int List(const cCliContext& context)
{
    const QStringList names = cStatementDesk::LayoutNames();
    QStringList quoted;
    std::transform(names.begin(), names.end(), std::back_inserter(quoted), modJson::Quoted);
    modConsole::Out((context.Call.Has(u"json"_s) ? modJson::Array(quoted) : names.join(u'\n')) + u'\n');
    return modExit::Done;
}

int Export(const cCliContext& context)
{
    cCliReader reader(context);
    const cFileWish wish = modCliTableChoice::Read(context.Call, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QStringList& arguments = context.Call.Arguments();
    const QString fault = context.Book->Statements.ExportLayout(arguments.at(0), wish, arguments.at(1));
    if (!fault.isEmpty()) {
        modConsole::Error(fault);
        return modExit::Failed;
    }
    return modExit::Done;
}

int Import(const cCliContext& context)
{
    const cLayoutTaken taken = context.Book->Statements.ImportLayout(context.Call.Arguments().constFirst());
    if (!taken.Fault.isEmpty()) {
        modConsole::Error(taken.Fault);
        return modExit::Failed;
    }
    modConsole::Out(cText::Tr("Der Aufbau \"{0}\" gilt nun für alle Dateien mit denselben Spaltennamen.", {taken.Name})
                    + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::LayoutsCommand()
{
    return {.Name = u"layouts"_s,
            .Help = cText::Tr("zeigt die Namen der bekannten Tabellen von Banken, für --profile-name"),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::LayoutsExportCommand()
{
    return {.Name = u"layouts export"_s,
            .Arguments = u"DATEI ZIEL"_s,
            .Help = cText::Tr("schreibt in eine kleine Textdatei, wie die Tabelle DATEI gelesen wird, zum Weitergeben"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Options = modCliTableChoice::Options(),
            .Run = Export};
}

cCliCommand modCliCommands::LayoutsImportCommand()
{
    return {.Name = u"layouts import"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("merkt sich den Aufbau aus einer solchen Textdatei für alle Dateien mit denselben "
                              "Spaltennamen"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Run = Import};
}
