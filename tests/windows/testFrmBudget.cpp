#include "model/cTemplateItem.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/budget/cBudgetModel.h"
#include "windows/budget/cBudgetTable.h"
#include "windows/budget/frmBudget.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cBudgetScene
{
    cBudgetScene() { Form.show(); }

    cTestBook Book;
    cBudgetModel Budget{Book.Tools};
    frmBudget Form{Budget};
};

} // namespace

// The grid as it is worked on with the keys alone.
class testFrmBudget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void TypesWithTheKeys()
    {
        auto* table = m_scene->Form.findChild<cBudgetTable*>();
        table->setCurrentIndex(table->model()->index(1, cBudgetModel::FirstMonth));
        const auto text = [&](int row, int column) {
            return table->model()->index(row, column).data().toString().replace(QChar::Nbsp, u' ');
        };
        const auto editor = [&] {
            const QList<QLineEdit*> edits = table->viewport()->findChildren<QLineEdit*>();
            const auto open =
                std::find_if(edits.begin(), edits.end(), [](const auto* edit) { return edit->isVisible(); });
            return open == edits.end() ? nullptr : *open;
        };
        const auto type = [&](const char* keys, Qt::Key end) {
            QTest::keyClicks(table, QString::fromLatin1(keys).left(1));
            QLineEdit* edit = editor();
            QVERIFY(edit != nullptr);
            QTest::keyClicks(edit, QString::fromLatin1(keys).mid(1));
            QTest::keyClick(edit, end);
        };
        type("12,5", Qt::Key_Tab);
        QCOMPARE(text(1, cBudgetModel::FirstMonth), u"12,50 €"_s);
        QCOMPARE(table->Current().column(), int{cBudgetModel::FirstMonth} + 1);
        QVERIFY(editor() != nullptr); // of the cell that Tab has opened
        QTest::keyClick(editor(), Qt::Key_Escape);
        type("7", Qt::Key_Return);
        QTRY_COMPARE(text(1, cBudgetModel::FirstMonth + 1), u"7,00 €"_s); // once the editor has had the key itself
        QCOMPARE(table->Current().row(), 2);
        QTest::keyClick(table, Qt::Key_Up);
        QTest::keyClick(table, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"12,50\t7,00"_s);
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(text(1, cBudgetModel::FirstMonth), QString());
        QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(text(1, cBudgetModel::FirstMonth), u"12,50 €"_s);
        table->setCurrentIndex(table->model()->index(1, cBudgetModel::Carry));
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(m_scene->Budget.Edit().CarriesOver(0));
    }

    // A key in such a cell goes to no other one, and says why.
    void CellsThatTakeNothingSaySo()
    {
        const QString fixed = m_scene->Book.AddCategory(
            u"Aa; Kontoführung"_s, [](cTemplateItem& item) { item.EntryInterval = u"Jährlich"_s; });
        cBudgetModel budget(m_scene->Book.Tools);
        frmBudget form(budget);
        form.show();
        auto* table = form.findChild<cBudgetTable*>();
        table->setCurrentIndex(table->model()->index(1, cBudgetModel::Plain));
        QCOMPARE(budget.Edit().Rows().constFirst().Path, fixed);
        QVERIFY(budget.setData(budget.index(3, cBudgetModel::Plain), u"150"_s, Qt::EditRole));
        const auto shown = [&] {
            QStringList texts;
            for (int row = 0; row < budget.rowCount(); ++row) {
                texts.append(budget.index(row, cBudgetModel::Plain).data().toString());
            }
            return texts;
        };
        const QStringList before = shown();
        QTest::keyClicks(table, u"15"_s);
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(shown(), before);
        QTest::keyClick(table, Qt::Key_Up);
        QCOMPARE(table->Current().row(), 1); // only Enter has moved it
        QTest::keyClick(table, Qt::Key_F2);
        QCOMPARE(QToolTip::text(),
                 u"Hier kann nichts eingegeben werden.\nErgibt sich aus Betrag und Intervall der Kategorie."_s);
    }

    // Below the lines, whatever is scrolled and however wide a column is.
    void TheSumStaysInStep()
    {
        m_scene->Form.resize(800, 600);
        const QList<cBudgetTable*> tables = m_scene->Form.findChildren<cBudgetTable*>();
        QCOMPARE(tables.size(), 2);
        const QTableView* lines = tables.first();
        const QTableView* sum = tables.last();
        tables.first()->setColumnWidth(cBudgetModel::Spent, 200);
        lines->verticalScrollBar()->setValue(lines->verticalScrollBar()->maximum());
        const auto left = [&](const QTableView* table, int column) {
            return table->viewport()->mapTo(&m_scene->Form, QPoint(table->columnViewportPosition(column), 0)).x();
        };
        for (const int place : {0, 77, lines->horizontalScrollBar()->maximum()}) {
            lines->horizontalScrollBar()->setValue(place);
            for (int column = 0; column < cBudgetModel::ColumnCount; ++column) {
                QCOMPARE(left(sum, column), left(lines, column));
                QCOMPARE(sum->columnWidth(column), lines->columnWidth(column));
            }
        }
        QVERIFY(left(lines, 0) < 0); // there was something to scroll
        QVERIFY(m_scene->Form.rect().contains(QRect(sum->mapTo(&m_scene->Form, QPoint()), sum->size())));
        QCOMPARE(sum->model()->headerData(0, Qt::Vertical).toString(), u"Summe"_s);
        m_scene->Budget.setData(m_scene->Budget.index(1, cBudgetModel::Plain), u"1234567890"_s,
                                Qt::EditRole); // the year is longer still
        QVERIFY(sum->columnWidth(cBudgetModel::Year) >= tables.last()->ContentWidth(cBudgetModel::Year));
        QCOMPARE(lines->columnWidth(cBudgetModel::Spent), 200); // as it was drawn
    }

    void AsksBeforeItLosesAnything()
    {
        m_scene->Budget.setData(m_scene->Budget.index(1, cBudgetModel::FirstMonth), u"5"_s, Qt::EditRole);
        m_scene->Form.close();
        QVERIFY(m_scene->Form.isVisible()); // the user has not answered
        m_scene->Book.User.Answers = {eAnswer::Yes};
        m_scene->Form.close();
        QVERIFY(!m_scene->Form.isVisible());
        QCOMPARE(m_scene->Book.Data.Journal().UndoName().isEmpty(), false);
    }

private:
    std::optional<cBudgetScene> m_scene;
};

TEST_CLASS(testFrmBudget, QApplication)
#include "testFrmBudget.moc"
