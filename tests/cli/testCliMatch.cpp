#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Two purchases and a rent, which was raised.
constexpr const char* statement =
    ":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C260201EUR900,00\r\n"
    ":61:260203D23,10N024NONREF\r\n:86:106?00KARTENZAHLUNG?20SVWZ+Danke?32REWE Markt\r\n"
    ":61:260204D660,00N024NONREF\r\n:86:106?00DAUERAUFTRAG?20SVWZ+Miete Februar?32Tann\r\n"
    ":61:260205D4,20N024NONREF\r\n:86:106?00KARTENZAHLUNG?20SVWZ+Brezen?32Korn\r\n"
    ":62F:C260205EUR212,70\r\n-\r\n";

} // namespace

// Matching from the command line, end to end: the program itself on a new book each time.
class testCliMatch final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Renew();
        const QString file = Write(u"giro.sta"_s, statement);
        m_rent = Add(u"Ausgabe|--date|2026-01-01|--amount|650|--category|Wohnung; Miete|--interval|Monatlich|"
                     "--text|Miete Tann"_s);
        m_food = Add(u"Ausgabe|--date|2026-02-02|--amount|23,10|--category|Haushalt; Lebensmittel|--text|REWE"_s);
        Do(u"import|"_s + file + u"|--book-account|Girokonto|--keep-start"_s);
        m_rows = Do(u"staged|--json"_s).Column(u"ID"_s);
        QCOMPARE(m_rows.size(), 3);
    }

    void Match()
    {
        const cCliRun tried = Do(u"match|--dry-run|--json"_s);
        QCOMPARE(Assigned(), QStringList({u"-1"_s, u"-1"_s, u"-1"_s}));
        const cCliRun done = Do(u"match|--json"_s);
        QCOMPARE(done.Out, tried.Out);
        QCOMPARE(done.Column(u"State"_s), QStringList({u"assigned"_s, u"assigned"_s, u"left"_s}));
        QCOMPARE(Assigned(), QStringList({m_food, m_rent, u"-1"_s}));
        // The bank's day is taken, the amount only when that is wanted.
        QCOMPARE(Do(u"correct|--json|--list|"_s + m_rent).Column(u"EntryValue"_s), QStringList(u"650"_s));
        QVERIFY(Do(u"match"_s).Out.contains(u"Zugeordnet: 0, vorgeschlagen: 0, offen: 1"_s));
    }

    void MatchCorrects()
    {
        Do(u"match|--correct"_s);
        QCOMPARE(Do(u"correct|--json|--list|"_s + m_rent).Column(u"EntryValue"_s), QStringList(u"660"_s));
    }

    // Nobody is asked: what is there is left open by "book", assigned with an option, and by the safe part alone.
    void BookLeavesOpenWhatIsThere()
    {
        QCOMPARE(Do(u"propose|--json"_s).Column(u"Group"_s).first(2), QStringList({u"inBook"_s, u"inBook"_s}));
        QVERIFY(Do(u"book|"_s + m_rows.at(0)).Out.contains(u"Offen bleiben: 1"_s));
        QCOMPARE(Assigned().at(0), u"-1"_s);
        Do(u"book|--assign|"_s + m_rows.at(0));
        QCOMPARE(Assigned().at(0), m_food);
        Do(u"book|--all|--safe"_s);
        QCOMPARE(Assigned().at(1), m_rent);
    }

    void ImportBooksTheSafePart()
    {
        const QString file = Write(
            u"next.sta"_s, QByteArray(statement).replace("260203D23,10", "260220D9,99").replace("D4,20", "D4,30"));
        const cCliRun run = Do(u"import|--book|"_s + file);
        QVERIFY2(run.Out.contains(u"Offen bleiben: 1"_s), qPrintable(run.Text())); // of the new rows
        const QStringList assigned = Assigned();
        QCOMPARE(assigned.size(), 5);
        QVERIFY(assigned.at(3) != u"-1" && assigned.at(3) != m_food);
        QCOMPARE(assigned.at(4), u"-1"_s);
        QCOMPARE(assigned.first(3), QStringList({u"-1"_s, u"-1"_s, u"-1"_s}));
    }

    // A series that goes on has the bank's amount, whatever is said of rows that have an entry.
    void BookedToTheSeriesThatGoesOn()
    {
        Do(u"book|--assign|"_s + m_rows.at(1));
        Do(u"change|"_s + m_rent + u"|--end|28.2.2026"_s);
        const QString file =
            Write(u"next.sta"_s,
                  QByteArray(statement).replace("2602", "2603").replace("D660,", "D670,").replace("EUR212", "EUR202"));
        Do(u"import|"_s + file);
        Do(u"book|--all"_s);
        QCOMPARE(Do(u"correct|--json|--list|"_s + m_rent).Column(u"EntryValue"_s), QStringList({u"660"_s, u"670"_s}));
    }

    void AssignAndRelease()
    {
        QCOMPARE(Do(u"match|--json|--candidates|"_s + m_rows.at(0)).Column(u"EntryID"_s), QStringList(m_food));
        Do(u"assign|"_s + m_rows.at(2) + u'|' + m_food);
        Do(u"assign|--correct|"_s + m_rows.at(1) + u'|' + m_rent + u"|1.2.2026"_s);
        QCOMPARE(Assigned(), QStringList({u"-1"_s, m_rent, m_food}));
        QCOMPARE(Do(u"correct|--json|--list|"_s + m_rent).Column(u"EntryStartDate"_s), QStringList(u"2026-02-01"_s));
        Do(u"release|"_s + m_rows.at(1) + u'|' + m_rows.at(2));
        QCOMPARE(Assigned(), QStringList({u"-1"_s, u"-1"_s, u"-1"_s}));
    }

    void Refused_data() const
    {
        // line: {0} the first row, {r} the rent, {f} the purchase
        const cTestRows<QString, int> row("line", "code");
        row("no such row", u"assign|999|{f}"_s, 1);
        row("no such entry", u"assign|{0}|999"_s, 1);
        row("no number", u"assign|eins|{f}"_s, 2);
        row("another occurrence", u"assign|{0}|{r}|1.3.2026"_s, 1);
        row("a day of what is no series", u"assign|{0}|{f}|1.2.2026"_s, 1);
        row("not assigned", u"release|{0}"_s, 1);
        row("candidates of nothing", u"match|--candidates|999"_s, 1);
    }

    void Refused()
    {
        QFETCH(QString, line);
        QFETCH(const int, code);
        line.replace(u"{0}"_s, m_rows.at(0)).replace(u"{r}"_s, m_rent).replace(u"{f}"_s, m_food);
        const cCliRun run = Run(line);
        QVERIFY2(run.Code == code && !run.Error.isEmpty(), qPrintable(run.Text()));
        QCOMPARE(Assigned(), QStringList({u"-1"_s, u"-1"_s, u"-1"_s}));
    }

private:
    [[nodiscard]] QString Add(const QString& line)
    {
        return Do(u"add|--json|--account|Girokonto|--kind|"_s + line).Column(u"ID"_s).value(0);
    }

    [[nodiscard]] QStringList Assigned() { return Do(u"staged|--json"_s).Column(u"ImportAssignedEntry"_s); }

    QStringList m_rows;
    QString m_rent;
    QString m_food;
};

TEST_CLASS(testCliMatch, QCoreApplication)
#include "testCliMatch.moc"
