#include "support/cTestClass.h"
#include "support/windowFaults.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankListModel.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"
#include "windows/bank/cFetchTree.h"
#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankzugaenge.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene : cHousehold
{
    cScene() { Tell(cBankMonth::Example()); }

    [[nodiscard]] QString Cell(int column) const
    {
        return Window.findChild<cFetchTree*>()->topLevelItem(0)->child(0)->text(column);
    }

    cStatementDesk Desk{Tools};
    cBankFetch Fetch{Tools, Desk.Files(), {Https, Customer, u"1.0.0"_s}};
    frmAbruf Window{Fetch};
};

} // namespace

class testFrmAbruf final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EnterFetchesAndEnterGoesToTheReview()
    {
        cScene scene;
        scene.Window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scene.Window));
        QCOMPARE(scene.Cell(2), u"noch nie abgerufen"_s);

        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QVERIFY2(scene.Cell(2).startsWith(u"7 neu"), qPrintable(scene.Cell(2)));
        QVERIFY(scene.Cell(3).contains(u"am 31.03.2026") || !scene.Cell(3).isEmpty());
        QVERIFY(scene.Window.isVisible());

        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QCOMPARE(scene.Window.result(), int(QDialog::Accepted));
    }

    // Of the account that failed, which is that of the second login at the same bank.
    void SaysWhyNotAndStays()
    {
        cHousehold house;
        house.Tell(cBankMonth::Example());
        house.Bank.IsLenient = true;
        house.Bank.Profile.Refusals["HKKAZ"] = {.Nth = 3, .Local = "9210::Konto gesperrt."};
        cBankState other = house.Access.Banks().constFirst();
        other.UserId = u"zoe"_s;
        QVERIFY(house.Access.Save(other) && house.Access.Choose(other, other.Accounts));
        cStatementDesk desk{house.Tools};
        cBankFetch fetch{house.Tools, desk.Files(), {house.Https, house.Customer, u"1.0.0"_s}};
        frmAbruf window{fetch};
        const auto* tree = window.findChild<cFetchTree*>();
        QCOMPARE(tree->topLevelItem(1)->text(0), u"Testbank, zoe"_s);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(fetch.Lines().at(0).State, cBankFetch::eState::Done);
        QCOMPARE(tree->Current(), 1);
        const QList<QLabel*> labels = window.findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->isVisible() && label->text().contains(u"Konto gesperrt.");
        }));
        QVERIFY(window.isVisible());
    }

    void ListOfLoginsKeepsARowSelected()
    {
        cHousehold house;
        cBankListModel banks(house.Tools);
        const frmBankzugaenge window(banks);
        cBankState other = house.Access.Banks().constFirst();
        other.UserId = u"zoe"_s; // new, and so the one that is looked for
        QVERIFY(house.Access.Save(other) && house.Access.Choose(other, other.Accounts));
        for (int time = 0; time < 2; ++time) {
            banks.Reload();
            const auto rows = window.findChild<QTreeView*>()->selectionModel()->selectedRows();
            QCOMPARE(rows.size(), 1);
            QCOMPARE(rows.constFirst().row(), 1);
        }
    }

    void CancelEndsTheRun()
    {
        cScene scene;
        scene.Window.show();
        connect(&scene.Fetch, &cBankFetch::StepShown, &scene.Window, [&] { scene.Window.reject(); });
        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QCOMPARE(scene.Fetch.Lines().constFirst().Failure.Fault, eBankFault::Cancelled);
        QCOMPARE(scene.Desk.Rows().size(), 0);
        QVERIFY(scene.Window.isVisible());
        scene.Window.reject();
        QVERIFY(!scene.Window.isVisible());
    }

    void AsksForALoginWhereThereIsNone()
    {
        cTestBook book;
        cTestBank bank{cBankProfile()};
        cTestHttps https(bank);
        cTestBankUser customer(bank);
        cStatementDesk desk(book.Tools);
        cBankFetch fetch(book.Tools, desk.Files(), {https, customer, u"1.0.0"_s});
        frmAbruf window(fetch);
        QSignalSpy banks(&window, &frmAbruf::BanksRequested);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(banks.size(), 1);
        QCOMPARE(https.Posts, 0);
    }
};

TEST_CLASS(testFrmAbruf, QApplication)
#include "testFrmAbruf.moc"
