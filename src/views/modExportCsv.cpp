#include "base/cText.h"
#include "base/modAmount.h"
#include "views/modExport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar separator = u';';

// Table programs calculate what begins like a formula, even inside quotes. An apostrophe in front makes it plain text
// for them and leaves it readable for everybody else. Amounts are not touched: their sign is meant.
QString WithoutFormula(const QString& text)
{
    const bool isFormula = !text.isEmpty() && u"=+-@\t\r"_s.contains(text.front());
    return isFormula ? u'\'' + text : text;
}

QString Quoted(QString text)
{
    const bool needsQuotes = text.contains(separator) || text.contains(u'"') || text.contains(u'\n')
        || text.contains(u'\r') || text.startsWith(u' ') || text.endsWith(u' ');
    return needsQuotes ? u'"' + text.replace(u'"', u"\"\""_s) + u'"' : text;
}

QString TextField(const QString& text)
{
    return Quoted(WithoutFormula(text));
}

// No grouping and no currency, so that every program takes it for a number.
QString AmountField(std::optional<qint64> cents)
{
    return cents ? modAmount::CentsToText(*cents).replace(u'.', u',') : QString();
}

QStringList Titles(const std::vector<modExport::cColumn>& columns)
{
    QStringList titles;
    for (const modExport::cColumn& column : columns) {
        titles.append(cText::Tr(column.Title));
    }
    return titles;
}

QStringList Fields(const std::vector<modExport::cColumn>& columns, const cEntryExtract::cRow& row)
{
    QStringList fields;
    for (const modExport::cColumn& column : columns) {
        const bool isMoney = column.Content == modExport::eContent::Money;
        fields.append(isMoney ? AmountField(column.Cents(row)) : TextField(column.Text(row)));
    }
    return fields;
}

// The name of the group that each row belongs to, asked for in the order of the rows.
class cGroupName
{
public:
    explicit cGroupName(const std::vector<cEntryExtract::cGroup>& groups) : m_groups(groups) {}

    [[nodiscard]] QString At(qsizetype row)
    {
        while (m_at + 1 < m_groups.size() && m_groups[m_at + 1].First <= row) {
            ++m_at;
        }
        return m_groups[m_at].Name;
    }

private:
    const std::vector<cEntryExtract::cGroup>& m_groups;
    std::size_t m_at = 0;
};

} // namespace

// One line for each entry and nothing else: a line of sums would be added up with the rest by whoever reads the file.
// The group of an entry stands in a column of its own. The byte order mark tells table programs that this is UTF-8.
modExport::cResult modExport::Csv(const cJob& job)
{
    const bool isGrouped = !job.Extract.Groups.empty();
    const std::vector<cColumn> columns = Columns(job.Extract);
    const QStringList first = isGrouped ? QStringList{cText::Tr("Gruppe")} : QStringList();
    QByteArray bytes = "\xEF\xBB\xBF" + (first + Titles(columns)).join(separator).toUtf8() + "\r\n";
    cGroupName group(job.Extract.Groups);
    const bool isDone = ForEachRow(job, [&](qsizetype position, const cEntryExtract::cRow& row) {
        if (isGrouped) {
            bytes += TextField(group.At(position)).toUtf8() + QByteArray(1, separator.toLatin1());
        }
        bytes += Fields(columns, row).join(separator).toUtf8() + "\r\n";
    });
    return isDone ? cResult{bytes, {}} : cResult{};
}
