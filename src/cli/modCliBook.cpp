#include "base/cText.h"
#include "base/modDate.h"
#include "cli/cCliBook.h"
#include "cli/cCliTable.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliCommands.h"
#include "cli/modCliRecord.h"
#include "views/statement/modImportText.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// The rows that the options name; empty optional, and the user told, when they name none.
std::optional<QList<int>> ChosenRows(const cCliContext& context, const QList<int>& open)
{
    const QStringList texts = context.Call.Values(u"id"_s) + context.Call.Arguments();
    if (context.Call.Has(u"all"_s) == !texts.isEmpty()) {
        modConsole::Error(cText::Tr("Bitte entweder --all oder --id mit Nummern angeben."));
        return std::nullopt;
    }
    if (texts.isEmpty()) {
        return open;
    }
    QList<int> ids;
    for (const QString& text : texts) {
        bool isNumber = false;
        ids.append(text.toInt(&isNumber));
        if (!isNumber) {
            modConsole::Error(cText::Tr("'{0}' ist keine Nummer.", {text}));
            return std::nullopt;
        }
    }
    return ids;
}

// False when one of the rows cannot be booked.
bool AllOpen(const QList<int>& ids, const QList<int>& open)
{
    bool isOpen = true;
    for (const int id : ids) {
        if (!open.contains(id)) {
            modConsole::Error(
                cText::Tr("Einen offenen Umsatz mit der Nummer {0} gibt es nicht.", {QString::number(id)}));
            isOpen = false;
        }
    }
    return isOpen;
}

QString AccountText(const cEntryItem& entry)
{
    const QString source = entry.EntryAccount.isEmpty() ? cText::Tr("(unbekannt)") : entry.EntryAccount;
    return entry.EntryAccountMove.isEmpty() ? source : source + u" → "_s + entry.EntryAccountMove;
}

QString ReasonText(const cProposal& proposal)
{
    if (proposal.ExistingEntry != 0) {
        return cText::Tr("gehört zu Eintrag {0}", {QString::number(proposal.ExistingEntry)});
    }
    return proposal.Reason;
}

void Print(const cCliBook& book, const QList<int>& ids, const QHash<int, cProposal>& proposals)
{
    cCliTable table({{cText::Tr("ID"), eAlign::Right},
                     {cText::Tr("Datum")},
                     {cText::Tr("Art")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kategorie")},
                     {cText::Tr("Intervall")},
                     {cText::Tr("Text"), eAlign::Left, 36},
                     {cText::Tr("Grund")}});
    for (const int id : ids) {
        const cProposal proposal = proposals.value(id);
        const cEntryItem& entry = proposal.Entry;
        table.Add({QString::number(id), modDate::ToGerman(entry.EntryDate), entry.EntryType,
                   book.AmountText(entry.EntryValue), AccountText(entry), entry.EntryCategory, entry.EntryInterval,
                   entry.EntryDescription, ReasonText(proposal)});
    }
    modConsole::Out(table.ToString());
}

void PrintJson(const QList<int>& ids, const QHash<int, cProposal>& proposals)
{
    QStringList objects;
    for (const int id : ids) {
        const cProposal proposal = proposals.value(id);
        cJsonObject json = modCliRecord::Entry(proposal.Entry);
        json.Number(u"ImportID"_s, id)
            .Text(u"Reason"_s, proposal.Reason)
            .Number(u"PartnerRow"_s, proposal.PartnerRow)
            .Number(u"ExistingEntry"_s, proposal.ExistingEntry);
        objects.append(json.ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

int Report(const cStatementDesk::cBooked& booked)
{
    modConsole::Out(booked.Text + u'\n');
    for (const QString& number : booked.UnknownAccounts) {
        modConsole::Error(modImportText::NoAccount(number) + u' '
                          + cText::Tr("Lesen Sie den Auszug mit --book-account NAME noch einmal ein."));
    }
    return booked.IsDone ? modExit::Done : modExit::Failed;
}

int RunPropose(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const QList<int> ids = book.Statements.OpenIds();
    const QHash<int, cProposal> proposals = book.Statements.Propose(ids);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(ids, proposals);
    } else {
        Print(book, ids, proposals);
    }
    return modExit::Done;
}

int RunBook(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const QList<int> open = book.Statements.OpenIds();
    const std::optional<QList<int>> chosen = ChosenRows(context, open);
    if (!chosen) {
        return modExit::Usage;
    }
    if (!AllOpen(*chosen, open)) {
        return modExit::Failed;
    }
    if (context.Call.Has(u"dry-run"_s)) {
        Print(book, *chosen, book.Statements.Propose(*chosen));
        return modExit::Done;
    }
    return Report(book.Statements.Book(*chosen));
}

} // namespace

cCliCommand modCliCommands::ProposeCommand()
{
    return {.Name = u"propose"_s,
            .Help = cText::Tr("zeigt zu jedem offenen Umsatz, wie er gebucht würde, und warum"),
            .Options = {Json()},
            .Run = RunPropose};
}

cCliCommand modCliCommands::BookCommand()
{
    return {.Name = u"book"_s,
            .Arguments = u"(--all | --id N...)"_s,
            .Help = cText::Tr("bucht offene Umsätze so, wie \"propose\" es zeigt"),
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .ReadsWith = {u"dry-run"_s},
            .Options = {{u"all"_s, {}, cText::Tr("alle offenen Umsätze")},
                        {u"id"_s, u"N..."_s, cText::Tr("die Umsätze mit diesen Nummern (Spalte ID)")},
                        {u"dry-run"_s, {}, cText::Tr("nur zeigen, nichts ändern")}},
            .Run = RunBook};
}
