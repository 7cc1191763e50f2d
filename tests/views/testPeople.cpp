#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "store/cJournal.h"
#include "store/cUndoStep.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "views/people/modSettlement.h"
#include "views/template/cNameKeepers.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

// Today is the 15 March 2026.

namespace {

// "Anna -> Ben 12, ..."
QString Plain(const QList<cPayment>& payments)
{
    QStringList texts;
    for (const cPayment& payment : payments) {
        texts.append(u"%1 -> %2 %3"_s.arg(payment.From, payment.To).arg(payment.Cents));
    }
    return texts.join(u", "_s);
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
    void OwesWhom_data();
    void OwesWhom();
    void SplitsToTheCent_data();
    void SplitsToTheCent();
    void FewestPayments_data();
    void FewestPayments();
    void AnyPaymentsSettle();
    void NamesTakeTheirMarksAlong();
    void SharesAreStoredWhole();
    void ReportOfAPeriod();
};

void testPeople::OwesWhom_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("account");
    QTest::addColumn<QString>("payer");
    QTest::addColumn<QString>("payments"); // for 100 cents
    QTest::newRow("for the shared account") << modWord::Ausgabe << u"G"_s << u"Anna"_s << u"Ben -> Anna 40"_s;
    QTest::newRow("for all, from one's own") << modWord::Ausgabe << u"A"_s << u"Anna"_s << u"Ben -> Anna 50"_s;
    QTest::newRow("for the other") << modWord::Ausgabe << u"A"_s << u"Ben"_s << u"Anna -> Ben 100"_s;
    QTest::newRow("received for both") << modWord::Einnahme << u"G"_s << u"Ben"_s << u"Ben -> Anna 60"_s;
    QTest::newRow("given to the other") << modWord::Umbuchung << u"A>B"_s << u"Anna"_s << u"Ben -> Anna 100"_s;
    QTest::newRow("paid into the shared account") << modWord::Umbuchung << u"B>G"_s << u"Ben"_s << u"Anna -> Ben 60"_s;
    QTest::newRow("nobody named") << modWord::Ausgabe << u"G"_s << u""_s << u""_s;
    QTest::newRow("a person of another book")
        << modWord::Ausgabe << u"G"_s << u"Cem"_s << u"Anna -> Cem 60, Ben -> Cem 40"_s;
}

void testPeople::OwesWhom()
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

void testPeople::SplitsToTheCent_data()
{
    QTest::addColumn<qint64>("cents");
    QTest::addColumn<QList<int>>("shares");
    QTest::addColumn<QList<qint64>>("parts");
    QTest::newRow("even") << qint64{100} << QList<int>{50, 50} << QList<qint64>{50, 50};
    QTest::newRow("left over to the first") << qint64{101} << QList<int>{1, 1, 1} << QList<qint64>{34, 34, 33};
    QTest::newRow("nobody without a share") << qint64{101} << QList<int>{0, 1, 1} << QList<qint64>{0, 51, 50};
    QTest::newRow("below zero") << qint64{-101} << QList<int>{60, 40} << QList<qint64>{-61, -40};
    QTest::newRow("nobody") << qint64{5} << QList<int>{} << QList<qint64>{};
}

void testPeople::SplitsToTheCent()
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

void testPeople::FewestPayments_data()
{
    QTest::addColumn<QList<qint64>>("balances");
    QTest::addColumn<int>("payments");
    QTest::newRow("nobody owes") << QList<qint64>{0, 0} << 0;
    QTest::newRow("one group") << QList<qint64>{30, -10, -20} << 2;
    // The largest to the largest would take four payments.
    QTest::newRow("two groups") << QList<qint64>{50, 30, -40, -10, -30} << 3;
    QTest::newRow("three pairs") << QList<qint64>{7, 11, 13, -11, -13, -7} << 3;
    QTest::newRow("too many to look at all")
        << QList<qint64>{8, 8, 8, 8, 8, 8, 8, 8, -8, -8, -8, -8, -8, -8, -8, -8} << 8;
}

void testPeople::FewestPayments()
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
void testPeople::AnyPaymentsSettle()
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

void testPeople::NamesTakeTheirMarksAlong()
{
    cTestBook book;
    cPeople people(book.Tools);
    QVERIFY(people.Add(u"  Ann "_s) && people.Add(u"Anna;=%"_s));
    QVERIFY(!people.Add(u"ann"_s)); // there is one already
    QVERIFY(!people.Add(u" "_s));
    QCOMPARE(book.User.Shown.size(), 2);
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
    book.Settings->Reload(); // as the main window does
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

void testPeople::SharesAreStoredWhole()
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

void testPeople::ReportOfAPeriod()
{
    cTestBook book;
    QVERIFY(!cSettlementModel(book.Tools).Hint().isEmpty());
    cPeople people(book.Tools);
    QVERIFY(people.Add(u"Anna"_s) && people.Add(u"Ben"_s));
    for (const QDate day : {QDate(2026, 3, 2), QDate(2026, 3, 20), QDate(2025, 3, 2)}) { // the second is still to come
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
    QTemporaryDir folder;
    book.User.SavePath = folder.filePath(u"a.csv"_s);
    model.SaveFile();
    QFile file(folder.filePath(u"a.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("02.03.2026;Pizza & Wein;"));
}

TEST_CLASS(testPeople, QCoreApplication)
#include "testPeople.moc"
