#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"
#include "model/modFlags.h"
#include "model/modPeriod.h"
#include "model/modWord.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testRecords final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PeriodNames_data() const
    {
        const cTestRows<QDate, QDate, QDate> row("today", "start", "end");
        const QDate march(2024, 3, 31);
        const QDate january(2024, 1, 15);
        const QDate november(2024, 11, 30);
        row("Alle Buchungen", march, {}, {});
        row("Aktueller Tag", march, march, march);
        row("Buchungen bis heute", march, QDate(1001, 1, 1), march);
        row("Aktueller Monat", march, QDate(2024, 3, 1), march);
        row("Aktuelles Quartal", march, QDate(2024, 1, 1), march);
        row("Aktuelles Jahr", march, QDate(2024, 1, 1), QDate(2024, 12, 31));
        row("Letzter Monat", march, QDate(2024, 2, 1), QDate(2024, 2, 29));
        row("Letztes Quartal", january, QDate(2023, 10, 1), QDate(2023, 12, 31));
        row("Letztes Jahr", january, QDate(2023, 1, 1), QDate(2023, 12, 31));
        row("Nächster Monat", november, QDate(2024, 12, 1), QDate(2024, 12, 31));
        row("Nächstes Quartal", november, QDate(2025, 1, 1), QDate(2025, 3, 31));
        row("Nächstes Jahr", november, QDate(2025, 1, 1), QDate(2025, 12, 31));
        row("Freier Zeitraum", march, QDate(2020, 5, 5), QDate(2020, 6, 6));
    }

    void PeriodNames() const
    {
        QFETCH(const QDate, today);
        QFETCH(const QDate, start);
        QFETCH(const QDate, end);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        const modPeriod::cRange expected{start, end};
        QVERIFY(modPeriod::Range(name, today, {QDate(2020, 5, 5), QDate(2020, 6, 6)}) == expected);
        QVERIFY(modWord::Periods().Contains(name));
    }

    void CategoryPaths_data() const
    {
        const cTestRows<QString, QString, QString> row("category", "name", "path");
        row("nothing", {}, {}, u"Keine Angabe"_s);
        row("sub-category alone", {}, u"Lotto"_s, u"Sonstiges; Lotto"_s);
        row("main category alone", u"Haushalt"_s, {}, u"Haushalt"_s);
        row("both", u"Haushalt"_s, u"Strom"_s, u"Haushalt; Strom"_s);
    }

    void CategoryPaths() const
    {
        QFETCH(const QString, category);
        QFETCH(const QString, name);
        QFETCH(const QString, path);
        cTemplateItem item;
        item.TemplateCategory = category;
        item.TemplateName = name;
        QCOMPARE(modTemplate::Path(item), path);
    }

    void TemplateTexts() const
    {
        QCOMPARE(modTemplate::CleanName(u"Haus & Garten; <'\"x>"_s), u"Haus  Garten x"_s);
        cTemplateItem item;
        item.TemplateVisible = u"nein"_s;
        item.TemplatePriority = u"hoch"_s;
        item.TemplateDefaultValue = u"12,5"_s;
        QVERIFY(modTemplate::IsVisible(item));
        QCOMPARE(modTemplate::Priority(item), 0);
        QCOMPARE(modTemplate::DefaultValueCents(item), 1250);
    }

    void ValueOfACategoryByItsInterval_data() const
    {
        const cTestRows<QString, QString, qint64, qint64> row("kind", "interval", "proposed", "limitOfAYear");
        row("a month's limit", modWord::Ausgabe, modWord::Einmalig, 0, 120'000);
        row("monthly", modWord::Ausgabe, u"Monatlich"_s, 10'000, 120'000);
        row("yearly", modWord::Ausgabe, u"Jährlich"_s, 10'000, 10'000);
        row("quarterly", modWord::Ausgabe, u"Alle 3 Monate"_s, 10'000, 40'000);
        row("weekly", modWord::Ausgabe, u"Wöchentlich"_s, 10'000, 520'000);
        row("income", modWord::Einnahme, u"Monatlich"_s, 10'000, 0);
        row("word of a filter", {}, u"Alle"_s, 0, 120'000);
    }

    void ValueOfACategoryByItsInterval() const
    {
        QFETCH(const QString, kind);
        QFETCH(const QString, interval);
        cTemplateItem item;
        item.EntryType = kind;
        item.EntryInterval = interval;
        item.TemplateDefaultValue = u"100"_s;
        QTEST(modTemplate::ProposedCents(item), "proposed");
        QTEST(modTemplate::LimitCents(item, 12), "limitOfAYear");
    }

    void FlagsKeepUnknownParts() const
    {
        const QString flags = modFlags::Set(u"farbe=rot;Notiz;split=3"_s, u"split"_s, u"4"_s);
        QCOMPARE(modFlags::Get(flags, u"split"_s), u"4"_s);
        QCOMPARE(modFlags::Set(flags, u"split"_s, {}), u"farbe=rot;Notiz"_s);
        QCOMPARE(modFlags::Get(u"splitter=1"_s, u"split"_s), QString());
    }

    void StagedRowIsNormalised() const
    {
        cImportEntry entry;
        entry.ImportBeneficiary = u"O'Brien"_s;
        entry.ImportPurpose = u"it's"_s;
        entry.ImportAssigned = true;
        entry.ImportAssignedEntry = 4;
        QVERIFY(entry.Validate());
        QCOMPARE(entry.ImportBeneficiary, u"OBrien"_s);
        QCOMPARE(entry.ImportPurpose, u"it's"_s);
        QVERIFY(!entry.ImportAssigned);
        QCOMPARE(entry.ImportAssignedEntry, -1);
    }

    void Duplicates_data() const
    {
        using fnChange = void (*)(cImportEntry&);
        QTest::addColumn<fnChange>("change");
        QTest::addColumn<bool>("isDuplicate");
        const auto add = [](const char* name, fnChange change, bool isDuplicate) {
            QTest::newRow(name) << change << isDuplicate;
        };
        add(
            "same", [](cImportEntry&) {}, true);
        add(
            "other booking text", [](cImportEntry& row) { row.ImportType = u"Lastschrift"_s; }, true);
        add(
            "other currency", [](cImportEntry& row) { row.ImportCurrency = u"USD"_s; }, true);
        add(
            "other day", [](cImportEntry& row) { row.ImportDate = row.ImportDate.addDays(1); }, false);
        add(
            "other case", [](cImportEntry& row) { row.ImportPurpose = u"MIETE"_s; }, false);
        add(
            "other bank", [](cImportEntry& row) { row.ImportBeneficiaryBLZ = u"1"_s; }, false);
        add(
            "other amount", [](cImportEntry& row) { row.ImportValue += 1; }, false);
    }

    void Duplicates() const
    {
        using fnChange = void (*)(cImportEntry&);
        QFETCH(const fnChange, change);
        QFETCH(const bool, isDuplicate);
        cImportEntry first;
        first.ImportDate = QDate(2024, 1, 1);
        first.ImportPurpose = u"Miete"_s;
        first.ImportValue = -50000;
        cImportEntry second = first;
        change(second);
        QCOMPARE(first.isEqual(second), isDuplicate);
    }

    void ViewWordsBecomeQueryWords() const
    {
        QCOMPARE(modWord::QueryType(u"Umbuchung"_s), u"Umbuchungen"_s);
        QCOMPARE(modWord::QueryType(u"Alle Buchungsarten"_s), u"Alle Buchungen"_s);
    }
};

TEST_CLASS(testRecords, QCoreApplication)
#include "testRecords.moc"
