#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/cRuleMatcher.h"
#include "import/propose/modOwnRule.h"
#include "model/cTemplateItem.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate day(2026, 1, 10);

cImportEntry Row(double value, const QString& name, const QString& purpose, const QString& account = {})
{
    cImportEntry row = BankRow(u"111"_s, day, modAmount::ToCents(value), name, purpose, account);
    row.ImportType = u"KARTENZAHLUNG"_s;
    return row;
}

cOwnRule Food(const QString& text)
{
    cOwnRule rule;
    rule.Text = text;
    rule.Category = u"Haushalt; Lebensmittel"_s;
    return rule;
}

struct cBank : cBankBook
{
    cProposal Propose(const cImportEntry& row) { return cImportBook::Propose(Stage(row)); }

    void Keep(const QList<cOwnRule>& rules) { QVERIFY(cOwnRules(*Settings).Save(rules)); }
};

// What a proposal says, in one line.
QString Said(const cProposal& proposal)
{
    const cEntryItem& entry = proposal.Entry;
    return QStringList{entry.EntryCategory, entry.EntryInterval, entry.EntryDescription, proposal.Reason}.join(u'|');
}

} // namespace

class testOwnRules final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Matches_data() const
    {
        QTest::addColumn<cOwnRule>("rule");
        QTest::addColumn<bool>("isMatch"); // of the row below
        const auto text = [](const char* name, const QString& pattern, bool isMatch) {
            QTest::newRow(name) << Food(pattern) << isMatch;
        };
        text("counterparty", u"Müller"_s, true);
        text("purpose, other case", u"BREZEN"_s, true);
        text("booking text", u"kartenzahlung"_s, true);
        text("second alternative", u"rewe | brezen"_s, true);
        text("run of characters", u"korn*brezen"_s, true);
        text("run in the wrong order", u"brezen*korn"_s, false);
        text("digit", u"nr 1#"_s, true);
        text("class", u"nr [2-9]"_s, false);
        text("doubled blanks", u"korn  und   brezen"_s, true);
        text("word cut by the line", u"sonntagsbrot"_s, true);
        text("words parted by the line", u"brot am"_s, true);
        text("nothing but separators", u"|"_s, false);
        const auto counterparty = [](const char* name, const QString& given, bool isMatch) {
            cOwnRule rule = Food({});
            rule.Counterparty = given;
            QTest::newRow(name) << rule << isMatch;
        };
        counterparty("its name", u"mühle  müller"_s, true);
        counterparty("part of its name", u"Müller"_s, false);
        counterparty("its account", u"DE44 1002 0030 0000 0008 15"_s, true);
        counterparty("its account in the old form", u"0000000815"_s, true);
        counterparty("another account of the same end", u"DE44100200300000001815"_s, false);
        const auto sign = [](const char* name, eRuleSign wanted, const QString& account, bool isMatch) {
            cOwnRule rule = Food({});
            rule.Sign = wanted;
            rule.Account = account;
            QTest::newRow(name) << rule << isMatch;
        };
        sign("money going out", eRuleSign::Out, {}, true);
        sign("money coming in", eRuleSign::In, {}, false);
        sign("own account by name", eRuleSign::Any, u"Girokonto"_s, true);
        sign("own account by number", eRuleSign::Any, u"0000111000"_s, true);
        sign("another own account", eRuleSign::Out, u"Sparkonto"_s, false);
        cOwnRule off = Food(u"brezen"_s);
        off.IsOn = false;
        QTest::newRow("switched off") << off << false;
    }

    void Matches() const
    {
        QFETCH(const cOwnRule, rule);
        QFETCH(const bool, isMatch);
        cImportEntry row = Row(-4.2, u"Mühle Müller"_s, u"Korn und Brezen  Nr 17 Sonntags\nbrot\nam Markt"_s,
                               u"DE44100200300000000815"_s);
        row.ImportAccount = u"111000"_s;
        QCOMPARE(cRuleMatcher({rule}).Find(cRuleRow(row, u"Girokonto"_s)), isMatch ? 0 : -1);
    }

    void FirstOneWins() const
    {
        cOwnRule off = Food(u"brezen"_s);
        off.IsOn = false;
        const cRuleMatcher matcher({off, Food(u"rewe"_s), Food(u"brez"_s), Food(u"brezen"_s)});
        QCOMPARE(matcher.Find(cRuleRow(Row(-1, u"Korn"_s, u"Brezen"_s), {})), 2);
    }

    void StoredLines_data() const
    {
        const cTestRows<QString, bool> row("line", "isReadable");
        row("separator that is not escaped", u"1;text=a;category=A; B"_s, false);
        row("all fields",
            u"1;off;sign=in;text=a%3bb=c%25|d;counterparty=Müller & Söhne;account=Giro;"
            "category=A%3b B;interval=Monatlich;description=x%0ay"_s,
            true);
        row("the least", u"1;sign=out;category=A"_s, true);
        row("later version", u"2;text=a;category=A"_s, false);
        row("condition that is not known", u"1;text=a;weekday=3;category=A"_s, false);
        row("broken escape", u"1;text=a%zz;category=A"_s, false);
        row("no such interval", u"1;text=a;interval=Oft"_s, false);
        row("no condition", u"1;category=A"_s, false);
        row("nothing to set", u"1;text=a"_s, false);
        row("other text", u"rewe"_s, false);
    }

    // Whatever is stored comes out again as it was, and what cannot be read does nothing.
    void StoredLines() const
    {
        QFETCH(const QString, line);
        QFETCH(const bool, isReadable);
        const cOwnRule rule = modOwnRule::FromLine(line);
        QCOMPARE(rule.Unreadable.isEmpty(), isReadable);
        QCOMPARE(rule.HasCondition() && rule.HasResult(), isReadable);
        QCOMPARE(modOwnRule::ToLine(rule), line);
    }

    void Proposals_data() const
    {
        const cTestRows<cOwnRule, cImportEntry, QString> row("rule", "row", "said");
        const cImportEntry power = Row(-60, u"Stadtwerke"_s, u"Abschlag"_s);
        const cImportEntry unknown = Row(-60, u"Tann"_s, u"Abschlag"_s);
        cOwnRule rule = Food(u"abschlag"_s);
        row("before a keyword, whose interval does not count", rule, power,
            u"Haushalt; Lebensmittel|Einmalig|Stadtwerke - Abschlag|Eigene Regel: abschlag"_s);
        rule.Category = u"Wohnung; Strom"_s;
        row("the category of the keyword keeps its interval", rule, power,
            u"Wohnung; Strom|Monatlich|Stadtwerke - Abschlag|Eigene Regel: abschlag"_s);
        rule.Interval = u"Jährlich"_s;
        rule.Description = u"Strom"_s;
        row("everything", rule, power, u"Wohnung; Strom|Jährlich|Strom|Eigene Regel: abschlag"_s);
        rule.Category.clear();
        row("all but the category", rule, power,
            u"Wohnung; Strom|Jährlich|Strom|Regel: stadtwerke; Eigene Regel: abschlag"_s);
        row("default category", rule, unknown, u"Allgemein|Jährlich|Strom|Eigene Regel: abschlag"_s);
    }

    void Proposals() const
    {
        QFETCH(const cOwnRule, rule);
        QFETCH(const cImportEntry, row);
        cBank bank;
        bank.Keep({rule});
        QTEST(Said(bank.Propose(row)), "said");
    }

    void BeforeWhatWasLearned() const
    {
        cBank bank;
        const int first = bank.Stage(Row(-5, u"Korn"_s, u"Brot"_s));
        cEntryItem entry = bank.cImportBook::Propose(first).Entry;
        entry.EntryCategory = u"Freizeit"_s;
        QVERIFY(bank.BookAs(first, entry));
        QCOMPARE(bank.Propose(Row(-6, u"Korn"_s, u"Brot"_s)).Entry.EntryCategory, u"Freizeit"_s);
        bank.Keep({Food(u"brot"_s)});
        QCOMPARE(bank.Propose(Row(-7, u"Korn"_s, u"Brot"_s)).Entry.EntryCategory, u"Haushalt; Lebensmittel"_s);
    }

    void TransferStaysATransfer() const
    {
        cBank bank;
        bank.Keep({Food(u"sparen"_s)});
        const cProposal proposal = bank.Propose(Row(-50, u"Ich"_s, u"Sparen"_s, u"222"_s));
        QCOMPARE(proposal.Entry.EntryType, modWord::Umbuchung);
        QCOMPARE(proposal.Entry.EntryCategory, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(proposal.Reason, u"eigenes Konto: an Sparkonto; Eigene Regel: sparen"_s);
    }

    void FromARow_data() const
    {
        const cTestRows<cImportEntry, QString, QString> row("row", "text", "counterparty");
        row("name", Row(-5, u"REWE  Markt"_s, u"Einkauf"_s), {}, u"REWE Markt"_s);
        row("account only", Row(-5, {}, u"Miete"_s, u"DE44100200300000000815"_s), {}, u"DE44100200300000000815"_s);
        row("purpose only", Row(5, {}, u"Rechnung 4711 Vereinsbeitrag Kletterhalle vom 3.4."_s),
            u"Vereinsbeitrag Kletterhalle"_s, {});
        row("words apart", Row(5, {}, u"Kletterhalle, Ref AB12CD Beitrag"_s), u"Kletterhalle*Beitrag"_s, {});
        row("one that collects for others", Row(-5, u"PayPal Europe"_s, u"PP.1234.PP Ihr Einkauf bei Strickwaren24"_s),
            u"Einkauf"_s, u"PayPal Europe"_s);
        row("nothing but the booking text", Row(-5, {}, u"0815"_s), u"KARTENZAHLUNG"_s, {});
    }

    void FromARow() const
    {
        QFETCH(const cImportEntry, row);
        const cOwnRule rule = modOwnRule::FromRow(row);
        QTEST(rule.Text, "text");
        QTEST(rule.Counterparty, "counterparty");
        QCOMPARE(rule.Sign, row.ImportValue > 0 ? eRuleSign::In : eRuleSign::Out);
        QCOMPARE(cRuleMatcher({rule}).Find(cRuleRow(row, {})), 0);
    }

    // Whoever names it: what was hidden since is nothing that goes into the book unseen.
    void HiddenCategoryIsLookedAt()
    {
        cBank bank;
        bank.Keep({Food(u"penny"_s)});
        const int first = bank.Stage(Row(-10, u"REWE Markt"_s, {}));
        QCOMPARE(bank.BookAll({first}).Rows, 1);
        const QStringList names{u"Edeka"_s, u"REWE Markt"_s, u"Penny"_s}; // by a keyword, learned, by the rule
        for (const QString& name : names) {
            QVERIFY2(bank.Propose(Row(-12, name, {})).IsSure, qPrintable(name));
        }
        cTemplateItemList items = bank.Data.GetTemplates();
        items.removeIf([](const cTemplateItem& item) { return modTemplate::NameOf(item) != Food({}).Category; });
        items.first().TemplateVisible = u"0"_s;
        QVERIFY(bank.Data.ChangeTemplate(items.first()));
        for (const QString& name : names) {
            const cProposal proposal = bank.Propose(Row(-12, name, {}));
            QVERIFY2(!proposal.IsSure && proposal.Reason.endsWith("; die Kategorie steht nicht zur Auswahl"_L1),
                     qPrintable(proposal.Reason));
        }
    }
};

TEST_CLASS(testOwnRules, QCoreApplication)
#include "testOwnRules.moc"
