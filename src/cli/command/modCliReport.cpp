#include "base/cClock.h"
#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/cCliPaint.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "core/cSettings.h"
#include "model/modWord.h"
#include "views/common/modUnread.h"
#include "views/report/cReportExport.h"
#include "views/report/cReportSource.h"
#include "views/report/modReport.h"
#include "views/report/modReportHtml.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The files that a report can become.
struct cTarget
{
    QString Option;
    cReportExport::eFormat Format;
};

QList<cTarget> Targets()
{
    using enum cReportExport::eFormat;
    return {{u"html"_s, Html}, {u"csv"_s, Csv}, {u"xlsx"_s, Xlsx}};
}

// The options with the name of a file that is written.
QStringList FileOptions()
{
    QStringList options{u"pdf"_s};
    for (const cTarget& target : Targets()) {
        options.append(target.Option);
    }
    return options;
}

// The switches of the window do not count here: the same call gives the same figures wherever it is made.
cReportWish ReadWish(const cCliContext& context, cCliReader& reader)
{
    const cCliCall& call = context.Call;
    cReportWish wish;
    const QString name = call.Arguments().join(u' ');
    const std::optional<eReport> type = modReport::TypeByName(name);
    if (!type) {
        reader.Misused(cText::Tr("Den Bericht '{0}' gibt es nicht. Möglich sind: {1}.",
                                 {name, u"durchschnitt, summe, limit, budget, schlagwort"_s}));
    }
    wish.Type = type.value_or(eReport::Sum);
    wish.Range = reader.Period(modWord::AktuellesJahr);
    const QString account = call.Value(u"account"_s);
    wish.Account = account == modWord::AlleKonten ? QString() : reader.Account(account, eCliNames::Used);
    wish.Today = context.Clock.Today();
    wish.ShowsFuture = !call.Has(u"no-future"_s);
    wish.ShowsStart = !call.Has(u"no-start"_s);
    wish.Order = call.Has(u"by-amount"_s) ? eReportOrder::ByAmount : eReportOrder::ByName;
    wish.Spending = call.Has(u"gross"_s) ? eReportSpending::Gross : eReportSpending::Net;
    modCliFlow::CheckTargets(context, reader, FileOptions());
    return wish;
}

cJsonObject& AddAmount(cJsonObject& json, const cReportAmount& amount, eReport type)
{
    json.Amount(u"Amount"_s, amount.Cents);
    if (modReport::HasLimits(type)) {
        json.Amount(u"Limit"_s, amount.Limit);
    }
    if (type == eReport::Budget) {
        json.Amount(u"Carried"_s, amount.Carried).Amount(u"Left"_s, modReport::Left(amount));
    }
    return json.Number(u"Entries"_s, amount.Entries);
}

QString ToJson(const cReportGroup& group, eReport type)
{
    QStringList categories;
    for (const cReportCategory& category : group.Categories) {
        cJsonObject json;
        json.Text(u"Name"_s, category.Name);
        categories.append(AddAmount(json, category.Amount, type).ToString());
    }
    cJsonObject json;
    json.Text(u"Name"_s, group.Name);
    return AddAmount(json, group.Amount, type).Raw(u"Categories"_s, modJson::Array(categories)).ToString();
}

QString ToJson(const cReportSection& section, eReport type)
{
    QStringList groups;
    for (const cReportGroup& group : section.Groups) {
        groups.append(ToJson(group, type));
    }
    cJsonObject json;
    return AddAmount(json, section.Amount, type).Raw(u"Groups"_s, modJson::Array(groups)).ToString();
}

QString ToJson(const cReportFigures& figures, const cReportWish& wish)
{
    cJsonObject json;
    json.Text(u"Report"_s, modReport::Name(figures.Type))
        .Text(u"Account"_s, figures.Account)
        .Date(u"Start"_s, wish.Range.Start)
        .Date(u"End"_s, wish.Range.End);
    if (modReport::HasLimits(figures.Type)) {
        json.Number(u"Months"_s, figures.Basis.Months);
    } else {
        json.Amount(u"Difference"_s, figures.Difference()).Raw(u"Income"_s, ToJson(figures.Income, figures.Type));
    }
    return json.Raw(u"Expense"_s, ToJson(figures.Expense, figures.Type)).ToString() + u'\n';
}

// The lines of a report as a table, section, group and category in a column each.
class cTextReport
{
public:
    cTextReport(const cCliBook& book, const cReportFigures& figures)
        : m_book(book),
          m_figures(figures),
          m_table(Columns(figures.Type))
    {
    }

    [[nodiscard]] QString Write()
    {
        QString text = modReportHtml::Heading(m_figures) + u'\n';
        if (!modReport::HasLimits(m_figures.Type)) {
            text += modReportHtml::Result(m_figures, m_book.Format()) + u'\n';
            Add(m_figures.Income);
        }
        Add(m_figures.Expense);
        const QString note = modReport::Note(m_figures.Type);
        return text + u'\n' + m_table.ToString() + (note.isEmpty() ? note : QString(u'\n' + note + u'\n'));
    }

private:
    [[nodiscard]] static QList<cCliTable::cColumn> Columns(eReport type)
    {
        QList<cCliTable::cColumn> columns{{cText::Tr("Art")},
                                          {modReport::GroupTitle(type)},
                                          {cText::Tr("Kategorie")},
                                          {modReport::AmountTitle(type), eAlign::Right}};
        if (modReport::HasLimits(type)) {
            columns += QList<cCliTable::cColumn>{{cText::Tr("Limit"), eAlign::Right}, {u"%"_s, eAlign::Right}};
        }
        if (type == eReport::Budget) {
            columns +=
                QList<cCliTable::cColumn>{{cText::Tr("Übertrag"), eAlign::Right}, {cText::Tr("Übrig"), eAlign::Right}};
        }
        return columns << cCliTable::cColumn{cText::Tr("Einträge"), eAlign::Right};
    }

    void Add(const cReportSection& section)
    {
        AddLine({modReport::ShownKind(section.Kind), {}, {}}, section.Amount);
        for (const cReportGroup& group : section.Groups) {
            AddLine({{}, group.Label, {}}, group.Amount);
            for (const cReportCategory& category : group.Categories) {
                AddLine({{}, {}, category.Name.isEmpty() ? cText::Tr("Sonstiges") : category.Name}, category.Amount);
            }
        }
    }

    void AddLine(QStringList row, const cReportAmount& amount)
    {
        row << m_book.AmountText(amount.Cents);
        if (modReport::HasLimits(m_figures.Type)) {
            const std::optional<qint64> percent = modReport::LimitPercent(amount);
            row << m_book.AmountText(amount.Limit) << (percent ? QString::number(*percent) : QString());
        }
        if (m_figures.Type == eReport::Budget) {
            row << m_book.AmountText(amount.Carried) << m_book.AmountText(modReport::Left(amount));
        }
        m_table.Add(row << QString::number(amount.Entries));
    }

    const cCliBook& m_book;
    const cReportFigures& m_figures;
    cCliTable m_table;
};

// As it is printed: without links. False after a message.
bool WritePdf(const cCliContext& context, cReportSource& source, cReportWish wish)
{
    wish.Links = eReportLinks::Off;
    return modCliFlow::WriteFile(context, context.Call.Value(u"pdf"_s),
                                 {context.Ports.Paint->PaintReport(source.Html(wish), wish.Today)});
}

// Writes the files that are asked for; their paths, or nothing after a message.
std::optional<QStringList> WriteFiles(const cCliContext& context, cReportSource& source, const cReportWish& wish)
{
    cReportExport writer(context.Book->Tools, source);
    QStringList paths;
    for (const cTarget& target : Targets()) {
        const QString path = context.Call.Value(target.Option);
        if (path.isEmpty()) {
            continue;
        }
        if (writer.WriteFile(wish, target.Format, path) != cReportExport::eDone::Written) {
            return std::nullopt;
        }
        paths.append(path);
    }
    if (context.Call.Has(u"pdf"_s)) {
        if (!WritePdf(context, source, wish)) {
            return std::nullopt;
        }
        paths.append(context.Call.Value(u"pdf"_s));
    }
    return paths;
}

// What was not asked for as a file goes to the console.
int Write(const cCliContext& context, const cReportWish& wish)
{
    cReportSource source(context.Book->Tools);
    if (source.Figures(wish).IsUnread) {
        modConsole::Error(modUnread::Title());
        return modExit::Failed;
    }
    const std::optional<QStringList> paths = WriteFiles(context, source, wish);
    if (!paths) {
        return modExit::Failed;
    }
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(ToJson(source.Figures(wish), wish));
    } else if (paths->isEmpty()) {
        modConsole::Out(cTextReport(*context.Book, source.Figures(wish)).Write());
    } else {
        std::for_each(paths->begin(), paths->end(), modCliFlow::SayWritten);
    }
    return context.User.HasFailed() ? modExit::Failed : modExit::Done;
}

int RunReport(const cCliContext& context)
{
    cCliReader reader(context);
    const cReportWish wish = ReadWish(context, reader);
    return reader.IsGood() ? Write(context, wish) : reader.Report();
}

} // namespace

cCliCommand modCliCommands::ReportCommand()
{
    return {
        .Name = u"report"_s,
        .Arguments = u"BERICHT"_s,
        .Help = cText::Tr(
            "rechnet einen Bericht aus: durchschnitt (je Monat), summe, limit, budget oder schlagwort; ohne Angabe für "
            "das aktuelle Jahr"),
        .MinArguments = 1,
        .MaxArguments = 3, // "Summe aller Werte" without quotes
        .Options = {{u"period"_s, u"NAME"_s, cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\"")},
                    {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
                    {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                    {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                    {u"by-amount"_s, {}, cText::Tr("nach Betrag geordnet statt nach Namen")},
                    {u"gross"_s, {}, cText::Tr("Limit: Ausgaben ohne Abzug von Erstattungen")},
                    {u"no-future"_s, {}, cText::Tr("ohne Einträge nach dem heutigen Tag")},
                    {u"no-start"_s, {}, cText::Tr("ohne Startguthaben")},
                    {u"html"_s, u"DATEI"_s, cText::Tr("schreibt den Bericht als HTML-Seite")},
                    {u"pdf"_s, u"DATEI"_s, cText::Tr("schreibt den Bericht als PDF-Datei")},
                    {u"csv"_s, u"DATEI"_s, cText::Tr("schreibt die Zahlen als CSV-Datei")},
                    {u"xlsx"_s, u"DATEI"_s, cText::Tr("schreibt die Zahlen als Excel-Datei")},
                    Json()},
        .Run = RunReport};
}
