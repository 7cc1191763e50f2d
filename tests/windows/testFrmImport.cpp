#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/queued.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportReview.h"
#include "windows/statement/cStagedActions.h"
#include "windows/statement/cStagedPanel.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmImportReview.h"
#include "windows/statement/frmZuordnung.h"
#include "windows/widget/cProgressBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSemaphore>
#include <QTimer>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fixture = QStringLiteral(TEST_DATA "/mt940/giro.sta");

struct cScene
{
    cScene()
    {
        Review.View().SetGrouping(0);
        Book.User.Choices = {u"Girokonto"_s, u"Sparkonto"_s};
        Page.ImportFiles({fixture});
        Page.resize(1200, 600);
        modWindowHands::Bring(Page);
        Tree.setFocus();
    }

    void Select(int row)
    {
        Tree.clearSelection();
        Tree.setCurrentIndex(Review.Rows().index(row, 0));
    }
    // Rows of which nobody knows what they are for, in front of the user with the field of the first one open.
    void LeadToDoubtful()
    {
        for (const QString& name : {u"Unbekannt GmbH"_s, u"Niemand KG"_s}) {
            Book.Stage(u"1234567"_s, QDate(2026, 1, 3).addDays(name.size()), -100 * name.size(), name);
        }
        Review.Refresh();
        QCOMPARE(Tree.SelectedIds().size(), 5);
        QTest::keyClick(&Tree, Qt::Key_Return);
        QCOMPARE(Review.Rows().Counts().Open, 2);
        QVERIFY(Field() != nullptr && Field()->hasFocus());
    }

    QComboBox* Field() { return Tree.findChild<QComboBox*>(); }
    QString Cell(int row, int column) { return Review.Rows().index(row, column).data().toString(); }

    cTestBook Book;
    cImportReview Review{Book.Tools};
    frmImport Page{Review};
    cStagedTree& Tree = *Page.findChild<cStagedTree*>();
};

const QDate day(2026, 3, 3);

// The page with three open rows; entries of the book are like the first two, the second one not for certain.
struct cMatchScene : cTestBook
{
    cMatchScene()
    {
        Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        Review.View().SetOpenOnly(false);
        Review.View().SetGrouping(0);
        Spend(day, 2310, u"REWE"_s);
        Spend(day, 5000, u"Schuhe"_s);
        Stage(u"1234567"_s, day, -2310, u"REWE"_s);
        Stage(u"1234567"_s, day, -5000, u"Jana"_s);
        Stage(u"1234567"_s, day, -9900, u"Unbekannt"_s);
        Page.resize(1200, 600);
        modWindowHands::Bring(Page);
        Tree.setFocus();
    }

    void Select(int row) { Tree.setCurrentIndex(Review.Rows().index(row, 0)); }
    QString State(int row) { return Review.Rows().index(row, cStagedListModel::State).data().toString(); }
    QStringList States() { return {State(0), State(1), State(2)}; }

    // Opens the window for the current row with the key, and gives it another one.
    void AssignWith(Qt::Key key)
    {
        HasOpened = false;
        modWindowHands::Bring(Page); // another window may have been in front
        QTimer::singleShot(0, &Page, [key, this] {
            QWidget* window = QApplication::activeModalWidget();
            HasOpened = qobject_cast<frmZuordnung*>(window) != nullptr;
            if (HasOpened) {
                QTest::keyClick(window->findChild<QTreeView*>(), key);
                window->close();
            }
        });
        QTest::keyClick(&Tree, Qt::Key_R, Qt::ControlModifier);
    }

    void Press(Qt::Key key)
    {
        modWindowHands::Bring(Page);
        QTest::keyClick(&Tree, key, Qt::ControlModifier);
    }

    cImportReview Review{Tools};
    frmImport Page{Review};
    cStagedTree& Tree = *Page.findChild<cStagedTree*>();
    bool HasOpened = false;
};

const QString open = u"offen"_s;
const QString booked = u"gebucht"_s;

} // namespace

class testFrmImport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void NamesStayReadableWhereItIsNarrow()
    {
        QVERIFY(!m_scene->Tree.isColumnHidden(cStagedListModel::Reason));
        const int letter = m_scene->Page.fontMetrics().averageCharWidth();
        m_scene->Page.resize(letter * 75, 600);
        QVERIFY(m_scene->Tree.isColumnHidden(cStagedListModel::Reason));
        for (const int column : {cStagedListModel::Counterparty, cStagedListModel::Category}) {
            QVERIFY(m_scene->Tree.columnWidth(column) >= letter * 10);
        }
        QVERIFY(m_scene->Tree.header()->length() <= m_scene->Tree.viewport()->width());
        m_scene->Page.resize(1200, 600);
        QVERIFY(!m_scene->Tree.isColumnHidden(cStagedListModel::Reason));
    }

    void KeysBookAndDelete()
    {
        m_scene->Review.View().SetOpenOnly(false);
        QCOMPARE(m_scene->Tree.SelectedIds().size(), 5); // what was just read waits for Enter
        m_scene->Select(0);
        QTest::keyClick(&m_scene->Tree, Qt::Key_Return);
        QCOMPARE(m_scene->Book.Data.CountEntries(), 1);
        m_scene->Select(1);
        QTest::keyClick(m_scene->Page.findChild<QPlainTextEdit*>(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_scene->Book.Data.CountEntries(), 2);
        m_scene->Select(2);
        QTest::keyClick(&m_scene->Tree, Qt::Key_Delete); // the user says no
        QCOMPARE(m_scene->Review.Rows().rowCount(), 5);
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(&m_scene->Tree, Qt::Key_Delete);
        QCOMPARE(m_scene->Review.Rows().rowCount(), 4);
        QCOMPARE(m_scene->Tree.SelectedIds().size(), 1); // the next row takes its place
    }

    void EnterFindsARowAfterUndo()
    {
        QVERIFY(m_scene->Book.Data.Journal().Undo());
        m_scene->Review.Refresh();
        QCOMPARE(m_scene->Tree.SelectedIds(), QList<int>());
        QVERIFY(m_scene->Book.Data.Journal().Redo());
        m_scene->Review.Refresh();
        QCOMPARE(m_scene->Tree.SelectedIds(), QList<int>{m_scene->Review.Rows().OpenIds().constFirst()});
    }

    void SeveralRowsHandOn()
    {
        cScene scene;
        const QList<int> ids = scene.Review.Rows().OpenIds();
        scene.Tree.SelectIds(ids.mid(1, 2));
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(scene.Tree.SelectedIds(), QList<int>{ids.at(3)});
        // Those of an import that is taken back.
        scene.Tree.SelectIds(ids.mid(3, 2));
        for (const int id : ids.mid(3, 2)) {
            QVERIFY(scene.Book.Data.DeleteImport(id));
        }
        scene.Review.Refresh();
        QCOMPARE(scene.Tree.SelectedIds(), QList<int>{ids.at(0)});
    }

    // Also in the window of one import, which the menu of the main window does not reach.
    void KeptViewHasAKey()
    {
        m_scene->Book.User.Choices = {u"Nur Rewe"_s};
        m_scene->Review.View().SetFilter(u"rewe"_s);
        QVERIFY(m_scene->Review.View().Keep());
        const std::unique_ptr<cImportReview> one = m_scene->Review.StartImportReview();
        frmImportReview window(*one);
        modWindowHands::Bring(window);
        QTest::keyClick(window.findChild<cStagedTree*>(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(one->View().Filter(), u"rewe"_s);
        QCOMPARE(window.findChild<QLineEdit*>()->text(), u"rewe"_s);
    }

    // The keyboard alone, wherever in the row the focus is: letters open the field with what was typed.
    void TypingEditsTheCategory()
    {
        m_scene->Select(0);
        const QModelIndex last = m_scene->Review.Rows().index(4, 0); // what is chosen goes to all that is selected
        m_scene->Tree.selectionModel()->select(last, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClicks(&m_scene->Tree, u"g"_s);
        auto* combo = m_scene->Field();
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->currentText(), u"g"_s);
        QTest::keyClicks(combo, u"eschenke"_s);
        QTest::keyClick(combo, Qt::Key_Return);
        QTRY_VERIFY(m_scene->Cell(0, cStagedListModel::Category).contains(u"geschenke"_s, Qt::CaseInsensitive));
        QCOMPARE(m_scene->Cell(4, cStagedListModel::Category), m_scene->Cell(0, cStagedListModel::Category));
        QCOMPARE(m_scene->Book.Data.CountEntries(), 0); // the first Enter is the field's
        QTRY_VERIFY(m_scene->Field() == nullptr && m_scene->Tree.hasFocus());
        QTest::keyClick(&m_scene->Tree, Qt::Key_Return);
        QCOMPARE(m_scene->Book.Data.CountEntriesOfCategory(u"Freizeit; Geschenke"_s), 2);
    }

    // After what is sure comes what is not: its field is open, and Enter there books it and goes on.
    void EnterLeadsThroughWhatIsNotSure()
    {
        m_scene->LeadToDoubtful();
        QTest::keyClicks(m_scene->Field(), u"geschenke"_s);
        QTest::keyClick(m_scene->Field(), Qt::Key_Return);
        QTRY_COMPARE(m_scene->Review.Rows().Counts().Open, 1);
        QCOMPARE(m_scene->Book.Data.CountEntriesOfCategory(u"Freizeit; Geschenke"_s), 1);
        QTRY_VERIFY(m_scene->Field() != nullptr && m_scene->Field()->hasFocus());
        QTest::keyClicks(m_scene->Field(), u"Ponyhof"_s); // names no category, and the user says no to a new one
        for (const Qt::KeyboardModifier with : {Qt::NoModifier, Qt::ControlModifier, Qt::NoModifier}) {
            m_scene->Book.User.Asked.clear();
            QTest::keyClick(m_scene->Field(), Qt::Key_Return, with); // asks each time
            QTRY_COMPARE(m_scene->Book.User.Asked.size(), 1);
            RunQueued();
            QCOMPARE(m_scene->Book.User.Asked.size(), 1);
            QCOMPARE(m_scene->Review.Rows().Counts().Open, 1);
            QVERIFY(m_scene->Field() != nullptr
                    && m_scene->Field()->currentText() == u"Ponyhof"); // still waits for a category
        }
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClicks(m_scene->Field(), u"Reiten"_s);
        QTest::keyClick(m_scene->Field(), Qt::Key_Return);
        QTRY_COMPARE(m_scene->Book.Data.CountEntriesOfCategory(u"Reiten"_s), 1);
        QCOMPARE(m_scene->Review.Rows().Counts().Open, 0);
    }

    // The row leaves the list with the category that it takes, and its neighbour is selected.
    void EnterBooksTheRowOfTheField_data()
    {
        const cTestRows<Qt::KeyboardModifiers> row("keys");
        row("Enter", Qt::KeyboardModifiers());
        row("Ctrl and Enter", Qt::KeyboardModifiers(Qt::ControlModifier));
    }

    void EnterBooksTheRowOfTheField()
    {
        QFETCH(const Qt::KeyboardModifiers, keys);
        m_scene->LeadToDoubtful();
        QTest::keyClick(m_scene->Field(), Qt::Key_Escape);
        QTRY_VERIFY(m_scene->Field() == nullptr);
        m_scene->Review.View().SetUncategorisedOnly(true);
        m_scene->Review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Category));
        const QList<int> ids = m_scene->Review.Rows().OpenIds();
        QCOMPARE(ids.size(), 2);
        m_scene->Tree.OpenCategory(ids.first());
        QTest::keyClicks(m_scene->Field(), u"geschenke"_s);
        if (keys != Qt::NoModifier) {
            QTest::keyClick(m_scene->Field(), Qt::Key_Escape); // the open list would take the key
        }
        QTest::keyClick(m_scene->Field(), Qt::Key_Return, keys);
        QTRY_COMPARE(m_scene->Book.Data.CountEntriesOfCategory(u"Freizeit; Geschenke"_s), 1);
        QCOMPARE(m_scene->Review.Rows().OpenIds(), ids.mid(1));
    }

    void AnEmptiedFieldBooksNothing_data()
    {
        // last: with Enter
        const cTestRows<QList<Qt::Key>, Qt::KeyboardModifiers> row("keys", "last");
        const Qt::KeyboardModifiers none;
        row("at once", QList{Qt::Key_Return}, none);
        row("without the list", QList{Qt::Key_Escape, Qt::Key_Return}, none);
        row("with a list that is opened", QList{Qt::Key_Escape, Qt::Key_F4, Qt::Key_Return}, none);
        row("the button", {}, none);
        row("Ctrl", QList{Qt::Key_Escape, Qt::Key_Return}, Qt::KeyboardModifiers(Qt::ControlModifier));
    }

    void AnEmptiedFieldBooksNothing()
    {
        QFETCH(const QList<Qt::Key>, keys);
        QFETCH(const Qt::KeyboardModifiers, last);
        m_scene->LeadToDoubtful();
        QTest::keyClick(m_scene->Field(), Qt::Key_Delete);
        for (const Qt::Key key : keys) {
            QTest::keyClick(m_scene->Field(), key, key == Qt::Key_Return ? last : Qt::NoModifier);
            RunQueued(); // what the field tells comes a moment later
        }
        if (keys.isEmpty()) {
            QTest::mouseClick(&modWindowHands::Button(m_scene->Page, u"Buchen"_s), Qt::LeftButton);
        }
        QCOMPARE(m_scene->Review.Rows().Counts().Open, 2);
        QVERIFY(m_scene->Field() != nullptr
                && m_scene->Field()->hasFocus()); // so that the next Enter books nothing either
    }

    void AMenuLeavesAnEmptiedField_data()
    {
        QTest::addColumn<bool>("isMore");
        QTest::newRow("the button") << true;
        QTest::newRow("the right mouse button") << false;
    }

    void AMenuLeavesAnEmptiedField()
    {
        QFETCH(const bool, isMore);
        m_scene->LeadToDoubtful();
        QTest::keyClick(m_scene->Field(), Qt::Key_Delete);
        bool isKept = false;
        QTimer::singleShot(0, &m_scene->Page, [&] {
            RunQueued(); // what the field tells comes a moment later
            isKept = m_scene->Tree.IsFieldOpen() && m_scene->Tree.IsFieldEmpty();
            QApplication::activePopupWidget()->close();
        });
        if (isMore) {
            QTest::mouseClick(&modWindowHands::Button(m_scene->Page, u"Mehr"_s), Qt::LeftButton);
        } else {
            QWidget* list = m_scene->Tree.viewport();
            const QPoint place(1, m_scene->Tree.visualRect(m_scene->Tree.currentIndex()).center().y());
            QTest::mousePress(list, Qt::RightButton, {}, place);
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->mapToGlobal(place));
            QCoreApplication::sendEvent(list, &event);
        }
        QVERIFY(isKept);
    }

    // A yes to a new name books for Enter alone: who wanted something else with the row gets the category only.
    void AnotherCommandBooksNothing_data()
    {
        QTest::addColumn<bool>("isDeclined"); // before
        QTest::newRow("new") << false;
        QTest::newRow("declined") << true;
    }

    void AnotherCommandBooksNothing()
    {
        QFETCH(const bool, isDeclined);
        m_scene->LeadToDoubtful();
        const QList<int> ids = m_scene->Tree.SelectedIds();
        m_scene->Book.User.Asked.clear();
        QTest::keyClicks(m_scene->Field(), u"Ponyhof"_s);
        if (isDeclined) {
            QTest::keyClick(m_scene->Field(), Qt::Key_Return);
            QTRY_COMPARE(m_scene->Book.User.Asked.size(), 1);
            QTRY_VERIFY(m_scene->Field() != nullptr && m_scene->Field()->hasFocus());
        }
        m_scene->Book.User.Asked.clear();
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(m_scene->Field(), Qt::Key_B, Qt::ControlModifier);
        QTRY_COMPARE(m_scene->Book.User.Asked.size(), 1);
        RunQueued();
        QCOMPARE(m_scene->Review.Rows().Counts().Open, 2);
        const QModelIndex row = m_scene->Review.Rows().IndexOf(ids.value(0));
        QCOMPARE(row.siblingAtColumn(cStagedListModel::Category).data().toString(), u"Ponyhof"_s);
        QVERIFY(m_scene->Field() == nullptr);
    }

    // It cannot be chosen, so the row would be booked under what was proposed.
    void AHiddenCategoryBooksNothing()
    {
        cTemplateItem hidden;
        hidden.TemplateCategory = u"Ponyhof"_s;
        hidden.EntryType = modWord::Ausgabe;
        hidden.TemplateVisible = u"0"_s;
        QVERIFY(m_scene->Book.Data.AddNewTemplate(hidden));
        m_scene->LeadToDoubtful();
        QTest::keyClicks(m_scene->Field(), u"Ponyhof"_s);
        QTest::keyClick(m_scene->Field(), Qt::Key_Return);
        QTRY_VERIFY(m_scene->Review.Summary().join(u' ').startsWith(u"Die Kategorie 'Ponyhof' ist ausgeblendet."_s));
        RunQueued();
        QCOMPARE(m_scene->Review.Rows().Counts().Open, 2);
        QTRY_VERIFY(m_scene->Field() != nullptr && m_scene->Field()->currentText() == u"Ponyhof");
    }

    void NewCategoryIsOffered()
    {
        m_scene->Tree.setCurrentIndex(m_scene->Review.Rows().index(0, cStagedListModel::Category));
        QTest::keyClick(&m_scene->Tree, Qt::Key_F2);
        m_scene->Book.User.Asked.clear();
        QTest::keyClicks(m_scene->Field(), u"Ponyhof"_s);
        QTest::keyClick(m_scene->Field(), Qt::Key_Tab); // the user says no, and the text is still there
        QTRY_COMPARE(m_scene->Book.User.Asked.size(), 1);
        QTRY_VERIFY(m_scene->Field() != nullptr && m_scene->Field()->currentText() == u"Ponyhof");
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QTest::keyClicks(m_scene->Field(), u"Ponyhof"_s); // over the selected text
        QTest::keyClick(m_scene->Field(), Qt::Key_Down);
        QTest::keyClick(m_scene->Field(), Qt::Key_Return);
        QTRY_COMPARE(m_scene->Cell(0, cStagedListModel::Category), u"Ponyhof"_s);
    }

    void EnterBooksAGroup()
    {
        m_scene->Review.View().SetGrouping(1);
        cStagedListModel& rows = m_scene->Review.Rows();
        const QModelIndex own = rows.HeadNamed(u"Jonte Sandmeier"_s);
        m_scene->Tree.setCurrentIndex(own);
        QCOMPARE(m_scene->Tree.SelectedIds().size(), 2);
        QTest::keyClick(&m_scene->Tree, Qt::Key_Left);
        QVERIFY(!m_scene->Tree.isExpanded(own));
        m_scene->Review.Refresh();
        const QModelIndex same = rows.HeadNamed(u"Jonte Sandmeier"_s);
        QVERIFY(m_scene->Tree.selectionModel()->isSelected(same) && !m_scene->Tree.isExpanded(same));
        QTest::keyClick(&m_scene->Tree, Qt::Key_Return);
        QCOMPARE(rows.Counts().Open, 3);
        QVERIFY(rows.IsHead(m_scene->Tree.currentIndex())); // the next group waits for Enter
        QTest::keyClick(&m_scene->Tree, Qt::Key_Return);
        QCOMPARE(rows.Counts().Open, 2);
        // The arrow opens and closes without selecting.
        const QModelIndex last = rows.index(rows.rowCount() - 1, 0);
        const QPoint arrow = m_scene->Tree.visualRect(last).topLeft() + QPoint(8, 8);
        QTest::mouseClick(m_scene->Tree.viewport(), Qt::LeftButton, {}, arrow);
        QVERIFY(!m_scene->Tree.isExpanded(last));
    }

    void TheMenuOfTheKeyboard()
    {
        QStringList lines;
        QTimer::singleShot(0, &m_scene->Page, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (const QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
                lines.append(action->isEnabled() ? action->text().remove(u'&') : QString());
            }
            QApplication::activePopupWidget()->close();
        });
        QTest::keyClick(&m_scene->Tree, Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(lines.contains(u"Kategorie für 5 Umsätze…"_s));
        QVERIFY(!lines.contains(u"Zuordnen…"_s)); // takes a single row
    }

    void LeftOutRowsAreTaken()
    {
        m_scene->Page.ImportFiles({fixture});
        auto* duplicates = m_scene->Page.findChild<QListWidget*>();
        QCOMPARE(duplicates->count(), 5);
        QVERIFY(duplicates->isVisible());
        QAbstractButton& take = modWindowHands::Button(m_scene->Page, u"Trotzdem übernehmen"_s);
        QVERIFY(!take.isEnabled());
        duplicates->setCurrentRow(2);
        take.click();
        QCOMPARE(duplicates->count(), 4);
        QCOMPARE(m_scene->Review.Rows().rowCount(), 6);
    }

    void ColumnsAreKept()
    {
        m_scene->Tree.sortByColumn(cStagedListModel::Amount, Qt::DescendingOrder);
        m_scene->Page.hide();
        frmImport other(m_scene->Review);
        QCOMPARE(other.findChild<cStagedTree*>()->LayoutText(), m_scene->Tree.LayoutText());
        QCOMPARE(m_scene->Cell(0, cStagedListModel::Counterparty), u"Werkzeugbau Ammersbek GmbH"_s);
    }

    // The work goes on, so the page must not be reached before it has ended.
    void AClosedBoxComesBack()
    {
        QWidget page;
        page.show();
        cProgressBox box(&page, u"Lesen"_s);
        QSemaphore done;
        bool isBack = false;
        QTimer::singleShot(0, &page, [&] {
            QApplication::activeModalWidget()->close();
            QTimer::singleShot(0, &page, [&] {
                isBack = QApplication::activeModalWidget() != nullptr;
                done.release();
            });
        });
        box.Run([&] { done.acquire(); });
        QVERIFY(isBack && box.IsCancelled());
    }

    // What the work says while it stands still would lie behind it.
    void ABoxAppearsOnlyWithAStep()
    {
        QWidget page;
        page.show();
        cProgressBox box(&page, u"Buchen"_s, 0);
        for (int run = 0; run < 2; ++run) {
            box.showProgressBar(2);
            QCoreApplication::processEvents();
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            box.addProgressValue(1);
            QVERIFY(QApplication::activeModalWidget() != nullptr);
            box.hideProgressBar();
        }
    }

    void EveryButtonHasALetterOrAKey()
    {
        const QList<QAbstractButton*> buttons = m_scene->Page.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            const bool isOwn = button->parentWidget() == &m_scene->Page || button->inherits("QPushButton");
            const bool hasKey = button->toolTip().contains(u"(Strg+"_s); // where no letter is left
            QVERIFY2(!isOwn || hasKey || button->text().contains(u'&'), qPrintable(button->text()));
        }
    }

    void KeysMatchAssignAndRelease() const
    {
        cMatchScene scene;
        scene.Select(1);
        scene.Press(Qt::Key_G);
        QCOMPARE(scene.States(), QStringList({booked, open, open}));
        QVERIFY(scene.Page.findChild<QPlainTextEdit*>()->toPlainText().startsWith(u"Zugeordnet: 1, vorgeschlagen: 1"));
        scene.AssignWith(Qt::Key_Escape);
        QVERIFY(scene.HasOpened);
        QCOMPARE(scene.State(1), open);
        scene.AssignWith(Qt::Key_Return);
        QVERIFY(scene.HasOpened);
        QCOMPARE(scene.State(1), booked);
        scene.Tree.selectAll();
        scene.Press(Qt::Key_L);
        QCOMPARE(scene.States(), QStringList({open, open, open}));
    }

    void DoubleClickAssigns() const
    {
        cMatchScene scene;
        const auto list = scene.Review.StartAssign({scene.Review.Rows().IdAt(scene.Review.Rows().index(1, 0))});
        frmZuordnung window(*list);
        window.show();
        auto& tree = *window.findChild<QTreeView*>();
        const QPoint place = tree.visualRect(list->index(0, cAssignListModel::Description)).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(window.result(), int{QDialog::Accepted});
        QCOMPARE(scene.State(1), booked);
    }

    void EmptyListCannotAssign() const
    {
        cMatchScene scene;
        const auto list = scene.Review.StartAssign({scene.Review.Rows().IdAt(scene.Review.Rows().index(2, 0))});
        frmZuordnung window(*list);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.findChild<QTreeView*>(), Qt::Key_Return);
        QVERIFY(!window.isVisible()); // Enter leaves it
        QCOMPARE(window.result(), int{QDialog::Rejected});
    }

    // What cannot be done has neither a button nor a key.
    void NothingWithoutASelection() const
    {
        cMatchScene scene;
        scene.Tree.clearSelection();
        scene.AssignWith(Qt::Key_Escape);
        RunQueued();
        QVERIFY(!scene.HasOpened);
        const cStagedActions& actions = scene.Page.findChild<cStagedPanel*>()->Actions();
        for (const cStagedActions::eId id : {cStagedActions::Book, cStagedActions::Assign, cStagedActions::Release}) {
            QVERIFY(!actions.Get(id)->isEnabled());
        }
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmImport, QApplication)
#include "testFrmImport.moc"
