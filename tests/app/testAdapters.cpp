#include "app/machine/cFileLock.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cSingleInstance.h"
#include "app/machine/modQtFilter.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <filesystem>
#include <thread>

using namespace Qt::Literals::StringLiterals;

// The adapters to the machine, against a real folder.
class testAdapters final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RegistryKeepsKeysApart()
    {
        const QString text = u"C:\\Müller, \"Haushalt\"; 100 %"_s;
        QVERIFY(cQtRegistry(m_folder.path()).Write(m_key, u"Database"_s, text));
        cQtRegistry registry(m_folder.path());
        QCOMPARE(registry.Read(eRegistryScope::User, m_key, u"Database"_s), text);
        QCOMPARE(registry.Read(eRegistryScope::User, m_legacyKey, u"Database"_s), QString());
        QVERIFY(registry.Delete(m_key, u"Database"_s) && registry.Delete(m_key, u"Database"_s));
        QCOMPARE(registry.Read(eRegistryScope::User, m_key, u"Database"_s), QString());
    }

    void ProfileDoesNotSeeTheMachine()
    {
        cQtRegistry registry(m_folder.path());
        QVERIFY(registry.Write(m_legacyKey, u"Passwort"_s, u"x"_s));
        QCOMPARE(registry.Read(eRegistryScope::Machine, m_legacyKey, u"Passwort"_s), QString());
    }

    void DataFolderLiesBelowTheProfile()
    {
        const QString profile = m_folder.filePath(u"new/profile"_s);
        const QString folder = cQtShell(profile).DataFolder();
        QCOMPARE(folder, profile + u"/Veltrino Kontorelle"_s);
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(QFile::permissions(folder) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner); // nobody else looks into it
    }

    void CopyIsTheUsersOwn()
    {
        const QString source = NewFile(u"template"_s);
        QVERIFY(QFile::setPermissions(source,
                                      QFileDevice::ReadOwner | QFileDevice::ReadOther)); // as the system installs it
        const QString copy = m_folder.filePath(u"copy"_s);
        cQtShell shell(m_folder.path());
        QVERIFY(shell.CopyFile(source, copy));
        constexpr QFileDevice::Permissions others =
            QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
        QVERIFY(QFile::permissions(copy).testFlag(QFileDevice::WriteOwner));
        QVERIFY(!QFile::permissions(copy).testAnyFlags(others));
        QVERIFY(!shell.CopyFile(source, copy)); // what is there stays
    }

    void LockIsForOne()
    {
        const QString path = NewFile(u"book.db"_s);
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(path), eLockState::Foreign);
        QVERIFY(cFileLock::Holder(path).contains(QCoreApplication::applicationName()));
        first.Release();
        QCOMPARE(cFileLock::Holder(path), QString());
        QCOMPARE(second.Take(path), eLockState::Held);
    }

    void TwoPathsOfOneFileShareTheLock()
    {
        const QString path = NewFile(u"one.db"_s);
        const QString link = m_folder.filePath(u"link.db"_s);
        QVERIFY(QFile::link(path, link));
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Foreign);
        QCOMPARE(second.Take(m_folder.path() + u"/./one.db"_s), eLockState::Foreign);
    }

    void HardLinksShareTheLock()
    {
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        const auto restore = qScopeGuard([&] { qputenv("XDG_RUNTIME_DIR", before); });
        const QString path = NewFile(u"hard.db"_s);
        const QString link = m_folder.filePath(u"other.db"_s);
        std::filesystem::create_hard_link(path.toStdString(), link.toStdString());
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Foreign);
        QVERIFY(second.HolderOf(link).contains("unter einem anderen Namen"_L1));
        QVERIFY(!second.IsAbandoned(link));
        // The book was replaced: the lock goes over to the file that has its name now.
        QVERIFY(QFile::remove(path));
        (void)NewFile(u"hard.db"_s);
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Held);
    }

    void LeftoverLockIsTakenOver()
    {
        const QString path = NewFile(u"left.db"_s);
        // A process number beyond what the system gives out: that program is gone.
        cTestFile::Write(path + u".lock"_s, "99999999\nkontorelle\n" + QSysInfo::machineHostName().toUtf8() + "\n");
        cFileLock mine;
        QCOMPARE(mine.Take(path), eLockState::Held);
    }

    void AbandonedLock_data()
    {
        const cTestRows<QByteArray, QString> row("content", "holder");
        row("empty after a power cut", {}, u"ein unbekanntes Programm, seit "_s);
        row("another machine", "4711\nkontorelle\nanderer\n", u"kontorelle (Prozess 4711 auf anderer, seit "_s);
    }

    void AbandonedLock()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, holder);
        const QString path = NewFile(u"abandoned.db"_s);
        cTestFile::Write(path + u".lock"_s, content);
        cFileLock mine;
        QCOMPARE(mine.Take(path), eLockState::Foreign);
        QVERIFY(mine.IsAbandoned(path));
        QVERIFY2(mine.HolderOf(path).startsWith(holder), qPrintable(mine.HolderOf(path)));
        QCOMPARE(mine.TakeOver(path), eLockState::Held);
        cFileLock other;
        QVERIFY(!other.IsAbandoned(path)); // whoever lives keeps it
        QCOMPARE(other.TakeOver(path), eLockState::Foreign);
    }

    void SecondStartHandsOverToTheFirst()
    {
        const QString path = NewFile(u"shown.db"_s);
        cSingleInstance first;
        first.Listen(path);
        const QDir runtime(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
        QVERIFY(!runtime.entryList({u"kontorelle-*"_s}, QDir::System).isEmpty()); // where only this user can get at it
        const cStartRequest wanted{
            .Statements = {u"/tmp/Auszug März.sta"_s}, .IsNewEntry = true, .Activation = QByteArrayLiteral("token")};
        std::optional<cStartRequest> got;
        QSignalSpy asked(&first, &cSingleInstance::Requested);
        connect(&first, &cSingleInstance::Requested, this, [&](const cStartRequest& request) { got = request; });
        bool isAnswered = false;
        std::thread second([&] { isAnswered = cSingleInstance::HandOver(path, wanted); });
        QVERIFY(asked.wait());
        second.join();
        QVERIFY(isAnswered);
        QCOMPARE(got, std::optional(wanted));
    }

    void NobodyToRaise() { QVERIFY(!cSingleInstance::HandOver(NewFile(u"alone.db"_s), {})); }

    void FiltersForFileDialogs_data()
    {
        const cTestRows<QString, QString> row("pairs", "filter");
        row("one mask", u"Datenbanken|*.db"_s, u"Datenbanken (*.db)"_s);
        row("several masks, then all", u"Auszüge|*.csv;*.mt940|Alle Dateien|*.*"_s,
            u"Auszüge (*.csv *.mt940);;Alle Dateien (*)"_s);
        row("name without mask", u"Alle"_s, {});
    }

    void FiltersForFileDialogs()
    {
        QFETCH(const QString, pairs);
        QTEST(modQtFilter::FromPairs(pairs), "filter");
    }

private:
    [[nodiscard]] QString NewFile(const QString& name) const
    {
        cTestFile::Write(m_folder.filePath(name), {});
        return m_folder.filePath(name);
    }

    QTemporaryDir m_folder;
    const QString m_key = u"SOFTWARE\\Veltrino Kontorelle"_s;
    const QString m_legacyKey = u"SOFTWARE\\KontorelleFreeware"_s;
};

TEST_CLASS(testAdapters, QCoreApplication)
#include "testAdapters.moc"
