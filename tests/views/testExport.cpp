#include "base/cProgress.h"
#include "import/zip/modZip.h"
#include "model/modReceiptName.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "support/cNoRoom.h"
#include "support/cTestClass.h"
#include "support/cTestEntry.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/common/modFileWrite.h"
#include "views/export/cEntryExport.h"
#include "views/list/cEntryListModel.h"
#include "views/main/cViewState.h"
#include "views/main/modViewText.h"
#include "views/people/modSettlementExport.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItem Entry(QDate day, const QString& type, qint64 cents, const QString& category, const QString& text)
{
    const QString target = type == modWord::Umbuchung ? u"Sparkonto"_s : QString();
    return cTestEntry{.Day = day, .Cents = cents, .Text = text, .Category = category, .Type = type, .Target = target}
        .Make();
}

cEntryListModel::cContent Content(const QString& account = {})
{
    cEntryListModel::cContent content;
    content.Entries = {
        Entry(QDate(2026, 2, 27), modWord::Einnahme, 250000, u"Einkommen; Lohn / Gehalt"_s, u"Lohn; \"Februar\""_s),
        Entry(QDate(2026, 3, 1), modWord::Ausgabe, 123456, u"Wohnung; Miete"_s, u"=1+1 <b>"_s),
        Entry(QDate(2026, 3, 2), modWord::Umbuchung, 10000, u"Geldanlage"_s, u"Rücklage"_s),
        Entry(QDate(2026, 3, 9), modWord::Ausgabe, 5, {}, u"zwei\nZeilen"_s)};
    content.Entries[1].EntryInterval = u"Monatlich"_s;
    content.Entries[1].IsCorrected = true;
    content.Entries[1].CorrectionComment = u"Nachzahlung"_s;
    content.Account = account;
    content.Today = QDate(2026, 3, 15);
    return content;
}

// The cells of a written table: "A2" to its value; a formula as "formula -> value".
class cTable
{
public:
    explicit cTable(QByteArray bytes) : m_bytes(std::move(bytes))
    {
        ReadTexts(Part("xl/sharedStrings.xml"));
        Sheet = Part("xl/worksheets/sheet1.xml");
        Core = Part("docProps/core.xml");
        Styles = Part("xl/styles.xml");
        ReadCells();
    }

    [[nodiscard]] QString At(const QString& cell) const { return m_cells.value(cell); }
    [[nodiscard]] QStringList Row(int row) const
    {
        QStringList texts;
        for (QChar column = u'A'; column <= u'J'; column = QChar(column.unicode() + 1)) {
            texts.append(At(column + QString::number(row)));
        }
        while (!texts.isEmpty() && texts.constLast().isEmpty()) {
            texts.removeLast();
        }
        return texts;
    }

    QByteArray Sheet;
    QByteArray Styles;
    QByteArray Core;
    bool IsWellFormed = true; // all texts could be read

private:
    [[nodiscard]] QByteArray Part(const char* name) const
    {
        return modZip::Read(m_bytes, QString::fromLatin1(name)).value_or(QByteArray());
    }

    void ReadTexts(const QByteArray& xml)
    {
        QXmlStreamReader reader(xml);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "t"_L1) {
                m_texts.append(reader.readElementText());
            }
        }
        IsWellFormed = !reader.hasError();
    }

    void ReadCells()
    {
        QXmlStreamReader reader(Sheet);
        QString cell;
        bool isText = false;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement) {
                continue;
            }
            if (reader.name() == "c"_L1) {
                cell = reader.attributes().value("r"_L1).toString();
                isText = reader.attributes().value("t"_L1) == "s"_L1;
            } else if (reader.name() == "f"_L1) {
                m_cells[cell] = reader.readElementText() + u" -> "_s;
            } else if (reader.name() == "v"_L1) {
                const QString value = reader.readElementText();
                m_cells[cell] += isText ? m_texts.value(value.toInt()) : value;
            }
        }
    }

    QByteArray m_bytes;
    QStringList m_texts;
    QHash<QString, QString> m_cells;
};

} // namespace

// What is written into files, and how.
class testExport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model = std::make_unique<cEntryListModel>(m_format.Format);
        m_model->SetContent(Content(), {}, modWord::KeineGruppierung);
    }

    void TakesWhatTheListShows()
    {
        m_model->sort(cEntryListModel::Date, Qt::DescendingOrder);
        m_model->SetGrouping(u"Nach Monat"_s);
        m_model->SetFilter(u"girokonto"_s);
        const cEntryExtract extract = cEntryExtract::From(*m_model);
        QCOMPARE(extract.Groups.size(), 2U);
        qint64 sum = 0;
        for (const cEntryExtract::cGroup& group : extract.Groups) {
            qint64 groupSum = 0;
            for (qsizetype row = group.First; row < group.First + group.Count; ++row) {
                groupSum += extract.Rows[static_cast<std::size_t>(row)].Effect;
            }
            QCOMPARE(groupSum, group.Sum);
            sum += group.Sum;
        }
        QCOMPARE(sum, m_model->Sums().Total());
        QCOMPARE(extract.Total(), m_model->Sums().Total());
        QCOMPARE(extract.Rows.front().Entry.EntryDate, QDate(2026, 2, 27)); // groups upwards, rows downwards
        QCOMPARE(extract.Rows[1].Entry.EntryDate, QDate(2026, 3, 9));
        m_model->SetFilter(u"miete"_s);
        QCOMPARE(cEntryExtract::From(*m_model).Rows.size(), 1U);
    }

    void CsvIsForTablePrograms()
    {
        const QByteArray bytes = Bytes(modExport::eFormat::Csv);
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"));
        QCOMPARE(
            QString::fromUtf8(bytes.mid(3)),
            u"Datum;Buchungsart;Kategorie;Konto;Zielkonto;Beschreibung;Intervall;Betrag\r\n"
            "27.02.2026;Einnahme;\"Einkommen; Lohn / Gehalt\";Girokonto;;\"Lohn; \"\"Februar\"\"\";Einmalig;2500,00\r\n"
            "01.03.2026;Ausgabe;\"Wohnung; Miete\";Girokonto;;'=1+1 <b>;Monatlich, korrigiert;-1234,56\r\n"
            "02.03.2026;Umbuchung;Geldanlage;Girokonto;Sparkonto;Rücklage;Einmalig;100,00\r\n"
            "09.03.2026;Ausgabe;;Girokonto;;\"zwei\nZeilen\";Einmalig;-0,05\r\n"_s);
    }

    void CsvKeepsFormulasAsText_data()
    {
        const cTestRows<QString, QString> row("text", "field");
        row("formula", u"=SUM(A1)"_s, u"'=SUM(A1)"_s);
        row("plus, as in phone numbers", u"+49 30 1"_s, u"'+49 30 1"_s);
        row("minus", u"-2"_s, u"'-2"_s);
        row("at", u"@home"_s, u"'@home"_s);
        row("tabulator before it", u"\t=1"_s, u"'\t=1"_s);
        row("quoted as well", u"=A;B"_s, u"\"'=A;B\""_s);
        row("sign inside", u"Miete - März"_s, u"Miete - März"_s);
    }

    void CsvKeepsFormulasAsText()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, field);
        cEntryListModel::cContent content;
        content.Entries = {Entry(QDate(2026, 3, 1), modWord::Ausgabe, 100, u"Auto"_s, text)};
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        QCOMPARE(Lines(modExport::eFormat::Csv).at(1),
                 u"01.03.2026;Ausgabe;Auto;Girokonto;"_s + field + u";Einmalig;-1,00\r"_s);
    }

    void PayerAndReceiptsHaveColumns()
    {
        cEntryListModel::cContent content = Content();
        modPeople::SetPayer(content.Entries[1], u"Anna"_s);
        modReceiptName::Set(content.Entries[3], {u"a.pdf"_s, u"b.pdf"_s});
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        const QStringList lines = Lines(modExport::eFormat::Csv);
        QVERIFY(lines.at(0).endsWith(u";Intervall;Bezahlt von;Belege;Betrag\r"_s));
        QVERIFY(lines.at(2).endsWith(u";Monatlich, korrigiert;Anna;;-1234,56\r"_s));
        QVERIFY(lines.at(lines.size() - 2).endsWith(u";Einmalig;;\"a.pdf; b.pdf\";-0,05\r"_s));
    }

    void XlsxHoldsDatesAndNumbers()
    {
        const cTable table(Bytes(modExport::eFormat::Xlsx));
        QCOMPARE(table.Row(1).size(), 8);
        QCOMPARE(table.Row(3).join(u'|'),
                 u"46082|Ausgabe|Wohnung; Miete|Girokonto||=1+1 <b>|Monatlich, korrigiert|-1234.56"_s);
        QVERIFY(table.Sheet.contains("state=\"frozen\""));
        QVERIFY(table.Sheet.contains("<autoFilter ref=\"A1:H5\"/>"));
        QVERIFY(table.Styles.contains("dd.mm.yyyy"));
        QVERIFY2(table.Styles.contains("#,##0.00&quot;\u00a0€&quot;"), table.Styles.constData());
    }

    void XlsxSumsWithoutTransfers()
    {
        m_model->SetGrouping(u"Nach Monat"_s);
        const cTable table(Bytes(modExport::eFormat::Xlsx));
        QVERIFY2(table.At(u"A4"_s).endsWith("(3)"_L1), qPrintable(table.At(u"A4"_s)));
        QCOMPARE(table.At(u"H4"_s), u"SUMIF(B5:B7,\"<>Umbuchung\",H5:H7) -> -1234.61"_s);
        QCOMPARE(table.At(u"H9"_s), u"SUMIFS(H2:H7,B2:B7,\"Einnahme\") -> 2500"_s);
        QCOMPARE(table.At(u"H10"_s), u"SUMIFS(H2:H7,B2:B7,\"Ausgabe\") -> -1234.61"_s);
        QCOMPARE(table.At(u"H11"_s), u"SUM(H9:H10) -> 1265.39"_s);
    }

    void XlsxSumsOfOneAccount()
    {
        cEntryListModel::cContent content = Content(u"Girokonto"_s);
        content.StartBalance = 100000;
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        const cTable table(Bytes(modExport::eFormat::Xlsx));
        QCOMPARE(table.At(u"H4"_s), u"-100"_s); // the transfer leaves the account
        QCOMPARE(table.At(u"I5"_s), u"2165.39"_s);
        QCOMPARE(table.At(u"H8"_s), u"SUMIFS(H2:H5,B2:B5,\"?*\",H2:H5,\"<0\") -> -1334.61"_s);
    }

    void StartBalancesAreNoIncome()
    {
        cEntryListModel::cContent content = Content();
        content.Entries.prepend(Entry(QDate(2026, 1, 1), modWord::Einnahme, 50000, modWord::Startguthaben, {}));
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        const cTable table(Bytes(modExport::eFormat::Xlsx));
        QCOMPARE(table.At(u"H8"_s), u"SUMIFS(H2:H6,C2:C6,\"Allgemein; Startguthaben\") -> 500"_s);
        QCOMPARE(table.At(u"H9"_s), u"SUMIFS(H2:H6,B2:B6,\"Einnahme\",C2:C6,\"<>Allgemein; Startguthaben\") -> 2500"_s);
        QCOMPARE(table.At(u"H11"_s), u"SUM(H8:H10) -> 1765.39"_s);
        const QString html = QString::fromUtf8(Bytes(modExport::eFormat::Html));
        const qsizetype foot = html.indexOf(u"<tfoot>"_s);
        QVERIFY(html.indexOf(u"Startguthaben"_s, foot) > foot);
        QVERIFY(html.indexOf(u"2.500,00"_s, foot) > foot);
    }

    void XlsxOfASettlement() const
    {
        cCountedEntry counted{{}, u"Anna"_s, modPeople::Equal({u"Anna"_s, u"Ben"_s}), -1250};
        counted.Entry.EntryDate = QDate(2026, 3, 1);
        counted.Entry.EntryAccount = u"Girokonto"_s;
        counted.Entry.EntryDescription = u"=1+1"_s;
        cSettlement settlement;
        settlement.People = {{u"Anna"_s, -1250, -625, 0}, {u"Ben"_s, 0, -625, 0}};
        settlement.Payments = {{u"Anna"_s, u"Ben"_s, 625}};
        settlement.Counted = {counted};
        const cTable table(modSettlementExport::Xlsx(settlement, m_format.Format).Bytes);
        QCOMPARE(table.Row(2),
                 QStringList({u"46082"_s, u"=1+1"_s, u"Girokonto"_s, u"Anna"_s, u"Anna, Ben zu gleichen Teilen"_s,
                              u"-12.5"_s}));
        QCOMPARE(table.Row(5), QStringList({{}, u"Anna"_s, u"-12.5"_s, u"-6.25"_s, u"0"_s, u"-6.25"_s}));
        QCOMPARE(table.Row(9), QStringList({{}, u"Anna"_s, u"Ben"_s, {}, {}, u"6.25"_s}));
        QVERIFY(table.Sheet.contains("<autoFilter ref=\"A1:F2\"/>"));
    }

    void XlsxKeepsOddDatesAndTexts()
    {
        cEntryListModel::cContent content;
        content.Entries = {
            Entry(QDate(1899, 12, 31), modWord::Ausgabe, 100, u"Auto"_s, QString(40000, u'ä')),
            Entry(QDate(1900, 3, 1), modWord::Ausgabe, 100, u"Auto"_s, u"\u0001\uFFFE \U0001F600"_s),
        };
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        cEntryExtract extract = Extract();
        extract.Title = u"Konto \u001B[31m"_s;
        const cTable table(modExport::Write(modExport::eFormat::Xlsx, {extract, m_format.Format, m_progress})
                               .Bytes.value_or(QByteArray()));
        QVERIFY(table.IsWellFormed);
        for (const QByteArray& part : {table.Sheet, table.Core}) {
            QVERIFY(!part.isEmpty() && !part.contains('\x1B'));
        }
        QCOMPARE(table.At(u"A2"_s), u"31.12.1899"_s);
        QCOMPARE(table.At(u"A3"_s), u"61"_s);
        QCOMPARE(table.At(u"E2"_s).size(), 32767);
        QVERIFY(table.At(u"E3"_s).endsWith(u"\U0001F600"_s));
    }

    // Of the temporary files, on another disk than the target.
    void XlsxNoticesFullDisk()
    {
        cEntryListModel::cContent content;
        content.Entries = cEntryItemList(2000, Content().Entries.constFirst());
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        QVERIFY(!Bytes(modExport::eFormat::Xlsx).isEmpty());
        const cNoRoom room(100'000); // enough for what is packed
        QVERIFY(Bytes(modExport::eFormat::Xlsx).isEmpty());
    }

    void HtmlStandsAlone()
    {
        m_model->SetGrouping(u"Nach Monat"_s);
        const QString html = QString::fromUtf8(Bytes(modExport::eFormat::Html));
        QVERIFY(html.contains(u"<title>Einträge &amp; mehr</title>"_s));
        QVERIFY(html.contains("=1+1 &lt;b&gt;"_L1) && !html.contains("<b>"_L1));
        QVERIFY(html.contains("zwei<br>Zeilen"_L1));
        for (const QString& outside : {u"http"_s, u"src="_s, u"href="_s, u"url("_s, u"@import"_s, u"<script"_s}) {
            QVERIFY2(!html.contains(outside), qPrintable(outside));
        }
        QCOMPARE(html.count("<tr class=\"g\">"_L1), 2);
        QCOMPARE(html.count("<tr"_L1), 1 + 2 + 4 + 3);
        QVERIFY(html.contains(u"<th colspan=\"7\">Summe</th><th class=\"m\">1.265,39\u00a0€</th>"_s));
    }

    void QifOfOneAccount()
    {
        m_model->SetContent(Content(u"Sparkonto"_s), {}, modWord::KeineGruppierung);
        m_model->SetFilter(u"Rücklage"_s);
        QCOMPARE(QString::fromUtf8(Bytes(modExport::eFormat::Qif)),
                 u"!Type:Bank\nD02.03.2026\nT100.00\nPRücklage\nL[Girokonto]/Geldanlage\n^\n"_s);
    }

    void QifOfAllAccounts()
    {
        QCOMPARE(QString::fromUtf8(Bytes(modExport::eFormat::Qif)),
                 u"!Account\nNGirokonto\nTBank\n^\n!Type:Bank\n"
                 "D27.02.2026\nT2500.00\nPLohn; \"Februar\"\nLEinkommen:Lohn - Gehalt\n^\n"
                 "D01.03.2026\nT-1234.56\nP=1+1 <b>\nMMonatlich, Nachzahlung\nLWohnung:Miete\n^\n"
                 "D02.03.2026\nT-100.00\nPRücklage\nL[Sparkonto]/Geldanlage\n^\n"
                 "D09.03.2026\nT-0.05\nPzwei Zeilen\n^\n"
                 "!Account\nNSparkonto\nTBank\n^\n!Type:Bank\n"
                 "D02.03.2026\nT100.00\nPRücklage\nL[Girokonto]/Geldanlage\n^\n"_s);
    }

    void FormatComesFromTheEnding_data()
    {
        // start: empty: refused
        const cTestRows<QString, QByteArray> row("name", "start");
        row("csv", u"a.csv"_s, QByteArray("\xEF\xBB\xBF"));
        row("no ending", u"a"_s, QByteArray("\xEF\xBB\xBF"));
        row("text", u"a.txt"_s, QByteArray("\xEF\xBB\xBF"));
        row("Excel, in capitals", u"a.XLSX"_s, QByteArray("PK"));
        row("html", u"a.htm"_s, QByteArray("<!DOCTYPE html>"));
        row("qif", u"a.qif"_s, QByteArray("!Account"));
        row("another program's file", u"a.pdf"_s, {});
        row("a book", u"data.db"_s, {});
    }

    void FormatComesFromTheEnding()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, start);
        const cTestFile folder;
        cTestBook book;
        cFakeUser& user = book.User;
        user.SavePath = folder.Path(name);
        const cEntryExport::eDone done =
            cEntryExport(book.Tools, m_progress).Run(Extract(), u"Kontoauszug Giro/Nr. 2"_s, QDate(2026, 3, 15));
        QCOMPARE(done, start.isEmpty() ? cEntryExport::eDone::Failed : cEntryExport::eDone::Written);
        QCOMPARE(QFile::exists(user.SavePath), !start.isEmpty());
        QVERIFY(cTestFile::Bytes(user.SavePath).startsWith(start));
        QCOMPARE(user.Asked,
                 QStringList(u"CSV-Datei|*.csv|Excel-Datei|*.xlsx|HTML-Datei|*.html|QIF-Datei|*.qif|"
                             "Alle Dateien|*.*"_s));
        QCOMPARE(user.LastProposal, u"Kontorelle-Kontoauszug Giro-Nr- 2-2026-03-15"_s);
        QVERIFY2(user.Shown.value(0).contains(start.isEmpty()
                                                  ? u".csv, .xlsx, .html, .qif"_s
                                                  : u"4 Einträge wurden nach '%1' exportiert."_s.arg(user.SavePath)),
                 qPrintable(user.Shown.value(0)));
    }

    void FailureKeepsTheOldFile()
    {
        const cTestFile folder;
        cTestBook book;
        cFakeUser& user = book.User;
        user.SavePath = folder.Path(u"a.csv"_s);
        cTestFile::Write(user.SavePath, "old");
        cEntryListModel::cContent content;
        content.Entries = cEntryItemList(2000, Content().Entries.constFirst());
        m_model->SetContent(content, {}, modWord::KeineGruppierung);
        cFakeStop cancelled;
        QCOMPARE(cEntryExport(book.Tools, cancelled).Run(Extract(), u"Einträge"_s, QDate(2026, 3, 15)),
                 cEntryExport::eDone::GivenUp);
        QVERIFY(user.Shown.isEmpty());
        QCOMPARE(cTestFile::Bytes(user.SavePath), QByteArray("old"));

        user.SavePath = folder.Path(u"missing/a.csv"_s);
        QCOMPARE(cEntryExport(book.Tools, m_progress).Run(Extract(), u"Einträge"_s, QDate(2026, 3, 15)),
                 cEntryExport::eDone::Failed);
        QVERIFY2(user.Shown.value(0).contains(user.SavePath), qPrintable(user.Shown.value(0)));
    }

    void NothingToExport()
    {
        cTestBook book;
        cFakeUser& user = book.User;
        m_model->SetFilter(u"gibt es nicht"_s);
        QCOMPARE(cEntryExport(book.Tools, m_progress).Run(Extract(), u"Einträge"_s, QDate(2026, 3, 15)),
                 cEntryExport::eDone::Failed);
        QVERIFY(user.Asked.isEmpty());
        QCOMPARE(user.Shown.size(), 1);
    }

    void ViewInWords()
    {
        cViewState view;
        view.Period = u"Letzter Monat"_s;
        view.Account = modWord::AlleKonten;
        view.Type = modWord::AlleBuchungsarten;
        view.Grouping = modWord::KeineGruppierung;
        const modPeriod::cRange range{QDate(2026, 2, 1), QDate(2026, 2, 28)};
        QCOMPARE(modViewText::Lines(view, range),
                 QStringList({u"Zeitraum: Letzter Monat (01.02.2026 bis 28.02.2026)"_s, u"Konto: Alle Konten"_s}));
        view.Account = u"Girokonto"_s;
        view.Type = modWord::Ausgabe;
        view.Filter = u" Miete "_s;
        view.Grouping = u"Nach Woche"_s;
        view.ShowsFuture = false;
        QCOMPARE(modViewText::Title(view), u"Einträge: Girokonto"_s);
        QCOMPARE(modViewText::Lines(view, range).mid(1),
                 QStringList({u"Konto: Girokonto"_s, u"Buchungsart: Ausgabe"_s, u"Filter: Miete"_s,
                              u"Gruppierung: Nach Woche"_s, u"Ausgeblendet: zukünftige"_s}));
        view.Period = u"Buchungen bis heute"_s;
        QCOMPARE(modViewText::Lines(view, {QDate(1001, 1, 1), QDate(2026, 3, 15)}).constFirst(),
                 u"Zeitraum: Buchungen bis heute (15.03.2026)"_s);
    }

    void cleanup()
    {
        for (const QString& name : Names()) {
            QFile::remove(m_files.Path(name));
            QDir().rmdir(m_files.Path(name));
        }
    }

    // The last byte counts: a file that is cut there is not the new one.
    void FullDiskKeepsTheOldFile()
    {
        const QString path = m_files.Path(u"a.csv"_s);
        QCOMPARE(modFileWrite::Replace(path, "old"), QString());
        QCOMPARE(QFile::permissions(path) & QFile::WriteOther, QFile::Permissions());
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        {
            const cNoRoom room(9);
            QCOMPARE(modFileWrite::Replace(path, "ten bytes."), u"Die Datei ist für diesen Datenträger zu groß."_s);
        }
        QCOMPARE(cTestFile::Bytes(path), QByteArray("old"));
        QCOMPARE(Names(), QStringList(u"a.csv"_s));
        QCOMPARE(modFileWrite::Replace(path, "ten bytes."), QString());
        QCOMPARE(cTestFile::Bytes(path), QByteArray("ten bytes."));
        const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(path) & others, QFile::Permissions()); // who kept it to himself still does
    }

    // A program that is killed has written some of the file beside the target.
    void LeftoverOfAKillGoes()
    {
        const QString path = m_files.Path(u"Bericht.pdf"_s);
        const pid_t child = fork();
        if (child == 0) {
            std::signal(SIGXFSZ, SIG_DFL); // ends the program in the middle of the write
            const rlimit limit{3, 3};
            setrlimit(RLIMIT_FSIZE, &limit);
            (void)modFileWrite::Replace(path, "new and longer");
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(Names().size(), 1);
        QCOMPARE(modFileWrite::Replace(path, "new"), QString());
        QCOMPARE(Names(), QStringList(u"Bericht.pdf"_s));
    }

    void OnlyRegularFilesAreReplaced()
    {
        const QString pipe = m_files.Path(u"pipe"_s);
        const QString folder = m_files.Path(u"folder"_s);
        const QString dangling = m_files.Path(u"dangling"_s);
        const QString link = m_files.Path(u"link"_s);
        const QString target = m_files.Path(u"target"_s);
        QVERIFY(mkfifo(qPrintable(pipe), 0600) == 0 && QDir().mkdir(folder) && QFile::link(u"nothing"_s, dangling));
        cTestFile::Write(target, "old");
        QVERIFY(QFile::link(target, link));
        const QStringList before = Names();
        QCOMPARE(modFileWrite::Replace(folder, "x"), u"Unter diesem Namen gibt es einen Ordner."_s);
        QCOMPARE(modFileWrite::Replace(dangling, "x"),
                 u"Sie ist eine Verknüpfung mit einer Datei, die es nicht gibt."_s);
        for (const QString& path : {pipe, u"/dev/null"_s}) {
            QVERIFY2(modFileWrite::Replace(path, "x").contains(u"Gerät"_s), qPrintable(path));
        }
        QCOMPARE(modFileWrite::Replace(m_files.Path(u"missing/a"_s), "x"),
                 u"Den Ordner '%1' gibt es nicht."_s.arg(m_files.Path(u"missing"_s)));
        QCOMPARE(modFileWrite::Replace(link, "new"), QString());
        QCOMPARE(cTestFile::Bytes(target), QByteArray("new"));
        QCOMPARE(Names(), before);
    }

    void NoDatabaseIsReplaced_data()
    {
        const cTestRows<QString> row("name");
        row("itself", u"data.db"_s);
        row("its link", u"link.pdf"_s);
        row("its journal", u"data.db-journal"_s);
        row("its lock", u"data.db.lock"_s);
    }

    void NoDatabaseIsReplaced()
    {
        QFETCH(const QString, name);
        const QByteArray book("SQLite format 3\0 and more", 25);
        cTestFile::Write(m_files.Path(u"data.db"_s), book);
        QVERIFY(QFile::link(u"data.db"_s, m_files.Path(u"link.pdf"_s)));
        QVERIFY(modFileWrite::Replace(m_files.Path(name), "%PDF").contains(u"Haushaltsbuch"_s));
        QCOMPARE(cTestFile::Bytes(m_files.Path(u"data.db"_s)), book);
        QCOMPARE(Names(), (QStringList{u"data.db"_s, u"link.pdf"_s}));
    }

    void BookThatCouldNotBeReadIsNotExported()
    {
        const QString path = m_files.Path(u"a.csv"_s);
        cDatabase database(0); // waits for nobody
        database.Open(m_files.Make(), eOpenMode::ReadWrite);
        cFakeUser user;
        cDataAccess data(database, user);
        QCOMPARE(modFileWrite::Export(data, path, "yesterday"), QString());
        {
            cDatabase other;
            other.Open(database.Path(), eOpenMode::ReadWrite);
            other.Execute("BEGIN EXCLUSIVE");
            QVERIFY(data.GetTemplates().isEmpty());
        }
        QVERIFY(modFileWrite::Export(data, path, "today").contains(u"nicht vollständig gelesen"_s));
        QCOMPARE(cTestFile::Bytes(path), QByteArray("yesterday"));
        QCOMPARE(data.GetTemplates().size(), 1);
        QCOMPARE(modFileWrite::Export(data, path, "today"), QString());
    }

private:
    [[nodiscard]] cEntryExtract Extract() const
    {
        cEntryExtract extract = cEntryExtract::From(*m_model);
        extract.Title = u"Einträge & mehr"_s;
        extract.View = {u"Zeitraum: Alle Buchungen"_s};
        return extract;
    }

    [[nodiscard]] QByteArray Bytes(modExport::eFormat format)
    {
        const cEntryExtract extract = Extract();
        return modExport::Write(format, {extract, m_format.Format, m_progress}).Bytes.value_or(QByteArray());
    }

    [[nodiscard]] QStringList Lines(modExport::eFormat format) { return QString::fromUtf8(Bytes(format)).split(u'\n'); }

    cTestFormat m_format;
    cNoProgress m_progress;
    std::unique_ptr<cEntryListModel> m_model;
    cTestFile m_files;

    [[nodiscard]] QStringList Names() const
    {
        return QDir(m_files.Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
};

TEST_CLASS(testExport, QCoreApplication)
#include "testExport.moc"
