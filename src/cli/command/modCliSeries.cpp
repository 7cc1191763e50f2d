#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/modCliRecord.h"
#include "views/statement/cSeriesCheck.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString ToJson(const QList<cSeriesCheck::cFinding>& findings)
{
    QStringList objects;
    for (const cSeriesCheck::cFinding& finding : findings) {
        cJsonObject json;
        json.Number(u"EntryID"_s, finding.EntryId)
            .Text(u"Account"_s, finding.Account)
            .Text(u"State"_s, finding.IsLate ? u"late"_s : u"ended"_s)
            .Date(u"LastPaid"_s, finding.LastPaid)
            .Date(u"End"_s, finding.End)
            .Date(u"Occurrence"_s, finding.Occurrence)
            .Date(u"MoveTo"_s, finding.MoveTo);
        objects.append(json.ToString());
    }
    return modJson::Array(objects) + u'\n';
}

int RunSeries(const cCliContext& context)
{
    cCliReader reader(context);
    const QString account = reader.Account(context.Call.Value(u"account"_s));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cSeriesCheck check = context.Book->Statements.Series();
    const auto findings = check.Find(account.isEmpty() ? QStringList() : QStringList{account});
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(ToJson(findings));
    } else if (findings.isEmpty()) {
        modConsole::Out(cSeriesCheck::NothingFound() + u'\n');
    } else {
        for (const cSeriesCheck::cFinding& finding : findings) {
            modConsole::Out(QString::number(finding.EntryId) + u"  "_s + check.Line(finding) + u'\n');
        }
    }
    const QString contracts = check.Contracts();
    if (!context.Call.Has(u"json"_s) && !contracts.isEmpty()) {
        modConsole::Out(contracts + u'\n');
    }
    const bool isWanted = !context.Call.Has(u"dry-run"_s) && !findings.isEmpty();
    return isWanted && !check.Apply(findings) ? modCliFlow::Finish(context, false) : modExit::Done;
}

} // namespace

cCliCommand modCliCommands::SeriesCommand()
{
    return {.Name = u"series"_s,
            .Help = cText::Tr("beendet Serien, die die Bank nicht mehr bucht, und verschiebt Buchungen, die ausstehen"),
            .Access = eCliAccess::Write,
            .ReadsWith = {u"dry-run"_s},
            .Options = {{u"dry-run"_s, {}, cText::Tr("nur zeigen, nichts ändern")},
                        {u"account"_s, u"KONTO"_s, cText::Tr("nur dieses Konto")},
                        Json()},
            .Run = RunSeries};
}
