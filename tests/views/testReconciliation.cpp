#include "core/modDemo.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/entry/cEntryDelete.h"
#include "views/entry/cReconciledDays.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/cReconcileListModel.h"
#include "views/ledger/cReconciliation.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString number = u"DE02100200300001234567"_s;

// A giro account that the bank said to hold 1000.00 on April 30th and 950.00 on May 31st.
struct cScene : cTestBook
{
    cScene()
    {
        Settings->Set(modSettingKey::BankNumber.Of(number), u"Girokonto"_s);
        Settings->Set(modSettingKey::BankBalances.Of(number), u"2026-04-30=100000;2026-05-31=95000"_s);
        if (!Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 4, 30))) {
            qFatal("no start balance");
        }
    }

    // A row of May, assigned to the entry with this ID.
    int Row(int day, int cents, const QString& name, int entry = -1)
    {
        return Stage(number, QDate(2026, 5, day), cents, name, entry).ID;
    }

    // An expense of May.
    int Entry(int day, int cents, const QString& name, const QString& interval = modWord::Einmalig)
    {
        return Spend(QDate(2026, 5, day), cents, name, interval).ID;
    }
};

QStringList Shown(const cReconcileListModel& model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < cReconcileListModel::ColumnCount; ++column) {
            cells.append(model.index(row, column).data().toString().remove(u"\u00A0€"_s));
        }
        lines.append(cells.join(u'|'));
    }
    return lines;
}

} // namespace

class testReconciliation final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In whatever order they are read, the book says what the bank said before there was a first row.
    void StatementsWithoutRowsNameTheDay_data()
    {
        // since: from then on the bank named no other balance
        const cTestRows<QString, QDate> row("january", "since");
        row("the same", u"C260101EUR50,00"_s, QDate(2026, 1, 1));
        row("another one, so rows are missing", u"C260101EUR40,00"_s, QDate(2026, 2, 1));
    }

    void StatementsWithoutRowsNameTheDay()
    {
        QFETCH(const QString, january);
        const QString february = u"C260201EUR50,00"_s;
        QStringList files{
            u"%1\n:62F:%1"_s.arg(january), u"%1\n:62F:%1"_s.arg(february),
            u"C260301EUR50,00\n:61:260315D30,00NMSCNONREF\n:86:005?20Einkauf?32REWE\n:62F:C260331EUR20,00"_s};
        std::sort(files.begin(), files.end());
        do {
            cTestBook book;
            book.Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
            book.User.Usual = eAnswer::Yes;
            cImportReview review(book.Tools);
            cNoProgress progress;
            const cTestFile folder;
            for (const QString& file : std::as_const(files)) {
                const QString path = folder.Path(QString::number(files.indexOf(file)));
                cTestFile::Write(path, (u":20:A\n:25:10020030/1234567\n:60F:"_s + file + u"\n-\n"_s).toUtf8());
                review.Files().ImportFiles({path}, progress);
            }
            const std::optional<cEntryItem> start = book.Data.GetStartGuthaben(u"Girokonto"_s);
            QVERIFY(start);
            QCOMPARE(start->EntryValue, 5000);
            QTEST(start->EntryDate, "since");
        } while (std::next_permutation(files.begin(), files.end()));
    }

    // Who typed today's balance first and reads an older statement without balances afterwards meant that of today.
    void StartBalanceOfALaterDayIsCountedBack()
    {
        cScene scene;
        scene.Settings->Delete(modSettingKey::BankBalances.Of(number));
        QVERIFY(scene.Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 5, 20)));
        (void)scene.Row(2, -1000, u"Bäcker"_s);
        (void)scene.Row(20, -2000, u"Buch"_s);
        (void)scene.Row(25, -500, u"Kiosk"_s); // later than the balance
        const cOpeningBalance opening(scene.Tools);
        const auto offer = opening.For(number);
        QVERIFY(offer.has_value());
        QCOMPARE(offer->Start, 103000);
        QCOMPARE(offer->StartDay, QDate(2026, 5, 1));
        QVERIFY(opening.Question(*offer).startsWith(u"Als Stand vom 20.05.2026 sind 1.000,00\u00A0€ für"_s));
        QVERIFY(opening.Take(*offer));
        QVERIFY(!opening.For(number)); // it is not asked again

        cScene whole; // of which the rows are the whole history
        whole.Settings->Delete(modSettingKey::BankBalances.Of(number));
        QVERIFY(whole.Data.SetStartGuthaben(u"Girokonto"_s, 50000, QDate(2026, 5, 20)));
        (void)whole.Row(2, 50000, u"Anfang"_s);
        const auto nothing = cOpeningBalance(whole.Tools).For(number);
        QVERIFY(nothing.has_value());
        QCOMPARE(nothing->Start, 0);
        QVERIFY(whole.Data.SetStartGuthaben(u"Girokonto"_s, 50000, QDate(2026, 5, 2)));
        QVERIFY(!cOpeningBalance(whole.Tools).For(number)); // what it began with in the morning
    }

    void StartFollowsWhatIsReadLater_data()
    {
        // in the order in which they are read; a statement begins with its balance, a table names none
        const cTestRows<QStringList> row("files");
        row("newer first", {u"C260701EUR4806,62 260707D30,00"_s, u"C260301EUR2856,62 260310D50,00 260505C2000,00"_s});
        row("a row between, without balance",
            {u"C260601EUR846,62 260607D30,00"_s, u"10.01.2026;-10,00"_s, u"05.03.2026;-2000,00"_s});
        row("a balance between",
            {u"10.01.2026;-10,00"_s, u"C260601EUR4846,62 260607D30,00"_s, u"C260301EUR2846,62 260305C2000,00"_s});
        row("behind a balance that came without rows",
            {u"C260101EUR2856,62\n:62F:C260101EUR2856,62"_s, u"C260601EUR846,62 260607D30,00"_s,
             u"05.03.2026;-2000,00"_s, u"10.01.2026;-10,00"_s});
        row("a row that may be there twice", {u"C260101EUR2856,62 260102D12,34"_s, u"30.12.2025;-12,34"_s});
    }

    void StartFollowsWhatIsReadLater()
    {
        QFETCH(const QStringList, files);
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        (void)book.Spend(QDate(2026, 3, 9), 5000, u"REWE"_s); // older than the oldest row, or in between
        book.User.Usual = eAnswer::Yes;
        cImportReview review(book.Tools);
        cNoProgress progress;
        const cTestFile folder;
        for (const QString& file : files) {
            const QString path = folder.Path(QString::number(files.indexOf(file)));
            const QStringList parts = file.split(u' ');
            QString text = u":20:A\n:25:10020030/1234567\n:60F:"_s + parts.constFirst() + u"\n";
            for (const QString& row : parts.mid(1)) {
                text += u":61:%1NMSCNONREF\n:86:005?20Einkauf?32REWE\n"_s.arg(row);
            }
            const bool isTable = file.contains(u';');
            const QString head = u"Auftragskonto;Buchungstag;Betrag;Verwendungszweck;Name\n1234567;"_s;
            text = isTable ? QString(head + file + u";Einkauf;REWE\n") : QString(text + u"-\n");
            cTestFile::Write(path, text.toUtf8());
            review.Files().ImportFiles({path}, progress);
            review.AcceptProposals(progress);
        }
        const cEntryItem start = book.Data.GetStartGuthaben(u"Girokonto"_s).value_or(cEntryItem());
        QVERIFY2(start.EntryValue == 285662, qPrintable(QString::number(start.EntryValue)));
    }

    void HouseholdDiffersInOpenRows_data()
    {
        const cTestRows<QDate, int> row("today", "entries");
        row("middle of the month", QDate(2026, 3, 15), 0);
        row("day of two rents", QDate(2026, 3, 1), 0); // a year ago the old one was paid for the last time
        row("leap day", QDate(2028, 2, 29), 0);
        row("large", QDate(2026, 3, 15), 3000);
    }

    void HouseholdDiffersInOpenRows()
    {
        QFETCH(QDate, today);
        QFETCH(int, entries);
        cTestBook book;
        QVERIFY(modDemo::Write(book.Data, modDemo::OfSize(entries, today)));
        book.Settings->Reload();
        cReconciliation reconciliation(book.Tools);
        QStringList open;
        for (const QString& staged : {u"4711000815"_s, u"4711000816"_s}) {
            reconciliation.Load(staged);
            qint64 cents = 0;
            for (const cReconcileItem& item : reconciliation.Items()) {
                cents += item.BankCents - item.BookCents;
                open.append(cReconciliation::KindName(item));
            }
            QCOMPARE(reconciliation.Bank(), std::optional(reconciliation.Book() + cents));
            QCOMPARE(reconciliation.Until(), today);
        }
        QCOMPARE(open.removeAll(u"book only"_s), 1); // the rent whose row waits
        QCOMPARE(open.removeAll(u"bank only"_s), 26);
        QCOMPARE(open, QStringList());
    }

    void FirstStatementBringsTheStartBalance_data()
    {
        // bare: the file came before without its balances
        const cTestRows<QByteArray, bool> row("head", "bare");
        row("number", "IBAN;DE02100200300001234567\n\n", false);
        row("none, so the account lends its name", {}, false);
        row("the balance comes later", "IBAN;DE02100200300001234567\n\n", true);
    }

    // The book holds what the bank says from the first row on; a hand-made entry that the first row pays does not
    // count.
    void FirstStatementBringsTheStartBalance()
    {
        QFETCH(const QByteArray, head);
        QFETCH(const bool, bare);
        cTestBook book;
        cImportReview review(book.Tools);
        cNoProgress progress;
        book.Add(
            [](cEntryItem& entry) { entry.EntryDate = QDate(2026, 4, 30); }); // 10.00, which the bank books on May 2nd
        book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 3, 1);
            entry.EntryValue = 500;
        });
        const cTestFile folder;
        const QString path = folder.Path(u"a.csv"_s);
        cTestFile::Write(path,
                         head
                             + "Buchungstag;Verwendungszweck;Betrag;Saldo\n"
                               "04.05.2026;Kiosk;-3,00;87,00\n02.05.2026;Markt;-10,00;90,00\n");
        book.User.Choices = {u"Girokonto"_s};
        if (bare) {
            const QString table = folder.Path(u"b.csv"_s);
            cTestFile::Write(table,
                             head
                                 + "Buchungstag;Verwendungszweck;Betrag\n04.05.2026;Kiosk;-3,00\n"
                                   "02.05.2026;Markt;-10,00\n");
            review.Files().ImportFiles({table}, progress);
            QVERIFY(!book.Data.GetStartGuthaben(u"Girokonto"_s));
        }
        book.User.Answers = {eAnswer::Cancel, eAnswer::Yes};
        review.Files().ImportFiles({path}, progress); // the program ended at the question
        qint64 shown = 0;                             // beside the page
        connect(&review, &cImportReview::EntriesChanged, this,
                [&] { shown = book.Data.GetStartGuthaben(u"Girokonto"_s).value_or(cEntryItem()).EntryValue; });
        review.Files().ImportFiles({path}, progress);
        QCOMPARE(shown, 10500);
        QVERIFY2(book.User.Asked.constLast().startsWith(u"Am 04.05.2026 waren laut Kontoauszug 87,00\u00A0€ auf dem "
                                                        "Konto 'Girokonto'."_s),
                 qPrintable(book.User.Asked.constLast()));
        const std::optional<cEntryItem> start = book.Data.GetStartGuthaben(u"Girokonto"_s);
        QVERIFY(start);
        QCOMPARE(start->EntryValue, 10500);
        QCOMPARE(start->EntryDate, QDate(2026, 3, 1));
        book.User.Asked.clear();
        review.Files().ImportFiles({path}, progress);
        QCOMPARE(book.User.Asked, QStringList());
    }

    // Its account has another number, so the bank's balance is not what the book has to come to.
    void SaysThatNumbersShareTheAccount()
    {
        cScene scene;
        scene.Settings->Set(modSettingKey::BankNumber.Of(u"77"_s), u"Girokonto"_s);
        scene.Row(2, -1000, u"Bäcker"_s);
        (void)scene.Stage(u"77"_s, QDate(2026, 5, 3), -500, u"Kiosk"_s);
        cReconciliation reconciliation(scene.Tools);
        reconciliation.Load(number, {});
        QVERIFY(reconciliation.Finding().contains(u"gehören mehrere Kontonummern"));
    }

    void ListsWhatDiffers()
    {
        cScene scene;
        scene.Row(2, -1000, u"Bäcker"_s, scene.Entry(2, 1000, u"Bäcker"_s));
        scene.Row(5, -2000, u"Buch"_s, scene.Entry(3, 1900, u"Buch"_s));
        scene.Row(8, -500, u"Kiosk"_s);
        scene.Row(9, -1500, u"Strom"_s, scene.Entry(7, 1500, u"Strom"_s));
        scene.Entry(20, 700, u"Eis"_s);
        (void)scene.Entry(31, 100, u"Danach"_s);
        cReconcileListModel model(scene.Tools);
        model.Show(number, QDate(2026, 5, 30));
        QCOMPARE(Shown(model),
                 QStringList({u"Betrag und Tag anders|Buch|05.05.2026|-20,00|03.05.2026|-19,00"_s,
                              u"nur bei der Bank|Kiosk|08.05.2026|-5,00||"_s,
                              u"Tag anders|Strom|09.05.2026|-15,00|07.05.2026|-15,00"_s,
                              u"nur im Buch|Eis|||20.05.2026|-7,00"_s}));
        QVERIFY(!model.CanConfirm());
        QVERIFY(model.TakeBank(2));
        QVERIFY(model.TakeBank(0));
        QCOMPARE(model.rowCount(), 2);
        const cEntryItem book = *scene.Data.LoadEntry(scene.Data.GetImportEntries().at(1).ImportAssignedEntry);
        QCOMPARE(book.EntryDate, QDate(2026, 5, 5));
        QCOMPARE(book.EntryValue, 2000);
        QVERIFY(!model.TakeBank(0)); // booking is somebody else's work
    }

    void NamesTheWayOut_data()
    {
        // an entry or series of 5.00 on the 2nd: where 5.00 of the bank are open, and whether that is the same
        const cTestRows<QString, QList<int>, int> row("interval", "days", "rows");
        row("ten days", modWord::Einmalig, {12}, 1);
        row("farther", modWord::Einmalig, {13}, 0);
        row("an occurrence", u"Monatlich"_s, {17}, 1);
        row("two rows for one entry", modWord::Einmalig, {3, 4}, 1);
    }

    // The two are listed apart, and neither is to be booked or deleted.
    void NamesTheWayOut()
    {
        QFETCH(const QString, interval);
        QFETCH(const QList<int>, days);
        QFETCH(const int, rows);
        cScene scene;
        (void)scene.Row(1, -100, u"Anfang"_s);
        (void)scene.Entry(2, 500, u"Kiosk"_s, interval);
        for (const int day : days) {
            (void)scene.Row(day, -500, u"Kiosk"_s);
        }
        cReconciliation reconciliation(scene.Tools);
        reconciliation.Load(number);
        QCOMPARE(reconciliation.WayOut(u"match"_s).startsWith(u"Ein Umsatz davon ist offen"_s), rows == 1);
        QCOMPARE(reconciliation.WayOut(u"match"_s).isEmpty(), rows == 0);
    }

    // A transfer has one day, though the other bank booked it two days later; an occurrence is one of its series.
    void NamesNothingThatIsRight()
    {
        cScene scene;
        const cEntryItem transfer = scene.Move(u"Sparkonto"_s, u"Girokonto"_s, 1000, QDate(2026, 5, 4));
        scene.Row(6, 1000, u"Übertrag"_s, transfer.ID);
        scene.Row(10, -6000, u"Miete"_s, scene.Entry(10, 6000, u"Miete"_s, u"Monatlich"_s));
        cReconcileListModel model(scene.Tools);
        model.Show({});
        QCOMPARE(model.Finding(), QString()); // without a number there is nothing to say of it
        model.Show(number);
        QCOMPARE(Shown(model), QStringList());
        QVERIFY2(model.Finding().startsWith(u"Das Konto 'Girokonto' stimmt bis 31.05.2026 "),
                 qPrintable(model.Finding()));
    }

    // The bank's balances decide: a wrong start balance is a difference of its own.
    void StartBalanceHidesNothing()
    {
        cScene scene;
        scene.Row(9, -5000, u"Strom"_s, scene.Entry(9, 5000, u"Strom"_s));
        QVERIFY(scene.Data.SetStartGuthaben(u"Girokonto"_s, 90000, QDate(2026, 4, 30)));
        cReconcileListModel model(scene.Tools);
        model.Show(number);
        QCOMPARE(Shown(model).value(0).section(u'|', 0, 0), u"Startguthaben"_s);
        QVERIFY(!model.CanConfirm());
        QVERIFY(model.TakeBank(0));
        QVERIFY(model.CanConfirm());
    }

    // Every row is booked, and one that the bank has was never read.
    void SaysHowFarTheSumsDiffer()
    {
        cScene scene;
        scene.Row(9, -4000, u"Strom"_s, scene.Entry(9, 4000, u"Strom"_s));
        cReconcileListModel model(scene.Tools);
        model.Show(number);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY2(model.Finding().startsWith(u"Jeder eingelesene Umsatz steht im Buch, doch seit dem 01.05.2026 sind "
                                            "dort 10,00\u00A0€ mehr als bei der Bank."_s),
                 qPrintable(model.Finding()));
    }

    void AsksBeforeReconciledDaysChange()
    {
        cScene scene;
        const int entry = scene.Entry(9, 5000, u"Strom"_s);
        const int later = scene.Entry(20, 5000, u"Später"_s);
        scene.Row(9, -5000, u"Strom"_s, entry);
        cReconcileListModel model(scene.Tools);
        model.Show(number, QDate(2026, 5, 15));
        QVERIFY(model.CanConfirm());
        model.Confirm();
        QVERIFY(!model.CanConfirm());
        QCOMPARE(cReconciledDays(scene.Tools).ByAccount().value(u"Girokonto"_s), QDate(2026, 5, 15));
        scene.User.Answers = {eAnswer::Yes, eAnswer::Yes, eAnswer::No};
        cEntryDelete remover(scene.Tools);
        QVERIFY(remover.Delete(QList<int>{later})); // one question only
        QVERIFY(!remover.Delete(QList<int>{entry}));
        QCOMPARE(scene.User.Asked.constLast(),
                 u"Das Konto 'Girokonto' stimmt bis 15.05.2026 mit der Bank überein. Mit "
                 "dieser Änderung wäre es ab dem 09.05.2026 nicht mehr so.\n\nTrotzdem ändern?"_s);
        QVERIFY(scene.Data.LoadEntry(entry));
        scene.User.Answers = {eAnswer::Yes, eAnswer::Yes};
        QVERIFY(remover.Delete(QList<int>{entry}));
        QCOMPARE(cReconciledDays(scene.Tools).ByAccount().value(u"Girokonto"_s), QDate(2026, 5, 8));
    }
};

TEST_CLASS(testReconciliation, QCoreApplication)
#include "testReconciliation.moc"
