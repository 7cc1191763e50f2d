#include "model/modPeople.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/entry/cEntryEditor.h"
#include "views/list/cSearchModel.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "views/sheet/cCellEdit.h"
#include "windows/entry/frmBuchung.h"
#include "windows/main/frmSuche.h"
#include "windows/people/cShareTable.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

// The people of a household in the window, and the field of the entry that comes with them.
class testFrmPersonen final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PeopleAndSharesByKeyboard()
    {
        cTestBook book;
        cPeople people(book.Tools);
        frmPersonen form(people);
        modWindowHands::Bring(form);
        auto& name = *form.findChild<QLineEdit*>();
        QVERIFY(name.hasFocus());
        for (const QString& typed : {u"Anna"_s, u"Ben"_s}) {
            QTest::keyClicks(&name, typed);
            QTest::keyClick(&name, Qt::Key_Return);
        }
        QCOMPARE(people.Names(), QStringList({u"Anna"_s, u"Ben"_s}));
        auto& shares = *form.findChild<cShareTable*>();
        const int row = static_cast<int>(people.Accounts().indexOf(u"Girokonto"_s)) + 1;
        shares.item(row, 0)->setText(u"60"_s); // as the editor of the cell does
        QCOMPARE(shares.item(row, 1)->text(), u"40"_s);
        QCOMPARE(shares.item(row, 2)->text(), u"Anna 60 %, Ben 40 %"_s);
        QCOMPARE(people.Stored(u"Girokonto"_s).size(), 2);
        shares.item(row, 1)->setText(u"x"_s);
        QCOMPARE(shares.Wrong().size(), 1);
        book.User.Answers = {eAnswer::Yes, eAnswer::Yes};
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.isVisible());
        QCOMPARE(book.User.Shown.size(), 1); // what is wrong cannot be saved
        shares.item(row, 1)->setText(u"30"_s);
        QVERIFY(shares.Wrong().isEmpty());
        QTest::keyClicks(&name, u"Cleo"_s);
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(!form.isVisible());
        QCOMPARE(people.Names().size(), 3);
        QCOMPARE(book.User.Asked.size(), 2);
    }

    void PayerIsAskedForAmongSeveral()
    {
        cTestBook book;
        cEntryEditor alone(book.Tools);
        frmBuchung formAlone(alone, alone.Start({}));
        formAlone.show();
        QVERIFY(!formAlone.findChild<QComboBox*>(u"cboBezahltVon"_s)->isVisible());
        QVERIFY(cPeople(book.Tools).Add(u"Änne; & Söhne"_s));
        const cEntryItem entry = book.Add([](cEntryItem& item) { item.EntryFlags = u"andere=1"_s; });
        cEntryEditor editor(book.Tools);
        cEntryFields fields = editor.Load(entry.ID).value();
        frmBuchung form(editor, fields);
        form.show();
        auto& payer = *form.findChild<QComboBox*>(u"cboBezahltVon"_s);
        QVERIFY(payer.isVisible());
        fields.Payer = payer.itemData(1).toString();
        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        const cEntryItem stored = *book.Data.LoadEntry(entry.ID);
        QCOMPARE(modPeople::Payer(stored), u"Änne; & Söhne"_s);
        QVERIFY(stored.EntryFlags.startsWith(u"andere=1;"));
    }

    void SearchAsksForThePayerAmongSeveral()
    {
        cTestBook book;
        cSearchModel model(book.Tools);
        cCellEdit cells(book.Tools);
        frmSuche search(model, cells);
        auto& payer = modWindowHands::Labelled<QComboBox>(search, u"Bezahlt von:"_s);
        search.Present();
        QVERIFY(!payer.isVisible());
        QVERIFY(cPeople(book.Tools).Add(u"Anna"_s));
        book.Add([](cEntryItem& entry) { modPeople::SetPayer(entry, u"Anna"_s); });
        search.Refresh();
        QVERIFY(payer.isVisible());
        payer.setCurrentIndex(1);
        QCOMPARE(model.Entries().rowCount(), 1);
        payer.setCurrentIndex(2); // nobody in particular
        QCOMPARE(model.Entries().rowCount(), 0);
    }

    void ReadOnlyBookKeepsItsPeople()
    {
        cTestBook book;
        book.Database.Open(book.Path(), eOpenMode::ReadOnly);
        cSettlementModel model(book.Tools);
        frmAusgleich form(model);
        const QList<QPushButton*> buttons = form.findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            QCOMPARE(button->isEnabled(), button->text() != u"P&ersonen…"_s);
        }
    }
};

TEST_CLASS(testFrmPersonen, QApplication)
#include "testFrmPersonen.moc"
