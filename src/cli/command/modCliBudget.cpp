#include "base/cClock.h"
#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/budget/cBudgetEdit.h"
#include "views/common/modUnread.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A year, or one of its months.
struct cTime
{
    int Year = 0;
    int Month = 0; // 0: the whole year
};

// "2026" and "2026-03".
cTime ReadTime(const QString& text, cCliReader& reader)
{
    const QDate month = QDate::fromString(text, u"yyyy-MM"_s);
    const QDate year = QDate::fromString(text, u"yyyy"_s);
    if (!month.isValid() && !year.isValid()) {
        reader.Misused(cText::Tr("'{0}' ist kein Jahr und kein Monat. Bitte geben Sie 2026 oder 2026-03 an.", {text}));
    }
    return month.isValid() ? cTime{month.year(), month.month()} : cTime{year.year()};
}

bool IsShown(const cBudgetEdit& budget, int row, const cTime& time)
{
    const int first = time.Month == 0 ? 1 : time.Month;
    const int last = time.Month == 0 ? modBudget::MonthsOfYear : time.Month;
    for (int month = first; month <= last; ++month) {
        if (budget.Available(row, month) || (time.Month > 0 && budget.Spent(row, month) != 0)) {
            return true;
        }
    }
    return false;
}

QString MonthJson(const cBudgetEdit& budget, int row, int month)
{
    const std::optional<cLimit> limit = budget.Available(row, month);
    const qint64 spent = budget.Spent(row, month);
    cJsonObject json;
    json.Text(u"Month"_s, modBudget::MonthOf(budget.Year(), month).toString(u"yyyy-MM"_s));
    if (limit) {
        json.Amount(u"Budget"_s, limit->Own).Amount(u"Carried"_s, limit->Carried);
    }
    json.Amount(u"Spent"_s, spent);
    if (limit) {
        json.Amount(u"Left"_s, limit->Total() - spent);
    }
    return json.ToString();
}

void PrintJson(const cBudgetEdit& budget, const cTime& time)
{
    QStringList objects;
    for (int row = 0; row < budget.Rows().size(); ++row) {
        QStringList months;
        for (int month = 1; month <= modBudget::MonthsOfYear; ++month) {
            if (time.Month == 0 || time.Month == month) {
                months.append(MonthJson(budget, row, month));
            }
        }
        if (IsShown(budget, row, time)) {
            cJsonObject json;
            json.Text(u"EntryCategory"_s, budget.Rows().at(row).Path)
                .Truth(u"CarriesOver"_s, budget.CarriesOver(row))
                .Raw(u"Months"_s, modJson::Array(months));
            objects.append(json.ToString());
        }
    }
    modConsole::Out(modJson::Array(objects) + u'\n');
}

void PrintMonth(const cCliBook& book, const cBudgetEdit& budget, const cTime& time)
{
    cCliTable table({{cText::Tr("Kategorie")},
                     {cText::Tr("Budget"), eAlign::Right},
                     {cText::Tr("Übertrag"), eAlign::Right},
                     {cText::Tr("Ausgegeben"), eAlign::Right},
                     {cText::Tr("Übrig"), eAlign::Right}});
    for (int row = 0; row < budget.Rows().size(); ++row) {
        if (!IsShown(budget, row, time)) {
            continue;
        }
        const std::optional<cLimit> limit = budget.Available(row, time.Month);
        const qint64 spent = budget.Spent(row, time.Month);
        const auto text = [&](qint64 cents) { return limit ? book.AmountText(cents) : QString(); };
        const cLimit known = limit.value_or(cLimit());
        table.Add({budget.Rows().at(row).Path, text(known.Own), budget.CarriesOver(row) ? text(known.Carried) : u""_s,
                   book.AmountText(spent), text(known.Total() - spent)});
    }
    modConsole::Out(table.ToString());
}

void PrintYear(const cCliBook& book, const cBudgetEdit& budget, const cTime& time)
{
    QList<cCliTable::cColumn> columns{{cText::Tr("Kategorie")}};
    for (int month = 1; month <= modBudget::MonthsOfYear; ++month) {
        columns.append({modBudget::MonthOf(time.Year, month).toString(u"yyyy-MM"_s), eAlign::Right});
    }
    cCliTable table(columns << cCliTable::cColumn{cText::Tr("Jahr"), eAlign::Right});
    for (int row = 0; row < budget.Rows().size(); ++row) {
        if (!IsShown(budget, row, time)) {
            continue;
        }
        QStringList texts{budget.Rows().at(row).Path};
        for (int month = 1; month <= modBudget::MonthsOfYear; ++month) {
            texts.append(book.AmountText(budget.Limit(row, month)));
        }
        table.Add(texts << book.AmountText(budget.YearLimit(row)));
    }
    modConsole::Out(table.ToString());
}

int List(const cCliContext& context)
{
    cCliReader reader(context);
    const QDate today = context.Clock.Today();
    const QString text = context.Call.Arguments().value(0);
    const cTime time = text.isEmpty() ? cTime{today.year(), today.month()} : ReadTime(text, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cBudgetEdit budget(context.Book->Tools, time.Year);
    if (!budget.IsRead()) {
        modConsole::Error(modUnread::Title());
        return modExit::Failed;
    }
    if (context.Call.Has(u"json"_s)) {
        PrintJson(budget, time);
    } else if (time.Month > 0) {
        PrintMonth(*context.Book, budget, time);
    } else {
        PrintYear(*context.Book, budget, time);
    }
    return modExit::Done;
}

// Stores what was changed; a change that changes nothing says so.
int Save(const cCliContext& context, cBudgetEdit& budget)
{
    const bool isChanged = budget.IsChanged();
    return modCliFlow::Finish(context, budget.IsRead() && isChanged && budget.Save());
}

// The line of a category that can have a budget.
int Row(const cBudgetEdit& budget, const QString& path, cCliReader& reader)
{
    const int row = budget.RowOf(path);
    if (row < 0 && reader.IsGood()) {
        reader.Missing(cText::Tr("'{0}' ist keine Kategorie für Ausgaben und hat kein Budget.", {path}));
    }
    return row;
}

int Set(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    const QString path = reader.Category(call.Arguments().at(0));
    const cTime time = ReadTime(call.Arguments().at(1), reader);
    const QString text = call.Arguments().at(2);
    const std::optional<qint64> cents = cCliReader::IsNone(text) ? std::nullopt : std::optional(reader.Cents(text));
    const cTime only = call.Has(u"only"_s) ? ReadTime(call.Value(u"only"_s), reader) : cTime{};
    if (cents.value_or(0) < 0) {
        reader.Misused(cText::Tr("Ein Limit kann nicht unter null liegen. Bitte geben Sie den Betrag ohne Minus ein."));
    }
    if (call.Has(u"only"_s) && (time.Month > 0 || only.Month == 0 || only.Year != time.Year || !cents)) {
        reader.Misused(cText::Tr("--only nennt den Monat, der den Betrag eines Jahres allein bekommt: "
                                 "\"budget set Versicherung 2026 600 --only 2026-01\"."));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cBudgetEdit budget(context.Book->Tools, time.Year);
    const int row = Row(budget, path, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    if (time.Month > 0) {
        budget.SetMonth(row, time.Month, cents);
    } else {
        budget.SpreadYear(row, cents);
    }
    if (only.Month > 0) {
        budget.KeepYearIn(row, only.Month);
    }
    return Save(context, budget);
}

int Carry(const cCliContext& context)
{
    cCliReader reader(context);
    const QString path = reader.Category(context.Call.Arguments().at(0));
    const QString from = context.Call.Arguments().at(1);
    const bool isOff = from.compare(u"aus"_s, Qt::CaseInsensitive) == 0;
    const cTime time = isOff ? cTime{context.Clock.Today().year()} : ReadTime(from, reader);
    if (time.Month > 0) {
        reader.Misused(cText::Tr("Übertragen wird von einem Januar an. Bitte geben Sie das Jahr an, oder \"aus\"."));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cBudgetEdit budget(context.Book->Tools, time.Year);
    const int row = Row(budget, path, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    budget.SetCarriesOver(row, !isOff);
    return Save(context, budget);
}

int Copy(const cCliContext& context)
{
    cCliReader reader(context);
    const QString text = context.Call.Arguments().value(0);
    const cTime time = text.isEmpty() ? cTime{context.Clock.Today().year()} : ReadTime(text, reader);
    if (time.Month > 0) {
        reader.Misused(cText::Tr("Bitte geben Sie ein Jahr an, zum Beispiel 2026."));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cBudgetEdit budget(context.Book->Tools, time.Year);
    if (budget.TakeLastYear() == 0) {
        modConsole::Error(cText::Tr("Im Jahr {0} wurde in keiner dieser Kategorien etwas ausgegeben.",
                                    {QString::number(time.Year - 1)}));
        return modExit::Failed;
    }
    return Save(context, budget);
}

} // namespace

cCliCommand modCliCommands::BudgetCommand()
{
    return {.Name = u"budget"_s,
            .Arguments = u"[ZEIT]"_s,
            .Help = cText::Tr("zeigt das Budget eines Monats (2026-03) mit dem, was ausgegeben und übrig ist, oder die "
                              "Monate eines Jahres (2026); ohne Angabe den aktuellen Monat"),
            .MaxArguments = 1,
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::BudgetSetCommand()
{
    return {.Name = u"budget set"_s,
            .Arguments = u"PFAD ZEIT BETRAG"_s,
            .Help = cText::Tr("gibt einer Kategorie ein Limit für einen Monat, oder verteilt den Betrag eines Jahres "
                              "auf zwölf Monate; \"ohne\" lässt wieder das Monatslimit gelten"),
            .MinArguments = 3,
            .MaxArguments = 3,
            .Access = eCliAccess::Write,
            .Options = {{u"only"_s, u"MONAT"_s, cText::Tr("der Betrag des Jahres gilt in diesem Monat allein")}},
            .Run = Set};
}

cCliCommand modCliCommands::BudgetCarryCommand()
{
    return {.Name = u"budget carry"_s,
            .Arguments = u"PFAD JAHR"_s,
            .Help = cText::Tr("überträgt, was übrig bleibt, vom Januar dieses Jahres an in den nächsten Monat; \"aus\" "
                              "statt des Jahres beendet das"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Carry};
}

cCliCommand modCliCommands::BudgetCopyCommand()
{
    return {.Name = u"budget copy"_s,
            .Arguments = u"[JAHR]"_s,
            .Help = cText::Tr("macht aus den Ausgaben jedes Monats im Vorjahr das Budget eines Jahres, ohne Angabe des "
                              "aktuellen"),
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Run = Copy};
}
