#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/queued.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"
#include "views/sheet/modRowDrag.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/cBackBar.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cViewBar.h"
#include "windows/main/frmMain.h"
#include "windows/overview/cCardLine.h"
#include "windows/overview/cFirstStepsView.h"
#include "windows/overview/cOverviewCardView.h"
#include "windows/overview/frmUebersicht.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cElidedText.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene
{
    cScene()
    {
        First = Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Wocheneinkauf"_s; });
        Second = Book.Add({.Day = QDate(2026, 3, 12), .Account = u"Bargeld"_s});
        Window.RestoreLayout();
        Window.show();
        Model.RestoreView(false);
        RunQueued();
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
    void init() { m_scene.emplace(); }

    void KeysReachTheCommands()
    {
        QTest::keyClick(&m_scene->Tree(), Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F5);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_E, Qt::ControlModifier); // nothing is selected
        m_scene->Select(1);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_E, Qt::ControlModifier);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Return);
        const QString second = u"Eintrag %1 "_s.arg(m_scene->Second.ID) + modDate::ToIso(m_scene->Second.EntryDate);
        QCOMPARE(m_scene->Navigator.Opened, QStringList({u"neu"_s, u"neu"_s, second, second}));
        m_scene->Navigator.Opened.clear();
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Delete);
        QCOMPARE(m_scene->Book.Data.CountEntries(), 1);
        m_scene->Select(0);
        m_scene->Window.ShowPage(frmMain::ePage::Statements);
        QTest::keyClick(&m_scene->Window, Qt::Key_Delete); // the list is not in front
        QCOMPARE(m_scene->Book.Data.CountEntries(), 1);
        QTest::keyClick(&m_scene->Window, Qt::Key_Q, Qt::AltModifier);
        QCOMPARE(m_scene->Navigator.Opened, QStringList{u"Ende"_s});
    }

    void DeleteInAFieldDeletesText()
    {
        m_scene->Select(0);
        const QList<QLineEdit*> edits = m_scene->Window.findChildren<QLineEdit*>();
        auto* filter =
            *std::find_if(edits.begin(), edits.end(), [](const auto* edit) { return edit->isClearButtonEnabled(); });
        filter->setFocus();
        QTest::keyClicks(filter, u"wochen"_s);
        RunQueued();
        QCOMPARE(m_scene->Model.Entries().rowCount(), 1);
        QTest::keyClick(filter, Qt::Key_Home);
        QTest::keyClick(filter, Qt::Key_Delete);
        QCOMPARE(filter->text(), u"ochen"_s);
        QVERIFY(m_scene->Book.User.Asked.isEmpty());
    }

    void ClickOnATagFilters()
    {
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"#kino Karten"_s; });
        m_scene->Model.BookChanged();
        const auto click = [&] {
            for (int row = 0; row < m_scene->Model.Entries().rowCount(); ++row) {
                const QModelIndex cell = m_scene->Model.Entries().index(row, cEntryListModel::Description);
                if (cell.data().toString().startsWith(u'#')) {
                    const QRect place = m_scene->Tree().visualRect(cell);
                    const QPoint label(place.left() + 4 * m_scene->Tree().fontMetrics().averageCharWidth(),
                                       place.center().y());
                    QTest::mouseClick(m_scene->Tree().viewport(), Qt::LeftButton, Qt::NoModifier, label);
                }
            }
            RunQueued();
        };
        click();
        QCOMPARE(m_scene->Model.Entries().rowCount(), 1);
        QCOMPARE(m_scene->Model.View().Filter, u"#kino"_s);
        click();
        QCOMPARE(m_scene->Model.Entries().rowCount(), 3);
    }

    void SelectionSurvivesARefresh()
    {
        m_scene->Select(1);
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryDate = QDate(2026, 1, 1); });
        m_scene->Model.BookChanged();
        QCOMPARE(m_scene->Tree().SelectedKeys(),
                 QList<cEntryListModel::cKey>({{m_scene->Second.ID, m_scene->Second.EntryDate}}));
        QCOMPARE(m_scene->Tree().currentIndex().row(), 2);
        m_scene->Model.ChooseGrouping(u"Nach Monat"_s);
        QCOMPARE(m_scene->Tree().SelectedKeys().size(), 1);
        QVERIFY(m_scene->Tree().isExpanded(m_scene->Model.Entries().index(0, 0)));
    }

    void DeletingGoesOnWithTheNextLine()
    {
        for (int day = 1; day <= 3; ++day) {
            m_scene->Book.Add([day](cEntryItem& entry) { entry.EntryDate = QDate(2026, 1, day); });
        }
        m_scene->Model.BookChanged();
        m_scene->Select(1);
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Delete);
        QCOMPARE(m_scene->Model.Entries().KeyAt(m_scene->Tree().currentIndex()).Day, QDate(2026, 1, 3));
        QVERIFY(m_scene->Tree().SelectedKeys().isEmpty());
    }

    // Saved with Ctrl+Enter: the key held down is not meant for the list.
    void SavedEntryIsTheOnlyOneSelected()
    {
        m_scene->Select(0);
        QTest::keyPress(&m_scene->Window, Qt::Key_Control, Qt::ControlModifier);
        m_scene->Window.ShowEntry({m_scene->Second.ID, m_scene->Second.EntryDate});
        QTest::keyRelease(&m_scene->Window, Qt::Key_Control);
        QCOMPARE(m_scene->Tree().SelectedKeys(),
                 QList<cEntryListModel::cKey>({{m_scene->Second.ID, m_scene->Second.EntryDate}}));
    }

    void NewWindowsFitTheScreen()
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

    void ColumnLayoutIsKept()
    {
        m_scene->Tree().SetLayoutText(u"6,90,1|0,80,1|1,70,0|2,150,1|3,120,1|4,0,1|5,100,1|7,100,1|sort,6,1"_s);
        const QString layout = m_scene->Tree().LayoutText();
        QVERIFY(layout.startsWith(u"6,90,1|0,80,1|1,70,0|"_s));
        m_scene->Window.close();
        QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::MainList), layout);
        m_scene->Model.ResetView();
        QVERIFY(m_scene->Tree().LayoutText().startsWith(u"0,"_s));
    }

    void ClosedGroupsStayClosed()
    {
        m_scene->Model.ChooseGrouping(u"Nach Konto"_s);
        const auto group = [&](int row) { return m_scene->Model.Entries().index(row, 0); };
        const QString closed = group(0).data(cEntryListModel::NameRole).toString();
        m_scene->Tree().collapse(group(0));
        m_scene->Model.BookChanged();
        QVERIFY(!m_scene->Tree().isExpanded(group(0)));
        QVERIFY(m_scene->Tree().isExpanded(group(1)));
        m_scene->Window.SaveLayout();
        frmMain again(m_scene->Model);
        again.RestoreLayout();
        m_scene->Model.RestoreView(false);
        auto& tree = *again.findChild<cEntryTree*>();
        QCOMPARE(group(0).data(cEntryListModel::NameRole).toString(), closed);
        QVERIFY(!tree.isExpanded(group(0)));
        QVERIFY(tree.isExpanded(group(1)));
        m_scene->Model.ResetView();
        m_scene->Model.ChooseGrouping(u"Nach Konto"_s);
        QVERIFY(tree.isExpanded(group(0)));
    }

    void PageInFrontIsKept()
    {
        m_scene->Window.ShowPage(frmMain::ePage::Statements);
        m_scene->Window.SaveLayout();
        frmMain usual(m_scene->Model);
        usual.ShowToday();
        QCOMPARE(usual.Page(), frmMain::ePage::Overview);
        m_scene->Book.Settings->SetBool(modSettingKey::StartWithOverview, false);
        frmMain again(m_scene->Model);
        again.ShowToday();
        QCOMPARE(again.Page(), frmMain::ePage::Statements);
    }

    // What nobody sees is not read, and what does not need the page in front reads it all the same.
    void ListIsReadWhenItComesInSight()
    {
        cMainModel model(m_scene->Book.Tools,
                         {m_scene->Book.Configuration, m_scene->Book.Shell, m_scene->Navigator, m_scene->Book.Path()});
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
        window.ShowEntry({m_scene->First.ID, m_scene->First.EntryDate});
        QCOMPARE(tree.model()->rowCount(), 2);
        model.PutOffList();
        QCOMPARE(model.Entries().rowCount(), 2);
        model.PutOffList();
        model.ChooseAccount(u"Bargeld"_s);
        QCOMPARE(tree.model()->rowCount(), 2);
        window.ShowPage(frmMain::ePage::Entries);
        QCOMPARE(tree.model()->rowCount(), 1);
    }

    void ClickOnAnAccountFilters()
    {
        QTreeView* accounts = nullptr;
        for (QTreeView* view : m_scene->Window.findChildren<QTreeView*>()) {
            accounts = view == &m_scene->Tree() ? accounts : view;
        }
        const QRect row = accounts->visualRect(m_scene->Model.AccountList().index(4, 0));
        QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(m_scene->Model.View().Account, u"Bargeld"_s);
        QCOMPARE(m_scene->Model.Entries().rowCount(), 1);
        QTest::mouseDClick(accounts->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(m_scene->Model.View().Account, modWord::AlleKonten);
        m_scene->Model.ChooseAccount(u"Bargeld"_s);
        const cAccountListModel& list = m_scene->Model.AccountList();
        QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {},
                          accounts->visualRect(list.index(list.rowCount() - 1, 0)).center()); // the total
        QCOMPARE(m_scene->Model.View().Account, modWord::AlleKonten);
    }

    void FreePeriodOpensTheDayFields()
    {
        const QList<cDayEdit*> days = m_scene->Window.findChild<cViewBar*>()->findChildren<cDayEdit*>();
        QVERIFY(days.constFirst()->isReadOnly());
        QTest::keyClick(days.constFirst(), Qt::Key_Up);
        QCOMPARE(m_scene->Model.ShownRange().Start, QDate(2026, 1, 1));
        m_scene->Model.ChoosePeriod(modWord::FreierZeitraum);
        QVERIFY(!days.constFirst()->isReadOnly());
        days.constLast()->setFocus();
        days.constLast()->selectAll();
        QTest::keyClicks(days.constLast(), u"11.03.2026"_s);
        QCOMPARE(m_scene->Model.ShownRange().End, QDate(2026, 12, 31)); // not before the whole day is typed
        QTest::keyClick(days.constLast(), Qt::Key_Tab);
        QCOMPARE(m_scene->Model.ShownRange().End, QDate(2026, 3, 11));
        QCOMPARE(m_scene->Model.Entries().rowCount(), 1);
        days.constLast()->setFocus();
        days.constLast()->setText(u"irgendwann"_s);
        QTest::keyClick(days.constLast(), Qt::Key_Tab);
        QVERIFY(modBadField::IsMarked(*days.constLast()));
        QCOMPARE(m_scene->Model.ShownRange().End, QDate(2026, 3, 11));
        m_scene->Model.ChoosePeriod(modWord::AlleBuchungen);
        QVERIFY(!modBadField::IsMarked(*days.constLast()));
        QCOMPARE(days.constFirst()->text(), QString());
    }

    void CellsAreTypedInTheList()
    {
        m_scene->Select(0);
        const auto type = [](const QString& text, Qt::Key key) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            QTest::keyClick(QApplication::focusWidget(), key);
            RunQueued();
        };
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        type({}, Qt::Key_Tab); // the category stays
        type(u"Markt"_s, Qt::Key_Tab);
        type(u"12,50+1"_s, Qt::Key_Return);
        const cEntryItem stored = m_scene->Book.Data.LoadEntry(m_scene->First.ID).value_or(cEntryItem{});
        QCOMPARE(stored.EntryCategory, m_scene->First.EntryCategory);
        QCOMPARE(stored.EntryDescription, u"Markt"_s);
        QCOMPARE(stored.EntryValue, 1350);
        QCOMPARE(m_scene->Tree().currentIndex().column(), int(cEntryListModel::Amount));
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        type(u"99"_s, Qt::Key_Escape);
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->First.ID)->EntryValue, 1350);
        QVERIFY(m_scene->Tree().hasFocus());
        m_scene->Model.Execute(modCommand::Undo);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z,
                        Qt::ControlModifier); // with nothing typed it means the book
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->First.ID), m_scene->First);
        QVERIFY(m_scene->Book.Data.SetStartGuthaben(u"Bargeld"_s, 500, QDate(2026, 3, 11))); // between the two
        m_scene->Model.BookChanged();
        m_scene->Tree().setCurrentIndex(m_scene->Model.Entries().index(2, cEntryListModel::Category));
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        type({}, Qt::Key_Backtab);
        type(u"7"_s, Qt::Key_Backtab); // of a start balance nothing else can be typed
        type(u"8"_s, Qt::Key_Return);
        QCOMPARE(m_scene->Book.Data.GetStartGuthaben(u"Bargeld"_s)->EntryValue, 700);
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->First.ID)->EntryValue, 800);
    }

    void BadAmountStaysInItsCell()
    {
        m_scene->Tree().setCurrentIndex(m_scene->Model.Entries().index(0, cEntryListModel::Amount));
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        QPointer<QWidget> field = QApplication::focusWidget();
        QTest::keyClicks(field, u"zwei"_s);
        QTest::keyClick(field, Qt::Key_Return);
        RunQueued();
        QVERIFY(field != nullptr && field->hasFocus() && modBadField::IsMarked(*field));
        QCOMPARE(qobject_cast<QLineEdit*>(field)->text(), u"zwei"_s);
        QVERIFY(!field->accessibleName().isEmpty());
    }

    // It is stored, and what was clicked stays clicked.
    void ClickElsewhereStoresTheCell()
    {
        m_scene->Tree().setCurrentIndex(m_scene->Model.Entries().index(0, cEntryListModel::Description));
        QTest::keyClick(&m_scene->Tree(), Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), u"Markt"_s);
        const QRect other = m_scene->Tree().visualRect(m_scene->Model.Entries().index(1, 0));
        QTest::mouseClick(m_scene->Tree().viewport(), Qt::LeftButton, {}, other.center());
        RunQueued();
        QCOMPARE(m_scene->Book.Data.LoadEntry(m_scene->First.ID)->EntryDescription, u"Markt"_s);
        QCOMPARE(m_scene->Model.Selection().size(), 1);
        QCOMPARE(m_scene->Model.Selection().first().ID, m_scene->Second.ID);
    }

    void RowsGoToTheClipboard()
    {
        m_scene->Tree().selectAll();
        m_scene->Window.CopyRows();
        const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines.at(1).contains(u"Wocheneinkauf\t"_s), qPrintable(lines.at(1)));
        QVERIFY(QGuiApplication::clipboard()->mimeData()->hasHtml());
    }

    void RowsAreDropped_data()
    {
        // An empty target: not taken.
        const cTestRows<bool, QString, QString> row("isAccount", "grouping", "target");
        row("on an account", true, u"Keine Gruppierung"_s, u"Bargeld"_s);
        row("on a category", false, u"Nach Kategorie"_s, u"Haushalt; Lebensmittel"_s);
        row("on another group", false, u"Nach Monat"_s, {});
    }

    void RowsAreDropped()
    {
        QFETCH(bool, isAccount);
        QFETCH(QString, grouping);
        QFETCH(QString, target);
        m_scene->Model.ChooseGrouping(grouping);
        QTreeView& tree =
            isAccount ? *m_scene->Window.findChild<cAccountPanel*>()->findChild<QTreeView*>() : m_scene->Tree();
        const QModelIndex index = isAccount
            ? m_scene->Model.AccountList().index(4, 0) // below the group of the same name
            : m_scene->Model.Entries().index(0, 0);
        const QList<cEntryListModel::cKey> rows{{m_scene->First.ID, m_scene->First.EntryDate}};
        QMimeData data;
        data.setData(modRowDrag::Format, modRowDrag::ToBytes(rows));
        const auto dropped = isAccount ? std::make_unique<QSignalSpy>(&m_scene->Window, &frmMain::RowsDropped)
                                       : std::make_unique<QSignalSpy>(&m_scene->Window, &frmMain::RowsRegrouped);
        const QPoint place = tree.visualRect(index).center();
        QCOMPARE(modWindowHands::Drop(*tree.viewport(), place, data), !target.isEmpty());
        RunQueued();
        QCOMPARE(dropped->size(), target.isEmpty() ? 0 : 1);
        QCOMPARE(target.isEmpty() || dropped->first().at(0).value<QList<cEntryListModel::cKey>>() == rows, true);
        QCOMPARE(target.isEmpty() ? target : dropped->first().at(1).toString(), target);
        QDropEvent aside(place, Qt::CopyAction, &data, Qt::LeftButton, {}); // beside the list, at its header
        QApplication::sendEvent(&tree, &aside);
        QCOMPARE(dropped->size(), target.isEmpty() ? 0 : 1);
    }

    void AnotherAccountBeginsOnTheSameDay()
    {
        for (int month = 0; month < 300; ++month) {
            m_scene->Book.Add([month](cEntryItem& entry) { entry.EntryDate = QDate(2010, 1, 1).addMonths(month); });
            m_scene->Book.Add({.Day = QDate(2010, 1, 2).addMonths(month), .Account = u"Bargeld"_s});
        }
        m_scene->Model.ChoosePeriod(modWord::AlleBuchungen);
        m_scene->Tree().ScrollTo(QDate(2015, 6, 1));
        const auto top = [&] { return m_scene->Model.Entries().KeyAt(m_scene->Tree().indexAt(QPoint())).Day; };
        m_scene->Model.ChooseAccount(u"Girokonto"_s);
        const QDate before = top();
        QVERIFY2(before.year() == 2014 || before.year() == 2015, qPrintable(before.toString(Qt::ISODate)));
        m_scene->Model.ChooseAccount(u"Bargeld"_s);
        QCOMPARE(top(), before.addDays(1));
        m_scene->Model.ChooseGrouping(u"Nach Monat"_s); // the day is in sight below its head, not the first line
        QCOMPARE(top(), QDate());
        const QModelIndex head = m_scene->Tree().indexAt(QPoint());
        QCOMPARE(m_scene->Model.Entries().KeyAt(m_scene->Model.Entries().index(0, 0, head)).Day, before.addDays(1));
    }

    void MessageStandsInPlaceOfTheReminder()
    {
        auto* reminder = m_scene->Window.findChild<QToolButton*>(u"cmdErinnerung"_s);
        Q_EMIT m_scene->Model.Told(u"Dupliziert"_s);
        m_scene->Window.ShowReminder(u"Heute fällig"_s);
        QVERIFY(!reminder->isVisible());
        m_scene->Window.statusBar()->clearMessage();
        QVERIFY(reminder->isVisible());
    }

    void DayIsJumpedTo()
    {
        m_scene->Window.AskDay();
        QTest::keyClicks(QApplication::focusWidget(), u"12.3."_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(m_scene->Model.Selection().size(), 1);
        QCOMPARE(m_scene->Model.Selection().first().ID, m_scene->Second.ID);
        QVERIFY(m_scene->Tree().hasFocus());
        m_scene->Window.AskDay();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(m_scene->Tree().hasFocus());
    }

    void WayBackFromASelection()
    {
        auto& bar = *m_scene->Window.findChild<cBackBar*>();
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Left, Qt::AltModifier); // there is no way back yet
        QVERIFY(!bar.isVisible());
        QCOMPARE(m_scene->Window.Page(), frmMain::ePage::Entries);
        m_scene->Model.ShowEntries({u"Ausgaben"_s, modWord::Ausgabe, u"Bargeld"_s, {}});
        QVERIFY(bar.isVisible());
        QCOMPARE(bar.findChild<cElidedText*>()->accessibleName(), u"Ausgaben"_s);
        QCOMPARE(m_scene->Model.Entries().Sums().Count, 1);
        QTest::keyClick(&m_scene->Tree(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m_scene->Window.Page(), frmMain::ePage::Statistics);
        QVERIFY(!bar.isVisible());
        QCOMPARE(m_scene->Model.Entries().Sums().Count, 2);
    }

    void PlaceIsInReach_data()
    {
        const cTestRows<QRect, QRect> row("Place", "Shown");
        const QRect left(100, 100, 800, 600);
        row("on the first screen", left, left);
        row("on the second screen", left.translated(1400, 0), left.translated(1400, 0));
        row("half outside", left.translated(-700, 300), left.translated(-700, 300));
        row("screen is gone", left.translated(5000, 0), QRect(240, 200, 800, 600));
        row("edge above the screen", left.translated(0, -400), QRect(240, 200, 800, 600));
        row("too large for what is left", QRect(5000, 0, 3000, 2000), QRect(8, 40, 1264, 952));
        row("larger than its screen", QRect(1651, 534, 2460, 690), QRect(1288, 302, 1264, 690));
        row("over both screens", QRect(100, 100, 2300, 600), QRect(100, 100, 2300, 600));
    }

    void PlaceIsInReach()
    {
        QFETCH(QRect, Place);
        QTEST(modPlace::Visible(Place, {QRect(0, 0, 1280, 1000), QRect(1280, 0, 1280, 1000)}), "Shown");
    }

    // With room for the arrow of the column by which the list is sorted.
    void TitlesAreWholeByDefault()
    {
        frmMain& window = m_scene->Window;
        window.resize(window.fontMetrics().averageCharWidth() * 165, 690);
        QTest::qWait(5);
        const QHeaderView& header = *m_scene->Tree().header();
        for (int column = 0; column < header.count(); ++column) {
            QVERIFY2(header.sectionSize(column) >= header.sectionSizeHint(column), qPrintable(QString::number(column)));
        }
    }

    // What must not be lost where the window is small and its type large.
    void FilterAndBalancesStayInSight()
    {
        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryValue = 1234567890; });
        m_scene->Model.BookChanged();
        frmMain& window = m_scene->Window;
        window.resize(1600, 900);
        RunQueued();
        const QList<int> printed = window.EntryColumns();
        const QFontMetrics metrics = window.fontMetrics();
        window.resize(metrics.averageCharWidth() * 85, metrics.height() * 31);
        window.findChild<QSplitter*>()->setSizes({metrics.averageCharWidth() * 10, 1000});
        RunQueued();
        const auto& accounts = *window.findChild<cAccountPanel*>()->findChild<QTreeView*>();
        const int last = accounts.model()->rowCount() - 1;
        const QModelIndex total = accounts.model()->index(last, cAccountListModel::Balance);
        QVERIFY(accounts.visualRect(total).width() >= accounts.sizeHintForIndex(total).width());
        QVERIFY(accounts.viewport()->rect().contains(accounts.visualRect(total)));
        const auto& bar = *window.findChild<cViewBar*>();
        for (const QWidget* field : bar.findChildren<QLineEdit*>()) {
            QTRY_VERIFY(bar.rect().contains(QRect(field->mapTo(&bar, QPoint()), field->size())));
        }
        const int letters = m_scene->Tree().columnWidth(cEntryListModel::Description) / metrics.averageCharWidth();
        QVERIFY2(letters >= 11, qPrintable(QString::number(letters)));
        QVERIFY(m_scene->Tree().isColumnHidden(cEntryListModel::Receipts));
        QCOMPARE(window.EntryColumns(), printed);
    }

    void EmptyBookBeginsWithTheFirstSteps()
    {
        cTestBook book;
        cFakeNavigator navigator;
        cMainModel main{book.Tools, {book.Configuration, book.Shell, navigator, book.Path()}};
        cOutlook outlook{book.Tools};
        cOverviewModel model{book.Tools, {navigator, main, outlook}};
        frmUebersicht page(model);
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        model.Read();
        const auto& steps = *page.findChild<cFirstStepsView*>();
        QVERIFY(steps.isAncestorOf(page.focusWidget()));
        const QWidget* first = page.findChild<cOverviewCardView*>();
        const QWidget* widget = page.focusWidget();
        while (steps.isAncestorOf(widget)) {
            widget = widget->nextInFocusChain();
        }
        while (widget->focusPolicy() == Qt::NoFocus) {
            widget = widget->nextInFocusChain();
        }
        QVERIFY(first->isAncestorOf(widget));
    }

    // One figure that has no room beside its text puts all of them below.
    void LimitsOfACardLookAlike()
    {
        const QList<cOverviewLine> card{{u"Benzin"_s, u"5,00"_s, eOverviewTone::Plain, {}, 10},
                                        {u"Bücher und Zeitschriften"_s, u"30,00"_s, eOverviewTone::Plain, {}, 20},
                                        {u"Summe"_s, u"35,00"_s}};
        const cCardLine petrol(card.at(0), card);
        const cCardLine books(card.at(1), card);
        const cCardLine sum(card.at(2), card);
        const int narrow = petrol.fontMetrics().horizontalAdvance(card.at(1).Text + u"30"_s);
        QCOMPARE(petrol.heightForWidth(narrow), books.heightForWidth(narrow));
        QVERIFY(petrol.heightForWidth(narrow) > petrol.heightForWidth(2 * narrow));
        QCOMPARE(sum.heightForWidth(narrow), sum.heightForWidth(2 * narrow));
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmMain, QApplication)
#include "testFrmMain.moc"
