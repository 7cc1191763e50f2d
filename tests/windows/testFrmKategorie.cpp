#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "views/look/cCategoryLooks.h"
#include "views/template/cTemplateManager.h"
#include "windows/template/cTemplateTree.h"
#include "windows/template/frmKategorie.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cElidedText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString food = u"Haushalt; Lebensmittel"_s;
const QString drinks = u"Haushalt; Getränke"_s;

class cScene
{
public:
    cScene()
    {
        Id = Book.Add([](cEntryItem&) {}).ID;
        Manager.Refresh();
        modWindowHands::Bring(Window);
    }

    template <typename tField>
    tField& Field(const QString& label)
    {
        return modWindowHands::Labelled<tField>(Window, label);
    }
    [[nodiscard]] QAbstractButton& Button(const QString& text) const { return modWindowHands::Button(Window, text); }
    [[nodiscard]] QString Selected() const
    {
        const cTemplateNode* node = Tree(Tabs.currentIndex()).Current();
        return node == nullptr ? QString() : node->Path;
    }
    [[nodiscard]] cTemplateTree& Tree(int page = 0) const { return *qobject_cast<cTemplateTree*>(Tabs.widget(page)); }

    cTestBook Book;
    int Id = 0;
    cTemplateManager Manager{Book.Tools};
    frmKategorie Window{Manager};
    QTabWidget& Tabs = *Window.findChild<QTabWidget*>();
};

} // namespace

class testFrmKategorie final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LookIsChosenByKeys()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(u"Haushalt"_s));
        auto& colors = scene.Field<QComboBox>(u"Farbe und Symbol:"_s);
        colors.setFocus();
        QTest::keyClicks(&colors, u"Rost"_s);
        QTest::keyClick(&colors, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // past the button for one of the user's own
        QTest::keyClicks(QApplication::focusWidget(), u"Teller"_s);
        QVERIFY(scene.Window.Select(food)); // stores it
        const cCategoryLook expected{u"#a54900"_s, u"essen"_s};
        QCOMPARE(cCategoryLooks::Read(scene.Book.Data).Of(food), expected);
        scene.Book.Settings->Set(modSettingKey::CategoryColor.Of(u"Haushalt"_s), u"#123456"_s);
        QVERIFY(scene.Window.Select(u"Haushalt"_s));
        QCOMPARE(colors.currentText(), u"#123456"_s); // one of the user's own
        QVERIFY(scene.Window.Select(food));
        QCOMPARE(cCategoryLooks::Read(scene.Book.Data).Of(food).Color, u"#123456"_s);
    }

    void OpensAtACategoryOrAccount()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        QCOMPARE(scene.Selected(), food);
        QCOMPARE(scene.Field<QLineEdit>(u"Name:"_s).text(), u"Lebensmittel"_s);
        QVERIFY(scene.Window.Select(u"Auto; Nie gehört"_s));
        QCOMPARE(scene.Selected(), u"Auto"_s);
        QVERIFY(scene.Window.Select(u"Sparkonto"_s));
        QCOMPARE(scene.Tabs.currentIndex(), 1);
        QCOMPARE(scene.Field<QComboBox>(u"Gruppe:"_s).currentText(), u"Bankkonten"_s);
        QVERIFY(!scene.Window.Select(u"Nichts"_s));
    }

    void WhatWasTypedIsSavedOnLeavingTheLine()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        scene.Tree().setFocus();
        QTest::keyClick(&scene.Tree(), Qt::Key_F2);
        QTRY_VERIFY(scene.Field<QLineEdit>(u"Name:"_s).hasFocus());
        QTest::keyClicks(&scene.Field<QLineEdit>(u"Name:"_s), u"Essen"_s);
        QTest::keyClicks(&scene.Field<QLineEdit>(u"Monatslimit:"_s), u"400"_s);
        scene.Tree().setFocus();
        QTest::keyClick(&scene.Tree(), Qt::Key_Down);
        QTRY_COMPARE(scene.Book.Data.LoadEntry(scene.Id)->EntryCategory, u"Haushalt; Essen"_s);
        QTRY_COMPARE(scene.Field<QLineEdit>(u"Name:"_s).text(), u"Getränke"_s);
        QCOMPARE(scene.Selected(), drinks);
        QCOMPARE(scene.Book.Data.FindTemplate(u"Haushalt"_s, u"Essen"_s)->TemplateDefaultValue, u"400.00"_s);
    }

    void SaysWhatTheAmountIs()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        QComboBox& interval = scene.Field<QComboBox>(u"Intervall:"_s);
        const auto says = [&](const QString& start) {
            const QList<cElidedText*> hints = scene.Window.findChildren<cElidedText*>();
            return std::any_of(hints.begin(), hints.end(), [&](const cElidedText* hint) {
                return hint->isVisible() && hint->toolTip().startsWith(start);
            });
        };
        interval.setCurrentIndex(interval.findData(u"Jährlich"_s));
        QLineEdit& amount = scene.Field<QLineEdit>(u"Betrag:"_s);
        QCOMPARE(amount.placeholderText(), u"kein Betrag"_s);
        QVERIFY(!says(u"Wird vorgeschlagen"_s));
        QTest::keyClicks(&amount, u"600"_s);
        QVERIFY(says(u"Wird vorgeschlagen; Monatslimit 50,00"_s));
        interval.setCurrentIndex(interval.findData(u"Einmalig"_s));
        QCOMPARE(scene.Field<QLineEdit>(u"Monatslimit:"_s).text(), u"600"_s);
    }

    void RefusedChangesKeepTheLineAndTheWindow()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        QLineEdit& limit = scene.Field<QLineEdit>(u"Monatslimit:"_s);
        QTest::keyClicks(&limit, u"viel"_s);
        scene.Tree().setFocus();
        QTest::keyClick(&scene.Tree(), Qt::Key_Down);
        QTRY_COMPARE(scene.Book.User.Shown.size(), 1);
        QTRY_COMPARE(scene.Selected(), food);
        QCOMPARE(limit.text(), u"viel"_s);
        scene.Tabs.setCurrentIndex(1);
        QTRY_COMPARE(scene.Tabs.currentIndex(), 0);
        scene.Window.reject();
        QVERIFY(scene.Window.isVisible());
        QTest::keyClick(&limit, Qt::Key_Escape); // the question is cancelled
        QCOMPARE(limit.text(), u"viel"_s);
        scene.Book.User.Answers = {eAnswer::No};
        QTest::keyClick(&limit, Qt::Key_Escape); // gives up the text, not the window
        QVERIFY(scene.Window.isVisible());
        QVERIFY(limit.text().isEmpty());
        QCOMPARE(scene.Selected(), food);
        scene.Window.reject();
        QVERIFY(!scene.Window.isVisible());
    }

    void KeysAddMoveAndDelete()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        scene.Tree().setFocus();
        scene.Book.User.Choices = {u"Backwaren"_s, drinks};
        QTest::keyClick(&scene.Tree(), Qt::Key_Insert);
        QCOMPARE(scene.Selected(), u"Haushalt; Backwaren"_s);
        QTest::keyClick(&scene.Tree(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(scene.Selected(), u"Haushalt; Backwaren"_s);
        QCOMPARE(scene.Book.Data.Journal().UndoName(), u"Reihenfolge geändert"_s);
        QVERIFY(scene.Window.Select(food));
        scene.Book.User.Decisions = {0};
        QTest::keyClick(&scene.Tree(), Qt::Key_Delete);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Id)->EntryCategory, drinks);
        QCOMPARE(scene.Selected(), drinks); // the next line takes its place
        QCOMPARE(scene.Field<QLineEdit>(u"Name:"_s).text(), u"Getränke"_s);
    }

    void ALineWithoutDefinitionOffersWhatCanBeDone()
    {
        cScene scene;
        scene.Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haushalt; Altes"_s; });
        scene.Manager.Refresh();
        QVERIFY(scene.Window.Select(u"Haushalt; Altes"_s));
        QVERIFY(!scene.Button(u"Löschen…"_s).isEnabled());
        scene.Button(u"Anlegen"_s).click();
        QCOMPARE(scene.Field<QLineEdit>(u"Name:"_s).text(), u"Altes"_s);
        QVERIFY(scene.Button(u"Löschen…"_s).isEnabled());
        QVERIFY(scene.Window.Select(u"Auto"_s));
        QVERIFY(!scene.Field<QComboBox>(u"Buchungsart:"_s).isEnabled()); // only its sub-categories have entries
        scene.Button(u"Direkt bebuchbar, ohne Unterkategorie"_s).click();
        QVERIFY(scene.Field<QComboBox>(u"Buchungsart:"_s).isEnabled());
        scene.Button(u"Speichern"_s).click();
        QVERIFY(scene.Book.Data.FindTemplate(u"Auto"_s, QString()));
    }

    void AccountIsWrittenAsAWhole()
    {
        cScene scene;
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(scene.Window.Select(u"Girokonto"_s));
        scene.Field<QLineEdit>(u"Name:"_s).setText(u"Hauskonto"_s);
        QTest::keyClicks(&scene.Field<QLineEdit>(u"Startguthaben:"_s), u"-100"_s);
        auto* day = scene.Window.findChild<cDayEdit*>();
        day->selectAll();
        QTest::keyClicks(day, u"01.01.2026"_s);
        QTest::keyClick(day, Qt::Key_Tab);
        QTest::keyClicks(&scene.Field<QPlainTextEdit>(u"Kontonummern für Import:"_s), u"DE99 1"_s);
        scene.Window.reject();
        QVERIFY(!scene.Window.isVisible());
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Id)->EntryAccount, u"Hauskonto"_s);
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Hauskonto"_s)->EntryValue, 10000);
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Hauskonto"_s)->EntryDate, QDate(2026, 1, 1));
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"DE991"_s)), u"Hauskonto"_s);
        QCOMPARE(scene.Book.Data.Journal().UndoName(), u"Konto 'Girokonto' umbenannt"_s);
    }

    void ChangesElsewhereLeaveWhatIsTyped()
    {
        cScene scene;
        QVERIFY(scene.Window.Select(food));
        QTest::keyClicks(&scene.Field<QLineEdit>(u"Bemerkung:"_s), u"neu"_s);
        scene.Book.Add([](cEntryItem&) {});
        scene.Manager.Refresh();
        QCOMPARE(scene.Field<QLineEdit>(u"Bemerkung:"_s).text(), u"neu"_s);
        QCOMPARE(scene.Manager.Categories().IndexOf(food).siblingAtColumn(4).data().toString(), u"2"_s);
        QCOMPARE(scene.Selected(), food);
    }

    void BranchesStayOpenUntilNextTime()
    {
        cScene scene;
        scene.Tree().expand(scene.Manager.Categories().IndexOf(u"Auto"_s));
        scene.Window.reject();
        const frmKategorie other(scene.Manager);
        auto* tree = qobject_cast<cTemplateTree*>(other.findChild<QTabWidget*>()->widget(0));
        QVERIFY(tree->isExpanded(scene.Manager.Categories().IndexOf(u"Auto"_s)));
        QVERIFY(!tree->isExpanded(scene.Manager.Categories().IndexOf(u"Haushalt"_s)));
    }

    // On every kind of line.
    void EverybodyCanUseIt()
    {
        cScene scene;
        scene.Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haushalt; Altes"_s; });
        scene.Manager.Refresh();
        for (const QString& line : {food, u"Auto"_s, u"Haushalt; Altes"_s, u"Girokonto"_s}) {
            QVERIFY(scene.Window.Select(line));
            QTest::qWait(1);
            QCOMPARE(modWindowFaults::All(scene.Window).join(u"; "), QString());
        }
    }
};

TEST_CLASS(testFrmKategorie, QApplication)
#include "testFrmKategorie.moc"
