#include "app/cMainProgram.h"
#include "app/cNavigation.h"
#include "app/machine/cSessionWatch.h"
#include "store/cDatabase.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "windows/entry/frmBuchung.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

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
    [[nodiscard]] QStringList Drafts() const { return QDir(Shell.Folder(u"state"_s)).entryList({u"*.json"_s}); }
    [[nodiscard]] bool IsLocked() const { return QFileInfo::exists(Book + u".lock"_s); }

    QString Book = File.Make(oneEntry);
    const cMainProgram::cPorts Ports{Shell, Registry, User, Rescue, Clock};
};

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

class testSessionEnd final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void QuestionsOnTopAreAnsweredNo() const
    {
        cMachine machine;
        cRun run(machine);
        bool isYes = true;
        InForm([&](frmBuchung& form) {
            Line(form, u"txtBetrag"_s).setText(u"47,11"_s);
            QMessageBox box(QMessageBox::Question, u"Frage"_s, u"Löschen?"_s, QMessageBox::NoButton, &form);
            const QPushButton* yes = box.addButton(u"Ja"_s, QMessageBox::YesRole);
            box.setEscapeButton(box.addButton(u"Nein"_s, QMessageBox::NoRole));
            QTimer::singleShot(0, &box, [] { ::raise(SIGTERM); });
            box.exec();
            isYes = box.clickedButton() == yes;
        });
        QCOMPARE(cRun::Exec([&] { run.Program.Navigation().OpenNewEntry(); }), 0);
        QVERIFY(!isYes);
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
};

TEST_CLASS(testSessionEnd, QApplication)
#include "testSessionEnd.moc"
