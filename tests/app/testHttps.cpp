#include "cTlsServer.h"
#include "net/cQtHttps.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

// The way to a bank, over TLS on loopback.
class testHttps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BringsBytesThereAndBack()
    {
        const QByteArray answer = QByteArray("SE5IQks=\r\n\0") + QByteArray(200'000, '\xe4');
        cTlsServer server(u"bank"_s, [&](const QByteArray&) { return cTlsServer::Page(answer); });
        QVERIFY(server.IsListening());
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
        QVERIFY(server.IsListening());
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
        QVERIFY(server.IsListening());
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
        QVERIFY(server.IsListening());
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
};

TEST_CLASS(testHttps, QCoreApplication)
#include "testHttps.moc"
