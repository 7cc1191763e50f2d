#include "runInside.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "testbank/cBankHousehold.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

int Run(cHousehold& house, const QStringList& arguments, const QByteArray& pin = "12345\n")
{
    const QTemporaryDir profile;
    const QStringList whole{u"fetch"_s, u"--database"_s, house.Path(), u"--pin-fd"_s, u"PIN"_s};
    return RunInside({profile.path(), house.Clock, house.Https, pin}, whole + arguments);
}

} // namespace

class testCliFetch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FetchesAndTellsByItsCode_data()
    {
        const cTestRows<QStringList, QByteArray, int, qsizetype> row("arguments", "pin", "code", "rows");
        row("all", {}, "12345\n", 0, 7);
        row("chosen",
            {u"--account"_s, u"DE02 1002 0030 0001 2345 67"_s, u"--blz"_s, u"12345678"_s, u"--from"_s, u"01.03.2026"_s,
             u"--json"_s},
            "12345\n", 0, 7);
        row("old days", {u"--from"_s, u"01.11.2025"_s}, "12345\n", 0, 7);
        row("another account", {u"--account"_s, u"4711"_s}, {}, 1, 0);
        row("no PIN", {}, {}, 1, 0);
        row("empty period", {u"--from"_s, u"03.03.2026"_s, u"--to"_s, u"02.03.2026"_s}, "12345\n", 1, 0);
        row("no day", {u"--from"_s, u"irgendwann"_s}, {}, 2, 0);
    }

    void FetchesAndTellsByItsCode()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, pin);
        cHousehold house;
        house.Tell(cBankMonth::Example());
        QTEST(Run(house, arguments, pin), "code");
        QTEST(house.Data.GetImportEntries().size(), "rows");
    }

    // The log is written of what failed as well, and tells of nobody.
    void WritesTheLog()
    {
        cHousehold house;
        house.Tell(cBankMonth::Example());
        house.Bank.Profile.Accounts.first().Refusal = "9210::Konto gesperrt.";
        const QTemporaryDir folder;
        QCOMPARE(Run(house, {u"--log"_s, folder.filePath(u"log.txt"_s)}), 1);
        const QByteArray text = cTestFile::Bytes(folder.filePath(u"log.txt"_s));
        QVERIFY(text.contains("HNHBK") && text.contains("9210"));
        QVERIFY(!text.contains("testuser") && !text.contains("1234567") && !text.contains("12345'"));
    }
};

TEST_CLASS(testCliFetch, QCoreApplication)
#include "testCliFetch.moc"
