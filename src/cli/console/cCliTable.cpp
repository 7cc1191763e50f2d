#include "cli/console/cCliTable.h"

using namespace Qt::Literals::StringLiterals;

void cCliTable::Add(const QStringList& row)
{
    QStringList cut;
    for (qsizetype i = 0; i < m_columns.size(); ++i) {
        cut.append(Cut(i, row.value(i)));
    }
    m_rows.append(cut);
}

QString cCliTable::Cut(qsizetype column, const QString& text) const
{
    const int longest = m_columns.at(column).Longest;
    const QString line = text.simplified(); // bank texts may hold line breaks
    return longest > 0 && line.size() > longest ? line.left(longest - 1) + u'…' : line;
}

QString cCliTable::ToString() const
{
    QStringList titles;
    QList<int> widths;
    for (qsizetype i = 0; i < m_columns.size(); ++i) {
        titles.append(m_columns.at(i).Title);
        qsizetype width = titles.constLast().size();
        for (const QStringList& row : m_rows) {
            width = qMax(width, row.at(i).size());
        }
        widths.append(static_cast<int>(width));
    }
    QString text;
    for (const QStringList& row : QList<QStringList>{titles} + m_rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            const bool isRight = m_columns.at(i).Align == eAlign::Right;
            line += isRight ? row.at(i).rightJustified(widths.at(i)) : row.at(i).leftJustified(widths.at(i));
            line += u"  "_s;
        }
        while (line.endsWith(u' ')) {
            line.chop(1);
        }
        text += line + u'\n';
    }
    return text;
}
