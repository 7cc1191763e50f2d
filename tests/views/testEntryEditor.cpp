#include "support/testBook.h"
#include "views/cEntryEditor.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryEditor::cFields Fields()
{
    cEntryEditor::cFields fields;
    fields.Amount = u"12,50"_s;
    fields.Category = u"Haushalt; Lebensmittel"_s;
    fields.Type = modWord::Ausgabe;
    fields.Account = u"Girokonto"_s;
    return fields;
}

} // namespace

class testEntryEditor final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ChecksInOrder_data();
    void ChecksInOrder();
    void SaysWhenThereIsNothingToChoose();
    void StoresWhatWasTyped();
    void CategoryFillsOnlyWhatIsOpen();
    void OtherPeriodCostsCorrections_data();
    void OtherPeriodCostsCorrections();
};

void testEntryEditor::ChecksInOrder_data()
{
    QTest::addColumn<QStringList>("emptied");
    QTest::addColumn<QString>("message");
    QTest::newRow("amount first, without message") << QStringList({u"amount"_s, u"category"_s}) << QString();
    QTest::newRow("category before kind")
        << QStringList({u"category"_s, u"type"_s}) << u"Bitte erst eine Kategorie wählen!"_s;
    QTest::newRow("kind before account") << QStringList({u"type"_s, u"account"_s})
                                         << u"Bitte erst eine Buchungsart wählen!"_s;
    QTest::newRow("account") << QStringList({u"account"_s}) << u"Bitte erst ein Konto wählen!"_s;
    QTest::newRow("transfer to nowhere") << QStringList({u"target"_s}) << u"Eintrag konnte nicht erstellt werden!"_s;
}

void testEntryEditor::ChecksInOrder()
{
    QFETCH(QStringList, emptied);
    QFETCH(QString, message);
    cEntryEditor::cFields fields = Fields();
    fields.Amount = emptied.contains(u"amount"_s) ? u"zwölf"_s : fields.Amount;
    fields.Category = emptied.contains(u"category"_s) ? QString() : fields.Category;
    fields.Type = emptied.contains(u"type"_s) ? QString()
        : emptied.contains(u"target"_s)       ? modWord::Umbuchung
                                              : fields.Type;
    fields.Account = emptied.contains(u"account"_s) ? QString() : fields.Account;

    cTestBook book;
    cEntryEditor editor(book.Data, book.User, book.Clock);
    QCOMPARE(editor.Save(fields), message.isEmpty() ? cEntryEditor::eSaved::BadAmount : cEntryEditor::eSaved::Refused);
    QCOMPARE(book.User.Shown, message.isEmpty() ? QStringList() : QStringList(message));
    QCOMPARE(book.Data.CountEntries(), 0);
}

void testEntryEditor::SaysWhenThereIsNothingToChoose()
{
    cTestBook book;
    const cTemplateItemList templates = book.Data.GetTemplates();
    for (const cTemplateItem& item : templates) {
        QVERIFY(book.Data.DeleteTemplate(item.ID));
    }
    cEntryEditor editor(book.Data, book.User, book.Clock);
    cEntryEditor::cFields fields = Fields();
    fields.Account.clear();
    QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Refused);
    fields.Category.clear();
    QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Refused);
    QCOMPARE(book.User.Shown,
             QStringList({u"Bitte erst neue Konten anlegen und diese Buchung einordnen!"_s,
                          u"Bitte erst neue Kategorien anlegen und diese Buchung einordnen!"_s}));
}

void testEntryEditor::StoresWhatWasTyped()
{
    cTestBook book;
    cEntryEditor editor(book.Data, book.User, book.Clock);
    cEntryEditor::cFields fields = Fields();
    fields.Amount = u"-1.012,50"_s; // the sign is the kind's business
    fields.Target = u"Sparkonto"_s; // left over from a transfer
    fields.Description = u"Oma's Garten"_s;
    QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Saved);
    const std::optional<cEntryItem> stored = book.Data.LoadEntry(1);
    QVERIFY(stored);
    QCOMPARE(stored->EntryValue, 101250);
    QCOMPARE(stored->EntryDate, book.Clock.Today());
    QCOMPARE(stored->EntryDateEnd, modRecurrence::OpenEnd);
    QCOMPARE(stored->EntryInterval, modWord::Einmalig);
    QVERIFY(stored->EntryAccountMove.isEmpty());
    QCOMPARE(stored->EntryDescription, fields.Description);
}

void testEntryEditor::CategoryFillsOnlyWhatIsOpen()
{
    cTestBook book;
    cTemplateItem rent;
    rent.TemplateType = modWord::Kategorie;
    rent.TemplateCategory = u"Test"_s;
    rent.TemplateName = u"Pacht"_s;
    rent.EntryType = modWord::Ausgabe;
    rent.EntryInterval = u"Jährlich"_s;
    QVERIFY(book.Data.AddNewTemplate(rent));
    rent.TemplateName = u"Sonstiges"_s;
    rent.EntryType = modWord::AlleBuchungsarten; // a filter word that old files carry
    QVERIFY(book.Data.AddNewTemplate(rent));

    const cEntryEditor editor(book.Data, book.User, book.Clock);
    cEntryEditor::cFields fields;
    fields.Amount = u"7"_s;
    editor.ChooseCategory(u"Test; Sonstiges"_s, fields);
    QVERIFY(fields.Type.isEmpty());
    QCOMPARE(fields.Amount, u"0,00"_s);
    fields.Interval = modWord::Einmalig;
    fields.Amount = u"7"_s;
    fields.IsAmountTyped = true;
    editor.ChooseCategory(u"Test; Pacht"_s, fields);
    QCOMPARE(fields.Type, modWord::Ausgabe);
    QCOMPARE(fields.Interval, modWord::Einmalig);
    QCOMPARE(fields.Amount, u"7"_s);
}

void testEntryEditor::OtherPeriodCostsCorrections_data()
{
    QTest::addColumn<bool>("changesDate");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("corrections");
    QTest::addColumn<QString>("description");
    QTest::newRow("other text asks nothing") << false << int(eAnswer::Cancel) << 1 << u"neu"_s;
    QTest::newRow("no saves nothing") << true << int(eAnswer::No) << 1 << QString();
    QTest::newRow("yes drops the corrections") << true << int(eAnswer::Yes) << 0 << u"neu"_s;
}

void testEntryEditor::OtherPeriodCostsCorrections()
{
    QFETCH(bool, changesDate);
    QFETCH(int, answer);
    QFETCH(int, corrections);
    QFETCH(QString, description);
    cTestBook book;
    const cEntryItem series = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; });
    cEntryItemFixMod fixMod;
    fixMod.EntryRelation = series.ID;
    fixMod.EntryModType = modWord::Betrag;
    fixMod.EntryStartDate = QDate(2026, 4, 1);
    QVERIFY(book.Data.AddNewEntryMod(fixMod));

    cEntryEditor editor(book.Data, book.User, book.Clock);
    cEntryEditor::cFields fields = editor.Load(series.ID).value();
    fields.Description = u"neu"_s;
    fields.Date = changesDate ? fields.Date.addDays(1) : fields.Date;
    book.User.Answers = {static_cast<eAnswer>(answer)};
    const bool isSaved = editor.Save(fields) == cEntryEditor::eSaved::Saved;
    QCOMPARE(isSaved, !description.isEmpty());
    QCOMPARE(book.Data.GetEntryMods(series.ID).size(), corrections);
    QCOMPARE(book.Data.LoadEntry(series.ID)->EntryDescription, description);
    QCOMPARE(book.User.Asked.size(), changesDate ? 1 : 0);
}

QTEST_GUILESS_MAIN(testEntryEditor)
#include "testEntryEditor.moc"
