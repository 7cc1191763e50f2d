#include "base/cProgress.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "views/template/cTemplateManager.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene : cTestBook
{
    cScene()
    {
        First = Add(u"Feinkost"_s);
        Second = Add(u"Miete"_s);
    }

    int Add(const QString& name) { return Stage(u"1234567"_s, QDate(2026, 1, 20), -750, name).ID; }

    // What stands in the first row of a page that is opened now.
    QString Cell(int column)
    {
        cImportReview page(Tools);
        page.View().SetGrouping(0);
        page.Refresh();
        return page.Rows().index(0, column).data().toString();
    }

    QString Stored() const { return Settings->Get(modSettingKey::RowChoices); }

    int First = 0;
    int Second = 0;
    cNoProgress Progress;
    cImportReview Review{Tools};
};

} // namespace

// What was chosen for open rows lies in the book until they are booked.
class testRowChoices final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    // Whoever quits, or chooses another language, has it back, by the name that the category has by then.
    void Stay()
    {
        QVERIFY(m_scene->Review.Choose({m_scene->First}, u"Freizeit; Geschenke"_s, {}, u"Torte"_s));
        QVERIFY(m_scene->Review.Choose({m_scene->Second}, {}, u"Monatlich"_s));
        QVERIFY(cTemplateManager(m_scene->Tools).RenameCategory(u"Freizeit; Geschenke"_s, u"Freizeit; Feste"_s));
        m_scene->Settings->Reload();
        QCOMPARE(m_scene->Cell(cStagedListModel::Category), u"Freizeit; Feste"_s);
        QCOMPARE(m_scene->Cell(cStagedListModel::Reason), u"von Hand gewählt"_s);
        m_scene->User.Choices = {u"Girokonto"_s};
        cImportReview later(m_scene->Tools);
        QVERIFY(later.Book({m_scene->First}, m_scene->Progress));
        QCOMPARE(m_scene->Data.GetEntries({}).value(0).EntryDescription, u"Torte"_s);
        QVERIFY(!m_scene->Stored().contains(u'\n') && m_scene->Stored().contains(u"Monatlich"_s)); // of the other row
        m_scene->User.Answers = {eAnswer::Yes};
        later.Delete({m_scene->Second});
        QCOMPARE(m_scene->Stored(), QString());
    }

    void GoWithAnImportThatIsUndone()
    {
        m_scene->User.Choices = {u"Girokonto"_s, u"Sparkonto"_s};
        m_scene->Review.Files().ImportFiles({QStringLiteral(TEST_DATA "/mt940/giro.sta")}, m_scene->Progress);
        const int row = m_scene->Data.GetImportEntries().last().ID;
        QVERIFY(m_scene->Review.Choose({row}, u"Freizeit; Geschenke"_s, {}));
        QVERIFY(m_scene->Data.Journal().Undo());
        m_scene->Review.Refresh();
        QCOMPARE(m_scene->Stored(), QString());
    }

    // The number of a row that is gone comes again.
    void AreNotOfAnotherRow()
    {
        QVERIFY(m_scene->Review.Choose({m_scene->Second}, u"Freizeit; Geschenke"_s, {}));
        QVERIFY(m_scene->Data.DeleteImport(m_scene->Second));
        QCOMPARE(m_scene->Add(u"etwas ganz anderes"_s), m_scene->Second);
        m_scene->Review.Refresh();
        QCOMPARE(m_scene->Stored(), QString());
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testRowChoices, QCoreApplication)
#include "testRowChoices.moc"
