#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/chart/cForecast.h"
#include "views/main/cAccountListModel.h"
#include "views/main/cLimitWatch.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 3, 15);

// A book with 1,000 euros on the current account and a monthly rent of 300 on the 20th.
struct cHousehold
{
    cHousehold()
    {
        QVERIFY(Book.Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 1, 1)));
        Rent = Book.Spend(QDate(2026, 3, 20), 30000, u"Miete"_s, u"Monatlich"_s);
    }

    void SetLimit(const QString& account, const QString& amount)
    {
        cTemplateItem item = *Book.Data.FindAccount(account);
        item.TemplateDefaultValue = amount;
        QVERIFY(Book.Data.ChangeTemplate(item));
    }

    QList<cLimitWarning> Warnings() { return cForecast(Book.Data, today).Warnings(); }

    cTestBook Book;
    cEntryItem Rent;
};

qint64 At(const cBalanceDays& days, const QString& account, QDate day)
{
    for (const cBalanceLine& line : days.Accounts) {
        if (line.Account == account) {
            return line.Cents.value(days.IndexOf(day), -1);
        }
    }
    return -1;
}

} // namespace

class testForecast final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Foresees()
    {
        cHousehold household;
        household.Book.Correct(household.Rent.ID, QDate(2026, 4, 1), QDate(2026, 4, 30), 45000); // the rent of April
        (void)household.Book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 2, 1);
            entry.EntryDateEnd = QDate(2026, 4, 10);
            entry.EntryInterval = u"Monatlich"_s;
            entry.EntryValue = 1000;
        });
        household.Book.Move(u"Girokonto"_s, u"Sparkonto"_s, 5000, QDate(2026, 5, 5));
        const cBalanceDays days = cForecast(household.Book.Data, today).Ahead(12, cForecast::eAverage::Without);
        const QString giro = u"Girokonto"_s;
        QCOMPARE(days.First, today);
        QCOMPARE(days.Day(days.Count() - 1), QDate(2027, 3, 15));
        QCOMPARE(At(days, giro, today), 98000); // two payments of the short series are past
        QCOMPARE(At(days, giro, QDate(2026, 3, 19)), 98000);
        QCOMPARE(At(days, giro, QDate(2026, 3, 20)), 68000);
        QCOMPARE(At(days, giro, QDate(2026, 4, 20)), 22000); // its last payment and the corrected rent
        QCOMPARE(At(days, giro, QDate(2026, 5, 20)), 22000 - 5000 - 30000);
        QCOMPARE(At(days, u"Sparkonto"_s, QDate(2026, 5, 20)), 5000);
        QCOMPARE(days.Sum.Cents[days.IndexOf(QDate(2026, 5, 20))], 22000 - 30000); // the transfer stays in the family
        QCOMPARE(cBalanceDays::Lowest(days.Sum, 0), days.IndexOf(QDate(2027, 2, 20)));
    }

    void TakesOffTheAverage()
    {
        cHousehold household;
        for (const int day : {1, 8}) {
            household.Book.Spend(QDate(2026, 2, day), 21500); // 430 euros in the 43 days from 1 February on
        }
        cForecast forecast(household.Book.Data, today);
        const cBalanceDays without = forecast.Ahead(1, cForecast::eAverage::Without);
        const cBalanceDays with = forecast.Ahead(1, cForecast::eAverage::With);
        QCOMPARE(with.Sum.Cents.first(), without.Sum.Cents.first()); // today has happened
        QCOMPARE(with.Sum.Cents[4], without.Sum.Cents[4] - 4000);
        QCOMPARE(At(with, u"Girokonto"_s, today.addDays(4)), At(without, u"Girokonto"_s, today.addDays(4)) - 4000);
    }

    void Warns_data()
    {
        const cTestRows<QString, QDate, qint64, QString> row("limit", "day", "balance", "entry");
        row("none", {}, {}, 0, {});
        row("holds for 60 days", u"100.00"_s, {}, 0, {});
        row("second rent", u"400.01"_s, QDate(2026, 4, 20), 40000, u"Miete"_s);
        row("exactly at the limit", u"400.00"_s, {}, 0, {});
        row("first rent", u"900.00"_s, QDate(2026, 3, 20), 70000, u"Miete"_s);
        row("already below", u"1000.01"_s, today, 100000, {});
        row("zero is a limit, and holds", u"0.00"_s, {}, 0, {});
    }

    void Warns()
    {
        QFETCH(QString, limit);
        QFETCH(QDate, day);
        cHousehold household;
        household.SetLimit(u"Girokonto"_s, limit);
        const QList<cLimitWarning> warnings = household.Warnings();
        QCOMPARE(warnings.size(), day.isValid() ? 1 : 0);
        if (day.isValid()) {
            QCOMPARE(warnings.first().Day, day);
            QTEST(warnings.first().Cents, "balance");
            QTEST(warnings.first().Entry.EntryDescription, "entry");
        }
    }

    // What comes in on a day counts first, so the blame is on the entry without which the limit would have held.
    void NamesTheEntryOfTheDay()
    {
        cHousehold household;
        household.SetLimit(u"Girokonto"_s, u"500.00"_s);
        household.Book.Spend(QDate(2026, 3, 20), 10000, u"Strom"_s);
        household.Book.Spend(QDate(2026, 3, 20), 20000, u"Werkstatt"_s);
        household.Book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 3, 20);
            entry.EntryType = modWord::Einnahme;
            entry.EntryValue = 9000;
        });
        const QList<cLimitWarning> warnings = household.Warnings();
        QCOMPARE(warnings.size(), 1);
        QCOMPARE(warnings.first().Cents, 49000);
        QCOMPARE(warnings.first().Entry.EntryDescription, u"Miete"_s); // listed last, after the one-off entries
    }

    void ShowsTheWarningInThePanel()
    {
        cHousehold household;
        household.SetLimit(u"Girokonto"_s, u"900.00"_s);
        cAccountListModel accounts(household.Book.Format);
        cLimitWatch watch(household.Book.Tools, accounts);
        accounts.SetAccounts(household.Book.Data.GetAccounts(), QHash<QString, qint64>{{u"Girokonto"_s, 100000}}, {});
        const auto hint = [&](const QString& account) {
            for (int row = 0; row < accounts.rowCount(); ++row) {
                const QModelIndex index = accounts.index(row, cAccountListModel::Balance);
                if (accounts.AccountAt(index) == account) {
                    return accounts.data(index, Qt::ToolTipRole).toString().replace(QChar(QChar::Nbsp), u' ');
                }
            }
            return QString();
        };
        QCOMPARE(hint(u"Girokonto"_s), u"Girokonto"_s); // later: the window is not to wait for it
        QTRY_COMPARE(hint(u"Girokonto"_s),
                     u"Am 20.03.2026 fällt das Konto 'Girokonto' mit 'Miete' (-300,00 €) auf 700,00 € und damit unter "
                     "sein Limit von 900,00 €."_s);
        QCOMPARE(hint(u"Sparkonto"_s), u"Sparkonto"_s);
        household.SetLimit(u"Girokonto"_s, {});
        watch.Look();
        QCOMPARE(hint(u"Girokonto"_s), u"Girokonto"_s);
    }
};

TEST_CLASS(testForecast, QCoreApplication)
#include "testForecast.moc"
