#include "fints/cBankScene.h"
#include "fints/HBCIFactory.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cBankProfile Profile()
{
    cBankProfile profile;
    profile.AskedTans["HKIDN"] = {};
    profile.AskedTans["HKKAZ"] = {};
    return profile;
}

// From the login to the bookings; false as soon as one step fails.
bool Run(cBankScene& scene)
{
    if (!scene.Business.Discover() || !scene.Business.Refresh()) {
        return false;
    }
    return scene.Business.FetchAll(scene.Orders());
}

} // namespace

// What happens between the program and the bank, at each message of a whole run.
class testBusinessLine final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SurvivesAccidents_data()
    {
        QTest::addColumn<QByteArray>("step");
        QTest::addColumn<int>("nth");
        QTest::addColumn<eSpoil>("how");
        QTest::addColumn<eBankFault>("fault");
        const QList<std::pair<eSpoil, eBankFault>> accidents{
            {eSpoil::Silent, eBankFault::Silent},
            {eSpoil::Empty, eBankFault::Silent},
            {eSpoil::NotReachable, eBankFault::NotReachable},
            {eSpoil::Certificate, eBankFault::Certificate},
            {eSpoil::Refused, eBankFault::BrokenAnswer},
            {eSpoil::TooLarge, eBankFault::BrokenAnswer},
            {eSpoil::Cancelled, eBankFault::Cancelled},
            {eSpoil::Html, eBankFault::BrokenAnswer},
            {eSpoil::Error, eBankFault::BrokenAnswer},
            {eSpoil::Cut, eBankFault::BrokenAnswer},
            {eSpoil::Noise, eBankFault::BrokenAnswer},
        };
        const QList<std::pair<QByteArray, int>> steps{{"HKIDN", 1}, {"HKIDN", 2}, {"HKTAN2", 1}, {"HKTAB", 1},
                                                      {"HKIDN", 3}, {"HKKAZ", 1}, {"HKTAN2", 2}, {"HKKAZ", 2}};
        for (const auto& [step, nth] : steps) {
            for (const auto& [how, fault] : accidents) {
                QTest::addRow("%s %d, accident %d", step.constData(), nth, int(how)) << step << nth << how << fault;
            }
        }
        // Everything had come before.
        for (const auto& [how, fault] : accidents) {
            QTest::addRow("balance, accident %d", int(how)) << QByteArray("HKSAL") << 2 << how << eBankFault::None;
            QTest::addRow("end, accident %d", int(how)) << QByteArray("HKEND") << 3 << how << eBankFault::None;
        }
    }

    void SurvivesAccidents()
    {
        QFETCH(QByteArray, step);
        QFETCH(int, nth);
        QFETCH(eSpoil, how);
        QFETCH(eBankFault, fault);
        cBankScene scene(Profile());
        scene.Https.Accident = {.Step = step, .How = how, .Nth = nth};
        QCOMPARE(Run(scene), fault == eBankFault::None);
        QCOMPARE(scene.Fault(), fault);
        QVERIFY(!scene.Business.Failure().IsSet() || !scene.Business.Failure().Text.isEmpty());
        const bool isOpen = step != "HKIDN"; // else there is nothing that could be ended
        QVERIFY(!isOpen || scene.Bank.Journal.constLast() == u"end" || step == "HKEND");
    }

    void ReadsEveryWrapping_data()
    {
        const cTestRows<eSpoil> row("how");
        row("as it is", eSpoil::Plain);
        row("in lines", eSpoil::Lines);
    }

    void ReadsEveryWrapping()
    {
        QFETCH(eSpoil, how);
        cBankScene scene(Profile());
        scene.Https.Accident = {.Step = {}, .How = how, .Nth = 0};
        QVERIFY(Run(scene));
    }

    void StopsWhereTheUserStops()
    {
        cBankScene whole(Profile());
        QVERIFY(Run(whole));
        for (int after = 0; after < whole.Bank.Journal.size(); ++after) {
            const QString last = after == 0 ? QString() : whole.Bank.Journal.at(after - 1);
            const bool isBetween = last.isEmpty() || last == u"end"; // between two dialogs
            cBankScene scene(Profile());
            scene.User.CancelsAfter = after;
            const bool isDone = Run(scene);
            const QString next = whole.Bank.Journal.at(after);
            QVERIFY(!isDone || next == u"end" || next == u"HKSAL5 222"); // all bookings had come
            QVERIFY(isDone || scene.Fault() == eBankFault::Cancelled);
            QCOMPARE(scene.Bank.Journal.size() <= after + (isBetween ? 0 : 2), true);
            QVERIFY(scene.Bank.IsQuiet());
        }
    }

    void StopsWhereTheBankStops_data()
    {
        const cTestRows<QByteArray, int, eBankFault> row("step", "nth", "fault");
        const QList<std::pair<QByteArray, int>> steps{{"HKIDN", 1},  {"HKIDN", 2}, {"HKTAN2", 1},
                                                      {"HKTAB", 1},  {"HKIDN", 3}, {"HKKAZ", 1},
                                                      {"HKTAN2", 2}, {"HKSAL", 1}, {"HKKAZ", 2}};
        for (const auto& [step, nth] : steps) {
            QTest::addRow("%s %d", step.constData(), nth) << step << nth << eBankFault::EndedByBank;
        }
        row("last balance", "HKSAL", 2, eBankFault::None);
        row("end", "HKEND", 1, eBankFault::None);
    }

    // A dialog that the bank ended hears nothing more, not even its end.
    void StopsWhereTheBankStops()
    {
        QFETCH(QByteArray, step);
        QFETCH(int, nth);
        QFETCH(eBankFault, fault);
        cBankScene scene(Profile());
        scene.Bank.Profile.Refusals[step] = {.Nth = nth, .Global = "9800::Dialog abgebrochen."};
        QCOMPARE(Run(scene), fault == eBankFault::None);
        QCOMPARE(scene.Fault(), fault);
        QVERIFY(fault == eBankFault::None || scene.Bank.Journal.constLast() != u"end");
        QVERIFY(scene.Bank.IsQuiet());
    }

    void NamesTheServer()
    {
        cBankScene scene;
        scene.Https.Accident = {.Step = "HKIDN", .How = eSpoil::Silent};
        QVERIFY(!scene.Business.Discover());
        QCOMPARE(scene.Business.Failure().Text,
                 u"Fehler: Der Server 'https://bank.example/fints' antwortet nicht oder nicht schnell genug! "
                 "Versuchen Sie es später noch einmal."_s);
    }

    // The bank of these tests would be worth nothing if it took everything.
    void TheBankNoticesFaults_data()
    {
        const cTestRows<QByteArray, QByteArray, QString> row("from", "to", "complaint");
        row("none", "+0'", "+0'", {});
        row("size", "BK:1:3+0", "BK:1:3+1", u"size"_s);
        row("binary length", "HNVSD:999:1+@2", "HNVSD:999:1+@1", u"frame"_s);
        row("segment number", "VB:4:", "VB:5:", u"number of segment HKVVB"_s);
        row("end number", "HNHBS:7", "HNHBS:8", u"number of the message end"_s);
        row("message number", "+0+1'HNVSK", "+0+2'HNVSK", u"message end"_s);
        row("dialog ID", "+0+1'HNVSK", "+7+1'HNVSK", u"a dialog begins"_s);
        row("system ID", "1::0+1:2", "1::9+1:2", u"customer system"_s);
        row("profile", "3+PIN:1", "3+PIN:2", u"security profile"_s);
        row("PIN", "++12345'", "++12346'", u"PIN"_s);
        row("TAN", "++12345'", "++123:5'", u"no TAN in"_s);
        row("version", "VB:4:3", "VB:4:2", u"preparation"_s);
        row("empty end", ":S:0:0'", ":S:0:+'", u"no empty elements"_s);
    }

    void TheBankNoticesFaults()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, complaint);
        cTestBank bank{{}};
        bank.IsLenient = true;
        const cSecret pin(u"12345");
        cEnvelope envelope;
        envelope.BankCode = u"12345678"_s;
        envelope.UserId = u"testuser"_s;
        envelope.Now = QDateTime(QDate(2026, 3, 1), QTime(12, 34, 56));
        envelope.Pin = &pin;
        QByteArray message = HBCIFactory::Message(envelope,
                                                  {HBCIFactory::Identification(envelope.BankCode, envelope.UserId, "0"),
                                                   HBCIFactory::Preparation(u"300"_s, u"0"_s, u"0"_s,
                                                                            u"PRODUKTID0123456789012345"_s, u"1.00"_s),
                                                   HBCIFactory::Synchronisation(u"300"_s)})
                                 .Text();
        const qsizetype at = message.indexOf(from);
        QVERIFY(at > 0);
        message.replace(at, from.size(), to);
        QVERIFY(!bank.Answer(message.toBase64()).isEmpty());
        const QString complaints = bank.Complaints().join(u'\n');
        QVERIFY2(complaint.isEmpty() ? complaints.isEmpty() : complaints.contains(complaint), qPrintable(complaints));
    }
};

TEST_CLASS(testBusinessLine, QCoreApplication)
#include "testBusinessLine.moc"
