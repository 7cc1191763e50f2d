#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/match/cMatcher.h"
#include "import/match/modMatchScore.h"
#include "model/modSplit.h"
#include "store/cUndoStep.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate day(2026, 1, 10);

struct cBank : cBankBook
{
    int Stage(QDate date, double value, const QString& name, const QString& purpose = {}, const QString& own = u"111"_s,
              const QString& account = {})
    {
        return cBankBook::Stage(BankRow(own, date, modAmount::ToCents(value), name, purpose, account));
    }

    int Add(QDate date, qint64 cents, const QString& text, const QString& category = u"Sonstiges"_s,
            const QString& interval = modWord::Einmalig)
    {
        return cTestBook::Add([&](cEntryItem& entry) {
                   entry.EntryDate = date;
                   entry.EntryType = cents < 0 ? modWord::Ausgabe : modWord::Einnahme;
                   entry.EntryValue = std::abs(cents);
                   entry.EntryCategory = category;
                   entry.EntryInterval = interval;
                   entry.EntryDescription = text;
               })
            .ID;
    }

    // A transfer from the current account to the savings account.
    int AddTransfer(QDate date, qint64 cents) { return Move(u"Girokonto"_s, u"Sparkonto"_s, cents, date).ID; }

    cMatchResult Match(const QList<int>& rows, eMatchRun run = eMatchRun::Write)
    {
        cNoProgress progress;
        return cMatcher(Data, Hive, Accounts).MatchAll(rows, progress, run);
    }

    QList<cMatchCandidate> Candidates(int row) { return cMatcher(Data, Hive, Accounts).Candidates(row); }
};

QList<int> Counts(const cMatchResult& result)
{
    return {static_cast<int>(result.Assigned.size()), static_cast<int>(result.Proposed.size()),
            static_cast<int>(result.Left.size()), result.Listed};
}

} // namespace

class testMatcher final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OneRowAndOneEntry_data() const
    {
        // days: from the entry to the row
        // text: of an entry of 23,10 in "Haushalt; Lebensmittel"
        // counts: assigned, proposed, left, of these with candidates
        const cTestRows<int, qint64, QString, QString, QString, QList<int>> row("days", "rowCents", "name", "purpose",
                                                                                "text", "counts");
        const QList<int> assigned{1, 0, 0, 0};
        const QList<int> proposed{0, 1, 0, 0};
        const QList<int> listed{0, 0, 1, 1};
        const QList<int> nothing{0, 0, 1, 0};
        const QString rewe = u"REWE Markt GmbH Talheim"_s;
        row("same payee", 0, -2310, u"REWE"_s, {}, u"Rewe"_s, assigned);
        row("payee in short, ten days", 10, -2310, rewe, {}, u"REWE"_s, assigned);
        row("eleven days", 11, -2310, u"REWE"_s, {}, u"REWE"_s, nothing);
        row("before the entry", -10, -2310, u"REWE"_s, {}, u"REWE"_s, assigned);
        row("words of the purpose", 3, -2310, u"Jana"_s, u"Geschenk für Oma, danke"_s, u"Geschenk Oma"_s, assigned);
        row("category by rule", 1, -2310, rewe, {}, u"Wochenende"_s, assigned);
        row("nothing but amount and day", 0, -2310, u"Jana"_s, {}, u"xyz"_s, proposed);
        row("nothing but amount, later", 4, -2310, u"Jana"_s, {}, u"xyz"_s, listed);
        row("amount nearly right", 0, -2300, u"REWE"_s, {}, u"REWE"_s, proposed);
        row("amount less right", 5, -2200, u"REWE"_s, {}, u"REWE"_s, listed);
        row("amount far away", 0, -1800, u"REWE"_s, {}, u"REWE"_s, nothing);
        row("other direction", 0, 2310, u"REWE"_s, {}, u"REWE"_s, nothing);
    }

    void OneRowAndOneEntry() const
    {
        QFETCH(const int, days);
        QFETCH(const qint64, rowCents);
        QFETCH(const QString, name);
        QFETCH(const QString, purpose);
        QFETCH(const QString, text);
        QFETCH(const QList<int>, counts);
        cBank bank;
        const int entry = bank.Add(day, -2310, text, u"Haushalt; Lebensmittel"_s);
        const int row = bank.Stage(day.addDays(days), static_cast<double>(rowCents) / 100.0, name, purpose);
        const cMatchResult result = bank.Match({row});
        QCOMPARE(Counts(result), counts);
        QCOMPARE(bank.EntryOf(row), counts.first() == 1 ? entry : -1);
        QCOMPARE(bank.Candidates(row).isEmpty(), counts == QList<int>({0, 0, 1, 0}));
    }

    void ReasonsAndOrder() const
    {
        cBank bank;
        const int late = bank.Add(day.addDays(-4), -5000, u"Schuhe"_s);
        const int near = bank.Add(day, -5000, u"Stiefel"_s);
        const int taken = bank.Add(day, -5000, u"Schuhhaus"_s);
        const int other = bank.Stage(day, -50, u"X"_s);
        QVERIFY(cBooking(bank.Data, bank.Hive, bank.Accounts).Assign(other, taken));
        const QList<cMatchCandidate> found = bank.Candidates(bank.Stage(day, -50, u"Schuhhaus"_s));
        QStringList texts;
        for (const cMatchCandidate& candidate : found) {
            texts.append(QString::number(candidate.Entry.ID) + u' ' + QString::number(candidate.Score) + u' '
                         + candidate.Reason + (candidate.IsTaken ? u" !"_s : QString()));
        }
        QCOMPARE(texts,
                 QStringList({QString::number(taken) + u" 1 gleicher Betrag, gleicher Tag, Empfänger ähnlich !"_s,
                              QString::number(late) + u" 0.793 gleicher Betrag, 4 Tage später, Empfänger ähnlich"_s,
                              QString::number(near) + u" 0.7 gleicher Betrag, gleicher Tag"_s}));
        // The one that is left gains by it, those that are taken do not.
        QVERIFY(cBooking(bank.Data, bank.Hive, bank.Accounts).Assign(bank.Stage(day, -50, u"Y"_s), late));
        const QList<cMatchCandidate> left = bank.Candidates(bank.Stage(day, -50, u"Z"_s));
        QCOMPARE(left.size(), 2);
        QCOMPARE(left.at(0).Entry.ID, near);
        QCOMPARE(left.at(0).Reason, u"einziger Eintrag mit diesem Betrag, gleicher Tag"_s);
        QCOMPARE(left.at(1).Entry.ID, taken);
        QCOMPARE(left.at(1).Reason, u"gleicher Betrag, gleicher Tag"_s);
    }

    void AnEntryTakesOneRow() const
    {
        cBank bank;
        const int entry = bank.Add(day, -900, u"Bäckerei Korn"_s);
        const int second = bank.Stage(day.addDays(1), -9, u"Bäckerei Korn"_s);
        const int first = bank.Stage(day, -9, u"Bäckerei Korn"_s);
        const cMatchResult result = bank.Match({second, first, first});
        QCOMPARE(Counts(result), QList<int>({1, 0, 1, 1}));
        QCOMPARE(bank.EntryOf(first), entry);
        QCOMPARE(result.Summary(), u"Zugeordnet: 1, vorgeschlagen: 0, offen: 1, davon mit möglichen Einträgen: 1"_s);
        QCOMPARE(Counts(bank.Match({second})), QList<int>({0, 0, 1, 0}));
        QVERIFY(bank.Candidates(second).first().IsTaken);
        QVERIFY(!bank.Candidates(first).first().IsTaken);
        const int unknown = bank.Stage(day, -9, u"Bäckerei Korn"_s, {}, u"333"_s);
        QCOMPARE(bank.Match({unknown, first}).UnknownAccounts, QStringList(u"333"_s));
    }

    // Amount and day are enough; each month has its own row, and a second one of the month has none.
    void StandingOrder() const
    {
        cBank bank;
        const int series = bank.Add(day, -65000, u"Wohnen"_s, u"Sonstiges"_s, u"Monatlich"_s);
        QList<int> rows;
        for (int month = 0; month < 3; ++month) {
            rows.append(bank.Stage(day.addMonths(month), -650, u"Tann"_s));
        }
        const int again = bank.Stage(day, -650, u"Tann"_s);
        const cMatchResult result = bank.Match(QList<int>{again} + rows);
        QCOMPARE(Counts(result), QList<int>({3, 0, 1, 1}));
        QCOMPARE(bank.EntryOf(rows.last()), series);
        QCOMPARE(result.Assigned.last().Candidate.Entry.EntryDate, day.addMonths(2));
        QVERIFY(!result.Assigned.last().Candidate.Correction);
        const int late = bank.Stage(day.addMonths(3).addDays(2), -650, u"Tann"_s, u"Wohnen April"_s);
        QCOMPARE(Counts(bank.Match({rows.first(), again, late})), QList<int>({1, 0, 1, 0}));
    }

    // Seven days from both: it is the earlier one, now and whenever the book is read again.
    void FortnightBetweenTwoOccurrences() const
    {
        cBank bank;
        (void)bank.Add(day, -2000, u"Putzhilfe"_s, u"Sonstiges"_s, u"Alle 2 Wochen"_s);
        const int between = bank.Stage(day.addDays(7), -20, u"Putzhilfe"_s);
        const cMatchResult result = bank.Match({between});
        QCOMPARE(result.Assigned.value(0).Candidate.Entry.EntryDate, day);
        const int first = bank.Stage(day, -20, u"Putzhilfe"_s);
        const int next = bank.Stage(day.addDays(14), -20, u"Putzhilfe"_s);
        QCOMPARE(bank.Match({first, next}).Left, QList<int>{first});
    }

    // It was put off because nothing had come: a row of the old day still pays it, and so does one of the new day.
    void MovedOccurrenceIsNearBothDays() const
    {
        cBank bank;
        const int series = bank.Add(day, -65000, u"Miete Tann"_s, u"Wohnung; Miete"_s, u"Monatlich"_s);
        const auto putOff = [&](QDate to) {
            QVERIFY(bank.Data.AddNewEntryMod({0, series, modWord::Betrag, QDate(2026, 1, 1), QDate(2026, 1, 31), 65000,
                                              u"Laut Kontoauszug noch nicht gebucht"_s, to}));
        };
        putOff(day.addDays(20));
        for (const QDate paid : {day.addDays(1), day.addDays(21)}) {
            const cMatchCandidate found = bank.Candidates(bank.Stage(paid, -650, u"Miete Tann"_s)).value(0);
            QCOMPARE(found.Entry.Planned(), day);
            QVERIFY(found.Score >= modMatchScore::AssignAt && found.Correction);
            QCOMPARE(found.Correction->EntryStartDate, QDate(2026, 1, 1));
            QCOMPARE(found.Correction->EntryDay, paid);
            QVERIFY(!found.ReplacesOwn);
        }
        // Of two on one day the one that is planned for it is paid.
        const QDate next = day.addMonths(1);
        putOff(next);
        QCOMPARE(bank.Candidates(bank.Stage(next, -650, u"Miete Tann"_s)).value(0).Entry.Planned(), next);
    }

    void RaisedRentOffersACorrection() const
    {
        cBank bank;
        const int series = bank.Add(day, -65000, u"Miete Tann"_s, u"Wohnung; Miete"_s, u"Monatlich"_s);
        const int row = bank.Stage(day.addMonths(1), -660, u"Hausverwaltung Tann"_s, u"Miete Februar"_s);
        const cMatchResult result = bank.Match({row});
        QCOMPARE(Counts(result), QList<int>({1, 0, 0, 0}));
        const std::optional<cEntryItemFixMod> correction = result.Assigned.first().Candidate.Correction;
        QVERIFY(correction);
        QCOMPARE(*correction,
                 (cEntryItemFixMod{0, series, modWord::Betrag, QDate(2026, 2, 1), QDate(2026, 2, 28), 66000,
                                   u"Laut Kontoauszug"_s, day.addMonths(1)}));
        QVERIFY(bank.Data.GetEntryMods(series).isEmpty());
        QVERIFY(bank.Data.AddNewEntryMod(*correction));
        QCOMPARE(bank.Candidates(row).value(0).Reason.section(u',', 0, 0), u"einziger Eintrag mit diesem Betrag"_s);
        // A period that is skipped waits for no row.
        QVERIFY(bank.Data.AddNewEntryMod({0, series, modWord::Betrag, QDate(2026, 3, 1), QDate(2026, 3, 31), 0, {}}));
        QVERIFY(bank.Candidates(bank.Stage(day.addMonths(2), -650, u"Tann"_s)).isEmpty());
    }

    void TransferTakesARowOfEachAccount() const
    {
        cBank bank;
        const int entry = bank.AddTransfer(day, 20000);
        const int out = bank.Stage(day.addDays(2), -200, u"Ich"_s, {}, u"111"_s, u"222"_s);
        const int in = bank.Stage(day.addDays(3), 200, u"Ich"_s, {}, u"222"_s, u"111"_s);
        QCOMPARE(Counts(bank.Match({out})), QList<int>({1, 0, 0, 0}));
        const cMatchResult result = bank.Match({in, bank.Stage(day, 200, u"Ich"_s, {}, u"222"_s, u"111"_s)});
        QCOMPARE(Counts(result), QList<int>({1, 0, 1, 1}));
        QCOMPARE(bank.EntryOf(out), entry);
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(entry).size(), 2);
        QCOMPARE(bank.Match({bank.Stage(day, -200, u"Ich"_s, {}, u"111"_s, u"222"_s)}).Listed, 0);
    }

    // The series that earlier rows of the payee went to is known whatever is written on the row.
    void EarlierRowsOfAPayee() const
    {
        cBank bank;
        const int first = bank.Stage(day, -40, u"Stadtwerke"_s, {}, u"111"_s, u"DE7"_s);
        cEntryItem entry = bank.Propose(first).Entry;
        entry.EntryInterval = u"Monatlich"_s;
        entry.EntryDescription = u"Licht"_s;
        QVERIFY(bank.BookAs(first, entry));
        const int next =
            bank.Stage(day.addMonths(1).addDays(4), -42, u"SWT Stadtwerke"_s, u"Abschlag"_s, u"111"_s, u"DE7"_s);
        const QList<cMatchCandidate> found = bank.Candidates(next);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().Reason, u"Betrag 42,00 statt 40,00, 4 Tage später, wie frühere Umsätze"_s);
        QCOMPARE(found.first().Correction->EntryValue, 4200);
    }

    void SplitEntryIsOne() const
    {
        cBank bank;
        const int first = bank.Add(day, -3000, u"Drogerie"_s);
        const int second = bank.Add(day, -1250, u"Drogerie"_s);
        for (const int id : {first, second}) {
            cEntryItem part = *bank.Data.LoadEntry(id);
            modSplit::SetGroup(part, first);
            QVERIFY(bank.Data.ChangeEntry(part));
        }
        const int row = bank.Stage(day, -42.5, u"Drogerie"_s);
        QVERIFY(bank.Candidates(bank.Stage(day, -12.5, u"Drogerie"_s)).isEmpty());
        QCOMPARE(bank.Match({row}).Assigned.value(0).Candidate.Cents, -4250);
        QCOMPARE(bank.EntryOf(row), first);
    }

    void ByHand() const
    {
        cBank bank;
        const int series = bank.Add(day, -65000, u"Miete"_s, u"Sonstiges"_s, u"Monatlich"_s);
        const int once = bank.Add(day.addDays(-200), -1, u"Lange her"_s);
        const int row = bank.Stage(day.addDays(14), -700, u"X"_s);
        cMatcher matcher(bank.Data, bank.Hive, bank.Accounts);
        QCOMPARE(matcher.ByHand(row, series)->Entry.EntryDate, day);
        QCOMPARE(matcher.ByHand(row, series)->Correction->EntryValue, 70000);
        QVERIFY(!matcher.ByHand(row, once)->Correction);
        QVERIFY(!matcher.ByHand(row, 9999));
        QVERIFY(!matcher.ByHand(bank.Stage(day.addMonths(-3), -650, u"X"_s), series));
    }

    void NothingIsWritten() const
    {
        cBank bank;
        (void)bank.Add(day, -2310, u"REWE"_s);
        const int row = bank.Stage(day, -23.1, u"REWE"_s);
        QCOMPARE(Counts(bank.Match({row}, eMatchRun::Try)), QList<int>({1, 0, 0, 0}));
        QCOMPARE(bank.EntryOf(row), -1);
        cFakeStop stopped;
        const cMatchResult result =
            cMatcher(bank.Data, bank.Hive, bank.Accounts).MatchAll({row}, stopped, eMatchRun::Write);
        QVERIFY(result.IsCancelled && result.Left == QList<int>{row});
        QCOMPARE(bank.EntryOf(row), -1);
    }

    void OneUndoStep() const
    {
        cBank bank;
        QList<int> rows;
        for (int i = 0; i < 3; ++i) {
            (void)bank.Add(day.addDays(i), -2310 - i, u"REWE"_s);
            rows.append(bank.Stage(day.addDays(i), (-2310 - i) / 100.0, u"REWE"_s));
        }
        {
            const cUndoStep step(bank.Data, u"zugeordnet"_s);
            QCOMPARE(Counts(bank.Match(rows)), QList<int>({3, 0, 0, 0}));
        }
        QVERIFY(bank.Data.Journal().Undo());
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(-1).size(), 3);
        QVERIFY(bank.Data.Journal().Redo());
        QVERIFY(!bank.Hive.GetImportHive().IsImportEntryAvail(-1));
    }

    void RefusedWrite() const
    {
        cBank bank;
        QList<int> rows;
        for (int i = 0; i < 3; ++i) {
            (void)bank.Add(day, -2310 - i, u"REWE"_s);
            rows.append(bank.Stage(day, (-2310 - i) / 100.0, u"REWE"_s));
        }
        bank.WriteBehind("CREATE TRIGGER full BEFORE UPDATE ON import BEGIN SELECT RAISE(ABORT, 'voll'); END");
        const cMatchResult result = bank.Match(rows);
        QCOMPARE(result.Failed, 3);
        QVERIFY(result.Assigned.isEmpty());
        QCOMPARE(bank.User.Shown.size(), 1);
    }
};

TEST_CLASS(testMatcher, QCoreApplication)
#include "testMatcher.moc"
