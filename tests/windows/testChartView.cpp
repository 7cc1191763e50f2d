#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "windows/chart/cChartAxis.h"
#include "windows/chart/cChartBox.h"
#include "windows/chart/cChartTable.h"
#include "windows/chart/cChartView.h"
#include "windows/chart/modChartColour.h"
#include "windows/chart/modChartPainter.h"
#include "windows/look/modPalette.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QVariantList>

#include <array>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

// Two series over three labels, the second one with a gap.
cChartData Chart(eChart kind)
{
    cChartData chart;
    chart.Kind = kind;
    chart.Title = u"Versuch"_s;
    chart.BackText = u"Zurück"_s;
    chart.LabelTitle = u"Monat"_s;
    chart.Labels = kind == eChart::Pie ? QStringList{u"2026"_s} : QStringList{u"Januar"_s, u"Februar"_s, u"März"_s};
    chart.Series = {{.Name = u"Miete"_s, .Cents = {30000, 30000, 60000}, .Colour = 0},
                    {.Name = u"Strom"_s, .Cents = {10000, std::nullopt, -10000}, .Colour = 1}};
    return chart;
}

struct cStage
{
    explicit cStage(const cChartData& chart)
    {
        View.SetData(chart);
        View.resize(700, 420);
        View.show();
        (void)QTest::qWaitForWindowExposed(&View);
    }

    QPointF Anchor(const cChartPart& part) const { return View.Layout().AnchorOf(part).value_or(QPointF(-1, -1)); }
    void Click(QPointF position) { QTest::mouseClick(&View, Qt::LeftButton, {}, position.toPoint()); }

    cChartView View;
};

using cColour = std::array<double, 3>;
using cMatrix = std::array<cColour, 3>;

// What a colour looks like with one kind of cone missing, in linear light (Machado, Oliveira and Fernandes, 2009).
constexpr std::array<cMatrix, 4> eyes{
    {{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
     {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
     {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
     {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}}};

double Linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

cColour Times(const cMatrix& matrix, const cColour& colour)
{
    cColour result{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            result[i] += matrix[i][j] * colour[j];
        }
    }
    return result;
}

// CIELAB, where distances are as large as they look.
cColour Seen(const QColor& colour, const cMatrix& eye)
{
    const cColour linear{Linear(static_cast<double>(colour.redF())), Linear(static_cast<double>(colour.greenF())),
                         Linear(static_cast<double>(colour.blueF()))};
    const cMatrix toXyz{{{0.4124 / 0.9505, 0.3576 / 0.9505, 0.1805 / 0.9505},
                         {0.2126, 0.7152, 0.0722},
                         {0.0193 / 1.089, 0.1192 / 1.089, 0.9505 / 1.089}}};
    cColour xyz = Times(toXyz, Times(eye, linear));
    for (double& part : xyz) {
        part = part > 0.008856 ? std::cbrt(part) : 7.787 * std::max(0.0, part) + 16.0 / 116;
    }
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

double Distance(const cColour& a, const cColour& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

} // namespace

class testChartView final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnswersWhereItPaints_data()
    {
        const cTestRows<eChart> row("kind");
        row("pie", eChart::Pie);
        row("columns", eChart::Columns);
        row("stacked", eChart::StackedColumns);
        row("line", eChart::Line);
        row("areas", eChart::Areas);
    }

    // Each part answers at its place, its colour is there in the picture, and a click names it.
    void AnswersWhereItPaints()
    {
        QFETCH(eChart, kind);
        cStage stage(Chart(kind));
        const QImage picture = stage.View.grab().toImage();
        QSignalSpy clicks(&stage.View, &cChartView::PartClicked);
        int found = 0;
        for (int series = 0; series < 2; ++series) {
            for (int index = 0; index < stage.View.Data().Labels.size(); ++index) {
                const cChartPart part{series, index};
                const bool isThere = series == 0 || index != 1;
                QCOMPARE(stage.View.Layout().AnchorOf(part).has_value(), isThere);
                if (!isThere) {
                    continue;
                }
                QCOMPARE(stage.View.PartAt(stage.Anchor(part)), part);
                // The shares of a pie stand in the middle of its slices, and surfaces end at the edge of the picture.
                if (kind != eChart::Pie && kind != eChart::Areas) {
                    const QColor expected = modChartColour::Series(series, stage.View.palette());
                    const QColor painted =
                        picture.pixelColor((stage.Anchor(part) * picture.devicePixelRatio()).toPoint());
                    QVERIFY2(qAbs(expected.red() - painted.red()) < 100 && qAbs(expected.blue() - painted.blue()) < 100,
                             qPrintable(painted.name() + u' ' + expected.name()));
                }
                stage.Click(stage.Anchor(part));
                QCOMPARE(clicks.size(), ++found);
                QCOMPARE(clicks.last(), (QVariantList{series, index}));
            }
        }
        QVERIFY(!stage.View.PartAt(QPointF(2, 2)));
    }

    void LeavesRoomForThePie_data()
    {
        QTest::addColumn<QSizeF>("size"); // in heights of a line
        QTest::newRow("wide and low") << QSizeF(38, 11);
        QTest::newRow("narrow and high") << QSizeF(24, 24);
    }

    // A name that does not fit is counted, and the list does not eat up the picture.
    void LeavesRoomForThePie()
    {
        QFETCH(QSizeF, size);
        cChartData chart = Chart(eChart::Pie);
        for (int series = 2; series < 12; ++series) {
            chart.Series.append({.Name = u"Versicherung"_s, .Cents = {1234567}, .Colour = series});
        }
        const cChartStyle style = modChartPainter::PaperStyle();
        const double line = QFontMetricsF(style.Font).height();
        const cChartLayout layout = modChartPainter::LayOut(chart, {}, style, {QPointF(), size * line});
        QCOMPARE(static_cast<int>(layout.Legend.size()) + layout.More.Count, 12);
        QVERIFY(layout.Legend.size() > 3);
        QVERIFY(layout.Circles.front().Outer > line * 2.5);
    }

    // From side to side, from day to day and from week to week, and from a column to its limit.
    void MovesInFlowCalendarAndLimits()
    {
        cChartData flow = Chart(eChart::Flow);
        flow.Labels = {u"Herein"_s, u"Hinaus"_s};
        flow.Series = {{.Name = u"Lohn"_s, .Cents = {5000, std::nullopt}},
                       {.Name = u"Miete"_s, .Cents = {std::nullopt, 4000}},
                       {.Name = u"Rest"_s, .Cents = {std::nullopt, 1000}}};
        cStage stage(flow);
        stage.View.setFocus(Qt::TabFocusReason);
        QCOMPARE(stage.View.CurrentPart(), (cChartPart{0, 0}));
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QTest::keyClick(&stage.View, Qt::Key_Down);
        QVERIFY(stage.View.accessibleName().contains(u"Rest"_s) || stage.View.accessibleName().contains(u"Miete"_s));
        QCOMPARE(stage.View.CurrentPart()->Index, 1);
        for (const cChartPart& part : {cChartPart{0, 0}, cChartPart{1, 1}, cChartPart{2, 1}}) {
            QCOMPARE(stage.View.PartAt(stage.Anchor(part)), part);
        }

        cChartData calendar;
        calendar.Kind = eChart::Calendar;
        calendar.Levels = {1000};
        calendar.Series = {{.Name = u"Ausgaben"_s, .Cents = QList<std::optional<qint64>>(365, qint64(500))}};
        for (QDate day(2026, 1, 1); day.year() == 2026; day = day.addDays(1)) {
            calendar.Days.append(day);
            calendar.Labels.append(day.toString(Qt::ISODate));
        }
        stage.View.SetData(calendar);
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QTest::keyClick(&stage.View, Qt::Key_Down);
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QVERIFY(stage.View.accessibleName().contains(u"2026-01-09"_s));
        QCOMPARE(stage.View.PartAt(stage.Anchor({0, 364})), (cChartPart{0, 364}));
        QVERIFY(stage.View.rect().contains(stage.Anchor({0, 364}).toPoint()));

        stage.View.SetData(Chart(eChart::Limits));
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QTest::keyClick(&stage.View, Qt::Key_Down);
        QVERIFY(stage.View.accessibleName().contains(u"Strom"_s));
    }

    void MovesByKeys()
    {
        cStage stage(Chart(eChart::Columns));
        stage.View.activateWindow();
        stage.View.setFocus(Qt::TabFocusReason);
        QTRY_COMPARE(stage.View.CurrentPart(), (cChartPart{0, 0}));
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QCOMPARE(stage.View.accessibleName(), u"Diagramm Versuch: Miete, Februar: 300,00"_s);
        QTest::keyClick(&stage.View, Qt::Key_Down); // the gap
        QCOMPARE(stage.View.CurrentPart(), (cChartPart{0, 1}));
        QTest::keyClick(&stage.View, Qt::Key_PageDown);
        QTest::keyClick(&stage.View, Qt::Key_Down);
        QCOMPARE(stage.View.CurrentPart(), (cChartPart{1, 2}));
        QTest::keyClick(&stage.View, Qt::Key_Left); // over the gap
        QCOMPARE(stage.View.CurrentPart(), (cChartPart{1, 0}));
        QSignalSpy clicks(&stage.View, &cChartView::PartClicked);
        QTest::keyClick(&stage.View, Qt::Key_Return);
        QCOMPARE(clicks.value(0), (QVariantList{1, 0}));
        QSignalSpy back(&stage.View, &cChartView::BackRequested);
        QTest::keyClick(&stage.View, Qt::Key_Backspace);
        QCOMPARE(back.size(), 1);
        QTest::keyClick(&stage.View, Qt::Key_Tab); // into the legend
        QTest::keyClick(&stage.View, Qt::Key_Right);
        QTest::keyClick(&stage.View, Qt::Key_Space);
        QVERIFY(stage.View.Data().Series[1].IsHidden);
        QVERIFY(stage.View.accessibleName().endsWith(u"Strom, ausgeblendet"));
    }

    void SwitchesSeries()
    {
        cStage stage(Chart(eChart::StackedColumns));
        stage.Click(stage.View.Layout().Legend.at(0).Area.center());
        QCOMPARE(stage.View.ShownData().Series.size(), 1);
        QVERIFY(!stage.View.Layout().AnchorOf({0, 0}));
        QCOMPARE(stage.View.Layout().Axis.Max(), 10000); // nothing is below it any more
        QCOMPARE(stage.View.SeriesAt(0), 1);
        stage.View.SetData(Chart(eChart::StackedColumns)); // the book has changed
        QVERIFY(stage.View.Data().IsHidden(0));
        stage.Click(stage.View.Layout().Legend.at(0).Area.center());
        QCOMPARE(stage.View.ShownData().Series.size(), 2);
    }

    // A stack beside has no legend of its own: what is switched off goes there too.
    void SwitchesTheStackBeside()
    {
        cChartData chart = Chart(eChart::StackedColumns);
        chart.Series += chart.Series;
        chart.Series[2].IsComparison = true;
        chart.Series[3].IsComparison = true;
        cStage stage(chart);
        QCOMPARE(stage.View.Layout().Legend.size(), 2U);
        QVERIFY(stage.Anchor({2, 0}).x() > stage.Anchor({0, 0}).x());
        QCOMPARE(stage.Anchor({2, 0}).y(), stage.Anchor({0, 0}).y());
        stage.Click(stage.View.Layout().Legend.at(0).Area.center());
        QVERIFY(stage.View.Data().IsHidden(0) && stage.View.Data().IsHidden(2));
        QVERIFY(!stage.View.Data().IsHidden(3));
    }

    void ShowsTheSameInTheTable()
    {
        cChartBox box;
        box.SetData(Chart(eChart::Columns));
        box.resize(700, 420);
        box.show();
        box.ShowTable(true);
        const cChartTableModel& figures = box.findChild<cChartTable*>()->Figures();
        QCOMPARE(figures.rowCount(), 4);                            // and the sum
        QCOMPARE(figures.index(1, 2).data().toString(), QString()); // the gap
        QCOMPARE(figures.data(figures.index(3, 1), Qt::DisplayRole).toString(), u"1200,00"_s);
        Q_EMIT box.View().SeriesSwitched();
        QTest::mouseClick(&box.View(), Qt::LeftButton, {}, box.View().Layout().Legend.at(0).Area.center().toPoint());
        QCOMPARE(figures.columnCount(), 2);
        QSignalSpy clicks(&box, &cChartBox::PartClicked);
        Q_EMIT box.findChild<cChartTable*>()->activated(figures.index(0, 1));
        QCOMPARE(clicks.value(0), (QVariantList{1, 0})); // counted with the hidden series
    }

    void PaintsIntoFiles()
    {
        const cChartData chart = Chart(eChart::Columns);
        const QImage picture = QImage::fromData(modChartPainter::Png(chart, {400, 300}), "PNG");
        QCOMPARE(picture.size(), QSize(800, 600));
        QSvgRenderer svg(modChartPainter::Svg(chart, {400, 300}));
        QVERIFY(svg.isValid());
        QCOMPARE(svg.viewBox(), QRect(0, 0, 400, 300));
        cChartData nothing;
        nothing.Kind = eChart::Pie;
        nothing.Labels = {u"2026"_s};
        nothing.Series = {{.Name = u"Erstattung"_s, .Cents = {-500}}};
        cStage stage(nothing); // no slice can be drawn
        QVERIFY(stage.View.Layout().Hits.empty());
        QVERIFY(stage.View.Layout().Legend.empty());
    }

    void DividesTheAxis_data()
    {
        const cTestRows<qint64, qint64, QList<qint64>> row("smallest", "largest", "ticks");
        row("up", 0, 9500, {0, 2000, 4000, 6000, 8000, 10000});
        row("both", -1, 399, {-100, 0, 100, 200, 300, 400});
        row("down", -5000, 0, {-5000, -4000, -3000, -2000, -1000, 0});
        row("nothing", 0, 0, {0, 1});
        row("far above", 100010, 100049, {100010, 100020, 100030, 100040, 100050});
    }

    void DividesTheAxis()
    {
        QFETCH(qint64, smallest);
        QFETCH(qint64, largest);
        QTEST(cChartAxis(smallest, largest, 5).Ticks(), "ticks");
    }

    void StaysApartForEveryEye()
    {
        constexpr double enough = 18; // CIELAB; 2 can be seen side by side, 10 at a glance
        for (const QPalette& palette : {QPalette(Qt::white), modPalette::Dark()}) {
            for (const cMatrix& eye : eyes) {
                for (int a = 0; a < modChartColour::Count; ++a) {
                    const cColour seen = Seen(modChartColour::Series(a, palette), eye);
                    QVERIFY(Distance(seen, Seen(palette.color(QPalette::Base), eye)) > enough);
                    for (int b = 0; b < a; ++b) {
                        QVERIFY2(Distance(seen, Seen(modChartColour::Series(b, palette), eye)) > enough,
                                 qPrintable(u"%1 %2"_s.arg(a).arg(b)));
                    }
                }
            }
        }
    }
};

TEST_CLASS(testChartView, QApplication)
#include "testChartView.moc"
