#include "fints/cBankAnswer.h"
#include "fints/modChallenge.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray code14 = QByteArrayLiteral("0248A0120452019980812345678");
const QByteArray code13 = QByteArrayLiteral("24088715131306389726041,00");
const QByteArray picture("\x00\x09image/png\x00\x08\x89PNG\r\n\x1a\n", 21);

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
    void ShowsTheWordsOfTheBank_data();
    void ShowsTheWordsOfTheBank();
    void ProcedureChoosesTheDisplay_data();
    void ProcedureChoosesTheDisplay();
    void CodeInTheTextFlickers();
    void PictureComesWithItsType_data();
    void PictureComesWithItsType();
};

void testChallenge::ShowsTheWordsOfTheBank_data()
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

void testChallenge::ShowsTheWordsOfTheBank()
{
    QFETCH(QString, challenge);
    QFETCH(QString, shown);
    QCOMPARE(modChallenge::Cleaned(challenge), shown);
}

void testChallenge::ProcedureChoosesTheDisplay_data()
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

void testChallenge::ProcedureChoosesTheDisplay()
{
    QFETCH(QString, procedure);
    QFETCH(QByteArray, data);
    QFETCH(eTanDisplay, display);
    const cTanQuestion question = Ask(Method(procedure), u"Bitte TAN eingeben"_s, data);
    QCOMPARE(question.Display, display);
    QCOMPARE(!question.Flicker.isEmpty(), display == eTanDisplay::Flicker);
    QCOMPARE(!question.Picture.isEmpty(), display == eTanDisplay::Picture);
}

void testChallenge::CodeInTheTextFlickers()
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

void testChallenge::PictureComesWithItsType_data()
{
    const cTestRows<QByteArray, QByteArray, QString> row("data", "file", "type");
    const QByteArray png("\x89PNG\r\n\x1a\n", 8);
    row("framed", picture, png, u"image/png"_s);
    row("five bytes",
        QByteArray("\x00\x09image/png\x00\x05"
                   "abcde",
                   18),
        "abcde", u"image/png"_s);
    row("a wrong length", QByteArray("\x00\x09image/png\x00\x01\x89PNG\r\n\x1a\n", 21), png, u"image/png"_s);
    row("a wrong type", QByteArray("\x00\x09image/png\x00\x06GIF89a", 19), "GIF89a", u"image/gif"_s);
    row("the file alone", QByteArray("\xff\xd8\xff\xe0", 4), QByteArray("\xff\xd8\xff\xe0", 4), u"image/jpeg"_s);
    row("no picture", QByteArray("\x00\x09text/html\x00\x02<a", 15), {}, {});
    row("cut in its type", QByteArray("\x00\x09image/p", 9), {}, {});
    row("cut in its length", QByteArray("\x00\x09image/png\x00", 12), {}, {});
}

void testChallenge::PictureComesWithItsType()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, file);
    QFETCH(QString, type);
    const cTanQuestion question = Ask(Method(u"MS1.0.0/photoTAN/"_s), {}, data);
    QCOMPARE(question.Picture, file);
    QCOMPARE(question.IsUnreadable, file.isEmpty());
    QCOMPARE(question.PictureType, type);
}

TEST_CLASS(testChallenge, QCoreApplication)
#include "testChallenge.moc"
