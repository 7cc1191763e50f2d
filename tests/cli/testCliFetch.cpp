#include "app/machine/cFileLock.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "cli/cCliPaint.h"
#include "cli/modCliCommands.h"
#include "cli/modCliMain.h"
#include "support/cTestClass.h"
#include "testbank/cBankHousehold.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

class cNoPaint final : public cCliPaint
{
public:
    QByteArray PaintReport(const QString& /*html*/) override { return {}; }
    QByteArray PaintChart(const cChartData& /*chart*/, ePicture /*picture*/) override { return {}; }
};

// The command in this process, with the bank of the tests behind it. The PIN comes through a pipe, as from a script.
int Run(cHousehold& house, const QStringList& arguments, const QByteArray& pin = "12345\n")
{
    const QTemporaryDir profile;
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0 || ::write(pipe[1], pin.constData(), static_cast<size_t>(pin.size())) != pin.size()) {
        qFatal("no pipe");
    }
    ::close(pipe[1]);
    cQtShell shell(profile.path());
    cQtRegistry registry(profile.path());
    cFileLock lock;
    cNoPaint paint;
    const QStringList whole =
        QStringList{u"fetch"_s, u"--database"_s, house.Path(), u"--pin-fd"_s, QString::number(pipe[0])} + arguments;
    const int code =
        modCliMain::Run(whole, {shell, registry, house.Clock, lock, &paint, &house.Https, u"1.0.0"_s, u"1.0.0"_s});
    ::close(pipe[0]);
    return code;
}

} // namespace

class testCliFetch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FetchesAndTellsByItsCode_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("pin");
        QTest::addColumn<int>("code");
        QTest::addColumn<qsizetype>("rows");
        QTest::newRow("all") << QStringList{} << QByteArray("12345\n") << 0 << qsizetype(7);
        QTest::newRow("chosen") << QStringList{u"--account"_s, u"DE02 1002 0030 0001 2345 67"_s,
                                               u"--blz"_s,     u"12345678"_s,
                                               u"--from"_s,    u"01.03.2026"_s,
                                               u"--json"_s}
                                << QByteArray("12345\n") << 0 << qsizetype(7);
        QTest::newRow("old days") << QStringList{u"--from"_s, u"01.11.2025"_s} << QByteArray("12345\n") << 0
                                  << qsizetype(7);
        QTest::newRow("another account") << QStringList{u"--account"_s, u"4711"_s} << QByteArray() << 1 << qsizetype(0);
        QTest::newRow("no PIN") << QStringList{} << QByteArray() << 1 << qsizetype(0);
        QTest::newRow("empty period") << QStringList{u"--from"_s, u"03.03.2026"_s, u"--to"_s, u"02.03.2026"_s}
                                      << QByteArray("12345\n") << 1 << qsizetype(0);
        QTest::newRow("no day") << QStringList{u"--from"_s, u"irgendwann"_s} << QByteArray() << 2 << qsizetype(0);
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
        QFile file(folder.filePath(u"log.txt"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("HNHBK") && text.contains("9210"));
        QVERIFY(!text.contains("testuser") && !text.contains("1234567") && !text.contains("12345'"));
    }
};

TEST_CLASS(testCliFetch, QCoreApplication)
#include "testCliFetch.moc"
