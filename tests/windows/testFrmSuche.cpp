#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "views/list/cSearchModel.h"
#include "views/sheet/cCellEdit.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/frmSuche.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene
{
    cScene()
    {
        Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Rewe"_s; });
        Book.Add({.Day = QDate(2025, 6, 1), .Cents = 70000, .Text = u"Miete"_s, .Category = u"Wohnen; Miete"_s});
        Window.Present();
        QVERIFY(QTest::qWaitForWindowActive(&Window));
        QCoreApplication::processEvents();
    }

    template <typename tWidget>
    tWidget& Labelled(const QString& text)
    {
        return modWindowHands::Labelled<tWidget>(Window, text);
    }

    cTestBook Book;
    cSearchModel Search{Book.Tools};
    cCellEdit Cells{Book.Tools};
    frmSuche Window{Search, Cells};
    cEntryTree& Tree = *Window.findChild<cEntryTree*>();
    QLineEdit& Text = Labelled<QLineEdit>(u"Suchtext:"_s);
};

} // namespace

class testFrmSuche final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KeysSearchOpenAndDelete()
    {
        cScene scene;
        QVERIFY(scene.Text.hasFocus());
        QSignalSpy edits(&scene.Window, &frmSuche::EditRequested);
        QSignalSpy deletions(&scene.Window, &frmSuche::DeleteRequested);
        QTest::keyClicks(&scene.Text, u"rewe"_s);
        QTest::keyClick(&scene.Text, Qt::Key_Return); // does not wait for the pause
        QCOMPARE(scene.Tree.model()->rowCount(), 1);
        QVERIFY(scene.Tree.hasFocus());
        QCOMPARE(edits.size(), 0);
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(edits.size(), 1);
        QCOMPARE(edits.at(0).at(0).value<cEntryListModel::cKey>(), (cEntryListModel::cKey{1, QDate(2026, 3, 10)}));
        QSignalSpy copies(&scene.Window, &frmSuche::NextMonthRequested);
        QTest::keyClick(&scene.Tree, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(copies.size(), 1);
        QSignalSpy changes(&scene.Window, &frmSuche::ChangeRequested);
        QTest::keyClick(&scene.Tree, Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(changes.size(), 1);
        QTest::keyClick(&scene.Tree, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().contains(u"\tRewe\t"_s));
        scene.Tree.setCurrentIndex(scene.Tree.model()->index(0, cEntryListModel::Description));
        QTest::keyClick(&scene.Tree, Qt::Key_F2);
        auto* cell = scene.Tree.viewport()->findChild<QLineEdit*>();
        QVERIFY(cell != nullptr);
        QTest::keyClicks(cell, u"Rewe Markt"_s);
        QTest::keyClick(cell, Qt::Key_Return);
        QTRY_COMPARE(scene.Book.Data.LoadEntry(1)->EntryDescription, u"Rewe Markt"_s);
        QTRY_VERIFY(scene.Tree.hasFocus());
        QTest::keyClick(&scene.Tree, Qt::Key_Delete);
        QCOMPARE(deletions.size(), 1);
        QVERIFY(scene.Book.Data.DeleteEntry(1));
        scene.Window.Refresh();
        QCOMPARE(scene.Tree.model()->rowCount(), 0);
        QTest::keyClick(&scene.Tree, Qt::Key_Delete);
        QCOMPARE(deletions.size(), 1);
        QSignalSpy undos(&scene.Window, &frmSuche::UndoRequested);
        QTest::keyClick(&scene.Tree, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(undos.size(), 1);
    }

    void FieldsNarrowTogether()
    {
        cScene scene;
        auto& period = scene.Labelled<QComboBox>(u"Zeitraum:"_s);
        auto& start = scene.Labelled<QLineEdit>(u"von:"_s);
        period.setCurrentIndex(period.findData(u"Letztes Jahr"_s));
        QCOMPARE(start.text(), u"01.01.2025"_s);
        QVERIFY(!start.isEnabled());
        QCOMPARE(scene.Tree.model()->rowCount(), 1);
        scene.Window.findChild<QCheckBox*>()->setChecked(true); // corrected only
        QCOMPARE(scene.Tree.model()->rowCount(), 0);
        modWindowHands::Button(scene.Window, u"Neue Suche"_s).click();
        QCOMPARE(period.currentIndex(), 0);
        QVERIFY(scene.Text.hasFocus());
        auto& category = scene.Labelled<QComboBox>(u"Kategorie:"_s);
        category.setCurrentIndex(category.findData(u"Haushalt"_s));
        QCOMPARE(scene.Tree.model()->rowCount(), 1);
    }

    void ASecondAmountAppearsWhenNeeded()
    {
        cScene scene;
        auto& rule = scene.Labelled<QComboBox>(u"Betrag:"_s);
        auto& upper = scene.Labelled<QLineEdit>(u"und:"_s);
        QVERIFY(!upper.isVisible());
        rule.setCurrentIndex(3);
        QVERIFY(upper.isVisible());
        QCOMPARE(modWindowFaults::All(scene.Window).join(u"; "), QString()); // with all fields in sight
        upper.setText(u"50"_s);
        QTRY_COMPARE(scene.Tree.model()->rowCount(), 1);
        rule.setCurrentIndex(0); // what is out of sight does not count
        QCOMPARE(scene.Tree.model()->rowCount(), 0);
    }

    void ColumnsAreKept()
    {
        cScene scene;
        scene.Tree.sortByColumn(cEntryListModel::Amount, Qt::DescendingOrder);
        const QString layout = scene.Tree.LayoutText();
        QTest::keyClick(&scene.Text, Qt::Key_Escape);
        QVERIFY(!scene.Window.isVisible());
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::SearchList), layout);
        {
            frmSuche other(scene.Search, scene.Cells);
            auto* tree = other.findChild<cEntryTree*>();
            QCOMPARE(tree->LayoutText(), layout);
            tree->sortByColumn(cEntryListModel::Category, Qt::AscendingOrder);
            other.show(); // and stays open until the program ends
        }
        QVERIFY(scene.Book.Settings->Get(modSettingKey::SearchList).contains(u"sort,2,0"));
    }
};

TEST_CLASS(testFrmSuche, QApplication)
#include "testFrmSuche.moc"
