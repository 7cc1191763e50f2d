#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testFormat.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReportHtml.h"
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
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSvgGenerator>
#include <QTemporaryDir>
#include <QTest>

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

// The place of a word on the page.
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

} // namespace

// What a report looks like is told by where its words and areas stand.
class testReportView final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LinesOfAllLevelsEndAtTheSamePlace();
    void LongNamesMakeTheirLineHigher();
    void BarsKeepTheirTrack_data();
    void BarsKeepTheirTrack();
    void ClickArrivesAfterItsEvent();
    void ClickReachesTheRightLinkWhateverTheSize();
    void DraggingSelectsAndIsNoClick();
    void EveryLinkIsReachedWithTheTabulator();
    void TextIsFound();
    void ScreenReadersGetTheText();
    void DarkColoursStayReadable();
    void PagesEndBetweenLines_data();
    void PagesEndBetweenLines();
    void NothingIsLostBetweenPages();
    void TablesGoOnWithTheirColumns();
    void TreeStaysAsItWas();
};

void testReportView::LinesOfAllLevelsEndAtTheSamePlace()
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

void testReportView::LongNamesMakeTheirLineHigher()
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

void testReportView::BarsKeepTheirTrack_data()
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
void testReportView::BarsKeepTheirTrack()
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
            QVERIFY2(place.top() <= text.top() + 2 && place.bottom() >= text.bottom() - 2, "a part stands elsewhere");
            bar |= place;
        }
    }
    QVERIFY(bar.height() <= 25);
    QTEST(bar.width(), "Width");
}

void testReportView::ClickArrivesAfterItsEvent()
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

void testReportView::ClickReachesTheRightLinkWhateverTheSize()
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

void testReportView::DraggingSelectsAndIsNoClick()
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
    QTest::qWait(5);
    QCOMPARE(scene.Clicks.size(), 0);
    QTest::mouseDClick(scene.View.viewport(), Qt::LeftButton, {}, scene.PointOf(u"Haushalt"_s));
    QVERIFY(scene.View.SelectedText().startsWith(u"Haushalt"_s));
}

void testReportView::EveryLinkIsReachedWithTheTabulator()
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

void testReportView::TextIsFound()
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

void testReportView::ScreenReadersGetTheText()
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

void testReportView::DarkColoursStayReadable()
{
    QPalette dark(QColor(45, 47, 51));
    dark.setColor(QPalette::Base, QColor(30, 32, 35));
    dark.setColor(QPalette::Text, QColor(230, 232, 235));
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

using cLine = cReportPrinter::cLine;
using cLines = std::vector<cLine>;
Q_DECLARE_METATYPE(cLines)

void testReportView::PagesEndBetweenLines_data()
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

void testReportView::PagesEndBetweenLines()
{
    QFETCH(cLines, Lines);
    QFETCH(int, Top);
    QTEST(cReportPrinter::PageEnd(Lines, Top, 100), "End");
}

// Each line of a long report is on exactly one page.
void testReportView::NothingIsLostBetweenPages()
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
void testReportView::TablesGoOnWithTheirColumns()
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
void testReportView::TreeStaysAsItWas()
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

TEST_CLASS(testReportView, QApplication)
#include "testReportView.moc"
