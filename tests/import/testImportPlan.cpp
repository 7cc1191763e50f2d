#include "cImportBook.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate day(2026, 1, 10);

struct cBank : cBankBook
{
    int Stage(QDate date, qint64 cents, const QString& name, const QString& account = {}, const QString& own = u"111"_s)
    {
        return cBankBook::Stage(BankRow(own, date, cents, name, {}, account));
    }

    int Enter(QDate date, qint64 cents, const QString& text, const QString& interval = modWord::Einmalig)
    {
        return Spend(date, cents, text, interval).ID;
    }
};

using fnChange = std::function<void(cEntryItem&, cImportEntry&)>;

int MatchOf(const cRowPlan& plan)
{
    return plan.Match ? plan.Match->Entry.ID : 0;
}

} // namespace

class testImportPlan final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What is in the book goes before what the program could make of the row.
    void FindsWhatIsThere()
    {
        cBank bank;
        const int food = bank.Enter(day, 2310, u"REWE"_s);
        const int gift = bank.Enter(day, 5000, u"xyz"_s);
        const int certain = bank.Stage(day.addDays(2), -2310, u"REWE"_s);
        const int likely = bank.Stage(day, -5000, u"Jana"_s);
        const int sure = bank.Stage(day, -999, u"REWE"_s);
        const int unknown = bank.Stage(day, -777, u"Quirrlix"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({certain, likely, sure, unknown});
        QCOMPARE(plans.value(certain).Group, eRowGroup::InBook);
        QCOMPARE(MatchOf(plans.value(certain)), food);
        QCOMPARE(plans.value(likely).Group, eRowGroup::Look);
        QCOMPARE(MatchOf(plans.value(likely)), gift);
        QCOMPARE(plans.value(sure).Group, eRowGroup::Sure);
        QCOMPARE(plans.value(unknown).Group, eRowGroup::Look);
        QCOMPARE(MatchOf(plans.value(unknown)), 0);
    }

    // An entry goes to the row that it fits best, also when only the other one is asked for.
    void LeavesTheEntryToItsRow()
    {
        cBank bank;
        const int food = bank.Enter(day, 2310, u"REWE Talheim"_s);
        const int later = bank.Stage(day.addDays(9), -2310, u"REWE Talheim"_s);
        const int right = bank.Stage(day, -2310, u"REWE Talheim"_s);
        QCOMPARE(MatchOf(bank.PlanOf(later)), 0);
        QCOMPARE(MatchOf(bank.PlanOf(right)), food);
    }

    // The bill of the year after is twice as high: what the counterparty was booked to before says more than the
    // amount.
    void KnowsTheSeriesOfACounterparty()
    {
        cBank bank;
        const int power = bank.Enter(day, 5000, u"Strom"_s, u"Monatlich"_s);
        QVERIFY(bank.Booking.Assign(bank.Stage(day, -5000, u"Licht GmbH"_s, u"DE05"_s), power));
        const int dear = bank.Stage(day.addMonths(1), -9900, u"Licht GmbH"_s, u"DE05"_s);
        const int second = bank.Stage(day.addMonths(1).addDays(1), -9900, u"Licht GmbH"_s, u"DE05"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({dear, second});
        QCOMPARE(plans.value(dear).Group, eRowGroup::InBook);
        QCOMPARE(MatchOf(plans.value(dear)), power);
        QCOMPARE(plans.value(dear).Match->Correction.value_or(cEntryItemFixMod()).EntryValue, 9900);
        QVERIFY(plans.value(second).Group == eRowGroup::Look && plans.value(second).IsBeside); // the month is paid
        QCOMPARE(MatchOf(plans.value(second)), 0);
        QCOMPARE(plans.value(second).Proposal.Entry.EntryInterval, modWord::Einmalig);
    }

    // The older statement comes last: of its two payments one is the rent of a month before the series, and none that
    // of the month which is paid.
    void OccurrenceThatIsPaidIsLeft()
    {
        cBank bank;
        const int rent = bank.Enter(day.addDays(30), 5000, u"Miete"_s, u"Monatlich"_s);
        QVERIFY(bank.Booking.Assign(bank.Stage(day.addDays(29), -5000, u"Tann GmbH"_s, u"DE05"_s), rent));
        const int older = bank.Stage(day, -5000, u"Tann GmbH"_s, u"DE05"_s);
        const int extra = bank.Stage(day.addDays(14), -5000, u"Tann GmbH"_s, u"DE05"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({older, extra});
        QCOMPARE(plans.value(older).Proposal.ExistingEntry, rent);
        QCOMPARE(MatchOf(plans.value(extra)), 0);
        QCOMPARE(plans.value(extra).Proposal.Entry.EntryInterval, modWord::Einmalig);
    }

    void Transfers_data()
    {
        // entered: as what one side stands in the book
        // type: of what the other side becomes
        const cTestRows<QString, eRowGroup, QString> row("entered", "group", "type");
        row("nothing entered", {}, eRowGroup::InBook, modWord::Umbuchung);
        row("the transfer", modWord::Umbuchung, eRowGroup::InBook, modWord::Umbuchung);
        row("an expense", modWord::Ausgabe, eRowGroup::Look, modWord::Einnahme);
    }

    void Transfers()
    {
        QFETCH(const QString, entered);
        cBank bank;
        int entry = 0;
        if (!entered.isEmpty()) {
            entry = bank.Add([&](cEntryItem& each) {
                            each.EntryDate = day;
                            each.EntryValue = 20000;
                            each.EntryType = entered;
                            each.EntryDescription = u"Ich"_s;
                            each.EntryAccountMove = entered == modWord::Umbuchung ? u"Sparkonto"_s : QString();
                        })
                        .ID;
        }
        const int out = bank.Stage(day, -20000, u"Ich"_s, u"222"_s);
        const int in = bank.Stage(day.addDays(2), 20000, u"Ich"_s, u"111"_s, u"222"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({in, out});
        QCOMPARE(MatchOf(plans.value(out)), entry);
        QTEST(plans.value(in).Group, "group");
        QTEST(plans.value(in).Proposal.Entry.EntryType, "type");
        QCOMPARE(plans.value(in).Proposal.PartnerRow, entry == 0 ? out : plans.value(in).Proposal.PartnerRow);
        if (entry == 0) {
            QCOMPARE(plans.value(in).Proposal.Entry.EntryDate, day); // the money leaves first
        }
    }

    void Settlements_data()
    {
        // texts: name and purpose at the bank; other: name, purpose and kind on the account with the number
        const cTestRows<QString, QString, QString, int, bool> row("texts", "number", "other", "days", "isTransfer");
        const QString bill = u"DKB AG|Kreditkartenabrechnung 07/2026 VISA"_s;
        const QString paid = u"|Ausgleich Kreditkarte gem. Abrechnung|Einzahlung"_s;
        const QString payPal = u"PayPal (Europe) S.a.r.l.|Ihr Einkauf bei Spotify"_s;
        const QString refill = u"||Bankgutschrift auf PayPal-Konto"_s;
        const QString card = u"4711********1234"_s;
        row("card", bill, card, paid, 0, true);
        row("too late", bill, card, paid, 6, false);
        row("a purchase beside the bill", u"REWE|VISA Debitkartenumsatz"_s, card, paid, 0, false);
        row("what a shop gave back", bill, card, u"Zalando|Erstattung 4711|Gutschrift"_s, 0, false);
        row("no card", bill, u"222"_s, paid, 0, false);
        row("PayPal", payPal, u"me@example.com"_s, refill, -2, true);
        row("money of somebody by PayPal", payPal, u"PayPal"_s, u"Jana||Handyzahlung"_s, 0, false);
        row("a purchase of the same amount", u"REWE|Einkauf"_s, u"PayPal"_s, refill, 0, false);
    }

    void Settlements()
    {
        QFETCH(const QString, number);
        QFETCH(const bool, isTransfer);
        cBank bank;
        QVERIFY(bank.Accounts.Assign(number, number == u"222" ? u"Sparkonto"_s : u"Depot"_s));
        const auto stage = [&](const QString& own, QDate date, qint64 cents, const QString& words) {
            cImportEntry row = BankRow(own, date, cents, words.section(u'|', 0, 0), words.section(u'|', 1, 1));
            row.ImportType = words.section(u'|', 2);
            return bank.cBankBook::Stage(row);
        };
        QFETCH(const QString, texts);
        QFETCH(const QString, other);
        QFETCH(const int, days);
        const int out = stage(u"111"_s, day, -1299, texts);
        const int in = stage(number, day.addDays(days), 1299, other);
        const QHash<int, cRowPlan> plans = bank.Plan({out, in});
        QCOMPARE(plans.value(out).Proposal.PartnerRow, isTransfer ? in : 0);
        QCOMPARE(plans.value(in).Proposal.PartnerRow, isTransfer ? out : 0);
        QCOMPARE(plans.value(in).Proposal.Entry.EntryType, isTransfer ? modWord::Umbuchung : modWord::Einnahme);
    }

    void OtherSidesOfDebits_data()
    {
        // credit, rival: days behind the debit on which the other account got it, and on which it was sent again
        // isCovered: the other account has rows before and behind
        const cTestRows<int, int, bool, eRowGroup> row("credit", "rival", "isCovered", "group");
        row("over holidays", 10, 0, true, eRowGroup::InBook);
        row("of the second debit", 10, 9, false, eRowGroup::Sure);
        row("too slow", 11, 0, false, eRowGroup::Sure);
        row("no statement yet", 0, 0, false, eRowGroup::Sure);
        row("not on the statement", 0, 0, true, eRowGroup::Look);
    }

    void OtherSidesOfDebits()
    {
        QFETCH(const int, credit);
        QFETCH(const int, rival);
        QFETCH(const bool, isCovered);
        cBank bank;
        const int out = bank.Stage(day, -20000, u"Ich"_s, u"222"_s);
        const auto stage = [&](bool isWanted, int days, qint64 cents, const QString& own, const QString& other) {
            return isWanted ? bank.Stage(day.addDays(days), cents, u"Ich"_s, other, own) : 0;
        };
        const int in = stage(credit != 0, credit, 20000, u"222"_s, u"111"_s);
        (void)stage(rival != 0, rival, -20000, u"111"_s, u"222"_s);
        (void)stage(isCovered, -1, 100, u"222"_s, {});
        (void)stage(isCovered, 12, 100, u"222"_s, {});
        const cRowPlan plan = bank.PlanOf(out);
        QTEST(plan.Group, "group");
        QCOMPARE(plan.Proposal.PartnerRow, plan.Group == eRowGroup::InBook ? in : 0);
    }

    void TurnsWhatTheOtherSideWasBookedAs_data()
    {
        QTest::addColumn<bool>("isDebitFirst");
        QTest::addColumn<fnChange>("change"); // of what was booked, and its row
        QTest::addColumn<bool>("isTurned");
        const auto add = [](const char* name, bool isTurned, const fnChange& change) {
            QTest::newRow(name) << true << change << isTurned;
        };
        add("as booked", true, [](auto&, auto&) {});
        QTest::newRow("the credit first") << false << fnChange([](auto&, auto&) {}) << true;
        QTest::newRow("the credit first, moved by hand")
            << false << fnChange([](auto& entry, auto&) { entry.EntryDate = day.addMonths(-1); }) << false;
        add("another amount", false, [](auto& entry, auto&) { entry.EntryValue = 19900; });
        add("a series", false, [](auto& entry, auto&) { entry.EntryInterval = u"Monatlich"_s; });
        add("another account", false, [](auto& entry, auto&) { entry.EntryAccount = u"Bargeld"_s; });
        add("another transfer", false, [](auto& entry, auto&) {
            entry.EntryType = modWord::Umbuchung;
            entry.EntryAccountMove = u"Bargeld"_s;
        });
        add("a part of a purchase", false, [](auto& entry, auto&) { modSplit::SetGroup(entry, 7); });
        add("perhaps somebody else's", false, [](auto&, auto& row) { row.ImportBeneficiaryAccount.clear(); });
    }

    // The first statement was booked while nobody knew that the other number is an own account too.
    void TurnsWhatTheOtherSideWasBookedAs()
    {
        QFETCH(const bool, isDebitFirst);
        QFETCH(const fnChange, change);
        QFETCH(const bool, isTurned);
        cBank bank;
        QList<int> booked;
        QList<int> open;
        for (const int days : {0, 3}) {
            const int out = bank.Stage(day.addDays(days), -20000, u"Ich"_s, u"222"_s);
            const int in = bank.Stage(day.addDays(days + 2), 20000, u"Ich"_s, u"111"_s, u"222"_s);
            booked.append(isDebitFirst ? out : in);
            open.append(isDebitFirst ? in : out);
            cImportEntry row =
                bank.Hive.GetImportHive().GetImportEntryByID(booked.constLast()).value_or(cImportEntry());
            cEntryItem entry;
            entry.EntryDate = row.ImportDate;
            entry.EntryValue = 20000;
            entry.EntryType = isDebitFirst ? modWord::Ausgabe : modWord::Einnahme;
            entry.EntryAccount = isDebitFirst ? u"Girokonto"_s : u"Sparkonto"_s;
            entry.EntryInterval = modWord::Einmalig;
            entry.EntryCategory = u"A"_s;
            change(entry, row);
            QVERIFY(bank.Hive.Change(row));
            QVERIFY(bank.BookAs(row.ID, entry));
        }
        const QHash<int, cRowPlan> plans = bank.Plan(open);
        QHash<int, cProposal> proposals;
        for (const int row : std::as_const(open)) {
            QCOMPARE(plans.value(row).Group, isTurned ? eRowGroup::InBook : eRowGroup::Look);
            QCOMPARE(plans.value(row).Proposal.Entry.EntryType == modWord::Umbuchung, isTurned);
            QVERIFY(plans.value(row).Reason.startsWith(u"die Gegenbuchung steht"_s));
            proposals.insert(row, plans.value(row).Proposal);
        }
        cNoProgress progress;
        QCOMPARE(bank.Booking.Book(open, proposals, progress).Joined, isTurned ? 2 : 0);
        for (int i = 0; isTurned && i < 2; ++i) {
            const cImportEntry row = bank.Hive.GetImportHive().GetImportEntryByID(open.at(i)).value_or(cImportEntry());
            const cEntryItem entry = bank.Data.LoadEntry(row.ImportAssignedEntry).value_or(cEntryItem());
            QCOMPARE(QStringList({entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, entry.EntryCategory}),
                     QStringList({modWord::Umbuchung, u"Girokonto"_s, u"Sparkonto"_s, u"A"_s}));
            QCOMPARE(entry.EntryDate, day.addDays(qint64{3} * i));
            QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(entry.ID).size(), 2);
        }
    }

    void ADoubleIsNoSideOfATransfer_data()
    {
        // account: that the first of two equal debits names
        const cTestRows<QString, bool, QString> row("account", "isBooked", "type");
        row("nothing booked", {}, false, modWord::Umbuchung);
        row("booked as an expense", {}, true, modWord::Einnahme);
        row("booked as the transfer", u"222"_s, true, modWord::Umbuchung);
    }

    // The debit came in two formats: its transfer takes the row that is or will be booked, never the other one.
    void ADoubleIsNoSideOfATransfer()
    {
        QFETCH(const QString, account);
        QFETCH(const bool, isBooked);
        cBank bank;
        const int first = bank.Stage(day, -20000, u"Quirrlix"_s, account);
        const int booked = isBooked ? bank.BookAll({first}).EntryIds.constFirst() : 0;
        const int second = bank.Stage(day, -20000, u"Quirrlix GmbH"_s, u"222"_s);
        const int in = bank.Stage(day, 20000, u"Quirrlix"_s, u"111"_s, u"222"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({first, second, in});
        QVERIFY(plans.value(isBooked ? second : first).IsSecond);
        const cProposal proposal = plans.value(in).Proposal;
        QTEST(proposal.Entry.EntryType, "type");
        QCOMPARE(proposal.PartnerRow, isBooked ? 0 : second);
        QCOMPARE(proposal.ExistingEntry, account.isEmpty() ? 0 : booked);
    }

    // Two transfers of one amount, of which the book has the other side of the one.
    void ATransferIsPaidOnce_data()
    {
        const cTestRows<QString> row("account"); // of the other transfer
        row("to an account of its own", u"333"_s);
        row("to nobody", {});
    }

    void ATransferIsPaidOnce()
    {
        QFETCH(const QString, account);
        cBank bank;
        QVERIFY(bank.Accounts.Assign(u"333"_s, u"Depot"_s));
        const int in = bank.Stage(day.addDays(1), 20000, u"Ole Muster"_s, u"111"_s, u"222"_s);
        const int entry = bank.BookAll({in}).EntryIds.constFirst();
        const int out = bank.Stage(day, -20000, u"Ole Muster"_s, u"222"_s);
        const int other = bank.Stage(day.addDays(1), -20000, u"Ole Muster"_s, account);
        const QHash<int, cRowPlan> plans = bank.Plan({out, other});
        const auto isPaying = [&](int row) {
            return MatchOf(plans.value(row)) == entry || plans.value(row).Proposal.ExistingEntry == entry;
        };
        QCOMPARE(isPaying(out), !account.isEmpty());
        QCOMPARE(isPaying(other), account.isEmpty());
    }

    // Its other side, of which the bank names no account, fits a transfer to somewhere else.
    void ATransferHasTwoAccounts()
    {
        cBank bank;
        QVERIFY(bank.Accounts.Assign(u"333"_s, u"Depot"_s));
        const int saved = bank.Stage(day, 20000, u"Ole Muster"_s, u"111"_s, u"222"_s);
        const int entry = bank.BookAll({saved}).EntryIds.constFirst();
        const int out = bank.Stage(day, -20000, u"Ole Muster"_s, {});
        const int in = bank.Stage(day.addDays(1), 20000, u"Ole Muster"_s, u"111"_s, u"333"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({out, in});
        QCOMPARE(MatchOf(plans.value(out)), entry);
        QCOMPARE(plans.value(in).Proposal.ExistingEntry, 0);
        QCOMPARE(plans.value(in).Proposal.Entry.EntryType, modWord::Einnahme);
    }

    // Both sides came in two formats, one of which has the days of the values: each row is nearest to a double.
    void DoublesLeaveTheTransfer()
    {
        cBank bank;
        const int out = bank.Stage(day, -20000, u"Ich"_s, u"222"_s);
        const int in = bank.Stage(day.addDays(1), 20000, u"Ich"_s, u"111"_s, u"222"_s);
        const int secondOut = bank.Stage(day.addDays(1), -20000, u"Ich"_s, u"222"_s);
        const int secondIn = bank.Stage(day, 20000, u"Ich"_s, u"111"_s, u"222"_s);
        bank.Kinds = {{out, u'v'}, {in, u'b'}, {secondOut, u'b'}, {secondIn, u'v'}};
        const QHash<int, cRowPlan> plans = bank.Plan({out, in, secondOut, secondIn});
        QVERIFY(plans.value(secondOut).IsSecond && plans.value(secondIn).IsSecond);
        QCOMPARE(plans.value(out).Proposal.PartnerRow, in);
        QCOMPARE(plans.value(in).Proposal.PartnerRow, out);
        QCOMPARE(plans.value(in).Proposal.Entry.EntryDate, day);
        QCOMPARE(plans.value(in).Group, eRowGroup::InBook);
    }

    // The debit was entered by hand and came in two formats: the other side of the transfer names the one too many.
    void WhatWasEnteredGoesBeforeADouble()
    {
        cBank bank;
        const int entry = bank.Enter(day, 20000, u"Quirrlix"_s);
        const int first = bank.Stage(day, -20000, u"Quirrlix"_s);
        const int second = bank.Stage(day, -20000, u"Quirrlix GmbH"_s, u"222"_s);
        const int in = bank.Stage(day, 20000, u"Quirrlix"_s, u"111"_s, u"222"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({first, second, in});
        QCOMPARE(MatchOf(plans.value(first)), entry);
        QVERIFY(plans.value(second).IsSecond);
        QCOMPARE(plans.value(in).Proposal.Entry.EntryType, modWord::Einnahme);
    }

    // Of two rows that may be the same the one that has an entry goes first, whichever came first.
    void TwinsGoOneAfterTheOther()
    {
        cBank bank;
        const int first = bank.Stage(day, -2310, u"Quirrlix"_s, u"DE05"_s);
        const int second = bank.Stage(day, -2310, u"Quirrlix GmbH"_s, u"DE05"_s);
        QVERIFY(!bank.Plan({first, second}).value(first).IsSecond);
        QVERIFY(bank.PlanOf(second).IsSecond);
        bank.Enter(day, 2310, u"Quirrlix GmbH"_s);
        const QHash<int, cRowPlan> plans = bank.Plan({first, second});
        const bool isFirstThere = MatchOf(plans.value(first)) != 0;
        QVERIFY(isFirstThere != (MatchOf(plans.value(second)) != 0));
        QCOMPARE(plans.value(isFirstThere ? second : first).IsSecond, true);
        QCOMPARE(plans.value(isFirstThere ? second : first).Group, eRowGroup::Look);
        QCOMPARE(plans.value(isFirstThere ? first : second).IsSecond, false);
    }
};

TEST_CLASS(testImportPlan, QCoreApplication)
#include "testImportPlan.moc"
