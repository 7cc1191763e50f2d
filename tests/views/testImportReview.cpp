#include "base/cProgress.h"
#include "model/modSettingKey.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryEditor.h"
#include "views/sheet/cManyChange.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fixture = QStringLiteral(TEST_DATA "/mt940/giro.sta");

// A new book with the page over it.
struct cPage : cTestBook
{
    cPage() { Review.View().SetGrouping(0); } // most of it is about rows, whatever their group

    // The giro statement with both account numbers assigned.
    void ImportFixture()
    {
        User.Choices = {u"Girokonto"_s, u"Sparkonto"_s};
        Review.Files().ImportFiles({fixture}, Progress);
    }

    // A row of the giro account that came without a file.
    void AddRow(const QString& name)
    {
        Stage(u"1234567"_s, QDate(2026, 1, 20), -750, name);
        Review.Refresh();
    }

    QString Cell(int row, int column) { return Review.Rows().index(row, column).data().toString(); }

    QList<int> AllIds()
    {
        QList<int> ids;
        for (int row = 0; row < Review.Rows().rowCount(); ++row) {
            ids.append(Review.Rows().IdAt(Review.Rows().index(row, 0)));
        }
        return ids;
    }

    cNoProgress Progress;
    cImportReview Review{Tools};
};

const QString space = u"\u00A0"_s; // before the currency sign

} // namespace

class testImportReview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A file in rows and columns that does not say whose it is.
    void AsksForTheNumberOnce()
    {
        const QString file = QStringLiteral(TEST_DATA "/csv/consors.csv");
        cPage page;
        page.User.Choices = {std::nullopt};
        page.Review.Files().ImportFiles({file}, page.Progress);
        QCOMPARE(page.User.Shown.size(), 1); // given up: nothing is read, and the reason is shown
        QCOMPARE(page.Data.GetImportEntries().size(), 0);
        page.User.Choices = {u" 4711 "_s, u"Girokonto"_s};
        page.Review.Files().ImportFiles({file}, page.Progress);
        QVERIFY(page.User.Asked.contains(u"consors.csv\nEs muss eine Kontonummer eingegeben werden, um die Daten einem "
                                         "Konto zuzuordnen."_s));
        QCOMPARE(page.Data.GetImportEntries().value(0).ImportAccount, u"4711"_s);
        page.User.Asked.clear();
        page.Review.Files().ImportFiles({file}, page.Progress);
        QCOMPARE(page.User.Asked, QStringList());
        QCOMPARE(page.Review.Files().LeftOut().size(), 1);
    }

    void AsksOnceForNamesOfAnotherBook_data()
    {
        const cTestRows<eAnswer, QStringList> row("answer", "entries");
        row("yes", eAnswer::Yes, {u"Ausgabe Hobby; Zug "_s, u"Umbuchung Allgemein Depot"_s});
        row("no", eAnswer::No, {});
    }

    // Without its account a transfer is not booked as what it is not.
    void AsksOnceForNamesOfAnotherBook()
    {
        QFETCH(const eAnswer, answer);
        const cTestFile folder;
        const QString path = folder.Path(u"a.qif"_s);
        cTestFile::Write(path,
                         "!Account\nNGirokonto\n^\n!Type:Bank\nD30.1.26\nT-5\nPHolle\nLHobby:Zug\n^\n"
                         "D31.1.26\nT-7\nPHolle\nL[Depot]\n^\n");
        cPage page;
        page.User.Answers = {answer, eAnswer::Yes};
        page.Review.Files().ImportFiles({path}, page.Progress);
        QCOMPARE(page.User.Asked.value(0),
                 u"Noch nicht im Buch sind aus der Datei: 1 Kategorie, 1 Konto\n\nDepot\nHobby; Zug\n\n"
                 "Sollen sie angelegt werden?"_s);
        page.Review.AcceptProposals(page.Progress);
        QStringList entries;
        for (const cEntryItem& entry : page.Data.GetEntries({})) {
            entries.append(QStringList{entry.EntryType, entry.EntryCategory, entry.EntryAccountMove}.join(u' '));
        }
        QTEST(entries, "entries");
    }

    // Older rows of an account that the book has under this name would count on top of its start balance.
    void AsksForTheStartOfAnotherBook()
    {
        const cTestFile folder;
        const QString path = folder.Path(u"a.qif"_s);
        cTestFile::Write(path, "!Account\nNgirokonto\n^\n!Type:Bank\nD30.1.26\nT-5\nPHolle\nLAuto\n^\n");
        cPage page;
        QVERIFY(page.Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 3, 1)));
        page.User.Answers = {eAnswer::Yes};
        page.Review.Files().ImportFiles({path}, page.Progress);
        QVERIFY2(page.User.Asked.join(u'|').contains(u"Als Stand vom 01.03.2026"),
                 qPrintable(page.User.Asked.join(u'|')));
        QCOMPARE(page.Data.GetStartGuthaben(u"Girokonto"_s).value_or(cEntryItem()).EntryValue, 100500);
    }

    // The user may have the rest of a statement that is refused for lines nobody needs.
    void OffersTheRestOfAStatement()
    {
        const cTestFile folder;
        const QString path = folder.Path(u"a.sta"_s);
        cTestFile::Write(path, ":20:A\n:25:1\n:60F:C260101EUR0,00\n:86:Vorwort\n:61:260101D1,00NTRF\n:86:x\n-\n");
        cPage page;
        page.User.Decisions = {1, 0};
        page.Review.Files().ImportFiles({path}, page.Progress);
        QCOMPARE(page.User.LastDecision.Options.value(0), u"&Ohne diese Zeilen lesen"_s);
        QCOMPARE(page.Data.GetImportEntries().size(), 0);
        QVERIFY(page.User.Shown.isEmpty()); // the question has said it
        page.Review.Files().ImportFiles({path}, page.Progress);
        QCOMPARE(page.Data.GetImportEntries().size(), 1);
        QVERIFY(page.Review.Summary().join(u' ').contains(u"übergangen: Vorwort"));
    }

    // Files can be dropped while others are read, before the progress box stands in the way.
    void ReadsFilesThatComeMeanwhileAfterwards()
    {
        cPage page;
        cStatementFiles& files = page.Review.Files();
        bool isFirst = true;
        connect(&files, &cStatementFiles::FileStaged, this, [&] {
            if (std::exchange(isFirst, false)) {
                files.ImportFiles({fixture}, page.Progress);
                QCOMPARE(page.Review.Summary(), QStringList());
            }
        });
        page.ImportFixture();
        QCOMPARE(page.Data.GetImportEntries().size(), 5);
        QCOMPARE(files.LeftOut().size(), 5);
        QVERIFY(page.Review.Summary().constFirst().contains(u"0 neu"_s));
    }

    void ImportsWithItsQuestions()
    {
        cPage page;
        QVERIFY(page.Review.View().EmptyHint().startsWith(u"Ziehen Sie einen Kontoauszug"));
        QSignalSpy rows(&page.Review, &cImportReview::RowsChanged);
        page.ImportFixture();
        QVERIFY(!rows.isEmpty());
        QCOMPARE(page.User.Asked.first(2),
                 (QStringList{u"Zu welchem Konto gehören die Umsätze der Kontonummer 1234567?\n"
                              "Ein neuer Name legt ein Konto an."_s,
                              u"Zu welchem Konto gehören die Umsätze der Kontonummer 7654321?\n"
                              "Ein neuer Name legt ein Konto an."_s}));
        QCOMPARE(page.Review.Summary(),
                 QStringList(u"giro.sta: 6 gelesen, 5 neu, 1 ohne Betrag, Schlusssaldo 5.200,00"_s + space + u'€'));
        QCOMPARE(page.Review.View().CountText(), u"5 offen, 5 insgesamt"_s);
        page.Review.Files().ImportFiles({fixture}, page.Progress);
        QCOMPARE(page.User.Asked.size(), 4); // nothing more than the two start balances
        QCOMPARE(page.Review.Files().LeftOut().size(), 5);
        // Older rows would count on top of the start balance.
        QVERIFY(page.Data.SetStartGuthaben(u"Girokonto"_s, 500000, QDate(2026, 1, 1)));
        const cTestFile folder;
        const QString older = folder.Path(u"older.sta"_s);
        cTestFile::Write(older, ":20:A\n:25:10020030/1234567\n:60F:C251130EUR1,00\n:61:251215C9,00NTRF\n-\n");
        page.Review.Files().ImportFiles({older}, page.Progress);
        QCOMPARE(page.User.Asked.size(), 5);
        QVERIFY(page.User.Asked.constLast().contains(u"Startguthaben von 5.000,00"));
    }

    void ShowsRows()
    {
        cPage page;
        page.ImportFixture();
        const QStringList groceries{u"offen"_s,
                                    u"03.01.2026"_s,
                                    u"REWE Markt Hohenfels"_s,
                                    u"REWE SAGT DANKE"_s,
                                    u"-23,10"_s + space + u'€',
                                    u"Girokonto"_s,
                                    u"Haushalt; Lebensmittel"_s,
                                    u"Einmalig"_s,
                                    u"Regel: rewe"_s};
        for (int column = 0; column < cStagedListModel::ColumnCount; ++column) {
            QCOMPARE(page.Cell(0, column), groceries.at(column));
        }
        QCOMPARE(page.Review.Rows().index(0, 0).data(cStagedListModel::ToneRole).toInt(), 2);
        QCOMPARE(page.Review.Rows().index(2, 0).data(cStagedListModel::ToneRole).toInt(), 1);
        QCOMPARE(page.Cell(3, cStagedListModel::Account), u"Girokonto → Sparkonto"_s);
    }

    void TakesDuplicatesAllTheSame()
    {
        cPage page;
        page.ImportFixture();
        page.Review.Files().ImportFiles({fixture}, page.Progress);
        QVERIFY(page.Review.Files().LeftOut().at(1).startsWith(u"04.01.2026  ·  -650,00"));
        page.Review.Files().StageLeftOut({1, 0, 99});
        QCOMPARE(page.Review.Files().LeftOut().size(), 3);
        QCOMPARE(page.Review.View().CountText(), u"7 offen, 7 insgesamt"_s);
        page.Review.Files().StageLeftOut({0});
        QCOMPARE(page.Review.StartImportReview(0)->View().CountText(), u"3 offen, 3 insgesamt"_s); // one import
        page.Review.Files().DropLeftOut();
        QVERIFY(page.Review.Files().LeftOut().isEmpty());
    }

    void AsksOnceAboutEqualRows_data()
    {
        // leftOut: by the second reading of the files
        const cTestRows<eAnswer, int, int> row("answer", "staged", "leftOut");
        row("taken", eAnswer::Yes, 2, 4);
        row("left out", eAnswer::No, 1, 4);
    }

    // Two files overlap, and each has a ticket twice: that is one more row, asked about once.
    void AsksOnceAboutEqualRows()
    {
        QFETCH(const eAnswer, answer);
        cPage page;
        const cTestFile folder;
        const QStringList files{folder.Path(u"a.csv"_s), folder.Path(u"b.csv"_s)};
        for (const QString& file : files) {
            cTestFile::Write(file,
                             "IBAN;DE02100200300001234567\n\nBuchungstag;Verwendungszweck;Betrag\n"
                             "03.05.2026;Fahrkarte;-2,00\n03.05.2026;Fahrkarte;-2,00\n");
        }
        page.User.Answers = {answer};
        page.User.Choices = {u"Girokonto"_s};
        page.Review.Files().ImportFiles(files, page.Progress);
        QVERIFY(page.User.Asked.constFirst().contains(u"03.05.2026  ·  -2,00"));
        QTEST(static_cast<int>(page.Data.GetImportEntries().size()), "staged");
        page.User.Asked.clear();
        page.Review.Files().ImportFiles(files, page.Progress);
        QCOMPARE(page.User.Asked, QStringList());
        QTEST(static_cast<int>(page.Data.GetImportEntries().size()), "staged");
        QTEST(static_cast<int>(page.Review.Files().LeftOut().size()), "leftOut");
    }

    void BooksWhatTheUserChose()
    {
        cPage page;
        page.Review.View().SetOpenOnly(false);
        page.ImportFixture();
        cStagedListModel& rows = page.Review.Rows();
        const QList<int> first{rows.IdAt(rows.index(0, 0))};
        QVERIFY(page.Review.Choose(first, u"freizeit; geschenke"_s, {}));
        QVERIFY(!page.Review.Choose(first, u"Unbekannt"_s, {}));
        QVERIFY(!page.Review.Choose(first, {}, u"manchmal"_s));
        QCOMPARE(page.Cell(0, cStagedListModel::Reason), u"von Hand gewählt"_s);
        QSignalSpy entries(&page.Review, &cImportReview::EntriesChanged);
        page.Review.Book(page.AllIds(), page.Progress);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(page.Review.Summary(), QStringList(u"5 Umsätze gebucht, 4 neue Einträge."_s)); // a transfer takes two
        QCOMPARE(page.Data.CountEntries(), 4);
        QCOMPARE(page.Cell(0, cStagedListModel::State), u"gebucht"_s);
        QCOMPARE(page.Cell(0, cStagedListModel::Category), u"Freizeit; Geschenke"_s);
        QVERIFY(!rows.flags(rows.index(0, cStagedListModel::Interval)).testFlag(Qt::ItemIsEditable));
        page.Review.View().SetOpenOnly(true);
        QCOMPARE(rows.rowCount(), 0);
        QVERIFY(page.Review.View().EmptyHint().startsWith(u"Alle Umsätze sind gebucht"));
        QVERIFY(page.Settings->GetBool(modSettingKey::HideBooked));
    }

    // The number of a row that is gone comes again.
    void ForgetsTheChoiceForARowThatIsAnotherOne()
    {
        cPage page;
        page.ImportFixture();
        page.AddRow(u"Geschenk"_s);
        const int last = page.AllIds().last();
        QVERIFY(page.Review.Choose({last}, u"Freizeit; Geschenke"_s, {}));
        QVERIFY(page.Data.DeleteImport(last));
        page.AddRow(u"etwas ganz anderes"_s);
        QCOMPARE(page.AllIds().last(), last);
        QCOMPARE(page.Cell(5, cStagedListModel::Reason), u"keine Regel passt"_s);
    }

    void AsksAgainBeforeBooking()
    {
        cPage page;
        page.Review.Files().ImportFiles({fixture}, page.Progress); // the user gives up on both questions
        QCOMPARE(page.Cell(0, cStagedListModel::Account), u"1234567 (kein Konto)"_s);
        page.User.Choices = {u"Girokonto"_s, std::nullopt};
        page.User.Decisions = {1}; // without its account the other half of the transfer is not sure
        page.Review.Book(page.AllIds(), page.Progress);
        QCOMPARE(page.Data.CountEntries(), 4);
        QCOMPARE(page.Review.Summary().last(),
                 u"Die Kontonummer 7654321 hat noch kein Konto; ihre Umsätze werden nicht gebucht."_s);
    }

    void DeletesAfterAQuestion()
    {
        cPage page;
        QVERIFY(page.Review.View().IsOpenOnly());
        page.Review.View().SetOpenOnly(false);
        page.ImportFixture();
        page.Review.Book({page.AllIds().first()}, page.Progress);
        page.Review.Delete(page.AllIds());
        QCOMPARE(page.Review.Rows().rowCount(), 5);
        page.User.Answers = {eAnswer::Yes};
        page.Review.Delete(page.AllIds());
        QVERIFY(page.User.Asked.last().contains(u"gebuchte Einträge bleiben bestehen"));
        QCOMPARE(page.Review.Rows().rowCount(), 0);
        QCOMPARE(page.Data.CountEntries(), 1);
    }

    void FiltersAndSorts_data()
    {
        const cTestRows<QString, int, QStringList> row("filter", "column", "names");
        const QString rewe = u"REWE Markt Hohenfels"_s;
        const QString rent = u"Hausverwaltung Tannert  und Sohn"_s;
        const QString work = u"Werkzeugbau Ammersbek GmbH"_s;
        const QString own = u"Jonte Sandmeier"_s;
        row("by amount", {}, cStagedListModel::Amount, {rent, own, rewe, own, work});
        row("by name", {}, cStagedListModel::Counterparty, {rent, own, own, rewe, work});
        row("by proposal", {}, cStagedListModel::Category, {own, own, work, rewe, rent});
        row("umlaut as typed", u"rücklage"_s, cStagedListModel::Date, {own, own});
        row("two words", u"miete linden"_s, cStagedListModel::Date, {rent});
        row("amount", u"2.410,55"_s, cStagedListModel::Date, {work});
        row("nothing", u"xyz"_s, cStagedListModel::Date, {});
    }

    void FiltersAndSorts()
    {
        QFETCH(QString, filter);
        QFETCH(int, column);
        cPage page;
        page.ImportFixture();
        page.Review.View().SetFilter(filter);
        page.Review.Rows().sort(column, Qt::AscendingOrder);
        QStringList names;
        for (int row = 0; row < page.Review.Rows().rowCount(); ++row) {
            names.append(page.Cell(row, cStagedListModel::Counterparty));
        }
        QTEST(names, "names");
    }

    void OneCategoryForMany()
    {
        cPage page;
        page.ImportFixture();
        page.Review.Book({page.AllIds().first()}, page.Progress);
        page.Review.View().SetOpenOnly(false);
        const QList<int> ids = page.AllIds().first(3);
        QCOMPARE(page.Review.ChoiceTitle(ids), u"Kategorie für 2 Umsätze"_s); // one of them is booked
        QVERIFY(!page.Review.Choose(ids, u"Unbekannt"_s, {}));
        QVERIFY(page.Review.Choose(ids, u"freizeit; geschenke"_s, u"Jährlich"_s));
        QCOMPARE(page.Cell(0, cStagedListModel::Category), u"Haushalt; Lebensmittel"_s);
        for (const int row : {1, 2}) {
            QCOMPARE(page.Cell(row, cStagedListModel::Category), u"Freizeit; Geschenke"_s);
            QCOMPARE(page.Cell(row, cStagedListModel::Interval), u"Jährlich"_s);
        }
    }

    // It would make the series begin earlier, but for the category.
    void OtherCategoryKeepsTheInterval()
    {
        cPage page;
        page.ImportFixture();
        for (const int month : {5, 4}) {
            const int id = page.Stage(u"1234567"_s, QDate(2026, month, 2), -65000, u"Miete Tann"_s).ID;
            page.Review.Refresh();
            QVERIFY(page.Review.Choose({id}, month == 4 ? u"Freizeit; Geschenke"_s : u"Wohnung; Miete"_s, {}));
            page.Review.Book({id}, page.Progress);
        }
        QCOMPARE(page.Data.GetSeries().size(), 2);
    }

    void AcceptsWhatIsCertain()
    {
        cPage page;
        page.ImportFixture();
        page.AddRow(u"Unbekannt GmbH"_s);
        page.Review.AcceptProposals(page.Progress); // the user says no
        QCOMPARE(page.User.Asked.last(),
                 u"5 der gezeigten Umsätze haben einen sicheren Vorschlag und werden neu gebucht.\nOffen "
                 "bleiben: 1 ohne passenden Vorschlag.\nSoll das so geschehen?"_s);
        QCOMPARE(page.Data.CountEntries(), 0);
        page.Review.View().SetFilter(u"rewe"_s);
        page.User.Answers = {eAnswer::Yes};
        page.Review.AcceptProposals(page.Progress);
        QCOMPARE(page.Data.CountEntries(), 1); // only what is shown
        page.Review.View().SetFilter({});
        page.User.Answers = {eAnswer::Yes};
        page.Review.AcceptProposals(page.Progress);
        QCOMPARE(page.Review.View().CountText(), u"1 offen, 6 insgesamt"_s);
        QVERIFY(page.Data.Journal().Undo()); // all of it is one step
        QCOMPARE(page.Data.CountEntries(), 1);
        page.Review.Refresh();
        page.Review.View().SetFilter(u"unbekannt"_s);
        page.Review.AcceptProposals(page.Progress);
        QVERIFY(page.User.Shown.last().startsWith(u"Keiner der gezeigten Umsätze hat einen sicheren Vorschlag."));
    }

    void ShowsWhatIsToBeDone()
    {
        cPage page;
        page.ImportFixture();
        page.AddRow(u"Unbekannt GmbH"_s);
        page.Review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Plan));
        cStagedListModel& rows = page.Review.Rows();
        QStringList groups;
        for (int group = 0; group < rows.rowCount(); ++group) {
            groups.append(rows.index(group, 0).data().toString());
        }
        // The transfer between own accounts needs no look.
        QCOMPARE(groups, QStringList({u"schon im Buch  (2)"_s, u"sicher  (3)"_s, u"bitte ansehen  (1)"_s}));
    }

    // What was chosen for a row takes it to another group; how the list is shown comes back under its name.
    void GroupsByCategoryAndKeepsThatUnderAName()
    {
        cPage page;
        page.ImportFixture();
        cStagedChoice& view = page.Review.View();
        cStagedListModel& rows = page.Review.Rows();
        const int byCategory = static_cast<int>(modStagedGroup::eGrouping::Category);
        view.SetGrouping(byCategory);
        const QModelIndex first = rows.index(0, 0, rows.index(0, 0));
        QVERIFY(page.Review.Choose({rows.IdAt(first)}, u"Freizeit; Geschenke"_s, {}));
        const QModelIndex gifts = rows.HeadNamed(u"Freizeit; Geschenke"_s);
        QCOMPARE(rows.rowCount(gifts), 1);
        QCOMPARE(view.GroupCategory(rows.index(0, 0, gifts)), u"Freizeit; Geschenke"_s);
        page.User.Choices = {u"Nach | Kategorie"_s};
        view.SetOpenOnly(false);
        view.SetFilter(u"a|b"_s);
        view.SaveLayout(u"0,10,1|s"_s);
        QVERIFY(view.Keep());
        view.SetOpenOnly(true);
        view.SetGrouping(0);
        QVERIFY(view.GroupCategory(rows.index(0, 0)).isEmpty());
        view.SetFilter({});
        view.SaveLayout({});
        view.ShowKept(static_cast<int>(view.KeptNames().indexOf(u"Nach | Kategorie"_s)));
        QCOMPARE(view.Grouping(), byCategory);
        QCOMPARE(view.Filter(), u"a|b"_s);
        QCOMPARE(view.Layout(), u"0,10,1|s"_s);
        QVERIFY(!view.IsOpenOnly() && !view.IsUncategorisedOnly());
    }

    // What nobody knew can be found, before it was booked and after that.
    void FindsWhatHasNoCategory()
    {
        cPage page;
        page.ImportFixture();
        page.AddRow(u"Unbekannt GmbH"_s);
        const int id = page.AllIds().last();
        page.Review.View().SetUncategorisedOnly(true);
        QCOMPARE(page.AllIds(), QList<int>{id});
        page.Review.Book({id}, page.Progress);
        QCOMPARE(page.AllIds(), QList<int>{id}); // although booked rows are hidden
        QSignalSpy entries(&page.Review, &cImportReview::EntriesChanged);
        QVERIFY(!page.Review.Choose({id}, u"Unbekannt"_s, {}));
        QVERIFY(page.Review.Summary().value(0).startsWith(u"Die Kategorie 'Unbekannt' gibt es nicht."_s));
        QVERIFY(page.Review.Choose({id}, u"freizeit; geschenke"_s, {}));
        QCOMPARE(entries.size(), 1);
        QCOMPARE(page.Data.GetEntries({}).value(0).EntryCategory, u"Freizeit; Geschenke"_s);
        QVERIFY(page.AllIds().isEmpty());
        QVERIFY(page.Data.Journal().Undo());
        QCOMPARE(page.Data.GetEntries({}).value(0).EntryCategory, u"Allgemein"_s);
        const std::unique_ptr<cManyChange> change = page.Review.StartChange({id});
        QVERIFY(change != nullptr);
        QCOMPARE(change->Save({.Description = u"Nachgetragen"_s}), cManyChange::eSaved::Saved);
        page.Review.FollowEntries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(page.Data.GetEntries({}).value(0).EntryDescription, u"Nachgetragen"_s);
        cEntryItem part = page.Data.GetEntries({}).value(0);
        modSplit::SetGroup(part, part.ID);
        QVERIFY(page.Data.ChangeEntry(part) && page.Data.AddNewEntry(part));
        QCOMPARE(page.Review.StartChange({id})->Count(), 2); // the whole purchase
        page.Review.View().SetUncategorisedOnly(false);
        QVERIFY(page.Review.StartChange({id, page.AllIds().first()}) == nullptr); // one of them has no entry yet
    }

    void EditsAndBooks()
    {
        cPage page;
        page.ImportFixture();
        const int id = page.AllIds().first();
        cEntryFields shown;
        bool isSaving = false;
        connect(&page.Review, &cImportReview::EditorWanted, this,
                [&](cEntryEditor& editor, const cEntryFields& fields) {
                    shown = fields;
                    cEntryFields changed = fields;
                    changed.Description = u"Wocheneinkauf"_s;
                    QCOMPARE(isSaving ? editor.Save(changed) : eEntrySaved::Saved, eEntrySaved::Saved);
                });
        page.Review.EditAndBook({id}); // the window is closed again
        QCOMPARE(QStringList({shown.Amount, shown.Category, shown.Account, shown.Type}),
                 QStringList({u"23,10"_s, u"Haushalt; Lebensmittel"_s, u"Girokonto"_s, modWord::Ausgabe}));
        QCOMPARE(page.Data.CountEntries(), 0);
        isSaving = true;
        page.Review.EditAndBook({id});
        const cEntryItem entry = page.Data.GetEntries({}).value(0);
        QCOMPARE(entry.EntryDescription, u"Wocheneinkauf"_s);
        QCOMPARE(page.Data.GetImportEntries().constFirst().ImportAssignedEntry, entry.ID);
        QVERIFY(page.Data.Journal().Undo()); // entry and assignment are one step
        QVERIFY(!page.Data.GetImportEntries().constFirst().ImportAssigned);
        QCOMPARE(page.Data.CountEntries(), 0);
    }

    void AsksBeforeBookingTwice()
    {
        cPage page;
        page.ImportFixture();
        cImportEntry rewe = page.Data.GetImportEntries().constFirst();
        const int first = rewe.ID;
        rewe.ImportPurpose = u"Kartenzahlung 4711"_s; // the same in another file
        QVERIFY(page.Data.AddNewImportEntry(rewe));
        page.Review.Refresh();
        const int second = page.Data.GetImportEntries().constLast().ID;
        QCOMPARE(page.Cell(0, cStagedListModel::State), u"doppelt?"_s);
        QVERIFY(page.Cell(0, cStagedListModel::Reason).startsWith(u"gleicher Tag, Betrag und"));
        page.User.Answers = {eAnswer::Cancel};
        page.Review.Book({second}, page.Progress);
        QVERIFY(page.User.Asked.last().contains(u"noch einen, der derselbe sein kann"));
        QCOMPARE(page.Data.CountEntries(), 0);
        page.User.Answers = {eAnswer::Yes};
        page.Review.Book({first, second}, page.Progress);
        QCOMPARE(page.Data.CountEntries(), 1); // one of the two
        QCOMPARE(page.Cell(0, cStagedListModel::State), u"doppelt?"_s);
        page.User.Answers = {eAnswer::No};
        page.Review.Book({second}, page.Progress);
        QCOMPARE(page.Data.CountEntries(), 2);
    }

    void AWindowForOneImport()
    {
        cPage page;
        QVERIFY(page.Review.StartImportReview() == nullptr);
        page.AddRow(u"Von früher"_s);
        page.ImportFixture();
        QVERIFY(page.Review.StartImportReview(1) == nullptr); // nobody knows with which file it came
        const std::unique_ptr<cImportReview> window = page.Review.StartImportReview();
        QCOMPARE(window->View().CountText(), u"5 offen, 5 insgesamt"_s);
        const int id = window->Rows().OpenIds().first();
        QVERIFY(window->Choose({id}, u"Freizeit; Geschenke"_s, {}));
        page.Review.Refresh();
        QCOMPARE(page.Review.Rows().IndexOf(id).siblingAtColumn(cStagedListModel::Category).data().toString(),
                 u"Freizeit; Geschenke"_s);
        QSignalSpy entries(&page.Review, &cImportReview::EntriesChanged);
        window->Book({id}, page.Progress);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(page.Review.View().CountText(), u"5 offen, 6 insgesamt"_s);
        QCOMPARE(page.Review.Summary(), window->Summary());
    }

    void KeepsWhatIsShown()
    {
        cPage page;
        page.ImportFixture();
        cStagedChoice& view = page.Review.View();
        view.SetGrouping(1);
        view.SetOldHidden(true);
        view.SetTitleShown(false);
        QVERIFY(page.Settings->GetBool(modSettingKey::HideOld));
        QVERIFY(page.Settings->GetBool(modSettingKey::HideTitle));
        cImportReview other(page.Tools);
        QCOMPARE(other.View().Grouping(), 1);
        QVERIFY(other.View().IsOldHidden() && !other.View().IsTitleShown());
        view.SetGrouping(99);
        QCOMPARE(view.Grouping(), 1);
    }

    void SaysWhyAFileIsRefused()
    {
        cPage page;
        const cTestFile folder;
        cTestFile::Write(folder.Path(u"auszug.pdf"_s), "%PDF");
        page.Review.Files().ImportFiles({folder.Path(u"auszug.pdf"_s)}, page.Progress);
        QVERIFY(page.User.Shown.value(0).startsWith(u"auszug.pdf\nDieses Format kann nicht eingelesen werden"));
        QVERIFY(page.Review.Summary().first().startsWith(u"auszug.pdf: nicht eingelesen."));
    }
};

TEST_CLASS(testImportReview, QCoreApplication)
#include "testImportReview.moc"
