#include "import/table/modTable.h"

#include "base/cText.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modBookTable.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableAbove.h"
#include "import/table/modTableContents.h"
#include "import/table/modTableDetails.h"
#include "import/table/modTableFee.h"
#include "import/table/modTableHeader.h"
#include "import/table/modTableMend.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableRows.h"
#include "import/table/modTableSections.h"
#include "import/table/modTableSign.h"
#include "import/table/modTableText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int probedLines = 60; // the searched ones, and those below them that hold the first data
constexpr int mostSections = 20;

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
    const cTableLayout before = layout;
    const bool isNamed =
        !options.Table.Profile.isEmpty() && modTableProfile::ApplyNamed(options.Table.Profile, names, layout);
    const bool isKnown = isNamed || (options.Memory != nullptr && options.Memory->LoadMap(layout.Key, layout))
        || (options.Table.Profile != noProfile
            && (names.isEmpty() ? modTableProfile::ApplyShape(table, layout) : modTableProfile::Apply(names, layout))
            && modTableProfile::Fits(table, layout));
    if (isKnown) {
        return true;
    }
    layout = before; // a known layout may have been tried in vain
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
    const modTableSections::cNext next = modTableSections::Find(table, layout, options);
    const cTable first = next.Start < 0 ? cTable() : table.Part(0, next.Start);
    const cTable& own = next.Start < 0 ? table : first;
    layout.EndRow = next.Start;
    const bool isKnown = SetColumns(own, options, layout);
    TakeChoice(options.Table, layout);
    if (!isKnown || layout.IsSignOpen) {
        modTableSign::Settle(own, layout);
    }
    layout.Sign = options.Table.Sign.value_or(layout.Sign); // answers what was open
    modTableContents::CompleteCurrency(layout);
    modTableFee::Decide(own, layout);
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
    cTableLayout layout = LayoutOf(*table, found, options);
    std::optional<modTableMend::cMended> mended = modTableMend::Mend(*table, layout);
    if (!mended) {
        return {layout, table};
    }
    const auto whole = std::make_shared<const cTable>(std::move(mended->Table));
    layout = LayoutOf(*whole, found, options);
    layout.Notes = mended->Notes + layout.Notes;
    return {layout, whole};
}

// Spreadsheets that save a text as their own quote whole lines.
modTable::cOpened OpenAny(const cStatementSource& source, const cReadOptions& options)
{
    modTable::cOpened opened = OpenText(source, options);
    if (opened.Layout.IsReadable() || !source.Text.startsWith(u'"')) {
        return opened;
    }
    const QString text = modTableMend::WithoutLineQuotes(source.Text);
    return text.isEmpty() ? opened : OpenText({source.Name, source.Bytes, text}, options);
}

} // namespace

modTable::cOpened modTable::Open(const cStatementSource& source, const cReadOptions& options)
{
    cOpened opened = OpenAny(source, options);
    if (options.Memory == nullptr || options.Table.Charset != eCharset::Detect || source.Bytes.isEmpty()) {
        return opened;
    }
    const eCharset charset = options.Memory->Charset(opened.Layout.Key);
    return charset == eCharset::Detect
        ? opened
        : OpenAny({source.Name, source.Bytes, modStatementText::Decode(source.Bytes, charset)}, options);
}

bool modTable::Remember(const cStatementSource& source, const cTableChoice& choice, const cTableLayout& layout,
                        cTableMemory& memory)
{
    if (choice.Charset != eCharset::Detect && !source.Bytes.isEmpty()) {
        cReadOptions plain;
        plain.Table.HeaderLine = choice.HeaderLine;
        const cStatementSource detected{source.Name, source.Bytes, modStatementText::Decode(source.Bytes)};
        (void)memory.SaveCharset(OpenAny(detected, plain).Layout.Key, choice.Charset);
    }
    cTableLayout kept = layout;
    if (choice.Sign) {
        kept.Doubt.reset();
        kept.IsSignUsual = false;
    }
    return memory.SaveMap(layout.Key, kept);
}

cTableLayout modTable::Detect(const cTable& table, const cReadOptions& options)
{
    return LayoutOf(table, modTableHeader::Find(ProbesOf(table), options.Table, options.Memory), options);
}

namespace {

// Banks that share a header need not share a sign, so it is remembered for the account: what the table proved, or what
// was answered. Two sides have no sign of their own; known columns have theirs with them, unless it was open.
void TakeSign(const cTableLayout& layout, const cReadOptions& options, cStatementRead& read)
{
    if (layout.Key.isEmpty() || read.Entries.isEmpty()) {
        return;
    }
    read.SignKey = cTableMemory::KeyOf({layout.Key, read.Entries.constFirst().ImportAccount});
    const bool isKnown =
        layout.Origin == eMapOrigin::Profile || (layout.Origin == eMapOrigin::Memory && !layout.IsSignOpen);
    const bool isKept = !isKnown && layout.Map.Amount >= 0;
    if (options.Table.Sign) {
        const bool isAnswer = layout.Doubt || (isKept && !options.Table.Map); // chosen columns come with a sign
        read.Sign = isAnswer ? options.Table.Sign : std::nullopt;
    } else if (isKept && !layout.IsSignUsual) {
        read.Sign = layout.Sign;
    }
}

cStatementRead ReadPart(const cTable& table, const cTableLayout& layout, const cReadOptions& options)
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
    const QString account = AccountOf(above, layout, options);
    cStatementRead read = modTableRows::Read(table, layout, account, above.Balance);
    read.IsAccountRemembered = options.Account.isEmpty() && options.Table.Account.isEmpty() && !account.isEmpty()
        && account != above.Account && account != layout.OwnNumber && !read.Entries.isEmpty()
        && read.Entries.constFirst().ImportAccount == account;
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
    TakeSign(layout, options, read);
    const bool isOpen = !options.Table.Sign && (layout.Doubt || layout.IsSignUsual) && options.Memory != nullptr;
    if (const auto sign = isOpen ? options.Memory->Sign(read.SignKey) : std::nullopt) {
        cTableLayout told = layout;
        told.Sign = *sign;
        told.IsSignUsual = false;
        told.Doubt.reset();
        cStatementRead settled = ReadPart(table, told, options);
        settled.KnownSign = sign;
        return settled;
    }
    read.NeedsAccount = std::any_of(read.Entries.begin(), read.Entries.end(),
                                    [](const cImportEntry& entry) { return entry.ImportAccount.isEmpty(); });
    return read;
}

// "Umsätze Visa-Karte (Kreditkarte)": the account is called what stands behind the first word.
QString AccountOfTitle(const QString& title)
{
    const qsizetype blank = title.startsWith(u"Ums") ? title.indexOf(u' ') : -1;
    return title.mid(blank + 1).simplified().left(40);
}

// The account of a part of a file: by its number, else by what stands above it; empty when nothing does.
QString AccountOfPart(const cTable& part, int header, const QString& title)
{
    const QString number = modTableAbove::Read(part, header).Account;
    return number.isEmpty() ? AccountOfTitle(title) : number;
}

void AppendPart(cStatementRead part, int line, const QString& title, const QString& account, cStatementRead& read)
{
    const QString text = title.isEmpty()
        ? cText::Tr("Hier beginnt ein weiterer Abschnitt der Datei; gelesen wurde er als Konto {0}.", {account})
        : cText::Tr("Hier beginnt ein weiterer Abschnitt der Datei, \"{0}\"; gelesen wurde er als Konto {1}.",
                    {title.left(60), account});
    read.Problems.append({line, text});
    if (!part.Refusal.isEmpty()) {
        read.Problems.append({line, part.Refusal});
    }
    read.IsGuessed = read.IsGuessed || part.IsGuessed;
    read.Append(std::move(part));
}

// The parts of a file that follow the first one. What the user chose was said about the first.
void ReadFurther(const cTable& table, modTableSections::cNext next, const cReadOptions& options, cStatementRead& read)
{
    cTable rest = table;
    for (int count = 1; next.Start >= 0 && count < mostSections; ++count) {
        rest = rest.Part(next.Start, rest.RowCount());
        const int header = next.Header - next.Start;
        const QString title = next.Title;
        cReadOptions own;
        own.Memory = options.Memory;
        own.Account = AccountOfPart(rest, header, title);
        own.Account = own.Account.isEmpty() ? options.Account : own.Account;
        const cTableLayout layout = LayoutOf(rest, {header, header + 1, QChar()}, own);
        next = modTableSections::Find(rest, layout, own);
        const int end = next.Start < 0 ? rest.RowCount() : next.Start;
        AppendPart(ReadPart(rest.Part(0, end), layout, own), rest.Line(header), title, own.Account, read);
    }
    if (next.Start >= 0) {
        read.Problems.append(
            {rest.Line(next.Header), cText::Tr("Von hier an wurde die Datei nicht gelesen: zu viele Abschnitte.")});
    }
}

cStatementRead ReadParts(const cTable& table, const cTableLayout& layout, const cReadOptions& options)
{
    if (modBookTable::IsBook(table, layout)) {
        return modBookTable::Read(table, layout);
    }
    if (layout.EndRow < 0 || !layout.IsReadable()) {
        return ReadPart(table, layout, options);
    }
    cStatementRead read = ReadPart(table.Part(0, layout.EndRow), layout, options);
    ReadFurther(table, modTableSections::Find(table, layout, options), options, read);
    return read;
}

} // namespace

cStatementRead modTable::ReadRows(const cTable& table, const cTableLayout& layout, const cReadOptions& options)
{
    cStatementRead read = ReadParts(table, layout, options);
    if (read.Refusal.isEmpty() && read.Entries.isEmpty() && read.Skipped.isEmpty() && read.Problems.isEmpty()) {
        read.Problems.append({0,
                              cText::Tr("Die Datei nennt nur die Spalten und enthält keinen Umsatz. Wählen Sie bei der "
                                        "Bank einen längeren Zeitraum, und laden Sie sie noch einmal herunter.")});
    }
    return read;
}

cStatementRead modTable::Read(const cStatementSource& source, const cReadOptions& options)
{
    const cOpened opened = Open(source, options);
    return ReadRows(*opened.Table, opened.Layout, options);
}
