#include "store/cDataAccess.h"
#include "support/cNoRoom.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "views/list/modFileWrite.h"

#include <QDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

class testFileWrite final : public QObject
{
    Q_OBJECT

private:
    cTestFile m_files;

    [[nodiscard]] QStringList Names() const
    {
        return QDir(m_files.Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void cleanup()
    {
        for (const QString& name : Names()) {
            QFile::remove(m_files.Path(name));
            QDir().rmdir(m_files.Path(name));
        }
    }

    // The last byte counts: a file that is cut there is not the new one.
    void FullDiskKeepsTheOldFile()
    {
        const QString path = m_files.Path(u"a.csv"_s);
        QCOMPARE(modFileWrite::Replace(path, "old"), QString());
        QCOMPARE(QFile::permissions(path) & QFile::WriteOther, QFile::Permissions());
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        {
            const cNoRoom room(9);
            QCOMPARE(modFileWrite::Replace(path, "ten bytes."), u"Die Datei ist für diesen Datenträger zu groß."_s);
        }
        QCOMPARE(cTestFile::Bytes(path), QByteArray("old"));
        QCOMPARE(Names(), QStringList(u"a.csv"_s));
        QCOMPARE(modFileWrite::Replace(path, "ten bytes."), QString());
        QCOMPARE(cTestFile::Bytes(path), QByteArray("ten bytes."));
        const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(path) & others, QFile::Permissions()); // who kept it to himself still does
    }

    // A program that is killed has written some of the file beside the target.
    void LeftoverOfAKillGoes()
    {
        const QString path = m_files.Path(u"Bericht.pdf"_s);
        const pid_t child = fork();
        if (child == 0) {
            std::signal(SIGXFSZ, SIG_DFL); // ends the program in the middle of the write
            const rlimit limit{3, 3};
            setrlimit(RLIMIT_FSIZE, &limit);
            (void)modFileWrite::Replace(path, "new and longer");
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(Names().size(), 1);
        QCOMPARE(modFileWrite::Replace(path, "new"), QString());
        QCOMPARE(Names(), QStringList(u"Bericht.pdf"_s));
    }

    void OnlyRegularFilesAreReplaced()
    {
        const QString pipe = m_files.Path(u"pipe"_s);
        const QString folder = m_files.Path(u"folder"_s);
        const QString dangling = m_files.Path(u"dangling"_s);
        const QString link = m_files.Path(u"link"_s);
        const QString target = m_files.Path(u"target"_s);
        QVERIFY(mkfifo(qPrintable(pipe), 0600) == 0 && QDir().mkdir(folder) && QFile::link(u"nothing"_s, dangling));
        cTestFile::Write(target, "old");
        QVERIFY(QFile::link(target, link));
        const QStringList before = Names();
        QCOMPARE(modFileWrite::Replace(folder, "x"), u"Unter diesem Namen gibt es einen Ordner."_s);
        QCOMPARE(modFileWrite::Replace(dangling, "x"),
                 u"Sie ist eine Verknüpfung mit einer Datei, die es nicht gibt."_s);
        for (const QString& path : {pipe, u"/dev/null"_s}) {
            QVERIFY2(modFileWrite::Replace(path, "x").contains(u"Gerät"_s), qPrintable(path));
        }
        QCOMPARE(modFileWrite::Replace(m_files.Path(u"missing/a"_s), "x"),
                 u"Den Ordner '%1' gibt es nicht."_s.arg(m_files.Path(u"missing"_s)));
        QCOMPARE(modFileWrite::Replace(link, "new"), QString());
        QCOMPARE(cTestFile::Bytes(target), QByteArray("new"));
        QCOMPARE(Names(), before);
    }

    void NoDatabaseIsReplaced_data()
    {
        const cTestRows<QString> row("name");
        row("itself", u"data.db"_s);
        row("its link", u"link.pdf"_s);
        row("its journal", u"data.db-journal"_s);
        row("its lock", u"data.db.lock"_s);
    }

    void NoDatabaseIsReplaced()
    {
        QFETCH(const QString, name);
        const QByteArray book("SQLite format 3\0 and more", 25);
        cTestFile::Write(m_files.Path(u"data.db"_s), book);
        QVERIFY(QFile::link(u"data.db"_s, m_files.Path(u"link.pdf"_s)));
        QVERIFY(modFileWrite::Replace(m_files.Path(name), "%PDF").contains(u"Haushaltsbuch"_s));
        QCOMPARE(cTestFile::Bytes(m_files.Path(u"data.db"_s)), book);
        QCOMPARE(Names(), (QStringList{u"data.db"_s, u"link.pdf"_s}));
    }

    void BookThatCouldNotBeReadIsNotExported()
    {
        const QString path = m_files.Path(u"a.csv"_s);
        cDatabase database(0); // waits for nobody
        database.Open(m_files.Make(), eOpenMode::ReadWrite);
        cFakeUser user;
        cDataAccess data(database, user);
        QCOMPARE(modFileWrite::Export(data, path, "yesterday"), QString());
        {
            cDatabase other;
            other.Open(database.Path(), eOpenMode::ReadWrite);
            other.Execute("BEGIN EXCLUSIVE");
            QVERIFY(data.GetTemplates().isEmpty());
        }
        QVERIFY(modFileWrite::Export(data, path, "today").contains(u"nicht vollständig gelesen"_s));
        QCOMPARE(cTestFile::Bytes(path), QByteArray("yesterday"));
        QCOMPARE(data.GetTemplates().size(), 1);
        QCOMPARE(modFileWrite::Export(data, path, "today"), QString());
    }
};

TEST_CLASS(testFileWrite, QCoreApplication)
#include "testFileWrite.moc"
