#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cSeriesChange.h"
#include "windows/entry/cSplitTable.h"
#include "windows/entry/frmBuchung.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/widget/modBadField.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// What the user has under the fingers: keys go to whatever has the focus.
void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Type(const QString& text)
{
    for (const QChar letter : text) { // the first one may open a field in a table
        QTest::keyClicks(QApplication::focusWidget(), letter);
    }
}

void TypeAndTab(const QString& text)
{
    Type(text);
    Key(Qt::Key_Tab);
}

QString FocusName()
{
    return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
}

struct cScene
{
    explicit cScene(const cEntryFields& fields = {}) { Open(fields); }

    void Open(const cEntryFields& fields)
    {
        const bool isGiven = !fields.Account.isEmpty();
        Form = std::make_unique<frmBuchung>(Editor, isGiven ? fields : Editor.Start(u"Girokonto"_s));
        modWindowHands::Bring(*Form);
    }
    void OpenEntry(int id) { Open(Editor.Load(id).value_or(cEntryFields())); }

    template <typename tWidget>
    tWidget& Find(const QString& name)
    {
        auto* widget = Form->findChild<tWidget*>(name);
        if (widget == nullptr) {
            qFatal("no such control");
        }
        return *widget;
    }
    QLineEdit& Line(const QString& name) { return Find<QLineEdit>(name); }
    QComboBox& Box(const QString& name) { return Find<QComboBox>(name); }

    cEntryItemList Entries()
    {
        cEntryItemList entries;
        for (int id = 1; id <= 20; ++id) {
            if (const std::optional<cEntryItem> entry = Book.Data.LoadEntry(id)) {
                entries.append(*entry);
            }
        }
        return entries;
    }

    cTestBook Book;
    cEntryEditor Editor{Book.Tools};
    std::unique_ptr<frmBuchung> Form;
};

cEntryItem AddRent(cTestBook& book)
{
    return book.Spend(QDate(2026, 1, 1), 75000, u"Miete"_s, u"Monatlich"_s);
}

// Answers the next modal form, which blocks the caller.
template <typename tAnswer>
void AnswerForm(tAnswer answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto* form = qobject_cast<frmKorrektur*>(QApplication::activeModalWidget());
        QVERIFY(form != nullptr);
        modWindowHands::Bring(*form);
        answer(*form);
        form->close();
    });
}

} // namespace

class testFrmBuchung final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void FromOpeningToSavedWithoutMouse()
    {
        QSignalSpy saved(m_scene->Form.get(), &frmBuchung::EntrySaved);
        QCOMPARE(FocusName(), u"txtBetrag"_s);
        TypeAndTab(u"12,50+3,99*2-1"_s);
        QCOMPARE(m_scene->Line(u"txtBetrag"_s).text(), u"19,48"_s);
        TypeAndTab(u"lebens"_s);
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), u"Haushalt; Lebensmittel"_s);
        TypeAndTab(u"Wochenmarkt"_s);
        QCOMPARE(FocusName(), u"EntryDate"_s);
        TypeAndTab(u"-7"_s);
        QCOMPARE(m_scene->Line(u"EntryDate"_s).text(), u"08.03.2026"_s);
        QCOMPARE(m_scene->Box(u"cboBuchungsart"_s).currentData().toString(), modWord::Ausgabe);
        for (const char* next : {"cboKonto", "cboBuchungsart", "cboInterval", "cmdBeleg", "chkCloseDialog"}) {
            QCOMPARE(FocusName(), QString::fromLatin1(next));
            Key(Qt::Key_Tab);
        }
        auto* save = qobject_cast<QPushButton*>(QApplication::focusWidget());
        QVERIFY(save != nullptr && save->isDefault());
        Key(Qt::Key_Backtab, Qt::ShiftModifier);
        Key(Qt::Key_Return);
        QCOMPARE(saved.size(), 1);
        QVERIFY(!m_scene->Form->isVisible());
        const cEntryItem entry = m_scene->Entries().value(0);
        QCOMPARE(entry.EntryValue, 1948);
        QCOMPARE(entry.EntryCategory, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(entry.EntryDescription, u"Wochenmarkt"_s);
        QCOMPARE(entry.EntryDate, QDate(2026, 3, 8));
        QCOMPARE(entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(entry.EntryType, modWord::Ausgabe);
        QCOMPARE(entry.EntryInterval, modWord::Einmalig);
    }

    void CategoryIsFoundByTyping_data()
    {
        const cTestRows<QString, QList<Qt::Key>, QString> row("typed", "keys", "path");
        row("Enter takes the first", u"lebensm"_s, QList{Qt::Key_Return}, u"Haushalt; Lebensmittel"_s);
        row("Tab too, umlauts are blind", u"getranke"_s, QList{Qt::Key_Tab}, u"Haushalt; Getränke"_s);
        row("words of both levels", u"kinder kleid"_s, QList{Qt::Key_Return}, u"Kinder; Kleidung"_s);
        row("Down to the second", u"kleidung"_s, QList{Qt::Key_Down, Qt::Key_Return}, u"Kinder; Kleidung"_s);
        row("typed, list closed, field left", u"werkstatt"_s, QList{Qt::Key_Escape, Qt::Key_Tab}, u"Auto; Werkstatt"_s);
        row("nothing of that name", u"xyz"_s, QList{Qt::Key_Tab}, {});
    }

    void CategoryIsFoundByTyping()
    {
        QFETCH(QString, typed);
        QFETCH(QList<Qt::Key>, keys);
        QFETCH(QString, path);
        m_scene->Box(u"cboKategorie"_s).setFocus();
        Type(typed);
        for (const Qt::Key key : keys) {
            Key(key);
        }
        QVERIFY(m_scene->Form->isVisible());
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), path.isEmpty() ? typed : path);
        // A category that was picked brings its kind.
        QCOMPARE(m_scene->Box(u"cboBuchungsart"_s).currentData().toString(),
                 path.isEmpty() ? QString() : modWord::Ausgabe);
    }

    void EscapeClosesTheListFirst()
    {
        m_scene->Box(u"cboKategorie"_s).setFocus();
        Type(u"mi"_s);
        Key(Qt::Key_Escape);
        QVERIFY(m_scene->Form->isVisible());
        m_scene->Book.User.Answers = {eAnswer::Yes};
        Key(Qt::Key_Escape);
        QVERIFY(!m_scene->Form->isVisible());
    }

    void DescriptionBringsCategoryAndAccount()
    {
        m_scene->Book.Add({.Text = u"Bäckerei Krume"_s, .Account = u"Bargeld"_s});
        m_scene->Line(u"txtBeschreibung"_s).setFocus();
        Type(u"krum"_s);
        Key(Qt::Key_Down);
        Key(Qt::Key_Return);
        QCOMPARE(m_scene->Line(u"txtBeschreibung"_s).text(), u"Bäckerei Krume"_s);
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), u"Haushalt; Lebensmittel"_s);
        QCOMPARE(m_scene->Box(u"cboKonto"_s).currentText(), u"Bargeld"_s);
        // Without a step into the list the text is what was typed.
        m_scene->Line(u"txtBeschreibung"_s).clear();
        TypeAndTab(u"krum"_s);
        QCOMPARE(m_scene->Line(u"txtBeschreibung"_s).text(), u"krum"_s);
    }

    void TagsAreCompleted()
    {
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Fähre #Urlaub #kinder"_s; });
        QLineEdit& description = m_scene->Line(u"txtBeschreibung"_s);
        description.setFocus();
        Type(u"Hotel #url"_s);
        Key(Qt::Key_Return);
        QCOMPARE(description.text(), u"Hotel #Urlaub"_s);
        Type(u" #"_s);
        Key(Qt::Key_Down);
        Key(Qt::Key_Down);
        Key(Qt::Key_Return);
        QCOMPARE(description.text(), u"Hotel #Urlaub #kinder"_s);
        QVERIFY(m_scene->Form->isVisible()); // none of it saved
        QVERIFY(m_scene->Box(u"cboKategorie"_s).currentText().isEmpty());
    }

    void BadAmountIsRedUntilItIsEdited()
    {
        QLineEdit& amount = m_scene->Line(u"txtBetrag"_s);
        TypeAndTab(u"12,,5"_s);
        Key(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(amount.palette().color(QPalette::Base), QColor(245, 160, 160));
        QCOMPARE(amount.palette().color(QPalette::Text), QColor(Qt::black));
        QCOMPARE(FocusName(), u"txtBetrag"_s);
        QVERIFY(m_scene->Book.User.Shown.isEmpty());
        Type(u"12"_s);
        QVERIFY(!modBadField::IsMarked(amount));
        Key(Qt::Key_Return); // the next check speaks, and leads to its field
        QCOMPARE(m_scene->Book.User.Shown, QStringList(u"Bitte erst eine Kategorie wählen!"_s));
        QCOMPARE(FocusName(), u"cboKategorie"_s);
        m_scene->Line(u"EntryDate"_s).setText(u"31.2."_s);
        Key(Qt::Key_Return);
        QCOMPARE(m_scene->Book.Data.CountEntries(), 0);
    }

    void SeriesShowsItsNextDays()
    {
        auto& preview = m_scene->Find<QLabel>(u"lblVorschau"_s);
        QVERIFY(!preview.isVisible());
        m_scene->Box(u"cboKategorie"_s).setFocus();
        TypeAndTab(u"wohnung miete"_s); // brings its monthly interval
        QVERIFY(preview.isVisible());
        QVERIFY(preview.text().contains(u"15.03.2026, 15.04.2026, 15.05.2026"_s));
        m_scene->Line(u"EntryDate"_s).setFocus();
        m_scene->Line(u"EntryDate"_s).selectAll();
        Type(u"20."_s);
        QVERIFY(preview.text().contains(u"20.03.2026, 20.04.2026"_s));
        m_scene->Find<QCheckBox>(u"EntryDateCheck"_s).setFocus();
        Key(Qt::Key_Space);
        TypeAndTab({});
        m_scene->Line(u"EntryDateEnd"_s).setText(u"30.4.2026"_s);
        QVERIFY(preview.text().startsWith(u"2 Mal"_s));
        auto& times = m_scene->Find<QSpinBox>(u"txtTermine"_s);
        QCOMPARE(times.value(), 2);
        m_scene->Find<QCheckBox>(u"EntryDateCheck"_s).setChecked(false);
        QCOMPARE(times.value(), 0);
        times.setFocus();
        times.selectAll();
        Type(u"24"_s);
        QCOMPARE(m_scene->Line(u"EntryDateEnd"_s).text(), u"20.02.2028"_s);
        QVERIFY(preview.text().startsWith(u"24 Mal"_s));
    }

    void TransferShowsTheTarget()
    {
        QVERIFY(!m_scene->Box(u"cboNachKonto"_s).isVisible());
        m_scene->Box(u"cboBuchungsart"_s).setFocus();
        Type(u"U"_s);
        QVERIFY(m_scene->Box(u"cboNachKonto"_s).isVisible());
        Key(Qt::Key_Tab);
        QCOMPARE(FocusName(), u"cboNachKonto"_s);
        m_scene->Box(u"cboKategorie"_s).setFocus();
        TypeAndTab(u"lebens"_s);
        Key(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(FocusName(), u"cboNachKonto"_s);
        QVERIFY(modBadField::IsMarked(m_scene->Box(u"cboNachKonto"_s)));
        m_scene->Box(u"cboBuchungsart"_s).setFocus();
        Key(Qt::Key_Up);
        QVERIFY(!m_scene->Box(u"cboNachKonto"_s).isVisible());
    }

    void EmptiedAmountIsZero()
    {
        Type(u"5"_s);
        Key(Qt::Key_Backspace);
        Key(Qt::Key_Tab);
        QCOMPARE(m_scene->Line(u"txtBetrag"_s).text(), u"0,00"_s);
    }

    void NewCategoryIsOffered()
    {
        TypeAndTab(u"5"_s);
        Type(u"Pony"_s);
        Key(Qt::Key_Tab); // the offer is never taken by the way
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), u"Pony"_s);
        QVERIFY(m_scene->Book.User.Asked.isEmpty());
        m_scene->Box(u"cboKategorie"_s).setFocus();
        Type(u"X"_s);
        Key(Qt::Key_Down);
        Key(Qt::Key_Return); // declined, and the text stays
        QCOMPARE(m_scene->Book.User.Asked.size(), 1);
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), u"PonyX"_s);
        Key(Qt::Key_Backspace);
        m_scene->Book.User.Answers = {eAnswer::Yes};
        Key(Qt::Key_Down);
        Key(Qt::Key_Return);
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), u"Pony"_s);
        QCOMPARE(m_scene->Box(u"cboBuchungsart"_s).currentData().toString(), modWord::Ausgabe);
        Key(Qt::Key_Return);
        QCOMPARE(m_scene->Entries().value(0).EntryCategory, u"Pony"_s);
    }

    void NewCategoryOfAPartIsOffered()
    {
        auto& table = m_scene->Find<cSplitTable>(u"rptSplit"_s);
        TypeAndTab(u"50"_s);
        Key(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(table.isVisible());
        Type(u"haus"_s); // where others match, too
        QVERIFY(QApplication::focusWidget() != &table);
        m_scene->Book.User.Answers = {eAnswer::No, eAnswer::Yes};
        Key(Qt::Key_PageDown);
        Key(Qt::Key_PageDown);
        Key(Qt::Key_Return);
        QTRY_COMPARE(m_scene->Book.User.Asked.size(), 1);
        QCOMPARE(table.item(0, cSplitTable::Category)->text(), u"haus"_s);
        QCOMPARE(table.Parts().first().Category, QString());
        table.ChooseCell(0, cSplitTable::Description);
        QComboBox& kinds = m_scene->Box(u"cboBuchungsart"_s);
        kinds.setCurrentIndex(kinds.findData(modWord::Ausgabe)); // without one nothing is asked
        Key(Qt::Key_Return, Qt::ControlModifier);                // asks once more
        QCOMPARE(table.item(0, cSplitTable::Category)->text(), u"haus"_s);
        QCOMPARE(m_scene->Book.User.Asked.size(), 2);
    }

    void StaysOpenForTheNextEntry()
    {
        m_scene->Find<QCheckBox>(u"chkCloseDialog"_s).setChecked(false);
        m_scene->Line(u"EntryDate"_s).setText(u"3.2.26"_s);
        const int accounts = m_scene->Box(u"cboKonto"_s).count();
        for (int i = 1; i <= 7; ++i) {
            QCOMPARE(FocusName(), u"txtBetrag"_s);
            TypeAndTab(QString::number(i));
            TypeAndTab(u"lebens"_s);
            Type(u"Einkauf"_s);
            Key(Qt::Key_Return);
            QCOMPARE(m_scene->Book.Data.CountEntries(), i);
        }
        QCOMPARE(m_scene->Line(u"EntryDate"_s).text(), u"03.02.2026"_s);
        QCOMPARE(m_scene->Box(u"cboKategorie"_s).currentText(), QString());
        QCOMPARE(m_scene->Line(u"txtBeschreibung"_s).text(), QString());
        QCOMPARE(m_scene->Box(u"cboKonto"_s).count(), accounts);
        auto& list = m_scene->Find<QListWidget>(u"lstGespeichert"_s);
        QVERIFY(list.isVisible());
        QCOMPARE(list.count(), 5);
        QVERIFY(list.item(0)->text().contains(u"7,00"_s));
        Key(Qt::Key_Escape); // what was saved is no reason to ask
        QVERIFY(!m_scene->Form->isVisible());
        QVERIFY(m_scene->Book.User.Asked.isEmpty());
    }

    void AsksBeforeTypedContentsAreLost()
    {
        TypeAndTab(u"5"_s);
        m_scene->Book.User.Answers = {eAnswer::Cancel, eAnswer::No, eAnswer::Yes};
        Key(Qt::Key_Escape);
        QVERIFY(m_scene->Form->isVisible());
        Key(Qt::Key_Escape);
        QVERIFY(!m_scene->Form->isVisible());
        m_scene->Open({});
        Key(Qt::Key_T, Qt::AltModifier); // an empty split is nothing typed
        QTRY_VERIFY(m_scene->Find<cSplitTable>(u"rptSplit"_s).isVisible());
        Key(Qt::Key_Escape);
        QCOMPARE(m_scene->Book.User.Asked.size(), 2);
        m_scene->Open({});
        TypeAndTab(u"5"_s);
        TypeAndTab(u"lebens"_s);
        Key(Qt::Key_Escape);
        QVERIFY(!m_scene->Form->isVisible());
        QCOMPARE(m_scene->Book.Data.CountEntries(), 1);
    }

    void SplitFromTheKeyboard()
    {
        auto& table = m_scene->Find<cSplitTable>(u"rptSplit"_s);
        TypeAndTab(u"50"_s);
        TypeAndTab(u"lebens"_s);
        Type(u"Großeinkauf"_s.remove(u'ß'));
        Key(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(table.isVisible()); // the button goes down and up again
        QVERIFY(!m_scene->Box(u"cboKategorie"_s).isVisible());
        QCOMPARE(table.Parts().first().Category, u"Haushalt; Lebensmittel"_s);
        QVERIFY(table.hasFocus()); // the first part has its category, so its amount comes next
        TypeAndTab(u"30+1,5"_s);
        QCOMPARE(table.item(0, cSplitTable::Amount)->text(), u"31,50"_s);
        QCOMPARE(m_scene->Find<QLabel>(u"lblRest"_s).text(), u"Rest: 18,50"_s);
        TypeAndTab(u"getranke"_s); // the next line's category is open already
        TypeAndTab(u"Saft"_s);
        QCOMPARE(table.Parts().at(1).Category, u"Haushalt; Getränke"_s);
        Key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(table.Parts().at(1).Amount, u"18,50"_s);
        QCOMPARE(table.rowCount(), 3); // an empty line waits at the end
        table.ChooseCell(2, cSplitTable::Category);
        Key(Qt::Key_Delete); // which stays
        QCOMPARE(table.rowCount(), 3);
        Key(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY2(!m_scene->Form->isVisible(), qPrintable(m_scene->Book.User.Shown.join(u'|')));
        QCOMPARE(m_scene->Book.Data.CountEntries(), 2);

        // Opened again it is split, and a line can go.
        m_scene->OpenEntry(2);
        auto& again = m_scene->Find<cSplitTable>(u"rptSplit"_s);
        QVERIFY(again.isVisible());
        QCOMPARE(m_scene->Line(u"txtBetrag"_s).text(), u"50,00"_s);
        again.ChooseCell(1, cSplitTable::Amount);
        Key(Qt::Key_Delete);
        again.ChooseCell(0, cSplitTable::Amount);
        Key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(again.Parts().first().Amount, u"50,00"_s);
    }

    void BadPartIsRed()
    {
        TypeAndTab(u"50"_s);
        TypeAndTab(u"lebens"_s);
        Key(Qt::Key_T, Qt::AltModifier);
        auto& table = m_scene->Find<cSplitTable>(u"rptSplit"_s);
        QTRY_VERIFY(table.isVisible());
        table.ChooseCell(0, cSplitTable::Amount);
        Type(u"1,,2"_s);
        Key(Qt::Key_Return, Qt::ControlModifier); // from within the cell
        QVERIFY(m_scene->Form->isVisible());
        const QTableWidgetItem& amount = *table.item(0, cSplitTable::Amount);
        QCOMPARE(amount.background().color(), modBadField::Color());
        QCOMPARE(table.currentItem(), &amount);
        TypeAndTab(u"50"_s);
        QCOMPARE(amount.background().style(), Qt::NoBrush);
    }

    void CorrectionsOfASeries()
    {
        const int rent = AddRent(m_scene->Book).ID;
        m_scene->OpenEntry(rent);
        auto& list = m_scene->Find<QTreeWidget>(u"lstKorrekturen"_s);
        QVERIFY(!list.isVisible());
        Key(Qt::Key_Tab, Qt::ControlModifier); // to the other page
        QVERIFY(list.isVisible());
        const auto press = [&](const QString& text) {
            modWindowHands::Button(*m_scene->Form, text).click();
            modWindowHands::Bring(*m_scene->Form); // behind a modal form no window is active
        };
        AnswerForm([](frmKorrektur& form) {
            form.findChild<QLineEdit*>(u"txtTag"_s)->setText(u"1.1.2020"_s); // before the series
            form.findChild<QLineEdit*>(u"txtBetrag"_s)->setText(u"700+20"_s);
            form.findChild<QLineEdit*>(u"txtKommentar"_s)->setText(u"Mietminderung"_s);
            QTest::keyClick(form.findChild<QLineEdit*>(u"txtBetrag"_s), Qt::Key_Return);
            QVERIFY(form.isVisible());
            QVERIFY(!form.findChild<QLabel*>(u"message"_s)->text().isEmpty());
            form.findChild<QLineEdit*>(u"txtTag"_s)->setText(u"20.2.2026"_s);
            QTest::keyClick(form.findChild<QLineEdit*>(u"txtBetrag"_s), Qt::Key_Return);
        });
        press(u"Hinzufügen…"_s);
        QCOMPARE(list.topLevelItemCount(), 1);
        QCOMPARE(list.topLevelItem(0)->text(0), u"Manuelle Korrektur vom 01.02.2026"_s);
        QCOMPARE(list.topLevelItem(0)->text(3), u"720,00"_s);
        AnswerForm([](frmKorrektur& form) {
            form.findChild<QLineEdit*>(u"txtBetrag"_s)->setText(u"710"_s);
            QTest::keyClick(form.findChild<QLineEdit*>(u"txtBetrag"_s), Qt::Key_Return);
        });
        press(u"Ändern…"_s);
        QCOMPARE(list.topLevelItem(0)->text(3), u"710,00"_s);
        QVERIFY(m_scene->Book.Data.GetEntryMods(rent).isEmpty()); // until it is saved
        Key(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_scene->Book.Data.GetEntryMods(rent).size(), 1);
        QCOMPARE(m_scene->Book.Data.GetEntryMods(rent).first().EntryComment, u"Mietminderung"_s);

        m_scene->OpenEntry(rent);
        QCOMPARE(m_scene->Find<QTreeWidget>(u"lstKorrekturen"_s).topLevelItemCount(), 1);
        press(u"Entfernen"_s);
        QCOMPARE(m_scene->Find<QTreeWidget>(u"lstKorrekturen"_s).topLevelItemCount(), 0);
        Key(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(m_scene->Book.Data.GetEntryMods(rent).isEmpty());
    }

    void CorrectsOneOccurrence()
    {
        cTestBook book;
        const int rent = AddRent(book).ID;
        cSeriesChange change(book.Tools);
        frmKorrektur form(change, change.StartPeriod(rent, QDate(2026, 2, 1)).value());
        QSignalSpy saved(&form, &frmKorrektur::CorrectionSaved);
        modWindowHands::Bring(form);
        QCOMPARE(FocusName(), u"txtBetrag"_s);
        Type(u"7x"_s);
        Key(Qt::Key_Return);
        QVERIFY(form.isVisible());
        QVERIFY(modBadField::IsMarked(*form.findChild<QLineEdit*>(u"txtBetrag"_s)));
        TypeAndTab(u"700,5"_s);
        Type(u"Gutschrift"_s);
        Key(Qt::Key_Return);
        QVERIFY(!form.isVisible());
        const std::optional<cEntryItemFixMod> correction = change.Correction(rent, QDate(2026, 2, 1));
        QVERIFY(correction);
        QCOMPARE(correction->EntryValue, 70050);
        QCOMPARE(correction->EntryComment, u"Gutschrift"_s);

        cSeriesChange::cPeriodFields fields = change.StartPeriod(rent, QDate(2026, 2, 1), QDate(2026, 2, 1)).value();
        fields.IsDayFirst = true;
        frmKorrektur again(change, fields);
        QSignalSpy removed(&again, &frmKorrektur::CorrectionSaved);
        modWindowHands::Bring(again);
        QCOMPARE(FocusName(), u"txtTag"_s);
        Key(Qt::Key_E, Qt::AltModifier);
        QTRY_VERIFY(!change.Correction(rent, QDate(2026, 2, 1)));
        QCOMPARE(saved.size() + removed.size(), 2);
    }

    void StartBalance()
    {
        m_scene->Open(m_scene->Editor.StartBalance(u"Sparkonto"_s));
        for (const QString& hidden : {u"cboKategorie"_s, u"cboBuchungsart"_s, u"cboInterval"_s, u"cboNachKonto"_s}) {
            QVERIFY(!m_scene->Box(hidden).isVisible());
        }
        QVERIFY(!m_scene->Form->findChild<QWidget*>(u"txtBeschreibung"_s)->isVisible()); // it would be lost
        QVERIFY(modWindowHands::Shows(*m_scene->Form, u"Bisher wurde noch kein Startguthaben festgelegt:"_s));
        QCOMPARE(FocusName(), u"txtBetrag"_s);
        Type(u"1.250,5"_s);
        Key(Qt::Key_Return);
        QCOMPARE(m_scene->Entries().value(0).EntryCategory, modWord::Startguthaben);
        QCOMPARE(m_scene->Entries().value(0).EntryAccount, u"Sparkonto"_s);
        QCOMPARE(m_scene->Entries().value(0).EntryValue, 125050);
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmBuchung, QApplication)
#include "testFrmBuchung.moc"
