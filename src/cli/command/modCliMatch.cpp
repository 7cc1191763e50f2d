#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modCliRecord.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cMatchFlow.h"

#include <cmath>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

cJsonObject ToJson(int rowId, const QString& state)
{
    cJsonObject json;
    json.Number(u"ImportID"_s, rowId).Text(u"State"_s, state);
    return json;
}

cJsonObject ToJson(int rowId, const QString& state, const cMatchCandidate& candidate)
{
    cJsonObject json = ToJson(rowId, state);
    json.Number(u"EntryID"_s, candidate.Entry.ID)
        .Date(u"EntryDate"_s, candidate.Entry.EntryDate)
        .Amount(u"Amount"_s, candidate.Cents)
        .Raw(u"Score"_s, QString::number(candidate.Score, 'f', 3))
        .Text(u"Reason"_s, candidate.Reason)
        .Truth(u"Taken"_s, candidate.IsTaken)
        .Raw(u"Correction"_s,
             candidate.Correction ? modCliRecord::FixMod(*candidate.Correction).ToString() : u"null"_s);
    return json;
}

QString ToJson(const cMatchResult& result)
{
    QStringList objects;
    for (const cMatch& match : result.Assigned) {
        objects.append(ToJson(match.RowId, u"assigned"_s, match.Candidate).ToString());
    }
    for (const cMatch& match : result.Proposed) {
        objects.append(ToJson(match.RowId, u"proposed"_s, match.Candidate).ToString());
    }
    QHash<int, int> partners;
    for (const auto& [row, partner] : result.Transfers) {
        partners.insert(row, partner);
        partners.insert(partner, row);
    }
    for (const int rowId : result.Left) {
        objects.append(ToJson(rowId, u"left"_s).Number(u"PartnerRow"_s, partners.value(rowId)).ToString());
    }
    return modJson::Array(objects) + u'\n';
}

void AddLines(cCliTable& table, const cCliBook& book, const QList<cMatch>& matches, const QString& state)
{
    for (const cMatch& match : matches) {
        const cMatchCandidate& found = match.Candidate;
        table.Add({QString::number(match.RowId), state, QString::number(found.Entry.ID),
                   modDate::ToText(found.Entry.EntryDate), book.AmountText(found.Cents), found.Entry.EntryDescription,
                   QString::number(std::lround(found.Score * 100.0)), found.Reason});
    }
}

cCliTable MatchTable()
{
    return cCliTable({{cText::Tr("Umsatz"), eAlign::Right},
                      {cText::Tr("Stand")},
                      {cText::Tr("Eintrag"), eAlign::Right},
                      {cText::Tr("Datum")},
                      {cText::Tr("Betrag"), eAlign::Right},
                      {cText::Tr("Text"), eAlign::Left, 30},
                      {cText::Tr("Güte"), eAlign::Right},
                      {cText::Tr("Grund")}});
}

void Print(const cCliBook& book, const cMatchResult& result)
{
    if (!result.Assigned.isEmpty() || !result.Proposed.isEmpty()) {
        cCliTable table = MatchTable();
        AddLines(table, book, result.Assigned, cText::Tr("zugeordnet"));
        AddLines(table, book, result.Proposed, cText::Tr("vorgeschlagen"));
        modConsole::Out(table.ToString());
    }
    modConsole::Out(result.Summary() + u'\n');
}

// The candidates of one row, for choosing one with "assign".
int ShowCandidates(const cCliContext& context)
{
    cCliReader reader(context);
    const std::optional<cImportEntry> row = reader.StagedRow(context.Call.Value(u"candidates"_s));
    if (!row) {
        return reader.Report();
    }
    cCliBook& book = *context.Book;
    const QList<cMatchCandidate> candidates = book.Statements.Candidates(row->ID);
    QStringList objects;
    QList<cMatch> open;
    QList<cMatch> taken;
    for (const cMatchCandidate& candidate : candidates) {
        objects.append(ToJson(row->ID, u"candidate"_s, candidate).ToString());
        (candidate.IsTaken ? taken : open).append({row->ID, candidate});
    }
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(modJson::Array(objects) + u'\n');
        return modExit::Done;
    }
    cCliTable table = MatchTable();
    AddLines(table, book, open, cText::Tr("möglich"));
    AddLines(table, book, taken, cText::Tr("vergeben"));
    modConsole::Out(table.ToString());
    return modExit::Done;
}

int Report(const cCliContext& context, const cMatchResult& result)
{
    if (context.Call.Has(u"json"_s)) {
        modConsole::Out(ToJson(result));
    } else {
        Print(*context.Book, result);
    }
    for (const QString& number : result.UnknownAccounts) {
        modConsole::Error(modImportText::NoAccountToMatch(number));
    }
    return modExit::Done;
}

int RunMatch(const cCliContext& context)
{
    if (context.Call.Has(u"candidates"_s)) {
        return ShowCandidates(context);
    }
    cStatementDesk& desk = context.Book->Statements;
    const QList<int> ids = desk.OpenIds();
    if (context.Call.Has(u"dry-run"_s)) {
        return Report(context, desk.TryMatching(ids));
    }
    context.User.Prepare(modCliFlow::CorrectionAnswers(context));
    cNoProgress progress;
    const cMatchFlow::cOutcome outcome = desk.Matching().Match(ids, progress);
    if (!outcome.IsDone) {
        modConsole::Error(outcome.Lines.join(u'\n'));
        return modExit::Failed;
    }
    return Report(context, *outcome.Matches);
}

} // namespace

cCliCommand modCliCommands::MatchCommand()
{
    return {.Name = u"match"_s,
            .Help = cText::Tr("ordnet offene Umsätze den Einträgen zu, die schon im Haushaltsbuch stehen"),
            .Access = eCliAccess::Write,
            .ReadsWith = {u"dry-run"_s, u"candidates"_s},
            .Options = {{u"dry-run"_s, {}, cText::Tr("nur zeigen, nichts ändern")},
                        {u"candidates"_s, u"UMSATZ"_s, cText::Tr("nur zeigen, wozu dieser Umsatz gehören kann")},
                        {u"correct"_s, {}, cText::Tr("Vorkommen von Serien auf den Betrag des Umsatzes korrigieren")},
                        Json()},
            .Run = RunMatch};
}
