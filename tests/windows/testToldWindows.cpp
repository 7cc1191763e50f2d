#include "cScreenReader.h"
#include "everyWindow.h"
#include "support/cTestClass.h"
#include "support/windowHands.h"
#include "toldFaults.h"
#include "windows/widget/modChoiceAccess.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

// A screen reader gets to know what every window shows: the windows are shown on a screen, read over the bus for
// accessibility, and what was read is compared with what the widgets paint. onDesktop.sh has screen and bus.
class testToldWindows final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        modChoiceAccess::Install();
        QVERIFY2(m_reader.Join(), qPrintable(m_reader.Fault()));
    }

    void TellWhatTheyShow_data()
    {
        QTest::addColumn<cWindowMaker>("Maker");
        for (const cWindowMaker& maker : EveryWindow()) {
            QTest::addRow("%s", maker.Name) << maker;
        }
    }

    void TellWhatTheyShow()
    {
        QFETCH(cWindowMaker, Maker);
        const cOpenWindow open = Maker.Make();
        QVERIFY(open.Window);
        open.Window->show();
        QVERIFY(QTest::qWaitForWindowExposed(open.Window.get()));
        const QStringList faults = FaultsOfAllPages(*open.Window);
        for (const QString& fault : faults) {
            qWarning("%s", qPrintable(fault)); // a message of the test itself would be cut
        }
        QVERIFY(faults.isEmpty());
    }

    // One fault of each kind, beside what is told as it is shown.
    void FaultsAreFound()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* sum = new QLabel(u"1.234,50 €"_s);
        auto* open = new QComboBox;
        auto* list = new QTreeWidget;
        auto* painted = new QGroupBox(u"Umsätze"_s);
        list->setHeaderLabels({u"Tag"_s});
        list->addTopLevelItem(new QTreeWidgetItem({u"01.01.2026"_s}));
        open->setPlaceholderText(u"bitte wählen"_s);
        for (QWidget* widget : QWidgetList{sum, open, list, painted, new QCheckBox(u"offene"_s)}) {
            layout->addWidget(widget);
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(Faults(window), QStringList(u"no name in QTreeWidget "_s));
        sum->setAccessibleName(u"Summe"_s);
        painted->setAccessibleName(u"Liste"_s);
        list->topLevelItem(0)->setData(0, Qt::AccessibleTextRole, u"Tag"_s);
        list->topLevelItem(0)->setCheckState(0, Qt::Checked);
        const cToldWindow told = m_reader.Read();
        open->setPlaceholderText(u"später wählen"_s);
        window.findChild<QCheckBox*>()->setChecked(true);
        list->setEnabled(false);
        const QStringList faults = modToldFaults::Of(window, told);
        for (const QString& fault : {u"silent: '1.234,50 €'"_s, u"silent: 'Umsätze'"_s, u"silent: '01.01.2026'"_s,
                                     u"silent: 'später wählen'"_s, u"empty, and tells 'bitte wählen'"_s,
                                     u"told as checked or not, and is the other in QCheckBox"_s,
                                     u"told as enabled or not, and is the other in QTreeWidget"_s}) {
            QVERIFY2(!faults.filter(fault).isEmpty(), qPrintable(fault + u" in\n"_s + faults.join(u'\n')));
        }
    }

private:
    // A window that still changes while it is read is read again, until it stays as it was.
    QStringList Faults(const QWidget& page) const
    {
        QStringList before;
        QStringList faults = modToldFaults::Of(page, m_reader.Read());
        while (!faults.isEmpty() && faults != before) {
            before = faults;
            faults = modToldFaults::Of(page, m_reader.Read());
        }
        return faults;
    }

    // With every page of every book of tabs once.
    QStringList FaultsOfAllPages(QWidget& window) const
    {
        QStringList faults;
        modWindowHands::ForEachPage(window, [&] { faults += Faults(window); });
        faults.removeDuplicates();
        return faults;
    }

    cScreenReader m_reader;
};

TEST_CLASS(testToldWindows, QApplication)
#include "testToldWindows.moc"
