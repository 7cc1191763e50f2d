#include "base/cText.h"
#include "base/modSum.h"
#include "cli/cCliBook.h"
#include "cli/cCliReader.h"
#include "cli/cCliTable.h"
#include "cli/modCliCommands.h"
#include "cli/modCliFlow.h"
#include "cli/modCliRecord.h"
#include "core/cAmountFormat.h"
#include "store/cUndoStep.h"
#include "views/template/cTemplateManager.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cTemplateManager::cParts Parts(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    return {book.Data, book.Settings(), book.Format(), context.User, context.Clock};
}

// "Wohnung;Miete" as paths are stored, without the characters that names cannot have.
QString NewPath(const QString& text)
{
    return modTemplate::Join(modTemplate::CleanName(text.section(u';', 0, 0).trimmed()),
                             modTemplate::CleanName(text.section(u';', 1).trimmed()));
}

// The categories in their order, then the paths that only entries have; those have no ID.
cTemplateItemList Load(cDataAccess& data, const QHash<QString, int>& counts)
{
    cTemplateItemList items = modTemplate::InOrder(data.GetTemplates());
    items.removeIf(modTemplate::IsAccount);
    QStringList unknown = counts.keys();
    for (const cTemplateItem& item : std::as_const(items)) {
        unknown.removeAll(modTemplate::Path(item));
    }
    unknown.sort();
    for (const QString& path : std::as_const(unknown)) {
        cTemplateItem item;
        item.TemplateCategory = modTemplate::MainOf(path);
        item.TemplateName = modTemplate::SubOf(path);
        items.append(item);
    }
    return items;
}

void PrintJson(const cTemplateItemList& items, const QHash<QString, int>& counts)
{
    QStringList objects;
    for (const cTemplateItem& item : items) {
        objects.append(modCliRecord::Template(item)
                           .Text(u"EntryType"_s, item.EntryType)
                           .Text(u"EntryInterval"_s, item.EntryInterval)
                           .Amount(u"TemplateDefaultValue"_s, modTemplate::DefaultValueCents(item))
                           .Text(u"EntryCategory"_s, modTemplate::Path(item))
                           .Number(u"Entries"_s, counts.value(modTemplate::Path(item)))
                           .ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

QString State(const cTemplateItem& item)
{
    if (item.ID == 0) {
        return cText::Tr("nur in Einträgen");
    }
    return modTemplate::IsVisible(item) ? QString() : cText::Tr("ausgeblendet");
}

void Print(const cCliBook& book, const cTemplateItemList& items, const QHash<QString, int>& counts)
{
    cCliTable table({{cText::Tr("Kategorie"), eAlign::Left, 60},
                     {cText::Tr("Art")},
                     {cText::Tr("Intervall")},
                     {cText::Tr("Monatslimit"), eAlign::Right},
                     {cText::Tr("Buchungen"), eAlign::Right},
                     {cText::Tr("Stand")}});
    for (const cTemplateItem& item : items) {
        const qint64 limit = modTemplate::DefaultValueCents(item);
        const QString path = modTemplate::Path(item);
        table.Add({path, item.EntryType, item.EntryInterval, limit == 0 ? QString() : book.AmountText(limit),
                   QString::number(counts.value(path)), State(item)});
    }
    modConsole::Out(table.ToString());
}

int List(const cCliContext& context)
{
    const QHash<QString, int> counts = context.Book->Data.CountEntriesByCategory();
    const cTemplateItemList items = Load(context.Book->Data, counts);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(items, counts);
    } else {
        Print(*context.Book, items, counts);
    }
    return modExit::Done;
}

bool SetDefaults(cTemplateManager& manager, const QString& path, const cTemplateFields& wanted)
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
    cTemplateFields fields = *old;
    fields.Type = wanted.Type.isEmpty() ? fields.Type : wanted.Type;
    fields.Interval = wanted.Interval.isEmpty() ? fields.Interval : wanted.Interval;
    fields.Amount = wanted.Amount.isEmpty() ? fields.Amount : wanted.Amount;
    return manager.Save(node, *old, fields).has_value();
}

int Add(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    cTemplateFields wanted;
    wanted.Type = reader.Kind(call.Value(u"kind"_s));
    wanted.Interval = reader.Interval(call.Value(u"interval"_s));
    const qint64 limit = reader.Cents(call.Value(u"limit"_s));
    wanted.Amount = call.Has(u"limit"_s) ? modSum::ToText(limit, context.Book->Format().Decimal()) : QString();
    if (limit < 0) {
        reader.Misused(cText::Tr("Ein Monatslimit kann nicht unter null liegen."));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cTemplateManager manager(Parts(context));
    const QString path = NewPath(call.Arguments().constFirst());
    bool isDone = false;
    {
        cUndoStep step(context.Book->Data, cText::Tr("Kategorie '{0}' angelegt", {path}));
        const QString added = manager.AddCategory(modTemplate::MainOf(path), modTemplate::SubOf(path));
        isDone = !added.isEmpty() && (SetDefaults(manager, added, wanted) || step.Revert());
    }
    return modCliFlow::Finish(context, isDone);
}

int Rename(const cCliContext& context)
{
    cCliReader reader(context);
    const QString oldPath = reader.Category(context.Call.Arguments().at(0), eCliNames::Used);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QString name = NewPath(context.Call.Arguments().at(1));
    const bool staysInMain = !modTemplate::SubOf(oldPath).isEmpty() && modTemplate::SubOf(name).isEmpty();
    const QString newPath = staysInMain ? modTemplate::Join(modTemplate::MainOf(oldPath), name) : name;
    cTemplateManager manager(Parts(context));
    return modCliFlow::Finish(context, manager.RenameCategory(oldPath, newPath));
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
    cTemplateManager manager(Parts(context));
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
    cTemplateManager manager(Parts(context));
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
            .Options = {{u"kind"_s, u"ART"_s, cText::Tr("Buchungsart, die die Kategorie vorschlägt")},
                        {u"interval"_s, u"INTERVALL"_s, cText::Tr("Intervall, das sie vorschlägt")},
                        {u"limit"_s, u"BETRAG"_s, cText::Tr("Monatslimit")}},
            .Run = Add};
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
