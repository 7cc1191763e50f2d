#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/list/cSearchModel.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

// Today is the 15 March 2026.

namespace {

struct cScene
{
    cScene()
    {
        Add(u"Rewe"_s, QDate(2026, 3, 10), 1000);
        Add(u"Bäckerei Müller"_s, QDate(2025, 7, 1), 425);
        Add(u"Haushaltshilfe"_s, QDate(2026, 5, 2), 8000,
            [](cEntryItem& entry) { entry.EntryCategory = u"Haushaltshilfe"_s; });
        Add(u"Sparen"_s, QDate(2026, 2, 1), 5000, [](cEntryItem& entry) {
            entry.EntryType = modWord::Umbuchung;
            entry.EntryAccountMove = u"Sparkonto"_s;
            entry.EntryCategory = u"Geldanlage"_s;
        });
        Add(u"Gehalt"_s, QDate(2026, 1, 30), 250000, [](cEntryItem& entry) {
            entry.EntryType = modWord::Einnahme;
            entry.EntryCategory = u"Haushalt"_s;
        });
        Series = Add(u"Zeitung"_s, QDate(2026, 1, 5), 3000, Monthly);
        Later = Add(u"Fitness"_s, QDate(2026, 4, 20), 2500, Monthly);
    }

    static void Monthly(cEntryItem& entry)
    {
        entry.EntryInterval = u"Monatlich"_s;
        entry.EntryCategory = u"Freizeit"_s;
    }

    template <typename tChange = void (*)(cEntryItem&)>
    int Add(
        const QString& description, QDate day, qint64 cents, tChange change = [](cEntryItem&) {})
    {
        return Book
            .Add([&](cEntryItem& entry) {
                entry.EntryDescription = description;
                entry.EntryDate = day;
                entry.EntryValue = cents;
                change(entry);
            })
            .ID;
    }

    // "Rewe 10.03.", in the order of the results
    static QStringList Names(const cEntryItemList& entries)
    {
        return Each(entries, [](const cEntryItem& entry) {
            return QString(entry.EntryDescription + entry.EntryDate.toString(u" dd.MM."_s));
        });
    }

    cTestBook Book;
    cSearch Search{Book.Tools};
    cSearchModel Model{Book.Tools};
    int Series = 0;
    int Later = 0;
};

modPeriod::cRange Days(QDate start, QDate end)
{
    return {start, end};
}

} // namespace

class testSearch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Finds_data()
    {
        const cTestRows<cSearchQuery, QStringList> row("query", "found");
        row("word without umlaut", {.Text = u"mueller baeck"_s}, {u"Bäckerei Müller 01.07."_s});
        row("amount as text", {.Text = u"80,00"_s}, {u"Haushaltshilfe 02.05."_s});
        row("range of amounts, both ends", {.Least = 425, .Most = 1000},
            {u"Bäckerei Müller 01.07."_s, u"Rewe 10.03."_s});
        row("amount from", {.Least = 8000}, {u"Gehalt 30.01."_s, u"Haushaltshilfe 02.05."_s});
        row("main category without its namesake", {.Category = u"Haushalt"_s},
            {u"Bäckerei Müller 01.07."_s, u"Gehalt 30.01."_s, u"Rewe 10.03."_s});
        row("sub-category", {.Category = u"Haushalt; Lebensmittel"_s}, {u"Bäckerei Müller 01.07."_s, u"Rewe 10.03."_s});
        row("account that a transfer goes to", {.Account = u"Sparkonto"_s}, {u"Sparen 01.02."_s});
        row("kind", {.Type = modWord::Umbuchung}, {u"Sparen 01.02."_s});
        row("kind and text together", {.Text = u"giro"_s, .Type = modWord::Einnahme}, {u"Gehalt 30.01."_s});
        row("series up to today, later only corrected, to come with its first day", {.Category = u"Freizeit"_s},
            {u"Zeitung 05.01."_s, u"Zeitung 05.02."_s, u"Zeitung 05.03."_s, u"Zeitung 05.06."_s, u"Zeitung 09.07."_s,
             u"Fitness 20.04."_s});
        row("series within days", {.Days = Days({2026, 4, 1}, {2026, 5, 31}), .Category = u"Freizeit"_s},
            {u"Zeitung 05.04."_s, u"Zeitung 05.05."_s, u"Fitness 20.04."_s, u"Fitness 20.05."_s});
        row("days without end", {.Text = u"zeitung"_s, .Days = Days({2026, 2, 1}, {})},
            {u"Zeitung 05.02."_s, u"Zeitung 05.03."_s, u"Zeitung 05.06."_s, u"Zeitung 09.07."_s});
        row("comment of one occurrence", {.Text = u"urlaub"_s}, {u"Zeitung 09.07."_s});
        row("corrected or moved, also those to come", {.IsCorrected = true},
            {u"Zeitung 05.02."_s, u"Zeitung 05.06."_s, u"Zeitung 09.07."_s});
        row("from the bank", {.IsFromBank = true}, {u"Rewe 10.03."_s});
    }

    void Finds()
    {
        QFETCH(const cSearchQuery, query);
        cScene scene;
        scene.Book.Correct(scene.Series, QDate(2026, 2, 1), QDate(2026, 2, 28), 3500);
        scene.Book.Correct(scene.Series, QDate(2026, 6, 1), QDate(2026, 6, 30), 0);
        QVERIFY(scene.Book.Data.AddNewEntryMod({0, scene.Series, modWord::Betrag, QDate(2026, 7, 1), QDate(2026, 7, 31),
                                                3000, u"Urlaub"_s, QDate(2026, 7, 9)}));
        scene.Book.Stage({}, {}, 0, {}, 1);
        scene.Book.Stage({}, {}, 0);
        QTEST(cScene::Names(scene.Search.Find(query)), "found");
    }

    void ShowsWhatWasFoundWithSums()
    {
        cScene scene;
        scene.Model.Open();
        QCOMPARE(scene.Model.Entries().rowCount(), 0); // nothing asked, nothing found
        scene.Model.Search({.Text = u"giro"_s, .Type = modWord::Ausgabe});
        QCOMPARE(scene.Model.SumTexts().Count, u"7 Treffer"_s);
        QCOMPARE(scene.Model.SumTexts().Expense, scene.Book.Format.Cents(-(1000 + 425 + 8000 + 3 * 3000 + 2500)));
        scene.Model.Search({.Account = u"Sparkonto"_s});
        QCOMPARE(scene.Model.SumTexts().Income, scene.Book.Format.Cents(5000)); // the transfer reaches this account
        scene.Model.Search({.Text = u"gibt es nicht"_s});
        QVERIFY(scene.Model.EmptyHint().startsWith(u"Kein Eintrag passt"));
        scene.Model.Search({.Text = u" "_s});
        QVERIFY(scene.Model.EmptyHint().startsWith(u"Geben Sie oben ein"));
    }

    void UnderstandsAmounts_data()
    {
        using eRule = cSearchModel::eAmountRule;
        const cTestRows<eRule, QString, QString, int> row("rule", "amount", "to", "rows");
        row("exactly", eRule::Exactly, u"10"_s, {}, 1);
        row("with sign and euro", eRule::Exactly, u"-4,25 €"_s, {}, 1);
        row("calculated", eRule::Exactly, u"4+6"_s, {}, 1);
        row("at least", eRule::AtLeast, u"80"_s, {}, 2);
        row("at most", eRule::AtMost, u"10,00"_s, {}, 2);
        row("between, the wrong way round", eRule::Between, u"25"_s, u"5"_s, 2);
        row("between with one end", eRule::Between, {}, u"10"_s, 2);
        row("no amount is left out", eRule::Exactly, u"zehn"_s, {}, 9);
    }

    void UnderstandsAmounts()
    {
        QFETCH(const cSearchModel::eAmountRule, rule);
        QFETCH(const QString, amount);
        QFETCH(const QString, to);
        cScene scene;
        scene.Model.Search({.Text = u"giro"_s, .AmountRule = rule, .Amount = amount, .AmountTo = to});
        QTEST(scene.Model.Entries().rowCount(), "rows");
        QCOMPARE(scene.Model.Hint().contains(u"kein Betrag"), !scene.Model.IsAmount(amount));
    }

    void ReadsAmountsAsTheyAreShown()
    {
        cScene scene;
        QVERIFY(scene.Book.Settings->Set(modSettingKey::LanguageFormat, u"en-GB"_s));
        scene.Book.Format.CultureChanged();
        cSearchModel::cFields fields{.AmountRule = cSearchModel::eAmountRule::Exactly, .Amount = u"2,500"_s};
        scene.Model.Search(fields);
        QCOMPARE(scene.Model.Entries().rowCount(), 1);
        fields.Amount = u"2.500"_s;
        scene.Model.Search(fields);
        QVERIFY(scene.Model.Hint().contains(u"nicht eindeutig"));
        scene.Model.Search({.Text = u"10/03/2026"_s}); // days too
        QCOMPARE(scene.Model.Entries().rowCount(), 1);
    }

    void ReadsTheBookOnlyWhenItHasTo()
    {
        cScene scene;
        scene.Model.Search({.Text = u"e"_s});
        QCOMPARE(scene.Model.Entries().rowCount(), 9);
        scene.Add(u"Neu"_s, QDate(2026, 3, 11), 100);
        const QSignalSpy resets(&scene.Model.Entries(), &QAbstractItemModel::modelReset);
        scene.Model.Search({.Text = u"e "_s}); // means the same
        QCOMPARE(resets.size(), 0);
        scene.Model.Search({.Text = u"neu"_s}); // typed on: the entry is not known yet
        QCOMPARE(scene.Model.Entries().rowCount(), 0);
        scene.Model.Refresh();
        QCOMPARE(scene.Model.Entries().rowCount(), 1);
        scene.Model.Close();
        QCOMPARE(scene.Model.Entries().rowCount(), 0);
        scene.Model.Open();
        QCOMPARE(scene.Model.Entries().rowCount(), 1);
    }

    void SearchesOnceTypingPauses()
    {
        cScene scene;
        scene.Model.Open();
        QSignalSpy found(&scene.Model, &cSearchModel::Found);
        for (const QString& text : {u"r"_s, u"re"_s, u"rewe"_s}) {
            scene.Model.SearchSoon({.Text = text});
        }
        QCOMPARE(found.size(), 0);
        QVERIFY(found.wait());
        QCOMPARE(found.size(), 1);
        QCOMPARE(scene.Model.Entries().rowCount(), 1);
    }

    void OffersChoices()
    {
        cScene scene;
        QVERIFY(!scene.Model.Periods().contains(modWord::AlleBuchungen));
        const QStringList categories = scene.Model.Categories();
        QCOMPARE(categories.count(u"Haushalt"_s), 1);
        QVERIFY(categories.indexOf(u"Haushalt"_s) < categories.indexOf(u"Haushalt; Lebensmittel"_s));
        QCOMPARE(scene.Model.Days({.Period = u"Letzter Monat"_s}), Days({2026, 2, 1}, {2026, 2, 28}));
    }
};

TEST_CLASS(testSearch, QCoreApplication)
#include "testSearch.moc"
