#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/report/cReportExport.h"
#include "views/report/cReportSource.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReport.h"
#include "views/report/modReportExport.h"
#include "views/report/modReportHtml.h"
#include "views/report/modReportLink.h"

#include <QAbstractItemModelTester>

using namespace Qt::Literals::StringLiterals;

namespace {

const modPeriod::cRange year2026{QDate(2026, 1, 1), QDate(2026, 12, 31)};

// Entries from lines "day kind cents path".
cEntryItemList Entries(const QStringList& lines)
{
    cEntryItemList entries;
    for (const QString& line : lines) {
        cEntryItem entry;
        entry.ID = static_cast<int>(entries.size()) + 1;
        entry.EntryDate = QDate::fromString(line.section(u' ', 0, 0), Qt::ISODate);
        entry.EntryType = line.section(u' ', 1, 1);
        entry.EntryValue = line.section(u' ', 2, 2).toLongLong();
        entry.EntryCategory = line.section(u' ', 3);
        entries.append(entry);
    }
    return entries;
}

// Categories from lines "path=monthly limit", with the kind of entry behind it where it is not an expense.
cLimits Limits(const QStringList& lines)
{
    cLimits limits;
    for (const QString& line : lines) {
        cTemplateItem item;
        item.TemplateType = modWord::Kategorie;
        item.TemplateCategory = modTemplate::MainOf(line.section(u'=', 0, 0));
        item.TemplateName = modTemplate::SubOf(line.section(u'=', 0, 0));
        item.TemplateDefaultValue = line.section(u'=', 1, 1);
        item.EntryType = line.section(u'=', 2, 2);
        limits.Add(item, {});
    }
    return limits;
}

cReportWish Wish(eReport type, const modPeriod::cRange& range)
{
    cReportWish wish;
    wish.Type = type;
    wish.Range = range;
    wish.Today = QDate(2026, 3, 15);
    return wish;
}

// "Group 12 (Category 5, Category 7)", the amounts in cents.
QString Plain(const cReportSection& section)
{
    QStringList groups;
    for (const cReportGroup& group : section.Groups) {
        const QStringList categories = Each(group.Categories, [](const cReportCategory& category) {
            return u"%1 %2"_s.arg(category.Label).arg(category.Amount.Cents);
        });
        groups.append(u"%1 %2: %3"_s.arg(group.Label).arg(group.Amount.Cents).arg(categories.join(u", "_s)));
    }
    return groups.join(u" | "_s);
}

// Reports are one line; in the files each box has its own.
QString InLines(QString html)
{
    return html.replace(u"</div>"_s, u"</div>\n"_s);
}

void CompareWithFile(const QString& html, const QString& name)
{
    QFile file(QStringLiteral(TEST_DATA "/report/") + name + u".html"_s);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
    const QStringList expected = QString::fromUtf8(file.readAll()).split(u'\n');
    const QStringList actual = InLines(html).split(u'\n');
    for (qsizetype line = 0; line < qMax(expected.size(), actual.size()); ++line) {
        QCOMPARE(actual.value(line), expected.value(line));
    }
}

} // namespace

// The reports: their figures, their texts to the character, their links, and what is made of them beside the page.
class testReport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Html_data()
    {
        const cTestRows<cReportWish, QStringList, QStringList> row("wish", "entries", "limits");
        const QDate day(2026, 3, 10);
        const modPeriod::cRange oneDay{day, day};
        row("namen", Wish(eReport::Sum, year2026),
            {u"2026-02-01 Einnahme 5000 A&B <b>; \"x|y\" (z)"_s, u"2026-02-01 Ausgabe 1000 Wohnung; Miete"_s,
             u"2026-02-02 Ausgabe 1500 Wohnung"_s, u"2026-02-03 Ausgabe 500 "_s, u"2026-02-03 Ausgabe 2500 ; Allein"_s},
            {});
        cReportWish print = Wish(eReport::Sum, oneDay);
        print.Links = eReportLinks::Off;
        print.Account = u"Rosi's <Konto>"_s;
        row("druck", print, {u"2026-03-10 Ausgabe 1234567 Wohnung; Miete"_s}, {});
        row("ein-tag", Wish(eReport::Average, oneDay),
            {u"2026-03-10 Einnahme 3000 Lohn; Gehalt"_s, u"2026-03-10 Ausgabe 1000 Wohnung; Miete"_s}, {});
        row("schaltjahr", Wish(eReport::Average, {QDate(2024, 1, 1), QDate(2024, 12, 31)}),
            {u"2024-02-29 Ausgabe 120000 Wohnung; Miete"_s, u"2024-03-01 Einnahme 120000 Lohn; Gehalt"_s}, {});
        row("offen", Wish(eReport::Average, {}), {u"2026-03-10 Ausgabe 120000 Wohnung; Miete"_s}, {});
        row("limits", Wish(eReport::Limit, modPeriod::Month(day, 0)),
            {u"2026-03-01 Ausgabe 450 A; 045"_s, u"2026-03-01 Ausgabe 1000 A; 100"_s,
             u"2026-03-01 Ausgabe 1004 A; 100,4"_s, u"2026-03-01 Ausgabe 1500 A; 150"_s,
             u"2026-03-01 Ausgabe 1800 A; 180"_s, u"2026-03-01 Ausgabe 2500 A; 250"_s,
             u"2026-03-01 Einnahme 500 A; erstattet"_s},
            {u"A; 000=10.00"_s, u"A; 045=10.00"_s, u"A; 100=10.00"_s, u"A; 100,4=10.00"_s, u"A; 150=10.00"_s,
             u"A; 180=10.00"_s, u"A; 250=10.00"_s, u"A; erstattet=10.00"_s, u"A; ohne="_s});
    }

    void Html()
    {
        QFETCH(cReportWish, wish);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, limits);
        const cTestFormat format;
        const cReportFigures figures = modReport::Figures(Entries(entries), Limits(limits), wish);
        CompareWithFile(modReportHtml::Html(figures, wish, format.Format), QString::fromUtf8(QTest::currentDataTag()));
    }

    void Figures_data()
    {
        const cTestRows<cReportWish, QStringList, QStringList, QString, QString> row("wish", "entries", "limits",
                                                                                     "income", "expense");
        const QStringList none;
        cReportWish sum = Wish(eReport::Sum, year2026);
        row("German order, numbers as numbers", sum,
            {u"2026-01-01 Ausgabe 1 Zoo 10; B"_s, u"2026-01-01 Ausgabe 6 Zoo 2; B"_s,
             u"2026-01-01 Ausgabe 2 Ärzte; Ö"_s, u"2026-01-01 Ausgabe 3 Auto; C"_s, u"2026-01-01 Ausgabe 4 Auto"_s,
             u"2026-01-01 Ausgabe 5 Auto; Zubehör"_s},
            none, {},
            u"Ärzte 2: Ö (Ärzte) 2 | Auto 12: C (Auto) 3, Sonstiges (Auto) 4, Zubehör (Auto) "
            "5 | Zoo 2 6: B (Zoo 2) 6 | Zoo 10 1: B (Zoo 10) 1"_s);
        sum.Order = eReportOrder::ByAmount;
        row("by amount", sum,
            {u"2026-01-01 Ausgabe 1 A; X"_s, u"2026-01-01 Ausgabe 4 B; Y"_s, u"2026-01-01 Ausgabe 3 A; Z"_s,
             u"2026-01-01 Ausgabe 2 C; A"_s},
            none, {}, u"A 4: Z (A) 3, X (A) 1 | B 4: Y (B) 4 | C 2: A (C) 2"_s);
        sum.Order = eReportOrder::ByName;
        const QStringList mixed{u"2026-01-01 Einnahme 700 Allgemein; Startguthaben"_s,
                                u"2026-01-01 Umbuchung 900 Sparen; Rücklage"_s,
                                u"2026-01-01 Einnahme 20 A; X"_s,
                                u"2026-01-01 Ausgabe 50 A; X"_s,
                                u"2026-01-02 Ausgabe 7 Keine Angabe"_s,
                                u"2026-01-02 Ausgabe 6 "_s};
        row("transfers never, start balances shown", sum, mixed, none,
            u"A 20: X (A) 20 | Allgemein 700: Startguthaben (Allgemein) 700"_s,
            u"A 50: X (A) 50 | Keine Angabe 13: Sonstiges (Keine Angabe) 13"_s);
        sum.ShowsStart = false;
        row("start balances hidden", sum, mixed, none, u"A 20: X (A) 20"_s,
            u"A 50: X (A) 50 | Keine Angabe 13: Sonstiges (Keine Angabe) 13"_s);
        row("averages know no start balances", Wish(eReport::Average, year2026), {mixed.constFirst()}, none, {}, {});
        const QStringList limits{u"A; X=1.00"_s, u"A; Y=0"_s, u"A; Z=2,50"_s, u"Lohn; Gehalt=2500=Einnahme"_s};
        cReportWish limit = Wish(eReport::Limit, modPeriod::Month(QDate(2026, 1, 1), 0));
        row("refunds lessen what was spent", limit, mixed, limits, {}, u"A 30: X (A) 30, Z (A) 0"_s);
        limit.Spending = eReportSpending::Gross;
        row("gross", limit, mixed, limits, {}, u"A 50: X (A) 50, Z (A) 0"_s);
    }

    void Figures()
    {
        QFETCH(cReportWish, wish);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, limits);
        const cReportFigures figures = modReport::Figures(Entries(entries), Limits(limits), wish);
        QTEST(Plain(figures.Income), "income");
        QTEST(Plain(figures.Expense), "expense");
    }

    // What comes every month is its own average, however the period is chosen: open sides are those of the entries that
    // count.
    void AveragesOfOpenPeriods_data()
    {
        const cTestRows<modPeriod::cRange> row("range");
        row("open", {});
        row("up to today", {QDate(1001, 1, 1), QDate(2026, 12, 31)});
        row("open end", {QDate(2025, 1, 1), {}});
        row("two years", {QDate(2025, 1, 1), QDate(2026, 12, 31)});
    }

    void AveragesOfOpenPeriods()
    {
        QFETCH(modPeriod::cRange, range);
        QStringList lines{u"1999-01-01 Einnahme 700 Allgemein; Startguthaben"_s, u"2040-01-01 Umbuchung 900 Sparen"_s};
        for (QDate day(2025, 1, 28); day.year() < 2027; day = day.addMonths(1)) {
            lines.append(day.toString(Qt::ISODate) + u" Ausgabe 100000 Wohnung; Miete"_s);
        }
        const cReportFigures figures = modReport::Figures(Entries(lines), {}, Wish(eReport::Average, range));
        QCOMPARE(Plain(figures.Expense), u"Wohnung 100000: Miete (Wohnung) 100000"_s);
    }

    void MonthsOfALimit_data()
    {
        const cTestRows<modPeriod::cRange, int> row("range", "months");

        row("open: the months with entries", {}, 4);
        row("up to today", {QDate(1001, 1, 1), QDate(2026, 6, 1)}, 5);
        row("open end", {QDate(2026, 1, 1), {}}, 5);
    }

    void MonthsOfALimit()
    {
        QFETCH(modPeriod::cRange, range);
        const cEntryItemList entries = Entries({u"2026-05-01 Ausgabe 1 A; X"_s, u"2026-02-28 Ausgabe 1 A; X"_s});
        QTEST(modReport::Figures(entries, {}, Wish(eReport::Limit, range)).Basis.Months, "months");
    }

    void Links_data()
    {
        using namespace modReportLink;
        const cTestRows<QString, cLink> row("text", "link");
        const modPeriod::cRange range{QDate(2026, 1, 1), QDate(2026, 1, 31)};
        const auto shown = [&](const cReportNode& node, const QString& path) {
            return cLink(cShowEntries{node, node, range, {}, path});
        };
        const QString head = u"SHOWENTRIES://Ausgaben|01.01.2026|31.01.2026|Alle%20Konten|"_s;
        const cReportNode car{eReportKind::Expense, u"Auto"_s, u"Neue Reifen"_s};
        const cReportNode group{eReportKind::Expense, u"Auto"_s};
        row("blanks as codes", head + u"Auto;%20Neue%20Reifen"_s, shown(car, u"Auto; Neue Reifen"_s));
        row("slash at the end", head + u"Auto; Neue Reifen/"_s, shown(car, u"Auto; Neue Reifen"_s));
        row("group", head + u"Auto; "_s, shown(group, u"Auto"_s));
        row("group, blank lost", head + u"Auto;/"_s, shown(group, u"Auto"_s));
        row("other letter case", QString(head).replace(u"SHOWENTRIES"_s, u"showEntries"_s) + u"Auto;"_s,
            shown(group, u"Auto"_s));
        row("parenthesis", head + u"Auto; Steuer (Kfz)"_s,
            cLink(cShowEntries{{eReportKind::Expense, u"Auto"_s, u"Steuer (Kfz)"_s},
                               {eReportKind::Expense, u"Auto"_s, u"Steuer"_s},
                               range,
                               {},
                               u"Auto; Steuer (Kfz)"_s}));
        row("account", u"SHOWENTRIES://Einnahmen|01.01.2026|31.01.2026|Giro|Lohn; Gehalt"_s,
            cLink(cShowEntries{{eReportKind::Income, u"Lohn"_s, u"Gehalt"_s},
                               {eReportKind::Income, u"Lohn"_s, u"Gehalt"_s},
                               range,
                               u"Giro"_s,
                               u"Lohn; Gehalt"_s}));
        row("printed", u"SHOWENTRIES://||||"_s, {});
        row("four fields", u"SHOWENTRIES://Ausgaben|01.01.2026|31.01.2026|Giro"_s, {});
        row("category", u"editcategory://Auto;%20Steuer/"_s, cLink(cEditCategory{u"Auto; Steuer"_s}));
        row("page", u"http://example.org/a%20b"_s, cLink(cOpenPage{u"http://example.org/a%20b"_s}));
        row("something else", u"file:///etc/passwd"_s, {});
    }

    void Links()
    {
        QFETCH(QString, text);
        QTEST(modReportLink::Parse(text), "link");
    }

    // Also with names that hold what the link itself is made of.
    void LinksLeadBackToTheirLines()
    {
        for (const QString& name : {u"Essen"_s, u"a|b"_s, u"Essen/Trinken/"_s, u"100%20"_s, u"5 % %25%2520"_s,
                                    u"X (Y)"_s, u"B; C"_s, u"Blank "_s, QString()}) {
            modReportLink::cLine line;
            line.Range = year2026;
            line.Account = u"Konto|1/"_s;
            line.Group = u"Haus"_s;
            line.Category = name;
            const modReportLink::cLink link = modReportLink::Parse(modReportLink::ShowEntries(line));
            const auto* shown = std::get_if<modReportLink::cShowEntries>(&link);
            QVERIFY2(shown != nullptr, qPrintable(name));
            QCOMPARE(shown->Node.Group, u"Haus"_s);
            QCOMPARE(shown->Node.Category.value_or(QString()), name);
            QCOMPARE(shown->Account, u"Konto|1/"_s);
            QCOMPARE(shown->Range, year2026);
        }
    }

    // An entry with two tags stands in both groups and once in the sums; what has none comes last.
    void TagsCountInEach()
    {
        cEntryItemList entries =
            Entries({u"2026-02-01 Ausgabe 10000 Reisen; Hotel"_s, u"2026-02-02 Ausgabe 2500 Haushalt"_s,
                     u"2026-02-03 Ausgabe 4000 "_s, u"2026-02-04 Einnahme 700 Reisen; Hotel"_s,
                     u"2026-02-05 Umbuchung 9900 Geldanlage"_s});
        const QStringList texts{u"Hotel #Urlaub #urlaub #kinder"_s, u"Eis #kinder"_s, u"Los #1"_s, u"zurück #URLAUB"_s,
                                u"#urlaub"_s};
        for (qsizetype i = 0; i < entries.size(); ++i) {
            entries[i].EntryDescription = texts.at(i);
        }
        const cTestFormat format;
        const cReportWish wish = Wish(eReport::Tag, year2026);
        const cReportFigures figures = modReport::Figures(entries, {}, wish);
        QCOMPARE(Plain(figures.Expense),
                 u"#kinder 12500: Haushalt 2500, Reisen; Hotel 10000 | #Urlaub 10000: Reisen; Hotel "
                 "10000 | ohne Schlagwort 4000: Keine Angabe 4000"_s);
        QCOMPARE(Plain(figures.Income), u"#Urlaub 700: Reisen; Hotel 700"_s);
        QCOMPARE(figures.Expense.Amount, (cReportAmount{.Cents = 16500, .Sum = 16500, .Entries = 3}));
        QVERIFY(modReportHtml::Html(figures, wish, format.Format).contains(modReport::Note(eReport::Tag)));
        for (const cReportSection* section : {&figures.Income, &figures.Expense}) {
            for (const cReportGroup& group : section->Groups) {
                const cReportNode node{section->Kind, group.Name};
                QCOMPARE(modReport::EntriesOf(entries, wish, node).size(), group.Amount.Entries);
                for (const cReportCategory& category : group.Categories) {
                    const cReportNode part{section->Kind, group.Name, category.Name};
                    QCOMPARE(modReport::EntriesOf(entries, wish, part).size(), category.Amount.Entries);
                }
            }
        }
    }

    void Tree()
    {
        const cTestFormat format;
        cReportTreeModel tree(format.Format);
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const cEntryItemList entries =
            Entries({u"2026-01-01 Einnahme 700 Lohn; Gehalt"_s, u"2026-01-01 Ausgabe 50 A; X"_s,
                     u"2026-01-01 Ausgabe 30 A"_s, u"2026-01-01 Ausgabe 20 A; X"_s});
        tree.SetFigures(modReport::Figures(entries, {}, Wish(eReport::Sum, year2026)));
        QCOMPARE(tree.rowCount(), 2);
        QCOMPARE(tree.columnCount(), 2);
        const cReportNode node{eReportKind::Expense, u"A"_s, u"X"_s};
        const QModelIndex found = tree.FindNode(node);
        QVERIFY(found.isValid());
        QCOMPARE(tree.NodeAt(found), node);
        QCOMPARE(found.siblingAtColumn(cReportTreeModel::Amount).data().toString(), format.Format.Cents(70));
        QCOMPARE(found.parent(), tree.FindNode({eReportKind::Expense, u"A"_s}));
        QCOMPARE(found.parent().parent(), tree.index(1, 0));
        // What is booked on the main category itself is not the main category as a whole.
        QCOMPARE(tree.FindNode({eReportKind::Expense, u"A"_s, QString()}).data().toString(), u"Sonstiges"_s);
        QVERIFY(!tree.FindNode({eReportKind::Income, u"A"_s, u"X"_s}).isValid());
        cReportWish limit = Wish(eReport::Limit, modPeriod::Month(QDate(2026, 1, 1), 0));
        tree.SetFigures(modReport::Figures(entries, Limits({u"A; X=0.50"_s}), limit));
        QCOMPARE(tree.rowCount(), 1);
        QCOMPARE(tree.FindNode(node).siblingAtColumn(cReportTreeModel::Limit).data().toString(),
                 format.Format.Cents(50));
    }

    void SourceAsksOnce()
    {
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem&) {});
        cReportSource source(book.Tools);
        cReportWish wish = Wish(eReport::Sum, year2026);
        QCOMPARE(source.Figures(wish).Expense.Amount.Cents, 1000);
        QVERIFY(book.Data.DeleteEntry(entry.ID)); // nobody has told the source
        wish.Type = eReport::Average;
        wish.Order = eReportOrder::ByAmount;
        QCOMPARE(source.Figures(wish).Expense.Amount.Sum, 1000);
        wish.Account = u"Girokonto"_s;
        QCOMPARE(source.Figures(wish).Expense.Amount.Sum, 0);
        wish.Account.clear();
        source.Forget();
        QCOMPARE(source.Figures(wish).Expense.Amount.Sum, 0);
    }

    void SumsGiveTheFiguresOfTheirEntries_data()
    {
        const cTestRows<QString> row("change");
        row("plain days", {});
        row("a day that only the database reads", u"EntryDate = '2026-04-05 10:00' WHERE ID = 3"_s);
        row("a day that nobody reads", u"EntryDate = '2026-1-5' WHERE ID = 3"_s);
        row("a series that nobody can place", u"EntryDate = 'bald' WHERE EntryInterval = 'Monatlich'"_s);
        row("no category", u"EntryCategory = NULL WHERE ID = 3"_s);
    }

    // What the database adds up by itself makes the same report, to the month and the spelling of a tag.
    void SumsGiveTheFiguresOfTheirEntries()
    {
        QFETCH(const QString, change);
        cTestBook book;
        const QList<std::pair<QDate, QString>> written{{QDate(2026, 7, 1), u"#Urlaub"_s},
                                                       {QDate(2026, 3, 9), u"#Urlaub"_s},
                                                       {QDate(2026, 2, 8), u"#urlaub 'n' #Meer"_s}};
        for (const auto& each : written) {
            book.Spend(each.first, 1000, each.second);
        }
        book.Add([](cEntryItem& entry) { entry.EntryType = modWord::Umbuchung; });
        book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 1, 31);
            entry.EntryDateEnd = QDate(2026, 5, 31);
            entry.EntryType = modWord::Einnahme;
            entry.EntryInterval = u"Monatlich"_s;
            entry.EntryDescription = u"#MEER"_s;
        });
        if (!change.isEmpty()) {
            book.Database.ExecuteScript("UPDATE data SET " + change.toStdString());
        }
        for (const modPeriod::cRange& range : {year2026, modPeriod::Month(QDate(2026, 3, 1), 0), modPeriod::cRange{}}) {
            const cEntryQuery query{range.Start, range.End, {}, {}, {}, eBookingKind::All};
            for (const eReport type : {eReport::Sum, eReport::Average, eReport::Tag}) {
                const cReportFigures figures = modReport::Figures(book.Data.GetEntries(query), {}, Wish(type, range));
                QCOMPARE(figures.Expense.Groups.isEmpty(), false);
                QCOMPARE(modReport::Figures(book.Data.GetCategorySums(query), {}, Wish(type, range)), figures);
            }
        }
    }

    void Tables()
    {
        const cReportWish wish = Wish(eReport::Limit, modPeriod::Month(QDate(2026, 1, 1), 0));
        const cEntryItemList entries = Entries({u"2026-01-01 Ausgabe 123456 @A; X;Y"_s, u"2026-01-01 Ausgabe 5 @A"_s});
        const cReportFigures figures = modReport::Figures(entries, Limits({u"@A; X;Y=10.00"_s, u"@A; Z=1.00"_s}), wish);
        QCOMPARE(modReportExport::Csv(figures),
                 QByteArray("\xEF\xBB\xBF"
                            "Art;Sparte;Kategorie;Ausgegeben;Limit;Einträge\r\n"
                            "Ausgaben;'@A;\"X;Y\";1234,56;10,00;1\r\n"
                            "Ausgaben;'@A;Z;0,00;1,00;0\r\n"));
        cReportWish plan = wish;
        plan.Type = eReport::Budget;
        QCOMPARE(modReportExport::Csv(modReport::Figures(entries, Limits({u"@A; X;Y=10.00"_s}), plan)),
                 QByteArray("\xEF\xBB\xBF"
                            "Art;Sparte;Kategorie;Budget;Übertrag;Ausgegeben;Übrig;Einträge\r\n"
                            "Ausgaben;'@A;\"X;Y\";10,00;0,00;1234,56;-1224,56;1\r\n"));
    }

    void SavedByEnding()
    {
        cTestBook book;
        book.Add([](cEntryItem&) {});
        const cTestFile folder;
        cReportSource source(book.Tools);
        cReportExport writer(book.Tools, source);
        const cReportWish wish = Wish(eReport::Sum, year2026);
        const QList<std::pair<QString, QByteArray>> files{
            {u"a.html"_s, "<!DOCTYPE html>"}, {u"b.csv"_s, "\xEF\xBB\xBF\x41rt;"}, {u"c.xlsx"_s, "PK"}};
        for (const auto& [name, start] : files) {
            book.User.SavePath = folder.Path(name);
            QCOMPARE(writer.Run(wish), cReportExport::eDone::Written);
            QVERIFY2(cTestFile::Bytes(book.User.SavePath).startsWith(start), qPrintable(name));
        }
        book.User.SavePath = folder.Path(u"d.doc"_s);
        QCOMPARE(writer.Run(wish), cReportExport::eDone::Failed);
        QVERIFY(!QFile::exists(book.User.SavePath));
    }
};

TEST_CLASS(testReport, QCoreApplication)
#include "testReport.moc"
