#include "model/modSettingKey.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/main/cSavedViews.h"
#include "views/sheet/cCellEdit.h"
#include "views/sheet/cEntryDuplicate.h"
#include "views/sheet/cManyChange.h"
#include "views/sheet/cRowDrop.h"
#include "views/sheet/modDayJump.h"
#include "views/sheet/modRowCopy.h"
#include "views/sheet/modRowDrag.h"
#include "views/template/cTemplateFlow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using cKey = cEntryListModel::cKey;

// A purchase of March, a rent of 700 euros since January whose March is corrected to 720, and the list that shows them.
class cScene
{
public:
    cScene()
    {
        Purchase = Book.Add([](cEntryItem& e) { e.EntryDescription = u"=Markt\tWest"_s; });
        Rent = Book.Spend(QDate(2026, 1, 28), 70000, u"Miete"_s, u"Monatlich"_s);
        Book.Correct(Rent.ID, QDate(2026, 3, 1), QDate(2026, 3, 31), 72000);
        Show();
    }

    void Show()
    {
        List.SetContent({Book.Data.GetEntries({{}, QDate(2026, 4, 30), {}, {}, {}, eBookingKind::All}),
                         {},
                         Book.Clock.Today(),
                         {},
                         {}},
                        {}, modWord::KeineGruppierung);
    }

    cEntryItem Stored(int id) const { return Book.Data.LoadEntry(id).value_or(cEntryItem{}); }

    // Two parts of one purchase of 30 euros.
    QList<cEntryItem> AddSplit()
    {
        cEntryItem first = Book.Add([](cEntryItem& e) { e.EntryValue = 2000; });
        const QString mark = u"split=%1"_s.arg(first.ID);
        first.EntryFlags = mark;
        if (!Book.Data.ChangeEntry(first)) {
            qFatal("no group");
        }
        return {first, Book.Add([&](cEntryItem& e) { e.EntryFlags = mark; })};
    }

    mutable cTestBook Book;
    cEntryItem Purchase;
    cEntryItem Rent;
    cEntryListModel List{Book.Format};
};

} // namespace

class testSheet final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever order they were clicked in.
    void CopiedRowsAreATable()
    {
        const cScene scene;
        const cCopiedRows copied =
            modRowCopy::Copy(scene.List, {scene.List.index(2, 0), scene.List.index(1, 0)},
                             {cEntryListModel::Date, cEntryListModel::Description, cEntryListModel::Amount});
        const QStringList lines = copied.Text.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines,
                 (QStringList{u"Datum\tBeschreibung\tBetrag"_s, u"28.02.2026\tMiete\t-700,00 €"_s,
                              u"10.03.2026\t'=Markt West\t-10,00 €"_s}));
        QVERIFY2(copied.Html.contains(u"<td align=\"right\">-700,00 €</td>"_s), qPrintable(copied.Html));
    }

    void CopyComesOnceWithTheShownAmount_data()
    {
        // day: of the line
        const cTestRows<bool, QDate, bool, QDate, qint64> row("isSeries", "day", "isToday", "expectedDay",
                                                              "expectedCents");
        row("today", false, QDate(2026, 3, 10), true, QDate(2026, 3, 15), 1000);
        row("next month", false, QDate(2026, 3, 10), false, QDate(2026, 4, 10), 1000);
        row("shorter month", false, QDate(2026, 1, 31), false, QDate(2026, 2, 28), 1000);
        row("corrected", true, QDate(2026, 3, 28), false, QDate(2026, 4, 28), 72000);
    }

    void CopyComesOnceWithTheShownAmount()
    {
        QFETCH(bool, isSeries);
        QFETCH(QDate, day);
        QFETCH(bool, isToday);
        cScene scene;
        cEntryItem original = isSeries ? scene.Rent : scene.Purchase;
        original.EntryDate = isSeries ? original.EntryDate : day;
        original.EntryFlags = u"beleg=Bon.pdf;zahler=Anna;kuendbar=2027-01-01"_s;
        QVERIFY(scene.Book.Data.ChangeEntry(original));
        cEntryDuplicate flow(scene.Book.Tools);
        const QList<cKey> made = flow.Duplicate(
            {{original.ID, day}}, isToday ? cEntryDuplicate::eDay::Today : cEntryDuplicate::eDay::NextMonth);
        QCOMPARE(made.size(), 1);
        const cEntryItem copy = scene.Stored(made.first().ID);
        QTEST(copy.EntryDate, "expectedDay");
        QTEST(copy.EntryValue, "expectedCents");
        QCOMPARE(copy.EntryInterval, QString(modWord::Einmalig));
        QCOMPARE(copy.EntryFlags, u"zahler=Anna"_s);
        QVERIFY(scene.Book.Data.GetEntryMods(copy.ID).isEmpty());
        QVERIFY(flow.Text().contains(modDate::ToText(copy.EntryDate)));
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Book.Data.CountEntries(), 2);
    }

    void CopiedPartsStayTogether()
    {
        cScene scene;
        const QList<cEntryItem> parts = scene.AddSplit();
        cEntryDuplicate flow(scene.Book.Tools);
        const QList<cKey> made =
            flow.Duplicate({{parts.at(0).ID, {}}, {parts.at(1).ID, {}}}, cEntryDuplicate::eDay::Today);
        QCOMPARE(modSplit::Group(scene.Stored(made.at(0).ID)), made.at(0).ID);
        QCOMPARE(modSplit::Group(scene.Stored(made.at(1).ID)), made.at(0).ID);
        const QList<cKey> alone = flow.Duplicate({{parts.at(1).ID, {}}}, cEntryDuplicate::eDay::Today);
        QCOMPARE(modSplit::Group(scene.Stored(alone.at(0).ID)), 0);
        QList<cKey> twice; // two days of a purchase that comes every month
        for (const int month : {3, 4}) {
            twice.append({{parts.at(0).ID, QDate(2026, month, 10)}, {parts.at(1).ID, QDate(2026, month, 10)}});
        }
        const QList<cKey> both = flow.Duplicate(twice, cEntryDuplicate::eDay::Today);
        QCOMPARE(Each(both, [&](const cKey& key) { return modSplit::Group(scene.Stored(key.ID)); }),
                 (QList<int>{both.at(0).ID, both.at(0).ID, both.at(2).ID, both.at(2).ID}));
    }

    void StartBalanceIsNotCopied()
    {
        cScene scene;
        const cEntryItem start = scene.Book.Add([](cEntryItem& e) { e.EntryCategory = modWord::Startguthaben; });
        QVERIFY(cEntryDuplicate(scene.Book.Tools).Duplicate({{start.ID, {}}}, cEntryDuplicate::eDay::Today).isEmpty());
        QCOMPARE(scene.Book.User.Shown.size(), 1);
        QCOMPARE(scene.Book.Data.CountEntries(), 3);
    }

    void ManyChangeInOneStep()
    {
        cScene scene;
        const cEntryItem start = scene.Book.Add([](cEntryItem& e) { e.EntryCategory = modWord::Startguthaben; });
        const QList<cKey> rows{{scene.Purchase.ID, {}},
                               {scene.Rent.ID, QDate(2026, 1, 28)},
                               {scene.Rent.ID, QDate(2026, 2, 28)},
                               {start.ID, {}}};
        cManyChange change(scene.Book.Tools, rows);
        QCOMPARE(change.Count(), 2);
        QVERIFY2(change.Summary().contains(u"2 Einträge"_s) && change.Summary().contains(u"eine Serie"_s)
                     && change.Summary().contains(u"Startguthaben"_s),
                 qPrintable(change.Summary()));
        QCOMPARE(change.Save({}), cManyChange::eSaved::Refused); // nothing was chosen
        QCOMPARE(change.Save({.Category = modWord::Startguthaben}), cManyChange::eSaved::Refused);
        QCOMPARE(change.Save({.Category = u"Freizeit"_s, .Description = u"Anders"_s, .Type = modWord::Einnahme}),
                 cManyChange::eSaved::Saved);
        for (const int id : {scene.Purchase.ID, scene.Rent.ID}) {
            QCOMPARE(scene.Stored(id).EntryCategory, u"Freizeit"_s);
            QCOMPARE(scene.Stored(id).EntryDescription, u"Anders"_s);
            QCOMPARE(scene.Stored(id).EntryType, QString(modWord::Einnahme));
        }
        QCOMPARE(scene.Stored(start.ID), start);
        QCOMPARE(scene.Book.Data.GetEntryMods(scene.Rent.ID).size(), 1);
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Stored(scene.Purchase.ID), scene.Purchase);
        QCOMPARE(scene.Stored(scene.Rent.ID), scene.Rent);
    }

    void PartsOfAPurchaseShareTheirAccount()
    {
        cScene scene;
        const QList<cEntryItem> parts = scene.AddSplit();
        cManyChange change(scene.Book.Tools, {{parts.at(1).ID, {}}});
        QCOMPARE(change.Save({.Account = u"Bargeld"_s, .Description = u"Teil"_s}), cManyChange::eSaved::Saved);
        QCOMPARE(scene.Stored(parts.at(0).ID).EntryAccount, u"Bargeld"_s);
        QCOMPARE(scene.Stored(parts.at(0).ID).EntryDescription, QString());
        QCOMPARE(scene.Stored(parts.at(1).ID).EntryDescription, u"Teil"_s);
        QCOMPARE(cManyChange(scene.Book.Tools, {{parts.at(1).ID, {}}})
                     .Save({.Type = modWord::Umbuchung, .Target = u"Sparkonto"_s}),
                 cManyChange::eSaved::Refused);
    }

    void TransferNeedsAnotherAccount()
    {
        cScene scene;
        cManyChange change(scene.Book.Tools, {{scene.Purchase.ID, {}}});
        QVERIFY(!change.ShowsTarget({}));
        QVERIFY(change.ShowsTarget(modWord::Umbuchung));
        QCOMPARE(change.Save({.Type = modWord::Umbuchung}), cManyChange::eSaved::BadTarget);
        QCOMPARE(change.Save({.Type = modWord::Umbuchung, .Target = u"Girokonto"_s}), cManyChange::eSaved::BadTarget);
        QCOMPARE(scene.Stored(scene.Purchase.ID), scene.Purchase);
        QCOMPARE(change.Save({.Type = modWord::Umbuchung, .Target = u"Sparkonto"_s}), cManyChange::eSaved::Saved);
        cManyChange back(scene.Book.Tools, {{scene.Purchase.ID, {}}});
        QVERIFY(back.ShowsTarget({}));
        QCOMPARE(back.Save({.Account = u"Sparkonto"_s}), cManyChange::eSaved::BadTarget);
        QCOMPARE(back.Save({.Type = modWord::Ausgabe}), cManyChange::eSaved::Saved);
        QCOMPARE(scene.Stored(scene.Purchase.ID), scene.Purchase);
    }

    void DraggedTransferKeepsItsOtherSide_data()
    {
        // shown: the account of the list; empty for all; expected: of "Girokonto > Sparkonto"
        const cTestRows<QString, QString, QString> row("shown", "account", "expected");
        row("arrives", u"Sparkonto"_s, u"Bargeld"_s, u"Girokonto > Bargeld"_s);
        row("leaves", u"Girokonto"_s, u"Bargeld"_s, u"Bargeld > Sparkonto"_s);
        row("all accounts", {}, u"Bargeld"_s, u"Bargeld > Sparkonto"_s);
        row("onto its other side", u"Sparkonto"_s, u"Girokonto"_s, u"Girokonto > Sparkonto"_s);
    }

    void DraggedTransferKeepsItsOtherSide()
    {
        QFETCH(QString, shown);
        QFETCH(QString, account);
        cScene scene;
        const cEntryItem transfer = scene.Book.Move(u"Girokonto"_s, u"Sparkonto"_s);
        scene.Book.User.Usual = eAnswer::Yes;
        const QByteArray bytes = modRowDrag::ToBytes({{transfer.ID, transfer.EntryDate}}, shown);
        cManyChange change(scene.Book.Tools, modRowDrag::FromBytes(bytes));
        (void)change.AskAndSave({.Account = account}, modRowDrag::ShownFromBytes(bytes));
        const cEntryItem stored = scene.Stored(transfer.ID);
        QTEST(QString(stored.EntryAccount + u" > "_s + stored.EntryAccountMove), "expected");
        const QString asked = scene.Book.User.Asked.join(u'\n');
        QCOMPARE(asked.contains(u"nach 'Sparkonto' kommen dann auf 'Bargeld' an"_s),
                 stored.EntryAccountMove == u"Bargeld"_s);
        QCOMPARE(asked.contains(u"gehen dann von 'Bargeld' ab"_s), stored.EntryAccount == u"Bargeld"_s);
    }

    void DragThatChangesNothingAsksNothing()
    {
        cScene scene;
        const cEntryItem start = scene.Book.Add([](cEntryItem& e) { e.EntryCategory = modWord::Startguthaben; });
        const cEntryItem cash = scene.Book.Add([](cEntryItem& e) { e.EntryAccount = u"Bargeld"_s; });
        const cManyFields toCash{.Account = u"Bargeld"_s};
        QCOMPARE(cManyChange(scene.Book.Tools, {{start.ID, {}}}).AskAndSave(toCash), cManyChange::eSaved::Refused);
        QVERIFY(scene.Book.User.Shown.constLast().contains(u"Startguthaben"_s));
        QCOMPARE(cManyChange(scene.Book.Tools, {{cash.ID, {}}}).AskAndSave(toCash), cManyChange::eSaved::Refused);
        QCOMPARE(scene.Book.User.Asked, QStringList());
        cManyChange change(scene.Book.Tools, {{cash.ID, {}}, {scene.Purchase.ID, {}}, {start.ID, {}}});
        (void)change.AskAndSave(toCash);
        const QString asked = scene.Book.User.Asked.constLast();
        QVERIFY2(asked.contains(u"1 Eintrag"_s) && asked.contains(u"Startguthaben bleiben"_s), qPrintable(asked));
    }

    void ManyChangesAskForReconciledDays()
    {
        cScene scene;
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        scene.Book.Settings->Set(modSettingKey::Reconciled.Of(u"1234567"_s), u"2026-03-12"_s);
        const QList<cKey> rows{{scene.Purchase.ID, {}}};
        QCOMPARE(cManyChange(scene.Book.Tools, rows).Save({.Account = u"Bargeld"_s}), cManyChange::eSaved::Refused);
        QVERIFY2(scene.Book.User.Asked.join(u'\n').contains(u"stimmt bis 12.03.2026"_s),
                 qPrintable(scene.Book.User.Asked.join(u'\n')));
        QCOMPARE(scene.Stored(scene.Purchase.ID), scene.Purchase);
    }

    void CellsAreStoredThroughTheEditor_data()
    {
        // day: of the occurrence; invalid for the purchase; decision: -1: nothing is asked; expected: day, category,
        // description and cents of each line up to April
        const cTestRows<QDate, int, QString, int, QString> row("day", "column", "typed", "decision", "expected");
        const QString others = u"28.01. Miete 70000|28.02. Miete 70000|"_s;
        row("amount as a sum", {}, cEntryListModel::Amount, u"12,50+3*2"_s, -1, u"10.03. =Markt\tWest 1850"_s);
        row("description", {}, cEntryListModel::Description, u"Markt"_s, -1, u"10.03. Markt 1000"_s);
        row("amount of this period", QDate(2026, 3, 28), cEntryListModel::Amount, u"710"_s, 0,
            others + u"28.03. Miete 71000|28.04. Miete 70000"_s);
        row("amount from here", QDate(2026, 4, 28), cEntryListModel::Amount, u"750"_s, 1,
            others + u"28.03. Miete 72000|28.04. Miete 75000"_s);
        row("amount from a corrected one", QDate(2026, 3, 28), cEntryListModel::Amount, u"750"_s, 1,
            others + u"28.03. Miete 75000|28.04. Miete 75000"_s);
        row("amount of the series at a corrected one", QDate(2026, 3, 28), cEntryListModel::Amount, u"750"_s, 2,
            u"28.01. Miete 75000|28.02. Miete 75000|28.03. Miete 75000|28.04. Miete 75000"_s);
        row("description of the series", QDate(2026, 2, 28), cEntryListModel::Description, u"Wohnen"_s, 1,
            u"28.01. Wohnen 70000|28.02. Wohnen 70000|28.03. Wohnen 72000|28.04. Wohnen 70000"_s);
        row("description of the series at its first day", QDate(2026, 1, 28), cEntryListModel::Description, u"Wohnen"_s,
            0, u"28.01. Wohnen 70000|28.02. Wohnen 70000|28.03. Wohnen 72000|28.04. Wohnen 70000"_s);
    }

    void CellsAreStoredThroughTheEditor()
    {
        QFETCH(QDate, day);
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(int, decision);
        cScene scene;
        if (decision >= 0) {
            scene.Book.User.Decisions = {decision};
        }
        const cEntryItem& entry = day.isValid() ? scene.Rent : scene.Purchase;
        const cKey key{entry.ID, day.isValid() ? day : entry.EntryDate};
        cCellEdit cells(scene.Book.Tools);
        QVERIFY(cells.Start(key, column).has_value());
        QCOMPARE(cells.Save(key, column, typed), cCellEdit::eSaved::Saved);
        QCOMPARE(scene.Book.User.Asked.size(), decision >= 0 ? 1 : 0);
        scene.Show();
        QCOMPARE(scene.List.IndexesOf({cells.SavedKey()}).size(), 1);
        QStringList lines;
        for (int row = 0; row < scene.List.rowCount(); ++row) {
            const cEntryItem* line = scene.List.EntryAt(scene.List.index(row, 0));
            if ((line->EntryInterval == modWord::Einmalig) != day.isValid()) {
                lines.append(u"%1 %2 %3"_s.arg(line->EntryDate.toString(u"dd.MM."_s), line->EntryDescription)
                                 .arg(line->EntryValue));
            }
        }
        QTEST(lines.join(u'|'), "expected");
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Stored(entry.ID), entry);
    }

    void AmountOfAPartChangesTheWhole()
    {
        cScene scene;
        const QList<cEntryItem> parts = scene.AddSplit();
        cCellEdit cells(scene.Book.Tools);
        QCOMPARE(cells.Save({parts.at(1).ID, {}}, cEntryListModel::Amount, u"12"_s), cCellEdit::eSaved::Saved);
        QCOMPARE(scene.Stored(parts.at(0).ID).EntryValue, 2000);
        QCOMPARE(scene.Stored(parts.at(1).ID).EntryValue, 1200);
        QCOMPARE(cells.Save({parts.at(1).ID, {}}, cEntryListModel::Category, u"Wohnung; Miete"_s),
                 cCellEdit::eSaved::Saved);
        QCOMPARE(scene.Stored(parts.at(0).ID).EntryCategory, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(scene.Stored(parts.at(1).ID).EntryCategory, u"Wohnung; Miete"_s);
    }

    // The next cell that opens is one of the same line.
    void PartOfASeriesIsFoundAfterItsChange()
    {
        cScene scene;
        QList<cEntryItem> parts = scene.AddSplit();
        for (cEntryItem& part : parts) {
            part.EntryInterval = u"Monatlich"_s;
            QVERIFY(scene.Book.Data.ChangeEntry(part));
        }
        cCellEdit cells(scene.Book.Tools);
        scene.Book.User.Decisions = {0};
        const cKey april{parts.at(1).ID, QDate(2026, 4, 10)};
        QCOMPARE(cells.Save(april, cEntryListModel::Description, u"Zweiter"_s), cCellEdit::eSaved::Saved);
        QCOMPARE(scene.Stored(cells.SavedKey().ID).EntryDescription, u"Zweiter"_s);
        QCOMPARE(scene.Stored(cells.SavedKey().ID).EntryDate, april.Day);
    }

    void RowsAreDroppedOnACategory()
    {
        cScene scene;
        const QString target = u"Wohnung; Strom"_s;
        const cKey purchase{scene.Purchase.ID, scene.Purchase.EntryDate};
        const cRowDrop drop(scene.Book.Tools);
        QVERIFY(drop.OnCategory({purchase}, scene.Purchase.EntryCategory).isEmpty()); // where it is already
        QCOMPARE(drop.OnCategory({purchase}, target), QList{purchase});
        QVERIFY(scene.Book.User.Asked.isEmpty() && scene.Book.User.Shown.isEmpty());
        QCOMPARE(scene.Stored(purchase.ID).EntryCategory, target);
        scene.Book.User.Decisions = {0}; // from here on
        const QList<cKey> stored = drop.OnCategory({purchase, {scene.Rent.ID, QDate(2026, 3, 28)}}, target);
        scene.Show();
        QCOMPARE(scene.List.IndexesOf(stored).size(), 2); // the rest of the series as it is called now
        QCOMPARE(scene.Stored(scene.Rent.ID).EntryCategory, scene.Rent.EntryCategory);
        QCOMPARE(scene.Book.Data.CountEntriesOfCategory(target), 2); // the purchase and the rest of the series
        QVERIFY(scene.Book.Data.Journal().Undo());
        scene.Book.User.Answers = {eAnswer::Yes};
        const cEntryItem other = scene.Book.Add([](cEntryItem&) {});
        QCOMPARE(drop.OnCategory({{scene.Rent.ID, QDate(2026, 3, 28)}, {other.ID, other.EntryDate}}, target).size(), 2);
        QCOMPARE(scene.Stored(scene.Rent.ID).EntryCategory, target);
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Stored(other.ID).EntryCategory, other.EntryCategory);
    }

    void RefusedCellChangesNothing()
    {
        cScene scene;
        cCellEdit cells(scene.Book.Tools);
        const cKey purchase{scene.Purchase.ID, scene.Purchase.EntryDate};
        QVERIFY(!cells.Fault(cEntryListModel::Amount, u"zwölf"_s).isEmpty());
        QCOMPARE(cells.Save(purchase, cEntryListModel::Amount, u"zwölf"_s), cCellEdit::eSaved::Refused);
        QCOMPARE(cells.Save(purchase, cEntryListModel::Amount, u"10"_s), cCellEdit::eSaved::Unchanged);
        QCOMPARE(cells.Save(purchase, cEntryListModel::Category, u"Raumfahrt; Mond"_s), cCellEdit::eSaved::Refused);
        QCOMPARE(cells.Save({scene.Rent.ID, QDate(2026, 2, 28)}, cEntryListModel::Amount, u"1"_s),
                 cCellEdit::eSaved::Refused); // the question was given up
        QCOMPARE(scene.Stored(scene.Purchase.ID), scene.Purchase);
        QCOMPARE(scene.Stored(scene.Rent.ID), scene.Rent);
        const cEntryItem start = scene.Book.Add([](cEntryItem& e) { e.EntryCategory = modWord::Startguthaben; });
        QVERIFY(!cells.Start({start.ID, start.EntryDate}, cEntryListModel::Description).has_value());
        QVERIFY(cells.Start({start.ID, start.EntryDate}, cEntryListModel::Amount).has_value());
    }

    void DayIsFoundInAnyOrder_data()
    {
        // expected: of the row; text: that the user is told, in part
        const cTestRows<QString, QDate, QString> row("typed", "expected", "text");
        row("there", u"10.3."_s, QDate(2026, 3, 10), {});
        row("nearest", u"heute"_s, QDate(2026, 3, 10), u"keinen Eintrag"_s);
        row("outside", u"1.1.2027"_s, QDate(2026, 4, 28), u"außerhalb"_s);
        row("no day", u"bald"_s, {}, u"bald"_s);
    }

    void DayIsFoundInAnyOrder()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        cScene scene;
        const modPeriod::cRange range{QDate(2026, 1, 1), QDate(2026, 12, 31)};
        for (const QString& grouping : {QString(modWord::KeineGruppierung), u"Gruppiere nach Kategorie"_s}) {
            scene.List.SetGrouping(grouping);
            scene.List.sort(cEntryListModel::Amount, Qt::DescendingOrder);
            const modDayJump::cFound found = modDayJump::Find(scene.List, typed, scene.Book.Clock.Today(), range);
            QTEST(found.Row.isValid() ? scene.List.EntryAt(found.Row)->EntryDate : QDate(), "expected");
            QVERIFY2(text.isEmpty() ? found.Text.isEmpty() : found.Text.contains(text), qPrintable(found.Text));
        }
    }

    void ViewsAreKeptUnderANameAndFollowTheirAccount()
    {
        cTestBook book;
        cSavedViews views(book.Tools);
        cViewState view;
        view.Period = modWord::FreierZeitraum;
        view.Free = {QDate(2026, 1, 1), QDate()};
        view.Account = u"Girokonto"_s;
        view.Filter = u"a|b;c=50 % & mehr"_s;
        view.ShowsFix = false;
        book.User.Choices = {u" Große; | Runde "_s, u"Zweite"_s, u"Große; | Runde"_s};
        QVERIFY(views.Keep({.View = view, .Columns = u"0,10,1|s"_s}));
        QVERIFY(views.Keep({}));
        QVERIFY(!views.Keep({})); // the name is taken, and the question was given up
        QCOMPARE(views.Names(), (QStringList{u"Große; | Runde"_s, u"Zweite"_s}));
        QVERIFY(cTemplateFlow(book.Tools).RenameAccount(u"Girokonto"_s, u"Giro"_s));
        QCOMPARE(views.All().constFirst().View.Account, u"Giro"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(views.All().constFirst().View.Account, u"Girokonto"_s);
        QVERIFY(book.Data.Journal().Redo());
        const cSavedView kept = views.All().constFirst();
        QCOMPARE(kept.Columns, u"0,10,1|s"_s);
        QCOMPARE(kept.View.Filter, view.Filter);
        QCOMPARE(kept.View.Account, u"Giro"_s);
        QCOMPARE(kept.View.Free, view.Free);
        QVERIFY(!kept.View.ShowsFix && kept.View.ShowsFuture);
        book.User.Choices = {u"Zweite"_s, u"Dritte"_s, u"Dritte"_s, u"Dritte"_s};
        book.User.Decisions = {1, 2, 3}; // rename, to the front, delete
        QVERIFY(!views.Manage());
        QVERIFY(!views.Manage());
        QCOMPARE(views.Names(), (QStringList{u"Dritte"_s, u"Große; | Runde"_s}));
        QVERIFY(!views.Manage());
        QCOMPARE(views.Names(), QStringList{u"Große; | Runde"_s});
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(views.Names(), (QStringList{u"Dritte"_s, u"Große; | Runde"_s}));
    }
};

TEST_CLASS(testSheet, QCoreApplication)
#include "testSheet.moc"
