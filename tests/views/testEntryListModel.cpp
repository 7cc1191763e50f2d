#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "support/cTestClass.h"
#include "support/cTestEntry.h"
#include "support/cTestRows.h"
#include "support/testFormat.h"
#include "views/list/cEntryListModel.h"
#include "views/list/cListLayout.h"
#include "views/list/modColumnWidth.h"

#include <QAbstractItemModelTester>

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItem Entry(int id, QDate day, const QString& category, qint64 cents, const QString& type = modWord::Ausgabe)
{
    const QString target = type == modWord::Umbuchung ? u"Sparkonto"_s : QString();
    cEntryItem entry =
        cTestEntry{.Day = day, .Cents = cents, .Category = category, .Type = type, .Target = target}.Make();
    entry.ID = id;
    return entry;
}

cEntryListModel::cContent Content()
{
    cEntryListModel::cContent content;
    content.Entries = {Entry(1, QDate(2026, 3, 1), u"Haushalt; Äpfel"_s, 500),
                       Entry(2, QDate(2025, 12, 29), u"Haushalt; Zwieback"_s, 300),
                       Entry(3, QDate(2026, 3, 1), u"Einkommen; Lohn / Gehalt"_s, 9000, modWord::Einnahme),
                       Entry(4, QDate(2026, 4, 1), u"Geldanlage"_s, 2000, modWord::Umbuchung),
                       Entry(5, QDate(2026, 1, 2), {}, 100)};
    content.Entries[1].EntryDescription = u"Café Größenwahn"_s;
    content.Entries[3].EntryInterval = u"Monatlich"_s;
    content.Entries[4].IsCorrected = true;
    content.Today = QDate(2026, 3, 15);
    return content;
}

QStringList Rows(const cEntryListModel& model, int column = cEntryListModel::Amount)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex top = model.index(row, 0);
        const QString name = model.EntryAt(top) == nullptr ? top.data().toString() + u'=' : QString();
        texts.append(name + model.index(row, column).data().toString().remove(u"\u00a0€"_s));
    }
    return texts;
}

} // namespace

class testEntryListModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_model.emplace(m_format.Format); }

    // Two of a series may lie on one day: each is found again by the day that was planned for it.
    void MovedOccurrences()
    {
        cEntryListModel::cContent content;
        content.Entries = {Entry(4, QDate(2026, 4, 1), u"Miete"_s, 2000),
                           Entry(4, QDate(2026, 4, 1), u"Miete"_s, 2000)};
        content.Entries[0].PlannedDate = QDate(2026, 3, 1);
        content.Entries[0].CorrectionComment = u"Laut Kontoauszug"_s;
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        QCOMPARE(m_model->IndexesOf({{4, QDate(2026, 3, 1)}}), QModelIndexList{m_model->index(0, 0)});
        QCOMPARE(m_model->IndexesOf({{4, QDate(2026, 4, 1)}}), QModelIndexList{m_model->index(1, 0)});
        QCOMPARE(m_model->KeyAt(m_model->index(0, 0)).Day, QDate(2026, 3, 1));
        QCOMPARE(m_model->index(0, 0).data(Qt::ToolTipRole).toString(),
                 u"Verschoben; geplant war der 01.03.2026.\nLaut Kontoauszug"_s);
        QVERIFY(!m_model->index(0, 0).data(cEntryListModel::CorrectedRole).toBool());
    }

    void Sorts_data()
    {
        const cTestRows<int, int, QStringList> row("column", "order", "amounts");
        row("date, equal days in their order", cEntryListModel::Date, Qt::AscendingOrder,
            {u"-3,00"_s, u"-1,00"_s, u"-5,00"_s, u"90,00"_s, u"20,00"_s});
        row("amount by its effect", cEntryListModel::Amount, Qt::AscendingOrder,
            {u"-5,00"_s, u"-3,00"_s, u"-1,00"_s, u"20,00"_s, u"90,00"_s});
        row("category in German order", cEntryListModel::Category, Qt::AscendingOrder,
            {u"-1,00"_s, u"90,00"_s, u"20,00"_s, u"-5,00"_s, u"-3,00"_s});
        row("category downwards", cEntryListModel::Category, Qt::DescendingOrder,
            {u"-3,00"_s, u"-5,00"_s, u"20,00"_s, u"90,00"_s, u"-1,00"_s});
    }

    void Sorts()
    {
        QFETCH(int, column);
        QFETCH(int, order);
        m_model->SetContent(Content(), {}, modWord::KeineGruppierung);
        m_model->sort(column, static_cast<Qt::SortOrder>(order));
        QTEST(Rows(*m_model), "amounts");
    }

    void Groups_data()
    {
        const cTestRows<QString, QStringList> row("grouping", "groups");
        row("day", u"Nach Datum"_s,
            {u"Montag, 29.12.2025  (1)=-3,00"_s, u"Freitag, 02.01.2026  (1)=-1,00"_s,
             u"Sonntag, 01.03.2026  (2)=85,00"_s, u"Mittwoch, 01.04.2026  (1)=0,00"_s});
        row("week across the turn of the year", u"Nach Woche"_s,
            {u"Woche 1/2026 ab 29.12.2025  (2)=-4,00"_s, u"Woche 9/2026 ab 23.02.2026  (2)=85,00"_s,
             u"Woche 14/2026 ab 30.03.2026  (1)=0,00"_s});
        row("month", u"Nach Monat"_s,
            {u"Dezember 2025  (1)=-3,00"_s, u"Januar 2026  (1)=-1,00"_s, u"März 2026  (2)=85,00"_s,
             u"April 2026  (1)=0,00"_s});
        row("main category", u"Nach Sparte"_s,
            {u"Keine Angabe  (1)=-1,00"_s, u"Einkommen  (1)=90,00"_s, u"Geldanlage  (1)=0,00"_s,
             u"Haushalt  (2)=-8,00"_s});
        row("category", u"Nach Kategorie"_s,
            {u"Keine Angabe  (1)=-1,00"_s, u"Einkommen; Lohn / Gehalt  (1)=90,00"_s, u"Geldanlage  (1)=0,00"_s,
             u"Haushalt; Äpfel  (1)=-5,00"_s, u"Haushalt; Zwieback  (1)=-3,00"_s});
        row("account", u"Nach Konto"_s, {u"Girokonto  (5)=81,00"_s});
        row("kind", u"Nach Buchungsart"_s,
            {u"Ausgabe  (3)=-9,00"_s, u"Einnahme  (1)=90,00"_s, u"Umbuchung  (1)=0,00"_s});
    }

    void Groups()
    {
        QFETCH(QString, grouping);
        m_model->SetContent(Content(), {}, grouping);
        QTEST(Rows(*m_model), "groups");
    }

    void Finds_data()
    {
        const cTestRows<QString, int> row("filter", "rows");
        row("without accents", u"cafe"_s, 1);
        row("umlaut spelled out", u"GROESSENWAHN"_s, 1);
        row("umlaut without dots", u"grossenwahn"_s, 1);
        row("umlaut at the start of a word being typed", u"äpf"_s, 1);
        row("every word", u"haushalt café"_s, 1);
        row("no entry has both", u"lohn café"_s, 0);
        row("amount", u"90,00"_s, 1);
        row("day", u"01.03.2026"_s, 2);
        row("part of a day", u".12.20"_s, 1);
        row("amount with its sign", u"-5,00"_s, 1);
        row("amount with its currency", u"90,00 €"_s, 1);
        row("kind", u"einnahme"_s, 1);
        row("both accounts of a transfer", u"giro sparkonto"_s, 1);
        row("interval", u"monatlich"_s, 1);
        row("not across two columns", u"äpfelgirokonto"_s, 0);
        row("only blanks", u"   "_s, 5);
    }

    void Finds()
    {
        QFETCH(QString, filter);
        QFETCH(int, rows);
        m_model->SetContent(Content(), filter, modWord::KeineGruppierung);
        QCOMPARE(m_model->rowCount(), rows);
        QCOMPARE(m_model->Sums().Count, rows);
        m_model->SetFilter({});
        QString typed;
        for (const QChar c : filter) { // letter by letter it comes to the same
            m_model->SetFilter(typed += c);
        }
        QCOMPARE(m_model->rowCount(), rows);
    }

    // A whole tag finds its own entries, as a report counts them; the beginning of one is looked for like any other
    // word.
    void FiltersByTag()
    {
        cEntryListModel::cContent content;
        for (const char* text : {"#Auto Reifen", "#autobahn Maut", "Auto gemietet", "#Müll"}) {
            cEntryItem entry;
            entry.ID = static_cast<int>(content.Entries.size()) + 1;
            entry.EntryDate = QDate(2026, 1, 1);
            entry.EntryType = modWord::Ausgabe;
            entry.EntryDescription = QString::fromUtf8(text);
            content.Entries.append(entry);
        }
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        QString typed;
        QList<int> rows;
        for (const QChar c : u"#AUTOB"_s) {
            m_model->SetFilter(typed += c);
            rows.append(m_model->rowCount());
        }
        QCOMPARE(rows, QList<int>({3, 2, 2, 2, 1, 1}));
        QCOMPARE(m_model->index(0, cEntryListModel::Tags).data().toString(), u"#autobahn"_s);
        m_model->SetFilter(u"#muell"_s);
        QCOMPARE(m_model->rowCount(), 1);
        QCOMPARE(m_model->KnownTags(), QStringList({u"#Auto"_s, u"#autobahn"_s, u"#Müll"_s}));
    }

    // What is typed narrows and widens the list again without a new sort.
    void FiltersInOrderAndGroups()
    {
        m_model->SetContent(Content(), {}, u"Nach Sparte"_s);
        m_model->sort(cEntryListModel::Amount, Qt::DescendingOrder);
        const QStringList groups = Rows(*m_model);
        m_model->SetFilter(u"haushalt"_s);
        QCOMPARE(Rows(*m_model), QStringList({u"Haushalt  (2)=-8,00"_s}));
        QCOMPARE(m_model->Sums(), (cEntrySums{0, 800, 2}));
        QCOMPARE(m_model->EntryAt(m_model->index(0, 0, m_model->index(0, 0)))->EntryValue, 300);
        m_model->SetFilter(u"haushalt cafe"_s);
        QCOMPARE(Rows(*m_model), QStringList({u"Haushalt  (1)=-3,00"_s}));
        m_model->SetFilter(u"x"_s);
        QCOMPARE(m_model->rowCount(), 0);
        m_model->SetGrouping(modWord::KeineGruppierung);
        QCOMPARE(m_model->rowCount(), 0); // still filtered
        m_model->SetGrouping(u"Nach Sparte"_s);
        m_model->SetFilter({});
        QCOMPARE(Rows(*m_model), groups);
    }

    // The rules by which amounts are searched are learnt from the formatter, or asked where it has its own.
    void FindsAmountsAsShown_data()
    {
        const cTestRows<QString, qint64, QString, int> row("culture", "cents", "filter", "rows");
        row("euros", {}, 123450, u"-1.234,50"_s, 1);
        row("dollars", u"en-US"_s, 123450, u"($1,234.50)"_s, 1);
        row("francs in front of the amount", u"de-CH"_s, 5, u"0.05"_s, 1);
        row("currency as a word", u"de-CH"_s, 100, u"Chf"_s, 1);
        row("rupiah without decimals", u"id-ID"_s, 1500000, u"15.000"_s, 1);
        row("groups of two digits", u"hi-IN"_s, 1234567800, u"1,23,45,678.00"_s, 1);
        row("no group for four digits", u"es-ES"_s, 123450, u"1234,50"_s, 1);
        row("as in an amount field", {}, 123450, u"1234,50"_s, 1);
        row("British", u"en-GB"_s, 123400, u"1,234"_s, 1);
        row("not British", u"en-GB"_s, 123450, u"1.234"_s, 0);
        row("apostrophe of the keyboard", u"de-CH"_s, 123450, u"1'234.50"_s, 1);
    }

    void FindsAmountsAsShown()
    {
        QFETCH(QString, culture);
        QFETCH(qint64, cents);
        QFETCH(QString, filter);
        cTestFormat format;
        format.Registry.Write(cConfiguration::RegistryKey, u"LanguageCurrency"_s, culture);
        cEntryListModel model(format.Format);
        cEntryListModel::cContent content;
        content.Entries = {Entry(1, QDate(2026, 3, 1), {}, cents)};
        model.SetContent(content, {}, modWord::KeineGruppierung);
        QString typed;
        for (const QChar c : filter) {
            model.SetFilter(typed += c);
        }
        QTEST(model.rowCount(), "rows");
        model.SetFilter(filter + u'7');
        QCOMPARE(model.rowCount(), 0);
    }

    void FindsRowsAgainAfterRegrouping()
    {
        m_model->SetContent(Content(), {}, modWord::KeineGruppierung);
        const cEntryListModel::cKey key{3, QDate(2026, 3, 1)};
        for (const QString& grouping : modWord::Groupings().Stored()) {
            m_model->SetGrouping(grouping);
            const QModelIndexList found = m_model->IndexesOf({key, {99, QDate(2026, 3, 1)}});
            QCOMPARE(found.size(), 1);
            QCOMPARE(m_model->KeyAt(found.constFirst()), key);
        }
        m_model->SetGrouping(modWord::KeineGruppierung);
        QCOMPARE(m_model->KeyAt(m_model->IndexNear(QDate(2026, 3, 15))).ID, 4);
    }

    void MarksWhatIsSpecial()
    {
        m_model->SetContent(Content(), {}, modWord::KeineGruppierung);
        QVERIFY(m_model->index(4, 0).data(cEntryListModel::FutureRole).toBool()); // 1 April
        QVERIFY(!m_model->index(0, 0).data(cEntryListModel::FutureRole).toBool());
        cEntryListModel::cContent parts = Content();
        modSplit::SetGroup(parts.Entries[0], 1);
        parts.Entries[1].PlannedDate = parts.Entries[3].PlannedDate = QDate(2026, 1, 1);
        parts.Entries[1].CorrectionComment = modSeries::BankComment(); // as nearly all that the bank paid
        m_model->SetContent(parts, {}, modWord::KeineGruppierung);
        QCOMPARE(Rows(*m_model, cEntryListModel::Interval),
                 QStringList({u"Einmalig"_s, u"Einmalig, korrigiert"_s, u"Einmalig, Teil"_s, u"Einmalig"_s,
                              u"Monatlich, verschoben"_s}));
        QCOMPARE(m_model->headerData(cEntryListModel::Category, Qt::Horizontal, modColumnWidth::WidestRole).toString(),
                 u"Einkommen; Lohn / Gehalt"_s);
        QCOMPARE(m_model->index(3, 0).data(cEntryListModel::ToneRole).value<eMoneyTone>(), eMoneyTone::Income);
    }

    void KeepsTheContractOfItemModels()
    {
        const QAbstractItemModelTester tester(&*m_model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->SetContent(Content(), {}, u"Nach Monat"_s);
        m_model->sort(cEntryListModel::Amount, Qt::DescendingOrder);
        m_model->SetFilter(u"haushalt"_s);
        QCOMPARE(m_model->rowCount(), 2);
        QCOMPARE(m_model->parent(m_model->index(0, 3, m_model->index(1, 0))), m_model->index(1, 0));
        // Else the mouse would only select, and heads of groups go nowhere.
        QVERIFY(m_model->index(0, 0, m_model->index(1, 0)).flags() & Qt::ItemIsDragEnabled);
        QVERIFY(!(m_model->index(1, 0).flags() & Qt::ItemIsDragEnabled));
    }

    void ShareTheRoom_data()
    {
        const cTestRows<int, int, QList<int>> row("Rest", "Room", "Widths");
        row("what is left goes to cut texts, then to one", 1, 500, {90, 330, 80});
        row("room without a text first", 1, 365, {90, 195, 80});
        row("no more than there is", 1, 345, {85, 180, 80});
        row("or to none", -1, 500, {90, 200, 80});
        row("the long text gives way first", 1, 250, {80, 96, 74});
        row("then the amount keeps what it needs", 1, 160, {52, 38, 70});
        row("below that the list scrolls", 1, 100, {30, 20, 70});
    }

    void ShareTheRoom()
    {
        QFETCH(int, Rest);
        QFETCH(int, Room);
        const QList<modColumnWidth::cColumn> columns{{80, 80, 30, 90}, {200, 60, 20, 180}, {80, 60, 70}};
        QTEST(modColumnWidth::Share(columns, Rest, Room), "Widths");
    }

    void StoredWidthsFollowTheTypeSize()
    {
        const std::optional<cListLayout> stored = cListLayout::FromText(u"0,60,1|1,0,1|sort,0,0|letter,6"_s, 2);
        QVERIFY(stored);
        const cListLayout larger = stored->ForLetter(8);
        QCOMPARE(larger.ToText(), u"0,80,1|1,0,1|sort,0,0|letter,8"_s);
        const std::optional<cListLayout> old = cListLayout::FromText(u"0,60,1|1,0,1|sort,0,0"_s, 2);
        QVERIFY(old);
        QCOMPARE(old->ForLetter(8).Columns.front().Width, 60); // nobody knows what it was measured in

        // A column that came with a later version does not cost the user the layout.
        const std::optional<cListLayout> grown = cListLayout::FromText(u"1,60,1|0,0,0|sort,0,0"_s, 4, {3});
        QVERIFY(grown);
        QCOMPARE(grown->ToText(), u"1,60,1|0,0,0|2,0,1|3,0,0|sort,0,0"_s);
        QVERIFY(!cListLayout::FromText(u"1,60,1|2,0,1|sort,0,0"_s, 3));
    }

private:
    cTestFormat m_format;
    std::optional<cEntryListModel> m_model;
};

TEST_CLASS(testEntryListModel, QCoreApplication)
#include "testEntryListModel.moc"
