#include "core/cErrorLog.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "views/help/cErrorLogView.h"
#include "views/help/cManual.h"
#include "views/help/cManualBrowser.h"
#include "views/help/modBroken.h"
#include "views/help/modDiagnosis.h"
#include "views/help/modManual.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSignalSpy>

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

struct cManualScene
{
    cManualScene() { QFile::link(QStringLiteral(MANUAL), Shell.InstalledFile(modManual::Folder)); }

    cFakeShell Shell;
    cFakeUser User;
    cManual Manual{QStringLiteral(MANUAL)};
};

QStringList Found(const QString& html, const QString& pattern)
{
    QStringList found;
    auto each = QRegularExpression(pattern).globalMatch(html);
    while (each.hasNext()) {
        found.append(each.next().captured(1));
    }
    return found;
}

// What is wrong with a place; empty when the page and its heading are there.
QString FaultOf(const cManual& manual, const QString& place)
{
    const QString html = manual.Html(place.section(u'#', 0, 0));
    const QString anchor = place.section(u'#', 1);
    const bool isThere = !html.isEmpty() && (anchor.isEmpty() || html.contains(u" id=\"%1\""_s.arg(anchor)));
    return isThere ? QString() : place;
}

QString FaultOfLink(const cManual& manual, const QString& page, const QString& link)
{
    const QString address = QUrl::fromPercentEncoding(link.toUtf8());
    if (modManual::IsOutside(address)) {
        return {};
    }
    const QString fault = FaultOf(manual, address.startsWith(u'#') ? page + address : address);
    return fault.isEmpty() ? QString() : page + u" -> "_s + fault;
}

} // namespace

// What helps who does not know what to do: the manual, and the log of what went wrong.
class testHelp final : public QObject
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

    // A chapter that the contents forget would be found by nobody.
    void EveryChapterIsInTheContents() const
    {
        const cManualScene scene;
        QStringList missing = QDir(QStringLiteral(MANUAL)).entryList({u"*.html"_s}, QDir::Files);
        QVERIFY(missing.removeOne(modManual::First));
        for (const cManual::cSection& section : scene.Manual.Sections()) {
            missing.removeOne(section.Page);
        }
        QCOMPARE(missing, QStringList());
    }

    void EveryLinkAndPictureLeadsSomewhere() const
    {
        const cManualScene scene;
        QStringList faults;
        int links = 0;
        const QStringList pages = QDir(QStringLiteral(MANUAL)).entryList({u"*.html"_s}, QDir::Files);
        for (const QString& page : pages) {
            const QString html = scene.Manual.Html(page);
            const QStringList addresses = Found(html, u"<a href=\"([^\"]*)\""_s);
            for (const QString& address : addresses) {
                ++links;
                faults.append(FaultOfLink(scene.Manual, page, address));
            }
            const QStringList pictures = Found(html, u"<img src=\"([^\"]*)\""_s);
            for (const QString& picture : pictures) {
                const bool isThere = QFile::exists(QStringLiteral(MANUAL "/") + picture);
                faults.append(isThere ? QString() : page + u" -> "_s + picture);
            }
        }
        faults.removeAll(QString());
        QCOMPARE(faults, QStringList());
        QVERIFY(links > 50); // else the pattern fits no more
    }

    void EveryWindowHasItsChapter() const
    {
        const cManualScene scene;
        QStringList faults;
        for (const modManual::cTopic& topic : modManual::Topics()) {
            faults.append(FaultOf(scene.Manual, QString::fromUtf8(topic.Place)));
        }
        QDirIterator headers(QStringLiteral(WINDOWS), {u"frm*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(headers.hasNext());
        while (headers.hasNext()) {
            const QString window = QFileInfo(headers.next()).completeBaseName();
            if (modManual::PlaceOf({window}) == modManual::First) {
                faults.append(window);
            }
        }
        faults.removeAll(QString());
        QCOMPARE(faults, QStringList());
    }

    void WhatIsInFrontDecides() const
    {
        const QString password = u"11-buch.html#passwort"_s;
        QCOMPARE(modManual::PlaceOf({u"QLineEdit"_s, u"frmPasswort"_s, u"frmMain"_s}), password);
        QCOMPARE(modManual::PlaceOf({u"QDialog"_s}), modManual::First);
    }

    // Pages of the maker come first where there are any; the manual stays the manual.
    void CommandsLeadOutsideOnlyWithAHomepage() const
    {
        const QStringList windows{u"frmSuche"_s};
        const QString search = u"08-suchen.html"_s;
        const QString maker = u"https://example.org"_s;
        QCOMPARE(modManual::AddressOf(modCommand::Homepage, {}, windows), search);
        QCOMPARE(modManual::AddressOf(modCommand::Homepage, maker, windows), maker);
        QCOMPARE(modManual::AddressOf(modCommand::Questions, {}, windows), u"faq.html"_s);
        QCOMPARE(modManual::AddressOf(modCommand::Questions, maker, windows), u"https://example.org/faq.html"_s);
        QCOMPARE(modManual::AddressOf(modCommand::Manual, maker, windows), search);
    }

    void SearchFindsWordsAsTheyAreTyped() const
    {
        const cManualScene scene;
        const QList<cManual::cHit> hits = scene.Manual.Find(u" SICHERUNGEN "_s);
        QVERIFY(hits.size() > 3);
        QCOMPARE(hits.first().Place, u"11-buch.html#bücher-sicherungen-passwort"_s);
        QCOMPARE(hits.at(1).Title, u"Bücher, Sicherungen, Passwort: Mehrere Bücher"_s);
        const QList<cManual::cHit> tan = scene.Manual.Find(u"flackernd übertragung"_s);
        QCOMPARE(tan.size(), 1);
        QCOMPARE(tan.first().Place, u"16-online-banking.html#tan-und-freigabe"_s);
        QVERIFY2(tan.first().Excerpt.contains(u"flackernd"_s), qPrintable(tan.first().Excerpt));
        QVERIFY(scene.Manual.Find(u"flackernd kontolimit"_s).isEmpty()); // both words, but nowhere together
        QVERIFY(scene.Manual.Find(u"  "_s).isEmpty());
    }

    void BackGoesWhereThePageWasLeft() const
    {
        cManualScene scene;
        cManualBrowser browser(scene.Shell, scene.User);
        const QSignalSpy opened(&browser, &cManualBrowser::Opened);
        browser.Open(u"05-serien.html"_s);
        browser.Leave(120);
        browser.Open(u"#korrekturen"_s);
        QCOMPARE(browser.Place().Page, u"05-serien.html"_s);
        QCOMPARE(browser.Manual().Sections().at(browser.SectionNow()).Title, u"Korrekturen"_s);
        browser.GoBack();
        QCOMPARE(browser.Place().Anchor, QString());
        QCOMPARE(browser.Place().Position, 120);
        QVERIFY(browser.CanGoForward());
        browser.Open(u"08-suchen.html"_s); // another way: the one forward is gone
        QVERIFY(!browser.CanGoForward());
        QCOMPARE(opened.size(), 4);
    }

    void LinksToTheOutsideOpenInTheBrowser() const
    {
        cManualScene scene;
        cManualBrowser browser(scene.Shell, scene.User);
        browser.Open(u"HTTPS://www.example.org"_s);
        QCOMPARE(scene.Shell.Pages, QStringList(u"HTTPS://www.example.org"_s));
        QCOMPARE(browser.Place().Page, modManual::First);
        QVERIFY(scene.User.Shown.isEmpty());
    }

    void AManualThatIsMissingSaysSo() const
    {
        cFakeShell shell;
        cFakeUser user;
        const cManualBrowser browser(shell, user);
        QVERIFY(browser.Html().contains(u"fehlt"_s));
        QVERIFY(browser.Html().contains(u"index.html"_s));
    }
};

TEST_CLASS(testHelp, QCoreApplication)
#include "testHelp.moc"
