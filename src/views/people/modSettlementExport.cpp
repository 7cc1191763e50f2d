#include "views/people/modSettlementExport.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "core/cBookTools.h"
#include "views/export/cWorkbook.h"
#include "views/export/modCsv.h"
#include "views/people/modSettlementText.h"

#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<int, 6> widths{12, 40, 24, 18, 30, 16}; // characters
constexpr int nameColumn = 1;
constexpr int amountColumn = 5;

class cSettlementSheet
{
public:
    cSettlementSheet(const cSettlement& settlement, cWorkbook& book) : m_settlement(settlement), m_book(book) {}

    [[nodiscard]] QByteArray Write()
    {
        WriteHead();
        for (const cCountedEntry& counted : m_settlement.Counted) {
            WriteEntry(counted);
        }
        m_book.SetHead(m_row - 1, amountColumn);
        WritePeople();
        WritePayments();
        return m_book.Close();
    }

private:
    void WriteHead()
    {
        const QString heading = modSettlementText::Heading(m_settlement);
        m_book.SetTitle(heading, {});
        m_book.SetPrinting(u"&L"_s + heading, u"&R"_s + cText::Tr("Seite {0} von {1}", {u"&P"_s, u"&N"_s}));
        const QStringList titles = modSettlementText::EntryTitles();
        for (int column = 0; column <= amountColumn; ++column) {
            m_book.SetColumnWidth(column, widths[static_cast<std::size_t>(column)]);
            m_book.WriteText(0, column, titles.at(column), cWorkbook::Head);
        }
    }

    void WriteEntry(const cCountedEntry& counted)
    {
        const QStringList texts = modSettlementText::EntryTexts(counted);
        m_book.WriteDate(m_row, 0, counted.Entry.EntryDate);
        for (int column = nameColumn; column < amountColumn; ++column) {
            m_book.WriteText(m_row, column, texts.at(column), cWorkbook::Plain);
        }
        m_book.WriteMoney(m_row++, amountColumn, counted.Cents, cWorkbook::Money);
    }

    // One row stays free above each further table, so that the filter of the first one ends above.
    void WritePeople()
    {
        WriteTitles(modSettlementText::PersonTitles(), {1, 2, 3, 4, 5});
        for (const cPersonSum& person : m_settlement.People) {
            m_book.WriteText(m_row, nameColumn, person.Name, cWorkbook::Plain);
            int column = nameColumn;
            for (const qint64 cents : modSettlementText::PersonCents(person)) {
                m_book.WriteMoney(m_row, ++column, cents, cWorkbook::Money);
            }
            ++m_row;
        }
    }

    void WritePayments()
    {
        WriteTitles(modSettlementText::PaymentTitles(), {nameColumn, nameColumn + 1, amountColumn});
        for (const cPayment& payment : m_settlement.Payments) {
            m_book.WriteText(m_row, nameColumn, payment.From, cWorkbook::Plain);
            m_book.WriteText(m_row, nameColumn + 1, payment.To, cWorkbook::Plain);
            m_book.WriteMoney(m_row++, amountColumn, payment.Cents, cWorkbook::SumMoney);
        }
        if (m_settlement.Payments.isEmpty()) {
            m_book.WriteText(m_row++, nameColumn, modSettlementText::NothingToPay(m_settlement), cWorkbook::Plain);
        }
    }

    void WriteTitles(const QStringList& titles, const QList<int>& columns)
    {
        ++m_row;
        for (qsizetype i = 0; i < titles.size(); ++i) {
            m_book.WriteText(m_row, columns.at(i), titles.at(i), cWorkbook::SumName);
        }
        ++m_row;
    }

    const cSettlement& m_settlement;
    cWorkbook& m_book;
    qsizetype m_row = 1; // the next one to write, counted from 0
};

} // namespace

modFileWrite::cContent modSettlementExport::Content(const cSettlement& settlement, cReportExport::eFormat format,
                                                    const cBookTools& tools)
{
    using enum cReportExport::eFormat;
    switch (format) {
    case Html: return {modSettlementText::Page(settlement, tools.Format, tools.Clock.Today()).toUtf8()};
    case Csv: return {modSettlementExport::Csv(settlement)};
    case Xlsx: return modSettlementExport::Xlsx(settlement, tools.Format);
    }
    return {};
}

QByteArray modSettlementExport::Csv(const cSettlement& settlement)
{
    QByteArray bytes = modCsv::Mark + modCsv::Line(modSettlementText::EntryTitles());
    for (const cCountedEntry& counted : settlement.Counted) {
        QStringList fields = modSettlementText::EntryTexts(counted);
        for (qsizetype i = 1; i < fields.size(); ++i) {
            fields[i] = modCsv::Text(fields.at(i)); // all but the day
        }
        bytes += modCsv::Line(fields << modCsv::Money(counted.Cents));
    }
    return bytes;
}

modFileWrite::cContent modSettlementExport::Xlsx(const cSettlement& settlement, const cAmountFormat& format)
{
    const std::unique_ptr<cWorkbook> book = cWorkbook::Make(cText::Tr("Ausgleich"), format);
    return book ? modFileWrite::cContent{cSettlementSheet(settlement, *book).Write()}
                : modFileWrite::cContent{{}, cWorkbook::Missing()};
}
