#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankSetup.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/entry/cSeriesChange.h"
#include "views/ledger/cStatementListModel.h"
#include "views/list/cSearchModel.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "views/sheet/cCellEdit.h"
#include "views/sheet/cManyChange.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/entry/cCorrectionsPage.h"
#include "windows/entry/frmBuchung.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/main/frmMehrere.h"
#include "windows/main/frmSuche.h"
#include "windows/people/cShareTable.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"
#include "windows/statement/frmKontoauszug.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/modProposal.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Small forms, which ask before something typed is lost; the larger ones have tests of their own.
class testSmallForms final : public QObject
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

    // The protocol of its code comes with the bank, before anything is asked.
    void ABankLoginIsNotLost()
    {
        cTestBook book;
        QVERIFY(book.Settings->Set(modSettingKey::OnlineBank.Of(u"12345678"_s), u"220"_s));
        cTestBank bank({});
        cTestHttps https(bank);
        cTestBankUser customer(bank);
        const cBankDirectory directory(book.Shell);
        cBankSetup setup({book.Tools, directory, https, customer, {}});
        frmBankAssistent form(setup, book.Clock.Today());
        form.show();
        form.reject();
        QVERIFY(!form.isVisible());
        form.show();
        qobject_cast<QLineEdit*>(form.focusWidget())->setText(u"12345678"_s);
        book.User.Answers = {eAnswer::No, eAnswer::Yes};
        form.reject();
        QVERIFY(form.isVisible());
        QCOMPARE(setup.State().HbciVersion, u"220"_s);
        form.reject();
        QVERIFY(!form.isVisible());
        QCOMPARE(book.User.Asked.size(), 2);
    }

    // Leaving a field tidies up what stands there, which is nobody's typing.
    void NewCorrectionIsLeftWithoutAQuestion()
    {
        int asked = 0;
        const auto ask = [&] {
            ++asked;
            return eAnswer::Cancel;
        };
        cCorrectionsPage page(
            QDate(2026, 3, 15), [] { return cEntryFields(); }, ask);
        page.show();
        QTimer::singleShot(0, &page, [] {
            auto* form = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(QTest::qWaitForWindowActive(form));
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
            form->reject();
            form->done(QDialog::Rejected);
        });
        modWindowHands::Button(page, u"Hinzufügen…"_s).click();
        QCOMPARE(asked, 0);
    }

    // Undo would take back a step of the book instead.
    void WhatWasPickedCountsAsTyped()
    {
        cTestBook book;
        (void)book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Wocheneinkauf"_s; });
        cEntrySuggestions suggestions(book.Data, book.User);
        QLineEdit line;
        (void)modProposal::AddDescriptions(line, suggestions);
        modWindowHands::Bring(line);
        QTest::keyClicks(&line, u"Woch"_s);
        QTest::keyClick(&line, Qt::Key_Down);
        QTest::keyClick(&line, Qt::Key_Return);
        QCOMPARE(line.text(), u"Wocheneinkauf"_s);
        QVERIFY(line.isModified());
    }

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

    // The keys go on from the newest row, then along the buttons.
    void StatementIsWalkedByKeys()
    {
        cTestBook book;
        for (const int day : {3, 4}) {
            cImportEntry row;
            row.ImportAccount = u"4711"_s;
            row.ImportDate = QDate(2026, 3, day);
            QVERIFY(book.Data.AddNewImportEntry(row));
        }
        cStatementListModel statement(book.Tools);
        frmKontoauszug form(statement);
        form.show();
        const auto& tree = *form.findChild<QTreeView*>();
        QCOMPARE(tree.currentIndex().row(), 1);
        QVERIFY(!tree.selectionModel()->hasSelection()); // else one row would be printed
        QList<int> places;
        for (const QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
            if (qobject_cast<const QPushButton*>(next) != nullptr && next->parent() == &form) {
                places.append(next->x());
            }
        }
        QVERIFY(std::is_sorted(places.begin(), places.end()) && places.size() > 3);
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

TEST_CLASS(testSmallForms, QApplication)
#include "testSmallForms.moc"
