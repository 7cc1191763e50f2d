#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// No bank's layout, and no line names the account.
constexpr const char* table = "Tag;Was;Preis;Wert;Stand\n"
                              "03.02.2026;Br\xE4zeln;2,00;-4,20;gebucht\n"
                              "04.02.2026;Miete;3,00;-660,00;gebucht\n"
                              "05.02.2026;Kiosk;4,00;-1,00;geplant\n";

} // namespace

// Statements of all formats from the command line, end to end: the program itself on a new book each time.
class testCliImport final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Renew();
        m_table = Write(u"a.csv"_s, table);
    }

    void DryRunWritesNothing()
    {
        Do(u"balances"_s); // makes the book
        const QByteArray before = cTestFile::Bytes(Book());
        const QJsonObject tried = Do(u"import|%1|%2|--dry-run|--json"_s.arg(m_giro, m_giro)).Json().at(0).toObject();
        QCOMPARE(cTestFile::Bytes(Book()), before);
        QCOMPARE(tried.value(u"staged"_s).toInt(), 6);
        Do(u"import|"_s + m_giro);
        const cCliRun staged = Do(u"staged|--json"_s);
        QCOMPARE(cCliRun::Column(tried.value(u"rows"_s).toArray(), u"ImportPurpose"_s),
                 staged.Column(u"ImportPurpose"_s));
        Says(u"import|%1|--dry-run"_s.arg(m_giro), {u"0 neu, 6 schon vorhanden"_s});
    }

    void AccountOfALayoutIsRemembered()
    {
        Refuses(u"import|"_s + m_table, {u"Kontonummer"_s, u"--account \"Girokonto\""_s});
        Do(u"import|%1|--account|4711|--dry-run"_s.arg(m_table));
        QCOMPARE(Run(u"import|"_s + m_table).Code, 1);
        Do(u"import|%1|--account|4711"_s.arg(m_table));
        QCOMPARE(Do(u"import|%1|--json"_s.arg(m_table)).Column(u"duplicates"_s), QStringList(u"3"_s));
        // Other amounts of the same days are those of another account.
        cTestFile::Write(m_table, QByteArray(table).replace("-660", "-670").replace("-1,", "-3,"));
        QCOMPARE(Run(u"import|"_s + m_table).Code, 1);
        cTestFile::Write(m_table, QByteArray(table).replace(".02.", ".03."));
        const cCliRun next = Do(u"import|"_s + m_table);
        QVERIFY2(next.Out.contains("wie zuletzt von Konto 4711"_L1), qPrintable(next.Text()));
    }

    void ColumnsAndCharsetAreChosen()
    {
        Do(u"import|%1|--account|1|--map|datum=0, betrag=2,zweck=1|--charset|CP850"_s.arg(m_table));
        const cCliRun staged = Do(u"staged|--json"_s);
        QCOMPARE(staged.Column(u"ImportValue"_s), QStringList({u"2"_s, u"3"_s, u"4"_s}));
        QCOMPARE(staged.Column(u"ImportPurpose"_s).value(0), u"Brõzeln"_s);
    }

    // Both readings are shown, the option decides, and the next file of the kind needs none.
    void AmountsWithoutSignAreNotGuessed()
    {
        cTestFile::Write(m_table, "Tag;Text;Betrag\n03.02.2026;Miete;500,00\n");
        Refuses(u"import|%1|--account|1"_s.arg(m_table), {u"Miete"_s, u"-500,00"_s, u"--sign umgekehrt"_s});
        Do(u"import|%1|--account|1|--sign|umgekehrt"_s.arg(m_table));
        QCOMPARE(Do(u"staged|--json"_s).Column(u"ImportValue"_s), QStringList(u"-500"_s));
        QCOMPARE(Do(u"import|%1|--json|--remember"_s.arg(m_table)).Column(u"duplicates"_s), QStringList(u"1"_s));
        QCOMPARE(Do(u"import|%1|--json"_s.arg(m_table)).Column(u"duplicates"_s), QStringList(u"1"_s));
    }

    // The interest names nobody: the transfer after it does, in columns that were empty when the sign was asked for.
    void AnAnswerAboutTheSignLeavesTheColumns()
    {
        const QByteArray head = "IBAN Auftragskonto;Buchungstag;Name Zahlungsbeteiligter;IBAN Zahlungsbeteiligter;"
                                "Verwendungszweck;Betrag;Saldo nach Buchung\n";
        const QByteArray own = "DE02120300000000202051;";
        cTestFile::Write(m_table, head + own + "31.03.2026;;;Zinsen;1,79;101,79\n");
        Refuses(u"import|"_s + m_table, {u"--sign"_s});
        Do(u"import|%1|--sign|wie-datei"_s.arg(m_table));
        cTestFile::Write(m_table, head + own + "06.04.2026;Ole Muster;DE02500105170137075030;Sparen;5,00;106,79\n");
        Do(u"import|"_s + m_table);
        QCOMPARE(Do(u"staged|--json"_s).Column(u"ImportBeneficiary"_s).constLast(), u"Ole Muster"_s);
    }

    void ColumnsAreRemembered()
    {
        Do(u"import|%1|--account|1|--map|datum=0,betrag=2,zweck=1|--remember"_s.arg(m_table));
        QCOMPARE(Do(u"import|%1|--json"_s.arg(m_table)).Column(u"duplicates"_s), QStringList(u"3"_s));
        Says(u"detect|%1|--json"_s.arg(m_table), {u"\"origin\": \"memory\""_s});
        cTestFile::Write(m_table, "Tag;W\x84hrung;Wert\n03.02.2026;\x8E;-4,20\n");
        Do(u"import|%1|--account|1|--charset|cp850|--map|datum=0,zweck=1,betrag=2|--remember"_s.arg(m_table));
        QCOMPARE(Do(u"import|%1|--account|1|--json"_s.arg(m_table)).Column(u"duplicates"_s), QStringList(u"1"_s));
    }

    void StrayDetailsAreSkippedOnRequest()
    {
        const QString file =
            Write(u"a.sta"_s, ":20:A\n:25:1\n:60F:C260101EUR0,00\n:86:Vorwort\n:61:260101D1,00NTRF\n:86:x\n-\n");
        Refuses(u"import|"_s + file, {u"--skip-stray-details"_s});
        Says(u"import|%1|--skip-stray-details"_s.arg(file), {u"1 gelesen, 1 neu"_s});
    }

    void OtherCurrencyIsTakenOnRequest()
    {
        const QString file = Write(u"a.sta"_s, ":20:A\n:25:1\n:60F:C260101USD0,00\n:61:260101D1,00NTRF\n:86:x\n-\n");
        Refuses(u"import|"_s + file, {u"--take-currency"_s});
        Do(u"import|%1|--take-currency"_s.arg(file));
        Do(u"import|"_s + file);
    }

    void EqualRowsOfSeveralFiles_data()
    {
        const QByteArray head = "IBAN;DE02100200300001234567\n\nBuchungstag;Verwendungszweck;Betrag";
        const QByteArray open = head + "\n03.05.2026;Fahrkarte;-2,00\n03.05.2026;Fahrkarte;-2,00\n";
        const QByteArray proven = head
            + ";Saldo\n02.05.2026;Anfang;1,00;9,00\n03.05.2026;Fahrkarte;-2,00;7,00\n"
              "03.05.2026;Fahrkarte;-2,00;5,00\n04.05.2026;Ende;1,00;6,00\n";
        const QByteArray listedTwice = ":20:A\n:25:1\n:60F:C260502EUR9,00\n:61:260503D2,00NMSC\n:86:Fahrkarte\n"
                                       ":61:260503D2,00NMSC\n:86:Fahrkarte\n:62F:C260503EUR7,00\n-\n";
        // repeats: of the files in their order
        const cTestRows<QList<QByteArray>, QString, QStringList, int> row("files", "options", "repeats", "staged");
        row("the same twice", {open, open}, {}, {u"1"_s, u"0"_s}, 1);
        row("brought by the next one", {open, proven}, {}, {u"0"_s, u"0"_s}, 4);
        row("wanted", {open, open}, u"|--take-equal"_s, {u"0"_s, u"0"_s}, 2);
        row("wanted, against the bank", {listedTwice}, u"|--take-equal"_s, {u"0"_s}, 1);
    }

    // One import, in which a file may settle what another one leaves open, also where it is only tried.
    void EqualRowsOfSeveralFiles()
    {
        QFETCH(const QList<QByteArray>, files);
        QFETCH(QString, options);
        QFETCH(const QStringList, repeats);
        QFETCH(const int, staged);
        for (const QByteArray& file : files) {
            options += u'|' + Write(QString::number(options.size()), file);
        }
        Do(u"balances"_s); // makes the book
        QCOMPARE(Do(u"import|--json|--dry-run"_s + options).Column(u"repeats"_s), repeats);
        const cCliRun run = Do(u"import|--json"_s + options);
        QCOMPARE(run.Column(u"repeats"_s), repeats);
        QCOMPARE(run.Error.contains(u"noch einmal gleich"), repeats.contains(u"1"_s));
        QCOMPARE(Do(u"staged|--json"_s).Json().size(), staged);
    }

    // By then its account is known by the number that the file before it names.
    void LaterFileIsOfTheAccount()
    {
        Do(u"import|--account|Girokonto|--book-account|Girokonto|%1|%2"_s.arg(m_giro, m_table));
        const QStringList numbers = Do(u"staged|--json"_s).Column(u"ImportAccount"_s);
        QCOMPARE(numbers.count(numbers.constFirst()), numbers.size());
    }

    void SkippedRowsAndLayoutAreTold()
    {
        const cCliRun run = Do(u"import|%1|--json|--account|1|--map|datum=0,zweck=1,betrag=3,status=4"_s.arg(m_table));
        const QJsonArray skipped = run.Json().at(0).toObject().value(u"skipped"_s).toArray();
        QCOMPARE(cCliRun::Column(skipped, u"kind"_s), QStringList(u"pending"_s));
        QCOMPARE(cCliRun::Column(skipped, u"line"_s), QStringList(u"4"_s));
        const cCliRun known = Do(u"import|%1|--json"_s.arg(Csv(u"dkb.csv"_s)));
        QCOMPARE(known.Column(u"layout"_s), QStringList(u"DKB"_s));
    }

    void Detects_data()
    {
        // finding: members of the object, in their order
        const cTestRows<QString, QString> row("file", "finding");
        row("known layout", Csv(u"dkb.csv"_s),
            uR"("profile": "DKB", "headerLine": 5, "separator": ",", "charset": "utf-8", "origin": "profile",)"_s);
        row("account above the header", Csv(u"ing.csv"_s),
            uR"("accounts": ["DE02500105170137075030"], "needsAccount": false,)"_s);
        row("Windows-1252", Csv(u"sparkasse-karte.csv"_s), uR"("charset": "windows-1252")"_s);
        row("guessed columns", Csv(u"ohne-kopf.csv"_s), uR"("headerLine": 0,)"_s);
        row("no table", m_giro, uR"("firstDay": "2024-03-01", "lastDay": "2024-03-12", "rows": 7, "skipped": 0,)"_s);
        row("camt", QStringLiteral(TEST_DATA "/camt/giro.xml"),
            uR"("profile": "", "headerLine": null, "separator": "",)"_s);
        row("packed", QStringLiteral(TEST_DATA "/camt/auszuege.zip"), uR"("charset": "",)"_s);
    }

    void Detects()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, finding);
        const cCliRun run = Do(u"detect|%1|--json"_s.arg(file));
        QVERIFY2(!run.Object().isEmpty(), qPrintable(run.Text()));
        QVERIFY2(run.Out.contains(finding), qPrintable(run.Text()));
    }

    // What "detect" finds can be handed back to "import", as it is or changed.
    void DetectedColumnsAreTaken()
    {
        const auto option = [this](const QString& more) {
            return Do(u"detect|%1|--json"_s.arg(m_table) + more).Object().value(u"mapOption"_s).toString();
        };
        const QString found = option({});
        QVERIFY2(found.contains(u"datum=0"_s), qPrintable(found));
        QCOMPARE(option(u"|--map|"_s + found), found);
    }

    void Refused_data()
    {
        const cTestRows<QString, int, QString> row("line", "code", "text");
        row("charset", u"import|a.csv|--charset|ebcdic"_s, 2, u"windows-1252, cp850"_s);
        row("profile", u"import|a.csv|--profile-name|Mondbank"_s, 2, u"\"comdirect\""_s);
        row("column", u"import|a.csv|--map|datum=0,preis=2"_s, 2, u"'preis=2'"_s);
        row("column without number", u"import|a.csv|--map|datum"_s, 2, u"'datum'"_s);
        row("no amount", u"import|a.csv|--map|datum=0"_s, 2, u"\"betrag\""_s);
        row("columns of no table", u"import|%1|--map|datum=0,betrag=2"_s.arg(m_giro), 1, u"nur bei Tabellen"_s);
        row("nothing to detect", u"detect|missing.csv"_s, 1, u"kann nicht geöffnet werden"_s);
    }

    void Refused()
    {
        QFETCH(const QString, line);
        QFETCH(const int, code);
        QFETCH(const QString, text);
        const cCliRun run = Run(line);
        QVERIFY2(run.Code == code && run.Error.contains(text) && run.Out.isEmpty(), qPrintable(run.Text()));
    }

    void ExportComesBack_data()
    {
        const cTestRows<QString, QStringList> row("ending", "accounts");
        row("all at once", u"qif"_s, {{}});
        row("by account", u"qif"_s, {u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s});
        row("table", u"csv"_s, {{}});
    }

    // What another book holds is in the new one under the same accounts and categories, without a question.
    void ExportComesBack()
    {
        QFETCH(const QString, ending);
        QFETCH(const QStringList, accounts);
        const QString demo = u"--database|~/demo.db|"_s;
        Do(u"demo|~/demo.db"_s);
        cTestFile::Run(Path(u"demo.db"_s), "UPDATE data SET EntryFlags = 'zahler=Anna'");
        for (const QString& account : accounts) {
            const QString one = account.isEmpty() ? QString() : u"|--account|"_s + account;
            const QString file = u"~/"_s + account + u'.' + ending;
            Do(demo + u"export|"_s + file + u"|--period|Buchungen bis heute"_s + one);
            Do(u"import|--book|"_s + file + one);
        }
        const QString sums = u"report|summe|--from|2000-01-01|--no-future"_s;
        QCOMPARE(Do(sums).Out, Do(demo + sums).Out);
        const auto balances = [&](const QString& book) { return Do(book + u"balances|--json"_s).Column(u"Balance"_s); };
        QCOMPARE(balances({}), balances(demo));
        const auto transfers = [&](const QString& book, const QString& field) {
            return Do(book + u"entries|--kind|Umbuchung|--period|Buchungen bis heute|--json"_s).Column(field);
        };
        QCOMPARE(transfers({}, u"EntryCategory"_s), transfers(demo, u"EntryCategory"_s));
        const QString flags = transfers({}, u"EntryFlags"_s).join(u'|');
        QCOMPARE(flags.contains(u"zahler=Anna"_s), ending == u"csv"_s); // QIF has no place for it
    }

    // However the file spells them, nothing is there twice, and a name that is none stops nothing.
    void NamesOfAnotherBook()
    {
        const QString file = Write(u"alt.qif"_s,
                                   "!Account\nNneu\n^\n!Type:Bank\nD5.1.26\nT-3\nLR&B:X\n^\nD6.1.26\nT-3\nLRB:x\n^\n"
                                   "D7.1.26\nT-3\nL[Alle Konten]\n^\nD8.1.26\nT-3\nL[Zzz]\n^\n");
        const cCliRun run = Run(u"import|"_s + file);
        QVERIFY2(run.Text().contains(u"Aus der Datei angelegt: 1 Kategorie, 2 Konten"), qPrintable(run.Text()));
        QVERIFY2(run.Text().contains(u"so heißen kann: Alle Konten"), qPrintable(run.Text()));
        QCOMPARE(run.Code, 0);
        const QString other = Write(u"b.qif"_s, "!Account\nNsparkonto\n^\n!Type:Bank\nD5.1.26\nT-3\nLAuto\n^\n");
        const cCliRun one = Run(u"import|--book-account|Girokonto|"_s + other);
        QVERIFY2(one.Text().contains(u"'sparkonto' gehört nun zum Konto 'Girokonto'"), qPrintable(one.Text()));
    }

    void LayoutsAreShared()
    {
        QVERIFY(Do(u"layouts"_s).Out.contains("comdirect\n"_L1));
        const QString shared = Path(u"aufbau.txt"_s);
        Do(u"layouts|export|%1|%2|--map|datum=0,betrag=2,zweck=1"_s.arg(m_table, shared));
        Do(u"layouts|import|"_s + shared);
        Says(u"detect|"_s + m_table, {u"datum=0,betrag=2,zweck=1"_s});
        Refuses(u"layouts|import|"_s + m_table, {u"kein Aufbau"_s});
        QCOMPARE(Run(u"layouts|export|%1|%2"_s.arg(m_giro, shared)).Code, 1);
    }

private:
    [[nodiscard]] static QString Csv(const QString& name) { return QStringLiteral(TEST_DATA "/csv/") + name; }

    QString m_table;
    const QString m_giro = QStringLiteral(TEST_DATA "/cli/giro.sta");
};

TEST_CLASS(testCliImport, QCoreApplication)
#include "testCliImport.moc"
