#include "cCliRun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// Online banking from the command line.
class testCliBank final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FindsABankWithoutABook()
    {
        const QTemporaryDir folder;
        const cCliRun found = cCliRun::GoodLine(folder.path(), u"bank-search|DE89|3704|0044|0532|0130|00|--json"_s);
        QCOMPARE(found.Column(u"Code"_s), QStringList(u"37040044"_s));
        QCOMPARE(found.Column(u"Url"_s), QStringList(u"https://fints.commerzbank.de/fints"_s));
        QVERIFY(cCliRun::GoodLine(folder.path(), u"bank-search|bundesbank"_s).Out.contains(u"keine Adresse bekannt"));
        QVERIFY(cCliRun::GoodLine(folder.path(), u"bank-search|sparkasse"_s).Out.contains(u"passen auch"));

        const cCliRun wrong = cCliRun::Line(folder.path(), u"bank-search|DE89370400440532013001|--json"_s);
        QCOMPARE(wrong.Code, 1);
        QVERIFY(wrong.Error.contains(u"Prüfziffern"));
        QCOMPARE(wrong.Json().size(), 0);
        QVERIFY(QDir(folder.path()).isEmpty()); // neither a book nor a folder for one
    }
};

QTEST_GUILESS_MAIN(testCliBank)
#include "testCliBank.moc"
