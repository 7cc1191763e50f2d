#include "app/cMainProgram.h"
#include "support/cTestFile.h"
#include "support/fakes.h"
#include "windows/main/frmMain.h"

#include <QDir>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry = "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2026-01-31', 'Giro');";

// The window program on a book of a temporary folder.
struct cMachine
{
    [[nodiscard]] QStringList Copies() const
    {
        return QDir(File.Path(u"Sicherungen"_s)).entryList(QDir::Files, QDir::Name);
    }

    cTestFile File;
    cFakeShell Shell;
    cFakeUser User;
    cFakeRescue Rescue;
    cFakeClock Clock{QDate(2026, 3, 15)};
    cFakeRegistry Registry;
    const cMainProgram::cPorts Ports{Shell, Registry, User, Rescue, Clock};
};

} // namespace

class testMainProgram final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Closed, a changed book is copied; opened and closed again it is not, although the window has stored its view.
    void CopyAtClosing() const
    {
        cMachine machine;
        const QString path = machine.File.Make(oneEntry);
        for (const QString& day : {u"15"_s, u"16"_s}) {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            machine.Clock.Day = QDate(2026, 3, day.toInt());
            QVERIFY(program.Start({.Book = path}));
            QVERIFY(program.Window().close());
            QCOMPARE(machine.Copies(), QStringList(u"data-auto-2026-03-15.backup"_s));
        }
        QCOMPARE(machine.User.Shown, QStringList());
    }

    // Nothing that the window shows reads this table, so nothing else would come upon it.
    void DamageIsFoundAndSaidOnce() const
    {
        cMachine machine;
        const QString path = machine.File.Make(oneEntry);
        {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path})); // brings the file up to date
        }
        cTestFile::Damage(path, "account");
        cMainProgram program(machine.Ports, u"0.1.0"_s);
        QVERIFY(program.Start({.Book = path}));
        QTRY_COMPARE(machine.User.Asked.size(), 1);
        QVERIFY(machine.User.Asked[0].contains(u"ist beschädigt"_s));
        QVERIFY(program.Window().close());
        QCOMPARE(machine.User.Asked.size(), 1);
        QCOMPARE(machine.Copies(), QStringList());
    }

    // A failure marks the status bar until the log was looked at. A run that was killed is told of at the next start
    // and never again, and a second program that is still alive is not taken for one.
    void FailuresAndBrokenRunsAreTold() const
    {
        cMachine machine;
        const QString path = machine.File.Make(oneEntry);
        {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path}));
            const auto* mark = program.Window().statusBar()->findChild<QToolButton*>();
            QTest::qWait(50);
            QCOMPARE(machine.User.Asked, QStringList());
            QVERIFY(!mark->isVisible());
            program.Tools().User.Show(eTone::Critical, u"Der Name ist zu lang."_s);
            QVERIFY(mark->isVisible());
            const QString log = program.Log().Files().value(0);
            QVERIFY(QFile::copy(log, QFileInfo(log).path() + u"/kontorelle-20260101-000000-1-0.log"_s));
        }
        for (int start = 0; start < 2; ++start) {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path}));
            QTest::qWait(50);
            QCOMPARE(machine.User.Asked.size(), 1);
            QVERIFY(machine.User.Asked[0].contains(u"nicht ordentlich beendet"_s));
        }
    }
};

QTEST_MAIN(testMainProgram)
#include "testMainProgram.moc"
