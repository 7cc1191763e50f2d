#include "support/cTestClass.h"
#include "support/fakes.h"
#include "views/help/cManual.h"
#include "views/help/cManualBrowser.h"
#include "views/help/modManual.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

// The manual as it was made of the chapters.
struct cScene
{
    cScene() { QFile::link(QStringLiteral(MANUAL), Shell.InstalledFile(modManual::Folder)); }

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

class testManual final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A chapter that the contents forget would be found by nobody.
    void EveryChapterIsInTheContents() const
    {
        const cScene scene;
        QStringList missing = QDir(QStringLiteral(MANUAL)).entryList({u"*.html"_s}, QDir::Files);
        QVERIFY(missing.removeOne(modManual::First));
        for (const cManual::cSection& section : scene.Manual.Sections()) {
            missing.removeOne(section.Page);
        }
        QCOMPARE(missing, QStringList());
    }

    void EveryLinkAndPictureLeadsSomewhere() const
    {
        const cScene scene;
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
        const cScene scene;
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
        const cScene scene;
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
        cScene scene;
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
        cScene scene;
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

TEST_CLASS(testManual, QCoreApplication)
#include "testManual.moc"
