#include "support/cTestClass.h"
#include "windows/look/cFlatStyle.h"
#include "windows/look/modPalette.h"

#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize size(60, 24);
const QStyle::State usable = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_KeyboardFocusChange;

template <class tOption>
void Prepare(tOption& option, QStyle::State state, bool isDark)
{
    option.rect = QRect({}, size);
    option.state = state;
    option.palette = isDark ? modPalette::Dark() : modPalette::Light();
}

QImage Drawn(const cFlatStyle& style, const QString& what, QStyle::State state, bool isDark)
{
    QStyleOptionButton button;
    QStyleOptionFrame frame;
    QStyleOptionTab tab;
    QStyleOptionHeader header;
    QStyleOptionComboBox box;
    Prepare(button, state, isDark);
    Prepare(frame, state, isDark);
    Prepare(tab, state, isDark);
    Prepare(header, state, isDark);
    Prepare(box, state, isDark);
    frame.lineWidth = 1;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(button.palette.color(QPalette::Window));
    QPainter painter(&image);
    if (what == u"field") {
        style.drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, nullptr);
    } else if (what == u"button" || what == u"default") {
        button.features.setFlag(QStyleOptionButton::DefaultButton, what == u"default");
        style.drawPrimitive(QStyle::PE_PanelButtonCommand, &button, &painter, nullptr);
    } else if (what == u"tool") {
        style.drawPrimitive(QStyle::PE_PanelButtonTool, &button, &painter, nullptr);
    } else if (what == u"check") {
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &button, &painter, nullptr);
    } else if (what == u"radio") {
        style.drawPrimitive(QStyle::PE_IndicatorRadioButton, &button, &painter, nullptr);
    } else if (what == u"line" || what == u"chosen line") {
        const bool isChosen = what == u"chosen line";
        image.fill(button.palette.color(isChosen ? QPalette::Highlight : QPalette::Base));
        button.state.setFlag(QStyle::State_Selected, isChosen);
        if (button.state.testFlag(QStyle::State_HasFocus)) {
            style.drawPrimitive(QStyle::PE_FrameFocusRect, &button, &painter, nullptr);
        }
    } else if (what == u"tab") {
        style.drawControl(QStyle::CE_TabBarTabShape, &tab, &painter, nullptr);
    } else if (what == u"header") {
        style.drawControl(QStyle::CE_HeaderSection, &header, &painter, nullptr);
    } else {
        style.drawComplexControl(QStyle::CC_ComboBox, &box, &painter, nullptr);
    }
    return image;
}

// The largest distance of a point of one picture to the same point of the other, in steps of lightness.
int Distance(const QImage& one, const QImage& other)
{
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
        }
    }
    return most;
}

// Luminance and contrast as WCAG 2.1 defines them.
double Luminance(const QColor& colour)
{
    const auto part = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

class testFlatStyle final : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    // What a state says must be seen, on a light ground and on a dark one.
    void ShowsStates_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QStyle::State>("state");
        QTest::addRow("field with focus") << u"field"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("button with focus") << u"button"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("default button with focus") << u"default"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("box with focus") << u"box"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("line with focus") << u"line"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("chosen line with focus") << u"chosen line"_s << (usable | QStyle::State_HasFocus);
        QTest::addRow("pressed button") << u"button"_s << (usable | QStyle::State_Sunken);
        QTest::addRow("pressed default button") << u"default"_s << (usable | QStyle::State_Sunken);
        QTest::addRow("tool that is on") << u"tool"_s << (usable | QStyle::State_On);
        QTest::addRow("ticked") << u"check"_s << (usable | QStyle::State_On);
        QTest::addRow("partly ticked") << u"check"_s << (usable | QStyle::State_NoChange);
        QTest::addRow("chosen") << u"radio"_s << (usable | QStyle::State_On);
        QTest::addRow("open tab") << u"tab"_s << (usable | QStyle::State_Selected);
        QTest::addRow("pressed title") << u"header"_s << (usable | QStyle::State_Sunken);
        QTest::addRow("field that cannot be used") << u"field"_s << QStyle::State(QStyle::State_Active);
    }

    void ShowsStates()
    {
        QFETCH(const QString, what);
        QFETCH(const QStyle::State, state);
        const cFlatStyle style;
        for (const bool isDark : {false, true}) {
            constexpr int seen = 8;
            QCOMPARE_GE(Distance(Drawn(style, what, usable, isDark), Drawn(style, what, state, isDark)), seen);
        }
    }

    // A box calls itself selected while it has the focus, and its arrow stays what it is.
    void BoxKeepsItsArrow()
    {
        const cFlatStyle style;
        QCOMPARE(Drawn(style, u"box"_s, usable | QStyle::State_Selected, false), Drawn(style, u"box"_s, usable, false));
    }

    void CanBeRead()
    {
        for (const QPalette& palette : {modPalette::Light(), modPalette::Dark()}) {
            constexpr double ofText = 4.5;
            for (const auto& [ink, ground] : {std::pair(QPalette::HighlightedText, QPalette::Highlight),
                                              {QPalette::ButtonText, QPalette::Button},
                                              {QPalette::Text, QPalette::AlternateBase},
                                              {QPalette::WindowText, QPalette::Window}}) {
                QCOMPARE_GE(Contrast(palette.color(ink), palette.color(ground)), ofText);
            }
        }
    }

    // WCAG 1.4.11: what marks a control stands out from the window and from what it encloses.
    void FieldsAreFound()
    {
        const cFlatStyle style;
        for (const bool isDark : {false, true}) {
            for (const QString& what : {u"field"_s, u"box"_s, u"check"_s, u"radio"_s}) {
                const QImage image = Drawn(style, what, usable, isDark);
                const QColor window = (isDark ? modPalette::Dark() : modPalette::Light()).color(QPalette::Window);
                const QColor inside = image.pixelColor(size.width() / 4, size.height() / 2);
                const QColor edge = image.pixelColor(size.width() / 2, 0);
                QVERIFY2(Contrast(edge, window) >= 3 && Contrast(edge, inside) >= 3, qPrintable(what));
            }
        }
    }

    // The handle and what lies before and behind it are the whole bar, and the handle reaches both ends.
    void ScrollBarIsWhole_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addRow("down") << Qt::Vertical << Qt::LeftToRight;
        QTest::addRow("across") << Qt::Horizontal << Qt::LeftToRight;
        QTest::addRow("from the right") << Qt::Horizontal << Qt::RightToLeft;
    }

    void ScrollBarIsWhole()
    {
        QFETCH(const Qt::Orientation, orientation);
        QFETCH(const Qt::LayoutDirection, direction);
        const cFlatStyle style;
        QStyleOptionSlider bar;
        bar.orientation = orientation;
        bar.direction = direction;
        bar.rect = orientation == Qt::Vertical ? QRect(0, 0, 12, 200) : QRect(0, 0, 200, 12);
        bar.pageStep = 10;
        bar.maximum = 1000000;
        const auto part = [&](QStyle::SubControl which) {
            return style.subControlRect(QStyle::CC_ScrollBar, &bar, which, nullptr);
        };
        for (const int position : {0, 400000, 1000000}) {
            bar.sliderPosition = position;
            const QRect handle = part(QStyle::SC_ScrollBarSlider);
            QCOMPARE(handle | part(QStyle::SC_ScrollBarSubPage) | part(QStyle::SC_ScrollBarAddPage), bar.rect);
            QVERIFY(!handle.intersects(part(QStyle::SC_ScrollBarSubPage)));
            QVERIFY(!handle.intersects(part(QStyle::SC_ScrollBarAddPage)));
            QCOMPARE(part(QStyle::SC_ScrollBarSubPage).isEmpty(), position == 0);
            QCOMPARE(part(QStyle::SC_ScrollBarAddPage).isEmpty(), position == 1000000);
        }
    }
};

TEST_CLASS(testFlatStyle, QApplication)
#include "testFlatStyle.moc"
