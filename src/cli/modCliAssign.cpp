#include "base/cText.h"
#include "base/modDate.h"
#include "cli/cCliBook.h"
#include "cli/cCliReader.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliCommands.h"
#include "import/match/cMatcher.h"
#include "store/cUndoStep.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Checks that the day named means the occurrence that the row's own day leads to, which is all that is stored.
void CheckDay(const cCliContext& context, cCliReader& reader, const cImportEntry& row, const cEntryItem& found)
{
    const QString text = context.Call.Arguments().value(2);
    const QDate day = text.isEmpty() ? QDate() : reader.Occurrence(found.ID, text);
    if (day.isValid() && day != found.EntryDate) {
        reader.Missing(cText::Tr("Der Umsatz vom {0} liegt dem Vorkommen vom {1} am nächsten und zählt zu diesem.",
                                 {modDate::ToGerman(row.ImportDate), modDate::ToGerman(found.EntryDate)}));
    }
}

void SayAssigned(const cCliContext& context, const cImportEntry& row, const cMatchCandidate& found)
{
    const cCliBook& book = *context.Book;
    modConsole::Out(
        cText::Tr("Umsatz {0} gehört zu Eintrag {1} vom {2}.",
                  {QString::number(row.ID), QString::number(found.Entry.ID), modDate::ToGerman(found.Entry.EntryDate)})
        + u'\n');
    if (!found.Correction) {
        return;
    }
    const QStringList amounts{book.AmountText(found.Correction->EntryValue), book.AmountText(found.Entry.EntryValue)};
    modConsole::Out((context.Call.Has(u"correct"_s)
                         ? cText::Tr("Das Vorkommen ist nun {0} statt {1}.", amounts)
                         : cText::Tr("Der Umsatz ist {0}, das Vorkommen {1}; --correct gleicht es an.", amounts))
                    + u'\n');
}

int RunAssign(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cCliReader reader(context);
    const std::optional<cImportEntry> row = reader.StagedRow(context.Call.Arguments().value(0));
    const int entryId = reader.Id(context.Call.Arguments().value(1));
    if (!row || !reader.IsGood()) {
        return reader.Report();
    }
    const std::optional<cMatchCandidate> found = cMatcher(book.Data, book.Hive, book.Accounts).ByHand(row->ID, entryId);
    if (!found) {
        modConsole::Error(cText::Tr("Die Serie {0} hat in der Nähe des {1} kein Vorkommen.",
                                    {QString::number(entryId), modDate::ToGerman(row->ImportDate)}));
        return modExit::Failed;
    }
    CheckDay(context, reader, *row, found->Entry);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cUndoStep step(book.Data, cText::Tr("Umsatz zugeordnet"));
    const bool wantsCorrection = context.Call.Has(u"correct"_s);
    if (!book.Booking.Assign(row->ID, entryId)
        || (wantsCorrection && found->Correction && !book.Data.AddNewEntryMod(*found->Correction))) {
        step.Revert();
        return modExit::Failed;
    }
    SayAssigned(context, *row, *found);
    return modExit::Done;
}

int RunRelease(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    cCliReader reader(context);
    QList<int> ids;
    for (const QString& text : context.Call.Arguments()) {
        const std::optional<cImportEntry> row = reader.StagedRow(text);
        if (row && !row->ImportAssigned) {
            reader.Missing(cText::Tr("Der Umsatz {0} ist nicht zugeordnet.", {text}));
        }
        ids.append(row ? row->ID : 0);
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cUndoStep step(book.Data, cText::Tr("Umsätze freigegeben"));
    for (const int id : std::as_const(ids)) {
        if (!book.Booking.Unassign(id)) {
            step.Revert();
            return modExit::Failed;
        }
    }
    const QString text = ids.size() == 1 ? cText::Tr("1 Umsatz freigegeben")
                                         : cText::Tr("{0} Umsätze freigegeben", {QString::number(ids.size())});
    modConsole::Out(text + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::AssignCommand()
{
    return {.Name = u"assign"_s,
            .Arguments = u"UMSATZ EINTRAG [TAG]"_s,
            .Help = cText::Tr("ordnet einen Umsatz einem Eintrag zu; bei einer Serie dem Vorkommen, das am nächsten "
                              "liegt"),
            .MinArguments = 2,
            .MaxArguments = 3,
            .Access = eCliAccess::Write,
            .Options = {{u"correct"_s, {}, cText::Tr("das Vorkommen auf den Betrag des Umsatzes korrigieren")}},
            .Run = RunAssign};
}

cCliCommand modCliCommands::ReleaseCommand()
{
    return {.Name = u"release"_s,
            .Arguments = u"UMSATZ..."_s,
            .Help = cText::Tr("löst Umsätze von ihren Einträgen; diese bleiben"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Run = RunRelease};
}
