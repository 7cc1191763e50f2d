#include "import/sheet/modSpreadsheet.h"

#include "base/cText.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/sheet/modHtmlTable.h"
#include "import/sheet/modSheetXml.h"
#include "import/sheet/modXls.h"
#include "import/sheet/modXlsx.h"
#include "import/zip/modZip.h"

#include <algorithm>

namespace {

// What a known or remembered layout says about numbers and days holds for texts. Cells that are numbers and days in the
// workbook have their form already.
cTableLayout LayoutOf(const cSheet& sheet, const cReadOptions& options)
{
    cTableLayout layout = modTable::Detect(sheet.Table, options);
    const cColumnMap& map = layout.Map;
    if (sheet.HasNumbers(map.Amount) || sheet.HasNumbers(map.Credit) || sheet.HasNumbers(map.Debit)) {
        layout.Number = eNumberFormat::German;
    }
    if (sheet.HasDays(map.Date)) {
        layout.Date = eDateOrder::DayMonthYear;
    }
    return layout;
}

struct cSheetRead
{
    const cSheet* Sheet = nullptr;
    cTableLayout Layout;
    cStatementRead Read;
};

cSheetRead ReadSheet(const cSheet& sheet, const cReadOptions& options)
{
    const cTableLayout layout = LayoutOf(sheet, options);
    return {&sheet, layout, modTable::ReadRows(sheet.Table, layout, options)};
}

// The sheet with the most transactions; of equal ones the first.
cSheetRead ReadBest(const QList<cSheet>& sheets, const cReadOptions& options)
{
    const auto chosen = std::find_if(sheets.begin(), sheets.end(), [&](const cSheet& sheet) {
        return !options.Table.Sheet.isEmpty() && sheet.Name == options.Table.Sheet;
    });
    if (chosen != sheets.end()) {
        return ReadSheet(*chosen, options);
    }
    cSheetRead best = ReadSheet(sheets.first(), options);
    for (qsizetype i = 1; i < sheets.size(); ++i) {
        cSheetRead next = ReadSheet(sheets.at(i), options);
        if (next.Read.Entries.size() > best.Read.Entries.size()) {
            best = std::move(next);
        }
    }
    return best;
}

} // namespace

bool modSpreadsheet::IsWorkbook(const cStatementSource& source)
{
    return !source.Bytes.isEmpty()
        && (modXlsx::IsXlsx(source.Bytes) || modXls::HoldsWorkbook(source.Bytes)
            || modSheetXml::IsSheetXml(source.Text));
}

cSpreadsheet modSpreadsheet::Load(const cStatementSource& source)
{
    if (modXlsx::IsXlsx(source.Bytes)) {
        return modXlsx::Read(source.Bytes);
    }
    if (modXls::IsXls(source.Bytes)) {
        return modXls::Read(source.Bytes);
    }
    if (modSheetXml::IsSheetXml(source.Text)) {
        return modSheetXml::Read(source.Text);
    }
    if (modHtmlTable::IsHtml(source.Text)) {
        return modHtmlTable::Read(source.Text);
    }
    if (source.Text.isEmpty()) {
        return {{}, cText::Tr("Die Datei ist beschädigt oder keine Arbeitsmappe. Es wurde nichts übernommen.")};
    }
    return {};
}

modTable::cOpened modSpreadsheet::Open(const cStatementSource& source, const cReadOptions& options)
{
    const cSpreadsheet book = Load(source);
    if (!book.Refusal.isEmpty()) {
        return {{}, std::make_shared<const cTable>()};
    }
    if (book.Sheets.isEmpty()) {
        return modTable::Open(source, options);
    }
    return Open(book, options);
}

modTable::cOpened modSpreadsheet::Open(const cSpreadsheet& book, const cReadOptions& options)
{
    const cSheetRead best = ReadBest(book.Sheets, options);
    return {best.Layout, std::make_shared<const cTable>(best.Sheet->Table), best.Sheet->Name};
}

cStatementRead modSpreadsheet::Read(const cStatementSource& source, const cReadOptions& options)
{
    const cSpreadsheet book = Load(source);
    if (!book.Refusal.isEmpty()) {
        return cStatementRead::Refused(book.Refusal);
    }
    return book.Sheets.isEmpty() ? ReadText(source, options) : ReadBest(book.Sheets, options).Read;
}

cStatementRead modSpreadsheet::ReadText(const cStatementSource& source, const cReadOptions& options)
{
    cStatementRead read = modTable::Read(source, options);
    if (!read.Refusal.isEmpty() && modHtmlTable::IsHtml(source.Text)) {
        return cStatementRead::Refused(
            cText::Tr("Das ist eine gespeicherte Internetseite und kein Kontoauszug. Melden Sie sich bei "
                      "der Bank an, und laden Sie die Umsätze dort als Datei herunter (camt, MT940 oder "
                      "CSV)."));
    }
    return read;
}
