#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/main/cMainModel.h"
#include "views/sheet/modRowDrag.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/cBackBar.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cViewBar.h"
#include "windows/main/frmMain.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cElidedText.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

class cScene
{
public:
    cScene()
    {
        First = Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Wocheneinkauf"_s; });
        Second = Book.Add([](cEntryItem& entry) {
            entry.EntryAccount = u"Bargeld"_s;
            entry.EntryDate = QDate(2026, 3, 12);
        });
        Window.RestoreLayout();
        Window.show();
        Model.RestoreView(false);
        QTest::qWait(5);
        modWindowHands::Bring(Window);
        Tree().setFocus();
    }

    cEntryTree& Tree() { return *Window.findChild<cEntryTree*>(); }
    void Select(int row) { Tree().setCurrentIndex(Model.Entries().index(row, 0)); }

    cTestBook Book;
    cFakeNavigator Navigator;
    cMainModel Model{Book.Tools, {Book.Configuration, Book.Shell, Navigator, Book.Path()}};
    frmMain Window{Model};
    cEntryItem First;
    cEntryItem Second;
};

} // namespace

class testFrmMain final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KeysReachTheCommands();
    void DeleteInAFieldDeletesText();
    void ClickOnATagFilters();
    void SelectionSurvivesARefresh();
    void DeletingGoesOnWithTheNextLine();
    void SavedEntryIsTheOnlyOneSelected();
    void NewWindowsFitTheScreen();
    void ColumnLayoutIsKept();
    void ClosedGroupsStayClosed();
    void PageInFrontIsKept();
    void ListIsReadWhenItComesInSight();
    void ClickOnAnAccountFilters();
    void FreePeriodOpensTheDayFields();
    void CellsAreTypedInTheList();
    void BadAmountStaysInItsCell();
    void ClickElsewhereStoresTheCell();
    void RowsGoToTheClipboard();
    void RowsAreDropped_data();
    void RowsAreDropped();
    void AnotherAccountBeginsOnTheSameDay();
    void MessageStandsInPlaceOfTheReminder();
    void DayIsJumpedTo();
    void WayBackFromASelection();
    void PlaceIsInReach_data();
    void PlaceIsInReach();
};

void testFrmMain::KeysReachTheCommands()
{
    cScene scene;
    QTest::keyClick(&scene.Tree(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(&scene.Tree(), Qt::Key_F5);
    QTest::keyClick(&scene.Tree(), Qt::Key_E, Qt::ControlModifier); // nothing is selected
    scene.Select(1);
    QTest::keyClick(&scene.Tree(), Qt::Key_E, Qt::ControlModifier);
    QTest::keyClick(&scene.Tree(), Qt::Key_Return);
    const QString second = u"Eintrag %1 "_s.arg(scene.Second.ID) + modDate::ToIso(scene.Second.EntryDate);
    QCOMPARE(scene.Navigator.Opened, QStringList({u"neu"_s, u"neu"_s, second, second}));
    scene.Navigator.Opened.clear();
    scene.Book.User.Answers = {eAnswer::Yes};
    QTest::keyClick(&scene.Tree(), Qt::Key_Delete);
    QCOMPARE(scene.Book.Data.CountEntries(), 1);
    scene.Select(0);
    scene.Window.ShowPage(frmMain::ePage::Statements);
    QTest::keyClick(&scene.Window, Qt::Key_Delete); // the list is not in front
    QCOMPARE(scene.Book.Data.CountEntries(), 1);
    QTest::keyClick(&scene.Window, Qt::Key_Q, Qt::AltModifier);
    QCOMPARE(scene.Navigator.Opened, QStringList{u"Ende"_s});
}

void testFrmMain::DeleteInAFieldDeletesText()
{
    cScene scene;
    scene.Select(0);
    const QList<QLineEdit*> edits = scene.Window.findChildren<QLineEdit*>();
    auto* filter =
        *std::find_if(edits.begin(), edits.end(), [](const auto* edit) { return edit->isClearButtonEnabled(); });
    filter->setFocus();
    QTest::keyClicks(filter, u"wochen"_s);
    QTest::qWait(5);
    QCOMPARE(scene.Model.Entries().rowCount(), 1);
    QTest::keyClick(filter, Qt::Key_Home);
    QTest::keyClick(filter, Qt::Key_Delete);
    QCOMPARE(filter->text(), u"ochen"_s);
    QVERIFY(scene.Book.User.Asked.isEmpty());
}

void testFrmMain::ClickOnATagFilters()
{
    cScene scene;
    scene.Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"#kino Karten"_s; });
    scene.Model.BookChanged();
    const auto click = [&] {
        for (int row = 0; row < scene.Model.Entries().rowCount(); ++row) {
            const QModelIndex cell = scene.Model.Entries().index(row, cEntryListModel::Description);
            if (cell.data().toString().startsWith(u'#')) {
                const QRect place = scene.Tree().visualRect(cell);
                const QPoint label(place.left() + 4 * scene.Tree().fontMetrics().averageCharWidth(),
                                   place.center().y());
                QTest::mouseClick(scene.Tree().viewport(), Qt::LeftButton, Qt::NoModifier, label);
            }
        }
        QTest::qWait(5);
    };
    click();
    QCOMPARE(scene.Model.Entries().rowCount(), 1);
    QCOMPARE(scene.Model.View().Filter, u"#kino"_s);
    click();
    QCOMPARE(scene.Model.Entries().rowCount(), 3);
}

void testFrmMain::SelectionSurvivesARefresh()
{
    cScene scene;
    scene.Select(1);
    scene.Book.Add([](cEntryItem& entry) { entry.EntryDate = QDate(2026, 1, 1); });
    scene.Model.BookChanged();
    QCOMPARE(scene.Tree().SelectedKeys(), QList<cEntryListModel::cKey>({{scene.Second.ID, scene.Second.EntryDate}}));
    QCOMPARE(scene.Tree().currentIndex().row(), 2);
    scene.Model.ChooseGrouping(u"Nach Monat"_s);
    QCOMPARE(scene.Tree().SelectedKeys().size(), 1);
    QVERIFY(scene.Tree().isExpanded(scene.Model.Entries().index(0, 0)));
}

void testFrmMain::DeletingGoesOnWithTheNextLine()
{
    cScene scene;
    for (int day = 1; day <= 3; ++day) {
        scene.Book.Add([day](cEntryItem& entry) { entry.EntryDate = QDate(2026, 1, day); });
    }
    scene.Model.BookChanged();
    scene.Select(1);
    scene.Book.User.Answers = {eAnswer::Yes};
    QTest::keyClick(&scene.Tree(), Qt::Key_Delete);
    QCOMPARE(scene.Model.Entries().KeyAt(scene.Tree().currentIndex()).Day, QDate(2026, 1, 3));
    QVERIFY(scene.Tree().SelectedKeys().isEmpty());
}

// Saved with Ctrl+Enter: the key held down is not meant for the list.
void testFrmMain::SavedEntryIsTheOnlyOneSelected()
{
    cScene scene;
    scene.Select(0);
    QTest::keyPress(&scene.Window, Qt::Key_Control, Qt::ControlModifier);
    scene.Window.ShowEntry({scene.Second.ID, scene.Second.EntryDate});
    QTest::keyRelease(&scene.Window, Qt::Key_Control);
    QCOMPARE(scene.Tree().SelectedKeys(), QList<cEntryListModel::cKey>({{scene.Second.ID, scene.Second.EntryDate}}));
}

void testFrmMain::NewWindowsFitTheScreen()
{
    const QRect screen(0, 0, 1024, 768);
    QVERIFY(screen.contains(QRect({}, modPlace::Fitting({1230, 850}, screen))));
    QCOMPARE(modPlace::Fitting({600, 400}, screen), QSize(600, 400));
    // Beside another one, or as little over it as the screen allows.
    const QRect dialog(300, 100, 200, 300);
    QCOMPARE(modPlace::Beside({250, 80, 400, 300}, dialog, screen), QPoint(500, 80));
    QCOMPARE(modPlace::Beside({250, 80, 400, 300}, dialog.translated(300, 0), screen), QPoint(200, 80));
    QCOMPARE(modPlace::Beside({250, 80, 900, 300}, dialog, screen), QPoint(124, 80));
}

void testFrmMain::ColumnLayoutIsKept()
{
    cScene scene;
    scene.Tree().SetLayoutText(u"6,90,1|0,80,1|1,70,0|2,150,1|3,120,1|4,0,1|5,100,1|7,100,1|sort,6,1"_s);
    const QString layout = scene.Tree().LayoutText();
    QVERIFY(layout.startsWith(u"6,90,1|0,80,1|1,70,0|"_s));
    scene.Window.close();
    QCOMPARE(scene.Book.Settings->Get(modSettingKey::MainList), layout);
    scene.Model.ResetView();
    QVERIFY(scene.Tree().LayoutText().startsWith(u"0,"_s));
}

void testFrmMain::ClosedGroupsStayClosed()
{
    cScene scene;
    scene.Model.ChooseGrouping(u"Nach Konto"_s);
    const auto group = [&](int row) { return scene.Model.Entries().index(row, 0); };
    const QString closed = group(0).data(cEntryListModel::NameRole).toString();
    scene.Tree().collapse(group(0));
    scene.Model.BookChanged();
    QVERIFY(!scene.Tree().isExpanded(group(0)));
    QVERIFY(scene.Tree().isExpanded(group(1)));
    scene.Window.SaveLayout();
    frmMain again(scene.Model);
    again.RestoreLayout();
    scene.Model.RestoreView(false);
    auto& tree = *again.findChild<cEntryTree*>();
    QCOMPARE(group(0).data(cEntryListModel::NameRole).toString(), closed);
    QVERIFY(!tree.isExpanded(group(0)));
    QVERIFY(tree.isExpanded(group(1)));
    scene.Model.ResetView();
    scene.Model.ChooseGrouping(u"Nach Konto"_s);
    QVERIFY(tree.isExpanded(group(0)));
}

void testFrmMain::PageInFrontIsKept()
{
    cScene scene;
    scene.Window.ShowPage(frmMain::ePage::Statements);
    scene.Window.SaveLayout();
    frmMain usual(scene.Model);
    usual.ShowToday();
    QCOMPARE(usual.Page(), frmMain::ePage::Overview);
    scene.Book.Settings->SetBool(modSettingKey::StartWithOverview, false);
    frmMain again(scene.Model);
    again.ShowToday();
    QCOMPARE(again.Page(), frmMain::ePage::Statements);
}

// What nobody sees is not read, and what does not need the page in front reads it all the same.
void testFrmMain::ListIsReadWhenItComesInSight()
{
    cScene scene;
    cMainModel model(scene.Book.Tools,
                     {scene.Book.Configuration, scene.Book.Shell, scene.Navigator, scene.Book.Path()});
    frmMain window(model);
    window.TakeStartPage();
    QCOMPARE(window.Page(), frmMain::ePage::Overview);
    model.PutOffList();
    model.RestoreView(false);
    window.ShowToday();
    const auto& tree = *window.findChild<cEntryTree*>();
    QCOMPARE(tree.model()->rowCount(), 0);
    model.BookChanged();
    QCOMPARE(tree.model()->rowCount(), 0);
    window.ShowEntry({scene.First.ID, scene.First.EntryDate});
    QCOMPARE(tree.model()->rowCount(), 2);
    model.PutOffList();
    QCOMPARE(model.Entries().rowCount(), 2);
    model.PutOffList();
    model.ChooseAccount(u"Bargeld"_s);
    QCOMPARE(tree.model()->rowCount(), 2);
    window.ShowPage(frmMain::ePage::Entries);
    QCOMPARE(tree.model()->rowCount(), 1);
}

void testFrmMain::ClickOnAnAccountFilters()
{
    cScene scene;
    QTreeView* accounts = nullptr;
    for (QTreeView* view : scene.Window.findChildren<QTreeView*>()) {
        accounts = view == &scene.Tree() ? accounts : view;
    }
    const QRect row = accounts->visualRect(scene.Model.AccountList().index(4, 0));
    QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {}, row.center());
    QCOMPARE(scene.Model.View().Account, u"Bargeld"_s);
    QCOMPARE(scene.Model.Entries().rowCount(), 1);
    QTest::mouseDClick(accounts->viewport(), Qt::LeftButton, {}, row.center());
    QCOMPARE(scene.Model.View().Account, modWord::AlleKonten);
    scene.Model.ChooseAccount(u"Bargeld"_s);
    const cAccountListModel& list = scene.Model.AccountList();
    QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {},
                      accounts->visualRect(list.index(list.rowCount() - 1, 0)).center()); // the total
    QCOMPARE(scene.Model.View().Account, modWord::AlleKonten);
}

void testFrmMain::FreePeriodOpensTheDayFields()
{
    cScene scene;
    const QList<cDayEdit*> days = scene.Window.findChild<cViewBar*>()->findChildren<cDayEdit*>();
    QVERIFY(days.constFirst()->isReadOnly());
    QTest::keyClick(days.constFirst(), Qt::Key_Up);
    QCOMPARE(scene.Model.ShownRange().Start, QDate(2026, 1, 1));
    scene.Model.ChoosePeriod(modWord::FreierZeitraum);
    QVERIFY(!days.constFirst()->isReadOnly());
    days.constLast()->setFocus();
    days.constLast()->selectAll();
    QTest::keyClicks(days.constLast(), u"11.03.2026"_s);
    QCOMPARE(scene.Model.ShownRange().End, QDate(2026, 12, 31)); // not before the whole day is typed
    QTest::keyClick(days.constLast(), Qt::Key_Tab);
    QCOMPARE(scene.Model.ShownRange().End, QDate(2026, 3, 11));
    QCOMPARE(scene.Model.Entries().rowCount(), 1);
    days.constLast()->setFocus();
    days.constLast()->setText(u"irgendwann"_s);
    QTest::keyClick(days.constLast(), Qt::Key_Tab);
    QVERIFY(modBadField::IsMarked(*days.constLast()));
    QCOMPARE(scene.Model.ShownRange().End, QDate(2026, 3, 11));
    scene.Model.ChoosePeriod(modWord::AlleBuchungen);
    QVERIFY(!modBadField::IsMarked(*days.constLast()));
    QCOMPARE(days.constFirst()->text(), QString());
}

void testFrmMain::WayBackFromASelection()
{
    cScene scene;
    auto& bar = *scene.Window.findChild<cBackBar*>();
    QTest::keyClick(&scene.Tree(), Qt::Key_Left, Qt::AltModifier); // there is no way back yet
    QVERIFY(!bar.isVisible());
    QCOMPARE(scene.Window.Page(), frmMain::ePage::Entries);
    scene.Model.ShowEntries({u"Ausgaben"_s, modWord::Ausgabe, u"Bargeld"_s, {}});
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.findChild<cElidedText*>()->accessibleName(), u"Ausgaben"_s);
    QCOMPARE(scene.Model.Entries().Sums().Count, 1);
    QTest::keyClick(&scene.Tree(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(scene.Window.Page(), frmMain::ePage::Statistics);
    QVERIFY(!bar.isVisible());
    QCOMPARE(scene.Model.Entries().Sums().Count, 2);
}

void testFrmMain::PlaceIsInReach_data()
{
    const cTestRows<QRect, QRect> row("Place", "Shown");
    const QRect left(100, 100, 800, 600);
    row("on the first screen", left, left);
    row("on the second screen", left.translated(1400, 0), left.translated(1400, 0));
    row("half outside", left.translated(-700, 300), left.translated(-700, 300));
    row("screen is gone", left.translated(5000, 0), QRect(240, 200, 800, 600));
    row("edge above the screen", left.translated(0, -400), QRect(240, 200, 800, 600));
    row("too large for what is left", QRect(5000, 0, 3000, 2000), QRect(0, 0, 1280, 1000));
}

void testFrmMain::PlaceIsInReach()
{
    QFETCH(QRect, Place);
    QFETCH(QRect, Shown);
    QCOMPARE(modPlace::Visible(Place, {QRect(0, 0, 1280, 1000), QRect(1280, 0, 1280, 1000)}), Shown);
}

void testFrmMain::CellsAreTypedInTheList()
{
    cScene scene;
    scene.Select(0);
    const auto type = [](const QString& text, Qt::Key key) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), key);
        QTest::qWait(5);
    };
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    type({}, Qt::Key_Tab); // the category stays
    type(u"Markt"_s, Qt::Key_Tab);
    type(u"12,50+1"_s, Qt::Key_Return);
    const cEntryItem stored = scene.Book.Data.LoadEntry(scene.First.ID).value_or(cEntryItem{});
    QCOMPARE(stored.EntryCategory, scene.First.EntryCategory);
    QCOMPARE(stored.EntryDescription, u"Markt"_s);
    QCOMPARE(stored.EntryValue, 1350);
    QCOMPARE(scene.Tree().currentIndex().column(), int(cEntryListModel::Amount));
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    type(u"99"_s, Qt::Key_Escape);
    QCOMPARE(scene.Book.Data.LoadEntry(scene.First.ID)->EntryValue, 1350);
    QVERIFY(scene.Tree().hasFocus());
    scene.Model.Execute(modCommand::Undo);
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z,
                    Qt::ControlModifier); // with nothing typed it means the book
    QCOMPARE(scene.Book.Data.LoadEntry(scene.First.ID), scene.First);
    QVERIFY(scene.Book.Data.SetStartGuthaben(u"Bargeld"_s, 500, QDate(2026, 3, 11))); // between the two
    scene.Model.BookChanged();
    scene.Tree().setCurrentIndex(scene.Model.Entries().index(2, cEntryListModel::Category));
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    type({}, Qt::Key_Backtab);
    type(u"7"_s, Qt::Key_Backtab); // of a start balance nothing else can be typed
    type(u"8"_s, Qt::Key_Return);
    QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Bargeld"_s)->EntryValue, 700);
    QCOMPARE(scene.Book.Data.LoadEntry(scene.First.ID)->EntryValue, 800);
}

// It is stored, and what was clicked stays clicked.
void testFrmMain::ClickElsewhereStoresTheCell()
{
    cScene scene;
    scene.Tree().setCurrentIndex(scene.Model.Entries().index(0, cEntryListModel::Description));
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), u"Markt"_s);
    const QRect other = scene.Tree().visualRect(scene.Model.Entries().index(1, 0));
    QTest::mouseClick(scene.Tree().viewport(), Qt::LeftButton, {}, other.center());
    QTest::qWait(5);
    QCOMPARE(scene.Book.Data.LoadEntry(scene.First.ID)->EntryDescription, u"Markt"_s);
    QCOMPARE(scene.Model.Selection().size(), 1);
    QCOMPARE(scene.Model.Selection().first().ID, scene.Second.ID);
}

void testFrmMain::BadAmountStaysInItsCell()
{
    cScene scene;
    scene.Tree().setCurrentIndex(scene.Model.Entries().index(0, cEntryListModel::Amount));
    QTest::keyClick(&scene.Tree(), Qt::Key_F2);
    QPointer<QWidget> field = QApplication::focusWidget();
    QTest::keyClicks(field, u"zwei"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::qWait(5);
    QVERIFY(field != nullptr && field->hasFocus() && modBadField::IsMarked(*field));
    QCOMPARE(qobject_cast<QLineEdit*>(field)->text(), u"zwei"_s);
    QVERIFY(!field->accessibleName().isEmpty());
}

void testFrmMain::RowsGoToTheClipboard()
{
    cScene scene;
    scene.Tree().selectAll();
    scene.Window.CopyRows();
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(1).contains(u"Wocheneinkauf\t"_s), qPrintable(lines.at(1)));
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

void testFrmMain::RowsAreDropped_data()
{
    // An empty target: not taken.
    const cTestRows<bool, QString, QString> row("isAccount", "grouping", "target");
    row("on an account", true, u"Keine Gruppierung"_s, u"Bargeld"_s);
    row("on a category", false, u"Nach Kategorie"_s, u"Haushalt; Lebensmittel"_s);
    row("on another group", false, u"Nach Monat"_s, {});
}

void testFrmMain::RowsAreDropped()
{
    QFETCH(bool, isAccount);
    QFETCH(QString, grouping);
    QFETCH(QString, target);
    cScene scene;
    scene.Model.ChooseGrouping(grouping);
    QTreeView& tree = isAccount ? *scene.Window.findChild<cAccountPanel*>()->findChild<QTreeView*>() : scene.Tree();
    const QModelIndex index = isAccount ? scene.Model.AccountList().index(4, 0) // below the group of the same name
                                        : scene.Model.Entries().index(0, 0);
    const QList<cEntryListModel::cKey> rows{{scene.First.ID, scene.First.EntryDate}};
    QMimeData data;
    data.setData(modRowDrag::Format, modRowDrag::ToBytes(rows));
    const auto dropped = isAccount ? std::make_unique<QSignalSpy>(&scene.Window, &frmMain::RowsDropped)
                                   : std::make_unique<QSignalSpy>(&scene.Window, &frmMain::RowsRegrouped);
    const QPoint place = tree.visualRect(index).center();
    QCOMPARE(modWindowHands::Drop(*tree.viewport(), place, data), !target.isEmpty());
    QTest::qWait(5);
    QCOMPARE(dropped->size(), target.isEmpty() ? 0 : 1);
    QCOMPARE(target.isEmpty() || dropped->first().at(0).value<QList<cEntryListModel::cKey>>() == rows, true);
    QCOMPARE(target.isEmpty() ? target : dropped->first().at(1).toString(), target);
    QDropEvent aside(place, Qt::CopyAction, &data, Qt::LeftButton, {}); // beside the list, at its header
    QApplication::sendEvent(&tree, &aside);
    QCOMPARE(dropped->size(), target.isEmpty() ? 0 : 1);
}

void testFrmMain::AnotherAccountBeginsOnTheSameDay()
{
    cScene scene;
    for (int month = 0; month < 300; ++month) {
        scene.Book.Add([month](cEntryItem& entry) { entry.EntryDate = QDate(2010, 1, 1).addMonths(month); });
        scene.Book.Add([month](cEntryItem& entry) {
            entry.EntryDate = QDate(2010, 1, 2).addMonths(month);
            entry.EntryAccount = u"Bargeld"_s;
        });
    }
    scene.Model.ChoosePeriod(modWord::AlleBuchungen);
    scene.Tree().ScrollTo(QDate(2015, 6, 1));
    const auto top = [&] { return scene.Model.Entries().KeyAt(scene.Tree().indexAt(QPoint())).Day; };
    scene.Model.ChooseAccount(u"Girokonto"_s);
    const QDate before = top();
    QVERIFY2(before.year() == 2014 || before.year() == 2015, qPrintable(before.toString(Qt::ISODate)));
    scene.Model.ChooseAccount(u"Bargeld"_s);
    QCOMPARE(top(), before.addDays(1));
    scene.Model.ChooseGrouping(u"Nach Monat"_s); // the day is in sight below its head, not the first line
    QCOMPARE(top(), QDate());
    const QModelIndex head = scene.Tree().indexAt(QPoint());
    QCOMPARE(scene.Model.Entries().KeyAt(scene.Model.Entries().index(0, 0, head)).Day, before.addDays(1));
}

void testFrmMain::MessageStandsInPlaceOfTheReminder()
{
    cScene scene;
    auto* reminder = scene.Window.findChild<QToolButton*>(u"cmdErinnerung"_s);
    Q_EMIT scene.Model.Told(u"Dupliziert"_s);
    scene.Window.ShowReminder(u"Heute fällig"_s);
    QVERIFY(!reminder->isVisible());
    scene.Window.statusBar()->clearMessage();
    QVERIFY(reminder->isVisible());
}

void testFrmMain::DayIsJumpedTo()
{
    cScene scene;
    scene.Window.AskDay();
    QTest::keyClicks(QApplication::focusWidget(), u"12.3."_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(scene.Model.Selection().size(), 1);
    QCOMPARE(scene.Model.Selection().first().ID, scene.Second.ID);
    QVERIFY(scene.Tree().hasFocus());
    scene.Window.AskDay();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(scene.Tree().hasFocus());
}

TEST_CLASS(testFrmMain, QApplication)
#include "testFrmMain.moc"
