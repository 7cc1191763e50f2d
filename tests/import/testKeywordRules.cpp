#include "base/modAmount.h"
#include "import/propose/modKeywordRules.h"
#include "import/propose/modKeywordTable.h"
#include "import/read/modWildcard.h"
#include "model/cImportEntry.h"
#include "model/modWord.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testKeywordRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Wildcards_data()
    {
        const cTestRows<QString, QString, bool> row("pattern", "text", "isMatch");
        row("literal", u"abc"_s, u"abc"_s, true);
        row("case counts", u"abc"_s, u"Abc"_s, false);
        row("run", u"*b*"_s, u"abc"_s, true);
        row("empty run", u"a**c"_s, u"ac"_s, true);
        row("run is tried again", u"*aab*c"_s, u"aaabxaabc"_s, true);
        row("one character", u"a?c"_s, u"ac"_s, false);
        row("digit", u"nr #"_s, u"nr 7"_s, true);
        row("no digit", u"nr #"_s, u"nr x"_s, false);
        row("class", u"*ga nr[0-9][0-9][0-9]*"_s, u"ga nr123 bargeld"_s, true);
        row("class too short", u"*ga nr[0-9][0-9][0-9]*"_s, u"ga nr12 bargeld"_s, false);
        row("list", u"[abx-z]"_s, u"y"_s, true);
        row("negated", u"[!0-9]"_s, u"5"_s, false);
        row("dash at the end", u"[a-]"_s, u"-"_s, true);
        row("open bracket is a character", u"a[b"_s, u"a[b"_s, true);
        row("nothing", {}, {}, true);
    }

    void Wildcards()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QTEST(modWildcard::Matches(text, pattern), "isMatch");
    }

    void MatchesByKeyword_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::addColumn<eRestriction>("restriction");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("interval");
        QTest::addColumn<QString>("keyword");
        const auto row = [](const char* name, const QString& text, double value, const QString& category,
                            const QString& interval, const QString& keyword,
                            eRestriction restriction = eRestriction::None) {
            QTest::newRow(name) << text << value << restriction << category << interval << keyword;
        };
        const QString once = modWord::Einmalig;
        const QString monthly = u"Monatlich"_s;
        const QString none;
        row("groceries", u"rewe sagt danke"_s, -23.1, u"Haushalt; Lebensmittel"_s, once, u"rewe"_s);
        row("rent paid", u"miete"_s, -650, u"Wohnung; Miete"_s, monthly, u"miete"_s);
        row("rent received", u"miete"_s, 650, u"Einkommen; Mieteinnahmen"_s, monthly, u"miete"_s);
        row("petrol paid", u"aral tankstelle"_s, -50, u"Auto; Benzin"_s, once, u"aral"_s);
        row("petrol paid back", u"aral tankstelle"_s, 50, none, none, none);
        row("zero is not positive", u"zinsen"_s, 0, none, none, none);
        row("later rule wins", u"kindergeld familienkasse"_s, 250, u"Einkommen; Kindergeld"_s, monthly,
            u"familienkasse"_s);
        row("cash by pattern", u"ga nr123 geld"_s, -50, u"Allgemein; Barauszahlung"_s, once,
            u"*ga nr[0-9][0-9][0-9]*"_s);
        row("first alternative is named", u"bargeld geldautomat"_s, -50, u"Allgemein; Barauszahlung"_s, once, u"bar"_s);
        row("cash paid in", u"bareinzahlung"_s, 50, u"Allgemein; Bareinzahlung"_s, once, u"bar"_s);
        row("uncertain left out", u"bargeld"_s, -50, none, none, none, eRestriction::Restricted);
        row("pattern with a run", u"autoversicherung"_s, -300, u"Auto; Kfz-Steuer / Versicherung"_s, u"Jährlich"_s,
            u"autovers*"_s);
        row("both keywords needed", u"startguthaben"_s, 1, none, none, none);
        row("both keywords there", u"startguthaben synchronisation"_s, 1, u"Allgemein; Startguthaben"_s, once,
            u"startguthaben"_s);
        row("interval only", u"telekom amazon"_s, -20, u"Wohnung; Internet und Telefon"_s, once, u"telekom"_s);
        row("interval and nothing else", u"deichmann"_s, 20, none, once, none);
        row("shoes", u"deichmann"_s, -20, u"Alltag; Schuhe"_s, once, u"deichmann"_s);
        row("advertising", u"google adsense"_s, -20, u"Beruf; Werbungskosten"_s, once, u"google"_s);
        row("advertising, sure", u"google adsense"_s, -20, u"Einkommen; Freiberuflich"_s, once, u"google adsense"_s,
            eRestriction::Restricted);
        row("inside a word", u"tobias"_s, -1, u"Haushalt"_s, once, u"obi"_s);
        row("unknown", u"xyz"_s, -1, none, none, none);
    }

    void MatchesByKeyword()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(eRestriction, restriction);
        const modKeywordRules::cMatch match =
            modKeywordRules::Last(modKeywordRules::Hits(text, modAmount::ToCents(value)), restriction);
        QTEST(match.Category, "category");
        QTEST(match.Interval, "interval");
        QTEST(match.Keyword, "keyword");
    }

    void MatchTextJoinsTheFields()
    {
        cImportEntry row;
        row.ImportBeneficiary = u"REWE"_s;
        row.ImportPurpose = u"Ein\r\nKAUF"_s;
        row.ImportType = u"ÜBERWEISUNG"_s;
        QCOMPARE(modKeywordRules::MatchText(row), u"rewe|einkauf|überweisung"_s);
    }

    // A slip of the pen in an interval would make entries that no period ever shows.
    void TableUsesStoredWords()
    {
        for (const modKeywordTable::cRule& rule : modKeywordTable::Rules()) {
            QVERIFY2(modWord::Intervals().Contains(QString::fromUtf8(rule.Interval)), rule.Keywords);
            QCOMPARE(QString::fromUtf8(rule.Keywords), QString::fromUtf8(rule.Keywords).toLower());
            for (const QString& alternative : QString::fromUtf8(rule.Keywords).split(u'|')) {
                QVERIFY2(!alternative.isEmpty(), rule.Keywords);
            }
        }
    }
};

TEST_CLASS(testKeywordRules, QCoreApplication)
#include "testKeywordRules.moc"
