#include "core/cStartRequest.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

using namespace Qt::Literals::StringLiterals;

class testStartRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // By their content, so that a bank file never ends in the questions around a damaged book.
    void SortsFiles_data()
    {
        const cTestRows<QStringList, QString, QStringList, QString> row("files", "book", "statements", "error");
        row("nothing", {}, u""_s, {}, u""_s);
        row("book", {u"haushalt.xyz"_s}, u"haushalt.xyz"_s, {}, u""_s);
        row("new book", {u"neu.db"_s}, u"neu.db"_s, {}, u""_s);
        row("damaged book", {u"kaputt.db"_s}, u"kaputt.db"_s, {}, u""_s);
        row("statements", {u"a.sta"_s, u"b.xml"_s}, u""_s, {u"a.sta"_s, u"b.xml"_s}, u""_s);
        row("both", {u"a.sta"_s, u"haushalt.xyz"_s}, u"haushalt.xyz"_s, {u"a.sta"_s}, u""_s);
        row("two books", {u"kaputt.db"_s, u"haushalt.xyz"_s}, u""_s, {}, u"nur ein Haushaltsbuch"_s);
        row("folder", {u"."_s}, u""_s, {}, u"ist ein Ordner"_s);
        row("missing", {u"fehlt.sta"_s}, u""_s, {}, u"gibt es nicht"_s);
    }

    void SortsFiles()
    {
        QFETCH(const QStringList, files);
        QFETCH(const QString, book);
        QFETCH(const QStringList, statements);
        QFETCH(const QString, error);
        const auto full = [this](const QString& name) { return name.isEmpty() ? name : m_folder.Path(name); };
        const QStringList paths = Each(files, full);
        cStartRequest request;
        QVERIFY2(request.TakeFiles(paths).contains(error), qPrintable(request.TakeFiles(paths)));
        QCOMPARE(request.TakeFiles(paths).isEmpty(), error.isEmpty());
        QCOMPARE(request.Book, full(book));
        QCOMPARE(request.Statements, Each(statements, full));
    }

    void initTestCase()
    {
        cTestFile::Write(m_folder.Path(u"haushalt.xyz"_s), "SQLite format 3\0 and more"_ba);
        cTestFile::Write(m_folder.Path(u"kaputt.db"_s), "no database any more");
        cTestFile::Write(m_folder.Path(u"a.sta"_s), ":20:STARTUMS");
        cTestFile::Write(m_folder.Path(u"b.xml"_s), "<Document/>");
    }

private:
    cTestFile m_folder;
};

TEST_CLASS(testStartRequest, QCoreApplication)
#include "testStartRequest.moc"
