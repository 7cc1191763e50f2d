#include "model/cImportEntry.h"
#include "model/modCutText.h"
#include "support/cTestClass.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testCutText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ClosesCuts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("closed");
        // Names: 27 characters, then the rest.
        QTest::newRow("name") << u"Steuerberatung Lindner & Sö hne"_s << u"Steuerberatung Lindner & Söhne"_s;
        QTest::newRow("two words of a name")
            << u"Sportverein Talheim Abtlung fuer Rudern"_s << u"Sportverein Talheim Abtlung fuer Rudern"_s;
        QTest::newRow("ordinary word") << u"Hausverwaltung Tannert Buch und Sohn"_s
                                       << u"Hausverwaltung Tannert Buch und Sohn"_s;
        QTest::newRow("legal form") << u"Gesellschaft Technik Süd AB mbH"_s << u"Gesellschaft Technik Süd AB mbH"_s;
        QTest::newRow("short") << u"Lindner & Sö hne"_s << u"Lindner & Sö hne"_s;
    }

    void ClosesCuts()
    {
        QFETCH(QString, text);
        QTEST(modCutText::Name(text), "closed");
    }

    void ClosesPurposes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("closed");
        QTest::newRow("without keyword") << u"Abschlag fuer Oktober Wasse rwerk"_s
                                         << u"Abschlag fuer Oktober Wasserwerk"_s;
        QTest::newRow("first piece has lost its keyword")
            << u"Strukturierter Verwend ungszweck 4711"_s << u"Strukturierter Verwendungszweck 4711"_s;
        QTest::newRow("punctuation") << u"Miete Januar Lindenweg , Garage"_s << u"Miete Januar Lindenweg, Garage"_s;
        QTest::newRow("several pieces, small letters before")
            << u"ueberweisung mit vr-ne tworld und noch ein lang zw eck der weitergeht"_s
            << u"ueberweisung mit vr-networld und noch ein lang zweck der weitergeht"_s;
        QTest::newRow("a digit goes on") << u"Rechnung vom 12.03.202 6"_s << u"Rechnung vom 12.03.202 6"_s;
        QTest::newRow("behind a reference")
            << u"EREF+TF 4711 MTLG:Grund nicht spezifizie rt Reject aus SEPA-Ueberwei sungsauftrag"_s
            << u"EREF+TF 4711 MTLG:Grund nicht spezifiziert Reject aus SEPA-Ueberweisungsauftrag"_s;
        QTest::newRow("originator in brackets")
            << u"Debitk.4 (Tankstelle am Lindenpa rk)"_s << u"Debitk.4 (Tankstelle am Lindenpark)"_s;
        // Texts that no statement has cut.
        QTest::newRow("words of one long text") << u"Miete fuer die Wohnung bis zum Ende des Jahres"_s
                                                << u"Miete fuer die Wohnung bis zum Ende des Jahres"_s;
        QTest::newRow("all small") << u"abschlag fuer die wohnung im lindenweg"_s
                                   << u"abschlag fuer die wohnung im lindenweg"_s;
        QTest::newRow("nothing") << QString() << QString();
    }

    void ClosesPurposes()
    {
        QFETCH(QString, text);
        QTEST(modCutText::Purpose(text), "closed");
    }

    // One format has the text whole, the other in pieces or cut off.
    void ComparesButBlanks_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("isAlike");
        const QString whole = u"Hausverwaltung Tannert und Söhne Grundstücksgesellschaft mbH & Co. KG"_s;
        const QString cut = u"Hausverwaltung Tannert und Söhne Grundstücksgesellschaft"_s;
        QTest::newRow("blanks") << whole << u"Hausverwaltung Tannert und  Söhne Grundstücksgesellsch aft mbH & Co. KG"_s
                                << true;
        QTest::newRow("cut off") << whole << cut << true;
        QTest::newRow("another end") << whole << QString(cut + u" AG") << false;
        QTest::newRow("too short to be cut") << u"Hausverwaltung Tannert"_s << u"Hausverwaltung"_s << false;
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
