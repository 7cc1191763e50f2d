#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/entry/cSeriesChange.h"
#include "views/sheet/cManyChange.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/main/frmMehrere.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// Small forms that ask before something typed is lost; the larger ones have tests of their own.
class testUnsaved final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AsksBeforeTypedContentsAreLost()
    {
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem& rent) { rent.EntryInterval = u"Monatlich"_s; });
        cManyChange many(book.Tools, {{entry.ID, entry.EntryDate}});
        cSeriesChange series(book.Tools);
        frmMehrere all(many);
        frmKorrektur one(series, series.StartPeriod(entry.ID, entry.EntryDate).value());
        for (QDialog* form : QList<QDialog*>{&all, &one}) {
            form->show();
            form->reject();
            QVERIFY(!form->isVisible()); // nothing is typed
            form->show();
            form->findChildren<QLineEdit*>().last()->setText(u"Markt"_s);
            book.User.Answers = {eAnswer::Cancel, eAnswer::Yes};
            form->reject();
            QVERIFY(form->isVisible());
            form->reject();
            QVERIFY(!form->isVisible());
        }
        QCOMPARE(book.User.Asked.size(), 4);
        QCOMPARE(book.Data.LoadEntry(entry.ID)->EntryDescription, u"Markt"_s);
        QCOMPARE(series.Correction(entry.ID, entry.EntryDate)->EntryComment, u"Markt"_s);
    }
};

TEST_CLASS(testUnsaved, QApplication)
#include "testUnsaved.moc"
