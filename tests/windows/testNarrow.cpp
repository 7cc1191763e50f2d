#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/cViewBar.h"
#include "windows/main/frmMain.h"

#include <QApplication>
#include <QLineEdit>
#include <QSplitter>
#include <QTreeView>

// What must not be lost where the main window is small and its type large.
class testNarrow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FilterAndBalancesStayInSight()
    {
        cTestBook book;
        book.Add([](cEntryItem& entry) { entry.EntryValue = 1234567890; });
        cFakeNavigator navigator;
        cMainModel model{book.Tools, {book.Configuration, book.Shell, navigator, book.Path()}};
        frmMain window{model};
        window.show();
        model.RestoreView(false);
        const QFontMetrics metrics = window.fontMetrics();
        window.resize(metrics.averageCharWidth() * 85, metrics.height() * 31);
        window.findChild<QSplitter*>()->setSizes({metrics.averageCharWidth() * 10, 1000});
        QTest::qWait(5);
        const auto& accounts = *window.findChild<cAccountPanel*>()->findChild<QTreeView*>();
        const int last = accounts.model()->rowCount() - 1;
        const QModelIndex total = accounts.model()->index(last, cAccountListModel::Balance);
        QVERIFY(accounts.visualRect(total).width() >= accounts.sizeHintForIndex(total).width());
        QVERIFY(accounts.viewport()->rect().contains(accounts.visualRect(total)));
        const auto& bar = *window.findChild<cViewBar*>();
        for (const QWidget* field : bar.findChildren<QLineEdit*>()) {
            QVERIFY(bar.rect().contains(QRect(field->mapTo(&bar, QPoint()), field->size())));
        }
    }
};

TEST_CLASS(testNarrow, QApplication)
#include "testNarrow.moc"
