#include "base/cProgress.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/statement/cImportAssistant.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cLeftOutList.h"
#include "views/statement/cStatementFiles.h"

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

using eField = cImportAssistant::eField;
using fnChange = std::function<void(cImportAssistant&)>;

// No bank's layout; nothing but the contents tell the columns, and no line names the account.
constexpr const char* plain = "Tag;Was;Preis;Wert;Stand\n"
                              "03.02.2026;Br\xE4zeln am Markt;2,00;-4,20;gebucht\n"
                              "04.02.2026;Miete;3,00;-660,00;gebucht\n"
                              "05.02.2026;Kiosk am Bahnhof;4,00;-1,00;geplant\n";

// A new book whose assistant does what the test says.
struct cPage : cTestBook
{
    cPage()
    {
        Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        Review.Files().SetAssist([this](cImportAssistant& assistant) {
            ++Opened;
            Answer(assistant);
            return IsConfirmed;
        });
    }

    void Import(const QStringList& paths, cStatementFiles::eAssist assist = cStatementFiles::eAssist::WhereNeeded)
    {
        Review.Files().ImportFiles(paths, Progress, assist);
    }

    QStringList Purposes()
    {
        QStringList texts;
        const cImportEntryList rows = Data.GetImportEntries();
        for (const cImportEntry& row : rows) {
            texts.append(row.ImportPurpose);
        }
        return texts;
    }

    fnChange Answer = [](cImportAssistant& assistant) { assistant.SetAccount(u"4711"_s); };
    bool IsConfirmed = true;
    int Opened = 0;
    cNoProgress Progress;
    cImportReview Review{Tools};
};

int Place(const QStringList& items, const QString& item)
{
    return static_cast<int>(items.indexOf(item));
}

fnChange Mean(int column, const QString& meaning)
{
    return [=](cImportAssistant& assistant) {
        assistant.SetMeaning(column, Place(cImportAssistant::Meanings(), meaning));
    };
}

fnChange Take(eField field, const QString& item)
{
    return [=](cImportAssistant& assistant) { assistant.Choose(field, Place(assistant.Items(field), item)); };
}

} // namespace

Q_DECLARE_METATYPE(fnChange)

class testImportAssistant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_page.emplace(); }

    void ShowsWhatAChoiceDoes_data()
    {
        const cTestRows<QByteArray, fnChange, QString> row("file", "change", "row");
        const fnChange nothing = [](cImportAssistant&) {};
        const QByteArray dollars = "Date;Details;Amount\n02/03/2026;Lunch;\"1,234\"\n";
        const QByteArray dkb = "Buchungsdatum;Zahlungsempfänger*in;Verwendungszweck;Betrag (€)\n"
                               "03.02.26;Kiosk;Zeitung;-4,20\n";
        row("as guessed", plain, nothing, u"03.02.2026||Bräzeln am Markt|-4,20 €|"_s);
        row("another amount", plain, Mean(2, u"Betrag"_s), u"03.02.2026||Bräzeln am Markt|2,00 €|"_s);
        row("a meaning moves", plain, Mean(1, u"Empfänger/Auftraggeber"_s), u"03.02.2026|Bräzeln am Markt||-4,20 €|"_s);
        row("no day", plain, Mean(0, u"nicht lesen"_s), u"||||"_s);
        row("character set", plain, Take(eField::Charset, u"CP850 (DOS)"_s),
            u"03.02.2026||Brõzeln am Markt|-4,20 €|"_s);
        row(
            "no header", plain, [](cImportAssistant& assistant) { assistant.SetHeaderLine(0); },
            u"03.02.2026||Bräzeln am Markt|-4,20 €|"_s);
        row(
            "header further down", plain, [](cImportAssistant& assistant) { assistant.SetHeaderLine(3); },
            u"05.02.2026||Kiosk am Bahnhof|-1,00 €|"_s);
        row("sign", plain, Take(eField::Sign, u"umgekehrt (Ausgaben ohne Minus)"_s),
            u"03.02.2026||Bräzeln am Markt|4,20 €|"_s);
        row("German number", dollars, Take(eField::Number, u"1.234,50"_s), u"02.03.2026||Lunch|1,23 €|"_s);
        row("English number", dollars, Take(eField::Number, u"1,234.50"_s), u"02.03.2026||Lunch|1.234,00 €|"_s);
        row("month first", dollars, Take(eField::Date, u"Monat, Tag, Jahr"_s), u"03.02.2026||Lunch|1,23 €|"_s);
        row("separator", QByteArray("Datum|Text|Betrag\n03.02.2026|Kiosk|-4,20\n"),
            Take(eField::Separator, u"senkrechter Strich"_s), u"03.02.2026||Kiosk|-4,20 €|"_s);
        row("two-digit year", dkb, nothing, u"03.02.2026|Kiosk|Zeitung|-4,20 €|"_s);
        row(
            "taken back", plain,
            [](cImportAssistant& assistant) {
                assistant.SetHeaderLine(3);
                assistant.Reset();
            },
            u"03.02.2026||Bräzeln am Markt|-4,20 €|"_s);
    }

    void ShowsWhatAChoiceDoes()
    {
        QFETCH(QByteArray, file);
        QFETCH(fnChange, change);
        m_page->IsConfirmed = false;
        QString shown;
        m_page->Answer = [&](cImportAssistant& assistant) {
            change(assistant);
            const cImportAssistant::cRow first = assistant.Rows().value(0);
            shown = QStringList{first.Day, first.Name, first.Purpose, first.Amount, first.Remark}.join(u'|');
        };
        m_page->Import({m_page->WriteFile(u"a.csv"_s, file)}, cStatementFiles::eAssist::Always);
        QTEST(shown.replace(u'\u00A0', u' '), "row");
        QCOMPARE(m_page->Data.GetImportEntries().size(), 0); // the user gave up
    }

    void SaysWhatIsMissing()
    {
        m_page->IsConfirmed = false;
        m_page->Answer = [](cImportAssistant& assistant) {
            QCOMPARE(assistant.Problem(),
                     u"Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen."_s);
            QCOMPARE(assistant.Accounts(), QStringList({u"4711"_s, u"Sparkonto"_s, u"Bargeld"_s}));
            assistant.SetAccount(u" DE89 3704 0044 0532 0130 00 "_s);
            QVERIFY(assistant.CanImport());
            QCOMPARE(assistant.BankCode(), u"37040044"_s);
            QVERIFY(assistant.CountText().startsWith(u"3 Umsätze neu"));
            Mean(0, u"nicht lesen"_s)(assistant);
            QVERIFY(assistant.Problem().startsWith(u"In der Datei sind keine Spalten"));
        };
        m_page->Import({m_page->WriteFile(u"a.csv"_s, plain)});
        QCOMPARE(m_page->Opened, 1);
        QVERIFY(m_page->User.Shown.isEmpty()); // giving up is no fault
        QVERIFY(m_page->Review.Summary().first().startsWith(u"a.csv: nicht eingelesen."));
    }

    // Nothing in the file says what the amounts are: one booking is shown in both readings, and the answer is kept.
    void AsksWhichReadingIsRight()
    {
        const char* const unsure = "Tag;Text;Betrag\n03.02.2026;Miete & Strom;500,00\n04.02.2026;Kino;9,00\n";
        QStringList readings;
        m_page->Answer = [&](cImportAssistant& assistant) {
            assistant.SetAccount(u"4711"_s);
            readings = assistant.Readings();
            QCOMPARE(assistant.Reading(), -1);
            QVERIFY(assistant.Problem().startsWith(u"Die Datei sagt nicht sicher"));
            Mean(1, u"Verwendungszweck"_s)(assistant); // another choice does not answer it
            QVERIFY(!assistant.CanImport());
            assistant.ChooseReading(1);
            QVERIFY(assistant.CanImport());
            QCOMPARE(assistant.Readings(), readings); // to change one's mind
        };
        m_page->Import({m_page->WriteFile(u"1.csv"_s, unsure)});
        QCOMPARE(readings.join(u'/').replace(u'\u00A0', u' '),
                 u"03.02.2026  ·  Miete & Strom  ·  +500,00 €/03.02.2026  ·  Miete & Strom  ·  -500,00 €"_s);
        QCOMPARE(m_page->Data.GetImportEntries().first().ImportValue, -50000);
        m_page->Import({m_page->WriteFile(u"2.csv"_s, QByteArray(unsure).replace("2026", "2025"))});
        QCOMPARE(m_page->Opened, 1);
        QCOMPARE(m_page->Data.GetImportEntries().last().ImportValue, -900);
    }

    // One answer holds for all files of the layout, now and later; another layout is asked about.
    void AsksOncePerLayout()
    {
        m_page->Answer = [](cImportAssistant& assistant) {
            Mean(4, u"Stand (vorgemerkt, gebucht)"_s)(assistant);
            assistant.SetAccount(u"4711"_s);
            assistant.SetBankCode(u"12030000"_s);
        };
        const QString first = m_page->WriteFile(u"1.csv"_s, plain);
        const QString second = m_page->WriteFile(u"2.csv"_s,
                                                 "Tag;Was;Preis;Wert;Stand\n06.02.2026;Bäcker;1,00;-2,00;gebucht\n"
                                                 "07.02.2026;Kino;1,00;-9,00;vorgemerkt\n");
        m_page->Import({first, second});
        QCOMPARE(m_page->Opened, 1);
        QCOMPARE(m_page->Purposes(), QStringList({u"Bräzeln am Markt"_s, u"Miete"_s, u"Bäcker"_s}));
        m_page->Import({second});
        QCOMPARE(m_page->Opened, 1);
        QCOMPARE(m_page->Data.GetImportEntries().size(), 3);
        m_page->Import({m_page->WriteFile(u"3.csv"_s, "Tag;Wert;Grund\n06.02.2026;-2,00;Bäcker\n")});
        QCOMPARE(m_page->Opened, 2);
        m_page->Answer = [](cImportAssistant& assistant) { // what was chosen can be seen and changed again
            QVERIFY(assistant.FormatText().contains(u"wie beim letzten Mal"));
            QCOMPARE(assistant.Account(), u"4711"_s);
            QCOMPARE(assistant.BankCode(), u"12030000"_s);
        };
        m_page->Import({first}, cStatementFiles::eAssist::Always);
        QCOMPARE(m_page->Opened, 3);
    }

    // Where files of one kind come from several accounts, the answer for one says nothing about the next.
    void AsksAboutEachFileOfSeveralAccounts()
    {
        m_page->Answer = [&](cImportAssistant& assistant) {
            assistant.SetAccount(QString::number(4711 + m_page->Opened));
        };
        const QString first = m_page->WriteFile(u"1.csv"_s, plain);
        const QString second = m_page->WriteFile(u"2.csv"_s, QByteArray(plain).replace("2026", "2025"));
        for (int account = 0; account < 2; ++account) {
            m_page->Import({first}, cStatementFiles::eAssist::Always);
        }
        m_page->Import({first, second});
        QCOMPARE(m_page->Opened, 4);
    }

    // A known layout with other columns stays a known layout in all else.
    void KnownLayoutsCanBeChanged()
    {
        m_page->Answer = [](cImportAssistant& assistant) {
            QVERIFY2(assistant.FormatText().contains(u"PayPal"), qPrintable(assistant.FormatText()));
            Mean(3, u"Verwendungszweck"_s)(assistant);
            assistant.SetAccount(u"4711"_s);
        };
        const QString paypal = QStringLiteral(TEST_DATA "/csv/paypal.csv");
        m_page->Import({paypal}, cStatementFiles::eAssist::Always);
        const QStringList changed = m_page->Purposes();
        QVERIFY(!changed.isEmpty());
        m_page->Import({paypal}); // through the memory alone: also what the layout leaves out
        QCOMPARE(m_page->Opened, 1);
        QCOMPARE(m_page->Purposes(), changed);
    }

    void OptionsHold()
    {
        m_page->Answer = [](cImportAssistant& assistant) {
            QVERIFY(!assistant.AsksAccount() && !assistant.IsTable());
            assistant.SetAvoidsDuplicates(false);
        };
        const QString file = QStringLiteral(TEST_DATA "/mt940/giro.sta");
        for (int run = 0; run < 2; ++run) {
            m_page->Import({file}, cStatementFiles::eAssist::Always);
        }
        QCOMPARE(m_page->Data.GetImportEntries().size(), 10);
    }

    // Of a long table only the beginning is tried, of a statement with a beginning and an end all of it.
    void LongFilesCanBeTried()
    {
        m_page->IsConfirmed = false;
        QStringList texts;
        m_page->Answer = [&](cImportAssistant& assistant) {
            assistant.SetAccount(u"4711"_s);
            texts.append(assistant.Problem() + assistant.CountText().section(u' ', 0, 0));
        };
        const QByteArray entry = "<STMTTRN><TRNTYPE>DEBIT<DTPOSTED>20260203<TRNAMT>-1.00<FITID>1<MEMO>";
        QByteArray ofx = "OFXHEADER:100\n<OFX><BANKMSGSRSV1><STMTTRNRS><STMTRS><CURDEF>EUR<BANKACCTFROM><BANKID>1"
                         "<ACCTID>2</BANKACCTFROM><BANKTRANLIST>\n";
        ofx += entry + QByteArray(600'000, 'x') + "</STMTTRN>\n" + entry + "y</STMTTRN>\n";
        ofx += "</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n";
        QByteArray csv = "Datum;Text;Betrag\n";
        for (int i = 0; i < 20'000; ++i) {
            csv += "03.02.2026;Einkauf Nummer " + QByteArray::number(i) + " am Markt;-1,00\n";
        }
        m_page->Import({m_page->WriteFile(u"a.ofx"_s, ofx), m_page->WriteFile(u"a.csv"_s, csv)},
                       cStatementFiles::eAssist::Always);
        QCOMPARE(texts.value(0), u"2"_s);
        QVERIFY(texts.value(1).toInt() > 5'000 && texts.value(1).toInt() < 20'000);
    }

    void ReadsAgain()
    {
        m_page->Import({m_page->WriteFile(u"a.csv"_s, plain)});
        QCOMPARE(m_page->Purposes().size(), 3);
        const int booked = m_page->Data.GetImportEntries().first().ID;
        m_page->Review.Book({booked}, m_page->Progress);
        m_page->Answer = [](cImportAssistant& assistant) {
            Mean(2, u"Betrag"_s)(assistant);
            assistant.ChooseReading(0);
        };
        QVERIFY(m_page->Review.Files().CanReadAgain());
        m_page->Review.Files().ReadAgain(m_page->Progress);
        const cImportEntryList rows = m_page->Data.GetImportEntries();
        QCOMPARE(rows.size(), 4); // the booked one stays
        QCOMPARE(rows.first().ID, booked);
        QCOMPARE(rows.last().ImportValue, 400);
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Data.GetImportEntries().size(), 3);
        QCOMPARE(m_page->Data.GetImportEntries().last().ImportValue, -100);
        m_page->IsConfirmed = false;
        m_page->Review.Files().ReadAgain(m_page->Progress);
        QCOMPARE(m_page->Data.GetImportEntries().size(), 3);
    }

    void AStoppedFileBringsNothing()
    {
        cFakeStop progress(3);
        m_page->Review.Files().ImportFiles({QStringLiteral(TEST_DATA "/mt940/giro.sta")}, progress);
        QCOMPARE(m_page->Data.GetImportEntries().size(), 0);
        QCOMPARE(m_page->Review.Summary(), QStringList(u"giro.sta: abgebrochen, nichts davon übernommen."_s));
        QVERIFY(m_page->Data.Journal().UndoName().isEmpty());
    }

    void PendingRowsCanBeTaken()
    {
        m_page->Answer = [](cImportAssistant& assistant) {
            assistant.SetAccount(u"4711"_s);
            Mean(4, u"Stand (vorgemerkt, gebucht)"_s)(assistant);
            QVERIFY(assistant.LeftOut().first().startsWith(u"Zeile 4: Der Umsatz ist noch vorgemerkt"));
        };
        m_page->Import({m_page->WriteFile(u"a.csv"_s, plain)});
        QCOMPARE(m_page->Review.Files().LeftOut().Texts().size(), 1);
        QVERIFY(m_page->Review.Files().LeftOut().Texts().first().endsWith(u"vorgemerkt"));
        m_page->Review.Files().LeftOut().Stage({0});
        QCOMPARE(m_page->Purposes().value(2), u"Kiosk am Bahnhof"_s);
        QCOMPARE(m_page->Data.GetImportEntries().last().ImportAccount, u"4711"_s);
    }

    // What one household has found out, another one takes.
    void LayoutsAreShared()
    {
        const QString shared = m_page->WriteFile(u"aufbau.txt"_s, {});
        m_page->User.SavePath = shared;
        m_page->Answer = [](cImportAssistant& assistant) {
            assistant.SetAccount(u"4711"_s);
            Mean(2, u"Betrag"_s)(assistant);
            QVERIFY(assistant.CanSaveLayout());
            assistant.SaveLayout();
        };
        m_page->Import({m_page->WriteFile(u"a.csv"_s, plain)});
        cPage other;
        other.User.Files = {shared};
        other.Answer = [](cImportAssistant& assistant) {
            assistant.SetAccount(u"4711"_s);
            assistant.LoadLayout();
            QCOMPARE(assistant.Rows().value(0).Amount.simplified(), u"2,00 €"_s);
        };
        other.Import({other.WriteFile(u"b.csv"_s, plain)});
        QCOMPARE(other.Opened, 1);
        QCOMPARE(other.Data.GetImportEntries().first().ImportValue, 200);
        QVERIFY(other.User.Shown.value(0).contains(u"gilt nun für diese Datei"_s));
    }

    void OffersAllStatements()
    {
        m_page->Review.Files().ChooseFiles(m_page->Progress);
        const QStringList filter = m_page->User.Asked.value(0).split(u'|');
        QVERIFY(filter.value(1).contains(u"*.sta;") && filter.value(1).contains(u"*.zip;")); // shown by default
        QCOMPARE(filter.value(2), u"CSV/XLS/MT940/MT942/OFX/QIF-Datei"_s);
        QCOMPARE(filter.value(3), u"*.csv;*.txt;*.mt940;*.mt942;*.xls;*.mt9;*.ofx;*.qif"_s);
        QCOMPARE(filter.last(), u"*.*"_s);
    }

private:
    std::optional<cPage> m_page;
};

TEST_CLASS(testImportAssistant, QCoreApplication)
#include "testImportAssistant.moc"
