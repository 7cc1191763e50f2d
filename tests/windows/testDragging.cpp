#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/queued.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "views/statement/cImportReview.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/frmMain.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImport.h"

#include <QApplication>
#include <QDrag>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cLine
{
    const QTreeView& Tree;
    QModelIndex Index;

    [[nodiscard]] QPoint Place() const
    {
        return Tree.viewport()->mapTo(Tree.window(), Tree.visualRect(Index).center());
    }
};

void Drag(const cLine& from, const cLine& to)
{
    QWindow* window = from.Tree.window()->windowHandle();
    const QPoint start = from.Place();
    const QPoint end = to.Place();
    // A drag has an event loop of its own, in which the mouse goes on, a step in each round.
    QTimer hand;
    int step = 0;
    const auto goOn = [&] {
        if (++step < 3) {
            QTest::mouseMove(window, end - QPoint(0, 2 - step));
        } else {
            QTest::mouseRelease(window, Qt::LeftButton, {}, end);
            hand.stop();
        }
    };
    QObject::connect(&hand, &QTimer::timeout, window, [&] {
        if (from.Tree.findChild<QDrag*>() != nullptr) {
            goOn();
        }
    });
    hand.start(0);
    QTest::mousePress(window, Qt::LeftButton, {}, start);
    QTest::mouseMove(window, start + QPoint(0, QApplication::startDragDistance()));
    QTest::mouseMove(window, start + QPoint(0, 2 * QApplication::startDragDistance()));
    while (step < 3) { // where nothing can be dragged
        goOn();
    }
    RunQueued();
}

} // namespace

// Lines that are dragged with the mouse: pressed, moved and let go, as it only works on a screen. onDesktop.sh has one.
class testDragging final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RowsOfTheReviewTakeACategory()
    {
        cTestBook book;
        cImportReview review(book.Tools);
        frmImport page(review);
        book.User.Choices = {u"Girokonto"_s, u"Sparkonto"_s};
        page.ImportFiles({QStringLiteral(TEST_DATA "/mt940/giro.sta")});
        review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Category));
        page.resize(1200, 700);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        cStagedListModel& rows = review.Rows();
        auto& tree = *page.findChild<cStagedTree*>();
        QVERIFY(review.Choose(rows.OpenIds().last(1), u"Freizeit; Geschenke"_s, {}));
        const auto inGroup = [&] { return rows.rowCount(rows.HeadNamed(u"Freizeit; Geschenke"_s)); };
        QCOMPARE(inGroup(), 1);
        QList<int> others = rows.OpenIds();
        others.removeIf([&](int id) { return rows.GroupName(rows.IndexOf(id)) == u"Freizeit; Geschenke"; });
        others = others.first(2);
        tree.SelectIds(others);
        Drag({tree, rows.IndexOf(others.last())}, {tree, rows.HeadNamed(u"Freizeit; Geschenke"_s)});
        QCOMPARE(inGroup(), 3);
        QCOMPARE(tree.SelectedIds().size(), 2);
    }

    void EntriesGoToAnAccount_data()
    {
        const cTestRows<bool> row("isReadOnly");
        row("usual", false);
        row("book that can only be read", true);
    }

    void EntriesGoToAnAccount()
    {
        QFETCH(bool, isReadOnly);
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem&) {});
        if (isReadOnly) {
            const QString path = book.Path();
            book.Database.Open(path, eOpenMode::ReadOnly);
        }
        cFakeNavigator navigator;
        cMainModel model(book.Tools, {book.Configuration, book.Shell, navigator, book.Path()});
        frmMain window(model);
        window.show();
        model.RestoreView(false);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        RunQueued(); // the accounts are added up a moment later
        const auto& tree = *window.findChild<cEntryTree*>();
        const auto& accounts = *window.findChild<cAccountPanel*>()->findChild<QTreeView*>();
        const QSignalSpy dropped(&window, &frmMain::RowsDropped);
        window.ShowEntry({entry.ID, entry.EntryDate});
        const int cash = 4; // below the group of the same name
        Drag({tree, tree.currentIndex()}, {accounts, model.AccountList().index(cash, 0)});
        QCOMPARE(dropped.size(), isReadOnly ? 0 : 1);
        QVERIFY(isReadOnly || dropped.constFirst().at(1).toString() == u"Bargeld");
    }
};

TEST_CLASS(testDragging, QApplication)
#include "testDragging.moc"
