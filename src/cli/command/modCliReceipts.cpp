#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cCliTrash.h"
#include "cli/console/cJsonObject.h"
#include "model/modReceiptName.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class eWhich { All, Missing };

// What a list says of receipts, in both forms.
struct cLines
{
    cCliTable Table{{{cText::Tr("ID"), eAlign::Right},
                     {cText::Tr("Datum")},
                     {cText::Tr("Beschreibung"), eAlign::Left, 40},
                     {cText::Tr("Beleg")},
                     {cText::Tr("Bytes"), eAlign::Right}}};
    QStringList Objects;
    int Count = 0;
};

void Add(cLines& lines, const cEntryItem& entry, const cReceipts::cFile& file)
{
    ++lines.Count;
    lines.Objects.append(cJsonObject()
                             .Number(u"ID"_s, entry.ID)
                             .Date(u"EntryDate"_s, entry.EntryDate)
                             .Text(u"EntryDescription"_s, entry.EntryDescription)
                             .Text(u"Receipt"_s, file.Name)
                             .Text(u"Path"_s, file.Path)
                             .Truth(u"IsMissing"_s, !file.IsThere())
                             .Number(u"Bytes"_s, qMax<qint64>(0, file.Size))
                             .ToString());
    lines.Table.Add({QString::number(entry.ID), modDate::ToText(entry.EntryDate), entry.Name(), file.Name,
                     file.IsThere() ? QString::number(file.Size) : cText::Tr("fehlt")});
}

cLines Collect(const cCliContext& context, const QList<int>& ids, eWhich which)
{
    const cReceipts receipts(context.Book->Tools);
    cLines lines;
    const cEntryItemList entries = receipts.Entries();
    for (const cEntryItem& entry : entries) {
        if (!ids.isEmpty() && !ids.contains(entry.ID)) {
            continue;
        }
        const QStringList names = modReceiptName::Of(entry);
        for (const QString& name : names) {
            const cReceipts::cFile file = receipts.File(name);
            if (which == eWhich::All || !file.IsThere()) {
                Add(lines, entry, file);
            }
        }
    }
    return lines;
}

int List(const cCliContext& context)
{
    cCliReader reader(context);
    const QList<int> ids = reader.Ids(context.Call.Arguments());
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cLines lines = Collect(context, ids, eWhich::All);
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(lines.Objects) + u'\n' : lines.Table.ToString());
    return modExit::Done;
}

// Both sides of what does not fit: entries without their file, and files without an entry.
int Missing(const cCliContext& context)
{
    const cLines lines = Collect(context, {}, eWhich::Missing);
    const QStringList unused = cReceipts(context.Book->Tools).Unused();
    if (context.Call.Has(u"json"_s)) {
        QStringList objects = lines.Objects;
        for (const QString& name : unused) {
            objects.append(cJsonObject().Text(u"Receipt"_s, name).Truth(u"IsMissing"_s, false).ToString());
        }
        modConsole::Out(modJson::Array(objects) + u'\n');
    } else {
        modConsole::Out(lines.Count == 0 ? cText::Tr("Es fehlt kein Beleg.") + u'\n' : lines.Table.ToString());
        for (const QString& name : unused) {
            modConsole::Out(cText::Tr("Zu keinem Eintrag und keinem Konto gehört '{0}'.", {name}) + u'\n');
        }
    }
    return lines.Count == 0 && unused.isEmpty() ? modExit::Done : modExit::Failed;
}

int Attach(const cCliContext& context)
{
    cCliReader reader(context);
    const QList<int> ids = reader.Ids({context.Call.Arguments().constFirst()});
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QList<cReceiptSource> sources = cReceiptFolder::Sources(context.Call.Arguments().mid(1));
    return modCliFlow::Finish(context, cReceipts(context.Book->Tools).Add(ids.constFirst(), sources));
}

int Remove(const cCliContext& context)
{
    cCliReader reader(context);
    const QList<int> ids = reader.Ids({context.Call.Arguments().constFirst()});
    const QString name = context.Call.Arguments().constLast();
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliTrash trash;
    cReceiptListModel receipts(context.Book->Tools, trash, ids.constFirst());
    const int row = receipts.RowOf(name);
    if (row < 0) {
        modConsole::Error(
            cText::Tr("Der Eintrag {0} hat keinen Beleg '{1}'.", {QString::number(ids.constFirst()), name}));
        return modExit::Failed;
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird er entfernt.")));
    const int before = receipts.rowCount();
    receipts.Remove(row);
    return modCliFlow::Finish(context, receipts.rowCount() < before);
}

} // namespace

cCliCommand modCliCommands::ReceiptsCommand()
{
    return {.Name = u"receipts"_s,
            .Arguments = u"[ID…]"_s,
            .Help = cText::Tr("listet die Belege der Einträge, alle oder die der genannten"),
            .MaxArguments = std::numeric_limits<int>::max(),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::ReceiptsAddCommand()
{
    return {.Name = u"receipts add"_s,
            .Arguments = u"ID DATEI…"_s,
            .Help =
                cText::Tr("kopiert Dateien in den Ordner \"Belege\" neben der Datenbank und hängt sie an den Eintrag"),
            .MinArguments = 2,
            .MaxArguments = std::numeric_limits<int>::max(),
            .Access = eCliAccess::Write,
            .Run = Attach};
}

cCliCommand modCliCommands::ReceiptsRemoveCommand()
{
    return {.Name = u"receipts remove"_s,
            .Arguments = u"ID NAME"_s,
            .Help = cText::Tr("nimmt einen Beleg vom Eintrag; die Datei kommt in den Papierkorb, wenn sie sonst "
                              "nirgends hängt"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Options = {modCliFlow::Yes()},
            .Run = Remove};
}

cCliCommand modCliCommands::ReceiptsMissingCommand()
{
    return {.Name = u"receipts missing"_s,
            .Help = cText::Tr("listet Belege, deren Datei fehlt, und Dateien, die nirgends hängen"),
            .Options = {Json()},
            .Run = Missing};
}
