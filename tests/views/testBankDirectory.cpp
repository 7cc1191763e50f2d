#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "views/bank/cBankDirectory.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* invented = "# a comment\n"
                                 "10000001\tAAAADE11XXX\tBank in Köln -alt-\tKöln\thttps://alt.example/\n"
                                 "10000002\tBBBBDE22XXX\tBank in Aachen\tAachen\t\n"
                                 "10000003\tCCCCDE33XXX\tBank in Köln\tKöln\thttps://koeln.example/\n"
                                 "10000004\tDDDDDE44XXX\tVolksbank Groß-Gerau\tGroß-Gerau\thttps://gg.example/\n"
                                 "10000005\tDDDDDE44GIE\tVolksbank\tGießen\thttps://vb.example/\n"
                                 "10000006\tDDDDDE44FUL\tVolksbank\tFulda\thttps://vb.example/\n"
                                 "37040044\tEEEEDE55XXX\tSteinbank\tBankenheim\t\n";

QString Codes(const cBankInfoList& banks)
{
    QStringList codes;
    for (const cBankInfo& bank : banks) {
        codes.append(bank.Code.right(2));
    }
    return codes.join(u' ');
}

// The directory of a program that this file was installed with.
struct cScene
{
    explicit cScene(const QByteArray& text) { cTestFile::Write(Shell.InstalledFile(u"banken.tsv"_s), text); }

    cFakeShell Shell;
    cBankDirectory Directory{Shell};
};

QByteArray Shipped()
{
    return cTestFile::Bytes(QStringLiteral(BANKS));
}

} // namespace

class testBankDirectory final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BestComesFirst_data()
    {
        // codes: the last two digits
        const cTestRows<QString, QString> row("text", "codes");
        // The name begins so before a word does before it is held; within that addresses, what lives, names.
        row("name, word, within", u"bank"_s, u"03 01 02 44 06 05 04"_s);
        row("umlaut left out", u"BANK KOLN"_s, u"03 01"_s);
        row("umlaut spelled", u"koeln bank"_s, u"03 01"_s);
        row("sharp s", u"gross gerau"_s, u"04"_s);
        row("place only", u"gießen"_s, u"05"_s);
        row("code", u"100 000 02"_s, u"02"_s);
        row("labelled code", u"BLZ: 10000002"_s, u"02"_s);
        row("begin of code", u"370"_s, u"44"_s);
        row("word and begin of code", u"volksbank 1000"_s, u"06 05 04"_s);
        row("BIC", u"dddd de 44 xxx"_s, u"04"_s);
        row("BIC of the head office", u"DDDDDE44"_s, u"04 06 05"_s);
        row("BIC of a branch long gone", u"BBBBDE22123"_s, u"02"_s);
        row("IBAN", u"IBAN: de89 3704 0044 0532 0130 00"_s, u"44"_s);
        row("IBAN half typed", u"DE89 3704 00"_s, u"44"_s);
        row("IBAN typed as far as the code", u"DE89 3704 0044 05"_s, u"44"_s);
    }

    void BestComesFirst()
    {
        QFETCH(QString, text);
        QFETCH(QString, codes);
        const cScene scene(invented);
        const cBankMatches answer = scene.Directory.Search(text, 10);
        QCOMPARE(Codes(answer.Banks), codes);
        QCOMPARE(answer.Problem, QString());
        const cBankMatches shorter = scene.Directory.Search(text, 1);
        QCOMPARE(Codes(shorter.Banks), codes.left(2));
        QCOMPARE(shorter.Found, answer.Banks.size());
    }

    void SaysWhatIsWrong_data()
    {
        // words: of the problem
        const cTestRows<QString, QString> row("text", "words");
        row("nothing typed", u"  "_s, u"Bitte geben Sie Name"_s);
        row("only marks", u"-"_s, u"Keine Bank gefunden"_s);
        row("no such bank", u"bank atlantis"_s, u"Keine Bank gefunden"_s);
        row("no such code", u"99999999"_s, u"99999999 steht nicht im Verzeichnis"_s);
        row("two digits swapped", u"DE98370400440532013000"_s, u"Tippfehler"_s);
        row("a digit wrong", u"DE89370400440532013001"_s, u"Tippfehler"_s);
        row("a digit too many", u"DE893704004405320130000"_s, u"20 Ziffern"_s);
        row("a letter", u"DE8937040044O532013000"_s, u"20 Ziffern"_s);
        row("right, of no bank here", u"DE12500105170648489890"_s, u"50010517 steht nicht"_s);
        row("foreign", u"AT61 1904 3002 3457 3201"_s, u"keine deutsche IBAN"_s);
        row("only begun", u"DE8"_s, u"tippen Sie weiter"_s);
    }

    void SaysWhatIsWrong()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        const cBankMatches answer = cScene(invented).Directory.Search(text, 10);
        QVERIFY(answer.Banks.isEmpty());
        QVERIFY2(answer.Problem.contains(words), qPrintable(answer.Problem));
    }

    void MissingFileIsSaid()
    {
        const cFakeShell shell;
        const QStringList texts{u"Bank"_s, u"10000002"_s, u"DE89370400440532013000"_s};
        for (const QString& text : texts) {
            QVERIFY(cBankDirectory(shell).Search(text, 10).Problem.contains(u"banken.tsv"));
        }
    }

    void TellsBanksOfOneNameApart()
    {
        const cScene scene(invented);
        const auto title = [&](const QString& code) {
            return scene.Directory.Title(scene.Directory.Find(code).value_or(cBankInfo()));
        };
        QCOMPARE(title(u"10000005"_s), u"Volksbank, Gießen"_s);
        QCOMPARE(title(u"10000004"_s), u"Volksbank Groß-Gerau"_s);
    }

    void ShippedFileIsWhole()
    {
        static const QRegularExpression form(
            u"^[0-9]{8}\t([A-Z]{6}[A-Z0-9]{5})?\t[^\t]+\t[^\t]*\t(https://[^\t/]+\\S*)?$"_s);
        QStringList lines = QString::fromUtf8(Shipped()).split(u'\n');
        QVERIFY(lines.takeLast().isEmpty());
        lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
        QVERIFY(lines.size() > 3000);
        QSet<QString> codes;
        for (const QString& line : lines) {
            QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
            QVERIFY2(!codes.contains(line.left(8)), qPrintable(line));
            codes.insert(line.left(8));
        }
    }

    void ShippedFileKnowsBanksByTheirUsualNames_data()
    {
        const cTestRows<QString, QString, QString> row("text", "code", "url");
        row("DKB", u"DKB"_s, u"12030000"_s, u"https://fints.dkb.de/fints"_s);
        row("ING", u"ing"_s, u"50010517"_s, u"https://fints.ing.de/fints/"_s);
        row("comdirect", u"comdirect"_s, u"20041111"_s, u"https://fints.comdirect.de/fints"_s);
        row("Commerzbank in Berlin", u"10040000"_s, u"10040000"_s, u"https://fints.commerzbank.de/fints"_s);
        row("seat of many branches", u"commerzbank köln"_s, u"37040044"_s, u"https://fints.commerzbank.de/fints"_s);
        row("GLS", u"gls bank"_s, u"43060967"_s, u"https://fints1.atruvia.de/cgi-bin/hbciservlet"_s);
        row("Sparda", u"33060592"_s, u"33060592"_s, u"https://fints2.atruvia.de/cgi-bin/hbciservlet"_s);
        row("no longer this bank's", u"50010700"_s, u"50010700"_s, u""_s);
    }

    void ShippedFileKnowsBanksByTheirUsualNames()
    {
        QFETCH(QString, text);
        const cBankMatches answer = cScene(Shipped()).Directory.Search(text, 1);
        QTEST(answer.Banks.value(0).Code, "code");
        QTEST(answer.Banks.value(0).Url, "url");
    }
};

TEST_CLASS(testBankDirectory, QCoreApplication)
#include "testBankDirectory.moc"
