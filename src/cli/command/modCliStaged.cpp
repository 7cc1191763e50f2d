#include "base/cText.h"
#include "base/modDate.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modCliRecord.h"
#include "model/modCutText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString State(const cImportEntry& row)
{
    return row.ImportAssigned ? cText::Tr("gebucht ({0})", {QString::number(row.ImportAssignedEntry)})
                              : cText::Tr("offen");
}

int RunStaged(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cImportEntryList rows = book.Statements.Rows();
    if (context.Call.Has(u"open"_s)) {
        rows.removeIf([](const cImportEntry& row) { return row.ImportAssigned; });
    }
    if (context.Call.Has(u"json"_s)) {
        QStringList objects;
        for (const cImportEntry& row : rows) {
            objects.append(modCliRecord::Row(row).ToString());
        }
        modConsole::Out(modJson::Array(objects) + u'\n');
        return modExit::Done;
    }
    cCliTable table({{cText::Tr("ID"), eAlign::Right},
                     {cText::Tr("Datum")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Empfänger"), eAlign::Left, 30},
                     {cText::Tr("Zweck"), eAlign::Left, 40},
                     {cText::Tr("Stand")}});
    for (const cImportEntry& row : rows) {
        table.Add({QString::number(row.ID), modDate::ToText(row.ImportDate), book.AmountText(row.ImportValue),
                   modCutText::Name(row.ImportBeneficiary), modCutText::Purpose(row.ImportPurpose), State(row)});
    }
    modConsole::Out(table.ToString());
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::StagedCommand()
{
    return {.Name = u"staged"_s,
            .Help = cText::Tr("zeigt die eingelesenen Umsätze"),
            .Options = {{u"open"_s, {}, cText::Tr("nur die noch nicht gebuchten")}, Json()},
            .Run = RunStaged};
}
