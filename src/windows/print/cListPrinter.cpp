#include "windows/print/cListPrinter.h"

#include "base/cText.h"
#include "views/ledger/cStatementListModel.h"
#include "views/list/cEntryListModel.h"
#include "views/main/cMainModel.h"
#include "views/main/modViewText.h"

#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal gap = 7;     // points between texts side by side
constexpr qreal padding = 2; // points above and below a row

// Sizes of text that are tried one after the other until the columns fit.
constexpr std::array<qreal, 4> sizes{9, 8, 7, 6};

const QColor lineColor(0xB8, 0xB8, 0xB8);
const QColor groupColor(0xEA, 0xEA, 0xEA);

bool IsMoneyColumn(int column)
{
    return column == cEntryListModel::Amount || column == cEntryListModel::Balance;
}

// Descriptions may hold line ends, and an arrow stays with the account that it points at.
QString Breakable(const QString& text)
{
    return text.simplified().replace(u"→ "_s, u"→\u00a0"_s);
}

void DrawRight(QPainter& painter, qreal right, qreal y, qreal height, const QString& text)
{
    painter.drawText(QRectF(right - 10000, y, 10000, height), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     text);
}

void DrawLeft(QPainter& painter, qreal left, qreal y, qreal height, const QString& text)
{
    painter.drawText(QRectF(left, y, 10000, height), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

QList<cListPrinter::cSum> SumLines(const cSumTexts& sums)
{
    QList<cListPrinter::cSum> lines{
        {cText::Tr("Einnahmen"), sums.Income}, {cText::Tr("Ausgaben"), sums.Expense}, {cText::Tr("Summe"), sums.Total}};
    if (!sums.Start.isEmpty()) {
        lines.prepend({cText::Tr("Startguthaben"), sums.Start});
    }
    return lines;
}

} // namespace

cListPrinter::cListPrinter(const cEntryListModel& model, const QList<int>& columns, cHead head)
    : m_head(std::move(head))
{
    for (const int column : columns) {
        const bool isFixed = IsMoneyColumn(column) || column == cEntryListModel::Date;
        m_columns.Add({model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                       column == cEntryListModel::Amount, IsMoneyColumn(column), isFixed});
    }
    TakeRows(model, columns);
}

cListPrinter::cListPrinter(const cStatementListModel& statement) : m_head(HeadOf(statement))
{
    using eColumn = cStatementListModel::eColumn;
    const QList<int> columns{eColumn::Day, eColumn::Counterparty, eColumn::Purpose, eColumn::Amount, eColumn::Balance};
    for (const int column : columns) {
        const bool isMoney = column == eColumn::Amount || column == eColumn::Balance;
        m_columns.Add({statement.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                       column == eColumn::Amount, isMoney, isMoney || column == eColumn::Day});
    }
    for (int row = 0; row < statement.rowCount(); ++row) {
        TakeRow(statement.index(row, 0), columns);
    }
}

cListPrinter::~cListPrinter() = default;

cListPrinter::cHead cListPrinter::HeadOf(const cStatementListModel& statement)
{
    return {statement.Title(), statement.Lines() + statement.Findings(), cPageText::Foot(statement.Today()),
            SumLines(statement.SumTexts())};
}

cListPrinter::cHead cListPrinter::HeadOf(const cMainModel& model)
{
    return {modViewText::Title(model.View()), model.ViewLines(), cPageText::Foot(model.Today()),
            SumLines(model.SumTexts())};
}

void cListPrinter::TakeRow(const QModelIndex& index, const QList<int>& columns)
{
    cRow row;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const QString text = index.siblingAtColumn(columns.at(i)).data().toString();
        row.Cells.append(m_columns.All()[static_cast<std::size_t>(i)].IsMoney ? text : Breakable(text));
    }
    m_rows.push_back(row);
}

void cListPrinter::TakeRows(const cEntryListModel& model, const QList<int>& columns)
{
    for (int top = 0; top < model.rowCount(); ++top) {
        const QModelIndex index = model.index(top, 0);
        if (!model.IsGrouped()) {
            TakeRow(index, columns);
            continue;
        }
        m_rows.push_back(
            {{index.data().toString(), index.siblingAtColumn(cEntryListModel::Amount).data().toString()}, true});
        for (int row = 0; row < model.rowCount(index); ++row) {
            TakeRow(model.index(row, 0, index), columns);
        }
    }
}

int cListPrinter::LayOut(QPaintDevice& device, const QRectF& area)
{
    m_area = area;
    std::vector<const QStringList*> rows;
    for (const cRow& row : m_rows) {
        if (!row.IsGroup) {
            rows.push_back(&row.Cells);
        }
    }
    for (const qreal size : sizes) {
        m_text = std::make_unique<cPageText>(device, size);
        if (m_columns.Fit(rows, *m_text, area.left(), area.right())) {
            break;
        }
    }
    BreakPages();
    return static_cast<int>(m_pages.size());
}

qreal cListPrinter::RowHeight(const cRow& row) const
{
    qsizetype lines = 1;
    for (qsizetype i = 0; !row.IsGroup && i < row.Cells.size(); ++i) {
        const cPrintColumn& column = m_columns.All()[static_cast<std::size_t>(i)];
        if (!column.IsFixed) {
            lines = qMax(lines, m_text->Wrap(row.Cells.at(i), column.Width).size());
        }
    }
    return static_cast<qreal>(lines) * m_text->LineHeight() + m_text->Points(2 * padding);
}

qreal cListPrinter::HeadHeight() const
{
    qsizetype lines = 0;
    for (const QString& line : m_head.View) {
        lines += m_text->Wrap(line, m_area.width()).size();
    }
    return m_text->TitleHeight() + static_cast<qreal>(lines) * m_text->LineHeight() + m_text->Points(10);
}

qreal cListPrinter::ColumnHeadHeight() const
{
    return m_text->LineHeight() + m_text->Points(2 * padding + 1); // with the line under them
}

qreal cListPrinter::SumsHeight() const
{
    return m_text->Points(6)
        + static_cast<qreal>(m_head.Sums.size()) * (m_text->LineHeight() + m_text->Points(padding));
}

// Fills pages with rows, one after the other.
class cListPrinter::cFlow
{
public:
    cFlow(cListPrinter& printer, qreal line) : m_printer(printer), m_line(line)
    {
        const QRectF& area = printer.m_area;
        m_bottom = area.bottom() - line - printer.m_text->Points(4); // the foot
        m_y = area.top() + printer.HeadHeight() + printer.ColumnHeadHeight();
        m_printer.m_pages = {cPage{}};
    }

    void Add(std::size_t index)
    {
        const cRow& row = m_printer.m_rows[index];
        const qreal height = m_printer.RowHeight(row);
        // The head of a group stays with its first row.
        const bool hasNext = row.IsGroup && index + 1 < m_printer.m_rows.size();
        const qreal needed = height + (hasNext ? m_printer.RowHeight(m_printer.m_rows[index + 1]) : 0);
        if (m_y + needed > m_bottom && m_printer.m_pages.back().Count > 0) {
            Break(index, row.IsGroup ? -1 : m_group);
        }
        m_group = row.IsGroup ? static_cast<qsizetype>(index) : m_group;
        ++m_printer.m_pages.back().Count;
        m_y += height;
    }

    void AddSums()
    {
        if (m_y + m_printer.SumsHeight() > m_bottom && m_printer.m_pages.back().Count > 0) {
            Break(m_printer.m_rows.size(), -1);
        }
        m_printer.m_pages.back().HasSums = true;
    }

private:
    void Break(std::size_t first, qsizetype heading)
    {
        m_printer.m_pages.push_back({first, 0, heading, false});
        m_y = m_printer.m_area.top() + m_printer.ColumnHeadHeight() + (heading < 0 ? 0 : m_line);
    }

    cListPrinter& m_printer;
    qreal m_line; // height of a row of one line
    qreal m_bottom = 0;
    qreal m_y = 0;
    qsizetype m_group = -1;
};

void cListPrinter::BreakPages()
{
    cFlow flow(*this, m_text->LineHeight() + m_text->Points(2 * padding));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        flow.Add(i);
    }
    if (!m_head.Sums.isEmpty()) {
        flow.AddSums();
    }
}

void cListPrinter::PaintPage(QPainter& painter, int page) const
{
    const cPage& content = m_pages[static_cast<std::size_t>(page)];
    painter.setPen(Qt::black);
    qreal y = m_area.top();
    if (page == 0) {
        PaintHead(painter, y);
    }
    PaintColumnHeads(painter, y);
    if (content.Heading >= 0) {
        const QString& name = m_rows[static_cast<std::size_t>(content.Heading)].Cells.constFirst();
        PaintGroup(painter, cText::Tr("{0} – Fortsetzung", {name}), {}, y);
    }
    for (std::size_t i = content.First; i < content.First + content.Count; ++i) {
        const cRow& row = m_rows[i];
        if (row.IsGroup) {
            PaintGroup(painter, row.Cells.at(0), row.Cells.at(1), y);
        } else {
            PaintRow(painter, row, y);
        }
    }
    if (m_rows.empty()) {
        painter.setFont(m_text->Text());
        DrawLeft(painter, m_area.left(), y, m_text->LineHeight() * 2, cText::Tr("Keine Daten"));
    } else if (content.HasSums) {
        PaintSums(painter, y);
    }
    PaintFoot(painter, page);
}

void cListPrinter::PaintHead(QPainter& painter, qreal& y) const
{
    painter.setFont(m_text->Title());
    DrawLeft(painter, m_area.left(), y, m_text->TitleHeight(), m_head.Title);
    y += m_text->TitleHeight();
    painter.setFont(m_text->Text());
    for (const QString& line : m_head.View) {
        const QStringList wrapped = m_text->Wrap(line, m_area.width());
        for (const QString& part : wrapped) {
            DrawLeft(painter, m_area.left(), y, m_text->LineHeight(), part);
            y += m_text->LineHeight();
        }
    }
    y += m_text->Points(10);
}

void cListPrinter::PaintColumnHeads(QPainter& painter, qreal& y) const
{
    const qreal height = m_text->LineHeight() + m_text->Points(2 * padding);
    painter.setFont(m_text->Bold());
    for (const cPrintColumn& column : m_columns.All()) {
        if (column.IsMoney) {
            DrawRight(painter, column.Left + column.Width, y, height, column.Title);
        } else {
            DrawLeft(painter, column.Left, y, height, m_text->BoldElided(column.Title, column.Width));
        }
    }
    const qreal line = y + height;
    painter.setPen(QPen(Qt::black, m_text->Points(0.7)));
    painter.drawLine(QPointF(m_area.left(), line), QPointF(m_area.right(), line));
    y += ColumnHeadHeight();
}

qreal cListPrinter::SumRight() const
{
    const std::vector<cPrintColumn>& columns = m_columns.All();
    const auto amount =
        std::find_if(columns.begin(), columns.end(), [](const cPrintColumn& column) { return column.IsAmount; });
    return amount == columns.end() ? m_area.right() : amount->Left + amount->Width;
}

void cListPrinter::PaintGroup(QPainter& painter, const QString& name, const QString& sum, qreal& y) const
{
    const qreal height = m_text->LineHeight() + m_text->Points(2 * padding);
    painter.fillRect(QRectF(m_area.left(), y, m_area.width(), height), groupColor);
    painter.setPen(Qt::black);
    painter.setFont(m_text->Bold());
    const qreal room = SumRight() - m_area.left() - m_text->BoldWidth(sum) - m_text->Points(gap);
    DrawLeft(painter, m_area.left() + m_text->Points(padding), y, height, m_text->BoldElided(name, room));
    DrawRight(painter, SumRight(), y, height, sum);
    y += height;
}

void cListPrinter::PaintRow(QPainter& painter, const cRow& row, qreal& y) const
{
    const qreal line = m_text->LineHeight();
    const qreal top = y + m_text->Points(padding);
    qsizetype most = 1;
    painter.setPen(Qt::black);
    painter.setFont(m_text->Text());
    for (qsizetype i = 0; i < row.Cells.size(); ++i) {
        const cPrintColumn& column = m_columns.All()[static_cast<std::size_t>(i)];
        if (column.IsMoney) {
            DrawRight(painter, column.Left + column.Width, top, line, row.Cells.at(i));
            continue;
        }
        const QStringList lines = m_text->Wrap(row.Cells.at(i), column.Width);
        for (qsizetype at = 0; at < lines.size(); ++at) {
            DrawLeft(painter, column.Left, top + static_cast<qreal>(at) * line, line, lines.at(at));
        }
        most = qMax(most, lines.size());
    }
    y = top + static_cast<qreal>(most) * line + m_text->Points(padding);
    painter.setPen(QPen(lineColor, m_text->Points(0.4)));
    painter.drawLine(QPointF(m_area.left(), y), QPointF(m_area.right(), y));
}

void cListPrinter::PaintSums(QPainter& painter, qreal y) const
{
    const qreal height = m_text->LineHeight() + m_text->Points(padding);
    qreal widest = 0;
    for (const cSum& sum : m_head.Sums) {
        widest = qMax(widest, m_text->BoldWidth(sum.Amount));
    }
    painter.setPen(Qt::black);
    painter.setFont(m_text->Bold());
    y += m_text->Points(6);
    for (const cSum& sum : m_head.Sums) {
        DrawRight(painter, SumRight() - widest - m_text->Points(2 * gap), y, height, sum.Title);
        DrawRight(painter, SumRight(), y, height, sum.Amount);
        y += height;
    }
}

void cListPrinter::PaintFoot(QPainter& painter, int page) const
{
    const qreal y = m_area.bottom() - m_text->LineHeight();
    painter.setPen(Qt::black);
    painter.setFont(m_text->Text());
    DrawLeft(painter, m_area.left(), y, m_text->LineHeight(), m_head.Foot);
    const QStringList numbers{QString::number(page + 1), QString::number(m_pages.size())};
    DrawRight(painter, m_area.right(), y, m_text->LineHeight(), cText::Tr("Seite {0} von {1}", numbers));
}
