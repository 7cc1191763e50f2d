#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "support/queued.h"
#include "support/testFormat.h"
#include "support/windowHands.h"
#include "views/help/cManualBrowser.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReportHtml.h"
#include "windows/help/frmHandbuch.h"
#include "windows/look/modPalette.h"
#include "windows/print/modPages.h"
#include "windows/report/cReportDocument.h"
#include "windows/report/cReportPane.h"
#include "windows/report/cReportPrinter.h"
#include "windows/report/cReportView.h"
#include "windows/report/modReportTone.h"
#include "windows/statistics/cReportTree.h"

#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSvgGenerator>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString family = u"DejaVu Sans"_s; // which every machine has, so that lines break alike

cReportGroup Group(const QString& name, qint64 cents, qint64 limit, const QStringList& categories)
{
    cReportGroup group{name, name, {.Cents = cents, .Sum = cents, .Limit = limit, .Entries = 1}};
    for (const QString& category : categories) {
        group.Categories.append({category, category + u" ("_s + name + u')', group.Amount});
    }
    return group;
}

cReportFigures Figures(eReport type, const QList<cReportGroup>& groups)
{
    cReportFigures figures;
    figures.Type = type;
    figures.Expense.Groups = groups;
    return figures;
}

QString Html(eReport type, const QList<cReportGroup>& groups)
{
    cTestFormat format;
    cReportFigures figures = Figures(type, groups);
    figures.Basis.Start = QDate(2026, 1, 1);
    figures.Basis.End = QDate(2026, 12, 31);
    cReportWish wish;
    wish.Type = type;
    wish.Range = {figures.Basis.Start, figures.Basis.End};
    wish.Today = QDate(2026, 3, 15);
    return modReportHtml::Html(figures, wish, format.Format);
}

QString SumHtml()
{
    return Html(eReport::Sum,
                {Group(u"Haushalt"_s, 10050, 0, {u"Lebensmittel"_s}), Group(u"Wohnung"_s, 70000, 0, {u"Miete"_s})});
}

QRect PlaceOf(const std::vector<cReportPiece>& pieces, const QString& word)
{
    const auto found =
        std::find_if(pieces.begin(), pieces.end(), [&](const cReportPiece& piece) { return piece.Text == word; });
    return found == pieces.end() ? QRect() : found->Place;
}

struct cScene
{
    cScene()
    {
        QFont font(family);
        font.setPixelSize(13); // pixels of the page are pixels of the screen
        View.setFont(font);
        View.resize(800, 300);
        View.SetReport(SumHtml());
        View.show();
        View.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&View));
        View.setFocus();
    }

    // The middle of a text, in pixels of the viewport.
    [[nodiscard]] QPoint PointOf(const QString& text) const
    {
        const int at = static_cast<int>(View.PlainText().indexOf(text));
        return View.PlaceOf(at + static_cast<int>(text.size()) / 2).center() - View.viewport()->pos();
    }

    cReportView View;
    QSignalSpy Clicks{&View, &cReportView::LinkClicked};
};

const QString rentLink = u"SHOWENTRIES://Ausgaben|01.01.2026|31.12.2026|Alle Konten|Wohnung; Miete"_s;

struct cManualScene
{
    cManualScene()
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

using cLine = cReportPrinter::cLine;
using cLines = std::vector<cLine>;
Q_DECLARE_METATYPE(cLines)

// What a report and the manual look like is told by where their words and areas stand.
class testReportView final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LinesOfAllLevelsEndAtTheSamePlace()
    {
        cReportDocument report(SumHtml(), family);
        report.LayOut(1000);
        const std::vector<cReportPiece> pieces = report.Pieces();
        QList<int> ends;
        for (const cReportPiece& piece : pieces) {
            if (piece.Text.isEmpty() && piece.Place.height() > 10) {
                ends.append(piece.Place.right());
            }
        }
        QCOMPARE(ends.size(), 4);
        QCOMPARE(ends, QList<int>(4, ends.constFirst()));
        // A bold line is 640 wide and begins further left by what its categories are indented.
        QCOMPARE(PlaceOf(pieces, u"Miete"_s).left() - PlaceOf(pieces, u"Wohnung"_s).left(), 80);
    }

    void LongNamesMakeTheirLineHigher()
    {
        const QString longName = u"Versicherungen und Vorsorge für alle Mitglieder des Haushalts und die Tiere"_s;
        cReportDocument report(Html(eReport::Sum, {Group(u"Haushalt"_s, 100, 0, {longName, u"Danach"_s})}), family);
        report.LayOut(1000);
        const std::vector<cReportPiece> pieces = report.Pieces();
        const QRect first = PlaceOf(pieces, u"Versicherungen"_s);
        const QRect last = PlaceOf(pieces, u"Tiere"_s);
        QVERIFY(last.top() > first.bottom());
        QVERIFY(PlaceOf(pieces, u"Danach"_s).top() > last.bottom());
    }

    void BarsKeepTheirTrack_data()
    {
        // Width: of the whole bar with mark and borders
        const cTestRows<int, int> row("Percent", "Width");
        row("nearly nothing", 1, 311);
        row("within the limit", 45, 311);
        row("exactly the limit", 100, 311);
        row("half above, both parts", 150, 311);
        row("far above, no track left", 250, 308);
    }

    // However little or much was spent, the parts of a bar stand side by side in one row of the same height.
    void BarsKeepTheirTrack()
    {
        QFETCH(int, Percent);
        cReportDocument report(Html(eReport::Limit, {Group(u"Haushalt"_s, qint64{Percent} * 100, 10000, {})}), family);
        report.LayOut(1200);
        const std::vector<cReportPiece> pieces = report.Pieces();
        const QRect text = PlaceOf(pieces, QString::number(Percent) + u'%');
        QVERIFY(text.isValid());
        QRect bar;
        for (const cReportPiece& piece : pieces) {
            const QRect& place = piece.Place;
            const bool isPart = piece.Text.isEmpty() && place.height() > 10 && place.width() < 200;
            if (isPart) {
                QVERIFY2(place.top() <= text.top() + 2 && place.bottom() >= text.bottom() - 2,
                         "a part stands elsewhere");
                bar |= place;
            }
        }
        QVERIFY(bar.height() <= 25);
        QTEST(bar.width(), "Width");
    }

    void ClickArrivesAfterItsEvent()
    {
        cScene scene;
        connect(&scene.View, &cReportView::LinkClicked, &scene.View, [&] { scene.View.SetReport(u"<p>anders</p>"_s); });
        QTest::mouseClick(scene.View.viewport(), Qt::LeftButton, {}, scene.PointOf(u"Miete"_s));
        QCOMPARE(scene.Clicks.size(), 0); // the report must not change under the event
        QTRY_COMPARE(scene.Clicks.size(), 1);
        QCOMPARE(scene.Clicks.constFirst().constFirst().toString(), rentLink);
        QCOMPARE(scene.Clicks.constFirst().constLast().toString(), u"Miete (Wohnung)"_s);
        QCOMPARE(scene.View.PlainText(), u"anders"_s);
    }

    void ClickReachesTheRightLinkWhateverTheSize()
    {
        cScene scene;
        scene.View.SetZoom(200);
        scene.View.ScrollTo(static_cast<int>(scene.View.PlainText().indexOf(u"Miete"_s)));
        QTest::mouseMove(scene.View.viewport(), scene.PointOf(u"Miete"_s));
        QTRY_COMPARE(scene.View.viewport()->cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseClick(scene.View.viewport(), Qt::LeftButton, {}, scene.PointOf(u"Miete"_s));
        QTRY_COMPARE(scene.Clicks.size(), 1);
        QCOMPARE(scene.Clicks.constFirst().constFirst().toString(), rentLink);
    }

    void DraggingSelectsAndIsNoClick()
    {
        cScene scene;
        scene.View.verticalScrollBar()->setValue(scene.View.verticalScrollBar()->maximum());
        const QPoint from = scene.PointOf(u"Miete"_s) - QPoint(200, 0);
        const QPoint to = scene.PointOf(u"Miete"_s) + QPoint(500, 0);
        QTest::mousePress(scene.View.viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(scene.View.viewport(), to);
        QTest::mouseRelease(scene.View.viewport(), Qt::LeftButton, {}, to);
        QCOMPARE(scene.View.SelectedText(), u"Miete (Wohnung):\t700,00\u00a0€"_s);
        QTest::keyClick(&scene.View, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), scene.View.SelectedText());
        RunQueued();
        QCOMPARE(scene.Clicks.size(), 0);
        QTest::mouseDClick(scene.View.viewport(), Qt::LeftButton, {}, scene.PointOf(u"Haushalt"_s));
        QVERIFY(scene.View.SelectedText().startsWith(u"Haushalt"_s));
    }

    void EveryLinkIsReachedWithTheTabulator()
    {
        cScene scene;
        scene.View.resize(800, 150);
        for (int i = 0; i < 4; ++i) { // two groups with a category each
            QTest::keyClick(&scene.View, Qt::Key_Tab);
        }
        QTest::keyClick(&scene.View, Qt::Key_Return);
        QTRY_COMPARE(scene.Clicks.size(), 1);
        QCOMPARE(scene.Clicks.constFirst().constFirst().toString(), rentLink);
        QVERIFY(scene.View.verticalScrollBar()->value() > 0); // it came into sight
        QTest::keyClick(&scene.View, Qt::Key_Backtab);
        QTest::keyClick(&scene.View, Qt::Key_Return);
        QTRY_COMPARE(scene.Clicks.size(), 2);
        QVERIFY(scene.Clicks.at(1).constFirst().toString().endsWith(u"Wohnung; "_s));
    }

    void TextIsFound()
    {
        cReportPane pane;
        pane.View().SetReport(SumHtml());
        pane.ShowFind();
        auto& text = *pane.findChild<QLineEdit*>();
        text.setText(u"WOHNUNG"_s);
        QCOMPARE(pane.View().FoundCount(), 2);
        QCOMPARE(pane.View().SelectedText(), u"Wohnung"_s);
        QCOMPARE(pane.View().FoundNumber(), 1);
        QTest::keyClick(&text, Qt::Key_Return);
        QCOMPARE(pane.View().FoundNumber(), 2);
        QTest::keyClick(&text, Qt::Key_Return); // round
        QCOMPARE(pane.View().FoundNumber(), 1);
        QTest::keyClick(&text, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(pane.View().FoundNumber(), 2);
        text.setText(u"Wohnungen"_s);
        QCOMPARE(pane.View().FoundCount(), 0);
    }

    void ScreenReadersGetTheText()
    {
        cScene scene;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&scene.View);
        QCOMPARE(face->text(QAccessible::Name), u"Bericht"_s);
        QAccessibleTextInterface* text = face->textInterface();
        QVERIFY(text != nullptr);
        QVERIFY(text->text(0, text->characterCount()).contains(u"Lebensmittel (Haushalt):\t100,50\u00a0€\n"_s));
        QTest::keyClick(&scene.View, Qt::Key_Tab);
        const int focus = text->cursorPosition();
        QCOMPARE(text->text(focus, focus + 8), u"Haushalt"_s);
    }

    void DarkColoursStayReadable()
    {
        const QPalette dark = modPalette::Dark();
        const QList<std::pair<QColor, QColor>> pairs{{0x006400, 0xF0FFF0}, {0x007400, 0xF8FAF8}, {0x880000, 0xFFF0F0},
                                                     {0x770000, 0xFFF6F6}, {0x444444, 0xF8F8F8}, {0x2E4513, 0xC2D4AE},
                                                     {0x450F10, 0xDBA1A3}, {0x000000, 0xFFFFFF}};
        for (const auto& [text, ground] : pairs) {
            const QColor ink = modReportTone::Shown(text, dark);
            const QColor paper = modReportTone::Shown(ground, dark);
            QVERIFY2(qGray(ink.rgb()) - qGray(paper.rgb()) > 80, qPrintable(text.name()));
            QCOMPARE(modReportTone::Shown(text, QPalette(Qt::lightGray)), text);
        }
    }

    void PagesEndBetweenLines_data()
    {
        // End: of a page of 100
        const cTestRows<cLines, int, int> row("Lines", "Top", "End");
        const cLines plain{{0, 30}, {40, 70}, {80, 110}, {120, 150}};
        row("a line does not fit any more", plain, 0, 80);
        row("the next page", plain, 80, 180);
        row("a line ends with the page", cLines{{0, 100}, {100, 130}}, 0, 100);
        row("a headline goes along", cLines{{0, 30}, {40, 70, true}, {80, 110}}, 0, 40);
        row("two headlines go along", cLines{{0, 30}, {35, 50, true}, {55, 70, true}, {80, 110}}, 0, 35);
        row("the page ends behind a headline", cLines{{0, 60}, {70, 95, true}, {105, 130}}, 0, 70);
        row("nothing but headlines", cLines{{0, 30, true}, {40, 70, true}, {80, 110}}, 0, 80);
        row("higher than a page", cLines{{0, 250}}, 100, 200);
    }

    void PagesEndBetweenLines()
    {
        QFETCH(cLines, Lines);
        QFETCH(int, Top);
        QTEST(cReportPrinter::PageEnd(Lines, Top, 100), "End");
    }

    // Each line of a long report is on exactly one page.
    void NothingIsLostBetweenPages()
    {
        QList<cReportGroup> groups;
        for (int i = 0; i < 60; ++i) {
            groups.append(Group(u"Gruppe %1"_s.arg(i), qint64{100} * i, 1000, {u"Eins"_s, u"Zwei"_s}));
        }
        const QString html = Html(eReport::Limit, groups);
        cReportDocument report(html, family);
        report.LayOut(680);
        const std::vector<cReportPiece> pieces = report.Pieces();
        const cLines lines = cReportPrinter::Lines(report, 350);
        QVERIFY(lines.size() >= 180);
        int top = 0;
        while (top < report.Size().height()) {
            const int end = cReportPrinter::PageEnd(lines, top, 700);
            for (const cReportPiece& piece : pieces) {
                const bool isCut = !piece.Text.isEmpty() && piece.Place.top() < end && piece.Place.bottom() >= end;
                QVERIFY2(!isCut, qPrintable(piece.Text));
            }
            QVERIFY(end > top);
            top = end;
        }
        cReportPrinter printer(html, family, QDate());
        QVERIFY(printer.Title().startsWith(u"Limit-Bericht für alle Konten"_s));
        QVERIFY(modPages::Pdf(printer).startsWith("%PDF-"));
    }

    // Each row is whole on one page, once, below the names of its columns. A long word makes nothing smaller.
    void TablesGoOnWithTheirColumns()
    {
        const auto pages = [](const QString& first) {
            QString html = u"<h1>Titel</h1><table><tr><th>Kopf</th></tr><tr><td>%1</td></tr>"_s.arg(first);
            for (int i = 100; i < 200; ++i) {
                html += u"<tr><td>Eins%1 <br> Zwei%1 <br> Drei%1</td></tr>"_s.arg(i);
            }
            cReportPrinter printer(html + u"</table>"_s, family, {});
            QStringList texts;
            for (int page = 0, count = 1; page < count; ++page) {
                QBuffer file;
                QSvgGenerator svg;
                svg.setOutputDevice(&file);
                count = printer.LayOut(svg, QRectF(0, 0, 700, 1000));
                QPainter painter(&svg);
                printer.PaintPage(painter, page);
                painter.end();
                texts.append(QString::fromUtf8(file.data()));
            }
            return texts;
        };
        const QStringList texts = pages(u"kurz"_s);
        for (const QString& text : texts) {
            QCOMPARE(text.count(u">Kopf<"_s), 1);
        }
        for (int i = 100; i < 200; ++i) {
            const QStringList own = texts.filter(u"Eins%1<"_s.arg(i));
            QCOMPARE(own.size(), 1);
            QVERIFY(own.constFirst().contains(u"Zwei%1<"_s.arg(i)) && own.constFirst().contains(u"Drei%1<"_s.arg(i)));
        }
        QVERIFY(pages(QString(300, u'x')).size() >= texts.size());
    }

    // Also when its first group has gone meanwhile.
    void TreeStaysAsItWas()
    {
        const cTestFormat format;
        cReportTreeModel model(format.Format);
        const cReportGroup flat = Group(u"Wohnung"_s, 700, 0, {u"Miete"_s});
        model.SetFigures(Figures(eReport::Sum, {Group(u"Haushalt"_s, 100, 0, {u"Brot"_s}), flat}));
        cReportTree tree(model);
        const auto at = [&](const QString& group) { return model.FindNode({eReportKind::Expense, group}); };
        const cReportNode rent{eReportKind::Expense, u"Wohnung"_s, u"Miete"_s};
        tree.expand(at(u"Wohnung"_s));
        tree.setCurrentIndex(model.FindNode(rent));
        model.SetFigures(Figures(eReport::Sum, {flat}));
        QCOMPARE(tree.currentIndex(), model.FindNode(rent));
        QVERIFY(tree.isExpanded(at(u"Wohnung"_s)));
        model.SetFigures(Figures(eReport::Average, {flat})); // another report opens as it always does
        QVERIFY(!tree.isExpanded(at(u"Wohnung"_s)));
    }

    void GoesToTheHeading()
    {
        const cManualScene manual;
        manual.Browser->Open(u"02-kontoauszug.html#buchen"_s);
        const QRect heading = manual.PlaceOf(u"Mit der Eingabetaste allein"_s);
        QVERIFY2(heading.top() > 0 && heading.top() < 100, qPrintable(QString::number(heading.top())));
        QCOMPARE(manual.Contents->currentItem()->text(0), u"Buchen"_s);
    }

    // Its first link is not in view, and the focus that a window gets as it opens scrolls nothing.
    void OpensAtTheHeading()
    {
        cManualScene manual;
        manual.Window->close();
        manual.Browser->Open(u"02-kontoauszug.html#eigene-regeln"_s);
        manual.Window->Present();
        QVERIFY(QTest::qWaitForWindowActive(manual.Window.get()));
        const QList<cManual::cSection>& sections = manual.Browser->Manual().Sections();
        const QRect heading = manual.PlaceOf(sections.at(manual.Browser->SectionNow()).Text.left(25));
        QVERIFY2(heading.top() > 0 && heading.top() < 100, qPrintable(QString::number(heading.top())));
    }

    void FollowsLinksAndGoesBackToThePlace()
    {
        const cManualScene manual;
        manual.Browser->Open(u"02-kontoauszug.html#buchen"_s);
        const int left = manual.View->verticalScrollBar()->value();
        QVERIFY(left > 0);
        Q_EMIT manual.View->LinkClicked(u"03-eintraege.html"_s, u"Eintrag"_s);
        QVERIFY(manual.View->PlainText().startsWith(u"Einträge erfassen"_s));
        QCOMPARE(manual.View->verticalScrollBar()->value(), 0);
        QTest::keyClick(manual.Window.get(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(manual.View->verticalScrollBar()->value(), left);
        QVERIFY(modWindowHands::Button(*manual.Window, u"Vor"_s).isEnabled());
    }

    void SearchListsPlacesAndEnterOpensThem()
    {
        const cManualScene manual;
        auto* field = manual.Window->findChild<QLineEdit*>();
        field->setFocus();
        QTest::keyClicks(field, u"photoTAN"_s);
        QVERIFY(manual.Hits->isVisible());
        QVERIFY(manual.Hits->topLevelItemCount() > 1);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(manual.Browser->Place().Page, u"faq.html"_s); // the question has the word in its heading
        QVERIFY(manual.View->FoundCount() > 0);
        field->setText(u"Papierkorb"_s);
        QVERIFY(manual.Hits->topLevelItem(0)->text(0).indexOf(field->text()) < 80); // the list is narrow
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(manual.View->SelectedText(), field->text());
        const QRect word = manual.View->PlaceOf(manual.View->SelectionStart());
        QVERIFY(manual.View->viewport()->geometry().contains(word)); // far below the headline of its section
        field->clear();
        QVERIFY(manual.Contents->isVisible());
    }

    void PicturesTablesAndListsAreLaidOut()
    {
        const cManualScene manual;
        manual.Browser->Open(u"01-start.html"_s);
        const int above = manual.PlaceOf(u"Fast alles geht ohne Maus"_s).bottom();
        const int below = manual.PlaceOf(u"Ein anderer Ordner"_s).top();
        QVERIFY2(below - above > 200, qPrintable(QStringLiteral("%1 to %2").arg(above).arg(below)));
        manual.Browser->Open(u"02-kontoauszug.html"_s);
        const QRect head = manual.PlaceOf(u"gut zu wissen"_s);
        QVERIFY(head.isValid());
        QVERIFY(head.bottom() < manual.PlaceOf(u".sta"_s).top());
        manual.Browser->Open(u"faq.html"_s);
        const QRect second = manual.PlaceOf(u"2."_s);
        const QRect words = manual.PlaceOf(u"Auf dem neuen Rechner"_s);
        QVERIFY(second.isValid());
        QVERIFY(second.right() < words.left() && std::abs(second.top() - words.top()) <= 3);
    }

    // Whoever fills in a form reads beside it how, one dialog above another too.
    void CanBeUsedBesideADialog()
    {
        const cManualScene manual;
        manual.Browser->Open(u"05-serien.html"_s);
        manual.Browser->Open(u"08-suchen.html"_s);
        QDialog first;
        QDialog second(&first);
        QStringList pages; // where the button led beside each dialog
        const auto goBack = [&](const QDialog& dialog) {
            const bool isBeside = QTest::qWaitFor(
                [&] { return manual.Window->windowHandle()->transientParent() == dialog.windowHandle(); });
            Click(modWindowHands::Button(*manual.Window, u"Zurück"_s));
            pages.append(isBeside ? manual.Browser->Place().Page : QString());
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
        QVERIFY(manual.Window->isVisible());
        Click(modWindowHands::Button(*manual.Window, u"Vor"_s));
        QCOMPARE(manual.Browser->Place().Page, u"05-serien.html"_s);
    }
};

TEST_CLASS(testReportView, QApplication)
#include "testReportView.moc"
