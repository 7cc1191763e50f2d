#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/budget/cBudgetModel.h"
#include "views/template/cTemplateFlow.h"
#include "views/template/cTemplateRemoval.h"

#include <QAbstractItemModelTester>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString food = u"Haushalt; Lebensmittel"_s;

// A book with its grid, seen on 15 March 2026.
struct cScene
{
    [[nodiscard]] QModelIndex Cell(const QString& label, int column) const
    {
        for (int row = 0; row < Model.rowCount(); ++row) {
            if (Model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString().trimmed() == label) {
                return Model.index(row, column);
            }
        }
        return {};
    }

    // With plain blanks.
    [[nodiscard]] QString Text(const QString& label, int column) const
    {
        return Cell(label, column).data().toString().replace(QChar::Nbsp, u' ');
    }

    void Type(const QString& label, int column, const QString& text)
    {
        QVERIFY(Model.setData(Cell(label, column), text, Qt::EditRole));
    }

    [[nodiscard]] QString Stored(const QString& path) const
    {
        return Book.Settings->Get(modSettingKey::Budget.Of(path));
    }

    [[nodiscard]] cTemplateItem Category() { return *Book.Data.FindTemplate(u"Haushalt"_s, u"Lebensmittel"_s); }

    cTestBook Book;
    cEntryItem Spent = Book.Add([](cEntryItem& entry) { entry.EntryValue = 3000; });
    cBudgetModel Model{Book.Tools};
};

constexpr int March = cBudgetModel::FirstMonth + 2;

} // namespace

class testBudgetModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void IsTypedAndTakenBack()
    {
        const QAbstractItemModelTester tester(&m_scene->Model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_scene->Type(u"Lebensmittel"_s, cBudgetModel::Plain, u"20"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, cBudgetModel::Left), u"-10,00 €"_s);
        m_scene->Type(u"Lebensmittel"_s, March, u"25+2,50"_s);
        QVERIFY(m_scene->Model.setData(m_scene->Cell(u"Lebensmittel"_s, cBudgetModel::Carry), Qt::Checked,
                                       Qt::CheckStateRole));
        // 20 from each of January and February go on to March.
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, cBudgetModel::Left), u"37,50 €"_s);
        QCOMPARE(m_scene->Text(u"Haushalt"_s, cBudgetModel::Spent), u"30,00 €"_s);
        QCOMPARE(m_scene->Text(u"Summe"_s, cBudgetModel::Year), u"247,50 €"_s);
        QCOMPARE(m_scene->Cell(u"Lebensmittel"_s, March - 1).data(cBudgetModel::ToneRole).toInt(), cBudgetModel::Quiet);
        QVERIFY(m_scene->Stored(food).isEmpty()); // until it is saved
        QVERIFY(m_scene->Model.Save());
        QCOMPARE(m_scene->Stored(food), u"uebertrag=2026-01;2026=,,27.50"_s);
        QCOMPARE(m_scene->Category().TemplateDefaultValue, u"20.00"_s);
        QCOMPARE(m_scene->Book.Data.Journal().UndoName(), u"Budget von 'Haushalt; Lebensmittel' geändert"_s);
        QVERIFY(m_scene->Book.Data.Journal().Undo());
        QVERIFY(m_scene->Stored(food).isEmpty());
        QCOMPARE(m_scene->Category().TemplateDefaultValue, QString());
    }

    void YearIsSpreadOrKept()
    {
        m_scene->Type(u"Lebensmittel"_s, cBudgetModel::Year, u"100"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, cBudgetModel::FirstMonth), u"8,33 €"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, cBudgetModel::Year), u"100,00 €"_s);
        m_scene->Model.KeepInMonth(m_scene->Cell(u"Lebensmittel"_s, March));
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, March), u"100,00 €"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, March + 1), u"0,00 €"_s);
        QVERIFY(m_scene->Model.ShowYear(2027));
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, cBudgetModel::Year), QString());
        QVERIFY(m_scene->Model.ShowYear(2026));
        m_scene->Model.Clear({m_scene->Cell(u"Lebensmittel"_s, cBudgetModel::Year)});
        m_scene->Model.Spread(m_scene->Cell(u"Lebensmittel"_s, March)); // there is nothing to spread
        m_scene->Model.KeepInMonth(m_scene->Cell(u"Lebensmittel"_s, March));
        QVERIFY(!m_scene->Model.Edit().IsChanged());
        QCOMPARE(m_scene->Book.User.Shown.size(), 2);
    }

    // What is hidden and counts in the report can be seen and changed, whatever months have the limit.
    void HidesOnlyWhatDoesNotCount()
    {
        const cTemplateItemList items = m_scene->Book.Data.GetTemplates();
        for (cTemplateItem item : items) {
            item.TemplateVisible = u"0"_s;
            QVERIFY(m_scene->Book.Data.ChangeTemplate(item));
        }
        const QString limited =
            modTemplate::Path(*std::find_if(items.begin(), items.end(), [](const cTemplateItem& item) {
                return modBudget::IsLimitable(item) && modTemplate::Path(item) != food;
            }));
        m_scene->Book.Settings->Set(modSettingKey::Budget.Of(limited), u"2026=77.00"_s);
        cBudgetModel model(m_scene->Book.Tools);
        QCOMPARE(model.rowCount(), 5); // the sum, twice a group with its category
        QVERIFY(model.ShowYear(2028));
        QCOMPARE(model.rowCount(), 3); // nothing was spent in 2027
        QVERIFY(model.ShowYear(2027));
        QCOMPARE(model.rowCount(), 5);
    }

    void FaultyAmountsStay()
    {
        m_scene->Type(u"Lebensmittel"_s, March, u"zwölf"_s);
        m_scene->Type(u"Lebensmittel"_s, March + 1, u"-5"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, March), u"zwölf"_s);
        QCOMPARE(m_scene->Cell(u"Lebensmittel"_s, March).data(cBudgetModel::ToneRole).toInt(), cBudgetModel::Bad);
        QVERIFY(!m_scene->Model.Save());
        QVERIFY(!m_scene->Model.ShowYear(2027));
        QVERIFY(m_scene->Book.User.Shown.first().startsWith(food + u": "_s));
        m_scene->Type(u"Lebensmittel"_s, March, u"12"_s);
        QVERIFY(!m_scene->Model.Save());
        QVERIFY(m_scene->Book.User.Shown.last().contains(u"nicht unter null"_s));
        m_scene->Book.User.Answers = {eAnswer::Cancel, eAnswer::No};
        QVERIFY(!m_scene->Model.MayClose());
        QVERIFY(m_scene->Model.MayClose());
        QVERIFY(m_scene->Stored(food).isEmpty());
    }

    void TakesAndGivesTables()
    {
        const QModelIndex first = m_scene->Cell(u"Lebensmittel"_s, March);
        m_scene->Model.Paste(first, u"1,50\t2\r\n3\r\n"_s);
        const QModelIndex below = first.siblingAtRow(first.row() + 1);
        QCOMPARE(m_scene->Model.Copy({below, first, first.siblingAtColumn(March + 1)}), u"1,50\t2,00\n3,00"_s);
        QVERIFY(m_scene->Model.Save());
        QCOMPARE(m_scene->Book.Data.Journal().UndoName(), u"Budget von 2 Kategorien geändert"_s);
        QModelIndexList line; // the months of a line are not made equal by the year beside them
        for (int column = cBudgetModel::Plain; column <= cBudgetModel::Year; ++column) {
            line.append(first.siblingAtColumn(column));
        }
        m_scene->Model.Paste(below.siblingAtColumn(cBudgetModel::Plain), m_scene->Model.Copy(line));
        QCOMPARE(below.siblingAtColumn(March).data(), first.data());
        QCOMPARE(below.siblingAtColumn(March + 1).data(), first.siblingAtColumn(March + 1).data());
    }

    void ProposesLastYear()
    {
        m_scene->Model.TakeLastYear();
        QCOMPARE(m_scene->Book.User.Shown.size(), 1); // nothing was spent in 2025
        QVERIFY(m_scene->Model.ShowYear(2027));
        m_scene->Model.TakeLastYear();
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, March), u"30,00 €"_s);
        QCOMPARE(m_scene->Text(u"Lebensmittel"_s, March + 1), u"0,00 €"_s);
        QVERIFY(m_scene->Stored(food).isEmpty());
    }

    // Its budget goes where the category goes, with the same step.
    void FollowsTheCategory()
    {
        const QString text = u"2026=,,27.50"_s;
        const auto undo = [&] {
            QVERIFY(m_scene->Book.Data.Journal().Undo());
            QCOMPARE(m_scene->Stored(food), text);
        };
        m_scene->Book.Settings->Set(modSettingKey::Budget.Of(food), text);
        QVERIFY(cTemplateFlow(m_scene->Book.Tools).RenameCategory(m_scene->Category(), u"Haushalt"_s, u"Essen"_s));
        QCOMPARE(m_scene->Stored(u"Haushalt; Essen"_s), text);
        QVERIFY(m_scene->Stored(food).isEmpty());
        undo();
        QVERIFY(
            cTemplateFlow(m_scene->Book.Tools).RenameMain(u"Haushalt"_s, u"haushalt"_s)); // another letter case alone
        QCOMPARE(m_scene->Stored(u"haushalt; Lebensmittel"_s), text);
        undo();
        m_scene->Book.User.Decisions = {1};
        QVERIFY(cTemplateRemoval(m_scene->Book.Tools).DeleteCategory(m_scene->Category()));
        QVERIFY(m_scene->Stored(food).isEmpty());
        undo();
    }

    void MergedCategoryKeepsItsOwn()
    {
        const QString target = u"Haushalt; Reinigung"_s;
        m_scene->Book.Settings->Set(modSettingKey::Budget.Of(food), u"2026=1.00"_s);
        m_scene->Book.Settings->Set(modSettingKey::Budget.Of(target), u"2026=2.00"_s);
        m_scene->Book.AddCategory(target, [](cTemplateItem& item) { item.EntryType = modWord::Ausgabe; });
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QVERIFY(cTemplateRemoval(m_scene->Book.Tools).MergeCategory(food, target));
        QCOMPARE(m_scene->Stored(target), u"2026=2.00"_s);
        QVERIFY(m_scene->Stored(food).isEmpty());
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testBudgetModel, QCoreApplication)
#include "testBudgetModel.moc"
