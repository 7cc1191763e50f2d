#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "views/export/modExport.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using modExport::cColumn;
using modExport::eContent;

// Light whatever the reader's theme is, and printable: the head of the table comes again on every page. Colours only
// repeat what the signs say.
const QByteArray style = R"(:root{color-scheme:light}
body{margin:2em auto;max-width:75em;padding:0 1em;background:#fff;color:#1c1f23;font:15px/1.4 system-ui,sans-serif}
h1{margin:0 0 .2em;font-size:1.5em}
p{margin:0;color:#50565d}
table{width:100%;margin-top:1.2em;border-collapse:collapse;font-size:.93em}
th,td{padding:.3em .55em;text-align:left;vertical-align:top;border-bottom:1px solid #dfe3e7}
thead th{border-bottom:2px solid #8a939c}
td.d,td.m,th.m{white-space:nowrap}
td.m,th.m{text-align:right;font-variant-numeric:tabular-nums}
td.n{color:#a4262c}
tr.g th{background:#eef1f4;border-top:1px solid #c4cad0}
tr{break-inside:avoid}
tr.g{break-after:avoid}
tfoot{display:table-row-group}
tfoot th{border-bottom:0}
tfoot tr:first-child th{border-top:2px solid #8a939c;padding-top:.6em}
@media print{body{margin:0;max-width:none;padding:0;font-size:10pt}}
)"_ba;

QByteArray Escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(u'\n', u"<br>"_s).toUtf8();
}

QByteArray Cell(const cColumn& column, const cEntryExtract::cRow& row, const cAmountFormat& format)
{
    if (column.Content == eContent::Money) {
        const std::optional<qint64> cents = column.Cents(row);
        const QByteArray kind = cents.value_or(0) < 0 ? "m n" : "m";
        return "<td class=\"" + kind + "\">" + (cents ? Escaped(format.Cents(*cents)) : QByteArray()) + "</td>";
    }
    if (column.Content == eContent::Date) {
        return "<td class=\"d\">" + Escaped(modDate::ToText(row.Entry.EntryDate)) + "</td>"; // read by people
    }
    return "<td>" + Escaped(column.Text(row)) + "</td>";
}

// A line with a name on the left and a sum under the amounts; used for groups and for the sums of the list.
QByteArray SumLine(const std::vector<cColumn>& columns, const QString& name, const QString& sum)
{
    qsizetype before = 0;
    while (columns[static_cast<std::size_t>(before)].Content != eContent::Money) {
        ++before;
    }
    QByteArray line = "<th colspan=\"" + QByteArray::number(before) + "\">" + Escaped(name) + "</th><th class=\"m\">"
        + Escaped(sum) + "</th>";
    if (static_cast<qsizetype>(columns.size()) > before + 1) {
        line += "<th></th>"; // under the balances
    }
    return line;
}

QByteArray Head(const cEntryExtract& extract, const std::vector<cColumn>& columns)
{
    QByteArray html = "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
                      "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">\n<title>"
        + Escaped(extract.Title) + "</title>\n<style>\n" + style + "</style>\n</head>\n<body>\n<h1>"
        + Escaped(extract.Title) + "</h1>\n";
    for (const QString& line : extract.View) {
        html += "<p>" + Escaped(line) + "</p>\n";
    }
    html += "<table>\n<thead><tr>";
    for (const cColumn& column : columns) {
        html += (column.Content == eContent::Money ? "<th class=\"m\">" : "<th>") + Escaped(cText::Tr(column.Title))
            + "</th>";
    }
    return html + "</tr></thead>\n<tbody>\n";
}

} // namespace

modExport::cResult modExport::Html(const cJob& job)
{
    const cEntryExtract& extract = job.Extract;
    const std::vector<cColumn> columns = Columns(extract);
    QByteArray html = Head(extract, columns);
    auto group = extract.Groups.begin();
    const bool isDone = ForEachRow(job, [&](qsizetype position, const cEntryExtract::cRow& row) {
        if (group != extract.Groups.end() && group->First == position) {
            const QString name = u"%1  (%2)"_s.arg(group->Name).arg(group->Count);
            html += "<tr class=\"g\">" + SumLine(columns, name, job.Format.Cents(group->Sum)) + "</tr>\n";
            ++group;
        }
        html += "<tr>";
        for (const cColumn& column : columns) {
            html += Cell(column, row, job.Format);
        }
        html += "</tr>\n";
    });
    if (!isDone) {
        return {};
    }
    html += "</tbody>\n<tfoot>\n";
    for (const cSum& sum : Sums(extract)) {
        html += "<tr>" + SumLine(columns, cText::Tr(sum.Title), job.Format.Cents(sum.Cents)) + "</tr>\n";
    }
    return {html + "</tfoot>\n</table>\n</body>\n</html>\n", {}};
}
