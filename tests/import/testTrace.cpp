#include "core/cBackup.h"
#include "core/cBook.h"
#include "core/cSettings.h"
#include "import/plan/cImportPlan.h"
#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

// Takes the lines of the trace while it lives.
class cListener
{
public:
    explicit cListener(const QString& rules)
    {
        s_lines.clear();
        QLoggingCategory::setFilterRules(rules);
        m_before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
            s_lines.append(QLatin1StringView(context.category) + u": " + text);
        });
    }
    cListener(const cListener&) = delete;
    cListener& operator=(const cListener&) = delete;
    ~cListener()
    {
        qInstallMessageHandler(m_before);
        QLoggingCategory::setFilterRules({});
    }

    [[nodiscard]] static QStringList Of(const QString& category) { return s_lines.filter(category + u": "); }
    [[nodiscard]] static QString All() { return s_lines.join(u'\n'); }

private:
    static inline QStringList s_lines;
    QtMessageHandler m_before = nullptr;
};

// Opens an old book, takes a statement over, books it and makes a copy.
void WorkWith(const cTestFile& file)
{
    cFakeUser user;
    cFakeShell shell;
    cFakeRescue rescue;
    cBook book(user);
    QVERIFY(book.OpenWithQuestions(file.Make({}, u"Omaskasse.db"_s), false,
                                   {shell, rescue, u"7.8.9"_s, QDate(2026, 3, 15)}));
    QVERIFY(book.Settings().Set(modSettingKey::BankNumber.Of(u"4711081500"_s), u"Girokonto"_s));
    cImportHiveCache hive(book.Data());
    const cAccountMap accounts(book.Data(), book.Settings());
    cImportOptions options;
    options.DefaultAccount = u"4711081500"_s;
    cNoProgress progress;
    const QString text = u"!Type:Bank\nD31.1.26\nT-98765.43\nPVerschwiegen\nMSchmuckkauf\n^\n"_s;
    cStatementImport import(book.Data(), hive);
    QCOMPARE(import.ImportSource({u"/home/geheimrat/Zweitkonto.qif"_s, {}, text}, options, progress).Staged, 1);
    QVERIFY(
        import.ImportSource({u"/home/geheimrat/Zweitkonto.pdf"_s, {}, u"%PDF-1.4 Verschwiegen"_s}, options, progress)
            .IsRefused);
    cBooking booking(book.Data(), hive, accounts);
    const int row = book.Data().GetImportEntries().constFirst().ID;
    cImportPlan plan({book.Data(), hive, accounts, [](int) { return modStagedTwins::cFile{}; }});
    QCOMPARE(booking.Book({row}, {{row, plan.Make({row}, progress).value(row).Proposal}}, progress).Entries, 1);
    QCOMPARE(cBackup(book.Database(), shell).Make(file.Path(u"Tresor.backup"_s)), QString());
}

} // namespace

class testTrace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IsSilentByDefault()
    {
        const cTestFile file;
        const cListener listener({});
        WorkWith(file);
        QCOMPARE(cListener::All(), QString());
    }

    void TellsWhatHappenedAndNothingElse()
    {
        const cTestFile file;
        {
            const cListener listener(u"kontorelle.*=true"_s);
            WorkWith(file);
        }
        QVERIFY(cListener::Of(u"kontorelle.open"_s).contains(u"kontorelle.open: version 7.8.9 result 0"_s));
        QVERIFY(!cListener::Of(u"kontorelle.upgrade"_s).isEmpty());
        const QStringList imports = cListener::Of(u"kontorelle.import"_s);
        QVERIFY(imports.value(0).contains(u"read"_s) && imports.value(0).contains(u"staged 1 duplicates 0"_s));
        QVERIFY(imports.value(1).contains(u"refused"_s) && imports.value(1).contains(u"PDF"_s));
        QVERIFY(cListener::Of(u"kontorelle.booking"_s).value(0).contains(u"rows 1 booked 1"_s));
        QVERIFY(cListener::Of(u"kontorelle.backup"_s).value(0).contains(u"made"_s));
        const QStringList secrets{u"Omaskasse"_s,    u"geheimrat"_s,   u"Zweitkonto"_s, u"4711081500"_s, u"98765"_s,
                                  u"Verschwiegen"_s, u"Schmuckkauf"_s, u"Girokonto"_s,  u"Tresor"_s,     file.Folder()};
        for (const QString& secret : secrets) {
            QVERIFY2(!cListener::All().contains(secret, Qt::CaseInsensitive), qPrintable(secret));
        }
    }
};

TEST_CLASS(testTrace, QCoreApplication)
#include "testTrace.moc"
