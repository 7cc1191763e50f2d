#include "base/cText.h"
#include "base/modDate.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modCliRecord.h"
#include "views/ledger/modImportText.h"
#include "views/statement/modReviewQuestion.h"

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

QString AccountText(cEntryItem entry)
{
    if (entry.EntryAccount.isEmpty()) {
        entry.EntryAccount = cText::Tr("(unbekannt)");
    }
    return entry.Accounts();
}

// The entry of the book that the row belongs to; 0 when a new one is to be made.
int EntryIn(const cRowPlan& plan)
{
    return plan.Match ? plan.Match->Entry.ID : plan.Proposal.ExistingEntry;
}

QString ReasonText(const cRowPlan& plan)
{
    if (plan.Twin && plan.IsSecond) {
        return modImportText::TwinReason(*plan.Twin);
    }
    if (plan.Match || !plan.Proposal.BookedAs.isEmpty()) {
        return cText::Tr("Eintrag {0}: {1}", {QString::number(EntryIn(plan)), modImportText::Reason(plan)});
    }
    return EntryIn(plan) != 0 ? cText::Tr("gehört zu Eintrag {0}", {QString::number(EntryIn(plan))}) : plan.Reason;
}

QString GroupWord(eRowGroup group)
{
    switch (group) {
    case eRowGroup::InBook: return u"inBook"_s;
    case eRowGroup::Sure: return u"sure"_s;
    case eRowGroup::Look: break;
    }
    return u"look"_s;
}

// What the row becomes: the entry that is certainly there, else the proposed one.
const cEntryItem& EntryOf(const cRowPlan& plan)
{
    return plan.Match && plan.Group == eRowGroup::InBook ? plan.Match->Entry : plan.Proposal.Entry;
}

void Print(const cCliBook& book, const QList<int>& ids, const QHash<int, cRowPlan>& plans)
{
    cCliTable table({{cText::Tr("ID"), eAlign::Right},
                     {cText::Tr("Gruppe")},
                     {cText::Tr("Datum")},
                     {cText::Tr("Art")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Konto")},
                     {cText::Tr("Kategorie")},
                     {cText::Tr("Intervall")},
                     {cText::Tr("Text"), eAlign::Left, 36},
                     {cText::Tr("Grund")}});
    for (const int id : ids) {
        const cRowPlan plan = plans.value(id);
        const cEntryItem& entry = EntryOf(plan);
        table.Add({QString::number(id), modImportText::Group(plan.Group), modDate::ToText(entry.EntryDate),
                   entry.EntryType, book.AmountText(entry.EntryValue), AccountText(entry), entry.EntryCategory,
                   entry.EntryInterval, entry.EntryDescription, ReasonText(plan)});
    }
    modConsole::Out(table.ToString());
}

void PrintJson(const QList<int>& ids, const QHash<int, cRowPlan>& plans)
{
    QStringList objects;
    for (const int id : ids) {
        const cRowPlan plan = plans.value(id);
        cJsonObject json = modCliRecord::Entry(EntryOf(plan));
        json.Number(u"ImportID"_s, id)
            .Text(u"Group"_s, GroupWord(plan.Group))
            .Text(u"Reason"_s, plan.Reason)
            .Number(u"PartnerRow"_s, plan.Proposal.PartnerRow)
            .Number(u"ExistingEntry"_s, EntryIn(plan));
        objects.append(json.ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

// Nobody can be asked: rows that have an entry, or may be there twice, stay open unless an option says otherwise. What
// the bank booked to a series that goes on has its day and amount; beside new entries, what was corrected by hand
// stays.
cConsoleUser::cAnswers Answers(const cCliContext& context)
{
    using modReviewQuestion::eMatchAnswer;
    cConsoleUser::cAnswers answers;
    answers.About = modReviewQuestion::Matches({}).Title;
    answers.Answer = context.Call.Has(u"new"_s) ? eAnswer::No : eAnswer::Yes;
    answers.Decision = static_cast<int>(context.Call.Has(u"new"_s)          ? eMatchAnswer::New
                                            : context.Call.Has(u"assign"_s) ? eMatchAnswer::Assign
                                                                            : eMatchAnswer::Leave);
    return answers;
}

int RunPropose(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const QList<int> ids = book.Statements.OpenIds();
    const QHash<int, cRowPlan> plans = book.Statements.Propose(ids);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(ids, plans);
    } else {
        Print(book, ids, plans);
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
    if (context.Call.Has(u"safe"_s)) {
        context.User.Prepare(modCliFlow::SafeAnswers());
        return modCliFlow::ReportBooked(context, book.Statements.Accept(*chosen));
    }
    context.User.Prepare(Answers(context));
    return modCliFlow::ReportBooked(context, book.Statements.Book(*chosen));
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
                        {u"safe"_s, {}, cText::Tr("nur, was im Buch steht oder sicher ist")},
                        {u"assign"_s, {}, cText::Tr("Umsätze, die einen Eintrag haben, diesem zuordnen")},
                        {u"new"_s,
                         {},
                         cText::Tr("auch aus solchen neue Einträge machen; was von Hand korrigiert ist, bleibt")},
                        {u"dry-run"_s, {}, cText::Tr("nur zeigen, nichts ändern")}},
            .Run = RunBook};
}
