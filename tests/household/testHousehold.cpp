#include "household/cHouseholdPlay.h"
#include "support/cTestClass.h"

// A household that only ever presses Enter has the balances of its banks, whatever it has typed before.
class testHousehold : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BookEqualsBank()
    {
        for (const quint32 seed : {1U, 2U, 3U}) {
            const cHousehold household(seed, first, months);
            const cHouseholdPlay::cFigures figures = cHouseholdPlay(household, first, months).Play();
            QCOMPARE(figures.Faults, QStringList());
            QCOMPARE(figures.Lost, 0);
            QCOMPARE(figures.Open, 0);
            QVERIFY2(figures.SureWrong == 0, qPrintable(figures.Mistakes.join(u'\n')));
            QVERIFY(figures.Right * 10 >= figures.Known * 9);
        }
    }

private:
    static constexpr int months = 8;
    const QDate first{2024, 9, 1};
};

TEST_CLASS(testHousehold, QCoreApplication)
#include "testHousehold.moc"
