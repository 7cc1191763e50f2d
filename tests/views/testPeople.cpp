#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/list/cSearch.h"
#include "views/main/cMainModel.h"
#include "views/main/cSavedViews.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "views/people/modSettlement.h"
#include "views/template/cNameKeepers.h"

#include <QRandomGenerator>

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

// Today is the 15 March 2026.

namespace {

// "Anna -> Ben 12, ..."
QString Plain(const QList<cPayment>& payments)
{
    const auto text = [](const cPayment& payment) {
        return u"%1 -> %2 %3"_s.arg(payment.From, payment.To).arg(payment.Cents);
    };
    return Each(payments, text).join(u", "_s);
}

cEntryItem Entry(const QString& type, const QString& account, const QString& payer, qint64 cents)
{
    cEntryItem entry;
    entry.EntryDate = QDate(2026, 3, 1);
    entry.EntryType = type;
    entry.EntryAccount = account.section(u'>', 0, 0);
    entry.EntryAccountMove = account.section(u'>', 1, 1);
    entry.EntryValue = cents;
    modPeople::SetPayer(entry, payer);
    return entry;
}

// Accounts "A" and "B" are of one each, "G" is shared 60 to 40, all else alike.
modPeople::cShares SharesOf(const QString& account)
{
    if (account == u"A" || account == u"B") {
        return {{account == u"A" ? u"Anna"_s : u"Ben"_s, 100}};
    }
    return account == u"G" ? modPeople::cShares{{u"Anna"_s, 60}, {u"Ben"_s, 40}}
                           : modPeople::Equal({u"Anna"_s, u"Ben"_s});
}

cSettlement Settle(const cEntryItemList& entries)
{
    return modSettlement::Figures(entries, {u"Anna"_s, u"Ben"_s}, SharesOf);
}

} // namespace

// Who paid, who bears, who owes whom, and what becomes of it when names change.
class testPeople final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OwesWhom_data()
    {
        // payments: for 100 cents
        const cTestRows<QString, QString, QString, QString> row("type", "account", "payer", "payments");
        row("for the shared account", modWord::Ausgabe, u"G"_s, u"Anna"_s, u"Ben -> Anna 40"_s);
        row("for all, from one's own", modWord::Ausgabe, u"A"_s, u"Anna"_s, u"Ben -> Anna 50"_s);
        row("for the other", modWord::Ausgabe, u"A"_s, u"Ben"_s, u"Anna -> Ben 100"_s);
        row("received for both", modWord::Einnahme, u"G"_s, u"Ben"_s, u"Ben -> Anna 60"_s);
        row("given to the other", modWord::Umbuchung, u"A>B"_s, u"Anna"_s, u"Ben -> Anna 100"_s);
        row("paid into the shared account", modWord::Umbuchung, u"B>G"_s, u"Ben"_s, u"Anna -> Ben 60"_s);
        row("nobody named", modWord::Ausgabe, u"G"_s, u""_s, u""_s);
        row("a person of another book", modWord::Ausgabe, u"G"_s, u"Cem"_s, u"Anna -> Cem 60, Ben -> Cem 40"_s);
    }

    void OwesWhom()
    {
        QFETCH(QString, type);
        QFETCH(QString, account);
        QFETCH(QString, payer);
        const cSettlement settlement = Settle({Entry(type, account, payer, 100)});
        QTEST(Plain(settlement.Payments), "payments");
        QCOMPARE(settlement.Counted.size(), payer.isEmpty() ? 0 : 1);
        // Paying what is owed, from one's own account to that of the other, leaves nothing.
        if (settlement.Payments.size() == 1) {
            const cPayment payment = settlement.Payments.constFirst();
            const QString way = payment.From == u"Anna" ? u"A>B"_s : u"B>A"_s;
            const cEntryItem paid = Entry(modWord::Umbuchung, way, payment.From, payment.Cents);
            QVERIFY(Settle({Entry(type, account, payer, 100), paid}).Payments.isEmpty());
        }
    }

    // Entries came with their payer, the persons did not.
    void NobodyOwesInABookOfNobody() const
    {
        const auto shares = [](const QString& /*account*/) { return modPeople::cShares(); };
        const cSettlement settlement =
            modSettlement::Figures({Entry(modWord::Ausgabe, u"G"_s, u"Anna"_s, 100)}, {}, shares);
        QVERIFY(settlement.Payments.isEmpty() && settlement.Counted.isEmpty());
    }

    void SplitsToTheCent_data()
    {
        const cTestRows<qint64, QList<int>, QList<qint64>> row("cents", "shares", "parts");
        row("even", 100, {50, 50}, {50, 50});
        row("left over to the first", 101, {1, 1, 1}, {34, 34, 33});
        row("nobody without a share", 101, {0, 1, 1}, {0, 51, 50});
        row("below zero", -101, {60, 40}, {-61, -40});
        row("nobody", 5, {}, {});
    }

    void SplitsToTheCent()
    {
        QFETCH(QList<int>, shares);
        modPeople::cShares parts;
        for (const int share : shares) {
            parts.append({QString::number(parts.size()), share});
        }
        QFETCH(qint64, cents);
        QTEST(modPeople::Split(cents, parts), "parts");
        QCOMPARE(modPeople::SharesOf(modPeople::ToText(parts)).size(), shares.size() - shares.count(0));
    }

    void FewestPayments_data()
    {
        const cTestRows<QList<qint64>, int> row("balances", "payments");
        row("nobody owes", {0, 0}, 0);
        row("one group", {30, -10, -20}, 2);
        // The largest to the largest would take four payments.
        row("two groups", {50, 30, -40, -10, -30}, 3);
        row("three pairs", {7, 11, 13, -11, -13, -7}, 3);
        row("too many to look at all", {8, 8, 8, 8, 8, 8, 8, 8, -8, -8, -8, -8, -8, -8, -8, -8}, 8);
    }

    void FewestPayments()
    {
        QFETCH(QList<qint64>, balances);
        QList<cPersonSum> people;
        for (const qint64 balance : balances) {
            people.append({QString::number(people.size()), balance, 0, 0});
        }
        const QList<cPayment> payments = modSettlement::Payments(people);
        QTEST(static_cast<int>(payments.size()), "payments");
        for (const cPayment& payment : payments) {
            people[payment.From.toInt()].Settled += payment.Cents;
            people[payment.To.toInt()].Settled -= payment.Cents;
        }
        for (const cPersonSum& person : people) {
            QCOMPARE(person.Balance(), 0);
        }
    }

    // Whatever the entries are, nobody is owed what nobody owes, and the payments bring everybody to zero.
    void AnyPaymentsSettle()
    {
        QRandomGenerator random(20261122);
        const QStringList types{modWord::Ausgabe, modWord::Einnahme, modWord::Umbuchung};
        const QStringList accounts{u"A>B"_s, u"B>G"_s, u"G>A"_s, u"X>G"_s};
        const QStringList payers{u"Anna"_s, u"Ben"_s, u"Cem"_s, QString()};
        for (int book = 0; book < 100; ++book) {
            cEntryItemList entries;
            for (int i = 0; i < 20; ++i) {
                entries.append(Entry(types.at(random.bounded(3)), accounts.at(random.bounded(4)),
                                     payers.at(random.bounded(4)), random.bounded(10000)));
            }
            cSettlement settlement = Settle(entries);
            for (const cPayment& payment : settlement.Payments) {
                QVERIFY(payment.Cents > 0);
                for (cPersonSum& person : settlement.People) {
                    person.Settled += person.Name == payment.From ? payment.Cents : 0;
                    person.Settled -= person.Name == payment.To ? payment.Cents : 0;
                }
            }
            for (const cPersonSum& person : settlement.People) {
                QCOMPARE(person.Balance(), 0);
            }
        }
    }

    void NamesTakeTheirMarksAlong()
    {
        cTestBook book;
        cPeople people(book.Tools);
        QVERIFY(people.Add(u"  Ann "_s) && people.Add(u"Anna;=%"_s));
        QVERIFY(!people.Add(u"ann"_s)); // there is one already
        QVERIFY(!people.Add(u" "_s));
        QVERIFY(!people.Rename(QString(), u"Ben"_s)); // all entries of nobody would be Ben's
        QCOMPARE(book.User.Shown.size(), 3);
        QCOMPARE(people.TakeShares(u"Girokonto"_s, {u"30"_s, u"70 %"_s}), QString());
        const int id = book.Add([](cEntryItem& entry) {
                               entry.EntryFlags = u"split=7"_s;
                               entry.EntryInterval = u"Monatlich"_s;
                               modPeople::SetPayer(entry, u"Ann"_s);
                           })
                           .ID;
        QCOMPARE(people.CountOf(u"Ann"_s), 1);
        QVERIFY(people.Rename(u"Ann"_s, u"Ben"_s));
        QCOMPARE(people.Names(), QStringList({u"Ben"_s, u"Anna;=%"_s}));
        QCOMPARE(modPeople::Payer(*book.Data.LoadEntry(id)), u"Ben"_s);
        QCOMPARE(book.Data.LoadEntry(id)->EntryFlags.section(u';', 0, 0), u"split=7"_s);
        QCOMPARE(cPeople::SharesText(people.SharesOf(u"Girokonto"_s)), u"Ben 30 %, Anna;=% 70 %"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(people.Names().constFirst(), u"Ann"_s);
        QCOMPARE(modPeople::Payer(*book.Data.LoadEntry(id)), u"Ann"_s);
        QVERIFY(!people.Remove(u"Ann"_s)); // the question was declined
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(people.Remove(u"Ann"_s));
        QCOMPARE(book.Data.LoadEntry(id)->EntryFlags, u"split=7"_s);
        QCOMPARE(cPeople::SharesText(people.SharesOf(u"Girokonto"_s)), u"Anna;=%"_s);
        cUndoStep step(book.Data, u"umbenannt"_s);
        QVERIFY(step.DoneIf(cNameKeepers(book.Data, *book.Settings).RenameAccount(u"Girokonto"_s, u"Haus"_s)));
        QCOMPARE(people.Stored(u"Haus"_s).size(), 1);
        QVERIFY(people.Stored(u"Girokonto"_s).isEmpty());
    }

    void SharesAreStoredWhole()
    {
        cTestBook book;
        cPeople people(book.Tools);
        QVERIFY(people.Add(u"Anna"_s) && people.Add(u"Ben"_s));
        QCOMPARE(cPeople::SharesText(people.SharesOf(u"Bargeld"_s)), u"Anna, Ben zu gleichen Teilen"_s);
        QCOMPARE(cPeople::WithRest({u"60"_s, u""_s}, 0), QStringList({u"60"_s, u"40"_s}));
        QCOMPARE(people.TakeShares({}, {u"60"_s, u"30"_s}), u"es fehlen 10 %"_s);
        QCOMPARE(people.TakeShares({}, {u"60"_s, u"sechs"_s}), u"'sechs' ist kein Anteil von 0 bis 100"_s);
        QVERIFY(people.Stored({}).isEmpty());
        QCOMPARE(people.TakeShares({}, {u"75"_s, u"25"_s}), QString());
        QCOMPARE(cPeople::SharesText(people.SharesOf(u"Bargeld"_s)), u"Anna 75 %, Ben 25 %"_s);
        QCOMPARE(people.TakeShares({}, {u""_s, u""_s}), QString());
        QVERIFY(people.Stored({}).isEmpty());
    }

    void SharesOfSomebodyWhoGoes_data()
    {
        // percents: of Anna, who goes, Ben and Cem
        const cTestRows<QStringList, QString> row("percents", "left");
        row("as theirs are", {u"50"_s, u"30"_s, u"20"_s}, u"Ben 60 %, Cem 40 %"_s);
        row("not even", {u"10"_s, u"60"_s, u"30"_s}, u"Ben 67 %, Cem 33 %"_s);
        row("rounded to the nearest", {u"10"_s, u"30"_s, u"60"_s}, u"Ben 33 %, Cem 67 %"_s);
        row("alike", {u"34"_s, u"33"_s, u"33"_s}, u"Ben, Cem zu gleichen Teilen"_s);
        row("one is left", {u"60"_s, u"40"_s, u""_s}, u"Ben"_s);
        row("all of it", {u"100"_s, u""_s, u""_s}, u"Ben, Cem zu gleichen Teilen"_s);
        row("none of it", {u""_s, u"70"_s, u"30"_s}, {});
    }

    // What the question says is what is shown and what is divided.
    void SharesOfSomebodyWhoGoes()
    {
        QFETCH(QStringList, percents);
        QFETCH(QString, left);
        cTestBook book;
        cPeople people(book.Tools);
        QVERIFY(people.Add(u"Anna"_s) && people.Add(u"Ben"_s) && people.Add(u"Cem"_s));
        QCOMPARE(people.TakeShares(u"Girokonto"_s, percents), QString());
        const modPeople::cShares before = people.Stored(u"Girokonto"_s);
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(people.Remove(u"Anna"_s));
        const modPeople::cShares shares = people.Stored(u"Girokonto"_s);
        if (left.isEmpty()) {
            QCOMPARE(shares, before);
            QVERIFY(!book.User.Asked.constLast().contains(u"Anteil"_s));
            return;
        }
        QVERIFY2(book.User.Asked.constLast().endsWith(u"Girokonto: "_s + left),
                 qPrintable(book.User.Asked.constLast()));
        QCOMPARE(cPeople::SharesText(people.SharesOf(u"Girokonto"_s)), left);
        const int sum = std::accumulate(shares.begin(), shares.end(), 0,
                                        [](int part, const modPeople::cShare& share) { return part + share.Part; });
        QCOMPARE(sum, shares.isEmpty() ? 0 : 100);
    }

    void ListsAreNarrowedToAPayer()
    {
        cTestBook book;
        cFakeNavigator navigator;
        cMainModel main(book.Tools, {book.Configuration, book.Shell, navigator, book.Path()});
        cPeople people(book.Tools);
        QVERIFY(people.Add(u"Anna"_s) && people.Add(u"Ben"_s));
        for (const auto& [payer, cents] : {std::pair{u"Anna"_s, 100}, {u"Ben"_s, 20}, {u""_s, 3}}) {
            book.Add([&payer = payer, cents = cents](cEntryItem& entry) {
                entry.EntryValue = cents;
                entry.EntryDescription = u"für Ben"_s; // his name alone does not make him the payer
                modPeople::SetPayer(entry, payer);
            });
        }
        main.RestoreView(false);
        main.ChooseAccount(u"Girokonto"_s);
        const auto spent = [&main] { return main.Entries().Sums().Expense; };
        main.ChoosePayer(modPeople::Nobody);
        QCOMPARE(spent(), 3);
        main.ChoosePayer(u"Cem"_s); // there is no such person
        QCOMPARE(spent(), 3);
        main.ChoosePayer(u"Ben"_s);
        QCOMPARE(spent(), 20);
        QVERIFY(
            main.Entries().index(0, cEntryListModel::Balance).data().toString().isEmpty()); // of a part there is none
        cSearch search(book.Tools);
        QCOMPARE(search.Find({.Payer = u"Ben"_s}).size(), 1);
        QCOMPARE(search.Find({.Text = u"ben"_s, .Payer = modPeople::Nobody}).size(), 1);
        book.User.Choices = {u"Bens"_s};
        QVERIFY(cSavedViews(book.Tools).Keep({.View = main.View()}));
        QVERIFY(people.Rename(u"Ben"_s, u" Benno "_s));
        main.BookChanged();
        QCOMPARE(spent(), 20);
        QVERIFY(main.ViewLines().contains(u"Bezahlt von: Benno"_s));
        QVERIFY(main.Execute(modCommand::Undo));
        QVERIFY(main.ViewLines().contains(u"Bezahlt von: Ben"_s));
        QVERIFY(main.Execute(modCommand::Redo));
        QCOMPARE(book.Settings->Get(modSettingKey::MainPayer), u"Benno"_s); // where no window is open to follow
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(people.Remove(u"Anna"_s));
        main.BookChanged();
        main.ChoosePayer(QString());
        QCOMPARE(spent(), 123);
        main.ShowView(cSavedViews(book.Tools).All().constFirst().View);
        QCOMPARE(spent(), 20);
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(people.Remove(u"Benno"_s));
        main.BookChanged();
        QCOMPARE(spent(), 123); // nobody is left to be chosen
    }

    void ReportOfAPeriod()
    {
        cTestBook book;
        QVERIFY(!cSettlementModel(book.Tools).Hint().isEmpty());
        cPeople people(book.Tools);
        QVERIFY(people.Add(u"Anna"_s) && people.Add(u"Ben"_s));
        for (const QDate day :
             {QDate(2026, 3, 2), QDate(2026, 3, 20), QDate(2025, 3, 2)}) { // the second is still to come
            (void)book.Add([day](cEntryItem& entry) {
                entry.EntryDate = day;
                entry.EntryValue = 1001;
                entry.EntryDescription = u"Pizza & Wein"_s;
                modPeople::SetPayer(entry, u"Ben"_s);
            });
        }
        cSettlementModel model(book.Tools);
        const QString html = QString(model.Html()).replace(u'\u00A0', u' ');
        QVERIFY2(html.contains(u">5,01 €<"_s), qPrintable(html)); // the cent that is left over is Anna's
        QCOMPARE(html.count(u"Pizza &amp; Wein"_s), 1);
        const cTestFile folder;
        book.User.SavePath = folder.Path(u"a.csv"_s);
        model.SaveFile();
        QVERIFY(cTestFile::Bytes(book.User.SavePath).contains("02.03.2026;Pizza & Wein;"));
        book.User.SavePath = folder.Path(u"a.xlsx"_s);
        model.SaveFile();
        QVERIFY(cTestFile::Bytes(book.User.SavePath).startsWith("PK"));
        book.User.SavePath = folder.Path(u"a.ods"_s);
        model.SaveFile();
        QVERIFY(book.User.Shown.constLast().contains(u".xlsx"_s) && !QFile::exists(book.User.SavePath));
        QVERIFY(model.CanChangePeople());
        book.Database.Open(book.Path(), eOpenMode::ReadOnly);
        QVERIFY(!cSettlementModel(book.Tools).CanChangePeople());
    }
};

TEST_CLASS(testPeople, QCoreApplication)
#include "testPeople.moc"
