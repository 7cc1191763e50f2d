#include "base/cClock.h"
#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliSelection.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/export/cEntryExport.h"
#include "views/list/cEntryListModel.h"
#include "views/main/modViewText.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// The format by name, else by the file's ending.
std::optional<modExport::eFormat> Format(const cCliCall& call, cCliReader& reader)
{
    const QString name = call.Value(u"format"_s);
    const QString path = call.Arguments().constFirst();
    const std::optional<modExport::eFormat> format =
        name.isEmpty() ? modExport::FormatOf(path) : modExport::FormatByName(name);
    if (!format) {
        reader.Misused(cText::Tr("Das Format '{0}' gibt es nicht. Möglich sind: {1}.",
                                 {name.isEmpty() ? QFileInfo(path).suffix() : name, modExport::Names().join(u", "_s)}));
    }
    return format;
}

cEntryExtract Extract(const cCliContext& context, const modCliSelection::cSelection& selection)
{
    cEntryListModel list(context.Book->Format());
    cEntryListModel::cContent content;
    content.Entries = selection.Entries;
    content.Account = selection.View.FilterAccount();
    content.Today = context.Clock.Today();
    list.SetContent(std::move(content), {}, selection.View.Grouping);
    cEntryExtract extract = cEntryExtract::From(list);
    extract.Title = modViewText::Title(selection.View);
    extract.View = modViewText::Lines(selection.View, selection.Days);
    return extract;
}

int RunExport(const cCliContext& context)
{
    const QString path = context.Call.Arguments().constFirst();
    cCliReader reader(context);
    const std::optional<modExport::eFormat> format = Format(context.Call, reader);
    reader.CheckTarget(path);
    if (!format || !reader.IsGood()) {
        return reader.Report();
    }
    const modCliSelection::cSelection selection = modCliSelection::Read(context);
    if (selection.Code != modExit::Done) {
        return selection.Code;
    }
    cNoProgress progress;
    cEntryExport writer(context.Book->Tools, progress);
    const cEntryExtract extract = Extract(context, selection);
    const bool isDone = writer.WriteFile(extract, *format, path) == cEntryExport::eDone::Written
        && (!context.Call.Has(u"receipts"_s) || writer.CopyReceipts(extract, path) == cEntryExport::eDone::Written);
    if (!isDone) {
        return modExit::Failed;
    }
    modConsole::Out(cText::Tr("{0} nach '{1}' exportiert.", {modCount::Entries(selection.Entries.size()), path})
                    + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::ExportCommand()
{
    return {.Name = u"export"_s,
            .Arguments = u"DATEI"_s,
            .Help =
                cText::Tr("schreibt die Einträge eines Zeitraums in eine Datei für andere Programme; ohne Angabe das "
                          "aktuelle Jahr"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Options = QList<cCliOption>{{u"format"_s, u"FORMAT"_s,
                                          cText::Tr("csv, xlsx, html oder qif; ohne Angabe entscheidet die Endung der "
                                                    "Datei")},
                                         {u"receipts"_s,
                                          {},
                                          cText::Tr("kopiert die Belege der Einträge in den Ordner \"NAME-Belege\" "
                                                    "neben der Datei")}}
                + modCliSelection::Options(),
            .Run = RunExport};
}
