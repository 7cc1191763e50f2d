#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"
#include "model/modCutText.h"
#include "model/modFlags.h"
#include "model/modPeriod.h"
#include "model/modWord.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cImportEntry Row(qint64 value, const QString& purpose, const QString& beneficiary = {})
{
    cImportEntry row;
    row.ImportValue = value;
    row.ImportPurpose = purpose;
    row.ImportBeneficiary = beneficiary;
    return row;
}

} // namespace

class testRecords final : public QObject
{
    Q_OBJECT

    using fnChange = void (*)(cImportEntry&);

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
        cTemplateItem item;
        item.TemplateCategory = category;
        item.TemplateName = name;
        QTEST(modTemplate::Path(item), "path");
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
        const cTestRows<bool, fnChange> row("isDuplicate", "change");
        row("same", true, [](cImportEntry&) {});
        row("other booking text", true, [](cImportEntry& each) { each.ImportType = u"Lastschrift"_s; });
        row("other currency", true, [](cImportEntry& each) { each.ImportCurrency = u"USD"_s; });
        row("other day", false, [](cImportEntry& each) { each.ImportDate = each.ImportDate.addDays(1); });
        row("other case", false, [](cImportEntry& each) { each.ImportPurpose = u"MIETE"_s; });
        row("other account", false, [](cImportEntry& each) { each.ImportAccount = u"a"_s; });
        row("other name", false, [](cImportEntry& each) { each.ImportBeneficiary = u"x"_s; });
        row("other counterparty", false, [](cImportEntry& each) { each.ImportBeneficiaryAccount = u"x"_s; });
        row("other bank", false, [](cImportEntry& each) { each.ImportBeneficiaryBLZ = u"1"_s; });
        row("other amount", false, [](cImportEntry& each) { each.ImportValue += 1; });
    }

    void Duplicates() const
    {
        QFETCH(const fnChange, change);
        cImportEntry first;
        first.ImportDate = QDate(2024, 1, 1);
        first.ImportAccount = u"A"_s;
        first.ImportPurpose = u"Miete"_s;
        first.ImportValue = -50000;
        cImportEntry second = first;
        change(second);
        QTEST(first.isEqual(second), "isDuplicate");
    }

    void Similar_data() const
    {
        const cTestRows<cImportEntry, cImportEntry, double> row("row", "other", "score");
        const cImportEntry rent = Row(-650, u"Miete Talstrasse 5"_s, u"Tann"_s);
        row("equal expenses", rent, Row(-9, u"Miete Talstrasse 5"_s, u"Tann"_s), 1.025);
        row("without purposes", Row(-1, {}, u"Tann"_s), Row(-2, {}, u"tann"_s), 1.025);
        row("other payee", rent, Row(-650, u"Miete Talstrasse 5"_s, u"Ohlig"_s), 0.525);
        row("the first letters in another case", rent, Row(-1, u"MIETE Talstrasse 5"_s, u"Tann"_s), 1.0);
        row("expense beside income", rent, Row(650, u"Miete Talstrasse 5"_s, u"Tann"_s), 0.0);
        row("nothing beside income", Row(0, u"A"_s), Row(1, u"A"_s), 0.0);
        row("income goes by its amount", Row(100, u"abcd"_s, u"X"_s), Row(80, u"efgh"_s, u"X"_s), 0.4);
        row("the larger one first or last", Row(80, u"abcd"_s), Row(100, u"abcf"_s), 0.775);
    }

    void Similar() const
    {
        QFETCH(const cImportEntry, row);
        QFETCH(const cImportEntry, other);
        QFETCH(const double, score);
        QCOMPARE(row.isSimilar(other), score);
        QCOMPARE(other.isSimilar(row), score);
    }

    void ClosesCuts_data()
    {
        const cTestRows<QString, QString> row("text", "closed");
        // Names: 27 characters, then the rest.
        row("name", u"Steuerberatung Lindner & Sö hne"_s, u"Steuerberatung Lindner & Söhne"_s);
        row("two words of a name", u"Sportverein Talheim Abtlung fuer Rudern"_s,
            u"Sportverein Talheim Abtlung fuer Rudern"_s);
        row("ordinary word", u"Hausverwaltung Tannert Buch und Sohn"_s, u"Hausverwaltung Tannert Buch und Sohn"_s);
        row("legal form", u"Gesellschaft Technik Süd AB mbH"_s, u"Gesellschaft Technik Süd AB mbH"_s);
        row("short", u"Lindner & Sö hne"_s, u"Lindner & Sö hne"_s);
    }

    void ClosesCuts()
    {
        QFETCH(QString, text);
        QTEST(modCutText::Name(text), "closed");
    }

    void ClosesPurposes_data()
    {
        const cTestRows<QString, QString> row("text", "closed");
        row("without keyword", u"Abschlag fuer Oktober Wasse rwerk"_s, u"Abschlag fuer Oktober Wasserwerk"_s);
        row("first piece has lost its keyword", u"Strukturierter Verwend ungszweck 4711"_s,
            u"Strukturierter Verwendungszweck 4711"_s);
        row("punctuation", u"Miete Januar Lindenweg , Garage"_s, u"Miete Januar Lindenweg, Garage"_s);
        row("several pieces, small letters before",
            u"ueberweisung mit vr-ne tworld und noch ein lang zw eck der weitergeht"_s,
            u"ueberweisung mit vr-networld und noch ein lang zweck der weitergeht"_s);
        row("a digit goes on", u"Rechnung vom 12.03.202 6"_s, u"Rechnung vom 12.03.202 6"_s);
        row("behind a reference",
            u"EREF+TF 4711 MTLG:Grund nicht spezifizie rt Reject aus SEPA-Ueberwei sungsauftrag"_s,
            u"EREF+TF 4711 MTLG:Grund nicht spezifiziert Reject aus SEPA-Ueberweisungsauftrag"_s);
        row("originator in brackets", u"Debitk.4 (Tankstelle am Lindenpa rk)"_s,
            u"Debitk.4 (Tankstelle am Lindenpark)"_s);
        // Texts that no statement has cut.
        row("words of one long text", u"Miete fuer die Wohnung bis zum Ende des Jahres"_s,
            u"Miete fuer die Wohnung bis zum Ende des Jahres"_s);
        row("all small", u"abschlag fuer die wohnung im lindenweg"_s, u"abschlag fuer die wohnung im lindenweg"_s);
        row("nothing", {}, {});
    }

    void ClosesPurposes()
    {
        QFETCH(QString, text);
        QTEST(modCutText::Purpose(text), "closed");
    }

    // One format has the text whole, the other in pieces or cut off.
    void ComparesButBlanks_data()
    {
        const cTestRows<QString, QString, bool> row("name", "other", "isAlike");
        const QString whole = u"Hausverwaltung Tannert und Söhne Grundstücksgesellschaft mbH & Co. KG"_s;
        const QString cut = u"Hausverwaltung Tannert und Söhne Grundstücksgesellschaft"_s;
        row("blanks", whole, u"Hausverwaltung Tannert und  Söhne Grundstücksgesellsch aft mbH & Co. KG"_s, true);
        row("cut off", whole, cut, true);
        row("another end", whole, QString(cut + u" AG"), false);
        row("too short to be cut", u"Hausverwaltung Tannert"_s, u"Hausverwaltung"_s, false);
    }

    void ComparesButBlanks()
    {
        QFETCH(bool, isAlike);
        cImportEntry row;
        QFETCH(QString, name);
        row.ImportBeneficiary = name;
        QFETCH(QString, other);
        cImportEntry second;
        second.ImportBeneficiary = other;
        QCOMPARE(row.isEqualButBlanks(second), isAlike);
        QCOMPARE(second.isEqualButBlanks(row), isAlike);
        QVERIFY(!isAlike || row.EqualHash() == second.EqualHash());
    }
};

TEST_CLASS(testRecords, QCoreApplication)
#include "testRecords.moc"
