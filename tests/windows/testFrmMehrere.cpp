#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "views/sheet/cManyChange.h"
#include "windows/main/frmMehrere.h"
#include "windows/widget/cCategoryBox.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

class testFrmMehrere final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TransferAsksForItsTarget()
    {
        cTestBook book;
        const cEntryItem one = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; });
        const cEntryItem other = book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Markt"_s; });
        cManyChange change(book.Tools, {{one.ID, one.EntryDate}, {other.ID, other.EntryDate}});
        frmMehrere window(change);
        window.show();
        const QList<QComboBox*> boxes = window.findChildren<QComboBox*>();
        const auto boxWith = [&](const QString& text) {
            return *std::find_if(boxes.begin(), boxes.end(), [&](QComboBox* box) { return box->findText(text) >= 0; });
        };
        QComboBox& type = *boxWith(u"Umbuchung"_s);
        QComboBox& target = *boxes.last();
        QVERIFY(!target.isVisible());
        type.setCurrentText(u"Umbuchung"_s);
        QVERIFY(target.isVisible());
        QCOMPARE(modWindowFaults::All(window), QStringList());
        auto& category = *window.findChild<cCategoryBox*>();
        category.SetPath(u"Freizeit; Geschenke"_s);
        target.setFocus();
        QCOMPARE(category.lineEdit()->cursorPosition(), 0); // a long one is read from its beginning
        category.SetPath({});
        window.accept(); // nothing is chosen there
        QVERIFY(window.isVisible());
        QCOMPARE(book.User.Shown.size(), 1);
        target.setCurrentText(u"Bargeld"_s);
        window.accept();
        QVERIFY(!window.isVisible());
        QCOMPARE(book.Data.LoadEntry(one.ID)->EntryAccountMove, u"Bargeld"_s);
        QCOMPARE(book.Data.LoadEntry(other.ID)->EntryDescription, u"Markt"_s); // unchanged
    }
};

TEST_CLASS(testFrmMehrere, QApplication)
#include "testFrmMehrere.moc"
