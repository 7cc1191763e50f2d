#include "fints/cBankAnswer.h"
#include "fints/modChallenge.h"
#include "fints/modFlickerCode.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray code14 = QByteArrayLiteral("0248A0120452019980812345678");
const QByteArray code13 = QByteArrayLiteral("24088715131306389726041,00");
const QByteArray picture("\x00\x09image/png\x00\x0c\x89PNG\r\n\x1a\nIEND", 25);

// A procedure as its row in the bank's parameters names it: "technical identification/agreed name/its version".
TanVerfahrenItem Method(const QString& row)
{
    const QStringList names = row.split(u'/');
    TanVerfahrenItem method;
    method.TechnicalIdentification = names.value(0);
    method.ZkaName = names.value(1);
    method.ZkaVersion = names.value(2);
    method.Name = u"chipTAN"_s;
    method.TanLength = 6;
    return method;
}

cTanQuestion Ask(const TanVerfahrenItem& method, const QString& text, const QByteArray& data)
{
    cTanChallenge challenge;
    challenge.Challenge = text;
    challenge.HhdUc = data;
    return modChallenge::Question(challenge, method, u"Sparkasse Ahornstadt"_s, u"Karte 1"_s);
}

} // namespace

class testChallenge final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheWordsOfTheBank_data()
    {
        const cTestRows<QString, QString> row("challenge", "shown");
        row("lines and marks", u"<b>Umsatzabfrage</b><br>Konto <i>4711</i><br/>Bitte TAN eingeben"_s,
            u"Umsatzabfrage\r\nKonto 4711\r\nBitte TAN eingeben"_s);
        row("capitals", u"Eins<BR>zwei"_s, u"Eins\r\nzwei"_s);
        row("list and signs", u"TAN &amp; Code<UL><li>Startcode: <u>4711</u></li></UL>&lt;br&gt;"_s,
            u"TAN & Code\r\nStartcode: 4711<br>"_s);
        row("everything else stays", u"a < b & <x>c</x>"_s, u"a < b & <x>c</x>"_s);
        row("in parts", u"CHLGUC  002624088715131306389726041,00CHLGTEXT0021Kontoabfrage<br>Start"_s,
            u"Kontoabfrage\r\nStart"_s);
        row("a code without words behind it", u"TAN bitte: CHLGUC  0004abcd Danke"_s, u"TAN bitte:  Danke"_s);
    }

    void ShowsTheWordsOfTheBank()
    {
        QFETCH(QString, challenge);
        QTEST(modChallenge::Cleaned(challenge), "shown");
    }

    void ProcedureChoosesTheDisplay_data()
    {
        QTest::addColumn<QString>("procedure");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<eTanDisplay>("display");

        const auto row = [](const char* procedure, const QByteArray& data, eTanDisplay display) {
            QTest::addRow("%s, %d bytes", procedure, static_cast<int>(data.size()))
                << QString::fromLatin1(procedure) << data << display;
        };
        row("HHD1.3.2OPT/HHDOPT1/1.3.2", code13, eTanDisplay::Flicker);
        row("HHD1.4OPT/HHDOPT1/1.4", code14, eTanDisplay::Flicker);
        row("hhd14uc//", code14, eTanDisplay::Flicker);
        row("HHD1.4/HHDOPT1/1.4", code14, eTanDisplay::Flicker);        // marked by its agreed name
        row("SmartTAN/HHDOPT1/1.4", code14, eTanDisplay::Flicker);      // a name of the bank's own
        row("HHD1.3.2OPT/HHDOPT1/1.3.2", code14, eTanDisplay::Flicker); // the wrong edition is named
        row("HHD1.4OPT/HHDOPT1/1.4", {}, eTanDisplay::Text);
        row("HHD1.4OPT/HHDOPT1/1.4", code14.chopped(1), eTanDisplay::Text);
        row("HHD1.4/HHD/1.4", code14, eTanDisplay::Text);            // typed by hand
        row("HHD1.3.2USB/HHDUSB1/1.3.2", code13, eTanDisplay::Text); // through a cable
        row("MS1.0.0/photoTAN/", picture, eTanDisplay::Picture);
        row("ma1.0//", picture, eTanDisplay::Picture);
        row("QR//", picture, eTanDisplay::Picture);
        row("Q1S/Secoder_UC/1.2.0", picture, eTanDisplay::Picture);
        row("Q1/Secoder_UC/1.2.0", picture, eTanDisplay::Text);
        row("BildTAN/photoTAN/", picture, eTanDisplay::Picture);
        row("QuickTAN/photoTAN/", picture, eTanDisplay::Picture);
        row("MS1.0.0/photoTAN/", QByteArray("\x00\x40image", 7), eTanDisplay::Text);
        row("smsTAN/mobileTAN/", picture, eTanDisplay::Text);
        row("BestSign/BestSign/", {}, eTanDisplay::Text);
    }

    void ProcedureChoosesTheDisplay()
    {
        QFETCH(QString, procedure);
        QFETCH(QByteArray, data);
        QFETCH(eTanDisplay, display);
        const cTanQuestion question = Ask(Method(procedure), u"Bitte TAN eingeben"_s, data);
        QCOMPARE(question.Display, display);
        QCOMPARE(!question.Flicker.isEmpty(), display == eTanDisplay::Flicker);
        QCOMPARE(!question.Picture.isEmpty(), display == eTanDisplay::Picture);
    }

    void CodeInTheTextFlickers()
    {
        const TanVerfahrenItem method = Method(u"HHD1.3.2OPT/HHDOPT1/1.3.2"_s);
        const cTanQuestion question =
            Ask(method, u"CHLGUC  0026"_s + QString::fromLatin1(code13) + u"CHLGTEXT0012Kontoabfrage"_s, {});
        QCOMPARE(question.Flicker, Ask(method, {}, code13).Flicker);
        QCOMPARE(question.Challenge, u"Kontoabfrage"_s);
        QCOMPARE(question.Label, u"TAN-Eingabe:"_s);
        QCOMPARE(question.MostCharacters, 6);
        QCOMPARE(question.ByHand, QStringList({u"87151313"_s, u"389726"_s, u"1,00"_s}));
        QVERIFY(!Ask(method, u"Startcode 1"_s, {}).IsUnreadable);
        const cTanQuestion cut = Ask(method, u"CHLGUC  0004abcd"_s, {});
        QVERIFY(cut.Display == eTanDisplay::Text && cut.IsUnreadable);
    }

    void PictureComesWithItsType_data()
    {
        const cTestRows<QByteArray, QByteArray, QString> row("data", "file", "type");
        const QByteArray png("\x89PNG\r\n\x1a\nIEND", 12);
        row("framed", picture, png, u"image/png"_s);
        row("five bytes",
            QByteArray("\x00\x09image/xyz\x00\x05"
                       "abcde",
                       18),
            "abcde", u"image/xyz"_s);
        row("a wrong length", QByteArray("\x00\x09image/png\x00\x01\x89PNG\r\n\x1a\nIEND", 25), png, u"image/png"_s);
        row("a wrong type", QByteArray("\x00\x09image/png\x00\x06GIF89a", 19), "GIF89a", u"image/gif"_s);
        row("the file alone", QByteArray("\xff\xd8\xff\xe0", 4), QByteArray("\xff\xd8\xff\xe0", 4), u"image/jpeg"_s);
        row("not what it is called", QByteArray("\x00\x09image/png\x00\x02<a", 15), {}, {});
        row("cut", QByteArray("\x89PNG\r\n\x1a\nIDA", 11), {}, {});
        row("no picture", QByteArray("\x00\x09text/html\x00\x02<a", 15), {}, {});
        row("cut in its type", QByteArray("\x00\x09image/p", 9), {}, {});
        row("cut in its length", QByteArray("\x00\x09image/png\x00", 12), {}, {});
    }

    void PictureComesWithItsType()
    {
        QFETCH(QByteArray, data);
        const cTanQuestion question = Ask(Method(u"MS1.0.0/photoTAN/"_s), {}, data);
        QTEST(question.Picture, "file");
        QCOMPARE(question.IsUnreadable, question.Picture.isEmpty());
        QTEST(question.PictureType, "type");
    }

    // The last byte is the check. Its upper half completes control bytes, start code and data to a multiple of ten,
    // with every second digit counted double; its lower half is the exclusive or of all half bytes before.
    void BecomesTheBytesOfTheGenerator_data()
    {
        const cTestRows<QByteArray, eHhd, QByteArray, QString> row("sent", "version", "complete", "typed");
        row("1.4, a control byte and a number", "0248A0120452019980812345678", eHhd::V14,
            "0D85012045201998041234567855", u"2045201998 12345678"_s);
        row("1.4, an odd start code, three elements, an amount as text", "039870110490631098765432100812345678041,00",
            eHhd::V14, "1784011049063F059876543210041234567844312C303019", u"1049063 9876543210 12345678 1,00"_s);
        // 10 + 2 + 6 + 8 + 5 + 7 is 38, two less than 40
        row("1.4, two control bytes, texts by their flags", "012C28101AB6612", eHhd::V14, "09C28101414242313229",
            u"AB 12"_s);
        row("1.4, line end behind it", "0248A0120452019980812345678\r\n", eHhd::V14, "0D85012045201998041234567855",
            u"2045201998 12345678"_s);
        // 13 + 2 + 7 + 7 + 10 + 14 + 5 + 5 + 8 + 3 + 3 is 77, three less than 80
        row("1.3, an amount as text", "24088715131306389726041,00", eHhd::V13, "0F04871513130338972614312C30303B",
            u"87151313 389726 1,00"_s);
        // 12 + 5 + 11 + 8 + 10 is 46, four less than 50
        row("1.3, a number with an odd number of digits", "130277071234567", eHhd::V13, "080177041234567F42",
            u"77 1234567"_s);
        // 12 + 5 is 17, three less than 20
        row("1.3, an empty element keeps its place", "100277000212", eHhd::V13, "06017700011235", u"77  12"_s);
    }

    void BecomesTheBytesOfTheGenerator()
    {
        QFETCH(QByteArray, sent);
        QFETCH(eHhd, version);
        const auto code = modFlickerCode::Read(sent, version);
        QVERIFY(code);
        QTEST(modFlickerCode::Complete(*code).toHex().toUpper(), "complete");
        QTEST(code->Typed().join(u' '), "typed");
    }

    void OneThatBreaksTheRulesIsNone_data()
    {
        const cTestRows<QByteArray, eHhd> row("sent", "version");
        row("nothing", {}, eHhd::V14);
        row("a picture", QByteArray("\x00\x09image/png\x00\x05", 13), eHhd::V14);
        row("a digit lost", "0248A012045201998081234567", eHhd::V14);
        row("a digit too many", "0248A01204520199808123456789", eHhd::V14);
        row("the other edition", "24088715131306389726041,00", eHhd::V14);
        row("the other edition, the other way", "0248A0120452019980812345678", eHhd::V13);
        row("an element longer than the rest", "0248A0120452019980912345678", eHhd::V14);
        row("an endless chain of control bytes", "0108A81818181", eHhd::V14);
        row("four elements", "1602770212021202120212", eHhd::V13);
        row("no start code", "004000212", eHhd::V14);
        row("more than a half byte can count", "22027716ABCDEFGHIJKLMNOP", eHhd::V13);
        row("a character that no generator shows",
            "0070277"
            "021\x80",
            eHhd::V13);
    }

    void OneThatBreaksTheRulesIsNone()
    {
        QFETCH(QByteArray, sent);
        QFETCH(eHhd, version);
        QVERIFY(!modFlickerCode::Read(sent, version));
    }

    void BarsShowSyncHalfBytesAndClock()
    {
        // 0F FF to begin with, then 1 and 8 of the byte 81: of each byte the lower half first, with the clock on and
        // off.
        const QByteArray states = modFlickerCode::States(QByteArray("\x81"));
        QCOMPARE(states.toHex(' '), QByteArray("1f 1e 01 00 1f 1e 1f 1e 03 02 11 10"));
        QVERIFY(modFlickerCode::States({}).isEmpty());
    }
};

TEST_CLASS(testChallenge, QCoreApplication)
#include "testChallenge.moc"
