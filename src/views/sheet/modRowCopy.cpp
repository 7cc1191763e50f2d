#include "views/sheet/modRowCopy.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cCell
{
    QString Text;
    bool IsNumber = false;
};

bool IsNumber(const QVariant& alignment)
{
    return alignment.isValid() && (alignment.toInt() & Qt::AlignRight) != 0;
}

// Blanks of any kind become plain ones: a tab or a line break would begin another cell, and table programs do not take
// an amount with a no-break space for a number. What begins like a formula would be calculated when it is pasted.
cCell Clean(const QString& shown, bool isNumber)
{
    QString text = shown;
    for (QChar& c : text) {
        c = c.isSpace() ? u' ' : c;
    }
    const bool isFormula = !isNumber && !text.isEmpty() && u"=+-@"_s.contains(text.front());
    return {isFormula ? u'\'' + text : text, isNumber};
}

void AddLine(const QList<cCell>& cells, const QString& tag, cCopiedRows& copied)
{
    QStringList texts;
    copied.Html += u"<tr>"_s;
    for (const cCell& cell : cells) {
        texts.append(cell.Text);
        copied.Html +=
            u"<%1%2>%3</%1>"_s.arg(tag, cell.IsNumber ? u" align=\"right\""_s : QString(), cell.Text.toHtmlEscaped());
    }
    copied.Html += u"</tr>\n"_s;
    copied.Text += texts.join(u'\t') + u'\n';
}

} // namespace

cCopiedRows modRowCopy::Copy(const QAbstractItemModel& model, QModelIndexList rows, const QList<int>& columns)
{
    std::sort(rows.begin(), rows.end(), [](const QModelIndex& a, const QModelIndex& b) {
        return std::pair(a.parent().row(), a.row()) < std::pair(b.parent().row(), b.row());
    });
    cCopiedRows copied;
    copied.Html = u"<meta charset=\"utf-8\"><table>\n"_s;
    QList<cCell> cells;
    for (const int column : columns) {
        const QVariant alignment = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        cells.append(Clean(model.headerData(column, Qt::Horizontal).toString(), IsNumber(alignment)));
    }
    AddLine(cells, u"th"_s, copied);
    for (const QModelIndex& row : std::as_const(rows)) {
        cells.clear();
        for (const int column : columns) {
            const QModelIndex cell = row.siblingAtColumn(column);
            cells.append(Clean(cell.data().toString(), IsNumber(cell.data(Qt::TextAlignmentRole))));
        }
        AddLine(cells, u"td"_s, copied);
    }
    copied.Html += u"</table>"_s;
    return copied;
}
