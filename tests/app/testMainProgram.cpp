#include "app/cMainProgram.h"
#include "app/cNavigation.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "views/ledger/cStatementListModel.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/statement/cImportReview.h"
#include "windows/help/frmHandbuch.h"
#include "windows/look/modTone.h"
#include "windows/main/frmMain.h"
#include "windows/report/cReportView.h"
#include "windows/statement/frmKontoauszug.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry = "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2026-01-31', 'Giro');";

constexpr const char* oneTransaction =
    "INSERT INTO import (ImportDate, ImportAccount, ImportValue) VALUES ('2026-03-01', '4711', '1.00');";

// The window program on a book of a temporary folder.
struct cMachine : cFakeMachine
{
    [[nodiscard]] QStringList Copies() const
    {
        return QDir(File.Path(u"Sicherungen"_s)).entryList(QDir::Files, QDir::Name);
    }

    const cMainProgram::cPorts Ports{Shell, Registry, User, Rescue, Clock};
};

// An environment variable for a while.
class cVariable
{
public:
    cVariable(const char* name, const QByteArray& value) : m_name(name), m_former(qgetenv(name))
    {
        qputenv(name, value);
    }
    cVariable(const cVariable&) = delete;
    cVariable& operator=(const cVariable&) = delete;
    ~cVariable() { qputenv(m_name, m_former); }

private:
    const char* m_name;
    QByteArray m_former;
};

QString FirstMenu(cMainProgram& program)
{
    return program.Window().menuBar()->actions().constFirst()->text().remove(u'&');
}

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

    // What is due today stands in the status bar a moment after the start, and goes when another book has nothing.
    void ReminderInTheStatusBar() const
    {
        cMachine machine;
        const QString path = machine.File.Make("INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, "
                                               "EntryAccount, EntryCategory, EntryValue, "
                                               "EntryDescription) VALUES ('2026-02-15', '2050-01-01', 'Ausgabe', "
                                               "'Monatlich', 'Giro', 'Wohnung', '700.00', "
                                               "'Miete & mehr');");
        cMainProgram program(machine.Ports, u"0.1.0"_s);
        QVERIFY(program.Start({.Book = path}));
        const auto* line = program.Window().findChild<QToolButton*>(u"cmdErinnerung"_s);
        QVERIFY(line != nullptr && !line->isVisible());
        QTRY_VERIFY(line->isVisible());
        QVERIFY2(line->accessibleName().startsWith(u"Heute fällig: Miete & mehr"_s), qPrintable(line->text()));
        QVERIFY(program.Window().close());
    }

    // Kept from the menu, shown again by its key, and still so at the next start.
    void KeptViewComesBackByItsKey() const
    {
        cMachine machine;
        const QString path = machine.File.Make(oneEntry);
        for (const bool isFirst : {true, false}) {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path}));
            cMainModel& model = program.Model();
            program.Window().ShowPage(frmMain::ePage::Entries);
            if (isFirst) {
                model.TypeFilter(u"miete"_s);
                model.ChooseGrouping(u"Nach Monat"_s);
                machine.User.Choices = {u"Wohnen"_s, u"Läden"_s};
                model.Execute(modCommand::SaveView);
                program.Window().ShowPage(frmMain::ePage::Statements); // which keeps its own
                program.Review().View().SetFilter(u"rewe"_s);
                model.Execute(modCommand::SaveView);
                program.Review().View().SetFilter({});
            }
            model.TypeFilter({});
            model.ChooseGrouping(modWord::KeineGruppierung);
            program.Window().show();
            QVERIFY(QTest::qWaitForWindowActive(&program.Window()));
            QTest::keyClick(&program.Window(), Qt::Key_1, Qt::ControlModifier);
            QCOMPARE(model.View().Filter, u"miete"_s);
            QCOMPARE(model.View().Grouping, u"Nach Monat"_s);
            QCOMPARE(program.Window().Page(), frmMain::ePage::Entries);
            QTest::keyClick(&program.Window(), Qt::Key_2, Qt::ControlModifier);
            QCOMPARE(program.Window().Page(), frmMain::ePage::Statements);
            QCOMPARE(program.Review().View().Filter(), u"rewe"_s);
            program.Window().close();
        }
    }

    // From the menu to the colours of an open window, and still so at the next start.
    void AppearanceIsChosenLive() const
    {
        cMachine machine;
        const QString path = machine.File.Make(oneEntry);
        const auto checked = [](const frmMain& window) {
            QStringList texts;
            for (const QAction* action : window.findChildren<QAction*>()) {
                if (action->actionGroup() != nullptr && action->isChecked()) {
                    texts.append(action->text());
                }
            }
            return texts;
        };
        {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path}));
            QCOMPARE(checked(program.Window()), QStringList(u"Wie das &System"_s));
            QVERIFY(program.Model().Execute(modCommand::AppearanceDark));
            QCOMPARE(checked(program.Window()), QStringList(u"&Dunkel"_s));
            QTRY_VERIFY(modTone::IsDark(program.Window().palette()));
            QVERIFY(program.Window().close());
        }
        cMainProgram program(machine.Ports, u"0.1.0"_s);
        QVERIFY(program.Start({.Book = path}));
        QVERIFY(modTone::IsDark(program.Window().palette()));
        QVERIFY(program.Model().Execute(modCommand::AppearanceSystem));
        QTRY_VERIFY(!modTone::IsDark(program.Window().palette()));
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

    // Who sees German words for the first time finds the language by its own name, and loses nothing by the change.
    void LanguageFollowsTheSystemUntilChosen() const
    {
        cMachine machine;
        QVERIFY(QFile::copy(QStringLiteral(ENGLISH), machine.Shell.Folder(u"program"_s) + u"/kontorelle_en.qm"_s));
        const QString path = machine.File.Make(oneEntry);
        const cVariable system("LC_ALL", "en_GB.UTF-8");
        {
            cMainProgram program(machine.Ports, u"0.1.0"_s);
            QVERIFY(program.Start({.Book = path}));
            QCOMPARE(FirstMenu(program), u"File"_s);
            QCOMPARE(program.Tools().Settings.Get(modSettingKey::LanguageName), QString());

            program.Model().ChooseGrouping(u"Nach Sparte"_s);
            auto* german = program.Window().findChild<QMenu*>(u"languages"_s)->actions().at(1);
            QCOMPARE(german->text(), u"&Deutsch"_s);
            german->trigger();
            QTRY_COMPARE(FirstMenu(program), u"Datei"_s);
            QVERIFY(program.Window().isVisible());
            QCOMPARE(program.Model().View().Grouping, u"Nach Sparte"_s);
            QVERIFY(program.Window().close());
        } // which holds the book
        cMainProgram next(machine.Ports, u"0.1.0"_s);
        QVERIFY(next.Start({.Book = path}));
        QCOMPARE(FirstMenu(next), u"Datei"_s);
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
        QCOMPARE(ShownChapter(), u"Übersicht"_s);
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

    // Dropped on the account statement, listed in the window that its button opens, and taken back by the menu.
    void PapersHangAtTheirAccount() const
    {
        cMachine machine;
        const QString paper = machine.File.Path(u"Auszug 03-2026.pdf"_s);
        cTestFile::Write(paper, "%PDF-1.4");
        cMainProgram program(machine.Ports, u"0.1.0"_s);
        QVERIFY(program.Start({.Book = machine.File.Make(oneTransaction)}));
        QStringList seen;
        QTimer::singleShot(0, &program.Window(), [&] {
            auto* form = qobject_cast<frmKontoauszug*>(QApplication::activeModalWidget());
            QVERIFY(form != nullptr);
            Q_EMIT form->PapersDropped({paper});
            QTimer::singleShot(0, form, [&] {
                QWidget* papers = QApplication::activeModalWidget();
                seen.append(papers->windowTitle());
                seen.append(papers->findChild<QListView*>()->model()->index(0, 0).data().toString());
                papers->close();
            });
            const QList<QPushButton*> buttons = form->findChildren<QPushButton*>();
            for (QPushButton* button : buttons) {
                if (button->text() == u"&PDF-Auszüge (1)…") {
                    button->click();
                }
            }
            form->close();
        });
        program.Model().Execute(modCommand::AccountStatement);
        QCOMPARE(seen, (QStringList{u"PDF-Auszüge: 4711"_s, u"März 2026 (8 Byte)"_s}));
        program.Model().Execute(modCommand::Undo);
        const cStatementListModel statement(program.Tools());
        QCOMPARE(statement.PapersText(), u"&PDF-Auszüge…"_s);
        QVERIFY(program.Window().close());
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
            const auto* mark = program.Window().statusBar()->findChild<QToolButton*>(u"cmdFehlerprotokoll"_s);
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

TEST_CLASS(testMainProgram, QApplication)
#include "testMainProgram.moc"
