#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/propose/modCorrected.h"
#include "import/read/modBookRow.h"
#include "support/cTestClass.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cBank : cBankBook
{
    int Stage(QDate date, double value, const QString& name, const QString& account = {}, const QString& own = u"111"_s,
              const QString& purpose = u"zu  Nr. 1"_s)
    {
        return cBankBook::Stage(BankRow(own, date, modAmount::ToCents(value), name, purpose, account));
    }

    // Books a row under a category of the user's own.
    void BookAs(int row, const QString& category, const QString& interval = modWord::Einmalig)
    {
        cEntryItem entry = Propose(row).Entry;
        entry.EntryCategory = category;
        entry.EntryInterval = interval;
        QVERIFY(cImportBook::BookAs(row, entry));
    }

    using cImportBook::BookAs;
};

const QDate day(2026, 1, 10);
const QString gifts = u"Freizeit; Geschenke"_s;
const QString rent = u"Wohnung; Miete"_s;

} // namespace

class testBooking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FileOfBookSpeaksFirst_data()
    {
        const cTestRows<QString, QString, QString, QString> row("category", "other", "proposed", "reason");
        row("sign lost", u"Einkommen; Lohn - Gehalt"_s, {}, u"Einkommen; Lohn / Gehalt"_s,
            u"Kategorie aus der Datei"_s);
        row("main category without a line", u"wohnung"_s, {}, u"Wohnung"_s, u"Kategorie aus der Datei"_s);
        row("unknown", u"Hobby; Modellbau"_s, {}, u"Allgemein"_s, u"in der Datei unter Hobby; Modellbau"_s);
        row("second start", modWord::Startguthaben, {}, modWord::Startguthaben,
            u"das Konto hat schon ein Startguthaben"_s);
        row("transfer", {}, u"222"_s, u"Allgemein"_s, u"eigenes Konto: an Sparkonto"_s);
        row("transfer to an unknown account", {}, u"Depot"_s, u"Allgemein"_s,
            u"in der Datei eine Umbuchung mit Depot"_s);
    }

    void FileOfBookSpeaksFirst()
    {
        QFETCH(QString, category);
        QFETCH(QString, other);
        cBank bank;
        QVERIFY(bank.Data.SetStartGuthaben(u"Girokonto"_s, 100, day.addDays(-30)));
        cImportEntry row = BankRow(u"111"_s, day, -2310, u"Frau Holle"_s, u"Frau Holle"_s);
        row.ImportType = modBookRow::CategoryText(category);
        if (!other.isEmpty()) {
            modBookRow::MakeTransfer(row, other, category);
        }
        const cProposal proposal = bank.Propose(bank.cBankBook::Stage(row));
        QTEST(proposal.Entry.EntryCategory, "proposed");
        QTEST(proposal.Reason, "reason");
        QCOMPARE(proposal.IsSure, proposal.Reason == "Kategorie aus der Datei"_L1);
        QCOMPARE(proposal.Entry.EntryDescription, u"Frau Holle"_s);
    }

    void OneOfTwoStartsIsSure()
    {
        cBank bank;
        for (const int days : {0, 30}) {
            cImportEntry row = BankRow(u"111"_s, day.addDays(days), 50000, {}, {});
            row.ImportType = modBookRow::CategoryText(modWord::Startguthaben);
            (void)bank.cBankBook::Stage(row);
        }
        QVERIFY(bank.Propose(1).IsSure);
        QVERIFY(!bank.Propose(2).IsSure);
    }

    void ProposesByRule()
    {
        cBank bank;
        const cProposal proposal = bank.Propose(bank.Stage(day, -23.1, u"REWE  Markt"_s));
        QCOMPARE(proposal.Entry.EntryDate, day);
        QCOMPARE(proposal.Entry.EntryDateEnd, modRecurrence::OpenEnd);
        QCOMPARE(proposal.Entry.EntryValue, 2310);
        QCOMPARE(proposal.Entry.EntryType, modWord::Ausgabe);
        QCOMPARE(proposal.Entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(proposal.Entry.EntryCategory, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(proposal.Entry.EntryInterval, modWord::Einmalig);
        QCOMPARE(proposal.Entry.EntryDescription, u"REWE Markt - zu Nr. 1"_s);
        QCOMPARE(proposal.Reason, u"Regel: rewe"_s);
    }

    void PurposeNamesTheInterval_data()
    {
        const cTestRows<QString, QString> row("purpose", "interval");
        row("nothing", u"Stellplatz 17"_s, u"Monatlich"_s);
        row("quarter and year", u"Stellplatz Q4/2026"_s, u"Alle 3 Monate"_s);
        row("a car", u"Stellplatz Audi Q3"_s, u"Monatlich"_s);
        row("word with umlaut", u"Stellplatz, vierteljährlich"_s, u"Alle 3 Monate"_s);
        row("number of quarter", u"Stellplatz 4. Quartal"_s, u"Alle 3 Monate"_s);
        row("part of a year", u"Stellplatz 1/4-jährlich"_s, u"Alle 3 Monate"_s);
        row("a day before a year", u"Stellplatz ab 1.4. jährlich"_s, u"Jährlich"_s);
        row("months", u"Stellplatz 3-monatlich"_s, u"Alle 3 Monate"_s);
        row("a number of something else", u"Stellplatz 3 - monatlich"_s, u"Monatlich"_s);
        row("month instead of year", u"Haftpflicht monatlich"_s, u"Monatlich"_s);
        row("of a purchase", u"Rewe Halbjahresbonus"_s, modWord::Einmalig);
    }

    void PurposeNamesTheInterval()
    {
        QFETCH(const QString, purpose);
        cBank bank;
        const int row = bank.Stage(day, -90, u"Tann"_s, u"DE05"_s, u"111"_s, purpose);
        QTEST(bank.Propose(row).Entry.EntryInterval, "interval");
    }

    void ProposesDefault()
    {
        cBank bank;
        const int id = bank.Stage(day, 5, {});
        QCOMPARE(bank.Propose(id).Entry.EntryCategory, u"Allgemein"_s);
        QCOMPARE(bank.Propose(id).Entry.EntryType, modWord::Einnahme);
        QCOMPARE(bank.Propose(id).Entry.EntryDescription, u"zu Nr. 1"_s);
        QVERIFY(bank.Propose(id).Reason.isEmpty());
    }

    // What was decided last counts, not what was decided most often.
    void LearnsFromTheUser()
    {
        cBank bank;
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s, u"DE01"_s), gifts);
        const int alike = bank.Stage(day.addDays(9), -2, u"Rewe Sued"_s, u"DE 01"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, gifts);
        QCOMPARE(bank.Propose(alike).Reason, u"gelernt aus 1 Buchung an Rewe"_s);
        QVERIFY(!bank.Propose(alike).IsSure);
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s, u"DE01"_s), gifts);
        QVERIFY(bank.Propose(alike).IsSure);
        // An older row that is booked later is the newer decision.
        bank.BookAs(bank.Stage(day.addDays(-300), -1, u"REWE SAGT DANKE 4711//Talheim/DE"_s), rent, u"Jährlich"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, rent);
        QCOMPARE(bank.Propose(alike).Reason, u"gelernt aus 1 Buchung an Rewe; unsicher, andere sind anders gebucht"_s);
        QVERIFY(!bank.Propose(alike).IsSure);
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s), rent);
        QCOMPARE(bank.Propose(alike).Reason, u"gelernt aus 2 Buchungen an Rewe"_s);
        QVERIFY(bank.Propose(alike).IsSure);
        // Money that comes back is known by its sender, but it is another thing.
        const int back = bank.Stage(day, 3, u"REWE"_s);
        QCOMPARE(bank.Propose(back).Reason, u"gelernt aus 2 Buchungen von REWE"_s);
        QCOMPARE(bank.Propose(back).Entry.EntryInterval, modWord::Einmalig);
        QVERIFY(!bank.Propose(back).IsSure);
        // Somebody who books to and fro is asked every time.
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s), gifts);
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s), gifts);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, gifts);
        QVERIFY(!bank.Propose(alike).IsSure);
    }

    // The correction of a single old entry in the book is newer than all that was booked since.
    void LearnsFromACorrection()
    {
        cBank bank;
        const int first = bank.Stage(day, -1, u"Kiosk am Eck"_s);
        bank.BookAs(first, gifts);
        bank.BookAs(bank.Stage(day.addDays(1), -1, u"Kiosk am Eck"_s), gifts);
        cEntryItem entry = *bank.Data.LoadEntry(bank.EntryOf(first));
        entry.EntryCategory = rent;
        QVERIFY(bank.Data.ChangeEntry(entry) && modCorrected::Note(bank.Data, entry.ID));
        QCOMPARE(bank.Propose(bank.Stage(day.addDays(2), -1, u"Kiosk am Eck"_s)).Entry.EntryCategory, rent);
    }

    void LearnsByAccountOnlyWhereItIsOnePayee()
    {
        cBank bank;
        bank.BookAs(bank.Stage(day, -1, u"Max Mustermann"_s, u"DE01"_s), gifts);
        const int turned = bank.Stage(day, -1, u"Mustermann, Max"_s, u"DE01"_s);
        QCOMPARE(bank.Propose(turned).Entry.EntryCategory, gifts);
        QCOMPARE(bank.Propose(turned).Reason, u"gelernt aus 1 Buchung an Konto DE01"_s);
        const int stranger = bank.Stage(day, -1, u"Kern und Partner"_s, u"DE01"_s); // a clearing account after all
        QCOMPARE(bank.Propose(stranger).Entry.EntryCategory, u"Allgemein"_s);
        QCOMPARE(bank.Propose(turned).Entry.EntryCategory, u"Allgemein"_s);
        // Behind PayPal every shop is a payee of its own.
        const auto shop = [&](const QString& name) {
            return bank.Stage(day, -1, u"PayPal Europe"_s, u"LU01"_s, u"111"_s,
                              u"PP.1.PP . %1, Ihr Einkauf bei %1"_s.arg(name));
        };
        bank.BookAs(shop(u"Kern und Partner"_s), u"P"_s);
        QCOMPARE(bank.Propose(shop(u"Lehmbruck Verlag"_s)).Entry.EntryCategory, u"Allgemein"_s);
        QCOMPARE(bank.Propose(stranger).Reason, u"gelernt aus 1 Buchung an Kern und Partner"_s);
    }

    // The landlord gets the rent every month and what is settled once a year: the amount tells them apart.
    void MixedPayeeIsLearnedByAmount()
    {
        cBank bank;
        for (const double value : {-650.0, -123.0, -650.0}) {
            bank.BookAs(bank.Stage(day, value, u"Tannert"_s), value < -600 ? gifts : rent);
        }
        QCOMPARE(bank.Propose(bank.Stage(day, -123, u"Tannert"_s)).Entry.EntryCategory, rent);
        QVERIFY(bank.Propose(bank.Stage(day, -650, u"Tannert"_s)).IsSure);
    }

    void AcceptedOnceStaysSure()
    {
        cBank bank;
        const int first = bank.Stage(day, -10, u"REWE Markt"_s);
        QVERIFY(bank.Propose(first).IsSure);
        QCOMPARE(bank.BookAll({first}).Rows, 1);
        QVERIFY(bank.Propose(bank.Stage(day.addDays(1), -12, u"REWE Markt"_s)).IsSure);
    }

    void CashGoesToThePurse()
    {
        cBank bank;
        const cProposal proposal = bank.Propose(bank.Stage(day, -200, u"GA NR00012345 BLZ37050198"_s));
        QCOMPARE(proposal.Entry.EntryType, modWord::Umbuchung);
        QCOMPARE(proposal.Entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(proposal.Entry.EntryAccountMove, u"Bargeld"_s);
        QCOMPARE(proposal.Entry.EntryCategory, u"Allgemein; Barauszahlung"_s);
        QCOMPARE(proposal.Reason, u"Bargeld: an Bargeld"_s);
        QVERIFY(proposal.IsSure);
        const cProposal back = bank.Propose(bank.Stage(day, 50, u"Bareinzahlung"_s));
        QCOMPARE(back.Entry.EntryAccount + back.Entry.EntryAccountMove, u"BargeldGirokonto"_s);
        // What was drawn before the notes were counted is not there twice.
        bank.Add([](cEntryItem& entry) {
            entry.EntryDate = day.addDays(1);
            entry.EntryAccount = u"Bargeld"_s;
            entry.EntryCategory = modWord::Startguthaben;
        });
        QCOMPARE(bank.Propose(bank.Stage(day, -200, u"GA NR00012346"_s)).Entry.EntryType, modWord::Ausgabe);
        // Somebody who keeps no purse says so once.
        cEntryItem spent = proposal.Entry;
        spent.EntryType = modWord::Ausgabe;
        spent.EntryAccountMove.clear();
        QVERIFY(bank.BookAs(bank.Stage(day, -100, u"GA NR00099999"_s), spent));
        QCOMPARE(bank.Propose(bank.Stage(day, -20, {}, {}, u"111"_s, u"Bargeldauszahlung"_s)).Entry.EntryType,
                 modWord::Ausgabe);
    }

    void CashBeforeTheStartTeachesNothing_data()
    {
        const cTestRows<bool, double> row("isOldFirst", "value");
        row("the old month first", true, -200.0);
        row("the new month first", false, -200.0);
        row("abroad", true, -53.17);
    }

    // Two months beside the day on which the notes were counted, one booked and then the other: no notes are in the
    // purse twice, and none is missing.
    void CashBeforeTheStartTeachesNothing()
    {
        QFETCH(bool, isOldFirst);
        QFETCH(double, value);
        cBank bank;
        bank.Add([](cEntryItem& entry) {
            entry.EntryDate = day;
            entry.EntryAccount = u"Bargeld"_s;
            entry.EntryCategory = modWord::Startguthaben;
        });
        const auto kind = [&](int days) {
            const int row = bank.Stage(day.addDays(days), value, u"Geldautomat Istanbul"_s);
            const QString type = bank.Propose(row).Entry.EntryType;
            return bank.BookAll({row}).Rows == 1 ? type : QString();
        };
        for (const bool isOld : {isOldFirst, isOldFirst, !isOldFirst, !isOldFirst, isOldFirst}) {
            QCOMPARE(kind(isOld ? -20 : 20), isOld ? modWord::Ausgabe : modWord::Umbuchung);
        }
    }

    // A transfer to an account without a number is learned with its account.
    void LearnsTransfers()
    {
        cBank bank;
        const int first = bank.Stage(day, -100, u"Depotbank"_s);
        cEntryItem entry = bank.Propose(first).Entry;
        entry.EntryType = modWord::Umbuchung;
        entry.EntryAccountMove = u"Depot"_s;
        entry.EntryCategory = gifts;
        QVERIFY(bank.BookAs(first, entry));
        const cEntryItem back = bank.Propose(bank.Stage(day, 30, u"Depotbank"_s)).Entry;
        QCOMPARE(QStringList({back.EntryType, back.EntryAccount, back.EntryAccountMove}),
                 QStringList({modWord::Umbuchung, u"Depot"_s, u"Girokonto"_s}));
    }

    void TransferTakesBothRows()
    {
        cBank bank;
        const int out = bank.Stage(day, -200, u"Ich"_s, u"222"_s);
        const int other = bank.Stage(day.addDays(6), 200, u"Ich"_s, u"111"_s, u"222"_s); // too late
        const int stranger = bank.Stage(day, 200, u"Du"_s, u"999"_s, u"222"_s);
        const int in = bank.Stage(day.addDays(5), 200, u"Ich"_s, u"DE44100200300000000111"_s, u"222"_s);
        const cProposal proposal = bank.Propose(out);
        QCOMPARE(proposal.Entry.EntryType, modWord::Umbuchung);
        QCOMPARE(proposal.Entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(proposal.Entry.EntryAccountMove, u"Sparkonto"_s);
        QCOMPARE(proposal.PartnerRow, in);
        QCOMPARE(bank.Propose(in).Entry.EntryAccount, u"Girokonto"_s);
        const cBookingResult result = bank.BookAll({out, in});
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Skipped}), QList<int>({1, 2, 1}));
        QCOMPARE(bank.EntryOf(out), bank.EntryOf(in));
        QCOMPARE(bank.EntryOf(other), -1);
        QCOMPARE(bank.EntryOf(stranger), -1);
    }

    // The other account's statement comes a week later: its row belongs to the transfer that is already in the book.
    void TransferFindsItsSecondRowLater()
    {
        cBank bank;
        const int out = bank.Stage(day, -200, u"Ich"_s, u"222"_s);
        QCOMPARE(bank.BookAll({out}).Entries, 1);
        const int in = bank.Stage(day.addDays(1), 200, u"Ich"_s, u"111"_s, u"222"_s);
        const int again = bank.Stage(day.addDays(1), 200, u"Ich"_s, u"111"_s, u"222"_s);
        QCOMPARE(bank.BookAll({in}).Joined, 1);
        QCOMPARE(bank.EntryOf(in), bank.EntryOf(out));
        QCOMPARE(bank.Propose(again).ExistingEntry, 0);
        QCOMPARE(bank.Data.CountEntries(), 1);
    }

    // The rent of the next month is an occurrence of the first month's entry, not a second series beside it.
    void SeriesTakesItsPayments()
    {
        cBank bank;
        QList<int> rows;
        for (int month = 0; month < 3; ++month) {
            rows.append(
                bank.Stage(day.addMonths(month).addDays(month), month == 2 ? -660 : -650, u"Miete Tann"_s, u"DE05"_s));
        }
        const cBookingResult result = bank.BookAll(rows);
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Joined}), QList<int>({1, 3, 2}));
        cEntryQuery query;
        query.Start = QDate(2026, 1, 1);
        query.End = QDate(2026, 3, 31);
        const cEntryItemList entries = bank.Data.GetEntries(query);
        QCOMPARE(entries.size(), 3);
        QCOMPARE(entries.last().EntryValue, 66000);
        QVERIFY(entries.last().IsCorrected && !entries.first().IsCorrected);
        // A second payment within the month is no occurrence, and no second series either.
        const int extra = bank.Stage(day.addDays(2), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.Propose(extra).ExistingEntry, 0);
        QCOMPARE(bank.Propose(extra).Entry.EntryInterval, modWord::Einmalig);
        const int next = bank.Stage(day.addMonths(3), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.Propose(next).ExistingEntry, bank.EntryOf(rows.first()));
    }

    void WhatIsPaidBesideTheRentChangesNothing_data()
    {
        // extra: paid to the landlord, in whole euros; days: after the first rent
        const cTestRows<int, int> row("extra", "days");
        row("a key within the month", 25, 45);
        row("an arrear on the next day", 300, 32);
        row("nearly a rent", 640, 45);
        row("before the first rent", 25, -10);
    }

    // Each rent is in the book once, as the series or beside it.
    void WhatIsPaidBesideTheRentChangesNothing()
    {
        QFETCH(const int, extra);
        QFETCH(const int, days);
        cBank bank;
        QList<int> rows{bank.Stage(day.addDays(days), -extra, u"Miete Tann"_s, u"DE05"_s)};
        for (int month = 0; month < 4; ++month) {
            rows.append(bank.Stage(day.addMonths(month), -650, u"Miete Tann"_s, u"DE05"_s));
        }
        QCOMPARE(bank.BookAll(rows).Rows, rows.size());
        cEntryQuery query;
        query.Start = day.addDays(-20);
        query.End = day.addMonths(3);
        qint64 cents = 0;
        const cEntryItemList entries = bank.Data.GetEntries(query);
        for (const cEntryItem& entry : entries) {
            cents += entry.EntryValue;
        }
        QCOMPARE(cents, (4 * 650 + extra) * 100);
    }

    void NewestRowsFirstMakeOneSeries_data()
    {
        // runs: how many of the rows each one stages and books; days: of the rows, with an amount in cents
        const cTestRows<QList<int>, QList<QDate>, int, int> row("runs", "days", "oldest", "entries");
        const QDate second(2026, 2, 11);
        const QDate third(2026, 3, 10);
        row("one file", {3}, {third, second, day}, 65000, 1);
        row("one run each", {1, 1, 1}, {third, second, day}, 65000, 1);
        row("the middle last", {1, 1, 1}, {third, day, second}, 65000, 3);
        row("the middle waits beside the oldest", {1, 2}, {third, day, second}, 65000, 1);
        row("another amount", {1, 1}, {second, day}, 30000, 2);
        row("before that", {1, 1}, {QDate(2026, 5, 10), day}, 65000, 2);
        row("two of one day", {2, 2}, {second, second, day, day}, 65000, 3); // the second one stands beside the series
        row("no day fits", {1, 1}, {QDate(2026, 5, 31), QDate(2026, 4, 30)}, 65000, 2);
    }

    // What the bank booked before the series began makes no second series beside it.
    void NewestRowsFirstMakeOneSeries()
    {
        QFETCH(const QList<int>, runs);
        QFETCH(const QList<QDate>, days);
        QFETCH(const int, oldest);
        cBank bank;
        qsizetype at = 0;
        for (const int size : runs) {
            QList<int> rows;
            for (const QDate date : days.sliced(at, size)) {
                const double cents = date == days.last() ? oldest : 65000;
                rows.append(bank.Stage(date, -cents / 100.0, u"Miete Tann"_s, u"DE05"_s));
            }
            QCOMPARE(bank.BookAll(rows).Rows, size);
            at += size;
        }
        QTEST(bank.Data.CountEntries(), "entries");
        cEntryQuery query;
        query.End = *std::max_element(days.begin(), days.end());
        QList<QDate> paid = days;
        std::sort(paid.begin(), paid.end());
        QCOMPARE(Each(bank.Data.GetEntries(query), &cEntryItem::EntryDate), paid);
    }

    void PaymentsMakeOneSeries_data()
    {
        // month by month: purposes, and names with accounts; entries: after all are booked at once
        const cTestRows<QStringList, QStringList, int> row("purposes", "payees", "entries");
        const QString flat = u"Miete Lindenhof 12"_s;
        const QStringList nobody{{}, {}, {}};
        const QStringList last{{}, {}, u"Tann"_s};
        row("the same words", {flat, flat, flat}, nobody, 1);
        row("numbers and dates",
            {u"Strom Rechnung 4711 vom 03.01."_s, u"Strom Rechnung 99 vom 04.02."_s, u"Strom Rechnung 815"_s}, nobody,
            1);
        row("other words", {u"Miete Anna"_s, u"Mietzahlung"_s, flat}, nobody, 2); // the first may be the only one
        row("named later", {u"Miete Januar 2026"_s, u"Miete Februar 2026"_s, u"Miete März 2026"_s}, last, 1);
        const QString whole = u"Tann Miete Hof Ref.: NOTPROVIDED"_s; // as a bank without a column of names has it
        row("named apart later", {whole, whole, u"Miete Hof"_s}, last, 1);
        row("somebody else", {flat, flat, u"Miete"_s}, last, 2);
        row("account without a name", {flat, flat, u"Miete"_s}, {{}, {}, u"/DE05"_s}, 2);
        row("account later", {flat, flat, flat}, {u"Tann"_s, u"Tann"_s, u"Tann/DE05"_s}, 1);
        row("account before", {flat, flat, flat}, {u"Tann/DE05"_s, u"Tann/DE05"_s, u"Tann"_s}, 1);
    }

    // Two series of one payment would both go on for ever: formats differ in what they say of the payee.
    void PaymentsMakeOneSeries()
    {
        QFETCH(const QStringList, purposes);
        QFETCH(const QStringList, payees);
        cBank bank;
        QList<int> rows;
        for (int month = 0; month < purposes.size(); ++month) {
            const QString& payee = payees.at(month);
            rows.append(bank.Stage(day.addMonths(month), -650 - month, payee.section(u'/', 0, 0),
                                   payee.section(u'/', 1, 1), u"111"_s, purposes.at(month)));
        }
        QCOMPARE(bank.BookAll(rows).Rows, 3);
        QTEST(bank.Data.CountEntries(), "entries");
    }

    void AShopMakesNoSeries()
    {
        cBank bank;
        const int row = bank.Stage(day, -5, u"Universität Mensa"_s);
        for (const int days : {-9, -5, 4, 8}) {
            (void)bank.Stage(day.addDays(days), -20 - days, u"Universität Mensa"_s);
        }
        (void)bank.Stage(day.addDays(31), -5, u"Universität Mensa"_s);
        QCOMPARE(bank.Propose(row).Entry.EntryInterval, modWord::Einmalig);
    }

    void KeywordsAloneMakeNoSeries_data()
    {
        // same: days after the row on which the payee is paid again; back: on which the amount goes the other way
        const cTestRows<QList<int>, QList<int>, QList<int>, QString> row("same", "others", "back", "interval");
        row("the only row", {}, {}, {}, u"Monatlich"_s);
        row("a month later again", {33}, {90}, {}, u"Monatlich"_s);
        row("a month before", {-31}, {90}, {}, u"Monatlich"_s);
        row("never again", {}, {20, 60}, {}, u"Einmalig"_s);
        row("not to be known yet", {}, {20, 40}, {}, u"Monatlich"_s);
        row("every other month", {-61}, {20}, {}, u"Einmalig"_s);
        row("every week or so", {8, 30}, {}, {}, u"Einmalig"_s);
        row("returned", {31}, {}, {10}, u"Einmalig"_s);
        row("paid once more", {31}, {}, {-2}, u"Einmalig"_s);
        row("another matter", {31}, {}, {11}, u"Monatlich"_s);
    }

    void KeywordsAloneMakeNoSeries()
    {
        QFETCH(const QList<int>, same);
        QFETCH(const QList<int>, others);
        QFETCH(const QList<int>, back);
        cBank bank;
        const int row = bank.Stage(day, -650, u"Miete Tann"_s, u"DE05"_s);
        for (const int days : same) {
            (void)bank.Stage(day.addDays(days), -640, u"Miete Tann"_s, u"DE05"_s);
        }
        for (const int days : others) {
            (void)bank.Stage(day.addDays(days), -5, u"REWE"_s);
        }
        for (const int days : back) {
            (void)bank.Stage(day.addDays(days), 650, u"Miete Tann"_s, u"DE05"_s);
        }
        QTEST(bank.Propose(row).Entry.EntryInterval, "interval");
    }

    void LastRentBeforeARiseIsASeries()
    {
        cBank bank;
        const int row = bank.Stage(day, -800, u"Miete Tann"_s, u"DE05"_s);
        (void)bank.Stage(day.addDays(31), -984, u"Miete Tann"_s, u"DE05"_s); // a fifth of it less is more than the 800
        QCOMPARE(bank.Propose(row).Entry.EntryInterval, u"Monatlich"_s);
    }

    // Statements come in pieces, and behind the first one the series was ended.
    void EndedSeriesGoesOn()
    {
        cBank bank;
        const int first = bank.Stage(day, -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({first}).Entries, 1);
        cEntryItem series = *bank.Data.LoadEntry(bank.EntryOf(first));
        series.EntryDateEnd = day;
        QVERIFY(bank.Data.ChangeEntry(series));
        const int next = bank.Stage(day.addMonths(2), -660, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({next}).Joined, 1);
        QCOMPARE(bank.Data.LoadEntry(series.ID)->EntryDateEnd, modRecurrence::OpenEnd);
        // The month between, for which nothing came, stays without until its statement is read.
        QCOMPARE(bank.Data.GetEntryMods(series.ID).constFirst().EntryValue, 0);
        const int between = bank.Stage(day.addMonths(1), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.PlanOf(between).Match->Correction->EntryValue, 65000);
        QCOMPARE(bank.BookAll({between}).Joined, 1);
        QVERIFY(bank.Data.ChangeEntry(series));
        const int years = bank.Stage(day.addMonths(30), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({years}).Entries, 1);
    }

    void UnknownNumberIsNotBooked()
    {
        cBank bank;
        const cBookingResult result = bank.BookAll({bank.Stage(day, -1, u"X"_s, {}, u"333"_s)});
        QCOMPARE(result.UnknownAccounts, QStringList(u"333"_s));
        QCOMPARE(bank.Data.CountEntries(), 0);
    }

    void FailedAssignmentTakesAllBack()
    {
        cBank bank;
        const QList<int> rows{bank.Stage(day, -1, u"X"_s), bank.Stage(day, -2, u"X"_s), bank.Stage(day, -3, u"X"_s)};
        bank.WriteBehind(
            "CREATE TRIGGER full BEFORE UPDATE ON import WHEN NEW.ImportAssigned <> 0 AND NEW.ImportValue = -2 "
            "BEGIN SELECT RAISE(ABORT, 'voll'); END");
        const cBookingResult result = bank.BookAll(rows);
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Failed}), QList<int>({0, 0, 3}));
        QCOMPARE(bank.User.Shown.size(), 1);
        QCOMPARE(bank.Data.CountEntries(), 0);
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(-1).size(), 3);
    }

    void DeletedEntryReleasesItsRows()
    {
        cBank bank;
        const QList<int> rows{bank.Stage(day, -1, u"X"_s), bank.Stage(day, -2, u"X"_s), bank.Stage(day, -3, u"X"_s)};
        bank.BookAs(rows.first(), gifts);
        const int entry = bank.EntryOf(rows.first());
        QVERIFY(bank.Booking.Assign(rows.at(1), entry) && bank.Booking.Assign(rows.at(2), entry));
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(entry).size(), 3);
        QVERIFY(bank.Booking.Unassign(rows.at(2)));
        QCOMPARE(bank.Accounts.getAssignedEntry(*bank.Hive.GetImportHive().GetImportEntryByID(rows.at(1)))->ID, entry);
        QVERIFY(bank.Data.DeleteEntry(entry));
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(-1).size(), 3);
        QVERIFY(!bank.Booking.Assign(rows.at(1), entry));
    }
};

TEST_CLASS(testBooking, QCoreApplication)
#include "testBooking.moc"
