#include "base/cProgress.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/windowHands.h"
#include "views/statement/cImportReview.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmImportReview.h"
#include "windows/widget/cProgressBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSemaphore>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fixture = QStringLiteral(TEST_DATA "/mt940/giro.sta");

class cScene
{
public:
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
            cImportEntry row = Book.Data.GetImportEntries().constFirst();
            row.ImportBeneficiary = name;
            row.ImportPurpose = row.ImportBeneficiaryAccount = QString();
            row.ImportValue = -100 * name.size();
            row.ImportDate = row.ImportDate.addDays(name.size());
            QVERIFY(Book.Data.AddNewImportEntry(row));
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

} // namespace

class testFrmImport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NamesStayReadableWhereItIsNarrow()
    {
        cScene scene;
        QVERIFY(!scene.Tree.isColumnHidden(cStagedListModel::Reason));
        const int letter = scene.Page.fontMetrics().averageCharWidth();
        scene.Page.resize(letter * 75, 600);
        QVERIFY(scene.Tree.isColumnHidden(cStagedListModel::Reason));
        for (const int column : {cStagedListModel::Counterparty, cStagedListModel::Category}) {
            QVERIFY(scene.Tree.columnWidth(column) >= letter * 10);
        }
        QVERIFY(scene.Tree.header()->length() <= scene.Tree.viewport()->width());
        scene.Page.resize(1200, 600);
        QVERIFY(!scene.Tree.isColumnHidden(cStagedListModel::Reason));
    }

    void KeysBookAndDelete()
    {
        cScene scene;
        scene.Review.View().SetOpenOnly(false);
        QCOMPARE(scene.Tree.SelectedIds().size(), 5); // what was just read waits for Enter
        scene.Select(0);
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(scene.Book.Data.CountEntries(), 1);
        scene.Select(1);
        QTest::keyClick(scene.Page.findChild<QPlainTextEdit*>(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(scene.Book.Data.CountEntries(), 2);
        scene.Select(2);
        QTest::keyClick(&scene.Tree, Qt::Key_Delete); // the user says no
        QCOMPARE(scene.Review.Rows().rowCount(), 5);
        scene.Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(&scene.Tree, Qt::Key_Delete);
        QCOMPARE(scene.Review.Rows().rowCount(), 4);
        QCOMPARE(scene.Tree.SelectedIds().size(), 1); // the next row takes its place
    }

    void EnterFindsARowAfterUndo()
    {
        cScene scene;
        QVERIFY(scene.Book.Data.Journal().Undo());
        scene.Review.Refresh();
        QCOMPARE(scene.Tree.SelectedIds(), QList<int>());
        QVERIFY(scene.Book.Data.Journal().Redo());
        scene.Review.Refresh();
        QCOMPARE(scene.Tree.SelectedIds(), QList<int>{scene.Review.Rows().OpenIds().constFirst()});
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
        cScene scene;
        scene.Book.User.Choices = {u"Nur Rewe"_s};
        scene.Review.View().SetFilter(u"rewe"_s);
        QVERIFY(scene.Review.View().Keep());
        const std::unique_ptr<cImportReview> one = scene.Review.StartImportReview();
        frmImportReview window(*one);
        modWindowHands::Bring(window);
        QTest::keyClick(window.findChild<cStagedTree*>(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(one->View().Filter(), u"rewe"_s);
        QCOMPARE(window.findChild<QLineEdit*>()->text(), u"rewe"_s);
    }

    void TypingPartOfACategoryFindsIt()
    {
        cScene scene;
        scene.Tree.selectAll();
        scene.Tree.selectionModel()->setCurrentIndex(scene.Review.Rows().index(0, cStagedListModel::Category),
                                                     QItemSelectionModel::NoUpdate);
        QTest::keyClick(&scene.Tree, Qt::Key_F2);
        auto* combo = scene.Field();
        QVERIFY(combo != nullptr && combo->isEditable());
        QTest::keyClicks(combo, u"geschenke"_s);
        QTest::keyClick(combo, Qt::Key_Return);
        // The choice goes to all selected rows.
        QTRY_COMPARE(scene.Cell(0, cStagedListModel::Category), scene.Cell(4, cStagedListModel::Category));
        QVERIFY(scene.Cell(4, cStagedListModel::Category).contains(u"geschenke"_s, Qt::CaseInsensitive));
    }

    // The keyboard alone, wherever in the row the focus is: letters open the field with what was typed.
    void TypingEditsTheCategory()
    {
        cScene scene;
        scene.Select(0);
        QTest::keyClicks(&scene.Tree, u"g"_s);
        auto* combo = scene.Field();
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->currentText(), u"g"_s);
        QTest::keyClicks(combo, u"eschenke"_s);
        QTest::keyClick(combo, Qt::Key_Return);
        QTRY_VERIFY(scene.Cell(0, cStagedListModel::Category).contains(u"geschenke"_s, Qt::CaseInsensitive));
        QCOMPARE(scene.Book.Data.CountEntries(), 0); // the first Enter is the field's
        QTRY_VERIFY(scene.Field() == nullptr && scene.Tree.hasFocus());
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(scene.Book.Data.CountEntries(), 1);
        QVERIFY(scene.Book.Data.GetEntries({}).value(0).EntryCategory.contains(u"Geschenke"_s, Qt::CaseInsensitive));
    }

    // After what is sure comes what is not: its field is open, and Enter there books it and goes on.
    void EnterLeadsThroughWhatIsNotSure()
    {
        cScene scene;
        scene.LeadToDoubtful();
        QTest::keyClicks(scene.Field(), u"geschenke"_s);
        QTest::keyClick(scene.Field(), Qt::Key_Return);
        QTRY_COMPARE(scene.Review.Rows().Counts().Open, 1);
        QCOMPARE(scene.Book.Data.CountEntriesOfCategory(u"Freizeit; Geschenke"_s), 1);
        QTRY_VERIFY(scene.Field() != nullptr && scene.Field()->hasFocus());
        QTest::keyClicks(scene.Field(), u"Ponyhof"_s); // names no category, and the user says no to a new one
        for (const Qt::KeyboardModifier with : {Qt::NoModifier, Qt::ControlModifier, Qt::NoModifier}) {
            scene.Book.User.Asked.clear();
            QTest::keyClick(scene.Field(), Qt::Key_Return, with); // asks each time
            QTRY_COMPARE(scene.Book.User.Asked.size(), 1);
            QTest::qWait(1);
            QCOMPARE(scene.Book.User.Asked.size(), 1);
            QCOMPARE(scene.Review.Rows().Counts().Open, 1);
            QVERIFY(scene.Field() != nullptr
                    && scene.Field()->currentText() == u"Ponyhof"); // still waits for a category
        }
        scene.Book.User.Answers = {eAnswer::Yes};
        QTest::keyClicks(scene.Field(), u"Reiten"_s);
        QTest::keyClick(scene.Field(), Qt::Key_Return);
        QTRY_COMPARE(scene.Book.Data.CountEntriesOfCategory(u"Reiten"_s), 1);
        QCOMPARE(scene.Review.Rows().Counts().Open, 0);
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
        cScene scene;
        scene.LeadToDoubtful();
        QTest::keyClick(scene.Field(), Qt::Key_Escape);
        QTRY_VERIFY(scene.Field() == nullptr);
        scene.Review.View().SetUncategorisedOnly(true);
        scene.Review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Category));
        const QList<int> ids = scene.Review.Rows().OpenIds();
        QCOMPARE(ids.size(), 2);
        scene.Tree.OpenCategory(ids.first());
        QTest::keyClicks(scene.Field(), u"geschenke"_s);
        if (keys != Qt::NoModifier) {
            QTest::keyClick(scene.Field(), Qt::Key_Escape); // the open list would take the key
        }
        QTest::keyClick(scene.Field(), Qt::Key_Return, keys);
        QTRY_COMPARE(scene.Book.Data.CountEntriesOfCategory(u"Freizeit; Geschenke"_s), 1);
        QCOMPARE(scene.Review.Rows().OpenIds(), ids.mid(1));
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
        cScene scene;
        scene.LeadToDoubtful();
        QTest::keyClick(scene.Field(), Qt::Key_Delete);
        for (const Qt::Key key : keys) {
            QTest::keyClick(scene.Field(), key, key == Qt::Key_Return ? last : Qt::NoModifier);
            QTest::qWait(1); // what the field tells comes a moment later
        }
        if (keys.isEmpty()) {
            QTest::mouseClick(&modWindowHands::Button(scene.Page, u"Buchen"_s), Qt::LeftButton);
        }
        QCOMPARE(scene.Review.Rows().Counts().Open, 2);
        QVERIFY(scene.Field() != nullptr && scene.Field()->hasFocus()); // so that the next Enter books nothing either
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
        cScene scene;
        scene.LeadToDoubtful();
        QTest::keyClick(scene.Field(), Qt::Key_Delete);
        bool isKept = false;
        QTimer::singleShot(0, &scene.Page, [&] {
            QTest::qWait(1); // what the field tells comes a moment later
            isKept = scene.Tree.IsFieldOpen() && scene.Tree.IsFieldEmpty();
            QApplication::activePopupWidget()->close();
        });
        if (isMore) {
            QTest::mouseClick(&modWindowHands::Button(scene.Page, u"Mehr"_s), Qt::LeftButton);
        } else {
            QWidget* list = scene.Tree.viewport();
            const QPoint place(1, scene.Tree.visualRect(scene.Tree.currentIndex()).center().y());
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
        cScene scene;
        scene.LeadToDoubtful();
        const QList<int> ids = scene.Tree.SelectedIds();
        scene.Book.User.Asked.clear();
        QTest::keyClicks(scene.Field(), u"Ponyhof"_s);
        if (isDeclined) {
            QTest::keyClick(scene.Field(), Qt::Key_Return);
            QTRY_COMPARE(scene.Book.User.Asked.size(), 1);
            QTRY_VERIFY(scene.Field() != nullptr && scene.Field()->hasFocus());
        }
        scene.Book.User.Asked.clear();
        scene.Book.User.Answers = {eAnswer::Yes};
        QTest::keyClick(scene.Field(), Qt::Key_B, Qt::ControlModifier);
        QTRY_COMPARE(scene.Book.User.Asked.size(), 1);
        QTest::qWait(1);
        QCOMPARE(scene.Review.Rows().Counts().Open, 2);
        const QModelIndex row = scene.Review.Rows().IndexOf(ids.value(0));
        QCOMPARE(row.siblingAtColumn(cStagedListModel::Category).data().toString(), u"Ponyhof"_s);
        QVERIFY(scene.Field() == nullptr);
    }

    // It cannot be chosen, so the row would be booked under what was proposed.
    void AHiddenCategoryBooksNothing()
    {
        cScene scene;
        cTemplateItem hidden;
        hidden.TemplateCategory = u"Ponyhof"_s;
        hidden.EntryType = modWord::Ausgabe;
        hidden.TemplateVisible = u"0"_s;
        QVERIFY(scene.Book.Data.AddNewTemplate(hidden));
        scene.LeadToDoubtful();
        QTest::keyClicks(scene.Field(), u"Ponyhof"_s);
        QTest::keyClick(scene.Field(), Qt::Key_Return);
        QTRY_VERIFY(scene.Review.Summary().join(u' ').startsWith(u"Die Kategorie 'Ponyhof' ist ausgeblendet."_s));
        QTest::qWait(1);
        QCOMPARE(scene.Review.Rows().Counts().Open, 2);
        QTRY_VERIFY(scene.Field() != nullptr && scene.Field()->currentText() == u"Ponyhof");
    }

    void NewCategoryIsOffered()
    {
        cScene scene;
        scene.Tree.setCurrentIndex(scene.Review.Rows().index(0, cStagedListModel::Category));
        QTest::keyClick(&scene.Tree, Qt::Key_F2);
        scene.Book.User.Asked.clear();
        QTest::keyClicks(scene.Field(), u"Ponyhof"_s);
        QTest::keyClick(scene.Field(), Qt::Key_Tab); // the user says no, and the text is still there
        QTRY_COMPARE(scene.Book.User.Asked.size(), 1);
        QTRY_VERIFY(scene.Field() != nullptr && scene.Field()->currentText() == u"Ponyhof");
        scene.Book.User.Answers = {eAnswer::Yes};
        QTest::keyClicks(scene.Field(), u"Ponyhof"_s); // over the selected text
        QTest::keyClick(scene.Field(), Qt::Key_Down);
        QTest::keyClick(scene.Field(), Qt::Key_Return);
        QTRY_COMPARE(scene.Cell(0, cStagedListModel::Category), u"Ponyhof"_s);
    }

    void EnterBooksAGroup()
    {
        cScene scene;
        scene.Review.View().SetGrouping(1);
        cStagedListModel& rows = scene.Review.Rows();
        const QModelIndex own = rows.HeadNamed(u"Jonte Sandmeier"_s);
        scene.Tree.setCurrentIndex(own);
        QCOMPARE(scene.Tree.SelectedIds().size(), 2);
        QTest::keyClick(&scene.Tree, Qt::Key_Left);
        QVERIFY(!scene.Tree.isExpanded(own));
        scene.Review.Refresh();
        const QModelIndex same = rows.HeadNamed(u"Jonte Sandmeier"_s);
        QVERIFY(scene.Tree.selectionModel()->isSelected(same) && !scene.Tree.isExpanded(same));
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(rows.Counts().Open, 3);
        QVERIFY(rows.IsHead(scene.Tree.currentIndex())); // the next group waits for Enter
        QTest::keyClick(&scene.Tree, Qt::Key_Return);
        QCOMPARE(rows.Counts().Open, 2);
        // The arrow opens and closes without selecting.
        const QModelIndex last = rows.index(rows.rowCount() - 1, 0);
        const QPoint arrow = scene.Tree.visualRect(last).topLeft() + QPoint(8, 8);
        QTest::mouseClick(scene.Tree.viewport(), Qt::LeftButton, {}, arrow);
        QVERIFY(!scene.Tree.isExpanded(last));
    }

    void TheMenuOfTheKeyboard()
    {
        cScene scene;
        QStringList lines;
        QTimer::singleShot(0, &scene.Page, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (const QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
                lines.append(action->isEnabled() ? action->text().remove(u'&') : QString());
            }
            QApplication::activePopupWidget()->close();
        });
        QTest::keyClick(&scene.Tree, Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(lines.contains(u"Kategorie für 5 Umsätze…"_s));
        QVERIFY(!lines.contains(u"Zuordnen…"_s)); // takes a single row
    }

    void DroppedFilesAreRead()
    {
        cScene scene;
        QVERIFY(modWindowHands::DropFiles(scene.Page, QPoint(10, 10),
                                          {QUrl::fromLocalFile(fixture), QUrl(u"https://example.org/x.sta"_s)}));
        auto* duplicates = scene.Page.findChild<QListWidget*>();
        QTRY_COMPARE(duplicates->count(), 5);
        QVERIFY(duplicates->isVisible());
        QAbstractButton& take = modWindowHands::Button(scene.Page, u"Trotzdem übernehmen"_s);
        QVERIFY(!take.isEnabled());
        duplicates->setCurrentRow(2);
        take.click();
        QCOMPARE(duplicates->count(), 4);
        QCOMPARE(scene.Review.Rows().rowCount(), 6);
    }

    void ColumnsAreKept()
    {
        cScene scene;
        scene.Tree.sortByColumn(cStagedListModel::Amount, Qt::DescendingOrder);
        scene.Page.hide();
        frmImport other(scene.Review);
        QCOMPARE(other.findChild<cStagedTree*>()->LayoutText(), scene.Tree.LayoutText());
        QCOMPARE(scene.Cell(0, cStagedListModel::Counterparty), u"Werkzeugbau Ammersbek GmbH"_s);
    }

    // The work ends only when the window's own events go on meanwhile.
    void LongReadingKeepsTheProgramAlive()
    {
        QWidget page;
        page.show();
        cProgressBox box(&page, u"Lesen"_s);
        QSemaphore done;
        QTimer::singleShot(0, &page, [&] {
            QVERIFY(QApplication::activeModalWidget() != nullptr); // and nobody can reach the page behind
            done.release();
        });
        box.Run([&] { done.acquire(); });
        QVERIFY(!box.IsCancelled());
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

    void EveryButtonHasALetterOrAKey()
    {
        cScene scene;
        const QList<QAbstractButton*> buttons = scene.Page.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            const bool isOwn = button->parentWidget() == &scene.Page || button->inherits("QPushButton");
            const bool hasKey = button->toolTip().contains(u"(Strg+"_s); // where no letter is left
            QVERIFY2(!isOwn || hasKey || button->text().contains(u'&'), qPrintable(button->text()));
        }
    }
};

TEST_CLASS(testFrmImport, QApplication)
#include "testFrmImport.moc"
