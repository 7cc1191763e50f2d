#include "base/modSimilar.h"
#include "support/cTestClass.h"

#include <QRandomGenerator>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

// The measure as its definition says it, place by place.
struct cPlain
{
    QString A;
    QString B;

    [[nodiscard]] qsizetype Count(qsizetype firstA, qsizetype endA, qsizetype firstB, qsizetype endB) const
    {
        qsizetype inA = 0;
        qsizetype inB = 0;
        qsizetype longest = 0;
        for (qsizetype a = firstA; a < endA; ++a) {
            for (qsizetype b = firstB; b < endB; ++b) {
                qsizetype length = 0;
                while (a + length < endA && b + length < endB && A.at(a + length) == B.at(b + length)) {
                    ++length;
                }
                if (length > longest) {
                    longest = length;
                    inA = a;
                    inB = b;
                }
            }
        }
        return longest == 0
            ? 0
            : longest + Count(firstA, inA, firstB, inB) + Count(inA + longest, endA, inB + longest, endB);
    }

    [[nodiscard]] double Ratio() const
    {
        const auto both = static_cast<double>(A.size() + B.size());
        if (both / 4.0 < static_cast<double>(qAbs(A.size() - B.size()))) {
            return 0.0;
        }
        if (A == B) {
            return 1.0;
        }
        return A.isEmpty() || B.isEmpty() ? 0.0 : 2.0 * static_cast<double>(Count(0, A.size(), 0, B.size())) / both;
    }
};

QString UpperCase(QString text)
{
    for (QChar& c : text) {
        c = c.toUpper(); // letter by letter: the length stays
    }
    return text;
}

// A purpose as a bank sends it, cut to at most `length` characters.
QString Purpose(QRandomGenerator& random, qsizetype length)
{
    static const QStringList words{
        u"Miete"_s,        u"März"_s,        u"SVWZ+"_s,   u"Rechnung"_s, u"Straße"_s,   u"Müller"_s,
        u"sagt Danke"_s,   u"Überweisung"_s, u"EREF+"_s,   u"Nr."_s,      u"Beiträge"_s, u"Kartenzahlung"_s,
        u"Kundennummer"_s, u"straße"_s,      u"Größe €"_s, u"Žižkov"_s,   u"Łódź"_s,     u"Mitgliedsbeitrag"_s,
        u"Abschlag"_s};
    QString text;
    while (text.size() < length) {
        text +=
            random.bounded(3) == 0 ? QString::number(random.bounded(100000)) : words.at(random.bounded(words.size()));
        text += u' ';
    }
    return text.left(length);
}

// Few letters make many runs of equal length, where the order of the search decides.
QString Letters(QRandomGenerator& random, int alphabet, int length)
{
    QString text;
    for (int i = 0; i < length; ++i) {
        text += QChar(static_cast<char16_t>(u'a' + random.bounded(alphabet)));
    }
    return text;
}

int Length(QRandomGenerator& random, int i)
{
    const int longest = i % 400 == 0 ? 620 : i % 25 == 0 ? 200 : 40;
    return random.bounded(longest);
}

} // namespace

class testSimilar final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Ratio_data() const
    {
        const cTestRows<QString, QString, double> row("a", "b", "ratio");
        row("case does not count", u"Miete"_s, u"MIETE"_s, 1.0);
        row("umlauts too have a case", u"grün"_s, u"GRÜN"_s, 1.0);
        row("a letter whose capital lies far off", u"Łódź"_s, u"łÓDŹ"_s, 1.0);
        row("sharp s stays one letter", u"Straße"_s, u"STRASSE"_s, 10.0 / 13.0);
        row("foreign letters are not all the same", u"Дм"_s, u"на"_s, 0.0);
        row("lengths too far apart", u"abc"_s, u"abcdefghijklmnop"_s, 0.0);
        row("lengths just near enough", u"abc"_s, u"abcde"_s, 0.75);
        row("one is empty", u"Lastschrift"_s, {}, 0.0);
        row("both are empty", {}, u""_s, 1.0);
        row("first run in a, though the second leaves more", u"xyab-q"_s, u"ab+qxy"_s, 1.0 / 3.0);
        row("first run in b", u"ab?c"_s, u"ab!cab"_s, 0.6);
    }

    void Ratio() const
    {
        QFETCH(const QString, a);
        QFETCH(const QString, b);
        QTEST(modSimilar::Similarity(a, b), "ratio");
    }

    void EqualsThePlainRecursion_data() const
    {
        QTest::addColumn<int>("alphabet"); // 0: German purposes
        for (const int alphabet : {0, 1, 2, 3, 5, 26}) {
            QTest::addRow("%d letters", alphabet) << alphabet;
        }
    }

    void EqualsThePlainRecursion() const
    {
        QFETCH(const int, alphabet);
        QRandomGenerator random(7);
        for (int i = 0; i < 1500; ++i) {
            const int length = Length(random, i);
            const int other = qMax(0, length + random.bounded(-length / 2 - 2, length / 2 + 3));
            const QString a = alphabet == 0 ? Purpose(random, length) : Letters(random, alphabet, length);
            const QString b = alphabet == 0 ? Purpose(random, other) : Letters(random, alphabet, other);
            const double expected = cPlain{UpperCase(a), UpperCase(b)}.Ratio();
            QVERIFY2(modSimilar::Similarity(a, b) == expected, qPrintable(a + u" / " + b));
        }
    }
};

TEST_CLASS(testSimilar, QCoreApplication)
#include "testSimilar.moc"
