#include "base/cText.h"
#include "base/modSum.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/modCliRecord.h"
#include "core/cAmountFormat.h"
#include "model/modRecurrence.h"
#include "views/common/modBookNames.h"
#include "views/look/cCategoryLooks.h"
#include "views/look/modCategoryColor.h"
#include "views/look/modCategoryIcon.h"
#include "views/template/cTemplateManager.h"
#include "views/template/modTemplateText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

void PrintJson(const cCategoryLooks& looks, const QList<cCategoryLine>& lines)
{
    QStringList objects;
    for (const auto& [item, entries] : lines) {
        const cCategoryLook look = looks.Of(modTemplate::Path(item));
        objects.append(modCliRecord::Template(item)
                           .Text(u"EntryType"_s, item.EntryType)
                           .Text(u"EntryInterval"_s, item.EntryInterval)
                           .Amount(u"TemplateDefaultValue"_s, modTemplate::DefaultValueCents(item))
                           .Amount(u"MonthlyLimit"_s, modTemplate::LimitCents(item, 1))
                           .Text(u"TemplateVAT"_s, item.TemplateVAT)
                           .Text(u"EntryCategory"_s, modTemplate::Path(item))
                           .Number(u"Entries"_s, entries)
                           .Text(u"Color"_s, look.Color)
                           .Text(u"Icon"_s, look.Icon)
                           .ToString());
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

QString VatText(const cTemplateItem& item, eDecimal decimal)
{
    const std::optional<qint64> rate = modTemplate::VatRate(item);
    return rate ? modTemplate::VatText(*rate).replace(u'.', modSum::Sign(decimal)) + u" %" : item.TemplateVAT;
}

void Print(const cCliBook& book, const cCategoryLooks& looks, const QList<cCategoryLine>& lines)
{
    QList<cCliTable::cColumn> columns{{cText::Tr("Kategorie")},
                                      {cText::Tr("Art")},
                                      {cText::Tr("Intervall")},
                                      {cText::Tr("Betrag"), eAlign::Right},
                                      {cText::Tr("Monatslimit"), eAlign::Right},
                                      {cText::Tr("MwSt."), eAlign::Right},
                                      {cText::Tr("Buchungen"), eAlign::Right},
                                      {cText::Tr("Stand")}};
    if (!looks.IsEmpty()) {
        columns += {{cText::Tr("Farbe")}, {cText::Tr("Symbol")}};
    }
    cCliTable table(columns);
    const auto amount = [&book](qint64 cents) { return cents == 0 ? QString() : book.AmountText(cents); };
    for (const auto& [item, entries] : lines) {
        QStringList cells{modTemplate::Path(item),
                          item.EntryType,
                          item.EntryInterval,
                          amount(modTemplate::ProposedCents(item)),
                          amount(modTemplate::LimitCents(item, 1)),
                          item.TemplateVAT.isEmpty() ? QString() : VatText(item, book.Format().Decimal()),
                          QString::number(entries),
                          modTemplateText::State(item)};
        if (!looks.IsEmpty()) {
            const cCategoryLook look = looks.Of(modTemplate::Path(item));
            cells += {modCategoryColor::NameOf(look.Color), modCategoryIcon::NameOf(look.Icon)};
        }
        table.Add(cells);
    }
    modConsole::Out(table.ToString());
}

int List(const cCliContext& context)
{
    const QList<cCategoryLine> lines = modBookNames::CategoryLines(context.Book->Data);
    const cCategoryLooks looks = cCategoryLooks::Read(context.Book->Data);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(looks, lines);
    } else {
        Print(*context.Book, looks, lines);
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
    if (amount.isEmpty() || cCliReader::IsNone(amount)) {
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

// The stored form of what an option says, through `read`. What is not there and what removes it stays as it is.
template <typename tRead>
QString LookOption(const QString& text, tRead read, const QStringList& names, cCliReader& reader)
{
    if (text.isEmpty() || cCliReader::IsNone(text)) {
        return text;
    }
    const std::optional<QString> stored = read(text);
    if (!stored) {
        reader.Misused(cText::Tr("'{0}' steht nicht zur Wahl. Möglich sind: {1}.", {text, names.join(u", "_s)}));
    }
    return stored.value_or(QString());
}

// Colour and picture, which only main categories have.
cCategoryLook WantedLook(const cCliCall& call, cCliReader& reader)
{
    QStringList colors;
    const QList<modCategoryColor::cOffer> offeredColors = modCategoryColor::Offers();
    for (const modCategoryColor::cOffer& offer : offeredColors) {
        colors.append(offer.Name);
    }
    QStringList icons;
    const QList<modCategoryIcon::cOffer> offeredIcons = modCategoryIcon::Offers();
    for (const modCategoryIcon::cOffer& offer : offeredIcons) {
        icons.append(offer.Name);
    }
    return {LookOption(call.Value(u"color"_s), modCategoryColor::Read, colors + QStringList{u"#rrggbb"_s}, reader),
            LookOption(call.Value(u"icon"_s), modCategoryIcon::Read, icons, reader)};
}

// The category that an argument names. With colour or picture it is a main category, also one that no entry can have.
QString ChangedPath(const cCliCall& call, const QStringList& mains, cCliReader& reader)
{
    const QString typed = call.Arguments().constFirst();
    const bool isLook = call.Has(u"color"_s) || call.Has(u"icon"_s);
    const auto main = std::find_if(mains.begin(), mains.end(), [&](const QString& each) {
        return each.compare(typed.trimmed(), Qt::CaseInsensitive) == 0;
    });
    if (isLook && main != mains.end()) {
        return *main;
    }
    const QString path = reader.Category(typed, eCliNames::Used);
    if (isLook && !modTemplate::SubOf(path).isEmpty()) {
        reader.Misused(cText::Tr("Farbe und Symbol hat die Hauptkategorie. Bitte geben Sie '{0}' an.",
                                 {modTemplate::MainOf(path)}));
    }
    return path;
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

bool IsOnlyLook(cTemplateFields old, const cTemplateFields& fields)
{
    old.Look = fields.Look;
    return old == fields;
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
        return text.isEmpty() ? stored : cCliReader::IsNone(text) ? QString() : text;
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
    fields.Look = {take(wanted.Look.Color, fields.Look.Color), take(wanted.Look.Icon, fields.Look.Icon)};
    if (node.Id == 0 && !IsOnlyLook(*old, fields)) {
        modConsole::Error(cText::Tr("'{0}' ist nicht direkt bebuchbar und schlägt deshalb nichts vor.", {path}));
        return false;
    }
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
    cTemplateManager manager(context.Book->Tools);
    const QString path = ChangedPath(call, manager.Mains(), reader);
    cTemplateFields wanted = Wanted(context, reader);
    wanted.Look = WantedLook(call, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
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

QList<cCliOption> LookOptions()
{
    return {{u"color"_s, u"FARBE"_s, cText::Tr("Farbe einer Hauptkategorie: ein Name wie \"Blau\" oder #rrggbb")},
            {u"icon"_s, u"SYMBOL"_s, cText::Tr("Symbol einer Hauptkategorie, zum Beispiel \"Haus\"")}};
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
            .Help = cText::Tr("ändert, was eine Kategorie vorschlägt oder wie sie gezeigt wird; \"ohne\" entfernt "
                              "Betrag, Limit, Steuer, Farbe oder Symbol"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = DefaultOptions() + LookOptions(),
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
