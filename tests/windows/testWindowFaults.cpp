#include "support/cPseudoLanguage.h"
#include "support/cTestClass.h"
#include "support/windowFaults.h"
#include "support/windowTexts.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

// What testEveryWindow looks for is found in a window that has it.
class testWindowFaults final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AreFound()
    {
        constexpr QSize room(784, 552);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* first = new QPushButton(u"&Speichern"_s);
        auto* second = new QPushButton(u"&Suchen"_s);
        auto* nameless = new QLineEdit;
        auto* label = new QLabel(u"Ein Text, der nicht hineinpasst"_s);
        label->setFixedWidth(20);
        auto* day = new QTreeWidget;
        day->setAccessibleName(u"Tage"_s);
        day->setHeaderLabels({u"Tag"_s, u"Bis"_s});
        day->addTopLevelItem(new QTreeWidgetItem({u"01.01.2026"_s, u"31.01.2026"_s}));
        day->setColumnWidth(0, 30);
        for (QWidget* widget : QWidgetList{first, second, nameless, label, day, new QCheckBox(u"b&is"_s)}) {
            layout->addWidget(widget);
        }
        window.show();
        QCOMPARE(modWindowFaults::DoubleMnemonics(window).size(), 1);
        QCOMPARE(modWindowFaults::Nameless(window).size(), 1);
        QCOMPARE(modWindowFaults::Clipped(window).size(), 1);
        QCOMPARE(modWindowFaults::MisreadMnemonics(window).size(), 1);
        QCOMPARE(modWindowFaults::CutValues(window).size(), 1);
        window.setMinimumWidth(room.width() + 1);
        QCOMPARE(modWindowFaults::TooLarge(window, room).size(), 1);
        const QString pseudo = cPseudoLanguage::Of(u"{0} &Einträge von <b>Konten</b>"_s);
        QVERIFY2(pseudo.contains(u"{0}"_s) && pseudo.contains(u"<b>"_s) && pseudo.size() > 39, qPrintable(pseudo));
        QVERIFY(!modWindowTexts::IsUntranslated(u"1.234,50 € "_s + pseudo + u" (Ctrl+N)"_s, {}));
        QVERIFY(!modWindowTexts::IsUntranslated(u"Miete: [Sáldóó]"_s, {u"Miete"_s}));
        QVERIFY(modWindowTexts::IsUntranslated(pseudo + u" Saldo"_s, {u"Miete"_s}));
    }
};

TEST_CLASS(testWindowFaults, QApplication)
#include "testWindowFaults.moc"
