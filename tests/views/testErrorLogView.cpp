#include "core/cErrorLog.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "views/help/cErrorLogView.h"
#include "views/help/modBroken.h"
#include "views/help/modDiagnosis.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct cLogScene
{
    cLogScene()
    {
        Log.Record({}, u"Der Name ist zu lang."_s);
        Clock.Time = Clock.Time.addSecs(60);
        Log.Record({}, u"ERROR: AddNewEntry\nDie Datei ist schreibgeschützt."_s);
        Clock.Time = Clock.Time.addSecs(60);
        Log.Record(u"Daten exportieren"_s, u"Die Datei ist schreibgeschützt."_s);
    }

    [[nodiscard]] cErrorLogView View() { return cErrorLogView({Log, User, Shell, Clock, u"Kontorelle 0.1.0\n"_s}); }

    cFakeShell Shell;
    cFakeUser User;
    cFakeClock Clock;
    cErrorLog Log{{Shell.StateFolder(), u"kontorelle"_s, u"0.1.0"_s}, Clock};
};

} // namespace

class testErrorLogView final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FilterTakesAllWords()
    {
        cLogScene scene;
        cErrorLogView view = scene.View();
        QCOMPARE(view.rowCount(), 3);
        QCOMPARE(view.CountText(), u"3 Meldungen"_s);
        view.SetFilter(u"SCHREIBGESCHÜTZT addnew"_s);
        QCOMPARE(view.TextOf({}), u"15.03.2026 12:35:56\t0.1.0\tAddNewEntry\tDie Datei ist schreibgeschützt.\n"_s);
        QCOMPARE(view.CountText(), u"1 von 3 Meldungen"_s);
        QCOMPARE(view.Details(0), u"15.03.2026 12:35:56\n\nAddNewEntry: Die Datei ist schreibgeschützt."_s);
        view.SetFilter(u"gibt es nicht"_s);
        QCOMPARE(view.rowCount(), 0);
        QCOMPARE(view.EmptyTitle(), u"Keine Meldung passt zum Filter"_s);
        QCOMPARE(view.Details(-1), QString());
        QCOMPARE(view.Diagnosis().count(u"\t0.1.0\t"_s), 3); // the whole log, whatever is shown
    }

    void EmptyLogSaysSo()
    {
        cFakeShell shell;
        cFakeUser user;
        const cFakeClock clock;
        cErrorLog log({shell.StateFolder(), u"kontorelle"_s, u"0.1.0"_s}, clock);
        const cErrorLogView view({log, user, shell, clock, {}});
        QCOMPARE(view.EmptyTitle(), u"Es ist nichts schiefgegangen"_s);
        QCOMPARE(view.TextOf({}), QString());
    }

    void FeedbackCarriesTheDiagnosis()
    {
        cLogScene scene;
        cErrorLogView view = scene.View();
        view.Send();
        QCOMPARE(scene.Shell.Mails.size(), 1);
        const QString text = QString::fromUtf8(cTestFile::Bytes(scene.Shell.Mails[0].Attachment));
        QVERIFY(text.startsWith(u"Kontorelle 0.1.0\n"_s));
        QVERIFY(text.contains(u"Der Name ist zu lang."_s));
        QVERIFY(scene.User.Shown.value(0).contains(scene.Shell.Mails[0].Attachment));

        scene.Shell.HasMail = false;
        view.Send();
        QVERIFY(scene.User.Shown.value(1).contains(u"kein E-Mail-Programm"_s));

        scene.User.SavePath = scene.Shell.Folder(u"Ablage"_s) + u"/Protokoll.txt"_s;
        view.Save();
        QCOMPARE(cTestFile::Bytes(scene.User.SavePath), text.toUtf8());
    }

    void BrokenRunOffersWhatThereIs()
    {
        cFakeUser user;
        modBroken::cRun run{QDateTime(QDate(2026, 3, 14), QTime(18, 5))};
        QCOMPARE(modBroken::Ask(user, run), modBroken::eWish::Nothing); // closed
        QCOMPARE(user.LastDecision.Options.size(), 2);
        QVERIFY(user.Asked[0].contains(u"nicht ordentlich beendet (14.03.2026 18:05)"_s));
        QVERIFY(!user.Asked[0].contains(u"abgestürzt"_s));
        run.IsCrash = true;
        run.Copy = QDate(2026, 3, 13);
        user.Decisions = {1, 2, 0};
        QCOMPARE(modBroken::Ask(user, run), modBroken::eWish::Log);
        QCOMPARE(modBroken::Ask(user, run), modBroken::eWish::Backup);
        QCOMPARE(modBroken::Ask(user, run), modBroken::eWish::Nothing);
        QVERIFY(user.Asked[1].contains(u"abgestürzt"_s));
        QVERIFY(user.LastDecision.Options.constLast().contains(u"13.03.2026"_s));
    }

    void PathsTellNobody_data()
    {
        const cTestRows<QString, QString> row("Path", "Shown");
        row("below the home", u"/home/erika/Haushalt/data.db"_s, u"~/Haushalt/data.db"_s);
        row("the home itself", u"/home/erika"_s, u"~"_s);
        row("a drive that carries the name", u"/media/erika/USB/data.db"_s, u"/media/…/USB/data.db"_s);
        row("another home that begins alike", u"/home/erika2/data.db"_s, u"/home/erika2/data.db"_s);
        row("elsewhere", u"/usr/bin"_s, u"/usr/bin"_s);
    }

    void PathsTellNobody()
    {
        QFETCH(QString, Path);
        QTEST(modDiagnosis::Shown(Path, u"/home/erika"_s, u"erika"_s), "Shown");
    }
};

TEST_CLASS(testErrorLogView, QCoreApplication)
#include "testErrorLogView.moc"
