#include "import/table/modTable.h"

#include "base/cText.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableAbove.h"
#include "import/table/modTableContents.h"
#include "import/table/modTableDetails.h"
#include "import/table/modTableHeader.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableRows.h"
#include "import/table/modTableSign.h"
#include "import/table/modTableText.h"

#include <algorithm>

namespace {

constexpr int probedLines = 60; // the searched ones, and those below them that hold the first data

QList<modTableHeader::cProbe> ProbesOf(QStringView text)
{
    QList<modTableHeader::cProbe> probes;
    while (!text.isEmpty() && probes.size() < probedLines) {
        const auto* const end =
            std::find_if(text.begin(), text.end(), [](QChar c) { return c == u'\n' || c == u'\r'; });
        const qsizetype size = end - text.begin();
        probes.append({text.left(size), {}});
        text = text.mid(size + (text.mid(size).startsWith(u"\r\n") ? 2 : 1));
    }
    return probes;
}

QList<modTableHeader::cProbe> ProbesOf(const cTable& table)
{
    QList<modTableHeader::cProbe> probes;
    for (int row = 0; row < qMin(table.RowCount(), probedLines); ++row) {
        QStringList cells = table.Row(row);
        cells.append(cells.isEmpty() ? QStringList(QString()) : QStringList());
        probes.append({{}, cells});
    }
    return probes;
}

// True when the first rows have the text of Austrian banks as their purpose.
bool IsAustrian(const cTable& table, const cTableLayout& layout)
{
    const int end = qMin(table.RowCount(), layout.FirstRow + 3);
    for (int row = layout.FirstRow; row < end; ++row) {
        if (!modTableDetails::IsAustrian(table.Cell(row, layout.Map.Purpose[0]))) {
            return false;
        }
    }
    return layout.FirstRow < end;
}

// True when a bank's layout or the user's memory of one told the columns.
bool SetColumns(const cTable& table, const cReadOptions& options, cTableLayout& layout)
{
    const QStringList names = layout.Map.Names;
    const bool isNamed =
        !options.Table.Profile.isEmpty() && modTableProfile::ApplyNamed(options.Table.Profile, names, layout);
    const bool isKnown = isNamed || (options.Memory != nullptr && options.Memory->LoadMap(layout.Key, layout))
        || (options.Table.Profile != noProfile && modTableProfile::Apply(names, layout));
    if (isKnown) {
        return true;
    }
    if (names.isEmpty() || !layout.IsReadable()) {
        layout.Origin = eMapOrigin::Contents;
    }
    modTableContents::Complete(table, layout);
    if (names.isEmpty() && IsAustrian(table, layout)) {
        layout.Details = eDetails::Austrian;
    }
    return false;
}

// What the user chose goes before everything.
void TakeChoice(const cTableChoice& choice, cTableLayout& layout)
{
    if (choice.Map) {
        const QStringList names = layout.Map.Names;
        layout.Map = *choice.Map;
        layout.Map.Names = names;
        layout.Origin = eMapOrigin::User;
    }
    layout.Number = choice.Number.value_or(layout.Number);
    layout.Date = choice.Date.value_or(layout.Date);
}

cTableLayout LayoutOf(const cTable& table, const modTableHeader::cFound& found, const cReadOptions& options)
{
    cTableLayout layout;
    layout.Separator = found.Separator;
    layout.HeaderRow = found.Header;
    layout.FirstRow = found.First;
    if (found.Header >= 0 && found.Header < table.RowCount()) {
        const QStringList names = table.Row(found.Header);
        layout.Map = modColumnWords::Detect(names);
        layout.Key = cTableMemory::KeyOf(names);
        layout.AccountKey = cTableMemory::KeyOf(names + QStringList(modTableAbove::Read(table, found.Header).Labels));
    }
    const bool isKnown = SetColumns(table, options, layout);
    TakeChoice(options.Table, layout);
    if (!isKnown) {
        modTableSign::Settle(table, layout);
    }
    layout.Sign = options.Table.Sign.value_or(layout.Sign); // answers what was open
    modTableContents::CompleteCurrency(layout);
    return layout;
}

// The account of rows that do not name their own.
QString AccountOf(const modTableAbove::cAbove& above, const cTableLayout& layout, const cReadOptions& options)
{
    if (!above.Account.isEmpty()) {
        return above.Account;
    }
    if (!layout.OwnNumber.isEmpty()) {
        return layout.OwnNumber;
    }
    if (!options.Account.isEmpty() || options.Memory == nullptr) {
        return options.Account;
    }
    return options.Memory->Account(layout.AccountKey);
}

modTable::cOpened OpenText(const cStatementSource& source, const cReadOptions& options)
{
    const modTableHeader::cFound found = modTableHeader::Find(ProbesOf(source.Text), options.Table, options.Memory);
    const auto table = std::make_shared<const cTable>(
        modTableText::Split(source.Text, found.Separator, found.Header >= 0 ? found.Header : found.First));
    return {LayoutOf(*table, found, options), table};
}

} // namespace

modTable::cOpened modTable::Open(const cStatementSource& source, const cReadOptions& options)
{
    cOpened opened = OpenText(source, options);
    if (options.Memory == nullptr || options.Table.Charset != eCharset::Detect || source.Bytes.isEmpty()) {
        return opened;
    }
    const eCharset charset = options.Memory->Charset(opened.Layout.Key);
    return charset == eCharset::Detect
        ? opened
        : OpenText({source.Name, source.Bytes, modStatementText::Decode(source.Bytes, charset)}, options);
}

bool modTable::Remember(const cStatementSource& source, const cTableChoice& choice, const cTableLayout& layout,
                        cTableMemory& memory)
{
    if (choice.Charset != eCharset::Detect && !source.Bytes.isEmpty()) {
        cReadOptions plain;
        plain.Table.HeaderLine = choice.HeaderLine;
        const cStatementSource detected{source.Name, source.Bytes, modStatementText::Decode(source.Bytes)};
        (void)memory.SaveCharset(OpenText(detected, plain).Layout.Key, choice.Charset);
    }
    return memory.SaveMap(layout.Key, layout);
}

cTableLayout modTable::Detect(const cTable& table, const cReadOptions& options)
{
    return LayoutOf(table, modTableHeader::Find(ProbesOf(table), options.Table, options.Memory), options);
}

cStatementRead modTable::ReadRows(const cTable& table, const cTableLayout& layout, const cReadOptions& options)
{
    if (!layout.IsReadable() || table.IsFull()) {
        cStatementRead read;
        read.IsTable = layout.Map.ColumnCount > 1; // else there is nothing to choose from
        read.Refusal = table.IsFull() ? cText::Tr("Die Tabelle ist zu groß für einen Kontoauszug.")
                                      : cText::Tr("In der Datei sind keine Spalten mit Datum und Betrag zu erkennen.");
        return read;
    }
    const modTableAbove::cAbove above =
        modTableAbove::Read(table, layout.HeaderRow >= 0 ? layout.HeaderRow : layout.FirstRow);
    cStatementRead read = modTableRows::Read(table, layout, AccountOf(above, layout, options));
    read.IsTable = true;
    read.IsGuessed = layout.Origin == eMapOrigin::Contents;
    if (layout.IsDateGuess && !options.Table.Date) {
        read.Problems.append({0,
                              cText::Tr("Tag und Monat sind in der Datei nicht zu unterscheiden. Gelesen wurde zuerst "
                                        "der Tag, dann der Monat.")});
    }
    read.Doubt = options.Table.Sign ? std::nullopt : layout.Doubt;
    if (!options.Table.Account.isEmpty()) {
        for (cImportEntry& entry : read.Entries) {
            entry.ImportAccount = options.Table.Account;
        }
        for (cSkippedRow& row : read.Skipped) {
            row.Entry.ImportAccount = options.Table.Account;
        }
        for (cAccountBalance& balance : read.Balances) {
            balance.Account = options.Table.Account;
        }
    }
    read.NeedsAccount = std::any_of(read.Entries.begin(), read.Entries.end(),
                                    [](const cImportEntry& entry) { return entry.ImportAccount.isEmpty(); });
    if (!read.ClosingBalance && above.Balance) {
        read.ClosingBalance = above.Balance->Cents;
        const QString account = read.Entries.isEmpty() ? above.Account : read.Entries.first().ImportAccount;
        read.Balances.append({account, above.Balance->Cents, above.Balance->Date});
    }
    return read;
}

cStatementRead modTable::ReadTable(const cTable& table, const cReadOptions& options)
{
    return ReadRows(table, Detect(table, options), options);
}

cStatementRead modTable::Read(const cStatementSource& source, const cReadOptions& options)
{
    const cOpened opened = Open(source, options);
    return ReadRows(*opened.Table, opened.Layout, options);
}
