#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* statement = ":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C260201EUR900,00\r\n"
                                  ":61:260203D23,10N024NONREF\r\n:86:106?00KARTENZAHLUNG?20SVWZ+Danke?32REWE Markt\r\n"
                                  ":61:260205D4,20N024NONREF\r\n:86:106?00KARTENZAHLUNG?20SVWZ+Brezen?32Korn\r\n"
                                  ":62F:C260205EUR872,70\r\n-\r\n";

} // namespace

// The user's own rules from the command line, end to end: the program itself on a new book each time.
class testCliRules final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Renew();
        m_file = Write(u"giro.sta"_s, statement);
        Do(u"import|"_s + m_file + u"|--book-account|Girokonto|--keep-start"_s);
        Do(u"rules|add|--text|brezen|--kind|Ausgabe|--account|Girokonto|--category|Freizeit; Kino / Theater"_s);
        Do(u"rules|add|--counterparty|Korn|--category|Haushalt; Getränke|--interval|monatlich|--description|Brot"_s);
    }

    void ListAndOrder()
    {
        QCOMPARE(List(u"Rows"_s), QStringList({u"1"_s, u"0"_s}));
        QCOMPARE(List(u"EntryAccount"_s), QStringList({u"Girokonto"_s, QString()}));
        Do(u"rules|move|2|1"_s);
        QCOMPARE(List(u"Rows"_s), QStringList({u"1"_s, u"0"_s}));
        QCOMPARE(List(u"EntryInterval"_s), QStringList({u"Monatlich"_s, QString()}));
        Do(u"rules|switch|1|off"_s);
        QCOMPARE(List(u"Rows"_s), QStringList({u"0"_s, u"1"_s}));
        QVERIFY(Do(u"rules"_s).Out.contains(u"Text enthält 'brezen', Ausgabe, Konto Girokonto"_s));
        QCOMPARE(Run(u"rules|delete|1"_s).Code, 1);
        Do(u"rules|delete|1|--yes"_s);
        QCOMPARE(List(u"Text"_s), QStringList(u"brezen"_s));
    }

    // The rule shows in what is proposed, and a file can be tried without reading it in.
    void Applied()
    {
        QCOMPARE(Do(u"propose|--json"_s).Column(u"Reason"_s),
                 QStringList({u"Regel: rewe"_s, u"Eigene Regel: brezen"_s}));
        Do(u"rules|move|2|1"_s);
        const QJsonArray rows = Do(u"rules|test|--json|"_s + m_file).Json();
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows.at(0)[u"Rule"_s].isNull());
        QCOMPARE(rows.at(1)[u"Rule"_s][u"EntryDescription"_s].toString(), u"Brot"_s);
        QCOMPARE(Do(u"rules|test|2|--json"_s).Json().at(0)[u"Rule"_s][u"Number"_s].toInt(), 1);
    }

    void FromARow()
    {
        Do(u"rules|add|--from|2|--category|Haushalt; Getränke"_s);
        QCOMPARE(List(u"Counterparty"_s), QStringList({u"Korn"_s, QString(), u"Korn"_s})); // before the one it had
        QCOMPARE(List(u"EntryType"_s).constFirst(), u"Ausgabe"_s);
    }

    void Refused_data() const
    {
        const cTestRows<QString, int> row("line", "code");
        row("no condition", u"rules|add|--category|Haushalt"_s, 1);
        row("no such category", u"rules|add|--text|x|--category|Rohrpost"_s, 1);
        row("no kind of a bank's", u"rules|add|--text|x|--kind|Umbuchung|--category|Haushalt"_s, 2);
        row("no such rule", u"rules|delete|3|--yes"_s, 1);
        row("no number", u"rules|move|eins|2"_s, 2);
        row("neither on nor off", u"rules|switch|1|vielleicht"_s, 2);
        row("no such row", u"rules|test|99"_s, 1);
        row("no such file", u"rules|test|fehlt.sta"_s, 1);
    }

    void Refused()
    {
        QFETCH(const QString, line);
        QFETCH(const int, code);
        const cCliRun run = Run(line);
        QVERIFY2(run.Code == code && !run.Error.isEmpty(), qPrintable(run.Text()));
        QCOMPARE(List(u"Number"_s), QStringList({u"1"_s, u"2"_s}));
    }

private:
    [[nodiscard]] QStringList List(const QString& name) { return Do(u"rules|--json"_s).Column(name); }

    QString m_file;
};

TEST_CLASS(testCliRules, QCoreApplication)
#include "testCliRules.moc"
