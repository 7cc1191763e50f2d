#include "views/report/modReportExport.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "views/export/cWorkbook.h"
#include "views/export/modCsv.h"
#include "views/report/modReport.h"
#include "views/report/modReportHtml.h"

#include <QStringList>

#include <array>

namespace {

bool HasLimits(const cReportFigures& figures)
{
    return modReport::HasLimits(figures.Type);
}

// The columns of money in their order, with what stands in them.
QStringList MoneyTitles(eReport type)
{
    if (type == eReport::Budget) {
        return {cText::Tr("Budget"), cText::Tr("Übertrag"), modReport::AmountTitle(type), cText::Tr("Übrig")};
    }
    QStringList titles{modReport::AmountTitle(type)};
    if (type == eReport::Limit) {
        titles.append(cText::Tr("Limit"));
    }
    return titles;
}

QList<qint64> Money(const cReportAmount& amount, eReport type)
{
    if (type == eReport::Budget) {
        return {amount.Limit - amount.Carried, amount.Carried, amount.Cents, modReport::Left(amount)};
    }
    QList<qint64> money{amount.Cents};
    if (type == eReport::Limit) {
        money.append(amount.Limit);
    }
    return money;
}

// Limit and amount stand side by side, the number of entries last.
QStringList Titles(const cReportFigures& figures)
{
    return QStringList{cText::Tr("Art"), modReport::GroupTitle(figures.Type), cText::Tr("Kategorie")}
    << MoneyTitles(figures.Type) << cText::Tr("Einträge");
}

// Calls `write` for every category with its section, its group and itself.
template <typename tWrite>
void ForEachCategory(const cReportFigures& figures, tWrite write)
{
    for (const cReportSection* section : {&figures.Income, &figures.Expense}) {
        for (const cReportGroup& group : section->Groups) {
            for (const cReportCategory& category : group.Categories) {
                write(*section, group, category);
            }
        }
    }
}

class cSheet
{
public:
    cSheet(const cReportFigures& figures, cWorkbook& book) : m_figures(figures), m_book(book) {}

    [[nodiscard]] QByteArray Write()
    {
        WriteHead();
        ForEachCategory(m_figures, [this](const auto& section, const auto& group, const auto& category) {
            WriteRow({modReport::ShownKind(section.Kind), group.Label, category.Name}, category.Amount,
                     cWorkbook::Plain, cWorkbook::Money);
        });
        m_book.SetHead(m_row - 1, ColumnCount() - 1);
        WriteSums();
        return m_book.Close();
    }

private:
    [[nodiscard]] int ColumnCount() const { return static_cast<int>(Titles(m_figures).size()); }

    // In letters.
    [[nodiscard]] int Width(int column) const
    {
        constexpr std::array<int, 4> widths{12, 26, 30, 22};
        constexpr int money = 16;
        constexpr int count = 10;
        return column == ColumnCount() - 1 ? count : column < 4 ? widths[static_cast<std::size_t>(column)] : money;
    }

    void WriteHead()
    {
        const QString heading = modReportHtml::Heading(m_figures);
        m_book.SetTitle(heading, {});
        // "&" begins a field of the page's head and foot, and the head holds 255 characters.
        m_book.SetPrinting(QStringLiteral("&L") + QString(heading).replace(u'&', QStringLiteral("&&")).left(200),
                           QStringLiteral("&R")
                               + cText::Tr("Seite {0} von {1}", {QStringLiteral("&P"), QStringLiteral("&N")}));
        const QStringList titles = Titles(m_figures);
        for (int column = 0; column < ColumnCount(); ++column) {
            m_book.SetColumnWidth(column, Width(column));
            m_book.WriteText(0, column, titles.at(column), cWorkbook::Head);
        }
    }

    void WriteRow(const QStringList& texts, const cReportAmount& amount, cWorkbook::eStyle textStyle,
                  cWorkbook::eStyle moneyStyle)
    {
        int column = 0;
        for (const QString& text : texts) {
            m_book.WriteText(m_row, column++, text, textStyle);
        }
        const QList<qint64> money = Money(amount, m_figures.Type);
        for (const qint64 cents : money) {
            m_book.WriteMoney(m_row, column++, cents, moneyStyle);
        }
        m_book.WriteNumber(m_row, column, amount.Entries, textStyle);
        ++m_row;
    }

    // The totals as the report has them: averages are not the sum of the averages above them.
    void WriteSums()
    {
        ++m_row; // one row stays free, so that the filter ends above
        for (const cReportSection* section : {&m_figures.Income, &m_figures.Expense}) {
            if (section->Kind == eReportKind::Expense || !HasLimits(m_figures)) {
                WriteRow({modReport::ShownKind(section->Kind), {}, {}}, section->Amount, cWorkbook::SumName,
                         cWorkbook::SumMoney);
            }
        }
        m_book.WriteText(m_row, 0, modReport::Note(m_figures.Type), cWorkbook::Plain);
    }

    const cReportFigures& m_figures;
    cWorkbook& m_book;
    qsizetype m_row = 1; // the next one to write, counted from 0
};

} // namespace

QByteArray modReportExport::Csv(const cReportFigures& figures)
{
    QByteArray bytes = modCsv::Mark + modCsv::Line(Titles(figures));
    ForEachCategory(figures, [&](const auto& section, const auto& group, const auto& category) {
        QStringList fields{modReport::ShownKind(section.Kind), modCsv::Text(group.Label), modCsv::Text(category.Name)};
        const QList<qint64> money = Money(category.Amount, figures.Type);
        for (const qint64 cents : money) {
            fields.append(modCsv::Money(cents));
        }
        bytes += modCsv::Line(fields << QString::number(category.Amount.Entries));
    });
    return bytes;
}

modFileWrite::cContent modReportExport::Xlsx(const cReportFigures& figures, const cAmountFormat& format)
{
    const std::unique_ptr<cWorkbook> book = cWorkbook::Make(modReport::ShownName(figures.Type), format);
    return book ? modFileWrite::cContent{cSheet(figures, *book).Write()}
                : modFileWrite::cContent{{}, cWorkbook::Missing()};
}
