#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Its rows do not lead from the first balance to the last one: an expense of 23.10 euros is missing.
constexpr const char* incomplete =
    ":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C260201EUR900,00\r\n"
    ":61:260204D660,00N024NONREF\r\n:86:106?00DAUERAUFTRAG?20SVWZ+Miete Februar?32Tann\r\n"
    ":62F:C260205EUR216,90\r\n-\r\n";

} // namespace

// The statement of a bank account from the command line, from the file of the bank to what is wrong with it.
class testCliStatement final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Renew(); }
    void ShowsWhatIsMissing()
    {
        Do(u"import|--book-account|Girokonto|"_s + Write(u"giro.sta"_s, incomplete));
        // Another number of the account, as online banking names it: no rows are read for it.
        cTestFile::Run(
            Book(),
            "INSERT INTO setting (SettingName, SettingValue) VALUES ('KTO:DE02120300000000202051', 'Girokonto')");
        QCOMPARE(Run(u"reconcile|--account|DE02120300000000202051"_s).Code, 1);
        const QJsonObject all = Do(u"statement|--account|girokonto|--json"_s).Object();
        QCOMPARE(cCliRun::Column(all.value(u"Differences"_s).toArray(), u"Missing"_s), QStringList(u"-23.1"_s));
        QCOMPARE(cCliRun::Column(all.value(u"Differences"_s).toArray(), u"From"_s), QStringList(u"2026-02-02"_s));
        QCOMPARE(cCliRun::Column(all.value(u"Rows"_s).toArray(), u"Balance"_s), QStringList(u"216.9"_s));
        QVERIFY(Run(u"statement|--from|2026-02-05"_s).Out.contains(u"Ab dem 02.02.2026 fehlen 23,10"));
        QCOMPARE(Run(u"statement|--account|4712"_s).Code, 1);
    }

    void OlderStatementMovesTheStart_data()
    {
        const cTestRows<bool> row("together");
        row("one after the other", false);
        row("as one import", true);
    }

    // Its rows would count on top of the start balance, which the later statement brought. It is told once by import.
    void OlderStatementMovesTheStart()
    {
        QFETCH(const bool, together);
        const QString giro = u"import|--book-account|Girokonto|"_s;
        const QString later = Write(u"2.sta"_s, QByteArray(incomplete).replace("216,90", "240,00"));
        const QString earlier = Write(u"1.sta"_s,
                                      ":20:A\n:25:99900010/4711000815\n:60F:C251231EUR1000,00\n:61:260115D100,00NMSC\n"
                                      ":86:106?20Korn\n:62F:C260131EUR900,00\n-\n");
        const cCliRun run = together ? Do(giro + later + u'|' + earlier) : (Do(giro + later), Do(giro + earlier));
        QVERIFY2(run.Error.contains(u"Startguthaben von 'Girokonto': 1.000,00"), qPrintable(run.Text()));
        QCOMPARE(run.Error.count(u"Startguthaben"_s), 1);
        Do(u"book|--all"_s);
        QVERIFY(Do(u"reconcile"_s).Out.contains(u"240,00"));
    }

    // Rows of an earlier statement waited for the account, so nothing of it has counted yet.
    void StartComesWithTheAccount()
    {
        Do(u"import|--keep-start|--book-account|Girokonto|"_s + Write(u"1.sta"_s, incomplete));
        cTestFile::Run(Book(), "DELETE FROM setting WHERE SettingName LIKE 'KTO:%'");
        const cCliRun next = Do(u"import|--book-account|Girokonto|"_s
                                + Write(u"2.sta"_s, QByteArray(incomplete).replace("2602", "2603")));
        QVERIFY2(next.Error.contains(u"Startguthaben von 'Girokonto': 900,00"), qPrintable(next.Text()));
    }

    // The first statement brings the start balance, and the book agrees once its row is booked.
    void ReconcilesRowByRow()
    {
        const cCliRun import = Do(u"import|--book-account|Girokonto|"_s
                                  + Write(u"giro.sta"_s, QByteArray(incomplete).replace("216,90", "240,00")));
        QVERIFY2(import.Error.contains(u"Startguthaben von 'Girokonto': 900,00"), qPrintable(import.Text()));
        const QJsonObject open = Run(u"reconcile|--json"_s).Object();
        QCOMPARE(cCliRun::Column(open.value(u"Differences"_s).toArray(), u"Kind"_s), QStringList(u"bank only"_s));
        QCOMPARE(Run(u"reconcile|--confirm"_s).Code, 1);
        Do(u"book|--all"_s);
        Says(u"reconcile|--confirm"_s, {u"stimmt bis 05.02.2026"_s});
    }
};

TEST_CLASS(testCliStatement, QCoreApplication)
#include "testCliStatement.moc"
