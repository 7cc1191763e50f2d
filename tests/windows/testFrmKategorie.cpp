#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/queued.h"
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

struct cScene
{
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
    void init() { m_scene.emplace(); }

    void LookIsChosenByKeys()
    {
        QVERIFY(m_scene->Window.Select(u"Haushalt"_s));
        auto& colors = m_scene->Field<QComboBox>(u"Farbe und Symbol:"_s);
        colors.setFocus();
        QTest::keyClicks(&colors, u"Rost"_s);
        QTest::keyClick(&colors, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // past the button for one of the user's own
        QTest::keyClicks(QApplication::focusWidget(), u"Teller"_s);
        QVERIFY(m_scene->Window.Select(food)); // stores it
        const cCategoryLook expected{u"#a54900"_s, u"essen"_s};
        QCOMPARE(cCategoryLooks::Read(m_scene->Book.Data).Of(food), expected);
        m_scene->Book.Settings->Set(modSettingKey::CategoryColor.Of(u"Haushalt"_s), u"#123456"_s);
        QVERIFY(m_scene->Window.Select(u"Haushalt"_s));
        QCOMPARE(colors.currentText(), u"#123456"_s); // one of the user's own
        QVERIFY(m_scene->Window.Select(food));
        QCOMPARE(cCategoryLooks::Read(m_scene->Book.Data).Of(food).Color, u"#123456"_s);
    }

    void OpensAtACategoryOrAccount()
    {
        QVERIFY(m_scene->Window.Select(food));
        QCOMPARE(m_scene->Selected(), food);
        QCOMPARE(m_scene->Field<QLineEdit>(u"Name:"_s).text(), u"Lebensmittel"_s);
        QVERIFY(m_scene->Window.Select(u"Auto; Nie gehört"_s));
        QCOMPARE(m_scene->Selected(), u"Auto"_s);
        QVERIFY(m_scene->Window.Select(u"Sparkonto"_s));
        QCOMPARE(m_scene->Tabs.currentIndex(), 1);
        QCOMPARE(m_scene->Field<QComboBox>(u"Gruppe:"_s).currentText(), u"Bankkonten"_s);
        QVERIFY(!m_scene->Window.Select(u"Nichts"_s));
    }

    void WhatWasTypedIsSavedOnLeavingTheLine()
    {
        QVERIFY(m_scene->Window.Select(food));
        m_scene->Tree().setFocus();
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        QTRY_VERIFY(m_scene->Field<QLineEdit>(u"Name:"_s).hasFocus());
        QTest::keyClicks(&m_scene->Field<QLineEdit>(u"Name:"_s), u"Essen"_s);
        QTest::keyClicks(&m_scene->Field<QLineEdit>(u"Monatslimit:"_s), u"400"_s);
        m_scene->Tree().setFocus();
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Down);
        QTRY_COMPARE(m_scene->Book.Data.LoadEntry(m_scene->Id)->EntryCategory, u"Haushalt; Essen"_s);
        QTRY_COMPARE(m_scene->Field<QLineEdit>(u"Name:"_s).text(), u"Getränke"_s);
        QCOMPARE(m_scene->Selected(), drinks);
        QCOMPARE(m_scene->Book.Data.FindTemplate(u"Haushalt"_s, u"Essen"_s)->TemplateDefaultValue, u"400.00"_s);
    }

    void SaysWhatTheAmountIs()
    {
        QVERIFY(m_scene->Window.Select(food));
        QComboBox& interval = m_scene->Field<QComboBox>(u"Intervall:"_s);
        const auto says = [&](const QString& start) {
            const QList<cElidedText*> hints = m_scene->Window.findChildren<cElidedText*>();
            return std::any_of(hints.begin(), hints.end(), [&](const cElidedText* hint) {
                return hint->isVisible() && hint->toolTip().startsWith(start);
            });
        };
        interval.setCurrentIndex(interval.findData(u"Jährlich"_s));
        QLineEdit& amount = m_scene->Field<QLineEdit>(u"Betrag:"_s);
        QCOMPARE(amount.placeholderText(), u"kein Betrag"_s);
        QVERIFY(!says(u"Wird vorgeschlagen"_s));
        QTest::keyClicks(&amount, u"600"_s);
        QVERIFY(says(u"Wird vorgeschlagen; Monatslimit 50,00"_s));
        interval.setCurrentIndex(interval.findData(u"Einmalig"_s));
        QCOMPARE(m_scene->Field<QLineEdit>(u"Monatslimit:"_s).text(), u"600"_s);
    }

    void RefusedChangesKeepTheLineAndTheWindow()
    {
        QVERIFY(m_scene->Window.Select(food));
        QLineEdit& limit = m_scene->Field<QLineEdit>(u"Monatslimit:"_s);
        QTest::keyClicks(&limit, u"viel"_s);
        m_scene->Tree().setFocus();
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Down);
        QTRY_COMPARE(m_scene->Book.User.Shown.size(), 1);
        QTRY_COMPARE(m_scene->Selected(), food);
        QCOMPARE(limit.text(), u"viel"_s);
        m_scene->Tabs.setCurrentIndex(1);
        QTRY_COMPARE(m_scene->Tabs.currentIndex(), 0);
        m_scene->Window.reject();
        QVERIFY(m_scene->Window.isVisible());
        QTest::keyClick(&limit, Qt::Key_Escape); // the question is cancelled
        QCOMPARE(limit.text(), u"viel"_s);
        m_scene->Book.User.Answers = {eAnswer::No};
        QTest::keyClick(&limit, Qt::Key_Escape); // gives up the text, not the window
        QVERIFY(m_scene->Window.isVisible());
        QVERIFY(limit.text().isEmpty());
        QCOMPARE(m_scene->Selected(), food);
        m_scene->Window.reject();
        QVERIFY(!m_scene->Window.isVisible());
    }

    void KeysAddMoveAndDelete()
    {
        QVERIFY(m_scene->Window.Select(food));
        m_scene->Tree().setFocus();
        m_scene->Book.User.Choices = {u"Backwaren"_s, drinks};
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Insert);
        QCOMPARE(m_scene->Selected(), u"Haushalt; Backwaren"_s);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(m_scene->Selected(), u"Haushalt; Backwaren"_s);
        QCOMPARE(m_scene->Book.Data.Journal().UndoName(), u"Reihenfolge geändert"_s);
        QVERIFY(m_scene->Window.Select(food));
        m_scene->Book.User.Decisions = {0};
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Delete);
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->Id)->EntryCategory, drinks);
        QCOMPARE(m_scene->Selected(), drinks); // the next line takes its place
        QCOMPARE(m_scene->Field<QLineEdit>(u"Name:"_s).text(), u"Getränke"_s);
    }

    void ALineWithoutDefinitionOffersWhatCanBeDone()
    {
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haushalt; Altes"_s; });
        m_scene->Manager.Refresh();
        QVERIFY(m_scene->Window.Select(u"Haushalt; Altes"_s));
        QVERIFY(!m_scene->Button(u"Löschen…"_s).isEnabled());
        m_scene->Button(u"Anlegen"_s).click();
        QCOMPARE(m_scene->Field<QLineEdit>(u"Name:"_s).text(), u"Altes"_s);
        QVERIFY(m_scene->Button(u"Löschen…"_s).isEnabled());
        QVERIFY(m_scene->Window.Select(u"Auto"_s));
        QVERIFY(!m_scene->Field<QComboBox>(u"Buchungsart:"_s).isEnabled()); // only its sub-categories have entries
        m_scene->Button(u"Direkt bebuchbar, ohne Unterkategorie"_s).click();
        QVERIFY(m_scene->Field<QComboBox>(u"Buchungsart:"_s).isEnabled());
        m_scene->Button(u"Speichern"_s).click();
        QVERIFY(m_scene->Book.Data.FindTemplate(u"Auto"_s, QString()));
    }

    void AccountIsWrittenAsAWhole()
    {
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QVERIFY(m_scene->Window.Select(u"Girokonto"_s));
        m_scene->Field<QLineEdit>(u"Name:"_s).setText(u"Hauskonto"_s);
        QTest::keyClicks(&m_scene->Field<QLineEdit>(u"Startguthaben:"_s), u"-100"_s);
        auto* day = m_scene->Window.findChild<cDayEdit*>();
        day->selectAll();
        QTest::keyClicks(day, u"01.01.2026"_s);
        QTest::keyClick(day, Qt::Key_Tab);
        QTest::keyClicks(&m_scene->Field<QPlainTextEdit>(u"Kontonummern für Import:"_s), u"DE99 1"_s);
        m_scene->Window.reject();
        QVERIFY(!m_scene->Window.isVisible());
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->Id)->EntryAccount, u"Hauskonto"_s);
        QCOMPARE(m_scene->Book.Data.GetStartGuthaben(u"Hauskonto"_s)->EntryValue, 10000);
        QCOMPARE(m_scene->Book.Data.GetStartGuthaben(u"Hauskonto"_s)->EntryDate, QDate(2026, 1, 1));
        QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::BankNumber.Of(u"DE991"_s)), u"Hauskonto"_s);
        QCOMPARE(m_scene->Book.Data.Journal().UndoName(), u"Konto 'Girokonto' umbenannt"_s);
    }

    void ChangesElsewhereLeaveWhatIsTyped()
    {
        QVERIFY(m_scene->Window.Select(food));
        QTest::keyClicks(&m_scene->Field<QLineEdit>(u"Bemerkung:"_s), u"neu"_s);
        m_scene->Book.Add([](cEntryItem&) {});
        m_scene->Manager.Refresh();
        QCOMPARE(m_scene->Field<QLineEdit>(u"Bemerkung:"_s).text(), u"neu"_s);
        QCOMPARE(m_scene->Manager.Categories().IndexOf(food).siblingAtColumn(4).data().toString(), u"2"_s);
        QCOMPARE(m_scene->Selected(), food);
    }

    void BranchesStayOpenUntilNextTime()
    {
        m_scene->Tree().expand(m_scene->Manager.Categories().IndexOf(u"Auto"_s));
        m_scene->Window.reject();
        const frmKategorie other(m_scene->Manager);
        auto* tree = qobject_cast<cTemplateTree*>(other.findChild<QTabWidget*>()->widget(0));
        QVERIFY(tree->isExpanded(m_scene->Manager.Categories().IndexOf(u"Auto"_s)));
        QVERIFY(!tree->isExpanded(m_scene->Manager.Categories().IndexOf(u"Haushalt"_s)));
    }

    void EverybodyCanUseIt()
    {
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haushalt; Altes"_s; });
        m_scene->Manager.Refresh();
        for (const QString& line : {food, u"Auto"_s, u"Haushalt; Altes"_s, u"Girokonto"_s}) {
            QVERIFY(m_scene->Window.Select(line));
            RunQueued();
            QCOMPARE(modWindowFaults::All(m_scene->Window).join(u"; "), QString());
        }
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmKategorie, QApplication)
#include "testFrmKategorie.moc"
