#include "base/cText.h"
#include "base/modAmount.h"
#include "cli/cCliBook.h"
#include "cli/cCliReader.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliCommands.h"
#include "cli/modCliTableChoice.h"
#include "import/read/cReadOptions.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/cImportHive.h"
#include "import/stage/modStatementFormat.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modTable.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a file is and how it would be read.
struct cFinding
{
    eStatementFormat Format = eStatementFormat::Unknown;
    QString Charset; // empty: the file is no text
    std::optional<cTableLayout> Layout;
    int HeaderLine = 0; // of a table, counted from 1; 0: none
    cStatementRead Read;
};

QString Name(eMapOrigin origin)
{
    switch (origin) {
    case eMapOrigin::Words: return u"words"_s;
    case eMapOrigin::Contents: return u"contents"_s;
    case eMapOrigin::Profile: return u"profile"_s;
    case eMapOrigin::Memory: return u"memory"_s;
    case eMapOrigin::User: return u"user"_s;
    }
    return {};
}

void TakeLayout(const modTable::cOpened& opened, cFinding& finding)
{
    finding.Layout = opened.Layout;
    const int header = opened.Layout.HeaderRow;
    finding.HeaderLine = header >= 0 && header < opened.Table->RowCount() ? opened.Table->Line(header) : 0;
}

QString CharsetName(const cStatementSource& source, eCharset chosen)
{
    if (source.Text.isEmpty()) {
        return {};
    }
    return modCliTableChoice::Name(chosen == eCharset::Detect ? modStatementText::CharsetOf(source.Bytes) : chosen);
}

cFinding Examine(const cStatementSource& source, const cReadOptions& options)
{
    cFinding finding;
    finding.Format = modStatementFormat::Detect(source);
    finding.Charset = CharsetName(source, options.Table.Charset);
    if (finding.Format == eStatementFormat::Csv) {
        TakeLayout(modTable::Open(source, options), finding);
    } else if (finding.Format == eStatementFormat::Spreadsheet) {
        TakeLayout(modSpreadsheet::Open(source, options), finding);
    }
    if (const modStatementFormat::cReader reader = modStatementFormat::Reader(finding.Format)) {
        finding.Read = reader(source, options);
    } else {
        finding.Read.Refusal = modStatementFormat::Refusal(finding.Format);
    }
    return finding;
}

void AddLayout(const cFinding& finding, cJsonObject& json)
{
    const cTableLayout layout = finding.Layout.value_or(cTableLayout());
    const bool isTable = finding.Layout.has_value();
    json.Text(u"profile"_s, layout.Profile.isEmpty() ? finding.Read.Layout : layout.Profile)
        .Raw(u"headerLine"_s, isTable ? QString::number(finding.HeaderLine) : u"null"_s)
        .Text(u"separator"_s, layout.Separator.isNull() ? QString() : QString(layout.Separator))
        .Text(u"charset"_s, finding.Charset)
        .Text(u"origin"_s, isTable ? Name(layout.Origin) : QString())
        .Raw(u"map"_s, modCliTableChoice::MapJson(layout.Map).ToString())
        .Text(u"mapOption"_s, modCliTableChoice::MapText(layout.Map));
}

void AddRows(const cStatementRead& read, cJsonObject& json)
{
    QStringList accounts;
    for (const QString& account : cImportHive::AccountsOf(read.Entries)) {
        accounts.append(account.isEmpty() ? QStringList() : QStringList(modJson::Quoted(account)));
    }
    const auto isEarlier = [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate < b.ImportDate; };
    const auto [first, last] = std::minmax_element(read.Entries.begin(), read.Entries.end(), isEarlier);
    json.Raw(u"accounts"_s, u'[' + accounts.join(u", "_s) + u']')
        .Truth(u"needsAccount"_s, read.NeedsAccount)
        .Date(u"firstDay"_s, read.Entries.isEmpty() ? QDate() : first->ImportDate)
        .Date(u"lastDay"_s, read.Entries.isEmpty() ? QDate() : last->ImportDate)
        .Number(u"rows"_s, read.Entries.size())
        .Number(u"skipped"_s, read.Skipped.size())
        .Raw(u"closingBalance"_s, read.ClosingBalance ? modAmount::CentsToText(*read.ClosingBalance) : u"null"_s)
        .Text(u"message"_s, read.Refusal);
}

int Run(const cCliContext& context)
{
    cCliReader reader(context);
    cTableMemory memory(context.Book->Settings());
    cReadOptions options;
    options.Account = context.Call.Value(u"account"_s);
    options.Table = modCliTableChoice::Read(context.Call, reader);
    options.Memory = &memory;
    const QString path = context.Call.Arguments().constFirst();
    QFile file(path);
    if (reader.IsGood() && !file.open(QIODevice::ReadOnly)) {
        reader.Missing(cText::Tr("Die Datei kann nicht geöffnet werden: {0}", {QDir::toNativeSeparators(path)}));
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const cFinding finding = Examine(modStatementFormat::Source(path, file.readAll(), options.Table.Charset), options);
    cJsonObject json;
    json.Text(u"file"_s, path).Text(u"format"_s, modStatementFormat::Name(finding.Format));
    AddLayout(finding, json);
    AddRows(finding.Read, json);
    modConsole::Out(json.ToString() + u'\n');
    return finding.Read.Refusal.isEmpty() ? modExit::Done : modExit::Failed;
}

} // namespace

cCliCommand modCliCommands::DetectCommand()
{
    return {.Name = u"detect"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("zeigt als JSON, woran eine Datei erkannt wird und wie \"import\" sie lesen würde"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Options = QList<cCliOption>{{u"account"_s, u"NUMMER"_s,
                                          cText::Tr("eigene Kontonummer für Auszüge, die keine nennen")}}
                + modCliTableChoice::Options() + QList<cCliOption>{Json()},
            .Run = Run};
}
