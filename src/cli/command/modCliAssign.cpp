#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cConsoleUser.h"
#include "views/statement/cMatchFlow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Checks that the day named means the occurrence that the row's own day leads to, which is all that is stored.
void CheckDay(const cCliContext& context, cCliReader& reader, const cImportEntry& row, const cEntryItem& found)
{
    const QString text = context.Call.Arguments().value(2);
    const QDate day = text.isEmpty() ? QDate() : reader.Occurrence(found.ID, text);
    if (day.isValid() && day != found.Planned()) {
        reader.Missing(cText::Tr("Der Umsatz vom {0} liegt dem Vorkommen vom {1} am nächsten und zählt zu diesem.",
                                 {modDate::ToText(row.ImportDate), modDate::ToText(found.EntryDate)}));
    }
}

// Says what came of an action.
int Report(const cMatchFlow::cOutcome& outcome)
{
    const QString text = outcome.Lines.join(u'\n');
    if (!outcome.IsDone) {
        modConsole::Error(text);
        return modExit::Failed;
    }
    modConsole::Out(text + u'\n');
    return modExit::Done;
}

// Nobody can be asked whether the amount of the series is to follow.
int Assign(const cCliContext& context, int rowId, const cMatchCandidate& found)
{
    const bool isCorrecting = context.Call.Has(u"correct"_s);
    context.User.Prepare(modCliFlow::CorrectionAnswers(context));
    cCliBook& book = *context.Book;
    const int code = Report(book.Statements.Matching().Assign(rowId, found));
    if (code == modExit::Done && found.Correction && !isCorrecting) {
        modConsole::Out(
            cText::Tr("Der Umsatz ist {0}, das Vorkommen {1}; --correct gleicht es an.",
                      {book.AmountText(found.Correction->EntryValue), book.AmountText(found.Entry.EntryValue)})
            + u'\n');
    }
    return code;
}

int RunAssign(const cCliContext& context)
{
    cCliReader reader(context);
    const std::optional<cImportEntry> row = reader.StagedRow(context.Call.Arguments().value(0));
    const int entryId = reader.Id(context.Call.Arguments().value(1));
    if (!row || !reader.IsGood()) {
        return reader.Report();
    }
    const std::optional<cMatchCandidate> found = context.Book->Statements.ByHand(row->ID, entryId);
    if (!found) {
        modConsole::Error(cText::Tr("Die Serie {0} hat in der Nähe des {1} kein Vorkommen.",
                                    {QString::number(entryId), modDate::ToText(row->ImportDate)}));
        return modExit::Failed;
    }
    CheckDay(context, reader, *row, found->Entry);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    return Assign(context, row->ID, *found);
}

int RunRelease(const cCliContext& context)
{
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
    return Report(context.Book->Statements.Matching().Release(ids));
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
