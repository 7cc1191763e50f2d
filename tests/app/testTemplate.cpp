#include "cli/console/cConsoleUser.h"
#include "core/cBook.h"
#include "core/modDemo.h"
#include "import/propose/modKeywordTable.h"
#include "model/modBalance.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

// What a new book comes with, and the example household written into it.
class testTemplate final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        const QString path = m_folder->filePath(u"book.db"_s);
        QVERIFY(QFile::copy(QStringLiteral(TEMPLATE), path));
        m_book = std::make_unique<cBook>(m_user);
        QVERIFY(m_book->Open(path));
    }

    void HasEveryCategoryThatIsProposed()
    {
        QStringList paths;
        const cTemplateItemList templates = Data().GetTemplates();
        for (const cTemplateItem& item : templates) {
            if (!modTemplate::IsAccount(item)) {
                paths.append(modTemplate::Path(item));
            }
        }
        QVERIFY(paths.contains(u"Allgemein"_s)); // proposed when nothing is known
        QVERIFY(paths.contains(modWord::Startguthaben));
        for (const modKeywordTable::cRule& rule : modKeywordTable::Rules()) {
            QVERIFY2(paths.contains(QString::fromUtf8(rule.Category)), rule.Category);
            if (rule.PositiveCategory != nullptr) {
                QVERIFY2(paths.contains(QString::fromUtf8(rule.PositiveCategory)), rule.PositiveCategory);
            }
        }
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void RowsAreWhatTheProgramExpects()
    {
        const cTemplateItemList templates = Data().GetTemplates();
        for (const cTemplateItem& item : templates) {
            const QByteArray name = (item.TemplateCategory + u'/' + item.TemplateName).toUtf8();
            QVERIFY2(modTemplate::CleanName(item.TemplateName) == item.TemplateName, name.constData());
            QVERIFY2(modTemplate::CleanName(item.TemplateCategory) == item.TemplateCategory, name.constData());
            QVERIFY2(modTemplate::IsVisible(item) && modTemplate::Priority(item) > 0, name.constData());
            if (!modTemplate::IsAccount(item)) {
                QVERIFY2(modWord::EntryTypes().Contains(item.EntryType), name.constData());
                QVERIFY2(modWord::Intervals().Contains(item.EntryInterval), name.constData());
            }
        }
        QCOMPARE(Data().GetAccounts().size(), 3);
    }

    void HouseholdIsBelievable()
    {
        const QDate today(2026, 3, 15);
        QVERIFY(modDemo::Write(Data(), {today, 3, 0}));
        for (const QString& account : {u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s}) {
            qint64 balance = 0;
            cEntryQuery query;
            query.Account = account;
            query.End = today;
            cEntryItemList entries = Data().GetEntries(query);
            std::stable_sort(entries.begin(), entries.end(),
                             [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
            for (const cEntryItem& entry : entries) {
                balance += modBalance::Effect(entry, account);
                QVERIFY2(balance > -200000, qPrintable(account + u' ' + entry.EntryDate.toString()));
            }
            QVERIFY2(balance > 0 && balance < 5000000, qPrintable(account + u' ' + QString::number(balance)));
        }
        qsizetype open = 0;
        const cImportEntryList rows = Data().GetImportEntries();
        for (const cImportEntry& row : rows) {
            open += row.ImportAssigned ? 0 : 1;
        }
        QCOMPARE(open, 26);
        QVERIFY(rows.size() > open + 100);
        cEntryQuery electricity;
        electricity.Category = u"Wohnung; Strom"_s;
        const cEntryItemList bills = Data().GetEntries(electricity);
        QCOMPARE(std::count_if(bills.begin(), bills.end(), [](const cEntryItem& bill) { return bill.IsCorrected; }), 2);
    }

    void SizeIsAsAsked_data()
    {
        const cTestRows<int, int> row("entries", "years");
        row("three years", 2000, 3);
        row("ten years", 12000, 10);
    }

    void SizeIsAsAsked()
    {
        QFETCH(const int, entries);
        QFETCH(const int, years);
        const QDate today(2026, 3, 15);
        QVERIFY(modDemo::Write(Data(), modDemo::OfSize(entries, today)));
        QCOMPARE(Data().CountEntries(), entries);
        cEntryQuery before;
        before.End = today.addYears(-years);
        QVERIFY(Data().GetEntries(before).isEmpty());
    }

private:
    [[nodiscard]] cDataAccess& Data() { return m_book->Data(); }

    cConsoleUser m_user;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<cBook> m_book;
};

TEST_CLASS(testTemplate, QCoreApplication)
#include "testTemplate.moc"
