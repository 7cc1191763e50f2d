#include "base/cText.h"
#include "core/cErrorLog.h"
#include "core/cKnownTexts.h"
#include "core/cLoggedUser.h"
#include "support/cTestClass.h"
#include "support/fakes.h"

#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cLogScene
{
    [[nodiscard]] cErrorLog Start(const QString& program = u"kontorelle"_s,
                                  cErrorLog::eKind kind = cErrorLog::eKind::Window) const
    {
        return cErrorLog({Shell.Folder(u"state"_s), program, u"0.1.0 (a1b2c3d)"_s, kind}, Clock);
    }
    // What all files hold.
    [[nodiscard]] QString Bytes() const
    {
        QString bytes;
        const QFileInfoList files = QDir(Shell.Folder(u"state"_s)).entryInfoList(QDir::Files);
        for (const QFileInfo& info : files) {
            QFile file(info.filePath());
            bytes += file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        }
        return bytes;
    }
    [[nodiscard]] qsizetype Files() const { return QDir(Shell.Folder(u"state"_s)).entryList(QDir::Files).size(); }
    // A run without its end, as a kill leaves it: nobody holds the lock of the copy.
    void Kill(const QString& failure) const
    {
        cErrorLog log = Start();
        log.Record({}, failure);
        QFile::copy(log.Files().constLast(), Shell.Folder(u"state"_s) + u"/kontorelle-20260101-000000-1-0.log"_s);
    }

    cFakeShell Shell;
    cFakeClock Clock;
};

// A language whose word order leaves nothing of a text but its places.
class cBareLanguage final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* /*source*/, const char* /*disambiguation*/,
                                    int /*n*/) const override
    {
        return u"{0} {1}"_s;
    }
};

} // namespace

class testErrorLog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingPrivateIsWritten_data()
    {
        const cTestRows<QString, QString> row("Message", "Written");
        row("path and reason",
            cText::Fill(
                u"Die Datei '{0}' konnte nicht geschrieben werden: {1}\nWas dort schon stand, ist unverändert."_s,
                {u"/home/erika/Familie Mustermann/auszug.csv"_s, u"Der Name ist zu lang."_s}),
            u"Die Datei '…' konnte nicht geschrieben werden: Der Name ist zu lang. Was dort schon stand, ist "
            "unverändert."_s);
        row("amount", u"Die Teile ergeben nicht den ganzen Betrag. Es bleibt ein Rest von 1.234,56 €."_s,
            u"Die Teile ergeben nicht den ganzen Betrag. Es bleibt ein Rest von …."_s);
        row("words of the database", u"ERROR: AddNewEntry\nno such column: Erika Mustermann"_s, u"no such column: …"_s);
        row("words of the system", u"Permission denied"_s, u"Permission denied"_s);
        row("words of nobody known",
            u"ERROR: ChangeEntry\nErika Mustermann schuldet DE02 1002 0030 0001 2345 67 noch 500"_s, u"…"_s);
        row("account that is called like an action", u"Daten exportieren"_s, u"…"_s);
        row("sentence that begins with the name", u"'Arztpraxis Dr. Mustermann' ist hier nicht möglich."_s,
            u"'…' ist hier nicht möglich."_s);
        row("several messages", u"Der Name ist zu lang.\nMustermann GmbH 4711\nDie Datei ist schreibgeschützt."_s,
            u"Der Name ist zu lang. … Die Datei ist schreibgeschützt."_s);
    }

    void NothingPrivateIsWritten()
    {
        QFETCH(QString, Message);
        const cLogScene scene;
        cErrorLog log = scene.Start();
        log.Record(u"Konto von Erika Mustermann"_s, Message);
        QTEST(log.Entries().value(0).Text, "Written");
        const QString bytes = scene.Bytes().remove(0, scene.Bytes().indexOf(u'\n') + 1);
        for (const QString& secret : {u"Erika"_s, u"Mustermann"_s, u"1.234"_s, u"1002"_s, u"4711"_s, u"/home"_s}) {
            QVERIFY2(!bytes.contains(secret), qPrintable(bytes));
        }
    }

    void TranslationsMayHaveNoWords()
    {
        cBareLanguage language;
        QCoreApplication::installTranslator(&language); // taken away by its destructor
        QCOMPARE(cKnownTexts::OfProgram().WithoutData(u"database is locked"_s), u"database is locked"_s);
    }

    void OperationIsNamed()
    {
        const cLogScene scene;
        cErrorLog log = scene.Start();
        const QString text = u"Die Datei ist schreibgeschützt."_s;
        log.Record(u"Daten exportieren"_s, text);
        log.Begin(u"Datensicherung laden"_s);
        log.Record(u"Daten exportieren"_s, text);
        log.Begin(u"import"_s);
        log.Record({}, text);
        log.End();
        log.End();
        log.Record(u"Girokonto von Erika"_s, text);
        log.Record({}, u"ERROR: AddNewEntry\n"_s + text);
        QStringList operations;
        for (const cLogEntry& entry : log.Entries()) {
            QCOMPARE(entry.Text, text);
            operations.prepend(entry.Operation);
        }
        operations.sort();
        QCOMPARE(
            operations,
            (QStringList{QString(), u"AddNewEntry"_s, u"Daten exportieren"_s, u"Datensicherung laden"_s, u"import"_s}));
    }

    void OnlyFailuresAreTakenDown()
    {
        const cLogScene scene;
        cErrorLog log = scene.Start();
        cFakeUser person;
        cLoggedUser user(person, log);
        int marks = 0;
        log.Watch([&] { ++marks; });
        const QString text = u"Die Datei ist schreibgeschützt."_s;
        user.Show(eTone::Information, text);
        user.Show(eTone::Objection, text);
        (void)user.Ask({.Text = text, .Title = {}});
        QCOMPARE(marks, 0);
        user.Show(eTone::Exclamation, text);
        user.Show(eTone::Critical, text);
        user.Show(eTone::Information, u"ERROR: AddNewEntry\n"_s + text);
        (void)user.Ask({.Text = text, .Title = {}, .Tone = eTone::Critical});
        (void)user.Decide({.Text = text, .Title = {}, .Options = {}, .Tone = eTone::Exclamation});
        QCOMPARE(marks, 5);
        QCOMPARE(log.Entries().size(), 5);
        QCOMPARE(person.Shown.size() + person.Asked.size(), 8); // everything has been passed on
    }

    // Runs without a failure leave nothing, and those of the other program are not pushed out.
    void FiveRunsStay()
    {
        cLogScene scene;
        {
            cErrorLog command = scene.Start(u"kontorelle-cli"_s, cErrorLog::eKind::Command);
            command.Record({}, u"Permission denied"_s);
        }
        for (int run = 0; run < 8; ++run) {
            scene.Clock.Day = scene.Clock.Day.addDays(1);
            const cErrorLog quiet = scene.Start();
            cErrorLog log = scene.Start();
            log.Record({}, u"Der Name ist zu lang."_s);
        }
        QCOMPARE(scene.Files(), 6);
        const QList<cLogEntry> entries = scene.Start().Entries();
        QCOMPARE(entries.size(), 6);
        QCOMPARE(entries[0].Time.date(), scene.Clock.Day);
        QCOMPARE(entries[5].Program, u"kontorelle-cli"_s);
        const cErrorLog silent = scene.Start(u"kontorelle-cli"_s, cErrorLog::eKind::Command);
        QCOMPARE(scene.Files(), 6);
    }

    void SizeIsLimited()
    {
        const cLogScene scene;
        cErrorLog log = scene.Start();
        const QString text = u"Die Datei ist schreibgeschützt. "_s.repeated(100);
        for (int i = 0; i < 100; ++i) {
            log.Record({}, text);
        }
        log.Record({}, u"Der Name ist zu lang."_s);
        QVERIFY(log.Size() <= cErrorLog::MostBytes);
        QVERIFY(log.Size() > cErrorLog::MostBytes / 3);
        const QList<cLogEntry> entries = log.Entries();
        QCOMPARE(entries.size(), std::count_if(entries.begin(), entries.end(), [](const cLogEntry& entry) {
                     return !entry.Text.isEmpty();
                 }));
        QVERIFY(scene.Bytes().contains(u"Der Name ist zu lang."_s));
    }

    void BrokenRunIsToldOnce()
    {
        const cLogScene scene;
        scene.Kill(u"Der Name ist zu lang."_s);
        cErrorLog log = scene.Start();
        const std::optional<cErrorLog::cBroken> broken = log.TakeBroken();
        QVERIFY(broken);
        QCOMPARE(broken->Failures, 1);
        QVERIFY(!broken->IsCrash);
        QVERIFY(!log.TakeBroken());
        QVERIFY(scene.Bytes().contains(u"nicht ordentlich beendet"_s));
    }

    void LivingRunIsNoBrokenOne()
    {
        const cLogScene scene;
        const cErrorLog other = scene.Start();
        cErrorLog log = scene.Start();
        QVERIFY(!log.TakeBroken());
    }
};

TEST_CLASS(testErrorLog, QCoreApplication)
#include "testErrorLog.moc"
