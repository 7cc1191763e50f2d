#include "base/cProgress.h"
#include "cTlsServer.h"
#include "net/cQtHttps.h"
#include "support/cTestClass.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankSetup.h"
#include "views/statement/cStatementDesk.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The household whose bank is reached over the network.
struct cScene : cHousehold
{
    cScene() { Tell(cBankMonth::Example()); }

    // All accounts, with what is proposed.
    [[nodiscard]] cBankFetch::cLine Fetch(cHttps& https)
    {
        cStatementDesk desk(Tools);
        cBankFetch fetch(Tools, desk.Files(), {https, Customer, u"1.0.0"_s});
        cNoProgress progress;
        (void)fetch.Run({}, progress); // the line says it
        return fetch.Lines().value(0);
    }

    cTlsServer Server{u"bank"_s, [this](const QByteArray& body) { return cTlsServer::Page(Bank.Answer(body)); }};
    cQtHttps Secure{{}, cTlsServer::Authority()};
};

} // namespace

// Online banking through all floors, over TLS on loopback.
class testBankOverTls final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetsUpAndFetches()
    {
        cScene scene;
        QVERIFY(scene.Access.Remove(u"12345678"_s, u"testuser"_s));
        cBankDirectory directory(scene.Shell);
        cBankSetup setup({scene.Tools, directory, scene.Secure, scene.Customer, u"1.0.0"_s});
        setup.ChooseCode(u"12345678"_s);
        setup.SetUrl(scene.Server.Url());
        QVERIFY(setup.Next());
        setup.SetUserId(u"testuser"_s);
        QVERIFY2(setup.Next(), qPrintable(setup.Problem()));
        QVERIFY(setup.Next());
        QCOMPARE(setup.Page(), cBankSetup::ePage::Done);

        const cBankFetch::cLine line = scene.Fetch(scene.Secure);
        QVERIFY2(line.State == cBankFetch::eState::Done, qPrintable(line.Failure.Text));
        QCOMPARE(line.New, 7);
        QCOMPARE(line.Balance, std::optional(cBankMonth::Example().Closing()));
        QCOMPARE(scene.Bank.Complaints(), QStringList());
    }

    void AStrangerHearsNothing()
    {
        cScene scene;
        cBankState state = *scene.Access.Find(u"12345678"_s, u"testuser"_s);
        state.Url = scene.Server.Url(u"127.0.0.1"_s);
        QVERIFY(scene.Access.Save(state));
        cQtHttps doubtful; // does not know who signed the certificate

        const cBankFetch::cLine line = scene.Fetch(doubtful);
        QCOMPARE(line.Failure.Fault, eBankFault::Certificate);
        QVERIFY(line.Failure.Text.contains(u"Es wurde nichts gesendet"));
        QVERIFY(scene.Server.Requests.isEmpty());
    }
};

TEST_CLASS(testBankOverTls, QCoreApplication)
#include "testBankOverTls.moc"
