#include "app/cMainProgram.h"
#include "app/cNavigation.h"
#include "app/machine/cQtUser.h"
#include "app/machine/cSessionWatch.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/queued.h"
#include "views/ledger/cStatementListModel.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/statement/cImportReview.h"
#include "windows/entry/frmBuchung.h"
#include "windows/help/frmHandbuch.h"
#include "windows/look/modTone.h"
#include "windows/main/frmMain.h"
#include "windows/report/cReportView.h"
#include "windows/statement/frmKontoauszug.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include <csignal>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry =
    "INSERT INTO data (ID, EntryDate, EntryType, EntryInterval, EntryAccount, EntryCategory, EntryValue, "
    "EntryDescription) VALUES (5, '2026-03-10', 'Ausgabe', 'Einmalig', 'Girokonto', 'Haushalt; Lebensmittel', '10', "
    "'Markt');";

struct cMachine : cFakeMachine
{
    [[nodiscard]] QStringList Copies() const
    {
        return QDir(File.Path(u"Sicherungen"_s)).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] QStringList Drafts() const { return QDir(Shell.Folder(u"state"_s)).entryList({u"*.json"_s}); }
    [[nodiscard]] bool IsLocked() const { return QFileInfo::exists(Book + u".lock"_s); }

    [[nodiscard]] std::unique_ptr<cMainProgram> Start() const
    {
        auto program = std::make_unique<cMainProgram>(Ports, u"0.1.0"_s);
        if (!program->Start({.Book = Book})) {
            qFatal("no start");
        }
        return program;
    }

    const QString Book = File.Make(oneEntry);
    const cMainProgram::cPorts Ports{Shell, Registry, User, Rescue, Clock};
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

// The program with its watch over the signals of this process.
struct cRun
{
    explicit cRun(cMachine& machine) : Program(machine.Ports, u"0.1.0"_s)
    {
        QObject::connect(&Watch, &cSessionWatch::EndRequested, &Watch, [this] { Program.End(); });
        QObject::connect(&Watch, &cSessionWatch::SaveRequested, &Watch, [this] { Program.Save(); });
        QVERIFY(Program.Start({.Book = machine.Book}));
    }

    // Does this in the running program; its exit code.
    [[nodiscard]] static int Exec(const std::function<void()>& work = [] {})
    {
        QTimer::singleShot(0, qApp, work);
        return QApplication::exec();
    }

    cMainProgram Program;
    cSessionWatch Watch;
};

// Waits for the entry form that is about to open, works on it, and leaves it open.
void InForm(const std::function<void(frmBuchung&)>& work)
{
    auto* wait = new QTimer(qApp);
    QObject::connect(wait, &QTimer::timeout, wait, [wait, work] {
        if (auto* form = qobject_cast<frmBuchung*>(QApplication::activeModalWidget())) {
            wait->deleteLater();
            wait->stop();
            work(*form);
        }
    });
    wait->start();
}

QLineEdit& Line(const frmBuchung& form, const QString& name)
{
    return *form.findChild<QLineEdit*>(name);
}

} // namespace

class testMainProgram final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_machine.emplace(); }

    // Closed, a changed book is copied; opened and closed again it is not, although the window has stored its view.
    void CopyAtClosing()
    {
        for (const QString& day : {u"15"_s, u"16"_s}) {
            m_machine->Clock.Day = QDate(2026, 3, day.toInt());
            const auto program = m_machine->Start();
            QVERIFY(program->Window().close());
            QCOMPARE(m_machine->Copies(), QStringList(u"data-auto-2026-03-15.backup"_s));
        }
        QCOMPARE(m_machine->User.Shown, QStringList());
    }

    // What is due today stands in the status bar a moment after the start, and what is too low beside the accounts.
    void RemindsAfterTheStart()
    {
        cTestFile::Run(m_machine->Book,
                       "INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, "
                       "EntryCategory, EntryValue, EntryDescription) VALUES ('2026-02-15', '2050-01-01', 'Ausgabe', "
                       "'Monatlich', 'Girokonto', 'Wohnung', '700.00', 'Miete & mehr');"
                       "UPDATE template SET TemplateDefaultValue='0.00' WHERE TemplateName='Girokonto';");
        const auto program = m_machine->Start();
        const auto* line = program->Window().findChild<QToolButton*>(u"cmdErinnerung"_s);
        QVERIFY(line != nullptr && !line->isVisible());
        QTRY_VERIFY(line->isVisible());
        QVERIFY2(line->accessibleName().startsWith(u"Heute fällig: Miete & mehr"_s), qPrintable(line->text()));
        const cAccountListModel& accounts = program->Model().AccountList();
        const auto isMarked = [&] {
            return !accounts.match(accounts.index(0, cAccountListModel::Balance), cAccountListModel::WarningRole, true)
                        .isEmpty();
        };
        QTRY_VERIFY(isMarked());
        QVERIFY(program->Window().close());
    }

    // Kept from the menu, shown again by its key, and still so at the next start.
    void KeptViewComesBackByItsKey()
    {
        for (const bool isFirst : {true, false}) {
            const auto program = m_machine->Start();
            cMainModel& model = program->Model();
            program->Window().ShowPage(frmMain::ePage::Entries);
            if (isFirst) {
                model.TypeFilter(u"miete"_s);
                model.ChooseGrouping(u"Nach Monat"_s);
                m_machine->User.Choices = {u"Wohnen"_s, u"Läden"_s};
                model.Execute(modCommand::SaveView);
                program->Window().ShowPage(frmMain::ePage::Statements); // which keeps its own
                program->Review().View().SetFilter(u"rewe"_s);
                model.Execute(modCommand::SaveView);
                program->Review().View().SetFilter({});
            }
            model.TypeFilter({});
            model.ChooseGrouping(modWord::KeineGruppierung);
            program->Window().show();
            QVERIFY(QTest::qWaitForWindowActive(&program->Window()));
            QTest::keyClick(&program->Window(), Qt::Key_1, Qt::ControlModifier);
            QCOMPARE(model.View().Filter, u"miete"_s);
            QCOMPARE(model.View().Grouping, u"Nach Monat"_s);
            QCOMPARE(program->Window().Page(), frmMain::ePage::Entries);
            QTest::keyClick(&program->Window(), Qt::Key_2, Qt::ControlModifier);
            QCOMPARE(program->Window().Page(), frmMain::ePage::Statements);
            QCOMPARE(program->Review().View().Filter(), u"rewe"_s);
            program->Window().close();
        }
    }

    // From the menu to the colours of an open window, and still so at the next start.
    void AppearanceIsChosenLive()
    {
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
            const auto program = m_machine->Start();
            QCOMPARE(checked(program->Window()), QStringList(u"Wie das &System"_s));
            QVERIFY(program->Model().Execute(modCommand::AppearanceDark));
            QCOMPARE(checked(program->Window()), QStringList(u"&Dunkel"_s));
            QTRY_VERIFY(modTone::IsDark(program->Window().palette()));
            QVERIFY(program->Window().close());
        }
        const auto program = m_machine->Start();
        QVERIFY(modTone::IsDark(program->Window().palette()));
        QVERIFY(program->Model().Execute(modCommand::AppearanceSystem));
        QTRY_VERIFY(!modTone::IsDark(program->Window().palette()));
    }

    // Nothing that the window shows reads this table, so nothing else would come upon it.
    void DamageIsFoundAndSaidOnce()
    {
        {
            const auto program = m_machine->Start();
        }
        cTestFile::Damage(m_machine->Book, "account");
        const auto program = m_machine->Start();
        QTRY_COMPARE(m_machine->User.Asked.size(), 1);
        QVERIFY(m_machine->User.Asked[0].contains(u"ist beschädigt"_s));
        QVERIFY(program->Window().close());
        QCOMPARE(m_machine->User.Asked.size(), 1);
        QCOMPARE(m_machine->Copies(), QStringList());
    }

    // Who sees German words for the first time finds the language by its own name, and loses nothing by the change.
    void LanguageFollowsTheSystemUntilChosen()
    {
        QVERIFY(QFile::copy(QStringLiteral(ENGLISH), m_machine->Shell.Folder(u"program"_s) + u"/kontorelle_en.qm"_s));
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LC_ALL", "en_GB.UTF-8");
        const auto restore = qScopeGuard([&] { qputenv("LC_ALL", before); });
        {
            const auto program = m_machine->Start();
            QCOMPARE(FirstMenu(*program), u"File"_s);
            QCOMPARE(program->Tools().Settings.Get(modSettingKey::LanguageName), QString());

            program->Model().ChooseGrouping(u"Nach Sparte"_s);
            auto* german = program->Window().findChild<QMenu*>(u"languages"_s)->actions().at(1);
            QCOMPARE(german->text(), u"&Deutsch"_s);
            german->trigger();
            QTRY_COMPARE(FirstMenu(*program), u"Datei"_s);
            QVERIFY(program->Window().isVisible());
            QCOMPARE(program->Model().View().Grouping, u"Nach Sparte"_s);
            QVERIFY(program->Window().close());
        } // which holds the book
        const auto next = m_machine->Start();
        QCOMPARE(FirstMenu(*next), u"Datei"_s);
    }

    // By the command in the main window, and in a dialog that waits for an answer.
    void HelpOpensTheChapterOfTheWindowInFront()
    {
        QFile::link(QStringLiteral(MANUAL), m_machine->Shell.InstalledFile(u"handbuch"_s));
        const auto program = m_machine->Start();
        const auto activate = [&] {
            program->Window().activateWindow();
            return QTest::qWaitForWindowActive(&program->Window());
        };
        QVERIFY(activate());
        QTest::keyClick(&program->Window(), Qt::Key_F1);
        QCOMPARE(ShownChapter(), u"Übersicht"_s);
        QVERIFY(activate());
        program->Window().ShowPage(frmMain::ePage::Statistics);
        QCoreApplication::processEvents(); // the page is shown with the next round
        QTest::keyClick(&program->Window(), Qt::Key_F1);
        QCOMPARE(ShownChapter(), u"Auswertungen"_s);
        QVERIFY(activate());
        QString shown;
        QTimer::singleShot(0, &program->Window(), [&] {
            QWidget* form = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowActive(form));
            QTest::keyClick(form->focusWidget(), Qt::Key_F1);
            shown = ShownChapter();
            form->close();
        });
        program->Navigation().OpenNewEntry();
        QCOMPARE(shown, u"Einträge erfassen"_s);
    }

    void ImportThatIsGivenUpLeavesThePage()
    {
        const auto program = m_machine->Start();
        program->Window().ShowPage(frmMain::ePage::Entries);
        program->Model().Execute(modCommand::ImportStatement); // no file is chosen
        QCOMPARE(program->Window().Page(), frmMain::ePage::Entries);
        const QString statement = m_machine->File.Path(u"giro.qif"_s);
        cTestFile::Write(statement, "!Type:Bank\nD10.03.2026\nT-12,50\nPMarkt\n^\n");
        m_machine->User.Files = {statement};
        program->Model().Execute(modCommand::ImportStatement);
        QCOMPARE(program->Window().Page(), frmMain::ePage::Statements);
    }

    // Into the book that was dropped with it, and nowhere while that one cannot be opened.
    void StatementFollowsItsBook()
    {
        const auto program = m_machine->Start();
        const QString other = m_machine->File.Make({}, u"other.db"_s);
        const QString statement = m_machine->File.Path(u"giro.sta"_s);
        cTestFile::Write(statement,
                         ":20:A\n:25:10020030/4711\n:60F:C260930EUR100,00\n:61:2610051005D35,00NMSC\n"
                         ":86:106?20Korn\n:62F:C261005EUR65,00\n-\n");
        {
            cFileLock somebodys;
            QCOMPARE(somebodys.Take(other), eLockState::Held);
            Q_EMIT program->Window().FilesDropped({other, statement});
            QCOMPARE(program->Tools().Data.GetImportEntries().size(), 0);
        }
        Q_EMIT program->Window().FilesDropped({other, statement});
        QCOMPARE(QFileInfo(program->Model().DatabaseText()).fileName(), u"other.db"_s);
        QTRY_COMPARE(program->Tools().Data.GetImportEntries().size(), 1);
        cDatabase former;
        former.Open(m_machine->Book, eOpenMode::ReadOnly);
        QCOMPARE(cTestFile::Value(former, "SELECT COUNT(*) FROM import"), u"0"_s);
    }

    // Dropped on the account statement, listed in the window that its button opens, and taken back by the menu.
    void PapersHangAtTheirAccount()
    {
        const QString paper = m_machine->File.Path(u"Auszug 03-2026.pdf"_s);
        cTestFile::Write(paper, "%PDF-1.4");
        cTestFile::Run(m_machine->Book,
                       "INSERT INTO import (ImportDate, ImportAccount, ImportValue) "
                       "VALUES ('2026-03-01', '4711', '1.00');");
        const auto program = m_machine->Start();
        QStringList seen;
        QTimer::singleShot(0, &program->Window(), [&] {
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
        program->Model().Execute(modCommand::AccountStatement);
        QCOMPARE(seen, (QStringList{u"PDF-Auszüge: 4711"_s, u"März 2026 (8 Byte)"_s}));
        program->Model().Execute(modCommand::Undo);
        const cStatementListModel statement(program->Tools());
        QCOMPARE(statement.PapersText(), u"&PDF-Auszüge…"_s);
        QVERIFY(program->Window().close());
    }

    // A failure marks the status bar until the log was looked at. A run that was killed is told of at the next start
    // and never again, and a second program that is still alive is not taken for one.
    void FailuresAndBrokenRunsAreTold()
    {
        {
            const auto program = m_machine->Start();
            const auto* mark = program->Window().statusBar()->findChild<QToolButton*>(u"cmdFehlerprotokoll"_s);
            RunQueued();
            QCOMPARE(m_machine->User.Asked, QStringList());
            QVERIFY(!mark->isVisible());
            program->Tools().User.Show(eTone::Critical, u"Der Name ist zu lang."_s);
            QVERIFY(mark->isVisible());
            const QString log = program->Log().Files().value(0);
            QVERIFY(QFile::copy(log, QFileInfo(log).path() + u"/kontorelle-20260101-000000-1-0.log"_s));
        }
        for (int start = 0; start < 2; ++start) {
            const auto program = m_machine->Start();
            RunQueued();
            QCOMPARE(m_machine->User.Asked.size(), 1);
            QVERIFY(m_machine->User.Asked[0].contains(u"nicht ordentlich beendet"_s));
        }
    }

    void TypedContentsOutliveTheEnd_data() const
    {
        const cTestRows<int, int> row("entry", "number");
        row("new entry, SIGTERM", 0, SIGTERM);
        row("changed entry, SIGHUP", 5, SIGHUP);
        row("changed entry, SIGINT", 5, SIGINT);
    }

    // Typed and split, ended by a signal, offered and shown at the next start, ended once more, then saved.
    void TypedContentsOutliveTheEnd() const
    {
        QFETCH(int, entry);
        QFETCH(int, number);
        cMachine machine;
        const auto end = [&](bool isSplit) {
            InForm([=](frmBuchung& form) {
                QCOMPARE(form.windowTitle(), entry == 0 ? u"Neuer Eintrag"_s : u"Eintrag bearbeiten"_s);
                Line(form, u"txtBetrag"_s).setText(u"47,11"_s);
                if (isSplit) {
                    form.findChild<QPushButton*>(u"cmdAufteilen"_s)->click();
                }
                ::raise(number);
            });
        };
        {
            cRun run(machine);
            end(true);
            cNavigation& windows = run.Program.Navigation();
            const auto open = [&] {
                entry == 0 ? windows.OpenNewEntry() : windows.OpenEntry(entry, QDate(2026, 3, 10));
            };
            QCOMPARE(cRun::Exec(open), 0);
            QVERIFY(!run.Program.Window().isVisible());
            QCOMPARE(machine.Drafts().size(), 1);
        }
        QVERIFY(!machine.IsLocked());
        QCOMPARE(machine.User.Asked, QStringList());
        {
            machine.User.Decisions = {0};
            cRun run(machine);
            end(false);
            QCOMPARE(cRun::Exec(), 0);
            QCOMPARE(machine.Drafts().size(), 1); // the new one in place of the former
        }
        machine.User.Decisions = {0};
        cRun run(machine);
        bool isSplit = false;
        QString amount;
        InForm([&](frmBuchung& form) {
            amount = Line(form, u"txtBetrag"_s).text();
            isSplit = form.findChild<QPushButton*>(u"cmdAufteilen"_s)->text().startsWith(u"Nicht"_s);
            machine.User.Answers = {eAnswer::Cancel, eAnswer::No};
            form.reject(); // asks, because nothing of it is stored
            QVERIFY(form.isVisible());
            form.reject();
        });
        QTRY_COMPARE(machine.Drafts(), QStringList());
        QCOMPARE(amount, u"47,11"_s);
        QVERIFY(isSplit);
        QVERIFY(machine.User.Asked.constLast().contains(u"noch nicht gespeichert"_s));
        QVERIFY(run.Program.Window().isVisible());
    }

    // A question that waits above a form keeps nobody from logging out, and nothing is done in the user's name.
    void QuestionsOnTopAreCancelled() const
    {
        cMachine machine;
        cRun run(machine);
        cFakeRegistry registry;
        eAnswer answer = eAnswer::Yes;
        InForm([&](frmBuchung& form) {
            Line(form, u"txtBetrag"_s).setText(u"47,11"_s);
            QTimer::singleShot(0, &form, [] { ::raise(SIGTERM); });
            answer = cQtUser(registry).Ask({.Text = u"Löschen?"_s, .Title = {}});
        });
        QCOMPARE(cRun::Exec([&] { run.Program.Navigation().OpenNewEntry(); }), 0);
        QCOMPARE(answer, eAnswer::Cancel); // nobody said no either
        QCOMPARE(machine.Drafts().size(), 1);
    }

    // The user may cancel logging out. What was kept is no draft any more once it is saved or given up.
    void CalledOffEndLeavesNoDraft() const
    {
        cMachine machine;
        cRun run(machine);
        qsizetype kept = 0;
        InForm([&](frmBuchung& form) {
            Line(form, u"txtBetrag"_s).setText(u"47,11"_s);
            Q_EMIT run.Watch.SaveRequested();
            kept = machine.Drafts().size();
            machine.User.Answers = {eAnswer::No};
            form.reject();
        });
        run.Program.Navigation().OpenNewEntry();
        QCOMPARE(kept, 1);
        QCOMPARE(machine.Drafts(), QStringList());
        QVERIFY(run.Program.Window().isVisible());
    }

    void ProcessEndsCleanly_data() const
    {
        const cTestRows<QStringList> row("options");
        row("with the window alone", {});
        row("with a form above it", {u"--new-entry"_s});
    }

    void ProcessEndsCleanly() const
    {
        QFETCH(QStringList, options);
        const cTestFile file;
        const QString book = file.Make(oneEntry);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, file.Folder());
        environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s); // another currency would be asked about
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        const QStringList arguments{u"--profile"_s, file.Path(u"profil"_s), book};
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(PROGRAM), arguments + options);
        QVERIFY(program.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(book + u".lock"_s), 20000);
        // A second start ends when the first has answered it, and so has its window.
        QProcess second;
        second.setProcessEnvironment(environment);
        second.start(QStringLiteral(PROGRAM), arguments);
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);

        ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(!QFileInfo::exists(book + u".lock"_s));
        cDatabase database;
        database.Open(book, eOpenMode::ReadOnly);
        QVERIFY(cTestFile::Value(database, "SELECT SettingValue FROM setting WHERE SettingName = 'WindowSize'")
                != u"(no row)"_s);
    }

    void NoScreenThatCanBeReached_data() const
    {
        const cTestRows<QStringList, int> row("call", "code");
        row("X11", {u"DISPLAY=:7777"_s, QStringLiteral(PROGRAM)}, 2);
        row("Wayland", {u"WAYLAND_DISPLAY=nobody"_s, QStringLiteral(PROGRAM)}, 2);
        row("the version all the same", {u"DISPLAY=:7777"_s, QStringLiteral(PROGRAM), u"--version"_s}, 0);
    }

    void NoScreenThatCanBeReached() const
    {
        QFETCH(const QStringList, call);
        QFETCH(const int, code);
        QProcess program;
        program.start(u"env"_s, QStringList{u"-i"_s, u"LC_ALL=de_DE.UTF-8"_s, u"XDG_RUNTIME_DIR=/tmp"_s} + call);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), code);
        const QByteArray said = program.readAllStandardError();
        QCOMPARE(said.startsWith("Kontorelle: Es ist kein Bildschirm da"), code == 2);
        QCOMPARE(said.contains("Was das System dazu meldet:\n"), code == 2);
    }

private:
    std::optional<cMachine> m_machine;
};

TEST_CLASS(testMainProgram, QApplication)
#include "testMainProgram.moc"
