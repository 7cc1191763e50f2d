#include "app/cMainProgram.h"
#include "app/cNavigation.h"
#include "support/cTestFile.h"
#include "support/fakes.h"
#include "windows/help/frmHandbuch.h"
#include "windows/main/frmMain.h"
#include "windows/report/cReportView.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTimer>

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

// The headline of the manual's page; empty while the manual is not open.
QString ShownChapter()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible() && qobject_cast<const frmHandbuch*>(window) != nullptr) {
            return window->findChild<cReportView*>()->PlainText().section(u'\n', 0, 0);
        }
    }
    return {};
}

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

    // By the command in the main window, and in a dialog that waits for an answer.
    void HelpOpensTheChapterOfTheWindowInFront() const
    {
        cMachine machine;
        QFile::link(QStringLiteral(MANUAL), machine.Shell.InstalledFile(u"handbuch"_s));
        cMainProgram program(machine.Ports, u"0.1.0"_s);
        QVERIFY(program.Start({.Book = machine.File.Make(oneEntry)}));
        const auto activate = [&] {
            program.Window().activateWindow();
            return QTest::qWaitForWindowActive(&program.Window());
        };
        QVERIFY(activate());
        QTest::keyClick(&program.Window(), Qt::Key_F1);
        QCOMPARE(ShownChapter(), u"Start"_s);
        QVERIFY(activate());
        program.Window().ShowPage(frmMain::ePage::Statistics);
        QCoreApplication::processEvents(); // the page is shown with the next round
        QTest::keyClick(&program.Window(), Qt::Key_F1);
        QCOMPARE(ShownChapter(), u"Auswertungen"_s);
        QVERIFY(activate());
        QString shown;
        QTimer::singleShot(0, &program.Window(), [&] {
            QWidget* form = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowActive(form));
            QTest::keyClick(form->focusWidget(), Qt::Key_F1);
            shown = ShownChapter();
            form->close();
        });
        program.Navigation().OpenNewEntry();
        QCOMPARE(shown, u"Einträge erfassen"_s);
    }
};

QTEST_MAIN(testMainProgram)
#include "testMainProgram.moc"
