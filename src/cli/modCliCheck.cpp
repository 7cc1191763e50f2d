#include "base/cText.h"
#include "base/modCount.h"
#include "cli/cCliBook.h"
#include "cli/cConsoleUser.h"
#include "cli/modCliCommands.h"

using namespace Qt::Literals::StringLiterals;

namespace {

int Run(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    modConsole::Out(cText::Tr("{0}: gültige Datenbank, {1}, {2}",
                              {book.File().Path(), modCount::Entries(book.Data.CountEntries()),
                               modCount::Rows(book.Hive.GetImportHive().Count())})
                    + u'\n');
    const QStringList added = book.File().Added();
    if (!added.isEmpty()) {
        modConsole::Out(cText::Tr("Beim Öffnen ergänzt: {0}", {added.join(u", "_s)}) + u'\n');
    }
    const QStringList problems = book.IntegrityProblems();
    for (const QString& problem : problems) {
        modConsole::Error(problem);
    }
    modConsole::Out((problems.isEmpty()
                         ? cText::Tr("Die Datei ist unbeschädigt.")
                         : cText::Tr("Die Datei ist beschädigt. Bitte spielen Sie eine Datensicherung zurück."))
                    + u'\n');
    return problems.isEmpty() ? modExit::Done : modExit::Failed;
}

} // namespace

cCliCommand modCliCommands::CheckCommand()
{
    return {.Name = u"check"_s,
            .Help = cText::Tr("prüft die Datenbank und sagt, was beim Öffnen ergänzt wurde"),
            .Access = eCliAccess::Write,
            .Run = Run};
}
