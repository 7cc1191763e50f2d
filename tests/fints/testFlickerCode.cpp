#include "fints/modFlickerCode.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testFlickerCode final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The last byte is the check. Its upper half completes control bytes, start code and data to a multiple of ten,
    // with every second digit counted double; its lower half is the exclusive or of all half bytes before.
    void BecomesTheBytesOfTheGenerator_data()
    {
        const cTestRows<QByteArray, eHhd, QByteArray, QString> row("sent", "version", "complete", "typed");
        row("1.4, a control byte and a number", "0248A0120452019980812345678", eHhd::V14,
            "0D85012045201998041234567855", u"2045201998 12345678"_s);
        row("1.4, an odd start code, three elements, an amount as text", "039870110490631098765432100812345678041,00",
            eHhd::V14, "1784011049063F059876543210041234567844312C303019", u"1049063 9876543210 12345678 1,00"_s);
        // 10 + 2 + 6 + 8 + 5 + 7 is 38, two less than 40
        row("1.4, two control bytes, texts by their flags", "012C28101AB6612", eHhd::V14, "09C28101414242313229",
            u"AB 12"_s);
        row("1.4, line end behind it", "0248A0120452019980812345678\r\n", eHhd::V14, "0D85012045201998041234567855",
            u"2045201998 12345678"_s);
        // 13 + 2 + 7 + 7 + 10 + 14 + 5 + 5 + 8 + 3 + 3 is 77, three less than 80
        row("1.3, an amount as text", "24088715131306389726041,00", eHhd::V13, "0F04871513130338972614312C30303B",
            u"87151313 389726 1,00"_s);
        // 12 + 5 + 11 + 8 + 10 is 46, four less than 50
        row("1.3, a number with an odd number of digits", "130277071234567", eHhd::V13, "080177041234567F42",
            u"77 1234567"_s);
        // 12 + 5 is 17, three less than 20
        row("1.3, an empty element keeps its place", "100277000212", eHhd::V13, "06017700011235", u"77  12"_s);
    }

    void BecomesTheBytesOfTheGenerator()
    {
        QFETCH(QByteArray, sent);
        QFETCH(eHhd, version);
        QFETCH(QByteArray, complete);
        QFETCH(QString, typed);
        const auto code = modFlickerCode::Read(sent, version);
        QVERIFY(code);
        QCOMPARE(modFlickerCode::Complete(*code).toHex().toUpper(), complete);
        QCOMPARE(code->Typed().join(u' '), typed);
    }

    void OneThatBreaksTheRulesIsNone_data()
    {
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<eHhd>("version");

        QTest::newRow("nothing") << QByteArray() << eHhd::V14;
        QTest::newRow("a picture") << QByteArray("\x00\x09image/png\x00\x05", 13) << eHhd::V14;
        QTest::newRow("a digit lost") << QByteArray("0248A012045201998081234567") << eHhd::V14;
        QTest::newRow("a digit too many") << QByteArray("0248A01204520199808123456789") << eHhd::V14;
        QTest::newRow("the other edition") << QByteArray("24088715131306389726041,00") << eHhd::V14;
        QTest::newRow("the other edition, the other way") << QByteArray("0248A0120452019980812345678") << eHhd::V13;
        QTest::newRow("an element longer than the rest") << QByteArray("0248A0120452019980912345678") << eHhd::V14;
        QTest::newRow("an endless chain of control bytes") << QByteArray("0108A81818181") << eHhd::V14;
        QTest::newRow("four elements") << QByteArray("160277"
                                                     "021202120212"
                                                     "0212")
                                       << eHhd::V13;
        QTest::newRow("no start code") << QByteArray("0040002"
                                                     "12")
                                       << eHhd::V14;
        QTest::newRow("more than a half byte can count") << QByteArray("220277"
                                                                       "16ABCDEFGHIJKLMNOP")
                                                         << eHhd::V13;
        QTest::newRow("a character that no generator shows") << QByteArray("0070277"
                                                                           "021\x80")
                                                             << eHhd::V13;
    }

    void OneThatBreaksTheRulesIsNone()
    {
        QFETCH(QByteArray, sent);
        QFETCH(eHhd, version);
        QVERIFY(!modFlickerCode::Read(sent, version));
    }

    void BarsShowSyncHalfBytesAndClock()
    {
        // 0F FF to begin with, then 1 and 8 of the byte 81: of each byte the lower half first, with the clock on and
        // off.
        const QByteArray states = modFlickerCode::States(QByteArray("\x81"));
        QCOMPARE(states.toHex(' '), QByteArray("1f 1e 01 00 1f 1e 1f 1e 03 02 11 10"));
        QVERIFY(modFlickerCode::States({}).isEmpty());
    }
};

TEST_CLASS(testFlickerCode, QCoreApplication)
#include "testFlickerCode.moc"
