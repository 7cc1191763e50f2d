#include "import/qif/modQif.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Fixture()
{
    return QString::fromUtf8(cTestFile::Bytes(QStringLiteral(TEST_DATA "/qif/giro.qif")));
}

cStatementRead ReadText(const QString& text, const cReadOptions& options = {})
{
    return modQif::Read({u"a.qif"_s, {}, text}, options);
}

QString Days(const cStatementRead& read)
{
    const auto day = [](const cImportEntry& entry) { return entry.ImportDate.toString(Qt::ISODate); };
    return Each(read.Entries, day).join(u' ');
}

} // namespace

class testQif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Recognises_data()
    {
        const cTestRows<QString, bool> row("text", "isQif");
        row("bank", u"!Type:Bank\nD1.1.26"_s, true);
        row("capitals", u"!TYPE:CCARD\n"_s, true);
        row("behind a list", u"!Account\nNGiro\n^\n!type:bank\n"_s, true);
        row("behind a remark", u"# aus dem Archiv\n\n!Option:MDY\n!Type:Bank\n"_s, true);
        row("table", u"Datum;Betrag\n1.1.26;!Type:Bank\n"_s, false);
        row("nothing", {}, false);
    }

    void Recognises()
    {
        QFETCH(QString, text);
        QTEST(modQif::IsQif(text), "isQif");
    }

    void FindsOrderOfDays_data()
    {
        QTest::addColumn<QString>("dates");
        QTest::addColumn<QString>("days");
        QTest::addColumn<int>("problems");
        QTest::addColumn<QString>("amount");
        const auto row = [](const char* name, const char16_t* dates, const char16_t* days, int problems,
                            const QString& amount = u"1.00"_s) {
            QTest::newRow(name) << QString::fromUtf16(dates) << QString::fromUtf16(days) << problems << amount;
        };
        row("a day above 12 decides for all", u"1/2/26|29/12/26", u"2026-02-01 2026-12-29", 0);
        row("month first", u"1/2/26|12/29/26", u"2026-01-02 2026-12-29", 0);
        row("open: day first, and said so", u"02/01/2024", u"2024-01-02", 1);
        row("open: amounts from where the month comes first", u"1/2/26", u"2026-01-02", 1, u"-1,010.50"_s);
        row("open: years from where the month comes first", u"6/ 1'04", u"2004-06-01", 1);
        row("open without effect", u"2/2/26", u"2026-02-02", 0);
        row("points: day first", u"1.2.26", u"2026-02-01", 0, u"-1,010.50"_s);
        row("year first", u"2026-02-01", u"2026-02-01", 0);
        row("blanks and apostrophe", u"1/ 2'04|31/ 1'04", u"2004-02-01 2004-01-31", 0);
        row("last century", u"31/1/94", u"1994-01-31", 0);
        row("no date", u"gestern|31/2/26", u"1001-01-01 1001-01-01", 2);
    }

    void FindsOrderOfDays()
    {
        QFETCH(QString, dates);
        QFETCH(int, problems);
        QFETCH(QString, amount);
        QString text = u"!Type:Bank\n"_s;
        for (const QString& date : dates.split(u'|')) {
            text += u"D"_s + date + u"\nT"_s + amount + u"\n^\n"_s;
        }
        const cStatementRead read = ReadText(text);
        QTEST(Days(read), "days");
        QCOMPARE(read.Problems.size(), problems);
    }

    void TakesChosenOrder()
    {
        cReadOptions options;
        options.Table.Date = eDateOrder::DayMonthYear;
        const cStatementRead read = ReadText(u"!Type:Bank\nD1/2/26\nT1\n^\n"_s, options);
        QCOMPARE(Days(read), u"2026-02-01"_s);
        QVERIFY(read.Problems.isEmpty());
    }

    void ReadsAmounts_data()
    {
        const cTestRows<QString, qint64> row("amount", "value");
        row("English", u"-1,010.50"_s, -101050);
        row("grouped whole number", u"30,020"_s, 3002000);
        row("decimal comma", u"-4,50"_s, -450);
        row("German", u"1.234,50"_s, 123450);
        row("millions", u"1,234,567.00"_s, 123456700);
    }

    void ReadsAmounts()
    {
        QFETCH(QString, amount);
        QTEST(ReadText(u"!Type:Bank\nD31.1.26\nT"_s + amount).Entries.value(0).ImportValue, "value");
    }

    void ReadsFile()
    {
        const cStatementRead read = ReadText(Fixture());
        QCOMPARE(Days(read), u"2026-01-03 2026-01-15 2026-01-17 2026-01-17 2026-01-20"_s);
        QVERIFY(read.Problems.isEmpty());
        const cImportEntry& first = read.Entries.first();
        QCOMPARE(first.ImportAccount, u"Girokonto"_s);
        QCOMPARE(first.ImportType, u"Kategorie: Haushalt; Lebensmittel"_s);
        QCOMPARE(first.ImportPurpose, u"Brot"_s);
        QCOMPARE(first.ImportBeneficiary, u"Krume & Sohn"_s);
        QCOMPARE(first.ImportValue, -2310);
        QCOMPARE(read.Entries.at(1).ImportValue, 123450);
        QCOMPARE(read.Entries.at(2).ImportType, u"Kategorie: Haushalt"_s);
        QCOMPARE(read.Entries.at(3).ImportPurpose, u"Socken"_s);
        QCOMPARE(read.Entries.at(3).ImportValue, -1000);
        QCOMPARE(read.Entries.at(4).ImportValue, -450); // without its "^"
    }

    // The number that the user gives names the only account; several accounts must stay apart.
    void GivenAccountComesFirst()
    {
        cReadOptions options;
        options.Account = u"4711"_s;
        QCOMPARE(ReadText(Fixture(), options).Entries.first().ImportAccount, u"4711"_s);
        const QString two = Fixture() + u"^\n!Account\nNSparen\n^\n!Type:Bank\nD31/1'26\nT1\n^\n"_s;
        const cStatementRead read = ReadText(two, options);
        QCOMPARE(read.Entries.first().ImportAccount, u"Girokonto"_s);
        QCOMPARE(read.Entries.last().ImportAccount, u"Sparen"_s);
        QVERIFY(!read.NeedsAccount);
        QVERIFY(ReadText(u"!Type:Bank\nD31.1.26\nT1\n"_s).NeedsAccount);
    }

    void SplitsAreRows_data()
    {
        const cTestRows<QString, QString, int> row("fields", "rows", "problems");
        row("without total", u"Sa\n$-1.50\nSb\n$-2.25"_s, u"-150 Kategorie: a, -225 Kategorie: b"_s, 0);
        row("other total", u"T-4\nSa\n$-1.50\nSb\n$-2.25"_s, u"-400 a, b"_s, 1);
        row("no number", u"T-1.5\nSa\n$-1.50\nSb\n$x"_s, u"-150 a, b"_s, 1);
        row("one part without amount", u"T-4\nSa"_s, u"-400 Kategorie: a"_s, 0);
        row("one part of another amount", u"T-4\nSa\n$-3.99"_s, u"-400 Kategorie: a"_s, 1);
    }

    void SplitsAreRows()
    {
        QFETCH(QString, fields);
        const cStatementRead read = ReadText(u"!Type:Bank\nD31.1.26\n"_s + fields + u"\n^\n"_s);
        const auto shown = [](const cImportEntry& entry) {
            return u"%1 %2"_s.arg(entry.ImportValue).arg(entry.ImportType);
        };
        QTEST(Each(read.Entries, shown).join(u", "_s), "rows");
        QTEST(static_cast<int>(read.Problems.size()), "problems");
    }

    void ReadsCategories_data()
    {
        const cTestRows<QString, QString, QString> row("category", "type", "other");
        row("three levels", u"Auto:Benzin: Super"_s, u"Kategorie: Auto; Benzin - Super"_s, {});
        row("none", {}, {}, {});
        row("transfer", u"[Sparen]"_s, u"Umbuchung: Sparen"_s, u"Sparen"_s);
        row("transfer of a category", u"[Sparen]/Urlaub:Reisen"_s, u"Umbuchung: Sparen; Kategorie: Urlaub; Reisen"_s,
            u"Sparen"_s);
        row("to itself", u"[Giro]"_s, u"Kategorie: Allgemein; Startguthaben"_s, {});
    }

    void ReadsCategories()
    {
        QFETCH(QString, category);
        const cStatementRead read = ReadText(u"!Account\nNGiro\n^\n!Type:Bank\nD31.1.26\nT1\nL"_s + category);
        QTEST(read.Entries.value(0).ImportType, "type");
        QTEST(read.Entries.value(0).ImportBeneficiaryAccount, "other");
        QCOMPARE(read.IsBook, !category.isEmpty());
    }

    void OpeningIsNoTransfer_data()
    {
        const cTestRows<QString, QString, QString> row("head", "given", "account");
        row("listed account under another number", u"!Account\nNGiro\n^\n"_s, u"4711"_s, u"4711"_s);
        row("no account", {}, {}, u"Giro"_s);
        row("no account, but a number", {}, u"4711"_s, u"4711"_s);
    }

    void OpeningIsNoTransfer()
    {
        QFETCH(const QString, head);
        QFETCH(const QString, given);
        cReadOptions options;
        options.Account = given;
        const QString text = u"!Type:Bank\nD1.1.26\nT5\nPOpening Balance\nL[Giro]\n^\nD2.1.26\nT-1\nL[Sparen]\n^\n"_s;
        const cStatementRead read = ReadText(head + text, options);
        QCOMPARE(read.Entries.value(0).ImportType, u"Kategorie: Allgemein; Startguthaben"_s);
        QCOMPARE(read.Entries.value(1).ImportType, u"Umbuchung: Sparen"_s);
        QTEST(read.Entries.value(1).ImportAccount, "account");
    }

    void EveryPrefixIsRead()
    {
        const QString text = Fixture();
        for (qsizetype size = 0; size <= text.size(); ++size) {
            QVERIFY(ReadText(text.left(size)).Entries.size() <= 5);
        }
    }
};

TEST_CLASS(testQif, QCoreApplication)
#include "testQif.moc"
