#include "model/modSettingKey.h"
#include "support/cFakeHttps.h"
#include "support/cTestClass.h"
#include "support/modUpdateAnswer.h"
#include "support/testBook.h"
#include "views/help/cUpdateCheck.h"

#include <QSignalSpy>
#include <QVariantList>

using namespace Qt::Literals::StringLiterals;
using namespace modUpdateAnswer;
using eState = cUpdateCheck::eState;

namespace {

cHttpsAnswer Came(const QByteArray& bytes)
{
    return {eHttpsFault::None, bytes, {}};
}

struct cScene
{
    explicit cScene(const QByteArray& answer = {})
    {
        if (!answer.isEmpty()) {
            Https.Answers.push_back(Came(answer));
        }
    }

    cTestBook Book;
    cFakeHttps Https;
    cUpdateCheck Check{
        Book.Tools, Book.Configuration, Https, {u"https://maker.example/neu/versionen.xml"_s, u"0.1.0"_s}};
};

const QByteArray twoNewer = Release("0.2.0",
                                    "<notes lang=\"en\">Charts.</notes><notes lang=\"de\">\n   Diagramme.\n"
                                    "   - Torten\n</notes>",
                                    "2026-02-01")
    + Release("0.3.0", "<notes>Nur eine Sprache.</notes><later>x</later>" + File()) + Release("0.1.0", {});

} // namespace

class testUpdateCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // As the program does where German is chosen; the notes follow.
    void initTestCase() const { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void TellsWhatIsNew() const
    {
        cScene scene(All(twoNewer));
        QCOMPARE(scene.Check.Headline(), u"Bei maker.example wird nachgefragt …"_s);
        scene.Check.Look();
        QCOMPARE(scene.Https.Asked, QStringList(u"https://maker.example/neu/versionen.xml?version=0.1.0"_s));
        QCOMPARE(scene.Check.State(), eState::Found);
        QCOMPARE(scene.Check.Headline(), u"Kontorelle 0.3.0 vom 01.03.2026 ist da. Sie benutzen Version 0.1.0."_s);
        QCOMPARE(scene.Check.Notes(),
                 u"Version 0.3.0 vom 01.03.2026\n\nNur eine Sprache.\n\n\n"
                 "Version 0.2.0 vom 01.02.2026\n\nDiagramme.\n- Torten"_s);
        QCOMPARE(scene.Book.Settings->GetUpdateDate({}), scene.Book.Clock.Day);
    }

    void AnswersThatAreNoNews_data() const
    {
        const cTestRows<QByteArray, bool> row("answer", "isUnderstood");
        const auto good = [&](const char* name, const QByteArray& releases) { row(name, All(releases), true); };
        const auto bad = [&](const char* name, const QByteArray& answer) { row(name, answer, false); };
        good("nothing", {});
        good("the same version", Release("0.1.0", File()));
        good("the same with one number less", Release("0.1", File()));
        good("a downgrade", Release("0.0.99", File()));
        bad("no bytes", " ");
        bad("a page of the network", "<html><body>Bitte anmelden</body></html>");
        bad("cut off", All(Release("0.3.0", File())).chopped(20));
        bad("something behind the end", All({}) + "<more/>");
        bad("entities",
            "<!DOCTYPE kontorelle [<!ENTITY a \"b\">]>" + All(Release("0.3.0", "<notes>&a;</notes>")).mid(39));
        bad("a version that is none", All(Release("0.3.0-beta", {})));
        bad("a day that is none", All(Release("0.3.0", {}, "31.02.2026")));
        bad("two packages", All(Release("0.3.0", File() + File())));
        bad("markup in notes", All(Release("0.3.0", "<notes><b>x</b></notes>")));
        bad("another server", All(Release("0.3.0", File("https://other.example/a.deb"))));
        bad("without encryption", All(Release("0.3.0", File("http://maker.example/a.deb"))));
        bad("a local file", All(Release("0.3.0", File("file:///etc/passwd"))));
        bad("no size", All(Release("0.3.0", File("a.deb", 0))));
        bad("too large", All(Release("0.3.0", File("a.deb", 600LL * 1024 * 1024))));
        bad("half a sum", All(Release("0.3.0", File("a.deb", 1, "abc"))));
        bad("without SHA-256", All(Release("0.3.0", File("a.deb", 1, Hash(QCryptographicHash::Md5), {}))));
    }

    void AnswersThatAreNoNews() const
    {
        QFETCH(const QByteArray, answer);
        QFETCH(const bool, isUnderstood);
        cScene scene(answer);
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), isUnderstood ? eState::Current : eState::Failed);
        QCOMPARE(scene.Check.Headline(),
                 isUnderstood
                     ? u"Sie benutzen Kontorelle 0.1.0. Eine neuere Version gibt es nicht."_s
                     : u"Die Antwort von maker.example ist nicht zu verstehen. Versuchen Sie es später noch einmal."_s);
        QVERIFY(!scene.Check.CanDownload() && !scene.Check.HasNews());
        // What could not be read was no look: the next start tries again.
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::Update).isEmpty(), !isUnderstood);
    }

    void SaysWhyNothingCame_data() const
    {
        const cTestRows<eHttpsFault, QString> row("fault", "headline");
        row("offline", eHttpsFault::NotReachable,
            u"maker.example ist nicht zu erreichen. Prüfen Sie Ihre Verbindung zum Internet und "
            "versuchen Sie es noch einmal."_s);
        row("certificate", eHttpsFault::Certificate,
            u"Das Zertifikat von maker.example ist nicht in Ordnung. Es wurde nichts gesendet. "
            "Prüfen Sie Datum und Uhrzeit Ihres Rechners und versuchen Sie es in einem anderen "
            "Netz noch einmal."_s);
        row("silent", eHttpsFault::Silent, u"maker.example antwortet nicht. Versuchen Sie es später noch einmal."_s);
        row("refused", eHttpsFault::Refused,
            u"maker.example gibt keine Auskunft (HTTP 404). Versuchen Sie es später noch einmal."_s);
        row("cancelled", eHttpsFault::Cancelled, u"Abgebrochen."_s);
    }

    void SaysWhyNothingCame() const
    {
        QFETCH(const eHttpsFault, fault);
        cScene scene;
        scene.Https.Answers.push_back({fault, All(Release("0.3.0", {})), u"HTTP 404"_s});
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Failed);
        QTEST(scene.Check.Headline(), "headline");
        // And once more, with an answer.
        scene.Https.Answers.push_back(Came(All({})));
        scene.Check.Look();
        QCOMPARE(scene.Check.State(), eState::Current);
    }

    void WritesOnlyWhatWasAnnounced_data() const
    {
        const cTestRows<QByteArray, QByteArray, QString> row("file", "bytes", "told");
        const auto wrong = [](const QString& fault) {
            return QString(
                u"Die heruntergeladene Datei ist nicht die angekündigte: "_s + fault
                + u". Sie wurde nicht gespeichert.\nVersuchen Sie es noch einmal. Bleibt es dabei, benutzen Sie "
                  "die Datei auf keinen Fall."_s);
        };
        const QByteArray none(32, '0');
        const qsizetype size = Package.size();
        row("right", File(), Package, {});
        row("shorter", File(), Package.chopped(1), wrong(u"sie ist %1 Bytes groß statt %2"_s.arg(size - 1).arg(size)));
        row("longer", File(), QByteArray(Package + "x"),
            u"maker.example sendet mehr, als angekündigt war. Es wurde nichts davon behalten."_s);
        row("other bytes", File(), QByteArray(size, 'x'), wrong(u"ihre Prüfsumme (SHA-256) ist eine andere"_s));
        row("other MD5", File("a.deb", size, none), Package, wrong(u"ihre Prüfsumme (MD5) ist eine andere"_s));
    }

    void WritesOnlyWhatWasAnnounced() const
    {
        QFETCH(const QByteArray, file);
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, told);
        cScene scene(All(Release("0.3.0", file)));
        scene.Check.Look();
        scene.Check.Download(); // the user gives up
        QCOMPARE(scene.Https.Asked.size(), 1);
        QVERIFY(scene.Book.User.LastProposal.endsWith(u".deb"_s));
        const QString path = scene.Book.Shell.Folder(u"Downloads"_s) + u"/neu.deb"_s;
        cTestFile::Write(path, "old");
        scene.Book.User.SavePath = path;
        scene.Https.Answers.push_back(Came(bytes));
        QSignalSpy arrived(&scene.Check, &cUpdateCheck::Arrived);
        scene.Check.Download();
        QCOMPARE(scene.Book.User.Shown, told.isEmpty() ? QStringList() : QStringList(told));
        QCOMPARE(cTestFile::Bytes(path), told.isEmpty() ? Package : QByteArray("old"));
        QCOMPARE(scene.Check.State(), told.isEmpty() ? eState::Loaded : eState::Found);
        if (told.isEmpty()) {
            QCOMPARE(arrived.last(), QVariantList{100});
            QCOMPARE(scene.Check.Headline(),
                     u"Kontorelle 0.3.0 ist heruntergeladen und geprüft:\n%1\nBeenden Sie das Programm und öffnen Sie "
                     "diese Datei, um die neue Version zu installieren."_s.arg(path));
        }
    }

    void SkippedVersionIsToldAgainWhenAsked() const
    {
        cScene scene(All(twoNewer));
        scene.Check.Look();
        QVERIFY(scene.Check.HasNews());
        scene.Check.Skip();
        QCOMPARE(scene.Book.Configuration.GetSetting(modSettingKey::LastUpdateInfo), u"0.3.0"_s);
        QVERIFY(!scene.Check.HasNews());
        QCOMPARE(scene.Check.State(), eState::Found);
        scene.Https.Answers.push_back(Came(All(twoNewer + Release("0.10.0", {}))));
        scene.Check.Look();
        QVERIFY(scene.Check.HasNews());
        QVERIFY(!scene.Check.CanDownload()); // the newest one has no file
    }

    void FileNamesAreHarmless_data() const
    {
        const cTestRows<QString, QString> row("address", "name");
        row("usual", u"pakete/kontorelle_0.3.0-1_amd64.deb"_s, u"kontorelle_0.3.0-1_amd64.deb"_s);
        row("encoded folder", u"a/..%2F..%2F.bashrc"_s, u"bashrc"_s);
        row("option", u"a/--x $(y).deb"_s, u"xy.deb"_s);
        row("none", u"a/?datei=1"_s, u"kontorelle-0.3.0"_s);
    }

    void FileNamesAreHarmless() const
    {
        QFETCH(const QString, address);
        cUpdateRelease release;
        release.Version = QVersionNumber(0, 3, 0);
        release.Package.emplace().Address = QUrl(u"https://maker.example/"_s + address);
        QTEST(modUpdate::FileName(release), "name");
    }

    void AsksOnceAndNotABeginner() const
    {
        cScene scene;
        cUpdateSchedule& schedule = scene.Check.Schedule();
        QVERIFY(scene.Book.Settings->Set(modSettingKey::FirstInstall, u"2026-03-14"_s));
        (void)scene.Book.Add([](cEntryItem&) {});
        schedule.AskOnce();
        QVERIFY(scene.Book.User.Asked.isEmpty()); // the second day
        scene.Book.Clock.Day = QDate(2026, 3, 21);
        scene.Book.User.Answers = {eAnswer::No};
        schedule.AskOnce();
        schedule.AskOnce();
        QCOMPARE(scene.Book.User.Asked.size(), 1);
        QVERIFY(!schedule.IsWeekly());
        QVERIFY(!schedule.IsDue());

        cScene empty;
        QVERIFY(empty.Book.Settings->Set(modSettingKey::FirstInstall, u"2026-01-01"_s));
        empty.Check.Schedule().AskOnce();
        QVERIFY(empty.Book.User.Asked.isEmpty());
    }

    void LooksOnceAWeek() const
    {
        cScene scene;
        cUpdateSchedule& schedule = scene.Check.Schedule();
        schedule.SetWeekly(true);
        QVERIFY(!schedule.IsDue()); // the week begins now
        const std::array days{std::pair(6, false), std::pair(7, true), std::pair(-1, true)};
        for (const auto& [day, isDue] : days) {
            cFakeClock& clock = scene.Book.Clock;
            const QDate start = clock.Day;
            clock.Day = start.addDays(day);
            QCOMPARE(schedule.IsDue(), isDue);
            clock.Day = start;
        }
        scene.Book.Clock.Day = scene.Book.Clock.Day.addDays(30);
        schedule.Looked();
        QVERIFY(!schedule.IsDue());
    }

    void SaysWhoUpdatesOtherEditions() const
    {
        const QString address = u"https://maker.example/"_s;
        QCOMPARE(cUpdateCheck::Obstacle(true, address), QString());
        QVERIFY(
            cUpdateCheck::Obstacle(false, address).contains(u"von der Paketverwaltung Ihres Systems aktualisiert"_s));
        for (const QString& none : {QString(), u"http://maker.example/"_s}) {
            QVERIFY(cUpdateCheck::Obstacle(true, none)
                        .startsWith(u"Für diese Ausgabe ist keine Adresse für Aktualisierungen eingerichtet."_s));
        }
    }
};

TEST_CLASS(testUpdateCheck, QCoreApplication)
#include "testUpdateCheck.moc"
