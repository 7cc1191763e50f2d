#include "base/cText.h"
#include "model/modWord.h"
#include "views/export/cWorkbook.h"
#include "views/export/modExport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using modExport::cColumn;
using modExport::eContent;

class cSheet
{
public:
    cSheet(const modExport::cJob& job, cWorkbook& book)
        : m_job(job),
          m_extract(job.Extract),
          m_columns(modExport::Columns(job.Extract)),
          m_book(book)
    {
        while (m_columns[At(m_amount)].Content != eContent::Money) {
            ++m_amount;
        }
    }

    [[nodiscard]] modExport::cResult Write();

private:
    static constexpr int typeColumn = 1;
    static constexpr int categoryColumn = 2;

    [[nodiscard]] static std::size_t At(int column) { return static_cast<std::size_t>(column); }
    [[nodiscard]] int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    void WriteHead();
    [[nodiscard]] bool WriteRows();
    void WriteGroup(const cEntryExtract::cGroup& group);
    void WriteRow(const cEntryExtract::cRow& row);
    void WriteSums();
    [[nodiscard]] QString Cells(int column, qsizetype first, qsizetype last) const;
    [[nodiscard]] QString GroupFormula(qsizetype first, qsizetype last) const;
    [[nodiscard]] QString SumFormula(const QString& type, const QString& sign) const;

    const modExport::cJob& m_job;
    const cEntryExtract& m_extract;
    std::vector<cColumn> m_columns;
    cWorkbook& m_book;
    int m_amount = 0;    // the first column of money; the balances stand behind it
    qsizetype m_row = 1; // the next one to write, counted from 0
};

modExport::cResult cSheet::Write()
{
    const qsizetype lines =
        static_cast<qsizetype>(m_extract.Rows.size()) + static_cast<qsizetype>(m_extract.Groups.size());
    constexpr qsizetype linesAround = 6;
    if (lines + linesAround > cWorkbook::MaxRows) {
        return {std::nullopt,
                cText::Tr("Eine Excel-Datei fasst höchstens {0} Zeilen.", {QString::number(cWorkbook::MaxRows)})};
    }
    WriteHead();
    if (!WriteRows()) {
        return {};
    }
    m_book.SetHead(m_row - 1, ColumnCount() - 1);
    WriteSums();
    return {m_book.Close(), {}};
}

void cSheet::WriteHead()
{
    m_book.SetTitle(m_extract.Title, m_extract.View.join(u'\n'));
    // "&" begins a field of the page's head and foot, and the head holds 255 characters.
    const QString title = QString(m_extract.Title).replace(u'&', u"&&"_s).left(200);
    m_book.SetPrinting(u"&L"_s + title, u"&R"_s + cText::Tr("Seite {0} von {1}", {u"&P"_s, u"&N"_s}));
    for (int column = 0; column < ColumnCount(); ++column) {
        m_book.SetColumnWidth(column, m_columns[At(column)].Width);
        m_book.WriteText(0, column, cText::Tr(m_columns[At(column)].Title), cWorkbook::Head);
    }
}

bool cSheet::WriteRows()
{
    auto group = m_extract.Groups.begin();
    return modExport::ForEachRow(m_job, [&](qsizetype position, const cEntryExtract::cRow& row) {
        if (group != m_extract.Groups.end() && group->First == position) {
            WriteGroup(*group++);
        }
        WriteRow(row);
    });
}

void cSheet::WriteGroup(const cEntryExtract::cGroup& group)
{
    for (int column = 0; column < ColumnCount(); ++column) {
        m_book.WriteBlank(m_row, column, cWorkbook::GroupName);
    }
    m_book.WriteText(m_row, 0, u"%1  (%2)"_s.arg(group.Name).arg(group.Count), cWorkbook::GroupName);
    m_book.WriteFormula(m_row, m_amount, GroupFormula(m_row + 1, m_row + group.Count), group.Sum,
                        cWorkbook::GroupMoney);
    ++m_row;
}

void cSheet::WriteRow(const cEntryExtract::cRow& row)
{
    if (!m_extract.Groups.empty()) {
        m_book.MarkAsGroupMember(m_row);
    }
    for (int index = 0; index < ColumnCount(); ++index) {
        const cColumn& column = m_columns[At(index)];
        if (column.Content == eContent::Date) {
            m_book.WriteDate(m_row, index, row.Entry.EntryDate);
        } else if (column.Content == eContent::Text) {
            m_book.WriteText(m_row, index, column.Text(row), cWorkbook::Plain);
        } else if (const std::optional<qint64> cents = column.Cents(row)) {
            m_book.WriteMoney(m_row, index, *cents, cWorkbook::Money);
        }
    }
    ++m_row;
}

void cSheet::WriteSums()
{
    const std::vector<modExport::cSum> sums = modExport::Sums(m_extract);
    const bool isAll = m_extract.Account.isEmpty();
    const QString income = isAll ? modWord::EntryTypes().ToShown(modWord::Einnahme) : u"?*"_s;
    const QString expense = isAll ? modWord::EntryTypes().ToShown(modWord::Ausgabe) : u"?*"_s;
    const qsizetype first = m_row + 1; // one row stays free, so that the filter ends above
    QStringList formulas;
    if (m_extract.Start) {
        formulas.append(u"=SUMIFS(%1,%2,\"%3\")"_s.arg(Cells(m_amount, 1, m_row - 1),
                                                       Cells(categoryColumn, 1, m_row - 1), modWord::Startguthaben));
    }
    formulas.append(SumFormula(income, isAll ? QString() : u">0"_s));
    formulas.append(SumFormula(expense, isAll ? QString() : u"<0"_s));
    formulas.append(u"=SUM("_s + Cells(m_amount, first, first + formulas.size() - 1) + u')');
    for (qsizetype i = 0; i < formulas.size(); ++i) {
        const modExport::cSum& sum = sums[At(static_cast<int>(i))];
        m_book.WriteText(first + i, 0, cText::Tr(sum.Title), cWorkbook::SumName);
        m_book.WriteFormula(first + i, m_amount, formulas.at(i), sum.Cents, cWorkbook::SumMoney);
    }
}

// "G2:G10"; the columns of the list never reach beyond Z.
QString cSheet::Cells(int column, qsizetype first, qsizetype last) const
{
    const QChar letter(u'A' + column);
    return u"%1%2:%1%3"_s.arg(letter).arg(first + 1).arg(last + 1);
}

// While all accounts are shown, the money of a transfer stays in the house and is not part of the sum.
QString cSheet::GroupFormula(qsizetype first, qsizetype last) const
{
    const QString amounts = Cells(m_amount, first, last);
    if (!m_extract.Account.isEmpty()) {
        return u"=SUM("_s + amounts + u')';
    }
    const QString transfer = modWord::EntryTypes().ToShown(modWord::Umbuchung);
    return u"=SUMIF(%1,\"<>%2\",%3)"_s.arg(Cells(typeColumn, first, last), transfer, amounts);
}

// Adds up the rows of a type but for start balances, with a condition for the amount where one is given. The heads of
// groups have no type, so that they are never counted twice.
QString cSheet::SumFormula(const QString& type, const QString& sign) const
{
    const QString amounts = Cells(m_amount, 1, m_row - 1);
    const QString types = Cells(typeColumn, 1, m_row - 1);
    QString condition = sign.isEmpty() ? QString() : u",%1,\"%2\""_s.arg(amounts, sign);
    if (m_extract.Start) {
        condition += u",%1,\"<>%2\""_s.arg(Cells(categoryColumn, 1, m_row - 1), modWord::Startguthaben);
    }
    return u"=SUMIFS(%1,%2,\"%3\"%4)"_s.arg(amounts, types, type, condition);
}

} // namespace

modExport::cResult modExport::Xlsx(const cJob& job)
{
    const std::unique_ptr<cWorkbook> book = cWorkbook::Make(cText::Tr("Einträge"), job.Format);
    return book ? cSheet(job, *book).Write() : cResult{std::nullopt, cWorkbook::Missing()};
}
