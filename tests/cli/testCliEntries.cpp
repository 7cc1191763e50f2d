#include "app/machine/cFileLock.h"
#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

// Keeping the book from the command line, end to end: the program itself on a new book each time.
class testCliEntries final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Renew(); }
    void AddFillsWhatIsMissing_data()
    {
        const cTestRows<QString, QString> row("options", "stored");
        row("kind, interval and account by default",
            u"--amount|12,50+3,99|--category|Haushalt; Lebensmittel|--date|5.3.2026"_s,
            u"2026-03-05|Ausgabe|16.49|Girokonto||Haushalt; Lebensmittel|Einmalig|"_s);
        row("sub-category alone in other letters",
            u"--amount|650|--category|MIETE|--date|2026-03-01|--text|Lindenhof"_s,
            u"2026-03-01|Ausgabe|650|Girokonto||Wohnung; Miete|Monatlich|Lindenhof"_s);
        row("what is named wins",
            u"--amount|-7|--category|Wohnung;Miete|--kind|einnahme|--interval|jaehrlich|--account|bargeld|--date|1.3.26"_s,
            u"2026-03-01|Einnahme|7|Bargeld||Wohnung; Miete|Jährlich|"_s);
        row("a target makes a transfer",
            u"--amount|100|--category|Haushalt; Lebensmittel|--to-account|Sparkonto|--date|1.3.26"_s,
            u"2026-03-01|Umbuchung|100|Girokonto|Sparkonto|Haushalt; Lebensmittel|Einmalig|"_s);
    }

    void AddFillsWhatIsMissing()
    {
        QFETCH(const QString, options);
        QTEST(Stored(u"add|--json|"_s + options).join(u'\n'), "stored");
    }

    // The target of what was a transfer once.
    void LeftOverTargetIsNotShown()
    {
        (void)Add(u"--amount|5|--category|Haushalt; Getränke|--to-account|Sparkonto|--date|1.3.2026"_s);
        const QString list = u"search|--period|Alle Buchungen"_s;
        QVERIFY(Do(list).Out.contains(u"Girokonto → Sparkonto"_s));
        {
            cDatabase database;
            database.Open(Book(), eOpenMode::ReadWrite);
            database.Execute("UPDATE data SET EntryType = 'Ausgabe'");
        }
        QVERIFY(!Do(list).Out.contains(u"Sparkonto"_s));
    }

    void AddRemembersDescriptions()
    {
        (void)Add(u"--amount|5|--category|Haushalt; Getränke|--account|Bargeld|--date|1.3.2026|--text|Saftladen"_s);
        QCOMPARE(Stored(u"add|--json|--amount|8|--text|Saftladen|--date|2.3.2026"_s),
                 QStringList{u"2026-03-02|Ausgabe|8|Bargeld||Haushalt; Getränke|Einmalig|Saftladen"_s});
        // A limit that recurs is also the amount; the account is that of the latest entry.
        Do(u"categories|add|Wohnung; Stellplatz|--limit|45|--interval|Monatlich"_s);
        QCOMPARE(Stored(u"add|--json|--category|Stellplatz|--date|1.3.2026"_s),
                 QStringList{u"2026-03-01|Ausgabe|45|Bargeld||Wohnung; Stellplatz|Monatlich|"_s});
    }

    void ChangeLeavesTheRest()
    {
        const QString id =
            Add(u"--amount|5|--category|Haushalt; Getränke|--account|Bargeld|--date|1.3.2026|--text|Saft"_s);
        QCOMPARE(Stored(u"change|%1|--json|--amount|6,20"_s.arg(id)),
                 QStringList{u"2026-03-01|Ausgabe|6.2|Bargeld||Haushalt; Getränke|Einmalig|Saft"_s});
        QCOMPARE(Stored(u"change|%1|--json|--text||--category|Lebensmittel|--date|2.3.2026"_s.arg(id)),
                 QStringList{u"2026-03-02|Ausgabe|6.2|Bargeld||Haushalt; Lebensmittel|Einmalig|"_s});
        QCOMPARE(Stored(u"search|--json|--period|Alle Buchungen"_s).size(), 1);
    }

    void EndOfASeries()
    {
        const QString id = Add(u"--amount|650|--category|Wohnung; Miete|--date|1.3.2026|--end|31.5.2026"_s);
        const QString count = u"search|--json|--from|1.1.2026|--to|31.12.2026"_s;
        QCOMPARE(Stored(count).size(), 3);
        Do(u"change|%1|--end|ohne"_s.arg(id));
        QCOMPARE(Stored(count).size(), 10);
        Do(u"change|%1|--times|4"_s.arg(id));
        QCOMPARE(Stored(count).size(), 4);
    }

    void OneOccurrence()
    {
        const QString id = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s);
        const QString spring = u"search|--json|--from|1.3.2026|--to|31.5.2026"_s;
        const auto amounts = [&] { return Do(spring).Column(u"EntryValue"_s); };
        Do(u"correct|%1|2026-03-20|700|--comment|Nachzahlung"_s.arg(id)); // any day of the period
        Do(u"change|%1|--only|3.4.2026|--amount|600+20"_s.arg(id));
        Do(u"correct|%1|3.5.2026|--skip"_s.arg(id));
        QCOMPARE(amounts(), QStringList({u"700"_s, u"620"_s, u"0"_s}));
        const cCliRun list = Do(u"correct|%1|--list|--json"_s.arg(id));
        QCOMPARE(list.Column(u"EntryStartDate"_s), QStringList({u"2026-03-01"_s, u"2026-04-01"_s, u"2026-05-01"_s}));
        QCOMPARE(list.Column(u"EntryComment"_s), QStringList({u"Nachzahlung"_s, QString(), u"Ausgelassen"_s}));
        QVERIFY2(list.Out.contains("\"EntryValue\": 700.00"_L1), qPrintable(list.Text()));

        Do(u"correct|%1|3.3.2026|710"_s.arg(id)); // keeps the comment
        Do(u"correct|%1|3.4.2026|--remove"_s.arg(id));
        Do(u"correct|%1|3.5.2026|640"_s.arg(id)); // is no longer left out
        QCOMPARE(amounts(), QStringList({u"710"_s, u"650"_s, u"640"_s}));
        QCOMPARE(Do(u"correct|%1|--list|--json"_s.arg(id)).Column(u"EntryComment"_s),
                 QStringList({u"Nachzahlung"_s, QString()}));
        QCOMPARE(Stored(u"search|--json|--corrected"_s).size(), 2);

        const auto days = [&] { return Do(spring).Column(u"EntryDate"_s); };
        Do(u"correct|%1|3.4.2026|--day|30.3.2026"_s.arg(id));
        QCOMPARE(days(), QStringList({u"2026-03-03"_s, u"2026-03-30"_s, u"2026-05-03"_s}));
        Do(u"correct|%1|30.3.2026|660"_s.arg(id)); // the day on which the list shows it
        QCOMPARE(amounts(), QStringList({u"710"_s, u"660"_s, u"640"_s}));
        QCOMPARE(days().at(1), u"2026-03-30"_s);
        Do(u"correct|%1|30.3.2026|--remove"_s.arg(id));
        QCOMPARE(days().at(1), u"2026-04-03"_s);
    }

    void FromHereOn()
    {
        const QString id = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s);
        Do(u"correct|%1|3.2.2026|655"_s.arg(id));
        QCOMPARE(Do(u"change|%1|--from|1.1.2026|--amount|650|--json"_s.arg(id)).Column(u"ID"_s), QStringList{id});
        const QString later = Do(u"change|%1|--from|3.3.2026|--amount|690|--json"_s.arg(id)).Column(u"ID"_s).value(0);
        QVERIFY(later != id);
        const cCliRun search = Do(u"search|--json|--from|1.1.2026|--to|30.4.2026"_s);
        QCOMPARE(search.Column(u"ID"_s), QStringList({id, id, later, later}));
        QCOMPARE(search.Column(u"EntryValue"_s), QStringList({u"650"_s, u"655"_s, u"690"_s, u"690"_s}));
    }

    void LostCorrectionsNeedYes()
    {
        const QString id = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s);
        Do(u"correct|%1|3.2.2026|655"_s.arg(id));
        const QString change = u"change|%1|--interval|Jährlich"_s.arg(id);
        Refuses(change, {u"Korrekturen gehen dadurch verloren"_s, u"--yes"_s});
        QCOMPARE(Do(u"correct|%1|--list|--json"_s.arg(id)).Json().size(), 1);
        Do(change + u"|--yes"_s);
        QCOMPARE(Do(u"correct|%1|--list|--json"_s.arg(id)).Json().size(), 0);
    }

    void DueWithContracts()
    {
        Do(u"accounts|add|Giro"_s);
        Do(u"categories|add|Handy|--kind|Ausgabe"_s);
        const QString contract = Add(
            u"--amount|20|--category|Handy|--kind|Ausgabe|--account|Giro|--interval|Monatlich|--date|+3|--cancel-by|+9"_s);
        (void)Add(u"--amount|7|--category|Handy|--kind|Ausgabe|--account|Giro|--date|+12"_s);
        QCOMPARE(Do(u"due|--json"_s).Column(u"EntryValue"_s), (QStringList{u"20"_s, u"7"_s}));
        QCOMPARE(Do(u"due|--json|--days|12"_s).Column(u"EntryValue"_s),
                 QStringList{u"20"_s}); // today is the first of them
        QCOMPARE(Do(u"due|--contracts|--json|--days|10"_s).Column(u"ID"_s), QStringList{contract});
        Do(u"change|%1|--cancel-by|+29"_s.arg(contract));
        QVERIFY(Do(u"due"_s).Out.contains(u"kündbar"_s)); // thirty days, as in the window
        QVERIFY(Do(u"due|--csv"_s).Out.count(u"\n"_s) == 3);
        Do(u"change|%1|--cancel-by|ohne"_s.arg(contract));
        QCOMPARE(Do(u"due|--contracts|--json|--days|10"_s).Column(u"ID"_s), QStringList());
        QCOMPARE(Run(u"due|--days|0"_s).Code, 2);
    }

    void DeleteSaysWhatFirst()
    {
        const QString one = Add(u"--amount|5|--category|Haushalt; Getränke|--date|1.3.2026"_s);
        const QString series = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026|--text|Lindenhof"_s);
        const cCliRun asked = Run(u"delete|%1|%2"_s.arg(one, series));
        QVERIFY2(asked.Code == 1 && asked.Error.contains("'Lindenhof' (Monatlich seit 03.01.2026)"_L1)
                     && asked.Error.contains("--yes"_L1) && !asked.Error.contains("--all-parts"_L1),
                 qPrintable(asked.Text()));
        QCOMPARE(Run(u"delete|%1|4711|--yes"_s.arg(one)).Code, 1);
        QCOMPARE(CountEntries(), 2);
        Refuses(u"delete|%1|--only|10.2.2026|--yes"_s.arg(series), {u"am 10.02.2026 kein Vorkommen"_s});
        Refuses(u"delete|%1|--only|3.2.2026"_s.arg(series), {u"'Lindenhof' vom 03.02.2026 auslassen?"_s});
        QCOMPARE(Run(u"delete|%1|%2|--from|3.2.2026|--yes"_s.arg(one, series)).Code, 2);
        QCOMPARE(Run(u"delete|%1|--only|1.3.2026|--yes"_s.arg(one)).Code, 1); // no series
        Do(u"delete|%1|--only|3.2.2026|--yes"_s.arg(series));
        Do(u"delete|%1|--from|10.3.2026|--yes"_s.arg(series)); // not that of 3 March
        Refuses(u"delete|%1|--from|10.3.2026|--yes"_s.arg(series), {u"ab dem 10.03.2026 kein Vorkommen"_s});
        QCOMPARE(Do(u"search|Lindenhof|--json|--from|1.1.2026|--to|31.12.2026"_s).Column(u"EntryValue"_s),
                 QStringList({u"650"_s, u"0"_s, u"650"_s}));
        Do(u"delete|%1|%2|%1|--yes"_s.arg(one, series));
        QCOMPARE(CountEntries(), 0);
    }

    void CheckSaysHowToMendHiddenEntries()
    {
        const QString day = Add(u"--amount|5|--category|Haushalt; Getränke|--text|Saft"_s);
        const QString end = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s);
        const QString gone = Add(u"--amount|7|--category|Haushalt; Getränke"_s);
        const auto spoil = [&](const QString& id, const QString& change) {
            cTestFile::Run(Book(), u"UPDATE data SET %1 WHERE ID = %2"_s.arg(change, id).toStdString());
        };
        spoil(day, u"EntryDate = 'gestern', EntryValue = 'fünf', EntryInterval = NULL"_s);
        spoil(end, u"EntryType = '1', EntryDateEnd = '2026-01-01'"_s);
        spoil(gone, u"EntryDate = ''"_s);
        const cCliRun check = Run(u"check"_s);
        QCOMPARE(check.Code, 1);
        for (const QString& text :
             {u"Die Datei ist unbeschädigt.\n3 Einträge"_s,
              u"Eintrag %1, 'Saft': Tag 'gestern' nicht lesbar; kein Intervall; Betrag 'fünf' nicht lesbar\n"_s.arg(
                  day),
              u"\"change %1 --date DATUM --interval INTERVALL --amount BETRAG\" berichtigt ihn"_s.arg(day),
              u"\"change %1 --kind ART --end DATUM\" berichtigt ihn, \"delete %1 --yes\" löscht ihn."_s.arg(end)}) {
            QVERIFY2(check.Out.contains(text), qPrintable(check.Text()));
        }
        Do(u"change|%1|--text|Apfelsaft"_s.arg(day));
        QVERIFY(Run(u"check"_s).Out.contains("Tag 'gestern'"_L1));
        Do(u"change|%1|--date|1.3.2026|--interval|Einmalig|--amount|5"_s.arg(day));
        Do(u"change|%1|--kind|Ausgabe|--end|31.1.2026"_s.arg(end));
        Do(u"delete|%1|--yes"_s.arg(gone));
        Do(u"check"_s);
        QCOMPARE(Stored(u"search|--json|--period|Alle Buchungen"_s).size(), 2);
    }

    void PartsOfASplitEntry()
    {
        const QString food = Add(u"--amount|10|--category|Haushalt; Lebensmittel|--date|1.3.2026|--text|Markt"_s);
        const QString drink = Add(u"--amount|4|--category|Haushalt; Getränke|--date|1.3.2026"_s);
        const QString deposit = Add(u"--amount|3|--category|Haushalt; Getränke|--kind|Einnahme|--date|1.3.2026"_s);
        cTestFile::Run(Book(), u"UPDATE data SET EntryFlags = 'split=%1'"_s.arg(food).toStdString());

        // The amount is that of the part, the day that of the whole group.
        const cCliRun changed = Do(u"change|%1|--json|--amount|5|--date|2.3.2026"_s.arg(drink));
        QCOMPARE(changed.Column(u"EntryValue"_s), QStringList({u"10"_s, u"5"_s, u"3"_s}));
        QCOMPARE(changed.Column(u"EntryDate"_s), QStringList(3, u"2026-03-02"_s));
        QCOMPARE(changed.Column(u"EntryType"_s), QStringList({u"Ausgabe"_s, u"Ausgabe"_s, u"Einnahme"_s}));
        Refuses(u"change|%1|--amount|20"_s.arg(deposit), {u"unter null"_s});

        Refuses(u"delete|"_s + deposit, {u"Weitere Teile: 2"_s, u"--all-parts"_s});
        Do(u"delete|%1|--yes"_s.arg(deposit));
        QCOMPARE(CountEntries(), 2);
        Do(u"delete|%1|--yes|--all-parts"_s.arg(drink));
        QCOMPARE(CountEntries(), 0);
    }

    void StartBalances()
    {
        Do(u"accounts|start|Sparkonto|-250,50|--date|1.1.2026"_s);
        Do(u"accounts|start|sparkonto|1.000,00"_s); // keeps the day
        QCOMPARE(Stored(u"search|--json|Startguthaben"_s),
                 QStringList{u"2026-01-01|Einnahme|1000|Sparkonto||Allgemein; Startguthaben|Einmalig|Startguthaben"_s});
        const QString id = Do(u"search|--json|Startguthaben"_s).Column(u"ID"_s).value(0);
        QCOMPARE(Stored(u"change|%1|--json|--amount|-20"_s.arg(id)).value(0).section(u'|', 1, 2), u"Ausgabe|20"_s);
        QCOMPARE(Run(u"change|%1|--category|Miete"_s.arg(id)).Code, 2);
    }

    // Options are read in the format in which the book shows amounts and days; what other programs read stays as it is.
    void FormatOfTheBook()
    {
        (void)Add(u"--amount|5|--category|Miete"_s); // makes the book
        cTestFile::Run(Book(),
                       "INSERT OR REPLACE INTO setting (SettingName, SettingValue) VALUES ('LanguageFormat', 'en-US')");
        QCOMPARE(Stored(u"add|--json|--amount|1,234|--category|Miete|--date|03/04/2026"_s).value(0).section(u'|', 0, 2),
                 u"2026-03-04|Ausgabe|1234"_s);
        QVERIFY(Do(u"search|Miete"_s).Text().contains(u"03/04/2026"_s));
        for (const QString& doubtful : {u"1.234|--date|2026-03-04"_s, u"12|--date|3.4.2026"_s}) {
            QCOMPARE(Run(u"add|--category|Miete|--amount|"_s + doubtful).Code, 2);
        }
    }

    void Search_data()
    {
        const cTestRows<QString, QStringList> row("options", "texts");
        row("words, umlauts spelled out", u"MAERZ bäcker"_s, {u"Bäckerei März"_s});
        row("exact amount", u"--amount|-12,40"_s, {u"Bäckerei März"_s});
        row("range of amounts", u"--min|12|--max|50"_s, {u"Bäckerei März"_s, u"Gehalt"_s});
        row("period", u"--from|2026-03-05|--to|31.3.2026"_s, {u"Gehalt"_s, u"Rücklage"_s});
        row("account, transfers into it too", u"--account|sparkonto"_s, {u"Rücklage"_s});
        row("kind", u"--kind|Einnahmen"_s, {u"Gehalt"_s});
        row("main category", u"--category|haushalt"_s, {u"Bäckerei März"_s, u"Rücklage"_s});
        row("all together", u"Rück|--kind|Umbuchung|--min|99"_s, {u"Rücklage"_s});
        row("from the bank", u"--from-bank"_s, {});
    }

    void Search()
    {
        QFETCH(const QString, options);
        (void)Add(u"--amount|12,40|--category|Haushalt; Lebensmittel|--date|1.3.2026|--text|Bäckerei März"_s);
        (void)Add(u"--amount|50|--category|Lohn / Gehalt|--interval|Einmalig|--date|5.3.2026|--text|Gehalt"_s);
        (void)Add(
            u"--amount|100|--category|Haushalt; Lebensmittel|--to-account|Sparkonto|--date|6.3.2026|--text|Rücklage"_s);
        QTEST(Do(u"search|--json|"_s + options).Column(u"EntryDescription"_s), "texts");
    }

    void CategoryOfAList_data()
    {
        const cTestRows<QString, QStringList> row("category", "texts");
        row("no other that begins alike", u"Haus"_s, {u"Dach"_s, u"Zaun"_s});
        row("sub-category that is called general", u"Auto; Allgemein"_s, {u"Wäsche"_s});
        row("what is booked on the main category", u"haus; Allgemein"_s, {u"Dach"_s});
    }

    void CategoryOfAList()
    {
        QFETCH(const QString, category);
        for (const QString& path : {u"Haus"_s, u"Haus; Garten"_s, u"Auto; Allgemein"_s, u"Auto"_s}) {
            Do(u"categories|add|"_s + path);
        }
        for (const QString& line : {u"Haus|--text|Dach"_s, u"Haus; Garten|--text|Zaun"_s, u"Lebensmittel|--text|Brot"_s,
                                    u"Auto; Allgemein|--text|Wäsche"_s, u"Auto|--text|Maut"_s}) {
            (void)Add(u"--amount|5|--kind|Ausgabe|--interval|Einmalig|--category|"_s + line);
        }
        QTEST(Do(u"entries|--json|--category|"_s + category).Column(u"EntryDescription"_s), "texts");
    }

    void Categories()
    {
        Do(u"categories|add|Hobby;Modellbahn|--kind|Ausgabe|--interval|Monatlich|--limit|30"_s);
        (void)Add(u"--amount|12|--category|Modellbahn|--interval|Einmalig|--date|1.3.2026"_s);
        Do(u"categories|rename|modellbahn|Eisenbahn"_s); // stays below its main category
        const cCliRun list = Do(u"categories|--json"_s);
        const QJsonObject last = list.Json().last().toObject();
        QCOMPARE(last.value(u"EntryCategory"_s).toString(), u"Hobby; Eisenbahn"_s);
        QCOMPARE(last.value(u"EntryInterval"_s).toString(), u"Monatlich"_s);
        QCOMPARE(last.value(u"Entries"_s).toInt(), 1);
        QVERIFY2(list.Out.contains("\"TemplateDefaultValue\": 30.00"_L1), qPrintable(list.Text()));

        // The value of a yearly category is what is paid once a year.
        QVERIFY(Run(u"categories|change|Eisenbahn|--interval|Jährlich|--limit|50"_s).Error.contains("--amount"_L1));
        QVERIFY(!Do(u"categories|change|Eisenbahn|--interval|Jährlich|--amount|600|--vat|7"_s).Out.isEmpty());
        const QString yearly = Do(u"categories|--json"_s).Out;
        QVERIFY2(
            yearly.contains("\"TemplateDefaultValue\": 600.00, \"MonthlyLimit\": 50.00, \"TemplateVAT\": \"7\""_L1),
            qPrintable(yearly));
        Do(u"categories|change|Eisenbahn|--interval|Monatlich|--amount|30|--vat|ohne"_s);

        // The look is that of the main category, which needs no row of its own.
        QVERIFY(!Do(u"categories"_s).Out.contains("Symbol"_L1));
        Do(u"categories|change|hobby|--color|#A1B2C3|--icon|ball"_s);
        const QString coloured = Do(u"categories|--json"_s).Out;
        QVERIFY2(coloured.contains("\"Color\": \"#a1b2c3\", \"Icon\": \"sport\""_L1), qPrintable(coloured));
        QVERIFY(Do(u"categories"_s).Out.contains("Ball"_L1));
        Do(u"categories|change|Hobby|--color|ohne|--icon|ohne"_s);

        const QString merge = u"categories|merge|Eisenbahn|Haushalt; Getränke"_s;
        QCOMPARE(Run(merge).Code, 1);
        QCOMPARE(Do(u"categories|--json"_s).Out, list.Out);
        Do(merge + u"|--yes"_s);
        QCOMPARE(Stored(u"search|--json|--category|Getränke"_s).size(), 1);
        QVERIFY(!Do(u"categories|--json"_s).Out.contains("Eisenbahn"_L1));
    }

    void CategoryDeletedWithItsEntriesMoved()
    {
        (void)Add(u"--amount|12|--category|Haushalt; Getränke|--date|1.3.2026"_s);
        Refuses(u"categories|delete|Getränke"_s, {u"1 Buchung"_s, u"--move-to"_s});
        Do(u"categories|delete|Getränke|--move-to|Lebensmittel|--yes"_s);
        QCOMPARE(Stored(u"search|--json|--category|Lebensmittel"_s).size(), 1);
        Do(u"categories|delete|Lebensmittel|--yes"_s); // its entry keeps the path
        const QJsonObject unknown = Do(u"categories|--json"_s).Json().last().toObject();
        QCOMPARE(unknown.value(u"EntryCategory"_s).toString(), u"Haushalt; Lebensmittel"_s);
        QCOMPARE(unknown.value(u"ID"_s).toInt(), 0);
    }

    void Accounts()
    {
        Do(u"accounts|add|Depot|--group|Anlage"_s);
        Do(u"accounts|start|Depot|1000|--date|1.1.2026"_s);
        (void)Add(u"--amount|10|--category|Haushalt; Lebensmittel|--account|Depot|--date|1.3.2026"_s);
        const QString rename = u"accounts|rename|Depot|Fonds"_s;
        Refuses(rename, {u"--entries yes"_s});
        Do(rename + u"|--entries|ja"_s);
        const cCliRun list = Do(u"accounts|--json"_s);
        const QJsonObject fonds = list.Json().last().toObject();
        QCOMPARE(fonds.value(u"TemplateName"_s).toString(), u"Fonds"_s);
        QCOMPARE(fonds.value(u"TemplateCategory"_s).toString(), u"Anlage"_s);
        QCOMPARE(fonds.value(u"StartDate"_s).toString(), u"2026-01-01"_s);
        QVERIFY2(list.Out.contains("\"Balance\": 990.00, \"StartBalance\": 1000.00"_L1), qPrintable(list.Text()));

        QCOMPARE(Run(u"accounts|delete|Fonds"_s).Code, 1);
        Do(u"accounts|delete|Fonds|--move-to|Bargeld|--yes"_s);
        QCOMPARE(Stored(u"search|--json|--account|Bargeld"_s).size(), 2);
        QVERIFY(!Do(u"accounts|--json"_s).Out.contains("Fonds"_L1));
    }

    void Refused_data()
    {
        const cTestRows<QString, int, QString> row("line", "code", "text");
        row("no amount", u"add|--category|Lebensmittel"_s, 2, u"--amount"_s);
        row("amount that is none", u"add|--amount|12k|--category|Lebensmittel"_s, 2, u"'12k'"_s);
        row("no category", u"add|--amount|5"_s, 1, u"Bitte erst eine Kategorie wählen!"_s);
        row("unknown category", u"add|--amount|5|--category|Lebens"_s, 1, u"Haushalt; Lebensmittel"_s);
        row("ambiguous category", u"add|--amount|5|--category|Kleidung"_s, 1, u"mehrere"_s);
        row("category of start balances", u"add|--amount|5|--category|Startguthaben"_s, 2, u"accounts start"_s);
        row("unknown account", u"add|--amount|5|--category|Miete|--account|Mars"_s, 1, u"Girokonto"_s);
        row("unknown interval", u"add|--amount|5|--category|Miete|--interval|oft"_s, 2, u"Monatlich"_s);
        row("day that is none", u"add|--amount|5|--category|Miete|--date|31.2."_s, 2, u"'31.2.'"_s);
        row("transfer to nowhere", u"add|--amount|5|--category|Miete|--kind|Umbuchung"_s, 2, u"--to-account"_s);
        row("transfer to itself", u"add|--amount|5|--category|Miete|--to-account|Girokonto"_s, 2,
            u"zwei verschiedene"_s);
        row("target of an expense", u"add|--amount|5|--category|Miete|--kind|Ausgabe|--to-account|Sparkonto"_s, 2,
            u"Umbuchung"_s);
        row("end of a single entry", u"add|--amount|5|--category|Lebensmittel|--end|31.12.2026"_s, 2, u"--interval"_s);
        row("end before start", u"add|--amount|5|--category|Miete|--date|1.3.2026|--end|1.2.2026"_s, 2,
            u"01.03.2026"_s);
        row("more often than there are days", u"add|--amount|5|--category|Miete|--times|999"_s, 2, u"So oft"_s);
        row("change of nothing", u"change|1"_s, 2, u"--amount"_s);
        row("change of an entry that is not there", u"change|77|--amount|5"_s, 1, u"77"_s);
        row("more than the amount of one occurrence", u"change|1|--only|3.3.2026|--text|x"_s, 2, u"nur der Betrag"_s);
        row("no occurrence on that day", u"change|1|--only|3.3.2019|--amount|5"_s, 1, u"03.01.2026"_s);
        row("no occurrence from that day on", u"change|1|--from|3.3.2051|--amount|5"_s, 1, u"03.03.2051"_s);
        row("new start before the split", u"change|1|--from|3.3.2026|--date|1.2.2026"_s, 2, u"03.03.2026"_s);
        row("variable of a script that is not set", u"change|1|--amount|5|--only|"_s, 2, u"'--only'"_s);
        row("day of no occurrence", u"correct|1||5"_s, 2, u"Tag"_s);
        row("correction two ways", u"correct|1|3.3.2026|5|--skip"_s, 2, u"--remove"_s);
        row("correction of nothing", u"correct|1|3.3.2026"_s, 2, u"--list"_s);
        row("removal of no correction", u"correct|1|3.3.2026|--remove"_s, 1, u"nicht korrigiert"_s);
        row("search for nothing", u"search"_s, 2, u"Suchwort"_s);
        row("two kinds of amounts", u"search|--amount|5|--min|3"_s, 2, u"--max"_s);
        row("limit that is no amount", u"categories|add|Neu|--limit|viel"_s, 2, u"'viel'"_s);
        row("colour that is none", u"categories|change|Wohnung|--color|bunt"_s, 2, u"Hellblau"_s);
        row("colour of a sub-category", u"categories|change|Miete|--color|Blau"_s, 2, u"'Wohnung'"_s);
        row("category that is there", u"categories|add|Wohnung; Miete"_s, 1, u"existiert bereits"_s);
        row("protected category", u"categories|delete|Startguthaben|--yes"_s, 1, u"Startguthaben"_s);
        row("option before the second word", u"categories|--json|add|Neu"_s, 2, u"'--json'"_s);
        row("unknown second word", u"accounts|frobnicate"_s, 2, u"'frobnicate'"_s);
        row("account that is there", u"accounts|add|Girokonto"_s, 1, u"existiert bereits"_s);
        row("start balance that is no amount", u"accounts|start|Girokonto|viel"_s, 2, u"'viel'"_s);
    }

    void Refused()
    {
        QFETCH(const QString, line);
        QFETCH(const QString, text);
        QCOMPARE(Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s), u"1"_s);
        const QString before = Content();
        const cCliRun run = Run(line);
        QTEST(run.Code, "code");
        QVERIFY2(run.Error.contains(text) && run.Out.isEmpty(), qPrintable(run.Text()));
        QCOMPARE(Content(), before);
    }

    void CorrectionsAreListedWhileTheBookIsLocked()
    {
        const QString id = Add(u"--amount|650|--category|Wohnung; Miete|--date|3.1.2026"_s);
        cFileLock lock;
        QCOMPARE(lock.Take(Book()), eLockState::Held);
        Do(u"correct|%1|--list"_s.arg(id));
        Refuses(u"correct|%1|3.3.2026|5"_s.arg(id), {u"in Benutzung"_s});
    }

    void HelpKnowsTwoWords()
    {
        for (const QString& line : {u"hilfe|categories|add"_s, u"categories|add|--help"_s}) {
            Says(line, {u"categories add PFAD"_s, u"--limit"_s});
        }
    }

private:
    // The ID of a new entry.
    [[nodiscard]] QString Add(const QString& line) { return Do(u"add|--json|"_s + line).Column(u"ID"_s).value(0); }

    [[nodiscard]] int CountEntries() const { return Value("SELECT COUNT(*) FROM data").toInt(); }
    // Of the tables that the commands write to.
    [[nodiscard]] QString Content() const
    {
        return Value("SELECT group_concat(ID || EntryDate || EntryDateEnd || EntryType || EntryInterval || "
                     "EntryAccount ||"
                     " EntryAccountMove || EntryCategory || EntryValue || EntryDescription) FROM data")
            + Value("SELECT group_concat(EntryStartDate || EntryValue) FROM datamod")
            + Value("SELECT group_concat(TemplateCategory || TemplateName || TemplateDefaultValue) FROM template");
    }

    // Day, kind, amount, account, target, category, interval and text of every entry that the JSON output lists.
    [[nodiscard]] QStringList Stored(const QString& line)
    {
        QStringList rows;
        const QJsonArray array = Do(line).Json();
        for (const auto& value : array) {
            QStringList cells;
            for (const QString& name :
                 {u"EntryDate"_s, u"EntryType"_s, u"EntryValue"_s, u"EntryAccount"_s, u"EntryAccountMove"_s,
                  u"EntryCategory"_s, u"EntryInterval"_s, u"EntryDescription"_s}) {
                cells.append(value.toObject().value(name).toVariant().toString());
            }
            rows.append(cells.join(u'|'));
        }
        return rows;
    }
};

TEST_CLASS(testCliEntries, QCoreApplication)
#include "testCliEntries.moc"
