#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/book/modBookCopy.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// "<path>: <what it holds>"
QString Line(const QString& path, const QString& content)
{
    return path + u": "_s + (content.isEmpty() ? cText::Tr("beschädigt oder keine gültige Datenbank") : content)
        + u'\n';
}

int Refuse(const QString& text)
{
    modConsole::Error(text);
    return modExit::Failed;
}

int Replace(const cCliContext& context, const QString& path, const QString& backup)
{
    const modBookCopy::cRestored restored =
        modBookCopy::Restore(path, backup, context.Clock.Today(), context.Shell, context.Ports.Lock, context.User);
    if (!restored.Problem.isEmpty()) {
        return Refuse(restored.Problem);
    }
    modConsole::Out(cText::Tr("Die Datensicherung wurde geladen.") + u'\n');
    if (!restored.Kept.isEmpty()) {
        modConsole::Out(cText::Tr("Die bisherige Datei wurde als '{0}' aufgehoben.", {restored.Kept}) + u'\n');
    }
    return restored.Receipts.isEmpty() ? modExit::Done : Refuse(restored.Receipts);
}

int RunBackup(const cCliContext& context)
{
    const QString book = context.Book->File().Path();
    const QString name = u"Kontorelle-"_s + modDate::ToIso(context.Clock.Today()) + u".backup"_s;
    const QString target = context.Call.Arguments().isEmpty()
        ? QFileInfo(book).dir().filePath(name)
        : cBookAccess::FullPath(context.Call.Arguments().constFirst());
    if (context.Shell.FileExists(target) && !context.Call.Has(u"yes"_s)) {
        return Refuse(cText::Tr("Die Datei '{0}' gibt es schon. Mit --yes wird sie ersetzt.", {target}));
    }
    const QString problem = context.Book->File().MakeBackup(target, context.Shell);
    if (!problem.isEmpty()) {
        return Refuse(cText::Tr("Die Datensicherung konnte nicht erstellt werden:\n{0}", {problem}));
    }
    modConsole::Out(Line(target, modBookCopy::Describe(target)));
    const QString receipts = context.Book->File().SaveReceipts(target);
    return receipts.isEmpty() ? modExit::Done : Refuse(receipts);
}

int RunRestore(const cCliContext& context)
{
    const QString backup = cBookAccess::FullPath(context.Call.Arguments().constFirst());
    const QString path = cBookAccess::PathFor(context.Call.Value(u"database"_s), context.Ports.Registry, context.Shell);
    if (const QString refusal = modBookCopy::Refusal(backup); !refusal.isEmpty()) {
        return Refuse(refusal);
    }
    if (modBookCopy::IsSameFile(backup, path)) {
        return Refuse(cText::Tr("'{0}' ist die Datenbank selbst.", {path}));
    }
    modConsole::Out(cText::Tr("Datensicherung  {0}", {Line(backup, modBookCopy::Describe(backup))}));
    modConsole::Out(context.Shell.FileExists(path)
                        ? cText::Tr("Datenbank       {0}", {Line(path, modBookCopy::Describe(path))})
                        : cText::Tr("Datenbank       {0}: gibt es noch nicht\n", {path}));
    if (!context.Call.Has(u"yes"_s)) {
        return Refuse(
            cText::Tr("Es wurde nichts geändert. Mit --yes tritt die Datensicherung an die Stelle der Datenbank, deren "
                      "bisherige Datei unter anderem Namen erhalten bleibt."));
    }
    return Replace(context, path, backup);
}

} // namespace

cCliCommand modCliCommands::BackupCommand()
{
    return {.Name = u"backup"_s,
            .Arguments = u"[DATEI]"_s,
            .Help = cText::Tr("schreibt eine Datensicherung und prüft sie; ohne Angabe neben die Datenbank"),
            .MaxArguments = 1,
            .Options = {{u"yes"_s, {}, cText::Tr("eine vorhandene Datei ersetzen")}},
            .Run = RunBackup};
}

cCliCommand modCliCommands::RestoreCommand()
{
    return {.Name = u"restore"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("zeigt, was eine Datensicherung enthält, und lädt sie anstelle der Datenbank"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::None,
            .Options = {{u"yes"_s, {}, cText::Tr("wirklich laden; die bisherige Datei bleibt unter anderem Namen")}},
            .Run = RunRestore};
}
