#include "model/modTag.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

// What is a tag in a description, and what only looks like one.
class testTag final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Found_data()
    {
        const cTestRows<QString, QString> row("text", "tags");
        row("words", u"#urlaub Hotel #Kinder_2 am Meer"_s, u"#urlaub #Kinder_2"_s);
        row("umlauts", u"Grundgebühr #Müll-Abfuhr"_s, u"#Müll-Abfuhr"_s);
        row("digits with a letter", u"#2026urlaub"_s, u"#2026urlaub"_s);
        row("numbers", u"Rechnung #1, Los #2026-11, #"_s, u""_s);
        row("inside words and addresses", u"C# und a#b, https://x.de/#oben, ##doppelt"_s, u""_s);
        row("behind marks of addresses", u"https://app.de/?#login, x:#y, Rg.#RE2026-17, a!#b, c+#d"_s, u""_s);
        row("a list", u"#auto,#boot"_s, u"#auto #boot"_s);
        row("between punctuation", u"(#auto), \"#haus\": #boot! #rad-"_s, u"#auto #haus #boot #rad"_s);
        row("each once", u"#Auto #auto #AUTO"_s, u"#Auto"_s);
        row("one behind the other", u"#eins#zwei"_s, u"#eins"_s);
        row("nothing but marks", u"#- #_ #-1"_s, u""_s);
    }

    void Found()
    {
        QFETCH(QString, text);
        QTEST(modTag::Of(text).join(u' '), "tags");
    }

    void SameInAnySpelling()
    {
        QCOMPARE(modTag::Key(u"#MÜLL"_s), modTag::Key(u"#muell"_s));
        QVERIFY(modTag::Key(u"#mull"_s) != modTag::Key(u"#müll"_s));
        QCOMPARE(modTag::Keys(u"#Straße #strasse"_s), QStringList{u"#strasse"_s});
    }

    void Typed_data()
    {
        // text: "|" is the cursor
        const cTestRows<QString, QString> row("text", "typed");
        row("at the end", u"Hotel #ur|"_s, u"#ur"_s);
        row("mark alone", u"#|"_s, u"#"_s);
        row("in the middle", u"Hotel #ur| am Meer"_s, u"#ur"_s);
        row("behind it", u"Hotel #ur |"_s, u""_s);
        row("no tag", u"C#x|"_s, u""_s);
        row("empty", u"|"_s, u""_s);
    }

    void Typed()
    {
        QFETCH(QString, text);
        const qsizetype cursor = text.indexOf(u'|');
        text.remove(cursor, 1);
        const modTag::cPlace place = modTag::Typed(text, cursor);
        QTEST(text.mid(place.Start, place.Length), "typed");
    }
};

TEST_CLASS(testTag, QCoreApplication)
#include "testTag.moc"
