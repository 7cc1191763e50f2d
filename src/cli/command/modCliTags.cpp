#include "base/cClock.h"
#include "base/cText.h"
#include "cli/argument/modCliSelection.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/export/modCsv.h"
#include "views/report/modReport.h"
#include "views/report/modTagSums.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Titles()
{
    return {cText::Tr("Schlagwort"), cText::Tr("Einnahmen"), cText::Tr("Ausgaben"), cText::Tr("Saldo"),
            cText::Tr("Einträge")};
}

QString ToJson(const QList<cTagSum>& sums)
{
    QStringList tags;
    for (const cTagSum& sum : sums) {
        cJsonObject json;
        json.Text(u"Tag"_s, sum.Name == modReport::NoTag ? QString() : sum.Label)
            .Amount(u"Income"_s, sum.Income)
            .Amount(u"Expense"_s, sum.Expense)
            .Number(u"Entries"_s, sum.Entries);
        tags.append(json.ToString());
    }
    return modJson::Array(tags) + u'\n';
}

QString ToCsv(const QList<cTagSum>& sums)
{
    QByteArray bytes = modCsv::Mark + modCsv::Line(Titles());
    for (const cTagSum& sum : sums) {
        bytes += modCsv::Line({modCsv::Text(sum.Label), modCsv::Money(sum.Income), modCsv::Money(sum.Expense),
                               modCsv::Money(sum.Income - sum.Expense), QString::number(sum.Entries)});
    }
    return QString::fromUtf8(bytes);
}

QString ToTable(const QList<cTagSum>& sums, const cCliBook& book)
{
    QList<cCliTable::cColumn> columns;
    const QStringList titles = Titles();
    for (const QString& title : titles) {
        columns.append({title, columns.isEmpty() ? eAlign::Left : eAlign::Right});
    }
    cCliTable table(columns);
    for (const cTagSum& sum : sums) {
        table.Add({sum.Label, book.AmountText(sum.Income), book.AmountText(sum.Expense),
                   book.AmountText(sum.Income - sum.Expense), QString::number(sum.Entries)});
    }
    return table.ToString() + u'\n' + modReport::Note(eReport::Tag) + u'\n';
}

int RunTags(const cCliContext& context)
{
    const modCliSelection::cSelection selection = modCliSelection::Read(context);
    if (selection.Code != modExit::Done) {
        return selection.Code;
    }
    cReportWish wish;
    wish.Type = eReport::Tag;
    wish.Range = selection.Days;
    wish.Today = context.Clock.Today();
    const QList<cTagSum> sums = modTagSums::Of(modReport::Figures(selection.Entries, {}, wish));
    modConsole::Out(context.Call.Has(u"json"_s)      ? ToJson(sums)
                        : context.Call.Has(u"csv"_s) ? ToCsv(sums)
                                                     : ToTable(sums, *context.Book));
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::TagsCommand()
{
    return {.Name = u"tags"_s,
            .Help = cText::Tr("zeigt die Schlagwörter (Wörter mit # in Beschreibungen) mit ihren Summen; ohne Angabe "
                              "für das aktuelle Jahr"),
            .Options = modCliSelection::Options()
                << Json() << cCliOption{u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")},
            .Run = RunTags};
}
