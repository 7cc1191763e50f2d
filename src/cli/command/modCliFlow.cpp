#include "cli/command/modCliFlow.h"

#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "views/statement/cSeriesCheck.h"

using namespace Qt::Literals::StringLiterals;

cCliOption modCliFlow::Yes()
{
    return {u"yes"_s, {}, cText::Tr("Rückfragen mit Ja beantworten")};
}

cConsoleUser::cAnswers modCliFlow::Answers(const cCliContext& context, const QString& hint)
{
    cConsoleUser::cAnswers answers;
    answers.Hint = cText::Tr("Es wurde nichts geändert. {0}", {hint});
    if (context.Call.Has(u"yes"_s)) {
        answers.Answer = eAnswer::Yes;
    }
    return answers;
}

cConsoleUser::cAnswers modCliFlow::RemovalAnswers(const cCliContext& context, const QString& target)
{
    enum eWay { MoveAndDelete, OnlyDelete }; // in the order in which they are offered
    cConsoleUser::cAnswers answers =
        Answers(context, cText::Tr("Mit --yes wird gelöscht; --move-to verschiebt vorher die Buchungen."));
    if (answers.Answer) {
        answers.Decision = target.isEmpty() ? OnlyDelete : MoveAndDelete;
        answers.Choice = target;
    }
    return answers;
}

void modCliFlow::CheckTargets(const cCliContext& context, cCliReader& reader, const QStringList& options)
{
    for (const QString& option : options) {
        if (context.Call.Has(option)) {
            reader.CheckTarget(context.Call.Value(option));
        }
    }
}

bool modCliFlow::WriteFile(const cCliContext& context, const QString& path, const modFileWrite::cContent& content)
{
    const QString problem = modFileWrite::Export(context.Book->Data, path, content);
    if (!problem.isEmpty()) {
        context.User.Show(eTone::Critical, problem);
    }
    return problem.isEmpty();
}

void modCliFlow::SayWritten(const QString& path)
{
    modConsole::Out(cText::Tr("'{0}' geschrieben.", {path}) + u'\n');
}

cConsoleUser::cAnswers modCliFlow::CorrectionAnswers(const cCliContext& context)
{
    enum eAmounts { OnlyThisTime, FromHere, KeepThem }; // in the order in which they are offered
    cConsoleUser::cAnswers answers;
    const bool isCorrecting = context.Call.Has(u"correct"_s);
    answers.Answer = isCorrecting ? eAnswer::Yes : eAnswer::No;
    answers.Decision = isCorrecting ? OnlyThisTime : KeepThem;
    return answers;
}

cConsoleUser::cAnswers modCliFlow::SafeAnswers()
{
    cConsoleUser::cAnswers answers;
    answers.Answer = eAnswer::Yes;
    answers.Decision = 0; // amounts that differ are corrected this time only
    return answers;
}

int modCliFlow::ReportBooked(const cCliContext& context, const cStatementDesk::cBooked& booked)
{
    QStringList lines = booked.Lines;
    if (booked.Left > 0) {
        lines.append(cText::Tr("Offen bleiben: {0}; \"propose\" zeigt, warum.", {QString::number(booked.Left)}));
    }
    if (booked.IsDone && !context.Book->Statements.Series().Find().isEmpty()) {
        lines.append(
            cText::Tr("Bei wenigstens einer Serie sind Buch und Bank nicht einig; \"series --dry-run\" zeigt sie, "
                      "\"series\" gleicht sie an."));
    }
    for (const QString& line : lines) {
        context.Call.Has(u"json"_s) ? modConsole::Error(line) : modConsole::Out(line + u'\n');
    }
    if (!booked.UnknownAccounts.isEmpty()) {
        modConsole::Error(cText::Tr("Lesen Sie den Auszug mit --book-account NAME noch einmal ein."));
    }
    return booked.IsDone ? modExit::Done : modExit::Failed;
}

int modCliFlow::Finish(const cCliContext& context, bool isDone)
{
    if (isDone) {
        const QString step = context.Book->File().LastStep(); // its name says what was done
        modConsole::Out(step.isEmpty() ? step : step + u'\n');
        return modExit::Done;
    }
    if (!context.User.HasSpoken()) {
        modConsole::Error(cText::Tr("Es wurde nichts geändert."));
    }
    return modExit::Failed;
}
