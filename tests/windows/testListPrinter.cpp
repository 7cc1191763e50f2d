#include "model/modWord.h"
#include "support/cTestClass.h"
#include "support/cTestEntry.h"
#include "support/cTestRows.h"
#include "support/cTextRecorder.h"
#include "support/testFormat.h"
#include "views/list/cEntryListModel.h"
#include "windows/print/cListPrinter.h"

#include <QApplication>
#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int dotsPerInch = 144;

// A4 without its margins, at the recorder's resolution.
constexpr QSize portrait(1020, 1510);

cEntryItemList Entries(int count)
{
    cEntryItemList entries;
    for (int i = 0; i < count; ++i) {
        const QString type = i % 7 == 0 ? modWord::Einnahme : modWord::Ausgabe;
        const cTestEntry entry{
            .Day = QDate(2026, 1, 1).addDays(i), .Cents = 123456 + i, .Text = u"Einkauf%1"_s.arg(i), .Type = type};
        entries.append(entry.Make());
        entries.last().ID = i + 1;
    }
    return entries;
}

} // namespace

class testListPrinter final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryRowIsPrintedOnce_data()
    {
        const cTestRows<int, QString> row("rows", "grouping");
        row("one", 1, modWord::KeineGruppierung);
        row("many pages", 300, modWord::KeineGruppierung);
        row("groups of one row", 100, u"Nach Datum"_s);
        row("groups over several pages", 300, u"Nach Monat"_s);
    }

    void EveryRowIsPrintedOnce()
    {
        QFETCH(const int, rows);
        QFETCH(const QString, grouping);
        Show(Entries(rows), grouping);
        const std::vector<cSheet> sheets = Print(portrait);
        QCOMPARE(sheets.size() > 1, rows > 50);
        const QStringList texts = Texts(sheets);
        qint64 sum = 0;
        for (const cEntryItem& entry : Entries(rows)) {
            QCOMPARE(texts.count(entry.EntryDescription), 1);
            const qint64 cents = entry.EntryType == modWord::Einnahme ? entry.EntryValue : -entry.EntryValue;
            QVERIFY2(texts.contains(m_format.Format.Cents(cents)), qPrintable(entry.EntryDescription));
            sum += cents;
        }
        QVERIFY(Texts(sheets.back()).contains(m_format.Format.Cents(sum)));
    }

    void NothingLeavesThePage_data()
    {
        const cTestRows<QSize> row("size");
        row("A4", portrait);
        row("A4 across", portrait.transposed());
        row("A5", portrait / 1.414);
        row("A6, where even the smallest text is too wide", portrait / 2);
    }

    void NothingLeavesThePage()
    {
        QFETCH(const QSize, size);
        Show(Entries(120), u"Nach Monat"_s);
        const QRectF area = Area(size).adjusted(-1, -1, 1, 1);
        const std::vector<cSheet> sheets = Print(size);
        for (const cSheet& sheet : sheets) {
            for (std::size_t i = 0; i < sheet.size(); ++i) {
                QVERIFY2(area.contains(sheet[i].Place), qPrintable(sheet[i].Text));
                for (std::size_t other = i + 1; other < sheet.size(); ++other) {
                    const QRectF shared = sheet[i].Place.intersected(sheet[other].Place);
                    QVERIFY2(shared.width() < 1 || shared.height() < 2,
                             qPrintable(sheet[i].Text + u" / "_s + sheet[other].Text));
                }
            }
        }
    }

    void HeadsAndNumbersOnEveryPage()
    {
        Show(Entries(300));
        const std::vector<cSheet> sheets = Print(portrait);
        for (std::size_t page = 0; page < sheets.size(); ++page) {
            const QStringList texts = Texts(sheets[page]);
            QCOMPARE(texts.count(u"Beschreibung"_s), 1);
            QCOMPARE(texts.contains(u"Zeitraum: Aktuelles Jahr"_s), page == 0);
            QVERIFY(texts.contains(u"Seite %1 von %2"_s.arg(page + 1).arg(sheets.size())));
            QCOMPARE(texts.contains(u"Summe"_s), page + 1 == sheets.size());
        }
    }

    void GroupsGoOnWithTheirName()
    {
        Show(Entries(300), u"Nach Buchungsart"_s);
        const std::vector<cSheet> sheets = Print(portrait);
        QVERIFY(sheets.size() > 2);
        for (std::size_t page = 1; page < sheets.size(); ++page) {
            const QString first = Texts(sheets[page]).at(m_columns.size());
            QVERIFY2(first.contains("Fortsetzung"_L1) || first.startsWith("Einnahme"_L1), qPrintable(first));
            // A group's head is never the last thing of a page.
            const QString last = Texts(sheets[page - 1]).at(Texts(sheets[page - 1]).size() - 3);
            QVERIFY2(last.contains(u'€'), qPrintable(last));
        }
    }

    void LongTextsBreakAndEnd()
    {
        cEntryItemList entries = Entries(2);
        entries[0].EntryDescription = u"Nachzahlung der Nebenkosten "_s.repeated(3).trimmed();
        entries[1].EntryDescription = QString(2000, u'W');
        Show(entries);
        const QStringList texts = Texts(Print(portrait));
        QVERIFY2(texts.join(u' ').contains(entries[0].EntryDescription), qPrintable(texts.join(u'|')));
        QVERIFY(std::any_of(texts.begin(), texts.end(), [](const QString& text) { return text.endsWith(u'…'); }));
    }

    void AmountsAreNeverCut()
    {
        cEntryItemList entries = Entries(1);
        entries[0].EntryValue = 123456789012;
        entries[0].EntryCategory = u"Ein sehr langer Name; mit einer ebenso langen Unterkategorie"_s;
        Show(entries);
        QVERIFY(Texts(Print(portrait / 2)).contains(m_format.Format.Cents(123456789012)));
    }

    void BlackWhateverTheProgramLooksLike()
    {
        const QPalette before = QGuiApplication::palette();
        QGuiApplication::setPalette(
            QPalette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::black));
        Show(Entries(20), u"Nach Monat"_s);
        const std::vector<cSheet> sheets = Print(portrait);
        QGuiApplication::setPalette(before);
        for (const cWritten& written : sheets.front()) {
            QCOMPARE(written.Pen.rgb(), QColor(Qt::black).rgb());
        }
    }

    void EmptyListIsOnePage()
    {
        Show({});
        const std::vector<cSheet> sheets = Print(portrait);
        QCOMPARE(sheets.size(), 1U);
        QVERIFY(Texts(sheets).contains(u"Keine Daten"_s));
    }

    void EveryDeviceHasTheSamePages()
    {
        Show(Entries(300), u"Nach Monat"_s);
        QCOMPARE(Print(portrait * 8, dotsPerInch * 8).size(), Print(portrait).size());
    }

private:
    void Show(cEntryItemList entries, const QString& grouping = modWord::KeineGruppierung)
    {
        cEntryListModel::cContent content;
        content.Entries = std::move(entries);
        content.Today = QDate(2026, 3, 15);
        m_model.SetContent(content, {}, grouping);
    }
    [[nodiscard]] std::unique_ptr<cListPrinter> Printer() const
    {
        return std::make_unique<cListPrinter>(
            m_model, m_columns,
            cListPrinter::cHead{u"Einträge"_s,
                                {u"Zeitraum: Aktuelles Jahr"_s},
                                u"Kontorelle"_s,
                                {{u"Summe"_s, m_format.Format.Cents(m_model.Sums().Total())}}});
    }
    // The list on paper of this size.
    [[nodiscard]] std::vector<cSheet> Print(QSize size, int dots = dotsPerInch) const
    {
        const std::unique_ptr<cListPrinter> printer = Printer();
        std::vector<cSheet> sheets;
        int count = 1;
        for (int page = 0; page < count; ++page) {
            cTextRecorder recorder(size, dots);
            count = printer->LayOut(recorder, Area(size));
            QPainter painter(&recorder);
            printer->PaintPage(painter, page);
            painter.end();
            sheets.push_back(recorder.Sheet);
        }
        return sheets;
    }
    [[nodiscard]] static QRectF Area(QSize size) { return {QPointF(), QSizeF(size)}; }
    [[nodiscard]] static QStringList Texts(const cSheet& sheet)
    {
        QStringList texts;
        for (const cWritten& written : sheet) {
            texts.append(written.Text);
        }
        return texts;
    }
    [[nodiscard]] static QStringList Texts(const std::vector<cSheet>& sheets)
    {
        QStringList texts;
        for (const cSheet& sheet : sheets) {
            texts += Texts(sheet);
        }
        return texts;
    }

    cTestFormat m_format;
    cEntryListModel m_model{m_format.Format};
    QList<int> m_columns{cEntryListModel::Date,        cEntryListModel::Category, cEntryListModel::Account,
                         cEntryListModel::Description, cEntryListModel::Interval, cEntryListModel::Amount};
};

TEST_CLASS(testListPrinter, QApplication)
#include "testListPrinter.moc"
