#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/budget/cBudgetModel.h"
#include "windows/budget/cBudgetTable.h"
#include "windows/budget/frmBudget.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// The grid as it is worked on with the keys alone.
class testFrmBudget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypesWithTheKeys();
    void AsksBeforeItLosesAnything();
};

void testFrmBudget::TypesWithTheKeys()
{
    cTestBook book;
    cBudgetModel budget(book.Tools);
    frmBudget form(budget);
    form.show();
    auto* table = form.findChild<cBudgetTable*>();
    table->setCurrentIndex(table->model()->index(2, cBudgetModel::FirstMonth));
    const auto text = [&](int row, int column) {
        return table->model()->index(row, column).data().toString().replace(QChar::Nbsp, u' ');
    };
    const auto editor = [&] {
        const QList<QLineEdit*> edits = table->viewport()->findChildren<QLineEdit*>();
        const auto open = std::find_if(edits.begin(), edits.end(), [](const auto* edit) { return edit->isVisible(); });
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
    QCOMPARE(text(2, cBudgetModel::FirstMonth), u"12,50 €"_s);
    QCOMPARE(table->Current().column(), int{cBudgetModel::FirstMonth} + 1);
    QVERIFY(editor() != nullptr); // of the cell that Tab has opened
    QTest::keyClick(editor(), Qt::Key_Escape);
    type("7", Qt::Key_Return);
    QTRY_COMPARE(text(2, cBudgetModel::FirstMonth + 1), u"7,00 €"_s); // once the editor has had the key itself
    QCOMPARE(table->Current().row(), 3);
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), u"12,50\t7,00"_s);
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(text(2, cBudgetModel::FirstMonth), QString());
    QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(text(2, cBudgetModel::FirstMonth), u"12,50 €"_s);
    table->setCurrentIndex(table->model()->index(2, cBudgetModel::Carry));
    QTest::keyClick(table, Qt::Key_Space);
    QVERIFY(budget.Edit().CarriesOver(0));
}

void testFrmBudget::AsksBeforeItLosesAnything()
{
    cTestBook book;
    cBudgetModel budget(book.Tools);
    frmBudget form(budget);
    form.show();
    budget.setData(budget.index(2, cBudgetModel::FirstMonth), u"5"_s, Qt::EditRole);
    form.close();
    QVERIFY(form.isVisible()); // the user has not answered
    book.User.Answers = {eAnswer::Yes};
    form.close();
    QVERIFY(!form.isVisible());
    QCOMPARE(book.Data.Journal().UndoName().isEmpty(), false);
}

TEST_CLASS(testFrmBudget, QApplication)
#include "testFrmBudget.moc"
