#include "fints/cShield.h"
#include "fints/modFintsSplit.h"
#include "fints/modFintsValue.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<QByteArray> Copied(const QList<QByteArrayView>& tokens)
{
    return Each(tokens, &QByteArrayView::toByteArray);
}

} // namespace

class testFintsSplit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Splits_data()
    {
        const cTestRows<QByteArray, char, QList<QByteArray>> row("text", "separator", "tokens");
        row("no text is one token", "", '+', {""});
        row("no token behind the last end", "HNHBK:1:3+000000000123+300+0+1'", '\'',
            {"HNHBK:1:3+000000000123+300+0+1"});
        row("end in binary data", "HNVSD:999:1+@5@ab'cd'", '\'', {"HNVSD:999:1+@5@ab'cd"});
        row("two binaries in a segment", "A+@3@x'y+@3@'''+B'C'", '\'', {"A+@3@x'y+@3@'''+B", "C"});
        row("binary in a later segment", "A'B+@1@''C'", '\'', {"A", "B+@1@'", "C"});
        row("length that is no number", "A+@x@'B'", '\'', {"A+@x@", "B"});
        row("length without an end", "A+@5'B'", '\'', {"A+@5", "B"});
        row("more announced than there is", "A+@500@'B'", '\'', {"A+@500@'B'"});
        row("length beyond all numbers", "A+@99999999999999999999@'B'", '\'', {"A+@99999999999999999999@'B'"});
        row("an escaped end is an end here", "A?'B'", '\'', {"A?", "B"});
        row("elements know no escape", "A?+B+C", '+', {"A?", "B", "C"});
        row("empty elements", "A++B", '+', {"A", "", "B"});
        row("binary element is cut short", "@3@abc", '+', {"@3@ab"});
        row("and an empty one follows it", "A+@3@a+c+B", '+', {"A", "@3@a+", "", "B"});
        row("binary data without characters", "@0@+B", '+', {"@0", "", "B"});
        row("too long a binary element", "@9@abc+B", '+', {"@9@abc+B"});
        row("binary data inside of an element", "A:@3@a+b", '+', {"A:@3@a", "b"});
        row("groups know an escape, and keep it", "A?:B:C", ':', {"A?:B", "C"});
        row("colon in the first place", ":A", ':', {"", "A"});
        row("two escape characters", "A??:B", ':', {"A??:B"});
    }
    void Splits()
    {
        QFETCH(QByteArray, text);
        QFETCH(char, separator);
        QTEST(Copied(modFintsSplit::Split(text, separator)), "tokens");
    }

    void CutsGroupsExactly_data()
    {
        const cTestRows<QByteArray, QList<QByteArray>> row("element", "parts");
        row("two escape characters", "A??:B", {"A??", "B"});
        row("three", "A???:B:C?:", {"A???:B", "C?:"});
        row("binaries", "@3@a:b:@2@'+:x", {"@3@a:b", "@2@'+", "x"});
        row("an at sign of a text", "a@3@b:c", {"a@3@b", "c"});
    }
    void CutsGroupsExactly()
    {
        QFETCH(QByteArray, element);
        QTEST(Copied(modFintsSplit::Group(element)), "parts");
    }

    // Escapes, binaries in every place, also as the second of a group, and inside the container.
    void ReadsSegmentsThroughTheShield()
    {
        const QByteArray inner = "HIRMG:2:2+0010::Ist das ein ?'Test?'?"
                                 "?'HIXYZ:3:1+@4@'+:?+b?+c+@2@?'+:@5@x'+:y:@1@'+d'";
        const QByteArray message = "HNHBK:1:3+1'HNVSK:998:3+2:13:@8@'''''''':5'HNVSD:999:1+@"
            + QByteArray::number(inner.size()) + "@" + inner + "'HNHBS:4:1+1'";
        const cShield shield(message);
        QVERIFY(!shield.IsCut());
        const QList<QByteArray> lines = Each(SegmentsOf(shield), [](const cWireSegment& segment) {
            return QByteArray(segment.Head.toByteArray() + " | " + Copied(segment.Elements).join(" | "));
        });
        const QList<QByteArray> expected{
            "HNHBK:1:3 | 1",
            "HNVSK:998:3 | 2:13:@8@'''''''':5",
            "HNVSD:999:1 | @" + QByteArray::number(inner.size()) + "@",
            "HIRMG:2:2 | 0010::Ist das ein ?'Test?'??",
            "HIXYZ:3:1 | @4@'+:? | b?+c | @2@?' | :@5@x'+:y:@1@' | d",
            "HNHBS:4:1 | 1",
        };
        QCOMPARE(lines, expected);
    }

    void EscapesWhatIsTypedOnce()
    {
        using namespace modFintsValue;
        QCOMPARE(Escaped(u"a?b'c+d:e@f"_s), QByteArray("a??b?'c?+d?:e?@f"));
        QCOMPARE(Escaped(u"Größe 5 €"_s), u"Größe 5 ??"_s.toLatin1());
        QCOMPARE(Unescaped("xH2et?+UL/?"), u"xH2et+UL/?"_s); // an escape at its end too
        QCOMPARE(CHBCIDate({}), QByteArray());
    }

    void SeesWhatIsCutOff_data()
    {
        const cTestRows<QByteArray, bool> row("message", "isCut");
        row("whole", "A+@3@abc'", false);
        row("cut", "A+@5@abc'", true);
        row("longer than the container", "HNVSD:1:1+@9@A:1+@5@bc'D'", true);
        row("length beyond all numbers", "A+@99999999999999999999@'B'", true);
        row("no length", "A+@b@'", false);
    }
    void SeesWhatIsCutOff()
    {
        QFETCH(QByteArray, message);
        QTEST(cShield(message).IsCut(), "isCut");
    }
};

TEST_CLASS(testFintsSplit, QCoreApplication)
#include "testFintsSplit.moc"
