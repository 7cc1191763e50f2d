#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportReview.h"
#include "windows/statement/cStagedActions.h"
#include "windows/statement/cStagedPanel.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmZuordnung.h"

#include <QAction>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTimer>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate day(2026, 3, 3);

// The page with three open rows; entries of the book are like the first two, the second one not for certain.
struct cScene : cTestBook
{
    cScene()
    {
        Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        Review.View().SetOpenOnly(false);
        Review.View().SetGrouping(0);
        Spend(day, 2310, u"REWE"_s);
        Spend(day, 5000, u"Schuhe"_s);
        Stage(u"1234567"_s, day, -2310, u"REWE"_s);
        Stage(u"1234567"_s, day, -5000, u"Jana"_s);
        Stage(u"1234567"_s, day, -9900, u"Unbekannt"_s);
        Page.resize(1200, 600);
        modWindowHands::Bring(Page);
        Tree.setFocus();
    }

    void Select(int row) { Tree.setCurrentIndex(Review.Rows().index(row, 0)); }
    QString State(int row) { return Review.Rows().index(row, cStagedListModel::State).data().toString(); }
    QStringList States() { return {State(0), State(1), State(2)}; }

    // Opens the window for the current row with the key, and gives it another one.
    void AssignWith(Qt::Key key)
    {
        HasOpened = false;
        modWindowHands::Bring(Page); // another window may have been in front
        QTimer::singleShot(0, &Page, [key, this] {
            QWidget* window = QApplication::activeModalWidget();
            HasOpened = qobject_cast<frmZuordnung*>(window) != nullptr;
            if (HasOpened) {
                QTest::keyClick(window->findChild<QTreeView*>(), key);
                window->close();
            }
        });
        QTest::keyClick(&Tree, Qt::Key_R, Qt::ControlModifier);
    }

    void Press(Qt::Key key)
    {
        modWindowHands::Bring(Page);
        QTest::keyClick(&Tree, key, Qt::ControlModifier);
    }

    cImportReview Review{Tools};
    frmImport Page{Review};
    cStagedTree& Tree = *Page.findChild<cStagedTree*>();
    bool HasOpened = false;
};

const QString open = u"offen"_s;
const QString booked = u"gebucht"_s;

} // namespace

class testFrmZuordnung final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KeysMatchAssignAndRelease() const
    {
        cScene scene;
        scene.Select(1);
        scene.Press(Qt::Key_G);
        QCOMPARE(scene.States(), QStringList({booked, open, open}));
        QVERIFY(scene.Page.findChild<QPlainTextEdit*>()->toPlainText().startsWith(u"Zugeordnet: 1, vorgeschlagen: 1"));
        scene.AssignWith(Qt::Key_Escape);
        QVERIFY(scene.HasOpened);
        QCOMPARE(scene.State(1), open);
        scene.AssignWith(Qt::Key_Return);
        QVERIFY(scene.HasOpened);
        QCOMPARE(scene.State(1), booked);
        scene.Tree.selectAll();
        scene.Press(Qt::Key_L);
        QCOMPARE(scene.States(), QStringList({open, open, open}));
    }

    void DoubleClickAssigns() const
    {
        cScene scene;
        const auto list = scene.Review.StartAssign({scene.Review.Rows().IdAt(scene.Review.Rows().index(1, 0))});
        frmZuordnung window(*list);
        window.show();
        auto& tree = *window.findChild<QTreeView*>();
        const QPoint place = tree.visualRect(list->index(0, cAssignListModel::Description)).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(window.result(), int{QDialog::Accepted});
        QCOMPARE(scene.State(1), booked);
    }

    void EmptyListCannotAssign() const
    {
        cScene scene;
        const auto list = scene.Review.StartAssign({scene.Review.Rows().IdAt(scene.Review.Rows().index(2, 0))});
        frmZuordnung window(*list);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.findChild<QTreeView*>(), Qt::Key_Return);
        QVERIFY(!window.isVisible()); // Enter leaves it
        QCOMPARE(window.result(), int{QDialog::Rejected});
    }

    // What cannot be done has neither a button nor a key.
    void NothingWithoutASelection() const
    {
        cScene scene;
        scene.Tree.clearSelection();
        scene.AssignWith(Qt::Key_Escape);
        QTest::qWait(1);
        QVERIFY(!scene.HasOpened);
        const cStagedActions& actions = scene.Page.findChild<cStagedPanel*>()->Actions();
        for (const cStagedActions::eId id : {cStagedActions::Book, cStagedActions::Assign, cStagedActions::Release}) {
            QVERIFY(!actions.Get(id)->isEnabled());
        }
    }
};

TEST_CLASS(testFrmZuordnung, QApplication)
#include "testFrmZuordnung.moc"
