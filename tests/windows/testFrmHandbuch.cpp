#include "support/cTestClass.h"
#include "support/fakes.h"
#include "support/windowHands.h"
#include "views/help/cManualBrowser.h"
#include "windows/help/frmHandbuch.h"
#include "windows/report/cReportView.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene
{
    cScene()
    {
        QFile::link(QStringLiteral(MANUAL), Shell.InstalledFile(u"handbuch"_s));
        Browser = std::make_unique<cManualBrowser>(Shell, User);
        Window = std::make_unique<frmHandbuch>(*Browser);
        Window->Present();
        QVERIFY(QTest::qWaitForWindowActive(Window.get()));
        View = Window->findChild<cReportView*>();
        const QList<QTreeWidget*> trees = Window->findChildren<QTreeWidget*>();
        for (QTreeWidget* tree : trees) {
            (tree->accessibleName() == u"Inhalt" ? Contents : Hits) = tree;
        }
    }

    // A text of the page, in pixels of the viewport.
    [[nodiscard]] QRect PlaceOf(const QString& text) const
    {
        const int at = static_cast<int>(View->PlainText().indexOf(text));
        return at < 0 ? QRect() : View->PlaceOf(at).translated(-View->viewport()->pos());
    }

    cFakeShell Shell;
    cFakeUser User;
    std::unique_ptr<cManualBrowser> Browser;
    std::unique_ptr<frmHandbuch> Window;
    cReportView* View = nullptr;
    QTreeWidget* Contents = nullptr;
    QTreeWidget* Hits = nullptr;
};

// Where a real click of the mouse would land: a window that a dialog blocks gets none.
void Click(QWidget& widget)
{
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, widget.rect().center()));
}

} // namespace

class testFrmHandbuch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void GoesToTheHeading()
    {
        m_scene->Browser->Open(u"02-kontoauszug.html#buchen"_s);
        const QRect heading = m_scene->PlaceOf(u"Mit der Eingabetaste allein"_s);
        QVERIFY2(heading.top() > 0 && heading.top() < 100, qPrintable(QString::number(heading.top())));
        QCOMPARE(m_scene->Contents->currentItem()->text(0), u"Buchen"_s);
    }

    void FollowsLinksAndGoesBackToThePlace()
    {
        m_scene->Browser->Open(u"02-kontoauszug.html#buchen"_s);
        const int left = m_scene->View->verticalScrollBar()->value();
        QVERIFY(left > 0);
        Q_EMIT m_scene->View->LinkClicked(u"03-eintraege.html"_s, u"Eintrag"_s);
        QVERIFY(m_scene->View->PlainText().startsWith(u"Einträge erfassen"_s));
        QCOMPARE(m_scene->View->verticalScrollBar()->value(), 0);
        QTest::keyClick(m_scene->Window.get(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m_scene->View->verticalScrollBar()->value(), left);
        QVERIFY(modWindowHands::Button(*m_scene->Window, u"Vor"_s).isEnabled());
    }

    void SearchListsPlacesAndEnterOpensThem()
    {
        auto* field = m_scene->Window->findChild<QLineEdit*>();
        field->setFocus();
        QTest::keyClicks(field, u"photoTAN"_s);
        QVERIFY(m_scene->Hits->isVisible());
        QVERIFY(m_scene->Hits->topLevelItemCount() > 1);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(m_scene->Browser->Place().Page, u"faq.html"_s); // the question has the word in its heading
        QVERIFY(m_scene->View->FoundCount() > 0);
        field->clear();
        QVERIFY(m_scene->Contents->isVisible());
    }

    void PicturesAreShown()
    {
        m_scene->Browser->Open(u"01-start.html"_s);
        const int above = m_scene->PlaceOf(u"Fast alles geht ohne Maus"_s).bottom();
        const int below = m_scene->PlaceOf(u"Ein anderer Ordner"_s).top();
        QVERIFY2(below - above > 200, qPrintable(QStringLiteral("%1 to %2").arg(above).arg(below)));
    }

    void HeadsOfTablesStandAboveTheirRows()
    {
        m_scene->Browser->Open(u"02-kontoauszug.html"_s);
        const QRect head = m_scene->PlaceOf(u"gut zu wissen"_s);
        QVERIFY(head.isValid());
        QVERIFY(head.bottom() < m_scene->PlaceOf(u".sta"_s).top());
    }

    void ListsAreNumbered()
    {
        m_scene->Browser->Open(u"faq.html"_s);
        const QRect second = m_scene->PlaceOf(u"2."_s);
        const QRect words = m_scene->PlaceOf(u"Auf dem neuen Rechner"_s);
        QVERIFY(second.isValid());
        QVERIFY2(second.right() < words.left() && std::abs(second.top() - words.top()) <= 3,
                 qPrintable(QStringLiteral("%1,%2 %3,%4")
                                .arg(second.right())
                                .arg(second.top())
                                .arg(words.left())
                                .arg(words.top())));
    }

    // Whoever fills in a form reads beside it how, one dialog above another too.
    void CanBeUsedBesideADialog()
    {
        m_scene->Browser->Open(u"05-serien.html"_s);
        m_scene->Browser->Open(u"08-suchen.html"_s);
        QDialog first;
        QDialog second(&first);
        QStringList pages; // where the button led beside each dialog
        const auto goBack = [&](const QDialog& dialog) {
            const bool isBeside = QTest::qWaitFor(
                [&] { return m_scene->Window->windowHandle()->transientParent() == dialog.windowHandle(); });
            Click(modWindowHands::Button(*m_scene->Window, u"Zurück"_s));
            pages.append(isBeside ? m_scene->Browser->Place().Page : QString());
        };
        QTimer::singleShot(0, &first, [&] {
            goBack(first);
            QTimer::singleShot(0, &second, [&] {
                goBack(second);
                second.reject();
            });
            second.exec();
            first.reject();
        });
        first.exec();
        QCOMPARE(pages, QStringList({u"05-serien.html"_s, u"index.html"_s}));
        QVERIFY(m_scene->Window->isVisible());
        Click(modWindowHands::Button(*m_scene->Window, u"Vor"_s));
        QCOMPARE(m_scene->Browser->Place().Page, u"05-serien.html"_s);
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmHandbuch, QApplication)
#include "testFrmHandbuch.moc"
