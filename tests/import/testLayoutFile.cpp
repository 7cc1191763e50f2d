#include "cImportBook.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/table/cTableMemory.h"
#include "import/table/modLayoutFile.h"
#include "import/table/modTable.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Nothing of it could be guessed.
const QString table = u"Tag;Was;Netto;Brutto;Wer\n02/03/2025;Kauf;1.00;2.00;Lore\n02/04/2025;Kauf;3.00;4.00;Otto\n"_s;
const QString layout = u"# von Otto\nKontorelle-Aufbau 1\n\nName: Meine Bank\nTage: Monat Tag Jahr\n"
                       "Zahlen: 1,234.50\nVorzeichen: umgekehrt\nWährung: CHF\nSpalten:\n"
                       "datum: Tag\nzweck + art: Was\n-: Netto\nBetrag: Brutto\nname: Wer\n"_s;

} // namespace

class testLayoutFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // One gives it away, the other reads with it.
    void CountsForFilesWithTheSameHeader()
    {
        cImportBook book;
        cTableMemory memory(*book.Settings);
        const modLayoutFile::cRead read = modLayoutFile::FromText(layout);
        QCOMPARE(read.Fault, QString());
        QVERIFY(memory.SaveMap(cTableMemory::KeyOf(read.Layout.Map.Names), read.Layout));
        cReadOptions options;
        options.Memory = &memory;
        const modTable::cOpened opened = modTable::Open({u"a.csv"_s, {}, table}, options);
        QCOMPARE(opened.Layout.Profile, u"Meine Bank"_s);
        const cStatementRead rows = modTable::ReadRows(*opened.Table, opened.Layout, options);
        const cImportEntry first = rows.Entries.value(0);
        QCOMPARE(first.ImportDate, QDate(2025, 2, 3));
        QCOMPARE(first.ImportValue, -200);
        QCOMPARE(first.ImportCurrency, u"CHF"_s);
        QCOMPARE(QStringList({first.ImportType, first.ImportPurpose, first.ImportBeneficiary}),
                 QStringList({u"Kauf"_s, u"Kauf"_s, u"Lore"_s}));
        const QString text = modLayoutFile::ToText(opened.Layout, opened.Layout.Profile);
        QCOMPARE(modLayoutFile::ToText(modLayoutFile::FromText(text).Layout, u"Meine Bank"_s), text);
    }

    void SaysWhatIsWrong_data()
    {
        const cTestRows<QString, QString> row("text", "fault");
        row("empty", {}, u"leer"_s);
        row("a statement", table, u"kein Aufbau"_s);
        row("unknown rule", QString(layout).replace(u"umgekehrt"_s, u"rot"_s), u"Zeile 7"_s);
        row("unknown column", QString(layout).replace(u"name:"_s, u"farbe:"_s), u"farbe"_s);
        row("two days", QString(layout).replace(u"name:"_s, u"datum:"_s), u"datum: Wer"_s);
        row("no amount", QString(layout).replace(u"Betrag:"_s, u"-:"_s), u"Tag und Betrag"_s);
    }

    void SaysWhatIsWrong()
    {
        QFETCH(QString, text);
        QFETCH(QString, fault);
        const modLayoutFile::cRead read = modLayoutFile::FromText(text);
        QVERIFY2(read.Fault.contains(fault), qPrintable(read.Fault));
    }

    // Maps that were stored before there were these columns, currencies and names.
    void OldMapsAreStillRead()
    {
        cImportBook book;
        cTableMemory memory(*book.Settings);
        const QString old = u"5;2;1;1;0;0;-1;1;-1;-1;-1;-1;-1;-1;-1;-1;3;-1;-1;-1;-1;-1;-1;-1;-1;-1"_s;
        const QString key = cTableMemory::KeyOf(table.section(u'\n', 0, 0).split(u';'));
        QVERIFY(book.Settings->Set(modSettingKey::TableMap.Of(key), old));
        cReadOptions options;
        options.Memory = &memory;
        QCOMPARE(modTable::Read({u"a.csv"_s, {}, table}, options).Entries.value(1).ImportValue, -400);
    }
};

TEST_CLASS(testLayoutFile, QCoreApplication)
#include "testLayoutFile.moc"
