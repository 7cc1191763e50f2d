#include "windows/print/cPrintColumns.h"

#include "windows/print/cPageText.h"

#include <algorithm>

namespace {

constexpr qreal gap = 7;        // points between columns
constexpr int longestWord = 24; // characters; what is longer may be broken
constexpr std::size_t mostSamples = 1000;

} // namespace

bool cPrintColumns::Fit(const std::vector<const QStringList*>& rows, const cPageText& text, qreal left, qreal right)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        Measure(i, rows, text);
    }
    const bool isFine = Share(right - left - text.Points(gap) * (static_cast<qreal>(m_columns.size()) - 1));
    Place(left, right, text.Points(gap));
    return isFine;
}

void cPrintColumns::Measure(std::size_t index, const std::vector<const QStringList*>& rows, const cPageText& text)
{
    cPrintColumn& column = m_columns[index];
    const qreal title = text.BoldWidth(column.Title);
    column.Word = title;
    const std::size_t step = rows.size() / mostSamples + 1;
    std::vector<qreal> widths{title};
    qsizetype longest = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString& cell = rows[i]->at(static_cast<qsizetype>(index));
        // Measuring is dear: every text of a short list is measured, of a long one a sample and what is not shorter
        // than the longest text so far. In the columns of digits, which never break, the longest one is the widest.
        if (cell.size() >= longest || i % step == 0) {
            longest = qMax(longest, cell.size());
            widths.push_back(text.Width(cell));
            const QStringList words = cell.split(u' ');
            for (const QString& word : words) {
                column.Word = qMax(column.Word, text.Width(word));
            }
        }
    }
    std::sort(widths.begin(), widths.end());
    column.Natural = widths.back();
    column.Word = qMin(column.Word, qMax(title, text.Width(QString(longestWord, u'n'))));
    column.Typical = qMax(column.Word, widths[widths.size() * 4 / 5]);
}

bool cPrintColumns::Share(qreal room)
{
    for (cPrintColumn& column : m_columns) {
        column.Width = column.IsFixed ? column.Natural : 0;
        room -= column.Width;
    }
    room = qMax(room, static_cast<qreal>(m_columns.size())); // on a scrap of paper something must remain
    const bool isFine = Widen(&cPrintColumn::Word, room);
    (void)(isFine && Widen(&cPrintColumn::Typical, room) && Widen(&cPrintColumn::Natural, room));
    return isFine;
}

bool cPrintColumns::Widen(qreal cPrintColumn::*width, qreal& room)
{
    std::vector<cPrintColumn*> wanting;
    for (cPrintColumn& column : m_columns) {
        if (column.Width < column.*width) {
            wanting.push_back(&column);
        }
    }
    const auto want = [width](const cPrintColumn* column) { return column->*width - column->Width; };
    std::sort(wanting.begin(), wanting.end(),
              [&want](const cPrintColumn* a, const cPrintColumn* b) { return want(a) < want(b); });
    // Who wants little gets it, the others share what is left.
    bool isEnough = true;
    for (std::size_t i = 0; i < wanting.size(); ++i) {
        const qreal share = room / static_cast<qreal>(wanting.size() - i);
        const qreal more = qMin(want(wanting[i]), share);
        isEnough = isEnough && more >= want(wanting[i]);
        wanting[i]->Width += more;
        room -= more;
    }
    return isEnough;
}

// What nobody wants goes to the column with the longest texts, so that the amounts end at the right edge.
void cPrintColumns::Place(qreal left, qreal right, qreal gapWidth)
{
    qreal length = gapWidth * (static_cast<qreal>(m_columns.size()) - 1);
    cPrintColumn* widest = &m_columns.front();
    for (cPrintColumn& column : m_columns) {
        length += column.Width;
        widest = !column.IsFixed && (widest->IsFixed || column.Natural >= widest->Natural) ? &column : widest;
    }
    widest->Width += qMax(0.0, right - left - length);
    for (cPrintColumn& column : m_columns) {
        column.Left = left;
        left += column.Width + gapWidth;
    }
}
