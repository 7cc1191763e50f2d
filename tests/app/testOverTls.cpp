#include "base/cProgress.h"
#include "cTlsServer.h"
#include "net/cQtHttps.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/modUpdateAnswer.h"
#include "support/testBook.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankSetup.h"
#include "views/help/cUpdateCheck.h"
#include "views/statement/cStatementDesk.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using namespace modUpdateAnswer;
using eState = cUpdateCheck::eState;

namespace {

// The household whose bank is reached over the network.
struct cOnlineHousehold : cHousehold
{
    cOnlineHousehold() { Tell(cBankMonth::Example()); }

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

// Lines of a request: the first one, and the names of the headers.
QByteArray First(const QByteArray& request)
{
    return request.left(request.indexOf("\r\n"));
}

struct cUpdateScene
{
    explicit cUpdateScene(const std::function<QByteArray(const QByteArray&)>& answer)
        : Server(u"bank"_s, [this, answer](const QByteArray&) { return answer(First(Server.Requests.constLast())); })
    {
    }

    cTestBook Book;
    cTlsServer Server;
    cQtHttps Https{{}, cTlsServer::Authority()};
    cUpdateCheck Check{Book.Tools, Book.Configuration, Https, {Server.Url(), u"0.1.0"_s}};
};

} // namespace

// Online banking and the update check through all floors, over TLS on loopback.
class testOverTls final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BringsBytesThereAndBack()
    {
        const QByteArray answer = QByteArray("SE5IQks=\r\n\0") + QByteArray(200'000, '\xe4');
        cTlsServer server(u"bank"_s, [&](const QByteArray&) { return cTlsServer::Page(answer); });
        cQtHttps https({}, cTlsServer::Authority());

        for (int i = 0; i < 2; ++i) {
            const cHttpsAnswer came = https.Post(server.Url(), "SGFsbG8=");
            QCOMPARE(came.Fault, eHttpsFault::None);
            QCOMPARE(came.Bytes, answer);
        }
        QCOMPARE(server.Requests.size(), 2);
        const QByteArray request = server.Requests.constFirst();
        QVERIFY(request.startsWith("POST /fints HTTP/1.1\r\n"));
        QVERIFY(request.toLower().contains("content-type: text/plain\r\n"));
        QVERIFY(request.endsWith("\r\n\r\nSGFsbG8="));
    }

    void SendsNothingWhereItDoesNotTrust_data()
    {
        const cTestRows<QString, bool> row("certificate", "knowsAuthority");
        row("unknown authority", u"bank"_s, false);
        row("another host", u"other"_s, true);
    }

    void SendsNothingWhereItDoesNotTrust()
    {
        QFETCH(QString, certificate);
        QFETCH(bool, knowsAuthority);
        cTlsServer server(certificate, [](const QByteArray&) { return cTlsServer::Page("x"); });
        cQtHttps https({}, knowsAuthority ? cTlsServer::Authority() : QByteArray());

        const cHttpsAnswer came = https.Post(server.Url(), "geheim");

        QCOMPARE(came.Fault, eHttpsFault::Certificate);
        QVERIFY(came.Bytes.isEmpty());
        QVERIFY(server.Requests.isEmpty());
    }

    void SaysWhatWentWrong_data()
    {
        const cTestRows<QByteArray, eHttpsFault, QByteArray> row("answer", "fault", "bytes");
        row("error page", cTlsServer::Page("<html>", "500 Oops"), eHttpsFault::Refused, "<html>");
        row("redirect", cTlsServer::Redirect("https://localhost:1/"), eHttpsFault::Refused, {});
        row("silence", {}, eHttpsFault::Silent, {});
        row("cut", "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabc", eHttpsFault::Silent, {});
        row("hung up", cTlsServer::Hangup, eHttpsFault::Silent, {});
        row("too large", cTlsServer::Page(QByteArray(3000, 'x')), eHttpsFault::TooLarge, {});
        row("no http", "HNHBK:1:3+", eHttpsFault::Silent, {});
    }

    void SaysWhatWentWrong()
    {
        QFETCH(QByteArray, answer);
        cTlsServer server(u"bank"_s, [&](const QByteArray&) { return answer; });
        // Only where nothing comes is it waited for; a busy machine may take its time for the rest.
        const auto silence = answer.isEmpty() ? std::chrono::milliseconds(2s) : std::chrono::milliseconds(60s);
        cQtHttps https({.Silence = silence, .Whole = 60s, .MostBytes = 2000}, cTlsServer::Authority());

        const cHttpsAnswer came = https.Post(server.Url(), "SGFsbG8=");

        QTEST(came.Fault, "fault");
        QTEST(came.Bytes, "bytes");
        QVERIFY(!came.Reason.isEmpty());
        QCOMPARE(server.Requests.size(), 1); // a message with a PIN is never sent twice
        QCOMPARE(https.Post(u"http://localhost/"_s, {}).Fault, eHttpsFault::NotReachable);
        QCOMPARE(https.Post(u"https://localhost:1/"_s, {}).Fault, eHttpsFault::NotReachable);
    }

    void EndsWhenCancelled()
    {
        cTlsServer server(u"bank"_s, [](const QByteArray&) { return QByteArray(); });
        cQtHttps https({}, cTlsServer::Authority());
        https.Cancel(); // nothing runs
        QTimer cancel;
        connect(&cancel, &QTimer::timeout, &cancel, [&] {
            if (!server.Requests.isEmpty()) {
                https.Cancel();
            }
        });
        cancel.start(0);

        QCOMPARE(https.Post(server.Url(), "SGFsbG8=").Fault, eHttpsFault::Cancelled);
    }

    void SetsUpAndFetches()
    {
        cOnlineHousehold scene;
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
        cOnlineHousehold scene;
        cBankState state = *scene.Access.Find(u"12345678"_s, u"testuser"_s);
        state.Url = scene.Server.Url(u"127.0.0.1"_s);
        QVERIFY(scene.Access.Save(state));
        cQtHttps doubtful; // does not know who signed the certificate

        const cBankFetch::cLine line = scene.Fetch(doubtful);
        QCOMPARE(line.Failure.Fault, eBankFault::Certificate);
        QVERIFY(line.Failure.Text.contains(u"Es wurde nichts gesendet"));
        QVERIFY(scene.Server.Requests.isEmpty());
    }

    // What a request of the toolkit would tell besides: language, version of the toolkit.
    void SendsNothingButTheVersion() const
    {
        cUpdateScene scene([](const QByteArray&) { return cTlsServer::Page(All({})); });
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Current);
        QCOMPARE(scene.Server.Requests.size(), 1);
        QByteArrayList lines = scene.Server.Requests.constFirst().trimmed().split('\n');
        for (QByteArray& line : lines) {
            line = line.trimmed();
            line = line.startsWith("Host: localhost:") ? QByteArray("Host: localhost") : line;
        }
        std::sort(lines.begin() + 1, lines.end());
        QCOMPARE(lines,
                 QByteArrayList({"GET /fints?version=0.1.0 HTTP/1.1", "Accept-Encoding: identity", "Accept-Language: *",
                                 "Connection: Keep-Alive", "Host: localhost", "User-Agent: Kontorelle"}));
    }

    void Downloads() const
    {
        cUpdateScene scene([](const QByteArray& request) {
            if (request.contains("/pakete/alt.deb")) {
                return cTlsServer::Redirect("/pakete/kontorelle_0.3.0.deb"); // within the server
            }
            return request.contains("/pakete/") ? cTlsServer::Page(Package)
                                                : cTlsServer::Page(All(Release("0.3.0", File("pakete/alt.deb"))));
        });
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Found);
        const QString path = scene.Book.Shell.Folder(u"Downloads"_s) + u"/neu.deb"_s;
        scene.Book.User.SavePath = path;
        scene.Check.Download();
        QCOMPARE(scene.Book.User.Shown, QStringList());
        QCOMPARE(scene.Check.State(), eState::Loaded);
        QCOMPARE(cTestFile::Bytes(path), Package);
        QCOMPARE(First(scene.Server.Requests.constLast()), "GET /pakete/kontorelle_0.3.0.deb HTTP/1.1");
    }

    void StaysOnTheServer_data() const
    {
        const cTestRows<QString> row("to");
        row("another port", u"https://localhost:%1/"_s);
        row("another name of the host", u"https://127.0.0.1:%1/"_s);
        row("without encryption", u"http://localhost:%1/"_s);
    }

    void StaysOnTheServer() const
    {
        QFETCH(const QString, to);
        cTlsServer other(u"bank"_s, [](const QByteArray&) { return cTlsServer::Page(All(Release("0.3.0", File()))); });
        const QString target = to.arg(QUrl(other.Url()).port());
        cUpdateScene scene([&](const QByteArray&) { return cTlsServer::Redirect(target.toUtf8()); });
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Failed);
        QVERIFY2(scene.Check.Headline().startsWith(u"localhost gibt keine Auskunft"_s),
                 qPrintable(scene.Check.Headline()));
        QVERIFY(other.Requests.isEmpty());
    }

    void EndlessAnswersAreCut() const
    {
        cUpdateScene scene(
            [&](const QByteArray&) { return cTlsServer::Page(All(QByteArray(qsizetype{300} * 1024, ' '))); });
        scene.Check.Look();
        QCOMPARE(scene.Check.Headline(),
                 u"localhost sendet mehr, als angekündigt war. Es wurde nichts davon behalten."_s);
    }

    void CancelledDownloadLeavesNothing() const
    {
        cUpdateScene scene([](const QByteArray& request) {
            return request.contains("/pakete/") ? QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 999\r\n\r\n\x7f")
                                                : cTlsServer::Page(All(Release("0.3.0", File())));
        });
        scene.Check.Look();
        const QString path = scene.Book.Shell.Folder(u"Downloads"_s) + u"/neu.deb"_s;
        scene.Book.User.SavePath = path;
        connect(&scene.Check, &cUpdateCheck::Arrived, &scene.Check, &cUpdateCheck::Cancel);
        scene.Check.Download();
        QCOMPARE(scene.Check.State(), eState::Found);
        QCOMPARE(scene.Book.User.Shown, QStringList());
        QVERIFY(!QFile::exists(path));
    }
};

TEST_CLASS(testOverTls, QCoreApplication)
#include "testOverTls.moc"
