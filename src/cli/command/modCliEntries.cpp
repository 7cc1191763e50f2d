#include "base/cText.h"
#include "cli/argument/modCliEntryList.h"
#include "cli/argument/modCliSelection.h"
#include "cli/call/modCliCommands.h"

using namespace Qt::Literals::StringLiterals;

namespace {

int RunEntries(const cCliContext& context)
{
    const modCliSelection::cSelection selection = modCliSelection::Read(context);
    if (selection.Code == modExit::Done) {
        modCliEntryList::Print(context, selection.Entries);
    }
    return selection.Code;
}

} // namespace

cCliCommand modCliCommands::EntriesCommand()
{
    return {.Name = u"entries"_s,
            .Help = cText::Tr("zeigt die Einträge eines Zeitraums, wiederkehrende mit jedem Vorkommen; ohne Angabe das "
                              "aktuelle Jahr"),
            .Options = modCliSelection::Options()
                + QList<cCliOption>{Json(), {u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")}},
            .Run = RunEntries};
}
