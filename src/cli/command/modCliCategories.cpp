#include "base/cText.h"
#include "base/modSum.h"
#include "cli/cCliBook.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliReader.h"
#include "cli/console/cCliTable.h"
#include "cli/console/modCliRecord.h"
#include "cli/modCliCommands.h"
#include "core/cAmountFormat.h"
#include "model/modRecurrence.h"
#include "views/list/modBookNames.h"
#include "views/template/cTemplateManager.h"
#include "views/template/modTemplateText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsNone(const QString& text)
{
    return text.compare(u"ohne"_s, Qt::CaseInsensitive) == 0;
}

void PrintJson(const QList<cCategoryLine>& lines)
{
    QStringList objects;
    for (const auto& [item, entries] : lines) {
        objects.append(modCliRecord::Template(item)
                           .Text(u"EntryType"_s, item.EntryType)
                           .Text(u"EntryInterval"_s, item.EntryInterval)
                           .Amount(u"TemplateDefaultValue"_s, modTemplate::DefaultValueCents(item))
                           .Amount(u"MonthlyLimit"_s, modTemplate::LimitCents(item, 1))
                           .Text(u"TemplateVAT"_s, item.TemplateVAT)
                           .Text(u"EntryCategory"_s, modTemplate::Path(item))
                           .Number(u"Entries"_s, entries)
                           .ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

QString VatText(const cTemplateItem& item, eDecimal decimal)
{
    const std::optional<qint64> rate = modTemplate::VatRate(item);
    return rate ? modTemplate::VatText(*rate).replace(u'.', modSum::Sign(decimal)) + u" %" : item.TemplateVAT;
}

void Print(const cCliBook& book, const QList<cCategoryLine>& lines)
{
    cCliTable table({{cText::Tr("Kategorie")},
                     {cText::Tr("Art")},
                     {cText::Tr("Intervall")},
                     {cText::Tr("Betrag"), eAlign::Right},
                     {cText::Tr("Monatslimit"), eAlign::Right},
                     {cText::Tr("MwSt."), eAlign::Right},
                     {cText::Tr("Buchungen"), eAlign::Right},
                     {cText::Tr("Stand")}});
    const auto amount = [&book](qint64 cents) { return cents == 0 ? QString() : book.AmountText(cents); };
    for (const auto& [item, entries] : lines) {
        table.Add({modTemplate::Path(item), item.EntryType, item.EntryInterval,
                   amount(modTemplate::ProposedCents(item)), amount(modTemplate::LimitCents(item, 1)),
                   item.TemplateVAT.isEmpty() ? QString() : VatText(item, book.Format().Decimal()),
                   QString::number(entries), modTemplateText::State(item)});
    }
    modConsole::Out(table.ToString());
}

int List(const cCliContext& context)
{
    const QList<cCategoryLine> lines = modBookNames::CategoryLines(context.Book->Data);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(lines);
    } else {
        Print(*context.Book, lines);
    }
    return modExit::Done;
}

// What the options say a category is to propose; see SetDefaults.
cTemplateFields Wanted(const cCliContext& context, cCliReader& reader)
{
    const cCliCall& call = context.Call;
    cTemplateFields wanted;
    wanted.Type = reader.Kind(call.Value(u"kind"_s));
    wanted.Interval = reader.Interval(call.Value(u"interval"_s));
    wanted.Vat = call.Value(u"vat"_s);
    if (call.Has(u"limit"_s) && call.Has(u"amount"_s)) {
        reader.Misused(cText::Tr("--amount und --limit schließen einander aus."));
    }
    const QString amount = call.Value(call.Has(u"amount"_s) ? u"amount"_s : u"limit"_s);
    if (amount.isEmpty() || IsNone(amount)) {
        wanted.Amount = amount;
        return wanted;
    }
    const qint64 cents = reader.Cents(amount);
    if (cents < 0) {
        reader.Misused(cText::Tr("Betrag und Monatslimit können nicht unter null liegen."));
    }
    wanted.Amount = modSum::ToText(cents, context.Book->Format().Decimal()); // as the fields of a window would hold it
    return wanted;
}

// One column holds both: a limit for the month, or an amount for an interval that recurs. Says so when the option does
// not fit the interval.
bool FitsInterval(const cCliCall& call, const QString& interval)
{
    const bool isRecurring = modRecurrence::IsRecurring(interval);
    if (call.Has(u"amount"_s) && !isRecurring) {
        modConsole::Error(cText::Tr(
            "--amount ist der Betrag je Intervall und braucht ein wiederkehrendes --interval; ein Monatslimit setzt "
            "--limit."));
        return false;
    }
    if (call.Has(u"limit"_s) && isRecurring && modRecurrence::TimesAYear(interval) != 12) {
        modConsole::Error(cText::Tr("Beim Intervall '{0}' bitte --amount angeben, den Betrag je Intervall: Das "
                                    "Monatslimit ergibt sich daraus.",
                                    {interval}));
        return false;
    }
    return true;
}

// Options that are not there leave what is stored.
bool SetDefaults(const cCliCall& call, cTemplateManager& manager, const QString& path, const cTemplateFields& wanted)
{
    const cTemplateNode* found = manager.Categories().NodeAt(manager.Categories().IndexOf(path));
    if (found == nullptr) {
        return false;
    }
    const cTemplateNode node = *found; // saving builds the tree anew
    const std::optional<cTemplateFields> old = manager.Load(node);
    if (!old) {
        return false;
    }
    const auto take = [](const QString& text, const QString& stored) {
        return text.isEmpty() ? stored : IsNone(text) ? QString() : text;
    };
    if (!wanted.Interval.isEmpty() && wanted.Interval != old->Interval && wanted.Amount.isEmpty()
        && !old->Amount.isEmpty()) {
        modConsole::Error(
            cText::Tr("Der Betrag {0} war für das Intervall '{1}' gemeint. Bitte geben Sie mit --interval auch "
                      "--amount an, den Betrag je Intervall, oder --limit, das Monatslimit.",
                      {old->Amount, old->Interval}));
        return false;
    }
    cTemplateFields fields = *old;
    fields.Type = take(wanted.Type, fields.Type);
    fields.Interval = take(wanted.Interval, fields.Interval);
    fields.Amount = take(wanted.Amount, fields.Amount);
    fields.Vat = take(wanted.Vat, fields.Vat);
    return FitsInterval(call, fields.Interval) && manager.Save(node, *old, fields).has_value();
}

int Add(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    const cTemplateFields wanted = Wanted(context, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cTemplateManager manager(context.Book->Tools);
    const QString path = cTemplateManager::TypedPath(call.Arguments().constFirst());
    const QString added =
        manager.AddCategory(modTemplate::MainOf(path), modTemplate::SubOf(path),
                            [&](const QString& there) { return SetDefaults(call, manager, there, wanted); });
    return modCliFlow::Finish(context, !added.isEmpty());
}

int Change(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    const QString path = reader.Category(call.Arguments().constFirst(), eCliNames::Used);
    const cTemplateFields wanted = Wanted(context, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cTemplateManager manager(context.Book->Tools);
    const bool isDone = SetDefaults(call, manager, path, wanted) && !context.Book->File().LastStep().isEmpty();
    return modCliFlow::Finish(context, isDone);
}

QList<cCliOption> DefaultOptions()
{
    return {{u"kind"_s, u"ART"_s, cText::Tr("Buchungsart, die die Kategorie vorschlägt")},
            {u"interval"_s, u"INTERVALL"_s, cText::Tr("Intervall, das sie vorschlägt")},
            {u"amount"_s, u"BETRAG"_s,
             cText::Tr("Betrag, den sie je Intervall vorschlägt; auf den Monat umgerechnet ihr Limit")},
            {u"limit"_s, u"BETRAG"_s, cText::Tr("Monatslimit, wenn das Intervall nicht wiederkehrt")},
            {u"vat"_s, u"PROZENT"_s, cText::Tr("Mehrwertsteuer, die in den Beträgen steckt")}};
}

int Rename(const cCliContext& context)
{
    cCliReader reader(context);
    const QString oldPath = reader.Category(context.Call.Arguments().at(0), eCliNames::Used);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cTemplateManager manager(context.Book->Tools);
    const QString typed = cTemplateManager::TypedPath(context.Call.Arguments().at(1));
    return modCliFlow::Finish(context, manager.RenameCategory(oldPath, typed));
}

int Merge(const cCliContext& context)
{
    cCliReader reader(context);
    const QString source = reader.Category(context.Call.Arguments().at(0), eCliNames::Used);
    const QString target = reader.Category(context.Call.Arguments().at(1), eCliNames::Used);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird zusammengeführt.")));
    cTemplateManager manager(context.Book->Tools);
    return modCliFlow::Finish(context, manager.MergeCategory(source, target));
}

int Delete(const cCliContext& context)
{
    cCliReader reader(context);
    const QString path = reader.Category(context.Call.Arguments().constFirst(), eCliNames::Used);
    const QString target = reader.Category(context.Call.Value(u"move-to"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(modCliFlow::RemovalAnswers(context, target));
    cTemplateManager manager(context.Book->Tools);
    return modCliFlow::Finish(context, manager.DeleteCategory(path));
}

} // namespace

cCliCommand modCliCommands::CategoriesCommand()
{
    return {.Name = u"categories"_s, .Help = cText::Tr("zeigt die Kategorien"), .Options = {Json()}, .Run = List};
}

cCliCommand modCliCommands::CategoriesAddCommand()
{
    return {.Name = u"categories add"_s,
            .Arguments = u"PFAD"_s,
            .Help = cText::Tr("legt eine Kategorie an: \"Wohnung\" oder \"Wohnung; Miete\""),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = DefaultOptions(),
            .Run = Add};
}

cCliCommand modCliCommands::CategoriesChangeCommand()
{
    return {.Name = u"categories change"_s,
            .Arguments = u"PFAD"_s,
            .Help = cText::Tr("ändert, was eine Kategorie vorschlägt; \"ohne\" entfernt Betrag, Limit oder Steuer"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = DefaultOptions(),
            .Run = Change};
}

cCliCommand modCliCommands::CategoriesRenameCommand()
{
    return {.Name = u"categories rename"_s,
            .Arguments = u"PFAD NEU"_s,
            .Help =
                cText::Tr("benennt eine Kategorie um, oder setzt sie unter eine andere Hauptkategorie; die Einträge "
                          "gehen mit"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Rename};
}

cCliCommand modCliCommands::CategoriesMergeCommand()
{
    return {.Name = u"categories merge"_s,
            .Arguments = u"PFAD ZIEL"_s,
            .Help = cText::Tr("lässt eine Kategorie mit ihren Einträgen in einer anderen aufgehen"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Options = {modCliFlow::Yes()},
            .Run = Merge};
}

cCliCommand modCliCommands::CategoriesDeleteCommand()
{
    return {.Name = u"categories delete"_s,
            .Arguments = u"PFAD"_s,
            .Help = cText::Tr("löscht eine Kategorie, eine Hauptkategorie mit allen Unterkategorien"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = {{u"move-to"_s, u"PFAD"_s,
                         cText::Tr("Kategorie für die Einträge; ohne Angabe behalten sie die alte")},
                        {u"yes"_s, {}, cText::Tr("wirklich löschen")}},
            .Run = Delete};
}
