#include "model/cLimits.h"
#include "model/modWord.h"
#include "support/cTestClass.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

cTemplateItem Category(const QString& value, const QString& interval = modWord::Einmalig)
{
    cTemplateItem item;
    item.TemplateType = modWord::Kategorie;
    item.EntryType = modWord::Ausgabe;
    item.EntryInterval = interval;
    item.TemplateCategory = u"Auto"_s;
    item.TemplateDefaultValue = value;
    return item;
}

} // namespace

class testBudget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a later program wrote beside it stays.
    void IsStoredAsText()
    {
        const QString text = u"uebertrag=2026-01;neu=x;2026=120.00,,0.00"_s;
        cBudget budget = modBudget::Read(text);
        QCOMPARE(budget.CarriesFrom, QDate(2026, 1, 1));
        QCOMPARE(budget.Months, (QMap<QDate, qint64>{{QDate(2026, 1, 1), 12000}, {QDate(2026, 3, 1), 0}}));
        QCOMPARE(modBudget::Read(modBudget::ToText(budget, text)), budget);
        budget.Months = {{QDate(2027, 12, 1), 5}};
        budget.CarriesFrom = {};
        QCOMPARE(modBudget::ToText(budget, text), u"neu=x;2027=,,,,,,,,,,,0.05"_s);
        QCOMPARE(modBudget::ToText({}, u"2026=1.00"_s), QString());
        QCOMPARE(modBudget::Read(u"uebertrag=bald;2026=viel,-5.00,7.00"_s).Months,
                 (QMap<QDate, qint64>{{QDate(2026, 3, 1), 700}}));
    }

    void MonthsComeToTheYear()
    {
        const QList<qint64> parts = modBudget::Spread(10001);
        QCOMPARE(std::accumulate(parts.begin(), parts.end(), qint64{0}), 10001);
        QCOMPARE(*std::max_element(parts.begin(), parts.end()) - *std::min_element(parts.begin(), parts.end()), 1);
        const cTemplateItem yearly = Category(u"100.00"_s, u"Jährlich"_s);
        qint64 sum = 0;
        for (int month = 0; month < 12; ++month) {
            sum += modBudget::PlainCents(yearly, QDate(2026, 7, 1).addMonths(month), 1);
        }
        QCOMPARE(sum, 10000);
        const cBudget budget{{}, {{QDate(2026, 2, 1), 5000}}};
        QCOMPARE(modBudget::OwnCents(Category(u"10.00"_s), budget, QDate(2026, 1, 1), 3), 7000);
    }

    void LeftOverGoesOn()
    {
        cLimits limits;
        limits.Add(Category(u"10.00"_s), {QDate(2026, 1, 1), {{QDate(2026, 2, 1), 0}}});
        limits.SetSpent(
            {{u"Auto"_s, {{QDate(2025, 12, 1), 99999}, {QDate(2026, 1, 1), 400}, {QDate(2026, 2, 1), 1000}}}});
        QCOMPARE(limits.Of(u"Auto"_s, QDate(2026, 1, 1), 1), (cLimit{1000, 0}));
        QCOMPARE(limits.Of(u"Auto"_s, QDate(2026, 2, 1), 1), (cLimit{0, 600}));
        QCOMPARE(limits.Of(u"Auto"_s, QDate(2026, 3, 1), 2), (cLimit{2000, -400}));
        QVERIFY(!limits.Of(u"Haus"_s, QDate(2026, 3, 1), 1));
        cLimits own; // a limit in one month only
        own.Add(Category({}), {{}, {{QDate(2026, 2, 1), 0}}});
        QCOMPARE(own.Of(u"Auto"_s, QDate(2026, 2, 1), 1), cLimit());
        QVERIFY(!own.Of(u"Auto"_s, QDate(2026, 3, 1), 1));
        cLimits late; // what was spent before the first limit owes nothing
        late.Add(Category({}), {QDate(2026, 1, 1), {{QDate(2026, 11, 1), 12000}}});
        late.SetSpent({{u"Auto"_s, {{QDate(2026, 10, 1), 99999}, {QDate(2026, 11, 1), 2000}}}});
        QVERIFY(!late.Of(u"Auto"_s, QDate(2026, 10, 1), 1));
        QCOMPARE(late.Of(u"Auto"_s, QDate(2026, 11, 1), 1), (cLimit{12000, 0}));
        QCOMPARE(late.Of(u"Auto"_s, QDate(2026, 12, 1), 1), (cLimit{0, 10000}));
        cTemplateItem income = Category(u"10.00"_s);
        income.EntryType = modWord::Einnahme;
        cLimits none;
        none.Add(income, {{}, {{QDate(2026, 2, 1), 500}}});
        QVERIFY(none.Paths().isEmpty());
    }
};

TEST_CLASS(testBudget, QCoreApplication)
#include "testBudget.moc"
