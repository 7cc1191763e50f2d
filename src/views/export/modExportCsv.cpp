#include "base/cText.h"
#include "views/export/modCsv.h"
#include "views/export/modExport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

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
        if (column.Content != modExport::eContent::Money) {
            fields.append(modCsv::Text(column.Text(row)));
            continue;
        }
        const std::optional<qint64> cents = column.Cents(row);
        fields.append(cents ? modCsv::Money(*cents) : QString());
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
    QByteArray bytes = modCsv::Mark + modCsv::Line(first + Titles(columns));
    cGroupName group(job.Extract.Groups);
    const bool isDone = ForEachRow(job, [&](qsizetype position, const cEntryExtract::cRow& row) {
        const QStringList name = isGrouped ? QStringList{modCsv::Text(group.At(position))} : QStringList();
        bytes += modCsv::Line(name + Fields(columns, row));
    });
    return isDone ? cResult{bytes, {}} : cResult{};
}
