#include "base/cProgress.h"
#include "base/modAmount.h"
#include "model/modSettingKey.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryEditor.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportReview.h"

#include <QSignalSpy>

#include <deque>
#include <functional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using fnChange = std::function<void(cEntryFields&)>;

const QDate day(2026, 3, 3);
const QString space = u"\u00A0"_s; // before the currency sign

// A book whose bank account is known, with the page of statements over it.
struct cPage : cTestBook
{
    cPage()
    {
        Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        Review.View().SetOpenOnly(false);
        Review.View().SetGrouping(0);
    }

    int Stage(double value, const QString& name, const QString& number = u"1234567"_s)
    {
        const int id = cTestBook::Stage(number, day, modAmount::ToCents(value), name).ID;
        Review.Refresh();
        return id;
    }

    // A row of 200 euros to or from the other account, whose bank names the counterparty.
    void StageTransfer(const QString& own, const QString& other, qint64 cents)
    {
        cTestBook::Stage(own, day, cents, u"Jana"_s, -1, other);
        Review.Refresh();
    }

    int Spend(qint64 cents, const QString& text, const QString& interval = modWord::Einmalig)
    {
        return cTestBook::Spend(day, cents, text, interval).ID;
    }

    // The IDs of the entries that the rows belong to, -1 for an open one.
    QList<int> Assigned()
    {
        QList<int> ids;
        const cImportEntryList rows = Data.GetImportEntries();
        for (const cImportEntry& row : rows) {
            ids.append(row.ImportAssigned ? row.ImportAssignedEntry : -1);
        }
        return ids;
    }

    QString Reason(int row) { return Review.Rows().index(row, cStagedListModel::Reason).data().toString(); }

    cNoProgress Progress;
    cImportReview Review{Tools};
};

QString Cell(const cAssignListModel& list, int row, int column)
{
    return list.index(row, column).data().toString();
}

} // namespace

class testImportMatch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_page.emplace(); }

    void MatchesInOneStep()
    {
        const int entry = m_page->Spend(2310, u"REWE"_s);
        (void)m_page->Stage(-23.1, u"REWE"_s);
        (void)m_page->Stage(-99, u"Jana"_s);
        QSignalSpy entries(&m_page->Review, &cImportReview::EntriesChanged);
        m_page->Review.Match({}, m_page->Progress);
        QCOMPARE(m_page->Assigned(), QList<int>({entry, -1}));
        QCOMPARE(m_page->Review.Summary(),
                 QStringList({u"Zugeordnet: 1, vorgeschlagen: 0, offen: 1."_s,
                              u"03.03.2026  ·  -23,10"_s + space + u"€  ·  REWE → 'REWE' vom 03.03. (100 %)"_s}));
        QCOMPARE(entries.size(), 0); // the book is as it was
        QCOMPARE(m_page->Review.View().CountText(), u"1 offen, 2 insgesamt"_s);
        QCOMPARE(m_page->Data.Journal().UndoName(), u"2 Umsätze abgeglichen"_s);
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Assigned(), QList<int>({-1, -1}));
    }

    void MatchesWhatIsSelected()
    {
        QList<int> rows;
        QList<int> entries;
        for (const QString& name : {u"Rewe"_s, u"Aldi"_s, u"Edeka"_s, u"Penny"_s}) {
            const int cents = 1000 * static_cast<int>(rows.size() + 1);
            entries.append(m_page->Spend(cents, name));
            rows.append(m_page->Stage(-cents / 100.0, name));
        }
        m_page->Review.Match(rows.first(2), m_page->Progress);
        QCOMPARE(m_page->Assigned(), QList<int>({entries.at(0), entries.at(1), -1, -1}));
        m_page->Review.View().SetFilter(u"penny"_s);
        m_page->Review.Match({rows.at(2)}, m_page->Progress); // a single one is where the user stands
        QCOMPARE(m_page->Assigned(), QList<int>({entries.at(0), entries.at(1), -1, entries.at(3)}));
    }

    void OffersToCorrectSeries_data() const
    {
        const cTestRows<int, int> row("decision", "corrections");
        row("this time", 0, 1);
        row("not at all", 2, 0);
    }

    void OffersToCorrectSeries()
    {
        QFETCH(const int, decision);
        QFETCH(const int, corrections);
        const int rent = m_page->Spend(65000, u"Miete Tann"_s, u"Monatlich"_s);
        (void)m_page->Stage(-660, u"Miete Tann"_s);
        m_page->User.Decisions = {decision};
        QSignalSpy entries(&m_page->Review, &cImportReview::EntriesChanged);
        m_page->Review.Match({}, m_page->Progress);
        QVERIFY(m_page->User.Asked.value(0).startsWith(u"Die Bank hat andere Beträge gebucht"));
        QCOMPARE(m_page->Assigned(), QList<int>{rent});
        QCOMPARE(m_page->Data.GetEntryMods(rent).size(), corrections);
        QCOMPARE(entries.size(), corrections);
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Assigned(), QList<int>{-1});
        QCOMPARE(m_page->Data.GetEntryMods(rent).size(), 0);
    }

    void RefusedCorrectionTakesAllBack()
    {
        const int rent = m_page->Spend(65000, u"Miete Tann"_s, u"Monatlich"_s);
        const int row = m_page->Stage(-660, u"Miete Tann"_s);
        m_page->Database.ExecuteScript(
            "CREATE TRIGGER full BEFORE INSERT ON datamod BEGIN SELECT RAISE(ABORT, 'voll'); END;");
        m_page->User.Decisions = {0, 0};
        const QStringList nothing(u"Es wurde nichts geändert, weil die Datenbank nicht schreibt."_s);
        m_page->Review.Match({}, m_page->Progress);
        QCOMPARE(m_page->Review.Summary(), nothing);
        QCOMPARE(m_page->Assigned(), QList<int>{-1});
        const auto list = m_page->Review.StartAssign({row});
        QVERIFY(!list->Assign(0));
        QCOMPARE(m_page->Review.Summary(), nothing);
        QCOMPARE(m_page->Assigned(), QList<int>{-1});
        QCOMPARE(m_page->User.Shown.size(), 2);
        QVERIFY(m_page->Data.GetEntryMods(rent).isEmpty());
    }

    void AsksForTheAccount()
    {
        const int entry = m_page->Spend(2310, u"REWE"_s);
        (void)m_page->Stage(-23.1, u"REWE"_s, u"4711"_s);
        m_page->Review.Match({}, m_page->Progress); // the user gives up
        QCOMPARE(m_page->Review.Summary().last(),
                 u"Die Kontonummer 4711 hat noch kein Konto; ihre Umsätze bleiben offen."_s);
        QVERIFY(m_page->Data.Journal().UndoName().isEmpty());
        m_page->User.Choices = {u"Girokonto"_s};
        m_page->Review.Match({}, m_page->Progress);
        QCOMPARE(m_page->Assigned(), QList<int>{entry});
    }

    void ShowsWhatItIsNotSureOf()
    {
        const int entry = m_page->Spend(2310, {});
        (void)m_page->Stage(-23.1, u"Jana"_s);
        QCOMPARE(m_page->Reason(0), u"passt zu 'Haushalt; Lebensmittel' vom 03.03. (80 %)"_s);
        m_page->Review.Match({}, m_page->Progress);
        QCOMPARE(m_page->Assigned(), QList<int>{-1});
        m_page->Review.AcceptProposals(m_page->Progress);
        QVERIFY(m_page->User.Shown.last().contains(u"Offen bleiben: 1 wahrscheinlich schon im Haushaltsbuch."));
        // It is no longer true when the entry is gone.
        QVERIFY(m_page->Data.DeleteEntry(entry));
        m_page->Review.Refresh();
        QCOMPARE(m_page->Reason(0), u"keine Regel passt"_s);
    }

    // Enter on everything books what is sure, and leads through the rest row by row.
    void SeveralAreNotBookedUnseen()
    {
        m_page->Review.View().SetOpenOnly(true);
        (void)m_page->Spend(2310, u"Markthalle"_s);
        const QList<int> sure{m_page->Stage(-23.1, u"Markthalle"_s), m_page->Stage(-12.99, u"Netflix"_s)};
        const QList<int> unknown{m_page->Stage(-5, u"Jana"_s), m_page->Stage(-6, u"Niemand KG"_s)};
        const QList<int> all = sure + unknown;
        cStagedGuide& guide = m_page->Review.Guide();
        QCOMPARE(guide.Staged(all).Rows, sure);
        QCOMPARE(guide.AcceptText(), u"&Vorschläge annehmen (2)"_s);
        QVERIFY(!m_page->Review.Book(all, m_page->Progress)); // the user gives up
        QCOMPARE(m_page->User.LastDecision.Text,
                 u"2 der Umsätze haben keinen sicheren Vorschlag:\n2 ohne bekannte Kategorie, also unter 'Allgemein'\n"
                 "Was soll geschehen?"_s);
        QCOMPARE(m_page->User.LastDecision.Options,
                 QStringList({u"Nur die 2 &sicheren buchen"_s, u"&Alle 4 buchen"_s}));
        m_page->User.Decisions = {m_page->User.LastDecision.Default, 0};
        cStagedGuide::cBefore before = guide.Before(all);
        QVERIFY(m_page->Review.Book(all, m_page->Progress));
        QCOMPARE(m_page->Review.Rows().OpenIds(), unknown);
        cStagedGuide::cStop stop = guide.After(before, unknown);
        QCOMPARE(stop.Rows, unknown.mid(0, 1));
        QVERIFY(stop.IsField);
        QVERIFY(guide.SelectionText(stop.Rows, true).startsWith(u"Bitte ansehen: Kategorie tippen"));
        QVERIFY(guide.SelectionText(stop.Rows, false).startsWith(u"Bitte ansehen: keine Regel passt."));
        before = guide.Before(stop.Rows);
        m_page->User.Asked.clear();
        QVERIFY(m_page->Review.Book(stop.Rows, m_page->Progress)); // one that is looked at is booked without a question
        QCOMPARE(m_page->User.Asked, QStringList());
        QVERIFY(m_page->Review.Summary().contains(
            u"Der Eintrag steht unter 'Allgemein', weil keine Kategorie bekannt ist."_s));
        stop = guide.After(before, {});
        QCOMPARE(stop.Rows, unknown.mid(1));
        QCOMPARE(guide.After(guide.Before(stop.Rows), stop.Rows).Rows, QList<int>()); // left open, and the last one
    }

    // All of them in one go is possible, but never by Enter alone.
    void SeveralAreBookedWhenWanted()
    {
        const QList<int> rows{m_page->Stage(-5, u"Jana"_s), m_page->Stage(-6, u"Niemand KG"_s)};
        m_page->User.Decisions = {0, 1};
        QVERIFY(m_page->Review.Book(rows, m_page->Progress)); // to look at them one by one
        QCOMPARE(m_page->User.LastDecision.Options.constFirst(), u"&Einzeln ansehen"_s);
        QCOMPARE(m_page->Data.CountEntries(), 0);
        QVERIFY(m_page->Review.Choose({rows.constFirst()}, u"Freizeit; Geschenke"_s, {}));
        QVERIFY(m_page->Review.Book(rows, m_page->Progress));
        QCOMPARE(m_page->User.LastDecision.Options.constFirst(), u"Nur den &sicheren buchen"_s);
        QCOMPARE(m_page->Data.CountEntries(), 2);
        QVERIFY(m_page->Data.Journal().Undo()); // as one step
        QCOMPARE(m_page->Data.CountEntries(), 0);
    }

    // Two purses: the doubt is not the category, and who types one has spent the money.
    void WhichPurseIsAsked()
    {
        cTemplateItem purse = m_page->Data.FindAccount(u"Bargeld"_s).value_or(cTemplateItem());
        purse.TemplateName = u"Geldbörse"_s;
        QVERIFY(m_page->Data.AddNewTemplate(purse));
        const QList<int> rows{m_page->Stage(-50, u"Geldautomat"_s), m_page->Stage(-60, u"Geldautomat"_s)};
        cStagedGuide& guide = m_page->Review.Guide();
        QVERIFY(!guide.Staged(rows).IsField);
        QVERIFY(guide.SelectionText(rows.mid(0, 1), false).startsWith(u"Bitte ansehen: Bargeld: an "));
        QVERIFY(!m_page->Review.Book(rows, m_page->Progress)); // the user gives up
        QVERIFY(m_page->User.LastDecision.Text.contains(u"\n2 vielleicht als Umbuchung Girokonto → "));
        QVERIFY(m_page->Review.Book(rows.mid(1), m_page->Progress)); // one that is looked at is taken as it stands
        QVERIFY(m_page->Review.Choose(rows.mid(0, 1), u"Freizeit; Geschenke"_s, {}));
        QVERIFY(m_page->Review.Book(rows.mid(0, 1), m_page->Progress));
        const cEntryItem entry = m_page->Data.GetEntries({}).value(1);
        QCOMPARE(QStringList({entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, entry.EntryCategory}),
                 QStringList({modWord::Ausgabe, u"Girokonto"_s, {}, u"Freizeit; Geschenke"_s}));
    }

    // The transfer would have had the day of the other account's row, whose entry is only likely to be there.
    void WhatIsNoTransferStandsOnItsOwnDay()
    {
        m_page->Settings->Set(modSettingKey::BankNumber.Of(u"222"_s), u"Sparkonto"_s);
        cEntryItem transfer = m_page->Move(u"Girokonto"_s, u"Sparkonto"_s, 19990, day.addDays(-6));
        transfer.EntryDescription = u"Jana"_s;
        QVERIFY(m_page->Data.ChangeEntry(transfer));
        (void)m_page->Stage(-200, u"Jana"_s);
        const cImportEntry row = m_page->cTestBook::Stage(u"222"_s, day.addDays(5), 20000, u"Jana"_s, -1, u"1234567"_s);
        m_page->Review.Refresh();
        QVERIFY(m_page->Review.Choose({row.ID}, u"Freizeit; Geschenke"_s, {}));
        QVERIFY(m_page->Review.Book({row.ID}, m_page->Progress));
        const cEntryItem entry = m_page->Data.GetEntries({}).value(1);
        QCOMPARE(entry.EntryDate, row.ImportDate);
        QCOMPARE(QStringList({entry.EntryType, entry.EntryAccount, entry.EntryAccountMove}),
                 QStringList({modWord::Einnahme, u"Sparkonto"_s, {}}));
    }

    void ATransferKeepsWhatWasChosen_data() const
    {
        const cTestRows<bool> row("isOneInBook");
        row("both rows at once", false);
        row("the other row was booked as an expense", true);
    }

    // Whichever row brings the entry, and whichever the user said it for.
    void ATransferKeepsWhatWasChosen()
    {
        QFETCH(const bool, isOneInBook);
        m_page->StageTransfer(u"1234567"_s, u"222"_s, -20000);
        if (isOneInBook) {
            QVERIFY(m_page->Review.Book({1}, m_page->Progress));
        }
        m_page->Settings->Set(modSettingKey::BankNumber.Of(u"222"_s), u"Sparkonto"_s);
        m_page->StageTransfer(u"222"_s, u"1234567"_s, 20000);
        QVERIFY(m_page->Review.Choose({2}, u"Freizeit; Geschenke"_s, {}, u"Für Jana"_s));
        QVERIFY(m_page->Review.Book({1, 2}, m_page->Progress));
        const cEntryItemList entries = m_page->Data.GetEntries({});
        QCOMPARE(entries.size(), 1);
        const cEntryItem& entry = entries.constFirst();
        QCOMPARE(QStringList({entry.EntryType, entry.EntryCategory, entry.EntryDescription}),
                 QStringList({modWord::Umbuchung, u"Freizeit; Geschenke"_s, u"Für Jana"_s}));
    }

    void AnEditedTransferTakesTheOtherRow_data() const
    {
        // change: what the user makes of the proposed transfer
        // isTaken: it still moves the money between both accounts
        const cTestRows<bool, fnChange> row("isTaken", "change");
        row("as proposed", true, [](cEntryFields&) {});
        row("another day, every month", true, [](cEntryFields& fields) {
            fields.Date = day.addDays(-3);
            fields.Interval = u"Monatlich"_s;
        });
        row("an expense", false, [](cEntryFields& fields) { fields.Type = modWord::Ausgabe; });
        row("to the purse", false, [](cEntryFields& fields) { fields.Target = u"Bargeld"_s; });
        row("backwards", false, [](cEntryFields& fields) { std::swap(fields.Account, fields.Target); });
        row("a part of it", false, [](cEntryFields& fields) { fields.Amount = u"150"_s; });
    }

    void AnEditedTransferTakesTheOtherRow() const
    {
        QFETCH(const bool, isTaken);
        QFETCH(const fnChange, change);
        for (const int id : {1, 2}) {
            cPage page;
            page.Settings->Set(modSettingKey::BankNumber.Of(u"222"_s), u"Sparkonto"_s);
            page.StageTransfer(u"1234567"_s, u"222"_s, -20000);
            page.StageTransfer(u"222"_s, u"1234567"_s, 20000);
            connect(&page.Review, &cImportReview::EditorWanted, &page.Review,
                    [&](cEntryEditor& editor, cEntryFields fields) {
                        change(fields);
                        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
                    });
            page.Review.EditAndBook({id});
            QList<int> assigned = page.Assigned();
            QCOMPARE(assigned.takeAt(id - 1), 1);
            QCOMPARE(assigned, QList<int>({isTaken ? 1 : -1}));
        }
    }

    // Wanted new beside the expense that it fits, while the other row comes first and is an income by itself.
    void ATransferMovesItsMoneyOnce()
    {
        m_page->Settings->Set(modSettingKey::BankNumber.Of(u"222"_s), u"Sparkonto"_s);
        (void)m_page->Spend(20000, u"Jana"_s);
        m_page->StageTransfer(u"222"_s, u"1234567"_s, 20000);
        m_page->StageTransfer(u"1234567"_s, u"222"_s, -20000);
        m_page->User.Decisions = {1, 1}; // all of them; new ones
        QVERIFY(m_page->Review.Book({1, 2}, m_page->Progress));
        QStringList kinds;
        const cEntryItemList entries = m_page->Data.GetEntries({});
        for (const cEntryItem& entry : entries) {
            kinds.append(entry.EntryType + u' ' + entry.EntryAccount);
        }
        kinds.sort();
        QCOMPARE(kinds, QStringList({u"Ausgabe Girokonto"_s, u"Ausgabe Girokonto"_s, u"Einnahme Sparkonto"_s}));
    }

    // What the user has chosen is none of it, nor what was not booked any more.
    void CountsWhatWasBookedWithoutCategory()
    {
        struct cGivenUp final : cProgress
        {
            void showProgressBar(int /*maximum*/) override {}
            void addProgressValue(int /*steps*/) override { IsStopped = true; }
            void hideProgressBar() override {}
            [[nodiscard]] bool IsCancelled() const override { return IsStopped; }
            bool IsStopped = false;
        };
        QList<int> rows;
        for (int i = 0; i < 40; ++i) {
            rows.append(m_page->Stage(-5 - i, u"Niemand "_s + QChar(u'A' + i)));
        }
        QVERIFY(m_page->Review.Choose(rows.mid(0, 2), u"Allgemein"_s, {}));
        QCOMPARE(m_page->Reason(2), u"keine Regel passt"_s);
        m_page->User.Decisions = {1};
        cGivenUp progress;
        QVERIFY(m_page->Review.Book(rows, progress));
        QCOMPARE(m_page->Review.Summary(),
                 QStringList({u"26 Umsätze gebucht, 26 neue Einträge."_s,
                              u"24 davon unter 'Allgemein', weil keine Kategorie bekannt ist."_s}));
    }

    // A key alone never makes a second entry of what is in the book.
    void BookingAsksAboutMatches_data() const
    {
        // entries: two are there; own: rows that got one of these: 1 the first, 2 the second, 0 none
        const cTestRows<std::deque<int>, int, QList<int>> row("decisions", "entries", "own");
        row("assign", {0}, 3, {1, 2});
        row("new", {1}, 5, {0, 0});
        row("leave open", {2}, 3, {0, 0});
        row("one by one", {3, 2, 0}, 3, {0, 2});
        row("given up", {-1}, 2, {0, 0});
        row("given up on the way", {3, 0, -1}, 2, {0, 0});
    }

    void BookingAsksAboutMatches()
    {
        QFETCH(const std::deque<int>, decisions);
        QFETCH(const QList<int>, own);
        const QList<int> entries{-1, m_page->Spend(2310, {}), m_page->Spend(4000, u"Schuhhaus"_s)};
        const int likely = m_page->Stage(-23.1, u"Jana"_s);
        const int certain = m_page->Stage(-40, u"Schuhhaus"_s);
        m_page->User.Decisions = decisions;
        m_page->Review.Book({likely, certain, m_page->Stage(-12.99, u"Netflix"_s)}, m_page->Progress);
        QCOMPARE(m_page->User.LastDecision.Options.value(0), u"Den &vorhandenen zuordnen"_s);
        QCOMPARE(m_page->User.LastDecision.Default, 0);
        QTEST(m_page->Data.CountEntries(), "entries");
        const QList<int> assigned = m_page->Assigned();
        for (const int row : {0, 1}) {
            QCOMPARE(assigned.at(row) == entries.at(row + 1), own.at(row) != 0);
        }
        QCOMPARE(m_page->User.Asked.size(), static_cast<qsizetype>(decisions.size()));
    }

    void AssignsByHand()
    {
        const int shop = m_page->Spend(5000, u"Schuhhaus"_s);
        const int boots = m_page->Spend(5000, u"Stiefel"_s);
        const int first = m_page->Stage(-50, u"Schuhhaus"_s);
        const int second = m_page->Stage(-50, u"Schuhhaus"_s);
        QVERIFY(m_page->Review.StartAssign({first})->Assign(0));
        QCOMPARE(m_page->Assigned(), QList<int>({shop, -1}));
        QVERIFY(!m_page->Review.StartAssign({first})); // booked
        QVERIFY(!m_page->Review.StartAssign({first, second}));

        const std::unique_ptr<cAssignListModel> list = m_page->Review.StartAssign({second});
        QCOMPARE(list->RowText(), u"03.03.2026  ·  -50,00"_s + space + u"€  ·  Schuhhaus"_s);
        QCOMPARE(list->rowCount(), 2);
        const QStringList taken{u"03.03.2026"_s, u"Schuhhaus"_s, u"Haushalt; Lebensmittel"_s,
                                u"-50,00"_s + space + u'€', u"100 %"_s};
        for (int column = 0; column < taken.size(); ++column) {
            QCOMPARE(Cell(*list, 0, column), taken.at(column));
        }
        QVERIFY(Cell(*list, 0, cAssignListModel::Reason).startsWith(u"hat schon einen Umsatz; "));
        QCOMPARE(list->Proposed(), 1); // the free one
        QVERIFY(list->Assign(list->Proposed()));
        QCOMPARE(m_page->Assigned(), QList<int>({shop, boots}));
        QCOMPARE(m_page->Review.Summary(), QStringList(u"Umsatz zugeordnet: 'Stiefel' vom 03.03."_s));
        QCOMPARE(m_page->Data.Journal().UndoName(), u"Umsatz zugeordnet"_s);
    }

    void AssignsParts()
    {
        const int bill = m_page->Spend(10000, u"Werkstatt"_s);
        for (const int row : {m_page->Stage(-30, u"Rate 1"_s), m_page->Stage(-70, u"Rate 2"_s)}) {
            const std::unique_ptr<cAssignListModel> list = m_page->Review.StartAssign({row});
            QCOMPARE(list->rowCount(), 0); // nobody would guess it
            list->SetScope(cAssignListModel::eScope::All);
            QVERIFY(list->Assign(0));
        }
        QCOMPARE(m_page->Assigned(), QList<int>({bill, bill}));
    }

    void UndoTakesACorrectionBack()
    {
        const int rent = m_page->Spend(65000, u"Miete Tann"_s, u"Monatlich"_s);
        const std::unique_ptr<cAssignListModel> list =
            m_page->Review.StartAssign({m_page->Stage(-660, u"Miete Tann"_s)});
        m_page->User.Decisions = {0};
        QVERIFY(list->Assign(0));
        QCOMPARE(m_page->Data.GetEntryMods(rent).value(0).EntryValue, 66000);
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Data.GetEntryMods(rent).size(), 0);
    }

    void ALeftOutMonthIsPaidAfterAll_data() const
    {
        // parts: of a series of 650 euros whose March no statement told of
        const cTestRows<QList<int>, double, std::deque<int>> row("parts", "booked", "decisions");
        row("no amount to ask about", {65000}, -650, {0});
        row("both parts", {60000, 5000}, -650, {0});
        row("another amount that the user does not want", {65000}, -660, {0, 2});
    }

    void ALeftOutMonthIsPaidAfterAll()
    {
        QFETCH(const QList<int>, parts);
        QFETCH(const double, booked);
        QFETCH(const std::deque<int>, decisions);
        const QDate first = day.addMonths(-1);
        QList<int> ids;
        for (const int cents : parts) {
            cEntryItem part = m_page->cTestBook::Spend(first, cents, u"Miete Tann"_s, u"Monatlich"_s);
            ids.append(part.ID);
            modSplit::SetGroup(part, parts.size() > 1 ? ids.constFirst() : 0);
            QVERIFY(m_page->Data.ChangeEntry(part));
            QVERIFY(m_page->Data.AddNewEntryMod({0, part.ID, modWord::Betrag, QDate(2026, 3, 1), QDate(2026, 3, 31), 0,
                                                 u"Laut Kontoauszug nicht gebucht"_s, day}));
        }
        for (const QDate paid : {first, day.addMonths(1)}) {
            m_page->cTestBook::Stage(u"1234567"_s, paid, -65000, u"Miete Tann"_s, ids.constFirst());
        }
        m_page->User.Decisions = decisions;
        QVERIFY(m_page->Review.Book({m_page->Stage(booked, u"Miete Tann"_s)}, m_page->Progress));
        QCOMPARE(m_page->User.Asked.size(), static_cast<qsizetype>(decisions.size()));
        QCOMPARE(m_page->Data.CountEntries(), parts.size());
        cEntryQuery query;
        query.Start = query.End = day;
        QCOMPARE(modSplit::Net(m_page->Data.GetEntries(query)), -65000);
    }

    // The other one of two equal rows is meant for the occurrence, so this one joins it on the way.
    void JoinsAllPartsWithTheirAmounts()
    {
        QList<int> ids;
        for (const int cents : {60000, 5000}) {
            cEntryItem part = m_page->cTestBook::Spend(day.addMonths(-1), cents, u"Miete Tann"_s, u"Monatlich"_s);
            ids.append(part.ID);
            modSplit::SetGroup(part, ids.constFirst());
            QVERIFY(m_page->Data.ChangeEntry(part));
        }
        m_page->cTestBook::Stage(u"1234567"_s, day.addMonths(-1), -65000, u"Miete Tann"_s, ids.constFirst());
        const QDate late = day.addDays(1);
        m_page->cTestBook::Stage(u"1234567"_s, late, -65000, u"Miete Tann"_s);
        const int second = m_page->cTestBook::Stage(u"1234567"_s, late, -65000, u"Miete Tann"_s).ID;
        QVERIFY(m_page->Review.Book({second}, m_page->Progress));
        QCOMPARE(m_page->User.Asked, QStringList());
        cEntryQuery query;
        query.Start = query.End = late;
        QCOMPARE(modSplit::Net(m_page->Data.GetEntries(query)), -65000);
    }

    void SaysWhatASeriesThatGoesOnTook_data() const
    {
        const cTestRows<int, int> row("decision", "told");
        row("this time", 0, 1);
        row("not at all", 2, 0);
    }

    void SaysWhatASeriesThatGoesOnTook()
    {
        QFETCH(const int, decision);
        QFETCH(const int, told);
        cEntryItem rent = m_page->cTestBook::Spend(day.addMonths(-1), 65000, u"Miete Tann"_s, u"Monatlich"_s);
        rent.EntryDateEnd = day.addDays(-1);
        QVERIFY(m_page->Data.ChangeEntry(rent));
        m_page->cTestBook::Stage(u"1234567"_s, rent.EntryDate, -65000, u"Miete Tann"_s, rent.ID);
        m_page->User.Decisions = {decision};
        QVERIFY(m_page->Review.Book({m_page->Stage(-660, u"Miete Tann"_s)}, m_page->Progress));
        QCOMPARE(m_page->Data.CountEntries(), 1);
        QCOMPARE(m_page->Review.Summary().filter(u"auf den Betrag des Kontoauszugs"_s).size(), told);
    }

    void SaysWhyThereIsNoEntry()
    {
        const std::unique_ptr<cAssignListModel> none = m_page->Review.StartAssign({m_page->Stage(-1, u"X"_s)});
        QCOMPARE(none->Proposed(), -1);
        QVERIFY(!none->Assign(none->Proposed()));
        QVERIFY(none->EmptyHint().startsWith(u"Gesucht wurde im Konto Girokonto"));
        const std::unique_ptr<cAssignListModel> unknown =
            m_page->Review.StartAssign({m_page->Stage(-1, u"X"_s, u"4711"_s)});
        QVERIFY(unknown->EmptyHint().startsWith(u"Die Kontonummer 4711 hat noch kein Konto"));
    }

    void Releases()
    {
        const int entry = m_page->Spend(2310, u"REWE"_s);
        const int booked = m_page->Stage(-23.1, u"REWE"_s);
        const int open = m_page->Stage(-99, u"Jana"_s);
        m_page->Review.Match({}, m_page->Progress);
        QVERIFY(m_page->Review.ActionsFor({booked}).Release && !m_page->Review.ActionsFor({booked}).Assign);
        QVERIFY(m_page->Review.ActionsFor({open}).Assign && !m_page->Review.ActionsFor({open}).Release);
        QVERIFY(m_page->Review.ActionsFor({open, booked}).Book && !m_page->Review.ActionsFor({booked}).Book);
        m_page->Review.View().SetFilter(u"REWE"_s); // leaves nothing open
        QVERIFY(!m_page->Review.ActionsFor({booked}).Accept);
        m_page->Review.View().SetFilter({});
        m_page->Review.Release({open, booked});
        QCOMPARE(m_page->Assigned(), QList<int>({-1, -1}));
        QCOMPARE(m_page->Review.Summary(),
                 QStringList(u"Ein Umsatz gelöst und wieder offen. Einträge bleiben im Haushaltsbuch."_s));
        QVERIFY(m_page->Data.LoadEntry(entry));
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Assigned(), QList<int>({entry, -1}));
    }

    void WhatNobodySeesIsReadWhenItIsShown()
    {
        m_page->Review.SetShown(false);
        (void)m_page->Stage(-23.1, u"REWE"_s);
        QCOMPARE(m_page->Review.Rows().rowCount(), 0);
        m_page->Review.SetShown(true);
        QTRY_COMPARE(m_page->Review.Rows().rowCount(), 1);
    }

private:
    std::optional<cPage> m_page;
};

TEST_CLASS(testImportMatch, QCoreApplication)
#include "testImportMatch.moc"
