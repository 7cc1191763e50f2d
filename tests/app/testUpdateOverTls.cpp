#include "cTlsServer.h"
#include "net/cQtHttps.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/modUpdateAnswer.h"
#include "support/testBook.h"
#include "views/help/cUpdateCheck.h"

using namespace Qt::Literals::StringLiterals;
using namespace modUpdateAnswer;
using namespace std::chrono_literals;
using eState = cUpdateCheck::eState;

namespace {

// Lines of a request: the first one, and the names of the headers.
QByteArray First(const QByteArray& request)
{
    return request.left(request.indexOf("\r\n"));
}

struct cScene
{
    explicit cScene(const std::function<QByteArray(const QByteArray&)>& answer, cQtHttps::cLimits limits = {})
        : Server(u"bank"_s, [this, answer](const QByteArray&) { return answer(First(Server.Requests.constLast())); }),
          Https(limits, cTlsServer::Authority())
    {
    }

    cTestBook Book;
    cTlsServer Server;
    cQtHttps Https;
    cUpdateCheck Check{Book.Tools, Book.Configuration, Https, {Server.Url(), u"0.1.0"_s}};
};

} // namespace

// The update check over TLS on loopback.
class testUpdateOverTls final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a request of the toolkit would tell besides: language, version of the toolkit.
    void SendsNothingButTheVersion() const
    {
        cScene scene([](const QByteArray&) { return cTlsServer::Page(All({})); });
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
        cScene scene([](const QByteArray& request) {
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
        cScene scene([&](const QByteArray&) { return cTlsServer::Redirect(target.toUtf8()); });
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Failed);
        QVERIFY2(scene.Check.Headline().startsWith(u"localhost gibt keine Auskunft"_s),
                 qPrintable(scene.Check.Headline()));
        QVERIFY(other.Requests.isEmpty());
    }

    void EndsWithoutAnAnswer_data() const
    {
        const cTestRows<QByteArray, QString> row("answer", "headline");
        row("silence", {}, u"localhost antwortet nicht. Versuchen Sie es später noch einmal."_s);
        row("cut", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n<kontorelle/>",
            u"localhost antwortet nicht. Versuchen Sie es später noch einmal."_s);
        row("no end of it", cTlsServer::Page(All(QByteArray(qsizetype{300} * 1024, ' '))),
            u"localhost sendet mehr, als angekündigt war. Es wurde nichts davon behalten."_s);
        row("not there", cTlsServer::Page(All({}), "404 Not Found"),
            u"localhost gibt keine Auskunft (HTTP 404). Versuchen Sie es später noch einmal."_s);
    }

    void EndsWithoutAnAnswer() const
    {
        QFETCH(const QByteArray, answer);
        // Only where nothing comes is it waited for; a busy machine may take its time for the rest.
        cQtHttps::cLimits limits;
        limits.Silence = answer.isEmpty() ? std::chrono::milliseconds(2s) : std::chrono::milliseconds(60s);
        cScene scene([&](const QByteArray&) { return answer; }, limits);
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Failed);
        QTEST(scene.Check.Headline(), "headline");
    }

    void CancelledDownloadLeavesNothing() const
    {
        cScene scene([](const QByteArray& request) {
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

TEST_CLASS(testUpdateOverTls, QCoreApplication)
#include "testUpdateOverTls.moc"
