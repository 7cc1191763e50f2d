#include "base/cProgress.h"
#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryEditor.h"
#include "views/look/modMoneyTone.h"
#include "views/sheet/cManyChange.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cLeftOutList.h"
#include "views/statement/cStatementFiles.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fixture = QStringLiteral(TEST_DATA "/mt940/giro.sta");

struct cPage : cTestBook
{
    cPage() { Review.View().SetGrouping(0); } // most of it is about rows, whatever their group

    // The giro statement with both account numbers assigned.
    void ImportFixture()
    {
        User.Choices = {u"Girokonto"_s, u"Sparkonto"_s};
        Review.Files().ImportFiles({fixture}, Progress);
    }

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
    void init() { m_page.emplace(); }

    // A file in rows and columns that does not say whose it is.
    void AsksForTheNumberOnce()
    {
        const QString file = QStringLiteral(TEST_DATA "/csv/consors.csv");
        m_page->User.Choices = {std::nullopt};
        m_page->Review.Files().ImportFiles({file}, m_page->Progress);
        QCOMPARE(m_page->User.LastChoice.Proposal, u"Girokonto"_s);
        QCOMPARE(m_page->User.Shown.size(), 1); // given up: nothing is read, and the reason is shown
        QCOMPARE(m_page->Data.GetImportEntries().size(), 0);
        m_page->User.Choices = {u" 4711 "_s, u"Girokonto"_s};
        m_page->Review.Files().ImportFiles({file}, m_page->Progress);
        QVERIFY(
            m_page->User.Asked.contains(u"consors.csv\nEs muss eine Kontonummer eingegeben werden, um die Daten einem "
                                        "Konto zuzuordnen."_s));
        QCOMPARE(m_page->Data.GetImportEntries().value(0).ImportAccount, u"4711"_s);
        m_page->User.Asked.clear();
        m_page->Review.Files().ImportFiles({file}, m_page->Progress);
        QCOMPARE(m_page->User.Asked, QStringList());
        QCOMPARE(m_page->Review.Files().LeftOut().Texts().size(), 1);
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
        const QString path =
            m_page->WriteFile(u"a.qif"_s,
                              "!Account\nNGirokonto\n^\n!Type:Bank\nD30.1.26\nT-5\nPHolle\nLHobby:Zug\n^\n"
                              "D31.1.26\nT-7\nPHolle\nL[Depot]\n^\n");
        m_page->User.Answers = {answer};
        m_page->User.Usual = eAnswer::Yes;
        m_page->Review.Files().ImportFiles({path}, m_page->Progress);
        QCOMPARE(m_page->User.Asked.value(0),
                 u"Noch nicht im Buch sind aus der Datei: 1 Kategorie, 1 Konto\n\nDepot\nHobby; Zug\n\n"
                 "Sollen sie angelegt werden?"_s);
        m_page->Review.AcceptProposals(m_page->Progress);
        QStringList entries;
        for (const cEntryItem& entry : m_page->Data.GetEntries({})) {
            entries.append(QStringList{entry.EntryType, entry.EntryCategory, entry.EntryAccountMove}.join(u' '));
        }
        QTEST(entries, "entries");
    }

    // Who paid in another book could be neither chosen nor looked for in this one.
    void PayersOfAnotherBookBecomePersons()
    {
        m_page->Settings->Set(modSettingKey::People, u"Ben"_s);
        const QString path =
            m_page->WriteFile(u"a.csv"_s,
                              "Gruppe;Datum;Buchungsart;Kategorie;Konto;Zielkonto;Beschreibung;Bezahlt von;Betrag\r\n"
                              "2026;30.01.2026;Ausgabe;Haushalt;Girokonto;;Markt;Anna;-5,00\r\n"
                              "2026;31.01.2026;Ausgabe;Haushalt;Girokonto;;Markt;ben;-7,00\r\n");
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.Files().ImportFiles({path}, m_page->Progress);
        m_page->Review.AcceptProposals(m_page->Progress);
        QVERIFY(m_page->Review.Summary().contains(u"Als Personen angelegt: Anna"_s));
        QCOMPARE(m_page->Settings->Get(modSettingKey::People), modPeople::ToText({u"Ben"_s, u"Anna"_s}));
        QCOMPARE(modPeople::Payer(m_page->Data.GetEntries({}).constLast()), u"Ben"_s);
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Settings->Get(modSettingKey::People), u"Ben"_s);
    }

    // Older rows of an account that the book has under this name would count on top of its start balance.
    void AsksForTheStartOfAnotherBook()
    {
        const QString path =
            m_page->WriteFile(u"a.qif"_s, "!Account\nNgirokonto\n^\n!Type:Bank\nD30.1.26\nT-5\nPHolle\nLAuto\n^\n");
        QVERIFY(m_page->Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 3, 1)));
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.Files().ImportFiles({path}, m_page->Progress);
        QVERIFY(m_page->User.Asked.join(u'|').contains(u"Als Stand vom 01.03.2026"));
        QCOMPARE(m_page->Data.GetStartGuthaben(u"Girokonto"_s).value_or(cEntryItem()).EntryValue, 100500);
    }

    // The user may have the rest of a statement that is refused for lines nobody needs.
    void OffersTheRestOfAStatement()
    {
        const QString path = m_page->WriteFile(
            u"a.sta"_s, ":20:A\n:25:1\n:60F:C260101EUR0,00\n:86:Vorwort\n:61:260101D1,00NTRF\n:86:x\n-\n");
        m_page->User.Decisions = {1, 0};
        m_page->Review.Files().ImportFiles({path}, m_page->Progress);
        QCOMPARE(m_page->User.LastDecision.Options.value(0), u"&Ohne diese Zeilen lesen"_s);
        QCOMPARE(m_page->Data.GetImportEntries().size(), 0);
        QVERIFY(m_page->User.Shown.isEmpty()); // the question has said it
        m_page->Review.Files().ImportFiles({path}, m_page->Progress);
        QCOMPARE(m_page->Data.GetImportEntries().size(), 1);
        QVERIFY(m_page->Review.Summary().join(u' ').contains(u"übergangen: Vorwort"));
    }

    // Files can be dropped while others are read, before the progress box stands in the way.
    void ReadsFilesThatComeMeanwhileAfterwards()
    {
        cStatementFiles& files = m_page->Review.Files();
        bool isFirst = true;
        connect(&files, &cStatementFiles::FileStaged, this, [&] {
            if (std::exchange(isFirst, false)) {
                files.ImportFiles({fixture}, m_page->Progress);
                QCOMPARE(m_page->Review.Summary(), QStringList());
            }
        });
        m_page->ImportFixture();
        QCOMPARE(m_page->Data.GetImportEntries().size(), 5);
        QCOMPARE(files.LeftOut().Texts().size(), 5);
        QVERIFY(m_page->Review.Summary().constFirst().contains(u"0 neu"_s));
    }

    void ImportsWithItsQuestions()
    {
        QVERIFY(m_page->Review.View().EmptyHint().startsWith(u"Ziehen Sie einen Kontoauszug"));
        QSignalSpy rows(&m_page->Review, &cImportReview::RowsChanged);
        m_page->User.Answers = {eAnswer::No, eAnswer::No};
        m_page->ImportFixture();
        QVERIFY(!rows.isEmpty());
        QCOMPARE(m_page->User.Asked.first(2),
                 (QStringList{u"Zu welchem Konto gehören die Umsätze der Kontonummer 1234567?\n"
                              "Ein neuer Name legt ein Konto an."_s,
                              u"Zu welchem Konto gehören die Umsätze der Kontonummer 7654321?\n"
                              "Ein neuer Name legt ein Konto an."_s}));
        QCOMPARE(m_page->Review.Summary(),
                 QStringList(u"giro.sta: 6 gelesen, 5 neu, 1 ohne Betrag, Schlusssaldo 5.200,00"_s + space + u'€'));
        QCOMPARE(m_page->Review.View().CountText(), u"5 offen, 5 insgesamt"_s);
        m_page->Review.Files().ImportFiles({fixture}, m_page->Progress);
        QCOMPARE(m_page->User.Asked.size(), 4); // nothing more than the two start balances
        QCOMPARE(m_page->Review.Files().LeftOut().Texts().size(), 5);
        // Older rows would count on top of the start balance.
        QVERIFY(m_page->Data.SetStartGuthaben(u"Girokonto"_s, 500000, QDate(2026, 1, 1)));
        const QString older = m_page->WriteFile(
            u"older.sta"_s, ":20:A\n:25:10020030/1234567\n:60F:C251130EUR1,00\n:61:251215C9,00NTRF\n-\n");
        m_page->Review.Files().ImportFiles({older}, m_page->Progress);
        QCOMPARE(m_page->User.Asked.size(), 5);
        QVERIFY(m_page->User.Asked.constLast().contains(u"Startguthaben von 5.000,00"));
    }

    void ShowsRows()
    {
        m_page->ImportFixture();
        QStringList groceries;
        for (int column = 0; column < cStagedListModel::ColumnCount; ++column) {
            groceries.append(m_page->Cell(0, column));
        }
        QCOMPARE(groceries.join(u'|'),
                 u"offen|03.01.2026|REWE Markt Hohenfels|REWE SAGT DANKE|-23,10\u00A0€|Girokonto|"
                 "Haushalt; Lebensmittel|Einmalig|Regel: rewe"_s);
        QCOMPARE(m_page->Review.Rows().index(0, 0).data(cStagedListModel::ToneRole).value<eMoneyTone>(),
                 eMoneyTone::Expense);
        QCOMPARE(m_page->Review.Rows().index(2, 0).data(cStagedListModel::ToneRole).value<eMoneyTone>(),
                 eMoneyTone::Income);
        QCOMPARE(m_page->Cell(3, cStagedListModel::Account), u"Girokonto → Sparkonto"_s);
    }

    void TakesDuplicatesAllTheSame()
    {
        m_page->ImportFixture();
        m_page->Review.Files().ImportFiles({fixture}, m_page->Progress);
        QVERIFY(m_page->Review.Files().LeftOut().Texts().at(1).startsWith(u"04.01.2026  ·  -650,00"));
        m_page->Review.Files().LeftOut().Stage({1, 0, 99});
        QCOMPARE(m_page->Review.Files().LeftOut().Texts().size(), 3);
        QCOMPARE(m_page->Review.View().CountText(), u"7 offen, 7 insgesamt"_s);
        m_page->Review.Files().LeftOut().Stage({0});
        QCOMPARE(m_page->Review.StartImportReview(0)->View().CountText(), u"3 offen, 3 insgesamt"_s); // one import
        m_page->Review.Files().LeftOut().Drop();
        QVERIFY(m_page->Review.Files().LeftOut().Texts().isEmpty());
    }

    void AsksOnceAboutEqualRows_data()
    {
        // leftOut: by the second reading of the files
        const cTestRows<eAnswer, int, int> row("answer", "staged", "leftOut");
        row("taken", eAnswer::Yes, 2, 4);
        row("left out", eAnswer::No, 1, 3);
    }

    // Two files overlap, and each has a ticket twice: that is one more row, asked about once.
    void AsksOnceAboutEqualRows()
    {
        QFETCH(const eAnswer, answer);
        const QByteArray tickets = "IBAN;DE02100200300001234567\n\nBuchungstag;Verwendungszweck;Betrag\n"
                                   "03.05.2026;Fahrkarte;-2,00\n03.05.2026;Fahrkarte;-2,00\n";
        const QStringList files{m_page->WriteFile(u"a.csv"_s, tickets), m_page->WriteFile(u"b.csv"_s, tickets)};
        m_page->User.Answers = {answer};
        m_page->User.Choices = {u"Girokonto"_s};
        m_page->Review.Files().ImportFiles(files, m_page->Progress);
        QVERIFY(m_page->User.Asked.constFirst().contains(u"03.05.2026  ·  -2,00"));
        QTEST(static_cast<int>(m_page->Data.GetImportEntries().size()), "staged");
        m_page->User.Asked.clear();
        m_page->Review.Files().ImportFiles(files, m_page->Progress);
        QCOMPARE(m_page->User.Asked, QStringList());
        QTEST(static_cast<int>(m_page->Data.GetImportEntries().size()), "staged");
        QTEST(static_cast<int>(m_page->Review.Files().LeftOut().Texts().size()), "leftOut");
    }

    void BooksWhatTheUserChose()
    {
        m_page->Review.View().SetOpenOnly(false);
        m_page->ImportFixture();
        cStagedListModel& rows = m_page->Review.Rows();
        const QList<int> first{rows.IdAt(rows.index(0, 0))};
        QVERIFY(m_page->Review.Choose(first, u"freizeit; geschenke"_s, {}));
        QVERIFY(!m_page->Review.Choose(first, u"Unbekannt"_s, {}));
        QVERIFY(!m_page->Review.Choose(first, {}, u"manchmal"_s));
        QCOMPARE(m_page->Cell(0, cStagedListModel::Reason), u"von Hand gewählt"_s);
        QSignalSpy entries(&m_page->Review, &cImportReview::EntriesChanged);
        m_page->Review.Book(m_page->AllIds(), m_page->Progress);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(m_page->Review.Summary(),
                 QStringList(u"5 Umsätze gebucht, 4 neue Einträge."_s)); // a transfer takes two
        QCOMPARE(m_page->Data.CountEntries(), 4);
        QCOMPARE(m_page->Cell(0, cStagedListModel::State), u"gebucht"_s);
        QCOMPARE(m_page->Cell(0, cStagedListModel::Category), u"Freizeit; Geschenke"_s);
        QVERIFY(!rows.flags(rows.index(0, cStagedListModel::Interval)).testFlag(Qt::ItemIsEditable));
        m_page->Review.View().SetOpenOnly(true);
        QCOMPARE(rows.rowCount(), 0);
        QVERIFY(m_page->Review.View().EmptyHint().startsWith(u"Alle Umsätze sind gebucht"));
        QVERIFY(m_page->Settings->GetBool(modSettingKey::HideBooked));
    }

    void AsksAgainBeforeBooking()
    {
        m_page->Review.Files().ImportFiles({fixture}, m_page->Progress); // the user gives up on both questions
        QCOMPARE(m_page->Cell(0, cStagedListModel::Account), u"1234567 (kein Konto)"_s);
        m_page->User.Choices = {u"Girokonto"_s, std::nullopt};
        m_page->User.Decisions = {1}; // without its account the other half of the transfer is not sure
        m_page->Review.Book(m_page->AllIds(), m_page->Progress);
        QCOMPARE(m_page->Data.CountEntries(), 4);
        QCOMPARE(m_page->Review.Summary().last(),
                 u"Die Kontonummer 7654321 hat noch kein Konto; ihre Umsätze werden nicht gebucht."_s);
    }

    void DeletesAfterAQuestion()
    {
        QVERIFY(m_page->Review.View().IsOpenOnly());
        m_page->Review.View().SetOpenOnly(false);
        m_page->ImportFixture();
        m_page->Review.Book({m_page->AllIds().first()}, m_page->Progress);
        m_page->Review.Delete(m_page->AllIds());
        QCOMPARE(m_page->Review.Rows().rowCount(), 5);
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.Delete(m_page->AllIds());
        QVERIFY(m_page->User.Asked.last().contains(u"gebuchte Einträge bleiben bestehen"));
        QCOMPARE(m_page->Review.Rows().rowCount(), 0);
        QCOMPARE(m_page->Data.CountEntries(), 1);
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
        m_page->ImportFixture();
        m_page->Review.View().SetFilter(filter);
        m_page->Review.Rows().sort(column, Qt::AscendingOrder);
        QStringList names;
        for (int row = 0; row < m_page->Review.Rows().rowCount(); ++row) {
            names.append(m_page->Cell(row, cStagedListModel::Counterparty));
        }
        QTEST(names, "names");
    }

    void OneCategoryForMany()
    {
        m_page->ImportFixture();
        m_page->Review.Book({m_page->AllIds().first()}, m_page->Progress);
        m_page->Review.View().SetOpenOnly(false);
        const QList<int> ids = m_page->AllIds().first(3);
        QCOMPARE(m_page->Review.ChoiceTitle(ids), u"Kategorie für 2 Umsätze"_s); // one of them is booked
        QVERIFY(!m_page->Review.Choose(ids, u"Unbekannt"_s, {}));
        QVERIFY(m_page->Review.Choose(ids, u"freizeit; geschenke"_s, u"Jährlich"_s));
        QCOMPARE(m_page->Cell(0, cStagedListModel::Category), u"Haushalt; Lebensmittel"_s);
        for (const int row : {1, 2}) {
            QCOMPARE(m_page->Cell(row, cStagedListModel::Category), u"Freizeit; Geschenke"_s);
            QCOMPARE(m_page->Cell(row, cStagedListModel::Interval), u"Jährlich"_s);
        }
    }

    // It would make the series begin earlier, but for the category.
    void OtherCategoryKeepsTheInterval()
    {
        m_page->ImportFixture();
        for (const int month : {5, 4}) {
            const int id = m_page->Stage(u"1234567"_s, QDate(2026, month, 2), -65000, u"Miete Tann"_s).ID;
            m_page->Review.Refresh();
            QVERIFY(m_page->Review.Choose({id}, month == 4 ? u"Freizeit; Geschenke"_s : u"Wohnung; Miete"_s, {}));
            m_page->Review.Book({id}, m_page->Progress);
        }
        QCOMPARE(m_page->Data.GetSeries().size(), 2);
    }

    void AcceptsWhatIsCertain()
    {
        m_page->ImportFixture();
        m_page->AddRow(u"Unbekannt GmbH"_s);
        m_page->Review.AcceptProposals(m_page->Progress); // the user says no
        QCOMPARE(m_page->User.Asked.last(),
                 u"5 der gezeigten Umsätze haben einen sicheren Vorschlag und werden neu gebucht.\nOffen "
                 "bleiben: 1 ohne passenden Vorschlag.\nSoll das so geschehen?"_s);
        QCOMPARE(m_page->Data.CountEntries(), 0);
        m_page->Review.View().SetFilter(u"rewe"_s);
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.AcceptProposals(m_page->Progress);
        QCOMPARE(m_page->Data.CountEntries(), 1); // only what is shown
        m_page->Review.View().SetFilter({});
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.AcceptProposals(m_page->Progress);
        QCOMPARE(m_page->Review.View().CountText(), u"1 offen, 6 insgesamt"_s);
        QVERIFY(m_page->Data.Journal().Undo()); // all of it is one step
        QCOMPARE(m_page->Data.CountEntries(), 1);
        m_page->Review.Refresh();
        m_page->Review.View().SetFilter(u"unbekannt"_s);
        m_page->Review.AcceptProposals(m_page->Progress);
        QVERIFY(m_page->User.Shown.last().startsWith(u"Keiner der gezeigten Umsätze hat einen sicheren Vorschlag."));
    }

    void ShowsWhatIsToBeDone()
    {
        m_page->ImportFixture();
        m_page->AddRow(u"Unbekannt GmbH"_s);
        m_page->Review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Plan));
        cStagedListModel& rows = m_page->Review.Rows();
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
        m_page->ImportFixture();
        cStagedChoice& view = m_page->Review.View();
        cStagedListModel& rows = m_page->Review.Rows();
        const int byCategory = static_cast<int>(modStagedGroup::eGrouping::Category);
        view.SetGrouping(byCategory);
        const QModelIndex first = rows.index(0, 0, rows.index(0, 0));
        QVERIFY(m_page->Review.Choose({rows.IdAt(first)}, u"Freizeit; Geschenke"_s, {}));
        const QModelIndex gifts = rows.HeadNamed(u"Freizeit; Geschenke"_s);
        QCOMPARE(rows.rowCount(gifts), 1);
        QCOMPARE(view.GroupCategory(rows.index(0, 0, gifts)), u"Freizeit; Geschenke"_s);
        m_page->User.Choices = {u"Nach | Kategorie"_s};
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
        m_page->ImportFixture();
        m_page->AddRow(u"Unbekannt GmbH"_s);
        const int id = m_page->AllIds().last();
        m_page->Review.View().SetUncategorisedOnly(true);
        QCOMPARE(m_page->AllIds(), QList<int>{id});
        m_page->Review.Book({id}, m_page->Progress);
        QCOMPARE(m_page->AllIds(), QList<int>{id}); // although booked rows are hidden
        QSignalSpy entries(&m_page->Review, &cImportReview::EntriesChanged);
        QVERIFY(!m_page->Review.Choose({id}, u"Unbekannt"_s, {}));
        QVERIFY(m_page->Review.Summary().value(0).startsWith(u"Die Kategorie 'Unbekannt' gibt es nicht."_s));
        QVERIFY(m_page->Review.Choose({id}, u"freizeit; geschenke"_s, {}));
        QCOMPARE(entries.size(), 1);
        QCOMPARE(m_page->Data.GetEntries({}).value(0).EntryCategory, u"Freizeit; Geschenke"_s);
        QVERIFY(m_page->AllIds().isEmpty());
        QVERIFY(m_page->Data.Journal().Undo());
        QCOMPARE(m_page->Data.GetEntries({}).value(0).EntryCategory, u"Allgemein"_s);
        const std::unique_ptr<cManyChange> change = m_page->Review.StartChange({id});
        QVERIFY(change != nullptr);
        QCOMPARE(change->Save({.Description = u"Nachgetragen"_s}), cManyChange::eSaved::Saved);
        m_page->Review.FollowEntries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(m_page->Data.GetEntries({}).value(0).EntryDescription, u"Nachgetragen"_s);
        cEntryItem part = m_page->Data.GetEntries({}).value(0);
        modSplit::SetGroup(part, part.ID);
        QVERIFY(m_page->Data.ChangeEntry(part) && m_page->Data.AddNewEntry(part));
        QCOMPARE(m_page->Review.StartChange({id})->Count(), 2); // the whole purchase
        // as many rows as parts
        const int second = m_page->Stage({}, QDate(2026, 1, 2), -100, {}, modSplit::Group(part)).ID;
        QVERIFY(!m_page->Review.Choose({id, second}, u"Wohnung; Miete"_s, {})); // the user says no
        QVERIFY(m_page->User.Asked.constLast().startsWith(u"Ändern: 2 Einträge\n"_s));
        QVERIFY(m_page->Data.DeleteEntry(part.ID)); // the added one
        part = m_page->Data.GetEntries({}).value(0);
        part.EntryCategory = modWord::Startguthaben;
        QVERIFY(m_page->Data.ChangeEntry(part));
        QVERIFY(!m_page->Review.Choose({id}, u"Freizeit; Geschenke"_s, {}));
        QCOMPARE(m_page->Data.GetEntries({}).value(0).EntryCategory, modWord::Startguthaben);
        m_page->Review.View().SetUncategorisedOnly(false);
        QVERIFY(m_page->Review.StartChange({id, m_page->AllIds().first()}) == nullptr); // one of them has no entry yet
    }

    void EditsAndBooks()
    {
        m_page->ImportFixture();
        const int id = m_page->AllIds().first();
        cEntryFields shown;
        bool isSaving = false;
        connect(&m_page->Review, &cImportReview::EditorWanted, this,
                [&](cEntryEditor& editor, const cEntryFields& fields) {
                    shown = fields;
                    cEntryFields changed = fields;
                    changed.Description = u"Wocheneinkauf"_s;
                    QCOMPARE(isSaving ? editor.Save(changed) : eEntrySaved::Saved, eEntrySaved::Saved);
                });
        m_page->Review.EditAndBook({id}); // the window is closed again
        QCOMPARE(QStringList({shown.Amount, shown.Category, shown.Account, shown.Type}),
                 QStringList({u"23,10"_s, u"Haushalt; Lebensmittel"_s, u"Girokonto"_s, modWord::Ausgabe}));
        QCOMPARE(m_page->Data.CountEntries(), 0);
        isSaving = true;
        m_page->Review.EditAndBook({id});
        const cEntryItem entry = m_page->Data.GetEntries({}).value(0);
        QCOMPARE(entry.EntryDescription, u"Wocheneinkauf"_s);
        QCOMPARE(m_page->Data.GetImportEntries().constFirst().ImportAssignedEntry, entry.ID);
        QVERIFY(m_page->Data.Journal().Undo()); // entry and assignment are one step
        QVERIFY(!m_page->Data.GetImportEntries().constFirst().ImportAssigned);
        QCOMPARE(m_page->Data.CountEntries(), 0);
    }

    void AsksBeforeBookingTwice()
    {
        m_page->ImportFixture();
        cImportEntry rewe = m_page->Data.GetImportEntries().constFirst();
        const int first = rewe.ID;
        rewe.ImportPurpose = u"Kartenzahlung 4711"_s; // the same in another file
        QVERIFY(m_page->Data.AddNewImportEntry(rewe));
        m_page->Review.Refresh();
        const int second = m_page->Data.GetImportEntries().constLast().ID;
        QCOMPARE(m_page->Cell(0, cStagedListModel::State), u"doppelt?"_s);
        QVERIFY(m_page->Cell(0, cStagedListModel::Reason).startsWith(u"gleicher Tag, Betrag und"));
        m_page->User.Answers = {eAnswer::Cancel};
        m_page->Review.Book({second}, m_page->Progress);
        QVERIFY(m_page->User.Asked.last().contains(u"noch einen, der derselbe sein kann"));
        QCOMPARE(m_page->Data.CountEntries(), 0);
        m_page->User.Answers = {eAnswer::Yes};
        m_page->Review.Book({first, second}, m_page->Progress);
        QCOMPARE(m_page->Data.CountEntries(), 1); // one of the two
        QCOMPARE(m_page->Cell(0, cStagedListModel::State), u"doppelt?"_s);
        m_page->User.Answers = {eAnswer::No};
        m_page->Review.Book({second}, m_page->Progress);
        QCOMPARE(m_page->Data.CountEntries(), 2);
    }

    void AWindowForOneImport()
    {
        QVERIFY(m_page->Review.StartImportReview() == nullptr);
        m_page->AddRow(u"Von früher"_s);
        m_page->ImportFixture();
        QVERIFY(m_page->Review.StartImportReview(1) == nullptr); // nobody knows with which file it came
        const std::unique_ptr<cImportReview> window = m_page->Review.StartImportReview();
        QCOMPARE(window->View().CountText(), u"5 offen, 5 insgesamt"_s);
        const int id = window->Rows().OpenIds().first();
        QVERIFY(window->Choose({id}, u"Freizeit; Geschenke"_s, {}));
        m_page->Review.Refresh();
        QCOMPARE(m_page->Review.Rows().IndexOf(id).siblingAtColumn(cStagedListModel::Category).data().toString(),
                 u"Freizeit; Geschenke"_s);
        QSignalSpy entries(&m_page->Review, &cImportReview::EntriesChanged);
        window->Book({id}, m_page->Progress);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(m_page->Review.View().CountText(), u"5 offen, 6 insgesamt"_s);
        QCOMPARE(m_page->Review.Summary(), window->Summary());
    }

    void KeepsWhatIsShown()
    {
        m_page->ImportFixture();
        cStagedChoice& view = m_page->Review.View();
        view.SetGrouping(1);
        view.SetOldHidden(true);
        view.SetTitleShown(false);
        QVERIFY(m_page->Settings->GetBool(modSettingKey::HideOld));
        QVERIFY(m_page->Settings->GetBool(modSettingKey::HideTitle));
        cImportReview other(m_page->Tools);
        QCOMPARE(other.View().Grouping(), 1);
        QVERIFY(other.View().IsOldHidden() && !other.View().IsTitleShown());
        view.SetGrouping(99);
        QCOMPARE(view.Grouping(), 1);
    }

    void SaysWhyAFileIsRefused()
    {
        m_page->Review.Files().ImportFiles({m_page->WriteFile(u"auszug.pdf"_s, "%PDF")}, m_page->Progress);
        QVERIFY(m_page->User.Shown.value(0).startsWith(u"auszug.pdf\nDieses Format kann nicht eingelesen werden"));
        QVERIFY(m_page->Review.Summary().first().startsWith(u"auszug.pdf: nicht eingelesen."));
    }

private:
    std::optional<cPage> m_page;
};

TEST_CLASS(testImportReview, QCoreApplication)
#include "testImportReview.moc"
