#include "fints/modFintsValue.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testFintsValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EscapesWhatIsTypedOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("wire");
        QTest::newRow("digits") << u"4711"_s << QByteArray("4711");
        QTest::newRow("all five") << u"a?b'c+d:e@f"_s << QByteArray("a??b?'c?+d?:e?@f");
        QTest::newRow("umlaut") << u"Größe"_s
                                << QByteArray("Gr\xf6\xdf"
                                              "e");
        QTest::newRow("outside") << u"5 €"_s << QByteArray("5 ??");
    }
    void EscapesWhatIsTypedOnce()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, wire);
        QCOMPARE(modFintsValue::Escaped(typed), wire);
    }

    void ReadsAnEscapeAtTheEnd() { QCOMPARE(modFintsValue::Unescaped("xH2et?+UL/?"), u"xH2et+UL/?"_s); }

    void AnUnsetDayIsEmpty()
    {
        QCOMPARE(modFintsValue::CHBCIDate(QDate(2026, 3, 1)), QByteArray("20260301"));
        QCOMPARE(modFintsValue::CHBCIDate({}), QByteArray());
    }
};

QTEST_APPLESS_MAIN(testFintsValue)
#include "testFintsValue.moc"
