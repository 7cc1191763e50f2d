#include "base/cText.h"
#include "base/modAmount.h"
#include "cli/argument/cCliReader.h"
#include "cli/argument/modCliTableChoice.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "views/statement/cFileReport.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

QString ColumnsText(const cFileFinding& finding)
{
    QStringList parts;
    for (const auto& [name, column] : finding.Columns) {
        parts.append(name + u'=' + QString::number(column));
    }
    return parts.join(u',');
}

QString ColumnsJson(const cFileFinding& finding)
{
    cJsonObject json;
    for (const auto& [name, column] : finding.Columns) {
        json.Number(name, column);
    }
    return json.ToString();
}

QString ToJson(const QString& path, const cFileFinding& finding)
{
    QStringList accounts;
    std::transform(finding.Accounts.begin(), finding.Accounts.end(), std::back_inserter(accounts), modJson::Quoted);
    return cJsonObject()
        .Text(u"file"_s, path)
        .Text(u"format"_s, finding.Format)
        .Text(u"profile"_s, finding.Profile)
        .Raw(u"headerLine"_s, finding.IsTable ? QString::number(finding.HeaderLine) : u"null"_s)
        .Text(u"separator"_s, finding.Separator.isNull() ? QString() : QString(finding.Separator))
        .Text(u"charset"_s, finding.Charset)
        .Text(u"origin"_s, finding.Origin)
        .Raw(u"map"_s, ColumnsJson(finding))
        .Text(u"mapOption"_s, ColumnsText(finding))
        .Raw(u"accounts"_s, u'[' + accounts.join(u", "_s) + u']')
        .Truth(u"needsAccount"_s, finding.NeedsAccount)
        .Date(u"firstDay"_s, finding.FirstDay)
        .Date(u"lastDay"_s, finding.LastDay)
        .Number(u"rows"_s, finding.Rows)
        .Number(u"skipped"_s, finding.Skipped)
        .Raw(u"closingBalance"_s, finding.ClosingBalance ? modAmount::CentsToText(*finding.ClosingBalance) : u"null"_s)
        .Text(u"question"_s, finding.Question)
        .Text(u"message"_s, finding.Refusal)
        .ToString();
}

int RunDetect(const cCliContext& context)
{
    cCliReader reader(context);
    const cFileWish wish = modCliTableChoice::Read(context.Call, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QString path = context.Call.Arguments().constFirst();
    const cFileFinding finding = context.Book->Statements.Examine(path, wish);
    if (finding.Format.isEmpty()) {
        modConsole::Error(finding.Refusal); // it could not be opened
        return modExit::Failed;
    }
    modConsole::Out(ToJson(path, finding) + u'\n');
    return finding.Refusal.isEmpty() ? modExit::Done : modExit::Failed;
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
            .Run = RunDetect};
}
