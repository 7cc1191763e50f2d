#include "views/statement/modImportPreview.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "import/cell/modTableValue.h"
#include "import/read/cStatementRead.h"
#include "import/read/cTableLayout.h"
#include "import/stage/cImportResult.h"
#include "import/table/cTable.h"
#include "import/table/modTable.h"
#include "import/table/modTableRows.h"
#include "model/modCutText.h"
#include "views/ledger/modImportText.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// The number format that the reader would find in all rows of the table.
eNumberFormat NumberOf(const modTable::cOpened& opened)
{
    const cTableLayout& layout = opened.Layout;
    if (layout.Number != eNumberFormat::Detect) {
        return layout.Number;
    }
    modTableValue::cNumberVote vote;
    for (int row = layout.FirstRow; row < opened.Table->RowCount(); ++row) {
        for (const int column : {layout.Map.Amount, layout.Map.Debit, layout.Map.Credit}) {
            vote.Add(opened.Table->Cell(row, column));
        }
    }
    return vote.Decide();
}

// In `layout` the row is the first one.
cPreviewRow RowOf(const cTable& table, int row, const cTableLayout& layout, const cAmountFormat& format)
{
    cPreviewRow shown{.Line = table.Line(row), .Cells = table.Row(row)};
    cTable one;
    one.AddRow(shown.Line);
    for (const QString& cell : std::as_const(shown.Cells)) {
        one.AddCell(cell);
    }
    if (!layout.IsReadable()) {
        return shown;
    }
    const cStatementRead read = modTableRows::Read(one, layout, {});
    shown.IsLeftOut = read.Entries.isEmpty();
    const cImportEntry entry = read.Entries.isEmpty() ? read.Skipped.value(0).Entry : read.Entries.first();
    shown.Remark = !read.Skipped.isEmpty() ? modImportPreview::Kind(read.Skipped.first().Kind)
        : read.Problems.isEmpty()          ? QString()
                                           : read.Problems.first().Text.section(u':', 0, 0);
    shown.Day = entry.ImportDate.isValid() ? modDate::ToText(entry.ImportDate) : QString();
    shown.Name = entry.ImportBeneficiary.simplified();
    shown.Purpose = entry.ImportPurpose.simplified();
    if (entry.ImportDate.isValid()) {
        shown.Amount = format.Cents(entry.ImportValue);
    }
    return shown;
}

} // namespace

QList<cPreviewRow> modImportPreview::Rows(const modTable::cOpened& opened, const cAmountFormat& format, int most)
{
    const int first = opened.Layout.FirstRow;
    cTableLayout layout = opened.Layout;
    const int all = layout.EndRow < 0 ? opened.Table->RowCount() : layout.EndRow;
    const int end = qMin(all, first + most);
    layout.Notes.clear(); // they are about the whole table
    layout.Number = NumberOf(opened);
    layout.HeaderRow = -1;
    layout.FirstRow = 0;
    QList<cPreviewRow> rows;
    for (int row = first; row < end; ++row) {
        rows.append(RowOf(*opened.Table, row, layout, format));
    }
    return rows;
}

QList<cPreviewRow> modImportPreview::Rows(const cImportEntryList& entries, const cAmountFormat& format, int most)
{
    QList<cPreviewRow> rows;
    for (const cImportEntry& entry : entries.first(qMin(entries.size(), qsizetype{most}))) {
        rows.append({.Day = modDate::ToText(entry.ImportDate),
                     .Name = modCutText::Name(entry.ImportBeneficiary).simplified(),
                     .Purpose = modCutText::Purpose(entry.ImportPurpose).simplified(),
                     .Amount = format.Cents(entry.ImportValue)});
    }
    return rows;
}

QString modImportPreview::Kind(eSkipped kind)
{
    switch (kind) {
    case eSkipped::Pending: return cText::Tr("vorgemerkt");
    case eSkipped::Balance: return cText::Tr("Saldo");
    case eSkipped::Unreadable: return cText::Tr("nicht lesbar");
    case eSkipped::OtherCurrency: return cText::Tr("andere Währung");
    case eSkipped::Void: return cText::Tr("nicht ausgeführt");
    case eSkipped::CutOff: return cText::Tr("vielleicht abgeschnitten");
    }
    return {};
}

QString modImportPreview::Count(const cImportResult& result, const cAmountFormat& format)
{
    QStringList parts{cText::Tr("{0} neu", {modImportText::Count(result.Staged)})};
    if (!result.Rows.isEmpty()) {
        const auto isEarlier = [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate < b.ImportDate; };
        const auto [first, last] = std::minmax_element(result.Rows.begin(), result.Rows.end(), isEarlier);
        qint64 sum = 0;
        for (const cImportEntry& row : result.Rows) {
            sum += row.ImportValue;
        }
        parts.append(
            cText::Tr("vom {0} bis {1}", {modDate::ToText(first->ImportDate), modDate::ToText(last->ImportDate)}));
        parts.append(cText::Tr("zusammen {0}", {format.Cents(sum)}));
    }
    if (const qsizetype known = result.Duplicates.size() + result.Alike.size(); known > 0) {
        parts.append(cText::Tr("{0} schon vorhanden", {QString::number(known)}));
    }
    if (!result.Repeats.isEmpty()) {
        parts.append(cText::Tr("{0} mehrfach gleich", {QString::number(result.Repeats.size())}));
    }
    if (!result.Skipped.isEmpty()) {
        parts.append(cText::Tr("{0} ausgelassen", {QString::number(result.Skipped.size())}));
    }
    return parts.join(u", "_s);
}

QStringList modImportPreview::LeftOut(const cImportResult& result, const cAmountFormat& format, qsizetype most)
{
    QStringList lines;
    for (const cReadProblem& problem : result.Problems) {
        lines.append(modImportText::Problem(problem));
    }
    for (const cSkippedRow& row : result.Skipped) {
        lines.append(modImportText::Problem(row.Reason));
    }
    for (const cImportEntry& row : result.Duplicates + result.Alike) {
        lines.append(cText::Tr("schon vorhanden: {0}", {modImportText::Row(row, format)}));
    }
    for (const cRepeat& repeat : result.Repeats) {
        lines.append(cText::Tr("mehrfach gleich: {0}", {modImportText::Row(repeat.Entry, format)}));
    }
    if (result.Zero > 0) {
        lines.append(cText::Tr("ohne Betrag: {0}", {modImportText::Count(result.Zero)}));
    }
    if (lines.size() > most) {
        const QString rest = QString::number(lines.size() - most);
        lines = lines.first(most) + QStringList(cText::Tr("… und {0} weitere", {rest}));
    }
    return lines;
}
