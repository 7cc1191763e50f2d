#include "model/cImportEntry.h"
#include "model/modCutText.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testCutText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

TEST_CLASS(testCutText, QCoreApplication)
#include "testCutText.moc"
