#include "base/cText.h"
#include "base/cVocabulary.h"
#include "base/modDate.h"
#include "base/modFold.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Placeholders() const
    {
        QCOMPARE(cText::Fill(u"{0} von {1}, {0}"_s, {u"a"_s, u"b"_s}), u"a von b, a"_s);
        QCOMPARE(cText::Fill(u"{0}"_s, {u"{1}"_s, u"b"_s}), u"{1}"_s); // a value is not filled again
        QCOMPARE(cText::Fill(u"{2} {x} {"_s, {u"a"_s}), u"{2} {x} {"_s);
    }

    void Dates_data() const
    {
        const cTestRows<QString, QDate> row("text", "date");
        row("day", u"2024-02-29"_s, QDate(2024, 2, 29));
        row("with time", u"2024-02-29 12:30:00"_s, QDate(2024, 2, 29));
        row("day that does not exist", u"2023-02-29"_s, {});
        row("longer without time", u"2024-02-291"_s, {});
        row("short", u"2024-2-9"_s, {});
        row("sign instead of digit", u"2024-02--1"_s, {});
        row("German", u"29.02.2024"_s, {});
    }

    void Dates() const
    {
        QFETCH(const QString, text);
        QTEST(modDate::FromIso(text), "date");
    }

    void GermanDates() const
    {
        QCOMPARE(modDate::ToGerman(QDate(2024, 2, 9)), u"09.02.2024"_s);
        QCOMPARE(modDate::FromGerman(u" 9.2.24 "_s), QDate(2024, 2, 9));
        QCOMPARE(modDate::FromGerman(u"09.02.2024"_s), QDate(2024, 2, 9));
        QVERIFY(!modDate::FromGerman(u"31.4.2024"_s).isValid());
        QVERIFY(!modDate::FromGerman(u"9.2"_s).isValid());
        QVERIFY(modDate::ToIso(QDate(12000, 1, 1)).isEmpty());
    }

    void Search_data() const
    {
        const cTestRows<QString, QString, bool> row("text", "search", "isFound");
        row("umlaut left out", u"Müller"_s, u"muller"_s, true);
        row("umlaut spelled out", u"Müller"_s, u"mueller"_s, true);
        row("umlaut in the search", u"Mueller"_s, u"müller"_s, true);
        row("sharp s", u"Straße"_s, u"STRASSE"_s, true);
        row("accent", u"Café"_s, u"cafe"_s, true);
        row("capital umlaut", u"ÜBERWEISUNG"_s, u"ueber"_s, true);
        row("capital accent", u"ÉCLAIR"_s, u"eclair"_s, true);
        row("letter of the east", u"Škoda – Dvořák"_s, u"dvorak skoda"_s, true);
        row("letter and mark apart", u"Cafe\u0301"_s, u"café"_s, true);
        row("sign that has no case", u"25 × 4 €"_s, u"× €"_s, true);
        row("words in any order", u"Miete Wohnung März"_s, u"maerz  miete"_s, true);
        row("one word missing", u"Miete Wohnung"_s, u"miete strom"_s, false);
        row("nothing asked", u"Miete"_s, u" "_s, true);
    }

    void Search() const
    {
        QFETCH(const QString, text);
        QFETCH(const QString, search);
        QTEST(modFold::HoldsAll(modFold::Fold(text), modFold::Words(search)), "isFound");
    }

    void FindsInAllTextsAtOnce_data() const
    {
        const cTestRows<QString, QList<int>> row("word", "found");
        row("several times in one text", u"a"_s, {0, 1, 2, 4});
        row("spelled out", u"baecker"_s, {1, 4});
        row("umlaut in the search", u"bäcker"_s, {1, 4});
        row("umlaut in the search, none in the text", u"größe"_s, {5});
        row("not across two texts", u"ab"_s, {});
    }

    void FindsInAllTextsAtOnce() const
    {
        QFETCH(const QString, word);
        QFETCH(const QList<int>, found);
        modFold::cTexts texts;
        const QStringList all{u"Banana"_s, u"Bäckerei"_s, u"Café"_s, QString(), u"baeckerei"_s, u"Groesse"_s};
        for (int i = 0; i < all.size(); ++i) {
            QCOMPARE(texts.Add(all.at(i)), i);
        }
        const std::vector<bool> isFound = texts.Find(modFold::Fold(word));
        for (int i = 0; i < all.size(); ++i) {
            QCOMPARE(isFound.at(static_cast<size_t>(i)), found.contains(i));
        }
    }

    void UnknownWordsStay() const
    {
        const cVocabulary words({"Einmalig", "Täglich"});
        QVERIFY(words.Contains(u"Täglich"_s));
        QCOMPARE(words.ToStored(u"Alle 5 Tage"_s), u"Alle 5 Tage"_s);
        QCOMPARE(words.ToShown(u"Täglich"_s), u"Täglich"_s);
    }
};

TEST_CLASS(testText, QCoreApplication)
#include "testText.moc"
